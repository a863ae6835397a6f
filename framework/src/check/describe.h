// The modes of the program that tell what files may hold, and what the readers make of them.
#ifndef LCDCHECK_DESCRIBE_H
#define LCDCHECK_DESCRIBE_H

#include "options.h"

namespace lcdcheck {

/// --reference [KIND]
int runReference(const Options& options, Console& console);
/// --schema KIND
int runSchema(const Options& options, Console& console);
/// --new KIND, --new root FOLDER
int runNew(const Options& options, Console& console);
/// --effective ROOT
int runEffective(const Options& options, Console& console);
/// --diff OLD NEW
int runDiff(const Options& options, Console& console);
/// --at FILE:LINE[:COLUMN]
int runAt(const Options& options, Console& console);

} // namespace lcdcheck

#endif
