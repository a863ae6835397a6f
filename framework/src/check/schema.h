// An XSD 1.0 schema of one kind of file, by which editors complete and check. It allows what the readers take: any
// order, lists, and entries of any tag where every tag is read.
#ifndef LCDCHECK_SCHEMA_H
#define LCDCHECK_SCHEMA_H

#include "grammar.h"

namespace lcdcheck {

QString writeSchema(const Grammar& grammar);

} // namespace lcdcheck

#endif
