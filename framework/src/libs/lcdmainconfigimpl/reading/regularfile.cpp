#include "regularfile.h"

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace LCD::MainConfigImpl::reading {

bool openRegular(const QString& path, QFile& file)
{
    // A resource of the application is no file of the system.
    if (path.startsWith(u':')) return file.open(QIODevice::ReadOnly);
    const QByteArray name = QFile::encodeName(path);
    struct stat about = {};
    if (::stat(name.constData(), &about) != 0 || !S_ISREG(about.st_mode)) return false;
    // It stays one that never blocks, since a few files of the system's own folders are regular and wait.
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) return false;
    // Another file may have taken the name in between.
    const bool regular = ::fstat(descriptor, &about) == 0 && S_ISREG(about.st_mode);
    if (regular && file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

QByteArray readAtMost(QFile& file, qint64 most)
{
    QByteArray bytes = file.read(std::min(file.size(), most));
    // It may have grown, and some files of the system's own folders tell no size.
    constexpr qint64 PIECE = 65536;
    for (QByteArray more; bytes.size() < most; bytes += more) {
        more = file.read(std::min(PIECE, most - bytes.size()));
        if (more.isEmpty()) break;
    }
    return bytes;
}

} // namespace LCD::MainConfigImpl::reading
