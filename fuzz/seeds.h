// The inputs from which fuzzing starts: the files of an example, and of each kind a document with all that its readers
// can ask for.
#ifndef FUZZ_SEEDS_H
#define FUZZ_SEEDS_H

#include "check/grammar.h"

#include <QString>

namespace fuzz {

/// Writes them into the folder, with the kind in the first line.
void writeSeeds(const QString& example, const QString& folder);

/// The element with all attributes, and with all that stands in it to that depth.
QString grown(const lcdcheck::Element& element, int depth);

} // namespace fuzz

#endif
