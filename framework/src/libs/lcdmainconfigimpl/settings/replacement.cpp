#include "replacement.h"

#include <cstdio>
#include <ctime>
#include <sys/file.h>
#include <thread>

#include <QFileInfo>
#include <QLockFile>

namespace LCD::MainConfigImpl {

namespace {

/// How long the maker of a lock may take from its creation to flock().
constexpr qint64 MILLISECONDS_TO_LOCK = 500;

qint64 milliseconds(const timespec& time) { return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1'000'000; }

timespec now()
{
    timespec time{};
    clock_gettime(CLOCK_REALTIME, &time);
    return time;
}

bool isSame(const FileDescriptor& file, const QString& path)
{
    const auto opened = file.status();
    struct stat named {};
    return opened && lstat(QFile::encodeName(path).constData(), &named) == 0 && opened->st_dev == named.st_dev &&
           opened->st_ino == named.st_ino;
}

bool lockNow(const FileDescriptor& file)
{
    int result = 0;
    do result = flock(file.get(), LOCK_EX | LOCK_NB);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

/// The time of a file that follows one of the time `old`: later by a millisecond at least, unless the clock was set
/// back.
timespec timeAfter(const timespec& old)
{
    const timespec present = now();
    const qint64 least = milliseconds(old) + 1;
    if (milliseconds(present) >= least || least > milliseconds(present) + 60'000) return present;
    return {time_t(least / 1000), long(least % 1000) * 1'000'000};
}

} // namespace

Replacement::Replacement(const QString& path, std::chrono::milliseconds patience) : _path(path), _lock(path + ".lock")
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!tryToLock() && _problem.isEmpty()) {
        if (std::chrono::steady_clock::now() >= end) {
            _problem = _lock + " is held by another process";
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

Replacement::~Replacement()
{
    if (_new.isOpen() && isSame(_new, _lock)) unlink(QFile::encodeName(_lock).constData());
}

/// False without a problem: someone else has it.
bool Replacement::tryToLock()
{
    clearAway(_path);
    struct stat old {};
    const bool exists = stat(QFile::encodeName(_path).constData(), &old) == 0;
    _new = FileDescriptor(_lock, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, exists ? old.st_mode & 0777 : 0666);
    if (!_new.isOpen()) return errno != EEXIST && fail("no new file can be made");
    // Until here someone may have taken it for one left behind.
    if (lockNow(_new) && isSame(_new, _lock)) return _new.write(";") || fail("the new file cannot be written");
    _new = FileDescriptor();
    return false;
}

bool Replacement::fail(const char* step)
{
    _problem = QStringLiteral("%1: %2").arg(step, qt_error_string(errno));
    return false;
}

/// The owner is kept as far as the system lets it be, which is always for the superuser. The time tells whoever looks
/// at the file that it is another one, even for two writes within the clock's grain: QSettings looks at milliseconds.
bool Replacement::takeAfterTheOldFile() const
{
    struct stat old {};
    if (stat(QFile::encodeName(_path).constData(), &old) != 0) return errno == ENOENT;
    const auto made = _new.status();
    if (!made) return false;
    if ((made->st_uid != old.st_uid || made->st_gid != old.st_gid) && fchown(_new.get(), old.st_uid, old.st_gid) != 0 &&
        errno != EPERM)
        return false;
    const timespec time = timeAfter(old.st_mtim);
    const timespec both[2] = {time, time};
    return fchmod(_new.get(), old.st_mode & 0777) == 0 && futimens(_new.get(), both) == 0;
}

bool Replacement::commit(const QByteArray& text)
{
    // As QSettings does, a file that was made read-only is left alone.
    if (QFileInfo::exists(_path) && faccessat(AT_FDCWD, QFile::encodeName(_path).constData(), W_OK, AT_EACCESS) != 0)
        return fail("the file may not be written");
    if (!_new.write(text)) return fail("the new file cannot be written");
    if (!takeAfterTheOldFile()) return fail("the new file cannot be made like the old one");
    if (fsync(_new.get()) != 0) return fail("the new file does not reach the storage");
    const auto written = _new.status();
    if (!written || written->st_size != text.size()) return fail("the new file is not whole");
    const FileDescriptor folder(QFileInfo(_path).path(), O_RDONLY | O_DIRECTORY);
    if (!folder.isOpen()) return fail("the folder cannot be opened");
    if (std::rename(QFile::encodeName(_lock).constData(), QFile::encodeName(_path).constData()) != 0)
        return fail("the file cannot be replaced");
    // Some file systems know no flush of a folder.
    if (fsync(folder.get()) != 0 && errno != EINVAL) return fail("the folder does not reach the storage");
    return true;
}

void Replacement::clearAway(const QString& path)
{
    const QString name = path + ".lock";
    struct stat found {};
    // Most of the time there is none. A folder or a pipe of that name is nobody's lock, and not ours to remove.
    if (lstat(QFile::encodeName(name).constData(), &found) != 0 || !S_ISREG(found.st_mode)) return;
    QLockFile foreign(name);
    qint64 process = 0;
    QString host;
    QString program;
    if (foreign.getLockInfo(&process, &host, &program)) {
        // It names its owner, and whether that one is alive Qt knows best.
        foreign.setStaleLockTime(0);
        if (foreign.tryLock(0)) foreign.unlock();
        return;
    }
    // One of ours, or one that a power cut has emptied. A living owner holds it by flock() before anything is in it,
    // which is soon.
    const FileDescriptor file(name, O_RDWR | O_NOFOLLOW);
    if (!file.isOpen() || !lockNow(file)) return;
    const auto status = file.status();
    if (!status) return;
    const qint64 age = std::abs(milliseconds(now()) - milliseconds(status->st_mtim));
    const bool isLeft = status->st_size > 0 || age > MILLISECONDS_TO_LOCK;
    if (isLeft && isSame(file, name)) unlink(QFile::encodeName(name).constData());
}

} // namespace LCD::MainConfigImpl
