#include "xmlsource.h"

#include "xmlparse.h"

#include <QIODevice>

#include <algorithm>
#include <array>

namespace LCD::MainConfigImpl::reading {
namespace {

/// The name of the reference that starts at `at`, with the character that starts it; empty when it is none.
QString referenceAt(const QChar* at, const QChar* end)
{
    const auto closes = [](QChar c) { return c == u';' || c == u'&' || c == u'%' || c.isSpace(); };
    const QChar* const stop = std::find_if(at + 1, end, closes);
    if (stop == end || *stop != u';') return {};
    return QString(at, static_cast<int>(stop - at));
}

} // namespace

XmlSource::XmlSource(QIODevice& device)
{
    decode(device);
    // The parser knows both of these for ends, and QXmlInputSource gives it the second for either.
    _text.replace(QChar(EndOfData), QChar(EndOfDocument));
    _at = _text.constData();
    _end = _at + _text.size();
    _pause = _end;
    _mark = _at;
}

void XmlSource::decode(QIODevice& device)
{
    // QXmlInputSource decodes by pieces of this size. Bytes that are no text come out alike only with the same.
    constexpr int piece = 1024;
    std::array<char, 16 * piece> block; // NOLINT(cppcoreguidelines-pro-type-member-init): read() fills it
    qint64 size = 0;
    for (qint64 got = 0; (got = device.read(block.data(), block.size())) > 0;) {
        size += got;
        if (size > LARGEST_FILE) {
            _text.clear();
            refuse(QStringLiteral("the file is larger than %1 bytes").arg(LARGEST_FILE));
            return;
        }
        for (int from = 0; from < got; from += piece)
            _text += fromRawData(
                QByteArray::fromRawData(block.data() + from, std::min(piece, static_cast<int>(got) - from)));
    }
}

bool XmlSource::isInTag() const
{
    // The parser may have been one character ahead when it reported.
    const QChar* const from = std::max(_mark - 1, _text.constData());
    return std::find(from, _at, QChar(u'<')) != _at;
}

void XmlSource::beginDocumentType()
{
    _inDocumentType = true;
    _pause = _at;
}

void XmlSource::declare(const QString& name, const QString& text)
{
    _entities.insert(name.startsWith(u'%') ? name : u'&' + name, text);
    _pause = _at;
}

bool XmlSource::isWatched(QChar character) const
{
    return character == u'&' || character == u'%' || (_inDocumentType && character == u'(');
}

QChar XmlSource::afterPause()
{
    if (_at == _end) return {EndOfDocument};
    const QChar* const here = _at;
    // What is cut off ends behind the character that starts the reference, so that it is never well-formed.
    if (isWatched(*here) && !count(*here)) _end = here + 1;
    _pause = std::find_if(here + 1, _end, [this](QChar c) { return isWatched(c); });
    _at = here + 1;
    return *here;
}

bool XmlSource::count(QChar start)
{
    if (start != u'(') return expand(referenceAt(_at, _end), 0) || _refusal.isEmpty();
    if (++_parentheses <= MOST_PARENTHESES) return true;
    return refuse(QStringLiteral("the document type has more than %1 parentheses").arg(MOST_PARENTHESES));
}

/// Counts what the parser will run through. False at its end: the bound, or a recursion, which the parser finds.
bool XmlSource::expand(const QString& name, int depth)
{
    const auto entity = _entities.constFind(name);
    if (entity == _entities.constEnd()) return true;
    if (depth > _entities.size() + 1) return false;
    _expanded += entity->size() + 1;
    if (_expanded > LONGEST_EXPANSION)
        return refuse(QStringLiteral("entities expand to more than %1 characters").arg(LONGEST_EXPANSION));
    const QChar* const end = entity->constData() + entity->size();
    for (const QChar* at = entity->constData(); at != end; ++at) {
        if (*at == u'(' && _inDocumentType && !count(*at)) return false;
        if ((*at == u'&' || *at == u'%') && !expand(referenceAt(at, end), depth + 1)) return false;
    }
    return true;
}

bool XmlSource::refuse(const QString& why)
{
    _refusal = why;
    return false;
}

} // namespace LCD::MainConfigImpl::reading
