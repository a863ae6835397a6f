// The page of a configuration as a file.
#ifndef LCDCHECK_PAGEFILE_H
#define LCDCHECK_PAGEFILE_H

#include "check.h"

namespace lcdcheck {

/// Writes the page of the one root of the request, as the panel has it with nothing mended; it is loaded again where
/// the check had to mend. A file that holds the same page already is left alone. Why it could not be written; empty
/// when it is there.
QString writePageFile(const QString& path, const Request& request, const Checked& checked);

} // namespace lcdcheck

#endif
