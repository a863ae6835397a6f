// The values that rules over several files compare: what the readers stored in the fields that those rules name, in the
// order of reading, each with its place in the text.
#ifndef LCDCHECK_COLLECTED_H
#define LCDCHECK_COLLECTED_H

#include "heard.h"

#include <map>
#include <set>

namespace lcdcheck {

/// One value that a reader stored.
struct Value {
    int file = 0;    ///< Index into Collected::files.
    int element = 0; ///< The element on which it was asked for, as numbered in the file.
    QString text;    ///< As written, or the read default.
    bool present = false;
    bool good = true; ///< False: it tells nothing, since it is no number or its name is probably misspelt.
    Place place;      ///< Of the attribute, or of the element where it is absent.

    /// The number as the library stores it in an integer field; 0 for what is none.
    [[nodiscard]] qlonglong number() const { return text.toLongLong(); }
};

/// What is kept of a file after its own rules have run.
struct CollectedFile {
    QString path;
    std::vector<int> parents;  ///< Of each element; -1 for the root.
    std::vector<QString> tags; ///< Of each element, as it was read.
    std::vector<Place> places; ///< Of the start tag of each element.
    bool whole = true;         ///< False: it could not be read to its end, so that it may hold anything.

    /// The tags from the root to an element.
    [[nodiscard]] QString pathOf(int element) const;
    /// Whether an element is another one or stands below it.
    [[nodiscard]] bool isWithin(int element, int ancestor) const;
};

class Collected {
public:
    /// Only the fields named here are kept.
    explicit Collected(std::set<Field> wanted) : _wanted(std::move(wanted)) {}

    void add(const HeardFile& file);

    [[nodiscard]] const std::vector<CollectedFile>& files() const { return _files; }
    [[nodiscard]] const CollectedFile& fileOf(const Value& value) const { return _files[std::size_t(value.file)]; }

    /// All values of a field, in the order of reading.
    [[nodiscard]] const std::vector<Value>& all(const Field& field) const;
    /// The value of a field on the nearest element that is, or stands above, that of another value; null when none was
    /// asked for there.
    [[nodiscard]] const Value* above(const Value& value, const Field& field) const;
    /// The values of a field on an element or below it.
    [[nodiscard]] std::vector<const Value*> within(int file, int element, const Field& field) const;

private:
    std::set<Field> _wanted;
    std::vector<CollectedFile> _files;
    std::map<Field, std::vector<Value>> _values;
};

} // namespace lcdcheck

#endif
