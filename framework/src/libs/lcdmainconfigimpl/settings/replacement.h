// The atomic exchange of a file for a new one, against other processes that do the same. The new file is written under
// the name of the lock that QSettings respects and takes, "<file>.lock": so one file is created, whoever writes through
// QSettings waits, and the lock ends by the very step that puts the new file in its place.
#ifndef LCDMAINCONFIGIMPL_SETTINGS_REPLACEMENT_H
#define LCDMAINCONFIGIMPL_SETTINGS_REPLACEMENT_H

#include "filedescriptor.h"

#include <chrono>
#include <sys/types.h>

#include <QByteArray>
#include <QString>

namespace LCD::MainConfigImpl {

class Replacement {
public:
    /// Takes the lock and waits for that no longer than told. Symbolic links must have been followed: what `path` names
    /// is replaced.
    Replacement(const QString& path, std::chrono::milliseconds patience);
    /// Without a commit the file stays as it was.
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    /// Why nothing can be written or was written; empty when all is well.
    [[nodiscard]] QString problem() const { return _problem; }
    /// Puts a file of this text in place, with the owner and the mode of the old one, once the storage has all of it.
    /// What goes wrong before leaves the old file untouched.
    bool commit(const QByteArray& text);

    /// Removes the lock that an ended process has left; never that of a living one.
    static void clearAway(const QString& path);

private:
    bool tryToLock();
    bool fail(const char* step);
    bool takeAfterTheOldFile() const;

    QString _path;
    QString _lock;
    FileDescriptor _new;
    QString _problem;
};

} // namespace LCD::MainConfigImpl

#endif
