// What the fields of the records mean, in the words of their docstrings. The table behind it is made from the public
// headers by fields.py (./dev reference), so that nothing is said twice.
#ifndef LCDCHECK_FIELDS_H
#define LCDCHECK_FIELDS_H

#include "grammar.h"

namespace lcdcheck {

struct FieldInfo {
    QString record;  ///< Name of the record's type, as "s_Cell".
    QString member;  ///< Empty: it belongs to no public record.
    QString meaning; ///< Plain text, sentences.
};

FieldInfo infoOf(const FieldPlace& field);

} // namespace lcdcheck

#endif
