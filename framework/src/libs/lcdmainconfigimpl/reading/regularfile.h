// Opens files of which nobody knows yet what they are.
#ifndef LCDMAINCONFIGIMPL_READING_REGULARFILE_H
#define LCDMAINCONFIGIMPL_READING_REGULARFILE_H

#include <QFile>

namespace LCD::MainConfigImpl::reading {

/// Opens a regular file for reading, and nothing else: a pipe would wait for a writer, and to open a device alone may
/// set it going. False where the path leads to no such file, or it can't be opened.
bool openRegular(const QString& path, QFile& file);

/// What is left to read of a file, up to a bound. QFile would take the room for the whole bound first.
QByteArray readAtMost(QFile& file, qint64 most);

} // namespace LCD::MainConfigImpl::reading

#endif
