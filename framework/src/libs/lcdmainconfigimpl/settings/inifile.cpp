#include "inifile.h"

#include <vector>

#include <QByteArray>
#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryFile>

namespace LCD::MainConfigImpl {

IniFile::IniFile(const QString& path, std::mutex& mutex) : QSettings(path, IniFormat), _mutex(mutex)
{
    // A lock without an owner, as a power cut leaves it, would hold up the first write for half a minute. The lock of a
    // live process stays.
    QLockFile(fileName() + ".lock").removeStaleLockFile();
}

bool IniFile::write()
{
    if (!hasRoom()) return false;
    sync();
    return true;
}

bool IniFile::event(QEvent* event)
{
    if (event->type() != QEvent::UpdateRequest && event->type() != QEvent::Timer) return QSettings::event(event);
    const std::lock_guard lock(_mutex);
    // QSettings asks only once.
    if (write())
        _retry.stop();
    else
        _retry.start(1000, this);
    return true;
}

/// Tries it out beside the file, with a file that is at least as long as the one to be written and its lock together.
bool IniFile::hasRoom() const
{
    // The present size covers what is no text, such as lists.
    const QFileInfo info(fileName());
    qint64 length = 8192 + info.size();
    // A letter takes up to six bytes.
    for (const QString& key : allKeys()) length += 32 + 6 * (key.size() + value(key).toString().size());
    QTemporaryFile scratch((info.exists() ? info.canonicalFilePath() : fileName()) + ".XXXXXX");
    return scratch.open() && scratch.write(QByteArray(int(length), ' ')) == length && scratch.flush();
}

void IniFile::Closer::operator()(IniFile* file) const
{
    if (file->write()) {
        delete file;
        return;
    }
    // The destructor would write. So the object is left behind, cut off from the event loop and in sight of leak
    // checks.
    file->_retry.stop();
    QCoreApplication::removePostedEvents(file);
    static auto& leftBehind = *new std::vector<IniFile*>;
    leftBehind.push_back(file);
}

} // namespace LCD::MainConfigImpl
