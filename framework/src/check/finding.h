// What the checker tells its user: one finding, and the table of all kinds of findings, which is the only place that
// words what a kind means.
#ifndef LCDCHECK_FINDING_H
#define LCDCHECK_FINDING_H

#include <QString>

#include <vector>

namespace lcdcheck {

enum class Severity {
    Note,    ///< Worth knowing; nothing is wrong.
    Warning, ///< The author means something else than the panel will read.
    Error,   ///< Something is lost.
};

/// A stretch of one line of a file, counted from 1 in characters. `endColumn` is the column behind its last character.
/// A finding about a whole file stands at line 1, column 1.
struct Place {
    int line = 1;
    int column = 1;
    int endColumn = 1;
};

/// One kind of finding, a row of the table of kinds.
struct Kind {
    const char* id; ///< Stable name, as "unknown-attribute".
    Severity severity;
    const char* summary; ///< One line, without a full stop.
    const char* meaning; ///< What it means and why it matters.
    const char* cure;    ///< How it is mended.
    const char* example; ///< A few lines of a file that show it.
};

/// All kinds, in the order in which they are listed.
const std::vector<Kind>& kinds();
/// The kind of that id; null when there is none.
const Kind* kindOf(const QString& id);

struct Finding {
    const Kind* kind = nullptr;
    QString file; ///< The path of the file or folder, as it was opened.
    Place place;
    QString element; ///< Path of tags from the root, as "DCS/Device/Slots"; of an ini the key. Empty for a whole file.
    QString message; ///< One line, without a full stop.
    QString hint;    ///< What the author may have meant, as "did you mean \"Editable\"?"; empty when nothing is known.
    QString cost;    ///< What the panel loses by it, as "the card is dropped"; empty when nothing is.
};

using Findings = std::vector<Finding>;

} // namespace lcdcheck

#endif
