#include "grammar.h"

#include "grow.h"

#include <algorithm>
#include <map>

namespace lcdcheck {

namespace {

bool same(const std::type_info* one, const std::type_info* other)
{
    return one == other || (one != nullptr && other != nullptr && *one == *other);
}

void collect(const Element& element, std::vector<const Element*>& all)
{
    all.push_back(&element);
    for (const auto& child : element.children) collect(*child, all);
}

template <class Wanted> std::vector<const Element*> those(std::vector<const Element*> all, const Wanted& wanted)
{
    all.erase(std::remove_if(all.begin(), all.end(), [&](const Element* element) { return !wanted(*element); }),
              all.end());
    return all;
}

} // namespace

bool FieldPlace::operator==(const FieldPlace& other) const
{
    return same(record, other.record) && offset == other.offset && same(type, other.type);
}

bool Use::operator==(const Use& other) const
{
    return kind == other.kind && readDefault == other.readDefault && field == other.field;
}

std::optional<reading::OnNull> Element::cost() const
{
    // The enumeration goes from the highest cost to the lowest.
    const auto highest = std::min_element(lookUps.begin(), lookUps.end(),
                                          [](const LookUp& one, const LookUp& other) { return one.cost < other.cost; });
    return highest != lookUps.end() ? std::optional(highest->cost) : std::nullopt;
}

bool Element::isRequired() const { return cost() == reading::OnNull::Fail || cost() == reading::OnNull::FailAndLog; }

bool Element::takesAnyTag() const
{
    const auto isOpen = [](const std::unique_ptr<Element>& entry) {
        return std::any_of(entry->visits.begin(), entry->visits.end(), [](const Visit& visit) {
            return visit.walk == reading::Walk::Any || visit.walk == reading::Walk::First;
        });
    };
    return std::any_of(body().children.begin(), body().children.end(), isOpen);
}

const Element* Element::namedChild(const QString& childTag) const
{
    for (const auto& candidate : body().children)
        if (candidate->tag == childTag) return candidate.get();
    return nullptr;
}

const Element* Element::child(const QString& childTag) const
{
    if (const Element* const named = namedChild(childTag)) return named;
    for (const auto& candidate : body().children)
        if (candidate->anyTag) return candidate.get();
    return nullptr;
}

const Attribute* Element::attribute(const QString& name) const
{
    for (const Attribute& candidate : body().attributes)
        if (candidate.name == name) return &candidate;
    return nullptr;
}

QString Element::path() const { return parent != nullptr ? parent->path() + '/' + tag : tag; }

const Element* Grammar::at(const QString& path) const
{
    const QStringList tags = path.split('/');
    if (tags.first() != _root->tag) return nullptr;
    const Element* element = _root.get();
    for (int level = 1; level < tags.size() && element != nullptr; ++level) element = element->child(tags[level]);
    return element;
}

std::vector<const Element*> Grammar::all() const
{
    std::vector<const Element*> elements;
    collect(*_root, elements);
    return elements;
}

std::vector<const Element*> Grammar::placesOfElement(const QString& tag) const
{
    return those(all(), [&](const Element& element) { return !element.anyTag && element.tag == tag; });
}

std::vector<const Element*> Grammar::placesOfAttribute(const QString& name) const
{
    return those(
        all(), [&](const Element& element) { return element.sameAs == nullptr && element.attribute(name) != nullptr; });
}

const Grammar& grammarOf(FileKind kind)
{
    static std::map<FileKind, Grammar> grown;
    const auto found = grown.find(kind);
    return found != grown.end() ? found->second : grown.emplace(kind, grow(kind)).first->second;
}

} // namespace lcdcheck
