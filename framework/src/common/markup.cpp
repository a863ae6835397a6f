#include "markup.h"

#include <cstring>

namespace lcdcommon {
namespace {

/// What no document may hold: control characters but for white space, and the two that are no characters.
bool isForbidden(ushort unit)
{
    return (unit < 0x20 && unit != '\t' && unit != '\n' && unit != '\r') || (unit >= 0x7F && unit < 0xA0) ||
           unit >= 0xFFFE;
}

/// A half of a pair that has lost its other half.
bool isLoneSurrogate(const QString& text, int at)
{
    const QChar unit = text[at];
    if (unit.isHighSurrogate()) return at + 1 >= text.size() || !text[at + 1].isLowSurrogate();
    return unit.isLowSurrogate() && (at == 0 || !text[at - 1].isHighSurrogate());
}

} // namespace

Words named(const std::string& english, const std::string& chinese)
{
    const QString first = QString::fromStdString(english);
    const QString second = QString::fromStdString(chinese);
    return {first.isEmpty() ? second : first, second.isEmpty() ? first : second};
}

QByteArray escaped(const QString& text)
{
    QString safe;
    safe.reserve(text.size() + text.size() / 8);
    for (int at = 0; at < text.size(); ++at) {
        const QChar unit = text[at];
        if (unit == '&')
            safe += QLatin1String("&amp;");
        else if (unit == '<')
            safe += QLatin1String("&lt;");
        else if (unit == '>')
            safe += QLatin1String("&gt;");
        else if (unit == '"')
            safe += QLatin1String("&quot;");
        else if (unit == '\'')
            safe += QLatin1String("&#39;");
        else if (isForbidden(unit.unicode()) || isLoneSurrogate(text, at))
            safe += QChar(QChar::ReplacementCharacter);
        else
            safe += unit;
    }
    return safe.toUtf8();
}

void Markup::start(Name tag, Attributes attributes)
{
    _bytes += '<';
    _bytes += tag.text();
    for (const Attribute& attribute : attributes) {
        if (attribute.value.isNull()) continue;
        _bytes += ' ';
        _bytes += attribute.name.text();
        _bytes += "=\"" + escaped(attribute.value) + '"';
    }
}

void Markup::open(Name tag, Attributes attributes)
{
    start(tag, attributes);
    _bytes += '>';
    _open.push_back(tag.text());
}

void Markup::close()
{
    _bytes += QByteArray("</") + _open.back() + '>';
    _open.pop_back();
    // A line for each larger element: the page can be read and compared, and its size hardly grows.
    if (_open.size() < 6) _bytes += '\n';
}

void Markup::empty(Name tag, Attributes attributes)
{
    start(tag, attributes);
    _bytes += "/>";
}

void Markup::leaf(Name tag, Attributes attributes, const QString& text)
{
    open(tag, attributes);
    _bytes += escaped(text);
    close();
}

void Markup::leaf(Name tag, Attributes attributes, const Words& both)
{
    open(tag, attributes);
    const bool inDrawing = std::strcmp(tag.text(), "text") == 0;
    words(both, inDrawing ? Name("tspan") : Name("span"));
    close();
}

void Markup::text(const QString& text) { _bytes += escaped(text); }

void Markup::words(const Words& words, Name holder)
{
    if (_language == Language::English || words.english == words.chinese) return text(words.english);
    if (_language == Language::Chinese) return text(words.chinese);
    leaf(holder, {{"lang", "en"}}, words.english);
    leaf(holder, {{"lang", "zh"}}, words.chinese);
}

void Markup::raw(Name tag, const char* program)
{
    open(tag);
    _bytes += program;
    close();
}

} // namespace lcdcommon
