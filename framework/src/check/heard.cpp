#include "heard.h"

#include "common/nearest.h"

#include <algorithm>

namespace lcdcheck {

using reading::OnNull;
using reading::Refusal;
using reading::Walk;

namespace {

/// What tells one node of the DOM from all others.
struct Identity : QDomNode {
    static const void* of(const QDomNode& node) { return node.*&Identity::impl; }
};

bool fails(OnNull cost) { return cost == OnNull::Fail || cost == OnNull::FailAndLog; }

bool contains(const reading::Location& record, const void* address)
{
    const auto* const begin = static_cast<const char*>(record.address);
    const auto* const wanted = static_cast<const char*>(address);
    return std::greater_equal<>{}(wanted, begin) && std::less<>{}(wanted, begin + record.size);
}

template <class Name> const HeardAttribute* named(const std::vector<HeardAttribute>& attributes, const Name& name)
{
    const auto hit = std::find_if(attributes.begin(), attributes.end(),
                                  [&](const HeardAttribute& attribute) { return attribute.name == name; });
    return hit == attributes.end() ? nullptr : &*hit;
}

/// For each attribute that nobody asked for, the absent one that it was probably meant to be.
void findStrangers(const Source& source, std::size_t index, HeardElement& heard)
{
    QStringList absent;
    for (const HeardAttribute& attribute : heard.attributes)
        if (!attribute.present && !attribute.name.isEmpty()) absent.append(attribute.name);
    if (absent.isEmpty()) return;
    for (const Source::Attribute& attribute : source.attributes(source.elements()[index])) {
        const QString name = localName(source.slice(attribute.name)).toString();
        if (heard.attribute(name) != nullptr) continue;
        const QString meant = lcdcommon::nearest(name, absent);
        for (HeardAttribute& asked : heard.attributes)
            if (!meant.isEmpty() && asked.name == meant) asked.stranger = name;
    }
}

} // namespace

const HeardAttribute* HeardElement::attribute(const QString& name) const { return named(attributes, name); }

const HeardAttribute* HeardElement::attribute(QLatin1String name) const { return named(attributes, name); }

QString HeardFile::tagOf(int element) const
{
    const QString& meant = elements[std::size_t(element)].meant;
    if (!meant.isEmpty()) return meant;
    return localName(source.slice(source.elements()[std::size_t(element)].name)).toString();
}

QString HeardFile::pathOf(int element) const
{
    QString tags;
    for (int at = element; at >= 0; at = source.elements()[std::size_t(at)].parent)
        tags.prepend(tags.isEmpty() ? tagOf(at) : tagOf(at) + '/');
    return tags;
}

bool HeardFile::isFaulty(const Source::Attribute& attribute) const
{
    const auto touches = [&](const Source::Fault& fault) {
        return fault.span.begin <= attribute.value.end && fault.span.end >= attribute.name.begin;
    };
    return std::any_of(source.faults().begin(), source.faults().end(), touches);
}

bool HeardFile::isCut(int element) const
{
    const auto isOpen = [](const Source::Element& written) { return !written.selfClosed && written.endTag.isEmpty(); };
    const std::vector<Source::Element>& all = source.elements();
    return all.empty() || (isOpen(all.front()) && isOpen(all[std::size_t(element)]));
}

// --- Files

void Hearing::finish()
{
    if (_file.path.isEmpty()) return;
    for (std::size_t index = 0; index < _file.elements.size(); ++index)
        if (_file.elements[index].read) findStrangers(_file.source, index, _file.elements[index]);
    _heard(_file);
    _file = {};
}

void Hearing::begin(const QString& path, const reading::Frame& frame)
{
    _lastNode = nullptr;
    _putIn.clear();
    _scopes.clear();
    _records.clear();
    _begun.clear();
    _asides.clear();
    // Loaders open some files twice, and read some as two kinds.
    if (_file.path == path) return;
    finish();
    _numbers.clear();
    _documents.clear();
    _file.path = path;
    _file.frame = &frame;
    _file.cost = _cost;
    if (auto source = Source::readFile(path)) _file.source = std::move(*source);
    _file.elements.resize(_file.source.elements().size());
}

void Hearing::number(const std::vector<QDomElement>& elements)
{
    _numbers.reserve(_numbers.size() + int(elements.size()));
    for (std::size_t index = 0; index < elements.size(); ++index) {
        QDomElement element = elements[index];
        if (element.isNull()) continue;
        _numbers.insert(Identity::of(element), int(index));
        if (const QString& meant = _file.elements[index].meant; !meant.isEmpty()) element.setTagName(meant);
    }
}

QDomDocument Hearing::recovered(const reading::Frame& frame)
{
    _mended = true;
    std::vector<QDomElement> placed;
    QDomDocument document = _file.source.toDocument(&placed);
    number(placed);
    if (document.documentElement().isNull()) document.appendChild(document.createElement(frame.rootTag));
    return document;
}

void Hearing::parsed(const QString& path, const reading::Frame& frame, QDomDocument& document)
{
    begin(path, frame);
    const std::vector<QDomElement> elements = _file.source.match(document);
    if (elements.empty())
        document = recovered(frame);
    else
        number(elements);
    _documents.push_back(document);
}

bool Hearing::refused(const QString& path, const reading::Frame& frame, Refusal why,
                      const reading::ParseFailure& failure, QDomDocument& document)
{
    const bool opened = why != Refusal::CannotOpen && why != Refusal::NotWellFormed;
    if (!opened && !_instead.isEmpty() && path != _instead) {
        // It comes back here, or to parsed(), with the path of the other file.
        QString unused;
        return reading::parseFile(_instead, _instead, frame, reading::Report{unused}, document);
    }
    if (!opened) begin(path, frame);
    const bool known = std::any_of(_file.refusals.begin(), _file.refusals.end(),
                                   [why](const Refused& refusal) { return refusal.why == why; });
    if (!known) _file.refusals.push_back({why, failure});
    // What stands below another root is judged as if the root were right.
    if (why == Refusal::WrongRoot && !_file.elements.empty()) _file.elements[0].meant = frame.rootTag;
    _mended = true;
    if (!opened) {
        document = recovered(frame);
        _documents.push_back(document);
    }
    return true;
}

// --- Elements

int Hearing::indexOf(const QDomElement& element)
{
    if (element.isNull()) return -1;
    const void* const node = Identity::of(element);
    if (node == _lastNode) return _lastIndex;
    _lastNode = node;
    _lastIndex = _numbers.value(node, -1);
    return _lastIndex;
}

HeardElement* Hearing::heardOf(const QDomElement& element)
{
    const int index = indexOf(element);
    return index < 0 ? nullptr : &_file.elements[std::size_t(index)];
}

bool Hearing::rename(QDomElement element, const QString& tag)
{
    HeardElement* const heard = heardOf(element);
    if (heard == nullptr) return false;
    heard->meant = tag;
    element.setTagName(tag);
    _mended = true;
    return true;
}

bool Hearing::isStranger(int parent, const QString& tag)
{
    return _vocabulary != nullptr && !_vocabulary->mayHold(_file.path, _file.pathOf(parent), tag);
}

/// A child that was probably meant to have the tag: one that the place knows by no name, and near to it.
QDomElement Hearing::adopt(const QDomElement& parent, int index, const QString& tag)
{
    if (_vocabulary == nullptr || index < 0 || tag.isEmpty()) return {};
    for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
        const QDomElement element = node.toElement();
        if (element.isNull() || lcdcommon::nearest(element.tagName(), {tag}).isEmpty()) continue;
        if (element.tagName() != tag && isStranger(index, element.tagName()) && rename(element, tag)) return element;
    }
    return {};
}

QDomElement Hearing::putIn(int parent, const QString& tag)
{
    _mended = true;
    QDomElement& element = _putIn[QString::number(parent) + '/' + tag];
    if (element.isNull()) element = _putInFrom.createElement(tag);
    return element;
}

Missing Hearing::missing(int parent, const QString& tag, OnNull cost, const bool* scope) const
{
    Missing missing{parent, tag, cost, _scopes.value(scope, -1)};
    if (missing.scope == 0) missing.scope = -1;
    missing.entry = missing.scope >= 0 && !_file.elements[std::size_t(missing.scope)].visits.empty();
    return missing;
}

void Hearing::miss(const Missing& missing)
{
    const bool known = std::any_of(_file.missing.begin(), _file.missing.end(), [&](const Missing& other) {
        return other.parent == missing.parent && other.tag == missing.tag;
    });
    if (!known) _file.missing.push_back(missing);
}

QDomElement Hearing::child(const QDomElement& parent, const QString& tag, OnNull cost, const bool* scope,
                           const QDomElement& found)
{
    const int index = indexOf(parent);
    const QDomElement element = found.isNull() ? adopt(parent, index, tag) : found;
    if (index >= 0) {
        HeardElement& above = _file.elements[std::size_t(index)];
        above.read = _file.wasRead = true;
        above.children.push_back({tag, indexOf(element)});
        if (found.isNull() && cost != OnNull::Skip && cost != OnNull::ReadDefaults) {
            HeardElement* const stranger = heardOf(element);
            if (stranger != nullptr)
                stranger->lack = missing(index, tag, cost, scope);
            else
                miss(missing(index, tag, cost, scope));
        }
    }
    if (HeardElement* const heard = heardOf(element)) heard->found = true;
    return element.isNull() && fails(cost) ? putIn(index, tag) : element;
}

void Hearing::scopeBegins(const bool* scope, const QDomElement& element) { _scopes[scope] = indexOf(element); }

bool Hearing::childTested(const QDomElement& parent, const QString& tag, bool found)
{
    const int above = indexOf(parent);
    const QDomElement element = found ? parent.firstChildElement(tag) : adopt(parent, above, tag);
    if (HeardElement* const heard = heardOf(element)) heard->found = true;
    if (above >= 0) _file.elements[std::size_t(above)].children.push_back({tag, indexOf(element), true});
    return !element.isNull();
}

bool Hearing::failed(const QDomElement& element, const QString& tag, const bool* scope)
{
    if (HeardElement* const heard = heardOf(element)) {
        const bool tested = !heard->children.empty() && heard->children.back().tested;
        // A reader that ends because something is there has its reasons.
        if (tested && heard->children.back().element >= 0) return false;
        miss(missing(indexOf(element), tested ? heard->children.back().tag : tag, OnNull::Fail, scope));
    }
    return _mended = true;
}

bool Hearing::contentTested(const QDomElement& element, bool found)
{
    _mended = _mended || !found;
    if (HeardElement* const heard = heardOf(element)) heard->read = true;
    return true;
}

bool Hearing::tagTested(const QDomElement& element, const QString& tag, bool is)
{
    HeardElement* const heard = heardOf(element);
    if (heard == nullptr) return is;
    heard->testedTags.append(tag);
    const int parent = _file.source.elements()[std::size_t(indexOf(element))].parent;
    const bool near = !is && parent >= 0 && !lcdcommon::nearest(element.tagName(), {tag}).isEmpty();
    const bool fits = is || (near && isStranger(parent, element.tagName()) && rename(element, tag));
    heard->tagFits = heard->tagFits || fits;
    return fits;
}

void Hearing::walked(const QDomElement& parent, Walk walk, const QString& tag)
{
    const int index = indexOf(parent);
    if (index < 0) return;
    HeardElement& above = _file.elements[std::size_t(index)];
    above.read = _file.wasRead = true;
    above.walks.push_back({walk, tag});
    if (walk == Walk::Named)
        while (!adopt(parent, index, tag).isNull()) {
        }
    else if (walk == Walk::FirstNamed && parent.firstChildElement(tag).isNull())
        adopt(parent, index, tag);
}

void Hearing::visited(const QDomElement& element, Walk walk, const QString& tag)
{
    if (HeardElement* const heard = heardOf(element)) {
        heard->found = true;
        heard->visits.push_back({walk, tag});
    }
}

// --- Attributes and where they go

bool Hearing::attributeTested(const QDomElement& element, const QString& name, bool found)
{
    const int index = indexOf(element);
    if (found || index < 0 || _vocabulary == nullptr) return found;
    const QString path = _file.pathOf(index);
    const Source::Element& written = _file.source.elements()[std::size_t(index)];
    for (const Source::Attribute& attribute : _file.source.attributes(written)) {
        const QString other = localName(_file.source.slice(attribute.name)).toString();
        if (!lcdcommon::nearest(other, {name}).isEmpty() && !_vocabulary->mayHave(_file.path, path, other))
            return _mended = true;
    }
    return false;
}

void Hearing::asked(const QDomElement& element, const reading::Asked& asked)
{
    HeardElement* const heard = heardOf(element);
    if (heard == nullptr) return;
    heard->read = true;
    _file.wasRead = _file.wasRead || asked.field.address != nullptr;
    const auto known = std::find_if(heard->attributes.begin(), heard->attributes.end(),
                                    [&](const HeardAttribute& attribute) { return attribute.name == asked.name; });
    if (known != heard->attributes.end() && asked.field.address == nullptr) return;
    HeardAttribute attribute{asked.name, asked.kind, asked.readDefault, asked.present, asked.good, {}, {}, {}};
    attribute.field = fieldAt(asked);
    if (asked.record.address != nullptr && *asked.record.type != *asked.field.type) {
        attribute.outer = around(asked.record);
        attribute.outer.offset += attribute.field.offset;
        attribute.whole = asked.record.size == asked.field.size;
    } else
        attribute.whole = asked.record.address != nullptr;
    if (known != heard->attributes.end())
        *known = std::move(attribute);
    else
        heard->attributes.push_back(std::move(attribute));
}

Field Hearing::fieldAt(const reading::Asked& asked) const
{
    if (asked.field.address == nullptr) return {};
    const auto offsetIn = [](const reading::Location& record, const void* address) {
        return static_cast<const char*>(address) - static_cast<const char*>(record.address);
    };
    if (asked.record.type != nullptr && *asked.record.type != *asked.field.type)
        return {*asked.record.type, offsetIn(asked.record, asked.field.address)};
    // The text or number is all that the row fills: a member of a record that was begun before, or an entry of a list.
    return around(asked.field);
}

/// The member of a record that holds a location, or the list into which it will be put.
Field Hearing::around(const reading::Location& location) const
{
    reading::Location place = location;
    for (auto aside = _asides.rbegin(); aside != _asides.rend(); ++aside)
        if (aside->first.address == place.address && *aside->first.type == *place.type) {
            place = aside->second;
            break;
        }
    for (auto record = _records.rbegin(); record != _records.rend(); ++record)
        if (contains(*record, place.address) && *record->type != *location.type)
            return {*record->type, static_cast<const char*>(place.address) - static_cast<const char*>(record->address)};
    return {};
}

void Hearing::reading(const QDomElement& element, const reading::Location& record)
{
    if (HeardElement* const heard = heardOf(element)) heard->read = _file.wasRead = true;
    _begun.push_back(_records.size());
    _records.push_back(record);
}

void Hearing::readingEnds(const reading::Location& record)
{
    const std::size_t begin = _begun.back();
    _begun.pop_back();
    const auto isIt = [&record](const reading::Location& other) {
        return other.address == record.address && *other.type == *record.type;
    };
    const auto aside =
        std::find_if(_asides.rbegin(), _asides.rend(), [&](const auto& entry) { return isIt(entry.first); });
    const bool goesOn = std::any_of(_begun.begin(), _begun.end(), [&](std::size_t at) { return isIt(_records[at]); });
    // What was built aside is moved away; another record may go on to be filled by the reader that holds it.
    const bool isGone = aside != _asides.rend() && !goesOn;
    _records.resize(isGone ? begin : begin + 1);
    if (isGone) _asides.erase(std::next(aside).base());
}

void Hearing::standsFor(const reading::Location& aside, const reading::Location& place)
{
    _asides.emplace_back(aside, place);
}

} // namespace lcdcheck
