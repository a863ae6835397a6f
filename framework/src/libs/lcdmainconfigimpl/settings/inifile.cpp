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
    // A process that was killed as it made its lock leaves an empty one, for which QSettings would wait half a minute.
    // The lock of a live process stays.
    QLockFile(fileName() + ".lock").removeStaleLockFile();
}

void IniFile::writeNow()
{
    if (hasRoom()) sync();
}

bool IniFile::event(QEvent* event)
{
    const std::lock_guard lock(_mutex);
    if (event->type() != QEvent::UpdateRequest && event->type() != QEvent::Timer) return QSettings::event(event);
    _retry.stop();
    QEvent update(QEvent::UpdateRequest);
    if (hasRoom()) return QSettings::event(&update);
    // QSettings asks only once.
    _retry.start(1000, this);
    return true;
}

/// Tries it out beside the file, with a file that is at least as long as the one to be written and its lock together.
bool IniFile::hasRoom() const
{
    const QFileInfo info(fileName());
    qint64 length = 8192 + info.size();
    // A letter takes up to six bytes.
    for (const QString& key : allKeys()) length += 32 + 6 * (key.size() + value(key).toString().size());
    QTemporaryFile scratch((info.exists() ? info.canonicalFilePath() : fileName()) + ".XXXXXX");
    return scratch.open() && scratch.write(QByteArray(int(length), ' ')) == length && scratch.flush() &&
           scratch.size() == length;
}

void IniFile::Closer::operator()(IniFile* file) const
{
    if (file->hasRoom()) {
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
