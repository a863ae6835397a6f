#include "source_scan.h"

#include <algorithm>

namespace lcdcheck {
namespace {

bool isSpace(ushort c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

} // namespace

void SourceScanner::scan()
{
    _data = _source._text.constData();
    _end = _source._fileLength;
    _patience = 10'000'000 + 8 * qint64(_end);
    _source._elements.reserve(size_t(_end) / 60);
    _source._attributes.reserve(size_t(_end) / 40);
    if (lookingAt(0, u"<?xml") && isSpace(at(5))) xmlDeclaration();
    while (true) {
        if (_position < _end)
            content();
        else if (!leaveEntity())
            break;
    }
    finish();
}

void SourceScanner::content()
{
    if (at(_position) == '<' && looksLikeTag(_position))
        markup();
    else
        text();
}

/// Reads up to the next markup, which is never where it begins.
void SourceScanner::text()
{
    const int begin = _position;
    int i = begin;
    if (_nesting == Nesting::ByIndentation && lacksBracket(skipSpace(begin))) {
        _position = skipSpace(begin);
        const Span name{_position, nameEnd(_position + 1)};
        fault(name, QStringLiteral("\"<\" is missing before \"%1\"").arg(shown(name)));
        if (at(_position) == '/')
            endTag(0);
        else
            startTag(0);
        return;
    }
    bool elementsFollow = false;
    for (; i < _end && !elementsFollow; ++i) {
        const ushort c = _data[i].unicode();
        if (c == '<') {
            if (looksLikeTag(i)) break;
            int run = i;
            while (at(run + 1) == '<') ++run;
            fault({i, run + 1}, QStringLiteral("\"<\" that begins no tag, in a text it is written \"&lt;\""));
            // The last of several may begin a tag.
            i = std::max(i, run - 1);
        } else if (c == '&') {
            elementsFollow = reference(i, false);
            if (elementsFollow) break;
        } else if (c == '>' && i >= begin + 2 && _data[i - 1] == u']' && _data[i - 2] == u']') {
            fault({i - 2, i + 1},
                  QStringLiteral("\"]]>\" outside a CDATA section, in a text it is written \"]]&gt;\""));
        }
    }
    _position = i;
    if (i > begin) addText({begin, i}, false);
    if (elementsFollow) enterEntity(i);
}

void SourceScanner::addText(Span span, bool cdata)
{
    const QStringView raw = _source.slice(span);
    const auto blank = [](const auto& value) {
        return std::all_of(value.begin(), value.end(), [](QChar c) { return isSpace(c.unicode()); });
    };
    if (!cdata && blank(raw)) return;
    _loneComments = _source._comments.size();
    if (_open.empty()) {
        // The text without the white space around it.
        while (isSpace(at(span.begin))) ++span.begin;
        fault(span, _source._elements.empty() ? QStringLiteral("text before the first element")
                                              : QStringLiteral("text behind the end of the root element"));
        return;
    }
    if (!cdata && raw.contains(u'&') && blank(_source.decoded(span))) return;
    const int parent = _open.back().element;
    Source::Element& element = _source._elements[size_t(parent)];
    if (element.firstText < 0) element.firstText = int(_source._texts.size());
    _source._texts.push_back({span, parent, int(_source._elements.size()), cdata});
}

void SourceScanner::markup()
{
    const ushort next = at(_position + 1);
    if (next == '/') {
        endTag();
    } else if (next == '?') {
        instruction();
    } else if (next != '!') {
        startTag();
    } else if (lookingAt(_position, u"<!--")) {
        comment();
    } else if (lookingAt(_position, u"<![CDATA[")) {
        cdata();
    } else {
        documentType();
    }
}

void SourceScanner::comment()
{
    const int begin = _position;
    const int inside = begin + 4;
    int end = find(_commentEnd, inside);
    const int inner = find(_commentBegin, inside);
    if (end < 0 || (inner >= 0 && inner < end)) {
        end = brokenComment(begin, end);
    } else {
        _position = end + 3;
        int dashes = inside;
        while (dashes < end && !(_data[dashes] == u'-' && _data[dashes + 1] == u'-')) ++dashes;
        if (dashes < end) {
            const Span where{dashes, dashes + 2};
            fault(where, QStringLiteral("\"--\" within a comment"));
        }
    }
    _source._comments.push_back({{begin, _position}, {inside, std::max(inside, end)}, -1});
}

/// Where the inside of a comment ends that has no end, or another beginning before it. Moves behind the comment.
int SourceScanner::brokenComment(int begin, int end)
{
    const int inside = begin + 4;
    if (end >= 0) {
        const int next = find(_commentBehind, end);
        // Comments within one that was put around them: it ends with its own end, which no other begins.
        const int limit = next < 0 ? _end : next;
        for (int i = end + 3; i + 2 < limit && _patience > 0; ++i, --_patience) {
            if (!lookingAt(i, u"-->")) continue;
            fault({begin, inside}, QStringLiteral("a comment within a comment"));
            _position = i + 3;
            return i;
        }
    }
    fault({begin, inside}, QStringLiteral("a comment that is not ended by \"-->\""));
    // It ends where a hurried author ended it, or before the next line that begins with a tag.
    int i = inside;
    for (bool lineBegins = false; i < _end; ++i) {
        const ushort c = _data[i].unicode();
        if (c == '>') {
            int last = i;
            while (last > inside && (_data[last - 1] == u'-' || _data[last - 1] == u' ' || _data[last - 1] == u'!'))
                --last;
            _position = i + 1;
            return last;
        }
        if (c == '<' && lineBegins) break;
        if (c == '<' && lookingAt(i, u"</")) break;
        if (c == '\n' || c == '\r')
            lineBegins = true;
        else if (!isSpace(c))
            lineBegins = false;
    }
    _position = i;
    return i;
}

void SourceScanner::cdata()
{
    const int begin = _position;
    const int inside = begin + 9;
    int end = find(_cdataEnd, inside);
    if (end < 0) {
        fault({begin, inside}, QStringLiteral("a CDATA section that is not ended by \"]]>\""));
        end = find(_anyEndTag, inside);
        if (end < 0) end = _end;
        _position = end;
    } else {
        _position = end + 3;
    }
    addText({inside, end}, true);
}

void SourceScanner::instruction()
{
    const int begin = _position;
    const int name = begin + 2;
    const Span target{name, nameEnd(name)};
    const int end = find(_instructionEnd, name);
    if (end < 0) {
        fault({begin, target.end}, QStringLiteral("a processing instruction that is not ended by \"?>\""));
        int i = target.end;
        while (i < _end && _data[i] != u'>' && _data[i] != u'<') ++i;
        _position = at(i) == '>' ? i + 1 : i;
        return;
    }
    _position = end + 2;
    if (_source.slice(target).compare(u"xml", Qt::CaseInsensitive) == 0)
        fault({begin, target.end}, QStringLiteral("the XML declaration stands only at the very beginning of a file"));
    else if (target.end > end || target.isEmpty())
        fault({begin, name}, QStringLiteral("a processing instruction without a name"));
    else
        checkName(target, "a processing instruction");
}

void SourceScanner::finish()
{
    _tagsDisagree |= !_open.empty();
    closeAbove(-1, {_end, _end});
    if (_source._elements.empty())
        fault({0, 0}, _source._fileLength == 0 ? QStringLiteral("the file is empty")
                                               : QStringLiteral("the file has no element"));
    if (_tagsDisagree && _nesting == Nesting::ByTags) return;
    auto& faults = _source._faults;
    std::stable_sort(faults.begin(), faults.end(),
                     [](const Source::Fault& a, const Source::Fault& b) { return a.span.begin < b.span.begin; });
    for (Source::Fault& fault : faults) fault.place = _source.place(fault.span);
}

bool SourceScanner::lookingAt(int position, QStringView wanted) const
{
    return _end - position >= wanted.size() && QStringView(_data + position, wanted.size()) == wanted;
}

int SourceScanner::skipSpace(int position) const
{
    while (position < _end && isSpace(_data[position].unicode())) ++position;
    return position;
}

/// Behind whatever the author may have meant as a name, be it a legal one or not.
int SourceScanner::nameEnd(int position) const
{
    for (; position < _end; ++position) {
        const ushort c = _data[position].unicode();
        if (isSpace(c) || c == 0xA0 || c == '>' || c == '<' || c == '/' || c == '=' || c == '"' || c == '\'' ||
            (c == '?' && at(position + 1) == '>'))
            break;
    }
    return position;
}

int SourceScanner::find(Finder& finder, int from)
{
    const QStringView text(_data, _end);
    // Entities are short, and their positions would spoil the order.
    if (!_frames.empty()) return int(text.indexOf(QStringView(finder.wanted), from));
    if (from < finder.from || (finder.found >= 0 && finder.found < from) || finder.from == 0) {
        finder.found = int(text.indexOf(QStringView(finder.wanted), from));
        finder.from = from;
    }
    return finder.found;
}

QString SourceScanner::shown(Span span) const
{
    QString text = _source.slice({span.begin, std::min(span.end, span.begin + 60)}).toString();
    for (QChar& c : text)
        if (!c.isPrint()) c = QChar::ReplacementCharacter;
    return span.end > span.begin + 60 ? text + QChar(0x2026) : text;
}

Source::Fault* SourceScanner::fault(Span span, const QString& message, bool fatal)
{
    _source._fatal |= fatal;
    if (int(_source._faults.size()) >= Source::MOST_FAULTS) {
        _source._moreFaults = true;
        return nullptr;
    }
    _source._faults.push_back({{}, message, Source::Fault::Kind::Syntax, fatal, std::nullopt, span});
    return &_source._faults.back();
}

void SourceScanner::misread(Span span, const QString& message)
{
    if (Source::Fault* const made = fault(span, message, false)) made->kind = Source::Fault::Kind::Misread;
}

void SourceScanner::fault(Span span, const QString& message, const Source::Element& opened)
{
    if (Source::Fault* const made = fault(span, message)) made->opened = _source.place(opened);
}

} // namespace lcdcheck
