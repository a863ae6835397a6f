// Whether the program may read what it is pointed at, found out by opening it: permission bits alone tell little, to
// the superuser nothing.
#ifndef LCDCOMMON_ACCESS_H
#define LCDCOMMON_ACCESS_H

#include <QString>

namespace lcdcommon {

/// Why the folder can't be listed or its entries not be reached, as "permission denied"; empty when they can.
QString whyNoFolder(const QString& path);

/// Why the file can't be read, as "permission denied" or "a folder, not a file"; empty when it can. Waits for nothing,
/// also where the path leads to a pipe.
QString whyNoFile(const QString& path);

} // namespace lcdcommon

#endif
