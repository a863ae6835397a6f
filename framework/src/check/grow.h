// Grows the grammar of a kind of file by reading: start from an empty root, let the readers ask, put in what they asked
// for and did not find, and read again until nothing new is asked.
#ifndef LCDCHECK_GROW_H
#define LCDCHECK_GROW_H

#include "grammar.h"

namespace lcdcheck {

Grammar grow(FileKind kind);

} // namespace lcdcheck

#endif
