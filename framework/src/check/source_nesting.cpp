// Which start tag an end tag belongs to. Where the names disagree, the indentation tells what the author meant.
#include "source_scan.h"

#include "reading/xmlparse.h"

#include <algorithm>
#include <array>

namespace lcdcheck {
namespace {

using LCD::MainConfigImpl::reading::DEEPEST_NESTING;

/// Whether one name is likely the other misspelled: in a third of its letters at the most, or in capitals.
bool isSimilar(QStringView a, QStringView b)
{
    constexpr int LONGEST = 64;
    if (a.isEmpty() || b.isEmpty() || a.size() > LONGEST || b.size() > LONGEST) return false;
    if (a.compare(b, Qt::CaseInsensitive) == 0) return true;
    std::array<int, LONGEST + 1> row{};
    for (int j = 0; j <= b.size(); ++j) row[size_t(j)] = j;
    for (int i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[size_t(j)];
            row[size_t(j)] = std::min({replaced, diagonal + 1, row[size_t(j) - 1] + 1});
        }
    }
    return row[size_t(b.size())] <= std::max(1, int(std::max(a.size(), b.size())) / 3);
}

} // namespace

void SourceScanner::open(int index)
{
    auto& elements = _source._elements;
    Source::Element& element = elements[size_t(index)];
    for (; _loneComments < _source._comments.size(); ++_loneComments) _source._comments[_loneComments].element = index;

    if (_open.empty() && index > 0) {
        _tagsDisagree = true;
        const Source::Element& root = elements[0];
        fault(
            element.tag,
            QStringLiteral("\"%1\" stands behind the end of the root element \"%2\"").arg(shown(element), shown(root)),
            root);
        // A root that ended too early goes on; one of the same name is a second document.
        if (_source.slice(element.name) != _source.slice(root.name)) {
            elements[0].selfClosed = false;
            _open.push_back({0, indentOf(root.tag.begin)});
        }
    }
    const int indent = indentOf(element.tag.begin);
    if (!_open.empty()) {
        Open& parent = _open.back();
        element.parent = parent.element;
        const bool twins = isOnLineOf(parent, element.tag.begin) &&
                           _source.slice(element.name) == _source.slice(elementOf(parent).name);
        if (parent.firstUnder < 0 && (twins || (indent >= 0 && indent <= parent.indent))) parent.firstUnder = index;
    }
    if (int(_open.size()) >= DEEPEST_NESTING && !std::exchange(_tooDeep, true))
        fault(element.tag, QStringLiteral("elements are nested deeper than %1 levels").arg(DEEPEST_NESTING));
    if (!element.selfClosed) _open.push_back({index, indent});
}

void SourceScanner::endTag(int bracket)
{
    const int begin = _position;
    const int slash = begin + bracket;
    Span name;
    name.begin = skipSpace(slash + 1);
    name.end = nameEnd(name.begin);
    if (name.begin > slash + 1)
        fault({begin, name.end}, QStringLiteral("white space between \"</\" and \"%1\"").arg(shown(name)));
    int i = skipSpace(name.end);
    if (at(i) != '>') {
        const int junk = i;
        while (i < _end && _data[i] != u'>' && _data[i] != u'<' && _data[i] != u'\n') ++i;
        if (at(i) == '>') {
            fault({junk, i},
                  QStringLiteral("\"%1\" within the end tag \"</%2>\"").arg(shown(Span{junk, i}), shown(name)));
        } else {
            fault({name.end, name.end}, QStringLiteral("\"</%1\" is not ended by \">\"").arg(shown(name)));
            i = name.end;
        }
    }
    _position = at(i) == '>' ? i + 1 : i;
    _loneComments = _source._comments.size();
    close(name, {begin, _position});
}

void SourceScanner::close(Span name, Span tag)
{
    const QStringView wanted = _source.slice(name);
    const int indent = indentOf(tag.begin);
    const bool matches = !_open.empty() && _source.slice(elementOf(_open.back()).name) == wanted;
    if (matches && !belongsToAncestor(wanted, indent)) {
        closeTop(tag);
        return;
    }
    _tagsDisagree = true;
    int level = openAncestor(wanted);
    while (matches && _open[size_t(level)].indent != indent) --level;
    if (level >= 0) {
        const Open& top = _open.back();
        const Open& ancestor = _open[size_t(level)];
        // Standing where the end tag of the innermost element belongs, it is that, misspelled.
        const bool misspelled = indent >= 0 ? top.indent == indent && ancestor.indent != indent
                                            : isOnLineOf(top, tag.begin) && !isOnLineOf(ancestor, tag.begin);
        if (misspelled && closesMisspelled(name, tag, indent)) return;
        closeAbove(level, tag);
        closeTop(tag);
        return;
    }
    if (reopensSelfClosed(name, tag, indent) || closesMisspelled(name, tag, indent)) return;
    fault(tag, QStringLiteral("\"</%1>\" closes nothing").arg(shown(name)));
}

/// Takes the end tag for one of an open element with another name, if that is likely.
bool SourceScanner::closesMisspelled(Span name, Span tag, int indent)
{
    if (_open.empty()) return false;
    const QStringView wanted = _source.slice(name);
    int level = int(_open.size()) - 1;
    if (indent >= 0 && _open.back().indent >= 0) {
        // An end tag stands under its start tag.
        while (level >= 0 && _open[size_t(level)].indent > indent && --_patience > 0) --level;
        if (level < 0 || _open[size_t(level)].indent != indent) level = int(_open.size()) - 1;
        const Open& found = _open[size_t(level)];
        const bool similar = isSimilar(wanted, _source.slice(elementOf(found).name));
        const bool isTop = level == int(_open.size()) - 1;
        if (found.indent != indent ? indent > found.indent || !similar : !isTop && !similar) return false;
    } else if (!isOnLineOf(_open.back(), tag.begin) &&
               !isSimilar(wanted, _source.slice(elementOf(_open.back()).name))) {
        return false;
    }
    closeAbove(level, tag);
    const Source::Element& element = elementOf(_open.back());
    fault({tag.begin, std::max(name.end, tag.begin + 2)},
          QStringLiteral("\"%1\" opened at line %2 is closed by \"%3\"")
              .arg(shown(element))
              .arg(lineOf(element))
              .arg(shown(name)),
          element);
    closeTop(tag);
    return true;
}

/// An end tag whose start tag was closed by a "/>" that was not meant: what stands between the two is its content.
bool SourceScanner::reopensSelfClosed(Span name, Span tag, int indent)
{
    if (_open.empty()) return false;
    auto& elements = _source._elements;
    const int parent = _open.back().element;
    const QStringView wanted = _source.slice(name);
    for (int i = int(elements.size()) - 1; i > parent && --_patience > 0; --i) {
        Source::Element& element = elements[size_t(i)];
        if (element.parent != parent) continue;
        const int elementIndent = indentOf(element.tag.begin);
        if (!element.selfClosed || _source.slice(element.name) != wanted) {
            // Only what is indented deeper can be its content.
            if (indent < 0 || elementIndent <= indent) return false;
            continue;
        }
        if (indent >= 0 && elementIndent >= 0 && elementIndent != indent) return false;
        fault(tag,
              QStringLiteral("\"%1\" closed itself by \"/>\" at line %2 and is closed again")
                  .arg(shown(element))
                  .arg(lineOf(element)),
              element);
        element.selfClosed = false;
        element.endTag = tag;
        adopt(parent, i + 1, i);
        return true;
    }
    return false;
}

int SourceScanner::openAncestor(QStringView name)
{
    for (int level = int(_open.size()) - 1; level >= 0 && --_patience > 0; --level)
        if (_source.slice(elementOf(_open[size_t(level)]).name) == name) return level;
    return -1;
}

/// Whether an end tag that the innermost element could take stands under an outer one of the same name instead.
bool SourceScanner::belongsToAncestor(QStringView name, int indent)
{
    if (_nesting == Nesting::ByTags || indent < 0) return false;
    const Open& top = _open.back();
    if (top.indent >= 0 && top.indent <= indent) return false;
    for (int level = int(_open.size()) - 2; level >= 0 && --_patience > 0; --level) {
        const Open& open = _open[size_t(level)];
        if (open.indent >= 0 && open.indent < indent) return false;
        if (open.indent == indent) return _source.slice(elementOf(open).name) == name;
    }
    return false;
}

bool SourceScanner::isOnLineOf(const Open& open, int offset) const
{
    return _source.lineIndex(elementOf(open).tag.begin) == _source.lineIndex(offset);
}

void SourceScanner::closeTop(Span tag)
{
    elementOf(_open.back()).endTag = tag;
    _open.pop_back();
}

/// Closes the open elements above a level, whose end tags are missing, as `tag` or the end of the file comes.
void SourceScanner::closeAbove(int level, Span tag)
{
    while (int(_open.size()) > level + 1) {
        const int top = int(_open.size()) - 1;
        const Source::Element& element = elementOf(_open.back());
        if (top - 1 > level && wasMeantAsEndTag(top)) {
            fault(element.tag, QStringLiteral("\"<%1>\" was likely meant as \"</%1>\"").arg(shown(element)),
                  elementOf(_open[size_t(top) - 1]));
            const Span meant = element.tag;
            const int index = _open.back().element;
            adopt(index, index + 1, elementOf(_open[size_t(top) - 1]).parent);
            removeElement(index);
            _open.pop_back();
            closeTop(meant);
            continue;
        }
        if (tag.isEmpty())
            fault(element.tag, QStringLiteral("\"%1\" is never closed").arg(shown(element)), element);
        else
            fault(tag,
                  QStringLiteral("\"%1\" opened at line %2 is not closed before \"%3\"")
                      .arg(shown(element))
                      .arg(lineOf(element))
                      .arg(shown(tag)),
                  element);
        // What stands under it, or further left, was meant to follow it.
        if (_open.back().firstUnder >= 0 && element.parent >= 0)
            adopt(_open.back().element, _open.back().firstUnder, element.parent);
        _open.pop_back();
    }
}

/// A start tag without attributes right under that of its parent, of the same name: an end tag that lacks its "/".
bool SourceScanner::wasMeantAsEndTag(int level)
{
    const Open& inner = _open[size_t(level)];
    const Open& outer = _open[size_t(level) - 1];
    const Source::Element& element = elementOf(inner);
    return element.attributeCount == 0 && element.parent == outer.element &&
           (inner.indent >= 0 ? inner.indent == outer.indent : isOnLineOf(outer, element.tag.begin)) &&
           _source.slice(element.name) == _source.slice(elementOf(outer).name);
}

/// Gives the children of `from`, from the element `child` on, to another parent that precedes them.
void SourceScanner::adopt(int from, int child, int to)
{
    auto& elements = _source._elements;
    _patience -= qint64(elements.size()) - child;
    if (_patience < 0) return;
    for (size_t i = size_t(child); i < elements.size(); ++i)
        if (elements[i].parent == from) elements[i].parent = to;
    for (auto text = _source._texts.rbegin(); text != _source._texts.rend() && text->next > child; ++text)
        if (text->parent == from) text->parent = to;
}

void SourceScanner::removeElement(int index)
{
    auto& elements = _source._elements;
    _patience -= qint64(elements.size()) - index;
    if (_patience < 0) return;
    const int parent = elements[size_t(index)].parent;
    elements.erase(elements.begin() + index);
    for (size_t i = size_t(index); i < elements.size(); ++i) {
        if (elements[i].parent == index) elements[i].parent = parent;
        if (elements[i].parent > index) --elements[i].parent;
    }
    for (auto text = _source._texts.rbegin(); text != _source._texts.rend() && text->next > index; ++text) {
        --text->next;
        if (text->parent == index) text->parent = parent;
        if (text->parent > index) --text->parent;
    }
    for (auto comment = _source._comments.rbegin();
         comment != _source._comments.rend() && (comment->element < 0 || comment->element >= index); ++comment) {
        if (comment->element == index) comment->element = -1;
        if (comment->element > index) --comment->element;
    }
}

int SourceScanner::indentOf(int offset) const
{
    int i = offset;
    while (i > 0 && (_data[i - 1] == u' ' || _data[i - 1] == u'\t')) --i;
    return i == 0 || _data[i - 1] == u'\n' || _data[i - 1] == u'\r' ? offset - i : -1;
}

} // namespace lcdcheck
