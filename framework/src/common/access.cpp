#include "common/access.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

#include <cerrno>
#include <memory>
#include <system_error>

namespace lcdcommon {
namespace {

QString reasonOf(int error)
{
    QString reason = QString::fromStdString(std::generic_category().message(error));
    return reason.replace(0, 1, reason.left(1).toLower());
}

} // namespace

QString whyNoFolder(const QString& path)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(QFile::encodeName(path).constData()), closedir);
    if (!folder) return reasonOf(errno);
    // A folder may be listed and its entries be out of reach all the same.
    struct stat self = {};
    return fstatat(dirfd(folder.get()), ".", &self, 0) == 0 ? QString() : reasonOf(errno);
}

QString whyNoFile(const QString& path)
{
    const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (file < 0) return reasonOf(errno);
    struct stat info = {};
    const bool known = fstat(file, &info) == 0;
    close(file);
    if (known && S_ISDIR(info.st_mode)) return QStringLiteral("a folder, not a file");
    return known && S_ISREG(info.st_mode) ? QString() : QStringLiteral("not a regular file");
}

} // namespace lcdcommon
