// The ini file under a settings component: one mutex, one open QSettings, and what a getter gives while there is none.
//
// Keys are whole, "Section/Entry"; the groups and arrays of QSettings are never entered. Their position is a state of
// the QSettings object, and an operation that takes no lock would find its key under the group of another thread.
#ifndef LCDMAINCONFIGIMPL_SETTINGS_SETTINGSSTORE_H
#define LCDMAINCONFIGIMPL_SETTINGS_SETTINGSSTORE_H

#include <atomic>
#include <initializer_list>
#include <mutex>
#include <vector>

#include <QString>
#include <QStringList>
#include <QVariant>

#include "inifile.h"

namespace LCD::MainConfigImpl {

/// Has the operating system bring its files to the storage. That takes its time, so no lock is held meanwhile.
void linuxSync();

class SettingsStore {
public:
    /// An entry that a getter writes when it finds it empty.
    struct Seed {
        const char* key;
        const char* text;
    };

    /// A store that was open stays so beside the new one: an operation without a lock may still be using it.
    void open(const QString& path);

    [[nodiscard]] int number(const QString& key, int noStore) const;
    [[nodiscard]] QString text(const QString& key, const char* noStore) const;
    [[nodiscard]] QString textUnlocked(const QString& key, const char* noStore) const;
    /// The texts of the entries; an empty one is written with its seed, each with a flush of its own. No store: the
    /// seeds, nothing written.
    [[nodiscard]] QStringList seeded(std::initializer_list<Seed> entries) const;

    /// The value reaches the file when QSettings chooses, which may be after the flush.
    void set(const QString& key, const QVariant& value);
    /// The value is in the file before the flush.
    void setNow(const QString& key, const QVariant& value);

    /// What `use` makes of the open store, under the lock.
    template <class Result, class Use> Result read(const Result& noStore, const Use& use) const
    {
        const std::lock_guard lock(_mutex);
        return _setting ? use(*_setting) : noStore;
    }
    template <class Result, class Use> Result readOrWarn(const Result& noStore, const Use& use) const
    {
        const std::lock_guard lock(_mutex);
        return isOpenOrWarn() ? use(*_setting) : noStore;
    }

    /// Has `use` change the open store; to do so without one is the caller's error. False: nothing was done.
    template <class Use> bool changeUnlocked(const Use& use)
    {
        Q_ASSERT_X(_setting, "settings", "a setter was called before a successful readConfig");
        if (!_setting) return false;
        use(*_setting);
        return true;
    }
    template <class Use> bool change(const Use& use)
    {
        const std::lock_guard lock(_mutex);
        return changeUnlocked(use);
    }
    template <class Use> bool changeOrWarn(const Use& use)
    {
        const std::lock_guard lock(_mutex);
        return isOpenOrWarn() && changeUnlocked(use);
    }

private:
    [[nodiscard]] bool isOpenOrWarn() const;

    mutable std::mutex _mutex;
    std::atomic<IniFile*> _setting = nullptr;
    std::vector<IniFile::Pointer> _opened;
};

} // namespace LCD::MainConfigImpl

#endif
