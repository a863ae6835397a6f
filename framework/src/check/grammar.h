// All that the readers of one kind of file can ask for: its elements, their attributes with read defaults, what fills
// which field, and what an absence costs. Nobody writes it down; it is grown by reading (grow.h), so it can't differ
// from what the files are read with.
#ifndef LCDCHECK_GRAMMAR_H
#define LCDCHECK_GRAMMAR_H

#include "filekind.h"
#include "reading/listener.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <typeinfo>
#include <vector>

namespace lcdcheck {

namespace reading = LCD::MainConfigImpl::reading;

/// A field by its place in the record that holds it. An entry of a list of plain values is known by the list.
struct FieldPlace {
    const std::type_info* record = nullptr; ///< Null: what was read goes to no record.
    std::size_t offset = 0;
    const std::type_info* type = nullptr; ///< Of what is stored there, or of an entry where that is a list.

    bool operator==(const FieldPlace& other) const;
};

/// One way in which an attribute, or the content of an element, is read. A few are read into two fields.
struct Use {
    reading::Kind kind = reading::Kind::Text;
    QString readDefault; ///< What an absent one counts as.
    FieldPlace field;

    bool operator==(const Use& other) const;
};

/// Another attribute of the same element must have this number for an attribute to be asked for.
struct Condition {
    QString name;
    QString number;
};

struct Attribute {
    QString name;          ///< Empty for the content of an element.
    std::vector<Use> uses; ///< In the order of the asking; empty where only its presence counts.
    std::optional<Condition> condition;

    bool presenceAsked = false; ///< Whether something else depends on it being there.
};

/// How an element is come to.
struct Visit {
    reading::Walk walk;
    QString tag; ///< That of the walk; empty where every tag belongs there.

    bool operator==(const Visit& other) const { return walk == other.walk && tag == other.tag; }
};

struct Element;

/// A look-up of the first child of a tag.
struct LookUp {
    reading::OnNull cost;
    const Element* scope; ///< The element of which nothing more is read where the absence is a failure; null: the file.

    bool operator==(const LookUp& other) const { return cost == other.cost && scope == other.scope; }
};

struct Element {
    QString tag;                     ///< Of a list that takes every tag, a likely one.
    bool anyTag = false;             ///< Whether every tag is read as this element.
    const Element* parent = nullptr; ///< Null: the root.
    std::vector<Attribute> attributes;
    std::optional<Attribute> content; ///< The text between its tags, where that is read.
    std::vector<std::unique_ptr<Element>> children;
    const Element* sameAs = nullptr; ///< The element above that it repeats, with all that stands below; it has none.

    std::vector<LookUp> lookUps; ///< By tag, each of which finds it as the first child.
    std::vector<Visit> visits;   ///< Of each list of which it is an entry.
    bool presenceAsked = false;  ///< Whether something else depends on it being there.
    bool refused = false;        ///< Its presence is what is an error.
    FieldPlace record;           ///< The member that it fills, if it fills one.

    /// The cost of its absence, the highest of several; nothing for entries of lists and what is only tested.
    [[nodiscard]] std::optional<reading::OnNull> cost() const;
    [[nodiscard]] bool isRequired() const;
    [[nodiscard]] bool isEntry() const { return !visits.empty(); }
    /// Whether every child element, whatever its tag, is an entry of a list below it.
    [[nodiscard]] bool takesAnyTag() const;
    /// What stands in it: itself, or the element that it repeats.
    [[nodiscard]] const Element& body() const { return sameAs != nullptr ? *sameAs : *this; }
    /// The child read for that tag; null when none is. An entry of a list may have any tag.
    [[nodiscard]] const Element* child(const QString& childTag) const;
    /// The child named so, which for a list of any tag is its likely tag alone; null when there is none.
    [[nodiscard]] const Element* namedChild(const QString& childTag) const;
    [[nodiscard]] const Attribute* attribute(const QString& name) const;
    /// The tags from the root to it.
    [[nodiscard]] QString path() const;
};

class Grammar {
public:
    Grammar(FileKind kind, std::unique_ptr<Element> root) : _kind(kind), _root(std::move(root)) {}

    [[nodiscard]] FileKind kind() const { return _kind; }
    [[nodiscard]] const Element& root() const { return *_root; }
    /// The element at the path of tags, the root's first, as "DCS/Device/Slots"; null when nothing is read there.
    [[nodiscard]] const Element* at(const QString& path) const;
    /// Every element, a parent before its children.
    [[nodiscard]] std::vector<const Element*> all() const;
    /// Where an element of that tag would be read, and where an attribute of that name would.
    [[nodiscard]] std::vector<const Element*> placesOfElement(const QString& tag) const;
    [[nodiscard]] std::vector<const Element*> placesOfAttribute(const QString& name) const;

private:
    FileKind _kind;
    std::unique_ptr<Element> _root;
};

/// The grammar of the kind, grown on first use.
const Grammar& grammarOf(FileKind kind);

} // namespace lcdcheck

#endif
