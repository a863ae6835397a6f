// The places in a source, and what its written values mean.
#include "source.h"

#include "source_decode.h"
#include "source_scan.h"

#include "reading/regularfile.h"

#include <QFile>

#include <algorithm>
#include <limits>

namespace lcdcheck {
namespace {

uint predefined(QStringView name)
{
    if (name == u"amp") return '&';
    if (name == u"lt") return '<';
    if (name == u"gt") return '>';
    if (name == u"quot") return '"';
    if (name == u"apos") return '\'';
    return 0;
}

int digitOf(char16_t c, int base)
{
    if (c >= u'0' && c <= u'9') return c - u'0';
    if (base == 16 && c >= u'a' && c <= u'f') return c - u'a' + 10;
    if (base == 16 && c >= u'A' && c <= u'F') return c - u'A' + 10;
    return -1;
}

} // namespace

bool beginsName(QChar c) { return c.isLetter() || c.category() == QChar::Number_Letter || c == u'_' || c == u':'; }

bool continuesName(QChar c) { return beginsName(c) || c.isNumber() || c.isMark() || c == u'.' || c == u'-'; }

QStringView localName(QStringView qualified) { return qualified.mid(qualified.indexOf(u':') + 1); }

Source Source::read(const QByteArray& bytes)
{
    Source source;
    SourceDecoder(source).decode(bytes);
    const size_t faults = source._faults.size();
    const bool fatal = source._fatal;
    SourceScanner plain(source, SourceScanner::Nesting::ByTags);
    plain.scan();
    if (!plain.tagsDisagree()) return source;
    source.forget(faults, fatal);
    SourceScanner(source, SourceScanner::Nesting::ByIndentation).scan();
    return source;
}

void Source::forget(size_t faults, bool fatal)
{
    _text.truncate(_fileLength);
    _added.clear();
    _elements.clear();
    _attributes.clear();
    _texts.clear();
    _comments.clear();
    _entities.clear();
    _faults.resize(faults);
    _fatal = fatal;
    _moreFaults = false;
}

std::optional<Source> Source::readFile(const QString& path)
{
    QFile file(path);
    if (!LCD::MainConfigImpl::reading::openRegular(path, file)) return std::nullopt;
    return read(LCD::MainConfigImpl::reading::readAtMost(file, qint64(MOST_BYTES) + 1));
}

const Source::Attribute* Source::attribute(const Element& element, QStringView name) const
{
    const auto all = attributes(element);
    const auto found = std::find_if(all.rbegin(), all.rend(), [&](const Attribute& attribute) {
        const QStringView written = slice(attribute.name);
        return localName(written) == name && written != u"xmlns" && !written.startsWith(u"xmlns:");
    });
    return found == all.rend() ? nullptr : &*found;
}

QString Source::value(const Text& text) const { return text.cdata ? slice(text.span).toString() : decoded(text.span); }

QString Source::decoded(Span span) const
{
    const QStringView raw = slice(span);
    if (!raw.contains(u'&')) return raw.toString();
    QString out;
    appendDecoded(out, raw);
    return out;
}

void Source::appendDecoded(QString& out, QStringView raw) const
{
    int position = 0;
    while (position < raw.size()) {
        int ampersand = int(raw.indexOf(u'&', position));
        if (ampersand < 0) ampersand = int(raw.size());
        out += raw.mid(position, ampersand - position);
        position = ampersand;
        if (position == raw.size()) return;
        const Reference reference = referenceAt(raw, position);
        if (reference.kind == Reference::Kind::Bare) {
            out += u'&';
        } else if (reference.kind == Reference::Kind::Character) {
            // The parser knows no more than 16 bits of a number either.
            out += QChar(ushort(reference.code));
        } else if (const auto entity = _entities.constFind(reference.name.toString()); entity != _entities.constEnd()) {
            // A usable entity neither refers to itself nor grows beyond a bound, so this ends.
            if (entity->state == Entity::State::Usable) appendDecoded(out, entity->value);
        }
        position += reference.length;
    }
}

Source::Reference Source::referenceAt(QStringView text, int position)
{
    const int size = int(text.size());
    const auto at = [&](int i) { return i < size ? char16_t(text[i].unicode()) : u'\0'; };
    Reference result;
    int i = position + 1;
    if (at(i) == u'#') {
        const int base = at(++i) == u'x' ? 16 : 10;
        if (base == 16) ++i;
        const int first = i;
        quint64 code = 0;
        for (int digit = 0; (digit = digitOf(at(i), base)) >= 0; ++i)
            code = std::min<quint64>(code * uint(base) + uint(digit), std::numeric_limits<uint>::max());
        result.code = uint(code);
        if (i == first) return result;
        result.kind = Reference::Kind::Character;
    } else {
        // A name that goes on for ever is no reference; the bound keeps many of them from being read over and over.
        const int last = std::min(size, i + 256);
        if (i < last && beginsName(text[i]))
            while (i < last && continuesName(text[i])) ++i;
        result.name = text.mid(position + 1, i - position - 1);
        result.code = predefined(result.name);
        if (result.code == 0 && (result.name.isEmpty() || at(i) != u';')) return result;
        result.kind = result.code != 0 ? Reference::Kind::Character : Reference::Kind::Entity;
    }
    result.terminated = at(i) == u';';
    result.length = i - position + (result.terminated ? 1 : 0);
    return result;
}

int Source::lineIndex(int offset) const
{
    return int(std::upper_bound(_lines.begin(), _lines.end(), offset) - _lines.begin()) - 1;
}

Place Source::place(Span span) const
{
    while (span.begin >= _fileLength && !_added.empty() && span.begin >= _added.front().begin) {
        const auto behind = std::upper_bound(_added.begin(), _added.end(), span.begin,
                                             [](int offset, const Insertion& added) { return offset < added.begin; });
        span = std::prev(behind)->reference;
    }
    const int line = lineIndex(span.begin);
    const int first = _lines[size_t(line)];
    const int behind = line + 1 < lineCount() ? _lines[size_t(line) + 1] : _fileLength;
    int end = std::clamp(span.end, span.begin, std::max(behind, span.begin));
    while (end > span.begin && (_text[end - 1] == u'\n' || _text[end - 1] == u'\r')) --end;
    const auto column = [&](int offset) {
        const auto from = std::lower_bound(_wide.begin(), _wide.end(), first);
        const auto to = std::lower_bound(from, _wide.end(), offset);
        return offset - first - int(to - from) + 1;
    };
    return {line + 1, column(span.begin), column(end)};
}

QString Source::line(int number) const
{
    if (number < 1 || number > lineCount()) return {};
    const int begin = _lines[size_t(number) - 1];
    int end = number < lineCount() ? _lines[size_t(number)] : _fileLength;
    while (end > begin && (_text[end - 1] == u'\n' || _text[end - 1] == u'\r')) --end;
    return _text.mid(begin, end - begin);
}

} // namespace lcdcheck
