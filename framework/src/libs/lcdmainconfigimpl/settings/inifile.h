// An ini file as the settings components see it: what QSettings reads there, and over it the changes that are still to
// be written. QSettings itself never writes: it would do so from its destructor, from event loops, and whenever anyone
// in the process opens the same file; it waits for a lock without end, and takes a write cut short for a good one.
#ifndef LCDMAINCONFIGIMPL_SETTINGS_INIFILE_H
#define LCDMAINCONFIGIMPL_SETTINGS_INIFILE_H

#include "initext.h"

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <sys/stat.h>

#include <QMap>
#include <QString>
#include <QTimer>
#include <QVariant>

namespace LCD::MainConfigImpl {

struct IniWaits {
    std::chrono::milliseconds lock{1000}; // for another process
    std::chrono::milliseconds firstRetry{1000};
    std::chrono::milliseconds lastRetry{30000};
};

/// All operations may be called from any thread. None but `write` and closing waits for another process.
class IniFile {
public:
    /// A larger file is neither read nor written; the largest known one has some thousand bytes.
    static constexpr int MOST_BYTES = 4 * 1024 * 1024;

    static inline IniWaits waits; // shorter in tests alone

    struct Closer {
        void operator()(IniFile* file) const;
    };
    using Pointer = std::unique_ptr<IniFile, Closer>;
    /// A file is one object in the process, whoever opens it and by whatever path. Closing writes what is pending; what
    /// then still cannot be written stays for the one who opens the file next.
    static Pointer open(const QString& path);

    ~IniFile();
    IniFile(const IniFile&) = delete;
    IniFile& operator=(const IniFile&) = delete;

    /// Takes notice of what others have written. A file that is gone has no entries; one that cannot be read, with a
    /// warning, those that were read last.
    void refresh();
    /// Whether the file was read at least once.
    [[nodiscard]] bool isKnown() const;
    /// No value for an absent entry, but `unknown` while the file was never read.
    [[nodiscard]] QVariant value(const QString& key, const QVariant& unknown = {}) const;
    [[nodiscard]] bool contains(const QString& key) const;
    [[nodiscard]] IniEntries entries() const;

    void setValue(const QString& key, const QVariant& value);
    /// Removes the entry and the whole group of this name; an empty name means all entries.
    void remove(const QString& group);
    /// Writes what is pending, and waits for another process up to a second. What cannot be written stays pending, with
    /// a warning, and is tried again by the next call of this, by closing, and from time to time in the event loop of
    /// the application.
    void write();

private:
    struct Change {
        std::optional<QVariant> value; // nothing: the entry goes
        quint64 number = 0;
    };

    explicit IniFile(const QString& path);
    void close();
    bool replaceStored(const QByteArray& text, const struct stat& status);
    bool complain(const QString& reason);
    [[nodiscard]] bool isPending() const;
    [[nodiscard]] IniEntries entriesUnlocked() const;
    bool refreshUnlocked();
    QString attempt(std::chrono::milliseconds patience);
    [[nodiscard]] QString keepAside() const;
    void tryAgainLater();
    static void tryAgain(const QString& path);

    /// It lives in the application's thread, so whoever else drops it leaves its deletion to that thread.
    struct TimerEnd {
        void operator()(QTimer* timer) const;
    };

    const QString _path;

    mutable std::mutex _mutex; // never held over a write or a wait; guards what follows
    std::unique_ptr<const QSettings> _stored;
    std::optional<struct stat> _read; // what was read last
    QString _unreadable;              // why it cannot be read, as the log has it
    bool _isDamaged = false;
    QMap<QString, Change> _pending;
    quint64 _changes = 0;

    std::mutex _writing; // one writer at a time; guards what follows
    QString _unwritable; // why it cannot be written, as the log has it
    std::chrono::milliseconds _pause = waits.firstRetry;
    std::unique_ptr<QTimer, TimerEnd> _retry;
};

} // namespace LCD::MainConfigImpl

#endif
