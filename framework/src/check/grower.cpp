#include "grower.h"

#include "reading/document.h"

#include <algorithm>

namespace lcdcheck {

using reading::Asked;
using reading::Location;
using reading::OnNull;
using reading::Walk;

namespace {

/// No reader asks for it: it is no name that XML allows.
const QString MARK = QStringLiteral(":");
/// The tag of an element that stands for those of every tag.
const QString ANY = QStringLiteral("any");

/// A likely tag for the entries of a list that takes every tag.
QString likelyTag(const QString& listTag)
{
    return listTag.endsWith('s') ? listTag.chopped(1) : QStringLiteral("Entry");
}

/// As the parser makes elements: some readers ask for the local name.
QDomElement create(QDomDocument& document, const QString& tag) { return document.createElementNS(QString(), tag); }

bool isBelow(const QDomNode& node, const QDomNode& above)
{
    for (QDomNode at = node; !at.isNull(); at = at.parentNode())
        if (at == above) return true;
    return false;
}

template <class Thing> bool addTo(std::vector<Thing>& list, const Thing& thing)
{
    if (std::find(list.begin(), list.end(), thing) != list.end()) return false;
    list.push_back(thing);
    return true;
}

} // namespace

Grower::Grower(FileKind kind) : Feeder(QDomDocument()), _kind(kind), _root(std::make_unique<Element>()) {}

void Grower::prepare(const QString& trial)
{
    _trial = trial;
    _placing.clear();
    _records.clear();
    _scopes.clear();
    _strayed.clear();
    for (Element* const element : _elements) element->refused = false;
    setAttributes(fed.documentElement(), trial);
}

void Grower::setAttributes(QDomElement element, const QString& trial)
{
    if (element.isNull()) return;
    const Element& grown = *_elements[element.attributeNode(MARK).value().toUInt()];
    for (const Attribute& attribute : grown.attributes) {
        // A root of another version is not read.
        if (trial.isNull() || (grown.parent == nullptr && attribute.name == "version"))
            element.removeAttribute(attribute.name);
        else
            element.setAttribute(attribute.name, trial);
    }
    for (QDomElement below = element.firstChildElement(); !below.isNull();) {
        QDomElement current = std::exchange(below, below.nextSiblingElement());
        const bool isGone = _elements[current.attributeNode(MARK).value().toUInt()]->tag.isEmpty();
        if (isGone)
            element.removeChild(current);
        else
            setAttributes(current, trial);
    }
}

QStringList Grower::trialsOf(const Element& element, const QString& attribute) const
{
    return _trials.value(element.path() + '@' + attribute);
}

bool Grower::refused(const QString& path, const reading::Frame& frame, reading::Refusal why,
                     const reading::ParseFailure& failure, QDomDocument& document)
{
    if (fed.documentElement().isNull()) {
        _root->tag = frame.rootTag;
        QDomElement root = create(fed, _root->tag);
        root.setAttribute(MARK, 0);
        fed.appendChild(root);
        _elements.push_back(_root.get());
    }
    return Feeder::refused(path, frame, why, failure, document);
}

Element* Grower::of(const QDomElement& element)
{
    if (element.isNull()) return nullptr;
    if (!_strayed.isNull()) {
        if (isBelow(element, _strayed)) return nullptr;
        _strayed.clear();
    }
    const QString mark = element.attribute(MARK);
    return mark.isEmpty() ? nullptr : _elements[mark.toUInt()];
}

Element& Grower::childOf(Element& parent, const QString& tag)
{
    for (const auto& child : parent.children)
        if (child->anyTag ? tag.isEmpty() : child->tag == tag) return *child;
    auto child = std::make_unique<Element>();
    child->tag = tag.isEmpty() ? likelyTag(parent.tag) : tag;
    child->anyTag = tag.isEmpty();
    child->parent = &parent;
    _elements.push_back(child.get());
    ++_known;
    return *parent.children.emplace_back(std::move(child));
}

QDomElement Grower::put(const QDomElement& parent, Element& child)
{
    const QString tag = child.anyTag ? ANY : child.tag;
    QDomElement element = parent.firstChildElement(tag);
    // A list that is told apart by its tags has no entry of any tag any more.
    if (!element.isNull() || child.tag.isEmpty()) return element;
    element = create(fed, tag);
    const auto number = std::find(_elements.begin(), _elements.end(), &child) - _elements.begin();
    element.setAttribute(MARK, static_cast<int>(number));
    QDomElement(parent).appendChild(element);
    return element;
}

Attribute& Grower::attributeOf(Element& element, const QString& name)
{
    auto& attributes = element.attributes;
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const Attribute& attribute) { return attribute.name == name; });
    if (found != attributes.end()) return *found;
    ++_known;
    return attributes.emplace_back(Attribute{name, {}, {}, false});
}

bool Grower::attributeTested(const QDomElement& element, const QString& name, bool /*found*/)
{
    if (Element* const grown = of(element)) attributeOf(*grown, name).presenceAsked = true;
    return true;
}

void Grower::asked(const QDomElement& element, const Asked& asked)
{
    Element* const grown = of(element);
    if (grown == nullptr) return;
    const Use use{asked.kind, asked.readDefault, _placing.fieldOf(asked.field, asked.record)};
    if (asked.name.isEmpty()) {
        if (!grown->content) grown->content = Attribute{};
        if (addTo(grown->content->uses, use)) ++_known;
        return;
    }
    if (addTo(attributeOf(*grown, asked.name).uses, use)) ++_known;
    QStringList& trials = _trials[grown->path() + '@' + asked.name];
    if (!trials.contains(_trial)) trials.append(_trial);
}

QDomElement Grower::child(const QDomElement& parent, const QString& tag, OnNull cost, const bool* scope,
                          const QDomElement& found)
{
    Element* const grown = of(parent);
    // Beside the way, any element will do to get on.
    if (grown == nullptr) return found.isNull() ? create(fed, tag) : found;
    Element& child = childOf(*grown, tag);
    _records.erase(&child);
    const auto lost = _scopes.find(scope);
    if (addTo(child.lookUps, {cost, lost != _scopes.end() ? lost->second : nullptr})) ++_known;
    return put(parent, child);
}

void Grower::scopeBegins(const bool* scope, const QDomElement& element)
{
    const Element* const grown = of(element);
    // What ends the reading of the root ends that of the file.
    _scopes[scope] = grown != _root.get() ? grown : nullptr;
}

void Grower::childTested(const QDomElement& parent, const QString& tag, bool /*found*/)
{
    Element* const grown = of(parent);
    if (grown == nullptr) return;
    Element& child = childOf(*grown, tag);
    child.presenceAsked = true;
    put(parent, child);
}

bool Grower::contentTested(const QDomElement& /*element*/, bool /*found*/) { return true; }

bool Grower::tagTested(const QDomElement& element, const QString& tag, bool is)
{
    Element* const grown = of(element);
    if (grown == nullptr || !grown->anyTag || is) return is;
    // The tags tell several kinds of entry apart: each of them takes the place of the one for every tag. Of a list that
    // has a single entry, the kind of file is that one's.
    const Visit visit = grown->visits.front();
    if (visit.walk == Walk::First && tag != infoOf(_kind).content) return is;
    Element& alternative = childOf(*const_cast<Element*>(grown->parent), tag);
    addTo(alternative.visits, visit);
    QDomNode parent = element.parentNode();
    grown->tag.clear();
    put(parent.toElement(), alternative);
    return is;
}

void Grower::walked(const QDomElement& parent, Walk walk, const QString& tag)
{
    Element* const grown = of(parent);
    if (grown == nullptr || grown->sameAs != nullptr) return;
    Element& entry = childOf(*grown, tag);
    if (addTo(entry.visits, {walk, tag})) ++_known;
    put(parent, entry);
}

void Grower::visited(const QDomElement& element, Walk walk, const QString& tag)
{
    Element* const grown = of(element);
    if (grown == nullptr) return;
    const Visit visit{walk, tag};
    if (std::find(grown->visits.begin(), grown->visits.end(), visit) == grown->visits.end()) _strayed = element;
    _records.erase(grown);
}

bool Grower::failed(const QDomElement& element, const QString& tag, const bool* /*scope*/)
{
    Element* const grown = of(element);
    if (grown == nullptr) return true;
    for (const auto& child : grown->children)
        if (child->tag == tag && child->presenceAsked) child->refused = true;
    return true;
}

void Grower::reading(const QDomElement& element, const Location& record)
{
    Element* const grown = of(element);
    _placing.enter(record);
    if (grown == nullptr) return;
    recognise(*grown, record);
    if (grown->record.record == nullptr && !fillsRecordAbove(*grown, record)) grown->record = _placing.memberOf(record);
}

/// Whether the element fills the very record of one above it.
bool Grower::fillsRecordAbove(const Element& element, const Location& record) const
{
    for (const Element* above = element.parent; above != nullptr; above = above->parent) {
        const auto known = _records.find(above);
        if (known == _records.end()) continue;
        if (known->second.address == record.address && *known->second.type == *record.type) return true;
    }
    return false;
}

/// An entry that is read into a record of the same type as an entry above it repeats that one.
void Grower::recognise(Element& element, const Location& record)
{
    const bool isFirst = _records.emplace(&element, record).second;
    if (!isFirst || !element.isEntry() || element.sameAs != nullptr) return;
    for (const Element* above = element.parent; above != nullptr; above = above->parent) {
        const auto known = _records.find(above);
        if (known == _records.end() || !(*known->second.type == *record.type)) continue;
        if (known->second.address != record.address && above->isEntry()) element.sameAs = above;
    }
}

void Grower::standsFor(const Location& aside, const Location& place) { _placing.standsFor(aside, place); }

} // namespace lcdcheck
