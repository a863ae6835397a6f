// Start tags and their attributes, and what was meant by broken ones.
#include "source_scan.h"

#include <algorithm>

namespace lcdcheck {
namespace {

bool isQuote(ushort c) { return c == '"' || c == '\''; }
bool isSpace(ushort c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

/// Quotes as word processors set them.
bool isCurlyQuote(ushort c) { return c == 0x201C || c == 0x201D || c == 0x201E || c == 0x2018 || c == 0x2019; }

/// What may stand behind an attribute's closing quote, if its tag is in order.
bool endsAttribute(ushort c) { return c == 0 || isSpace(c) || c == '/' || c == '>' || c == '?'; }

} // namespace

/// Whether a "<" begins a tag or the like, as against one that stands in a text.
bool SourceScanner::looksLikeTag(int position) const
{
    int i = position + 1;
    const ushort first = at(i);
    if (first == '!' || first == '?' || first == '/') return true;
    const bool apart = isSpace(first);
    i = skipSpace(i);
    const int end = nameEnd(i);
    if (end == i || (apart && !beginsName(_data[i]))) return false;
    const int next = skipSpace(end);
    const ushort c = at(next);
    if (c == '>' || c == '/') return true;
    if (next == end && c != '<') {
        // Something strange in a tag's name, provided that it ends as a tag does.
        const auto* const rest = std::find_if(
            _data + end, _data + _end, [](QChar q) { return q == u'<' || q == u'>' || q == u'\n' || q == u'\r'; });
        return !apart && beginsName(_data[i]) && (rest == _data + _end ? c == 0 : *rest == u'>');
    }
    if (c == '<' || c == 0) {
        // A ">" may have been forgotten at the end of a line.
        return std::any_of(_data + end, _data + next, [](QChar space) { return space == u'\n' || space == u'\r'; });
    }
    return looksLikeAttribute(next);
}

bool SourceScanner::looksLikeAttribute(int position) const
{
    const int end = nameEnd(position);
    const ushort c = at(skipSpace(end));
    return c == '=' || isQuote(at(end)) || (end > position && (c == '>' || c == '/'));
}

/// Whether a text is a tag that has lost its "<".
bool SourceScanner::lacksBracket(int position) const
{
    if (position >= _end || (_open.empty() && !_source._elements.empty())) return false;
    const int name = at(position) == '/' ? position + 1 : position;
    if (name == _end || !beginsName(_data[name])) return false;
    const int end = nameEnd(name);
    if (at(end) == '>') return true;
    if (name > position || !isSpace(at(end))) return false;
    const int next = skipSpace(end);
    const int behind = nameEnd(next);
    return behind > next && at(behind) == '=' && isQuote(at(behind + 1));
}

void SourceScanner::startTag(int bracket)
{
    const int begin = _position;
    const int first = skipSpace(begin + bracket);
    Source::Element element;
    element.name = {first, nameEnd(first)};
    element.tag = {begin, element.name.end};
    element.firstAttribute = int(_source._attributes.size());
    if (first > begin + bracket)
        fault(element.tag, QStringLiteral("white space between \"<\" and \"%1\"").arg(shown(element)));
    else
        checkName(element.name, "a tag");
    _position = element.name.end;
    attributes(element);
    element.end = _position;
    element.attributeCount = int(_source._attributes.size()) - element.firstAttribute;
    _source._elements.push_back(element);
    open(int(_source._elements.size()) - 1);
}

/// Reads up to the end of a start tag and moves behind it.
void SourceScanner::attributes(Source::Element& element)
{
    while (true) {
        const int before = _position;
        const bool spaced = skipTagSpace();
        const ushort c = at(_position);
        if (c == '>') {
            ++_position;
            return;
        }
        if (c == '<' || _position >= _end) {
            fault({before, before}, QStringLiteral("\"<%1\" is not ended by \">\"").arg(shown(element)));
            return;
        }
        if (c != '/') {
            attribute(element, spaced);
        } else if (at(_position + 1) == '>') {
            element.selfClosed = true;
            _position += 2;
            return;
        } else {
            const int next = skipSpace(_position + 1);
            const bool last = at(next) == '>' || at(next) == '<' || next >= _end;
            fault({_position, _position + 1}, QStringLiteral("\"/\" that is not followed by \">\""));
            element.selfClosed = last;
            _position = at(next) == '>' ? next + 1 : std::min(_position + 1, _end);
            if (last) return;
        }
    }
}

void SourceScanner::attribute(Source::Element& element, bool spaced)
{
    Source::Attribute attribute;
    const int begin = _position;
    attribute.name = {begin, nameEnd(begin)};
    if (attribute.name.isEmpty() && at(begin) != '=') {
        fault({begin, begin + 1},
              QStringLiteral("\"%1\" that belongs to no attribute").arg(shown(Span{begin, begin + 1})));
        ++_position;
        return;
    }
    if (attribute.name.isEmpty())
        fault({begin, begin + 1}, QStringLiteral("\"=\" without an attribute's name before it"));
    else if (!spaced)
        fault(attribute.name, QStringLiteral("no white space before the attribute \"%1\"").arg(shown(attribute.name)),
              false);
    checkName(attribute.name, "an attribute");

    const int behind = skipSpace(attribute.name.end);
    if (at(behind) == '=') {
        _position = skipSpace(behind + 1);
        attribute.value = attributeValue();
    } else if (isQuote(at(behind)) || isCurlyQuote(at(behind))) {
        fault(attribute.name,
              QStringLiteral("\"=\" is missing behind the attribute \"%1\"").arg(shown(attribute.name)));
        _position = behind;
        attribute.value = attributeValue();
    } else {
        fault(attribute.name,
              QStringLiteral("the attribute \"%1\" of \"%2\" has no value").arg(shown(attribute.name), shown(element)));
        _position = attribute.name.end;
        attribute.value = {_position, _position};
    }
    references(attribute.value);
    if (!attribute.name.isEmpty()) _source._attributes.push_back(attribute);
}

SourceScanner::Span SourceScanner::attributeValue() { return isQuote(at(_position)) ? quotedValue() : bareValue(); }

SourceScanner::Span SourceScanner::quotedValue()
{
    const QChar quote = _data[_position];
    const int begin = _position + 1;
    int i = begin;
    while (i < _end && _data[i] != quote && _data[i] != u'<') ++i;
    if (at(i) == quote.unicode()) {
        if (closingQuoteMissing(begin, i)) return cutValue(begin, i);
        _position = i + 1;
        return {begin, i};
    }
    // Either a "<" within the value, or the closing quote is missing and the "<" is the next tag's.
    int close = i;
    while (close < _end && _data[close] != quote && _data[close] != u'\n' && _data[close] != u'\r') ++close;
    if (at(close) != quote.unicode() || _data[close - 1] == u'=' || !endsAttribute(at(close + 1)))
        return cutValue(begin, i);
    fault({i, i + 1}, QStringLiteral("\"<\" in an attribute, it is written \"&lt;\""));
    _position = close + 1;
    return {begin, close};
}

/// Whether the quote at a position is not the one that closes the value, but the next attribute's opening one, as in
/// Min="1 Max="2".
bool SourceScanner::closingQuoteMissing(int begin, int quote) const
{
    int i = quote;
    while (i > begin && isSpace(_data[i - 1].unicode())) --i;
    if (i == begin || _data[i - 1] != u'=' || endsAttribute(at(quote + 1))) return false;
    for (--i; i > begin && isSpace(_data[i - 1].unicode());) --i;
    const int nameBehind = i;
    while (i > begin && continuesName(_data[i - 1])) --i;
    if (i == nameBehind || i == begin || !isSpace(_data[i - 1].unicode())) return false;
    const int next = nameEnd(quote + 1);
    return next == quote + 1 || at(skipSpace(next)) != '=';
}

/// A value whose closing quote is missing somewhere before `end`.
SourceScanner::Span SourceScanner::cutValue(int begin, int end)
{
    fault({begin - 1, begin}, QStringLiteral("the quote that is opened here is not closed"));
    int i = begin;
    bool found = false;
    for (; i < end && !found; ++i) {
        const ushort c = _data[i].unicode();
        if (c == '>') break;
        if (c == '/' && at(i + 1) == '>') break;
        if (c == '\n' || c == '\r') break;
        if (!isSpace(c)) continue;
        // An attribute that follows.
        const int name = skipSpace(i);
        const int behind = nameEnd(name);
        if (behind > name && behind <= end && at(skipSpace(behind)) == '=') break;
        i = std::max(i, std::min(name, end) - 1);
    }
    while (i > begin && isSpace(_data[i - 1].unicode())) --i;
    _position = i;
    while (i > begin && (isQuote(_data[i - 1].unicode()) || isCurlyQuote(_data[i - 1].unicode()))) --i;
    return {begin, i};
}

/// A value that has no opening quote.
SourceScanner::Span SourceScanner::bareValue()
{
    int begin = _position;
    int i = begin;
    if (isCurlyQuote(at(begin))) {
        for (++i; i < _end && !isCurlyQuote(_data[i].unicode()) && _data[i] != u'<' && _data[i] != u'>'; ++i) {
        }
        fault({begin, begin + 1}, QStringLiteral("a typographic quote, a plain one is meant"));
        const bool closed = isCurlyQuote(at(i));
        _position = closed ? i + 1 : i;
        return {begin + 1, i};
    }
    // Up to a closing quote, if there is one before anything that could not stand in the value.
    while (i < _end && !isQuote(_data[i].unicode()) && !QStringView(u"<>=\n\r").contains(_data[i])) ++i;
    if (isQuote(at(i)) && endsAttribute(at(i + 1))) {
        fault({begin, i}, QStringLiteral("the opening quote of the value is missing"));
        _position = i + 1;
        return {begin, i};
    }
    i = begin;
    while (i < _end && !isSpace(_data[i].unicode()) && _data[i] != u'<' && _data[i] != u'>' &&
           !(_data[i] == u'/' && at(i + 1) == '>'))
        ++i;
    fault({begin, i}, QStringLiteral("the value \"%1\" stands without quotes").arg(shown(Span{begin, i})));
    _position = i;
    return {begin, i};
}

/// Skips white space within a tag, and what only looks like it. True when there was any.
bool SourceScanner::skipTagSpace()
{
    const int begin = _position;
    _position = skipSpace(_position);
    while (_position < _end && _data[_position].unicode() >= 0x80 && _data[_position].isSpace()) {
        fault({_position, _position + 1}, QStringLiteral("a space that is none to XML, as the no-break space"));
        _position = skipSpace(_position + 1);
    }
    return _position > begin;
}

void SourceScanner::checkName(Span name, const char* what)
{
    if (name.isEmpty()) return;
    const QStringView text = _source.slice(name);
    if (beginsName(text[0]) && std::all_of(text.begin(), text.end(), continuesName)) return;
    fault(name, QStringLiteral("\"%1\" is no name for %2").arg(shown(name), QLatin1String(what)));
}

} // namespace lcdcheck
