// Tells to which member of which record a place in memory belongs, while readers fill records. What is built aside
// counts for the place that it is meant for.
#ifndef LCDCHECK_PLACING_H
#define LCDCHECK_PLACING_H

#include "grammar.h"

#include <vector>

namespace lcdcheck {

class Placing {
public:
    /// A record is read into from here on.
    void enter(const reading::Location& record);
    /// The one that was entered last is done. Its address may be another's from now on.
    void leave(const reading::Location& record);
    void standsFor(const reading::Location& aside, const reading::Location& place);
    void clear();

    /// Where a field stands that belongs to the record; both are the same for what is a record of its own, such as an
    /// entry of a list of numbers.
    [[nodiscard]] FieldPlace fieldOf(const reading::Location& field, const reading::Location& record) const;
    /// The member of another record that this record is; its `record` is null when it is none.
    [[nodiscard]] FieldPlace memberOf(const reading::Location& record) const;

private:
    struct Span {
        reading::Location record;
        reading::Location place; ///< What it stands for; without an address, itself.
    };

    [[nodiscard]] FieldPlace placeBefore(std::size_t end, const reading::Location& field) const;

    std::vector<Span> _spans;        ///< The records that may still be filled, in the order of their beginning.
    std::vector<std::size_t> _begun; ///< Those of them that are being read, the innermost last.
    std::vector<Span> _asides;
};

} // namespace lcdcheck

#endif
