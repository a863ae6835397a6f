// What the tests of the settings share: a stand-in for the flush of the storage, and a component with its file.
#ifndef TESTS_SETTINGS_SUPPORT_H
#define TESTS_SETTINGS_SUPPORT_H

#include "lcdconfig.h"
#include "lcdlanguageconfig.h"
#include "support.h"

#include <optional>

/// Stands where the shell looks for "sync", in place of all other folders, and counts its calls.
class StandInSync {
public:
    StandInSync()
    {
        const QString script = QStringLiteral("#!/bin/sh\nexec 2>&-\necho >> '%1'\n").arg(_folder.write("calls", {}));
        QFile(_folder.write("sync", script)).setPermissions(QFile::Permissions(0x5755));
        QFile(_folder.path()).setPermissions(QFile::Permissions(0x7755));
        qputenv("PATH", _folder.path().toLocal8Bit());
    }
    /// The calls since the last one of this.
    int calls()
    {
        const int all = int(QFileInfo(_folder.path("calls")).size());
        return all - std::exchange(_seen, all);
    }

private:
    Folder _folder;
    int _seen = 0;
};

template <class Config> class Panel {
public:
    Panel()
    {
        if constexpr (std::is_constructible_v<Config, QString>)
            _config.emplace(file());
        else
            _config.emplace();
    }
    explicit Panel(const QString& ini) : Panel()
    {
        folder.write("lcdsetting.ini", ini);
        if constexpr (std::is_constructible_v<Config, QString>)
            _config->readConfig();
        else
            _config->readConfig(folder.path());
    }
    // As with a pointer: the getters are not const.
    Config& operator*() const { return *_config; }
    Config* operator->() const { return &*_config; }
    /// The component goes, and writes what it may still have to write.
    void close() { _config.reset(); }
    [[nodiscard]] QString text() const
    {
        QFile in(file());
        return in.open(QIODevice::ReadOnly) ? QString::fromUtf8(in.readAll()) : QString();
    }
    [[nodiscard]] QString file() const { return folder.path("lcdsetting.ini"); }

    Folder folder;

private:
    mutable std::optional<Config> _config;
};

using Factory = Panel<LCD::MainConfigImpl::LcdConfig>;
using User = Panel<LCD::MainConfigImpl::LcdLanguageConfig>;

/// Keeps the files of a test in memory where there is a place for it, for QSettings waits for the disk on each write.
inline void keepFilesInMemory()
{
    if (QFileInfo("/dev/shm").isWritable()) qputenv("TMPDIR", "/dev/shm");
}

#endif
