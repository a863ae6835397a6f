#include "directory.h"

namespace LCD::MainConfigImpl::reading {

bool useDirectory(const QString& path, QString& error, QDir& directory)
{
    if (!path.isEmpty()) {
        directory.setPath(path);
        if (directory.exists() || QDir().mkpath(path)) return true;
    }
    error = QStringLiteral("Invalid file path!\n%1").arg(path);
    return false;
}

QFileInfoList xmlEntries(const QDir& directory)
{
    QDir listing(directory);
    listing.setNameFilters({QStringLiteral("*.xml")});
    return listing.entryInfoList();
}

} // namespace LCD::MainConfigImpl::reading
