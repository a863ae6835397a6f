// The directories that loaders are given, and the files in them.
#ifndef LCDMAINCONFIGIMPL_READING_DIRECTORY_H
#define LCDMAINCONFIGIMPL_READING_DIRECTORY_H

#include <QDir>
#include <QFileInfoList>

namespace LCD::MainConfigImpl::reading {

/// Points `directory` at `path`, and creates it when it is missing. False, with `error` set, for an empty path and for
/// a directory that can't be created.
bool useDirectory(const QString& path, QString& error, QDir& directory);

/// The entries "*.xml" of the directory by name, ignoring case. A subdirectory of such a name is one of them.
QFileInfoList xmlEntries(const QDir& directory);

} // namespace LCD::MainConfigImpl::reading

#endif
