// The ini file under a settings component: one mutex, the open file, and what a getter gives while there is none.
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

/// The number of function buttons, cut with a warning to what any panel has, since each one costs a write and a flush.
int boundedFnButtons(int count);

/// A file that was never readable counts as no store to those who read entries.
class SettingsStore {
public:
    /// A number, and what it is without a store.
    struct Number {
        QString key;
        int noStore;
    };
    /// An entry that a getter writes when it finds it empty.
    struct Seed {
        const char* key;
        const char* text;
    };

    /// A store that was open stays so beside the new one: an operation without a lock may still be using it.
    void open(const QString& path);

    [[nodiscard]] int number(const QString& key, int noStore) const;
    [[nodiscard]] std::vector<int> numbers(std::initializer_list<Number> entries) const;
    [[nodiscard]] QString text(const QString& key, const char* noStore) const;
    [[nodiscard]] QString textUnlocked(const QString& key, const char* noStore) const;
    /// The texts of the entries; an empty one is written with its seed, each with a flush of its own. No store: the
    /// seeds, nothing written.
    [[nodiscard]] QStringList seeded(std::initializer_list<Seed> entries) const;

    /// The value is in the file before the flush.
    void set(const QString& key, const QVariant& value);
    /// The same with the lock held until the value is in the file.
    void setAndWrite(const QString& key, const QVariant& value);

    /// What `use` makes of the open store, under the lock.
    template <class Result, class Use> Result read(const Result& noStore, const Use& use) const
    {
        const std::lock_guard lock(_mutex);
        IniFile* const opened = setting();
        return opened ? use(*opened) : noStore;
    }
    template <class Result, class Use> Result readOrWarn(const Result& noStore, const Use& use) const
    {
        const std::lock_guard lock(_mutex);
        IniFile* const opened = settingOrWarn();
        return opened ? use(*opened) : noStore;
    }

    /// Has `use` change the open store, under the lock, and then writes, without it; to do so without a store is the
    /// caller's error. False: nothing was done.
    template <class Use> bool change(const Use& use)
    {
        std::unique_lock lock(_mutex);
        IniFile* const changed = changedBy(use);
        lock.unlock();
        return written(changed);
    }
    /// The same, but it writes under the lock as well.
    template <class Use> bool changeAndWrite(const Use& use)
    {
        const std::lock_guard lock(_mutex);
        return written(changedBy(use));
    }
    template <class Use> bool changeUnlocked(const Use& use) { return written(changedBy(use)); }
    template <class Use> bool changeOrWarn(const Use& use)
    {
        std::unique_lock lock(_mutex);
        IniFile* const changed = settingOrWarn() ? changedBy(use) : nullptr;
        lock.unlock();
        return written(changed);
    }

private:
    [[nodiscard]] IniFile* setting() const;
    [[nodiscard]] IniFile* settingOrWarn() const;
    template <class Use> [[nodiscard]] IniFile* changedBy(const Use& use)
    {
        IniFile* const opened = setting();
        Q_ASSERT_X(opened, "settings", "a setter was called before a successful readConfig");
        if (opened) use(*opened);
        return opened;
    }
    static bool written(IniFile* file)
    {
        if (file) file->write();
        return file;
    }

    mutable std::mutex _mutex;
    std::atomic<IniFile*> _setting = nullptr;
    std::vector<IniFile::Pointer> _opened;
};

} // namespace LCD::MainConfigImpl

#endif
