// The page of a configuration as a file.
#ifndef LCDCHECK_PAGEFILE_H
#define LCDCHECK_PAGEFILE_H

#include "check.h"

namespace lcdcheck {

/// Loads the one root of the request as the panel does, with nothing mended, and writes its page. A file that holds the
/// same page already is left alone. Why it could not be written; empty when it is there.
QString writePageFile(const QString& path, const Request& request, const Checked& checked);

} // namespace lcdcheck

#endif
