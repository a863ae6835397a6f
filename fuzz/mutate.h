// Changes an input in ways that keep it a document: what readers ask for is put in, and elements and attributes are
// renamed, moved, doubled, dropped and given other values. So most inputs come past the parser.
#ifndef FUZZ_MUTATE_H
#define FUZZ_MUTATE_H

#include "check/filekind.h"

#include <QByteArray>

#include <random>

namespace fuzz {

/// Changes the document in a few places. Nothing, where it is not well-formed.
QByteArray mutateDocument(lcdcheck::FileKind kind, const QByteArray& content, std::minstd_rand& random);

/// One of the names that an input may begin with.
QByteArray anyName(std::minstd_rand& random);

} // namespace fuzz

#endif
