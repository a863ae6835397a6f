#include "inifile.h"

#include "filedescriptor.h"
#include "replacement.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QThread>

namespace LCD::MainConfigImpl {

namespace {

/// QSettings drops slashes at the ends, and all but one of several.
QString normalized(const QString& key) { return key.split('/', Qt::SkipEmptyParts).join('/'); }

bool isIn(const QString& key, const QString& group)
{
    return group.isEmpty() || key == group || key.startsWith(group + '/');
}

bool isSame(const timespec& one, const timespec& other)
{
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

bool isSame(const struct stat& one, const struct stat& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_size == other.st_size &&
           isSame(one.st_mtim, other.st_mtim) && isSame(one.st_ctim, other.st_ctim);
}

/// The files of the process by their real paths.
struct Opened {
    IniFile* file = nullptr;
    int users = 0;
};
std::mutex openedMutex;
QMap<QString, Opened>& openedFiles()
{
    // Never destroyed: what could not be written stays in sight of leak checks.
    static auto& files = *new QMap<QString, Opened>;
    return files;
}

} // namespace

IniFile::Pointer IniFile::open(const QString& path)
{
    const QFileInfo info(path);
    const QString real = info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
    const std::lock_guard lock(openedMutex);
    Opened& opened = openedFiles()[real];
    if (!opened.file) opened.file = new IniFile(real);
    if (++opened.users == 1) opened.file->write();
    return Pointer(opened.file);
}

void IniFile::Closer::operator()(IniFile* file) const
{
    const std::lock_guard lock(openedMutex);
    const auto opened = openedFiles().find(file->_path);
    if (--opened->users > 0) return;
    file->close();
    if (file->isPending()) return;
    openedFiles().erase(opened);
    delete file;
}

IniFile::IniFile(const QString& path) : _path(path)
{
    Replacement::clearAway(_path);
    refresh();
}

IniFile::~IniFile() = default;

void IniFile::close()
{
    write();
    const std::lock_guard lock(_writing);
    _retry.reset();
}

void IniFile::refresh()
{
    const std::lock_guard lock(_mutex);
    refreshUnlocked();
}

/// False: it cannot be read.
bool IniFile::refreshUnlocked()
{
    struct stat status {};
    const bool exists = stat(QFile::encodeName(_path).constData(), &status) == 0;
    const bool isGone = !exists && errno == ENOENT;
    if ((exists || isGone) && _read && isSame(status, *_read)) return true;
    if (isGone) return replaceStored({}, status);
    const FileDescriptor file(_path, O_RDONLY);
    const auto opened = file.isOpen() ? file.status() : std::nullopt;
    if (!opened) return complain(qt_error_string(errno));
    if (!S_ISREG(opened->st_mode)) return complain("it is no regular file");
    if (opened->st_size > MOST_BYTES) return complain("it is larger than 4 MiB");
    const auto text = file.read(MOST_BYTES + 1);
    if (!text) return complain(qt_error_string(errno));
    if (text->size() > MOST_BYTES) return complain("it is larger than 4 MiB");
    return replaceStored(*text, *opened);
}

bool IniFile::complain(const QString& reason)
{
    _read.reset();
    if (reason != _unreadable) qWarning().noquote() << "The settings in" << _path << "cannot be read:" << reason;
    _unreadable = reason;
    return false;
}

bool IniFile::replaceStored(const QByteArray& text, const struct stat& status)
{
    auto stored = readIniText(text);
    if (!stored) return complain("there is no memory for it");
    _stored = std::move(stored);
    _read = status;
    _unreadable.clear();
    _isDamaged = _stored->status() != QSettings::NoError || text.contains('\0');
    if (_isDamaged) qWarning().noquote() << "The settings in" << _path << "are damaged; some entries are lost";
    return true;
}

bool IniFile::isKnown() const
{
    const std::lock_guard lock(_mutex);
    return _stored != nullptr;
}

QVariant IniFile::value(const QString& key, const QVariant& unknown) const
{
    const QString whole = normalized(key);
    const std::lock_guard lock(_mutex);
    const auto change = _pending.find(whole);
    if (change != _pending.end()) return change->value.value_or(QVariant());
    return _stored ? _stored->value(whole) : unknown;
}

bool IniFile::contains(const QString& key) const { return entries().contains(normalized(key)); }

IniEntries IniFile::entries() const
{
    const std::lock_guard lock(_mutex);
    return entriesUnlocked();
}

IniEntries IniFile::entriesUnlocked() const
{
    IniEntries entries;
    if (_stored)
        for (const QString& key : _stored->allKeys()) entries[key] = _stored->value(key);
    for (auto change = _pending.begin(); change != _pending.end(); ++change)
        if (change->value)
            entries[change.key()] = *change->value;
        else
            entries.remove(change.key());
    return entries;
}

void IniFile::setValue(const QString& key, const QVariant& value)
{
    const QString whole = normalized(key);
    if (whole.isEmpty()) {
        qWarning("QSettings::setValue: Empty key passed");
        return;
    }
    const std::lock_guard lock(_mutex);
    _pending[whole] = {value, ++_changes};
}

void IniFile::remove(const QString& group)
{
    const QString whole = normalized(group);
    const std::lock_guard lock(_mutex);
    for (const QString& key : entriesUnlocked().keys())
        if (isIn(key, whole)) _pending[key] = {std::nullopt, ++_changes};
}

bool IniFile::isPending() const
{
    const std::lock_guard lock(_mutex);
    return !_pending.isEmpty();
}

void IniFile::write()
{
    const std::lock_guard lock(_writing);
    if (!isPending()) return;
    // Who could not write a moment ago need not wait long again.
    const QString problem = attempt(_unwritable.isEmpty() ? waits.lock : std::chrono::milliseconds::zero());
    if (!problem.isEmpty() && problem != _unwritable)
        qWarning().noquote() << "The settings in" << _path << "cannot be written now:" << problem;
    _unwritable = problem;
    if (problem.isEmpty())
        _pause = waits.firstRetry;
    else
        tryAgainLater();
}

/// Why nothing was written; empty when all is well.
QString IniFile::attempt(std::chrono::milliseconds patience)
{
    Replacement replacement(_path, patience);
    if (!replacement.problem().isEmpty()) return replacement.problem();
    std::unique_lock lock(_mutex);
    // Whoever had the lock before may have written.
    if (!refreshUnlocked()) return "the old file cannot be read: " + _unreadable;
    const IniEntries entries = entriesUnlocked();
    const quint64 lastChange = _changes;
    const QString notKept = _isDamaged ? keepAside() : QString();
    lock.unlock();

    const QByteArray text = iniText(entries);
    if (!notKept.isEmpty()) return notKept;
    if (text.size() > MOST_BYTES) return "the new file would be larger than 4 MiB";
    if (!replacement.commit(text)) return replacement.problem();

    lock.lock();
    // The changes must not be forgotten before they can be read where they were written.
    if (!refreshUnlocked()) return "the new file cannot be read: " + _unreadable;
    for (auto change = _pending.begin(); change != _pending.end();)
        change = change->number <= lastChange ? _pending.erase(change) : std::next(change);
    return {};
}

/// A second name for the damaged file, which keeps it when the first one goes to the new file.
QString IniFile::keepAside() const
{
    const QString aside = _path + ".damaged";
    QFile::remove(aside);
    if (link(QFile::encodeName(_path).constData(), QFile::encodeName(aside).constData()) == 0 ||
        QFile::copy(_path, aside))
        return {};
    return "the damaged file cannot be kept as " + aside;
}

/// In the application's event loop: the thread that calls may have none, or may end. The timer is Qt's alone and is
/// called by name, so that no code of this library is left in an event queue once the file is closed.
void IniFile::tryAgainLater()
{
    const QCoreApplication* const application = QCoreApplication::instance();
    if (!application) return;
    if (!_retry) {
        _retry.reset(new QTimer);
        _retry->setSingleShot(true);
        const auto again = [path = _path] { tryAgain(path); };
        QObject::connect(_retry.get(), &QTimer::timeout, _retry.get(), again, Qt::DirectConnection);
        _retry->moveToThread(application->thread());
    }
    QMetaObject::invokeMethod(_retry.get(), "start", Qt::QueuedConnection, Q_ARG(int, int(_pause.count())));
}

/// By the path, since the file may have been closed by another thread as the timer went off.
void IniFile::tryAgain(const QString& path)
{
    const std::lock_guard lock(openedMutex);
    const auto opened = openedFiles().constFind(path);
    if (opened == openedFiles().constEnd() || opened->users == 0) return;
    {
        const std::lock_guard writing(opened->file->_writing);
        opened->file->_pause = std::min(2 * opened->file->_pause, waits.lastRetry);
    }
    opened->file->write();
}

void IniFile::TimerEnd::operator()(QTimer* timer) const
{
    timer->disconnect();
    if (timer->thread() == QThread::currentThread())
        delete timer;
    else
        timer->deleteLater();
}

} // namespace LCD::MainConfigImpl
