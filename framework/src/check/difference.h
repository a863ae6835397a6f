// What differs between two configurations by meaning: in what the readers take, matched by what identifies an element,
// not by its place in the file.
#ifndef LCDCHECK_DIFFERENCE_H
#define LCDCHECK_DIFFERENCE_H

#include "taken.h"

namespace lcdcheck {

struct Difference {
    enum class Change { Added, Removed, Changed };
    Change change = Change::Changed;
    QString file; ///< Below the root.
    /// The tags to the element, each with what identifies it among its like, as "Slots/Slot[Index=3]"; empty for a
    /// file.
    QString path;
    QString attribute; ///< Of a changed one; "(text)" is the text of the element.
    QString before;
    QString after;
};

std::vector<Difference> differences(const std::vector<TakenFile>& before, const std::vector<TakenFile>& after);

} // namespace lcdcheck

#endif
