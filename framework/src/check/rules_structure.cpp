// The elements and attributes of a file against what its readers asked for.
#include "rules.h"

#include <algorithm>

namespace lcdcheck {

using reading::OnNull;
using reading::Refusal;
using reading::Walk;

namespace {

/// One element of a file with all that its rules look at.
struct Spot {
    const HeardFile& file;
    int index;

    [[nodiscard]] const HeardElement& heard() const { return file.elements[std::size_t(index)]; }
    [[nodiscard]] const Source::Element& written() const { return file.source.elements()[std::size_t(index)]; }
    [[nodiscard]] QString tag() const { return file.tagOf(index); }
    [[nodiscard]] QString tagAsWritten() const { return localName(file.source.slice(written().name)).toString(); }
};

/// The tags that were asked for below an element.
QStringList childNames(const HeardElement& parent)
{
    QStringList names;
    for (const HeardChild& child : parent.children) names.append(child.tag);
    for (const HeardWalk& walk : parent.walks)
        if (!walk.tag.isEmpty()) names.append(walk.tag);
    names.removeDuplicates();
    return names;
}

/// The element of the same parent that is read in the place of this one; -1 when there is none.
int rivalOf(const Spot& spot)
{
    const int parent = spot.written().parent;
    const bool firstOnly = std::any_of(spot.file.elements[std::size_t(parent)].walks.begin(),
                                       spot.file.elements[std::size_t(parent)].walks.end(),
                                       [](const HeardWalk& walk) { return walk.walk == Walk::First; });
    for (int before = parent + 1; before < spot.index; ++before) {
        const Spot other{spot.file, before};
        if (other.written().parent != parent || !other.heard().found) continue;
        if (firstOnly || other.tag() == spot.tag()) return before;
    }
    return -1;
}

/// Whether a look-up or a walk by its own tag has come to the element.
bool isWanted(const Spot& spot)
{
    const auto& visits = spot.heard().visits;
    const auto& children = spot.file.elements[std::size_t(spot.written().parent)].children;
    return std::any_of(visits.begin(), visits.end(), [&](const HeardWalk& visit) { return visit.tag == spot.tag(); }) ||
           std::any_of(children.begin(), children.end(),
                       [&](const HeardChild& child) { return child.element == spot.index; });
}

/// The walk that looks for its elements however deep below one that holds this one; null when there is none.
const HeardWalk* deepWalkAbove(const Spot& spot)
{
    for (int above = spot.written().parent; above >= 0; above = spot.file.source.elements()[std::size_t(above)].parent)
        for (const HeardWalk& walk : spot.file.elements[std::size_t(above)].walks)
            if (walk.walk == Walk::Descendants) return &walk;
    return nullptr;
}

class Structure {
public:
    Structure(const HeardFile& file, const Vocabulary* vocabulary, Findings& findings)
        : _file(file), _vocabulary(vocabulary), _judge(file, findings)
    {}

    void judgeElement(const Spot& spot);
    void judgeAttributes(const Spot& spot);
    void judgeMissing(const Missing& missing);
    void judgeDefaults(const Spot& spot);

private:
    void judgeDeep(const Spot& spot, const QString& wanted);
    void unread(const Spot& spot);
    void unknown(const Spot& spot, const QStringList& names);
    void unexpected(const Spot& spot);
    void unlikeOthers(const Spot& spot);
    [[nodiscard]] bool isMisplaced(const Spot& spot) const;
    [[nodiscard]] QString costOf(const Missing& missing) const;

    const HeardFile& _file;
    const Vocabulary* _vocabulary;
    FileJudge _judge;
};

void Structure::judgeElement(const Spot& spot)
{
    const int parent = spot.written().parent;
    if (parent < 0) return;
    // Where the file is cut off, the last tag may be cut too.
    if (spot.index + 1 == int(_file.elements.size()) && _file.isCut(spot.index)) return;
    const HeardElement& heard = spot.heard();
    if (const HeardWalk* const walk = deepWalkAbove(spot); walk != nullptr && !heard.found)
        return judgeDeep(spot, walk->tag);
    if (!_file.elements[std::size_t(parent)].read) return;
    if (!heard.meant.isEmpty())
        unknown(spot, {heard.meant});
    else if (!heard.found)
        unread(spot);
    else if (!heard.testedTags.isEmpty() && !heard.tagFits && !isWanted(spot))
        unknown(spot, heard.testedTags);
    else
        unexpected(spot);
}

/// Where elements are looked for however deep, any element may hold them; one that holds nothing was meant to be one.
void Structure::judgeDeep(const Spot& spot, const QString& wanted)
{
    const auto& elements = _file.source.elements();
    const auto next = std::size_t(spot.index) + 1;
    const bool holdsElements = next < elements.size() && elements[next].parent == spot.index;
    if (!holdsElements && spot.written().attributeCount > 0) unknown(spot, {wanted});
}

void Structure::unread(const Spot& spot)
{
    const int rival = rivalOf(spot);
    if (rival < 0) return unknown(spot, childNames(_file.elements[std::size_t(spot.written().parent)]));
    const int line = _file.source.place(_file.source.elements()[std::size_t(rival)]).line;
    _judge.about("duplicate-element", spot.index,
                 QString("a further %1; only the one of line %2 counts").arg(quoted(spot.tag())).arg(line));
}

void Structure::unknown(const Spot& spot, const QStringList& names)
{
    const QString parent = quoted(_file.tagOf(spot.written().parent));
    Finding& finding = _judge.about("unknown-element", spot.index,
                                    QString("nobody reads %1 in %2").arg(quoted(spot.tagAsWritten()), parent));
    finding.hint = didYouMean(spot.tagAsWritten(), names);
    if (finding.hint.isEmpty() && _vocabulary != nullptr)
        if (const QString home = _vocabulary->homeOfElement(_file.path, spot.tagAsWritten()); !home.isEmpty())
            finding.hint = QString("%1 belongs under %2").arg(quoted(spot.tagAsWritten()), quoted(home));
    const std::optional<Missing>& lack = spot.heard().lack;
    finding.cost = lack ? costOf(*lack) : "it is ignored with all that it holds";
}

void Structure::unexpected(const Spot& spot)
{
    const HeardElement& heard = spot.heard();
    const auto takes = [&](const HeardWalk& visit) { return visit.tag.isEmpty() || visit.tag == spot.tag(); };
    if (heard.visits.empty()) return;
    if (std::any_of(heard.visits.begin(), heard.visits.end(), takes)) return unlikeOthers(spot);
    const HeardElement& parent = _file.elements[std::size_t(spot.written().parent)];
    const bool wanted = std::any_of(parent.children.begin(), parent.children.end(),
                                    [&](const HeardChild& child) { return child.element == spot.index; });
    const QString entry = heard.visits.front().tag;
    Finding& finding =
        _judge.about("unexpected-tag", spot.index,
                     QString("the list of %1 takes this %2 as an entry").arg(quoted(entry), quoted(spot.tag())));
    finding.hint =
        wanted ? QString("put it in front of the first %1").arg(quoted(entry)) : didYouMean(spot.tag(), {entry});
}

/// Some lists take every element, so that no tag is wrong there. One that is nearly that of all others is a slip.
void Structure::unlikeOthers(const Spot& spot)
{
    QString usual;
    int others = 0;
    const auto& elements = _file.source.elements();
    for (int index = spot.written().parent + 1; index < int(elements.size()); ++index) {
        const Spot other{_file, index};
        if (other.written().parent < spot.written().parent) break;
        if (other.written().parent != spot.written().parent || index == spot.index || other.heard().visits.empty())
            continue;
        if (other.tag() == spot.tag() || (others > 0 && other.tag() != usual)) return;
        usual = other.tag();
        ++others;
    }
    constexpr int FEW = 2;
    if (others < FEW || isWanted(spot)) return;
    const QString hint = didYouMean(spot.tag(), {usual});
    if (hint.isEmpty()) return;
    _judge
        .about("unexpected-tag", spot.index,
               QString("the list of %1 takes this %2 as an entry").arg(quoted(usual), quoted(spot.tag())))
        .hint = hint;
}

/// Whether an element became an entry of a list that it was not meant for.
bool Structure::isMisplaced(const Spot& spot) const
{
    const auto& visits = spot.heard().visits;
    return !visits.empty() && std::all_of(visits.begin(), visits.end(), [&](const HeardWalk& visit) {
        return !visit.tag.isEmpty() && visit.tag != spot.tag() && didYouMean(spot.tag(), {visit.tag}).isEmpty();
    });
}

void Structure::judgeAttributes(const Spot& spot)
{
    const HeardElement& heard = spot.heard();
    // What is no entry has no attributes of one.
    if (!heard.read || isMisplaced(spot)) return;
    QStringList absent;
    QStringList present;
    for (const HeardAttribute& asked : heard.attributes) (asked.present ? present : absent).append(asked.name);
    for (const Source::Attribute& attribute : _file.source.attributes(spot.written())) {
        const QString name = _file.source.slice(attribute.name).toString();
        // What belongs to XML itself, to editors and to other vocabularies is theirs.
        if (name == "xmlns" || name.contains(':')) continue;
        if (spot.index == 0 && name == "version") continue;
        if (heard.attribute(name) != nullptr) continue;
        // One without a value is told already, and may be cut off.
        if (attribute.value.isEmpty() && _file.isFaulty(attribute)) continue;
        Finding& finding = _judge.about("unknown-attribute", spot.index, attribute,
                                        QString("nobody reads %1 of %2").arg(quoted(name), quoted(spot.tag())));
        finding.hint = didYouMean(name, absent);
        if (finding.hint.isEmpty()) finding.hint = didYouMean(name, present);
        if (finding.hint.isEmpty() && _vocabulary != nullptr)
            if (const QString home = _vocabulary->homeOfAttribute(_file.path, name); !home.isEmpty())
                finding.hint = QString("%1 is an attribute of %2").arg(quoted(name), quoted(home));
    }
}

QString Structure::costOf(const Missing& missing) const
{
    if (missing.cost == OnNull::Note || missing.cost == OnNull::NoteAndLog)
        return QString("%1 keeps its defaults").arg(quoted(missing.tag));
    if (missing.scope < 0) return _file.cost;
    const QString scope = quoted(_file.tagOf(missing.scope));
    return missing.entry ? QString("this %1 is left out").arg(scope) : QString("%1 keeps its defaults").arg(scope);
}

void Structure::judgeMissing(const Missing& missing)
{
    Finding& finding =
        _judge.about("missing-element", missing.parent,
                     QString("%1 is missing in %2").arg(quoted(missing.tag), quoted(_file.tagOf(missing.parent))));
    finding.cost = costOf(missing);
}

void Structure::judgeDefaults(const Spot& spot)
{
    for (const HeardAttribute& asked : spot.heard().attributes)
        if (!asked.present && asked.stranger.isEmpty() && !asked.name.isEmpty() && asked.field.offset >= 0)
            _judge.about("default-read", spot.index,
                         QString("%1 is absent and reads as %2").arg(quoted(asked.name), quoted(asked.readDefault)));
}

} // namespace

void judgeStructure(const HeardFile& file, const Vocabulary* vocabulary, Findings& findings)
{
    if (!file.wasRead) return;
    const bool otherRoot = std::any_of(file.refusals.begin(), file.refusals.end(),
                                       [](const Refused& refused) { return refused.why == Refusal::WrongRoot; });
    const bool alien = std::any_of(file.missing.begin(), file.missing.end(),
                                   [](const Missing& missing) { return missing.parent == 0; });
    // Another root with other things below is another kind of file, which is one mistake and not a hundred.
    if (otherRoot && alien) return;
    Structure structure(file, vocabulary, findings);
    for (const Missing& missing : file.missing)
        if (!file.isCut(missing.parent)) structure.judgeMissing(missing);
    for (int index = 0; index < int(file.elements.size()); ++index) {
        const Spot spot{file, index};
        structure.judgeElement(spot);
        structure.judgeAttributes(spot);
        structure.judgeDefaults(spot);
    }
}

} // namespace lcdcheck
