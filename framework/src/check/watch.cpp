#include "watch.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QDateTime>
#include <QDirIterator>
#include <QEventLoop>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QMap>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <csignal>
#include <cstdint>

namespace lcdcheck {
namespace {

/// What tells whether a file is another one than before.
struct Stamp {
    qint64 size = 0;
    qint64 written = 0; ///< In milliseconds.
    int rights = 0;

    bool operator==(const Stamp&) const = default;
};

using Snapshot = QMap<QString, Stamp>;

Snapshot take(const QStringList& paths)
{
    Snapshot snapshot;
    const auto add = [&snapshot](const QFileInfo& info) {
        // What comes and goes in a folder is known without its own times, which a lock beside a file changes too.
        const Stamp file{info.size(), info.lastModified().toMSecsSinceEpoch(), int(info.permissions())};
        snapshot.insert(info.filePath(), info.isDir() ? Stamp{0, 0, int(info.permissions())} : file);
    };
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (info.exists()) add(info);
        if (!info.isDir()) continue;
        QDirIterator below(path, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (below.hasNext()) {
            below.next();
            add(below.fileInfo());
        }
    }
    return snapshot;
}

/// The first path that is in one of them alone or has another stamp; empty when they are the same.
QString difference(const Snapshot& before, const Snapshot& now)
{
    for (auto entry = now.begin(); entry != now.end(); ++entry)
        if (before.value(entry.key(), {-1, 0, 0}) != entry.value()) return entry.key();
    for (auto entry = before.begin(); entry != before.end(); ++entry)
        if (!now.contains(entry.key())) return entry.key();
    return {};
}

// A signal may come at any place, so that its handler does nothing but wake up the event loop.
int wakeUp = -1;

void onSignal(int /*signal*/)
{
    const std::uint64_t once = 1;
    [[maybe_unused]] const auto written = write(wakeUp, &once, sizeof once);
}

/// While it lives, the first signal to stop quits the loop. The second has its usual effect, so that a check that takes
/// long can be broken off.
class StopSignals {
public:
    explicit StopSignals(QEventLoop& loop)
        : _notifier(wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK), QSocketNotifier::Read)
    {
        QObject::connect(&_notifier, &QSocketNotifier::activated, &loop, [&loop] { loop.quit(); });
        struct sigaction action = {};
        action.sa_handler = onSignal;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(SIGINT, &action, nullptr);
        sigaction(SIGTERM, &action, nullptr);
    }
    ~StopSignals()
    {
        std::signal(SIGINT, SIG_DFL);
        std::signal(SIGTERM, SIG_DFL);
        _notifier.setEnabled(false);
        close(wakeUp);
    }
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

private:
    QSocketNotifier _notifier;
};

} // namespace

void watch(const QStringList& paths, const std::function<bool(const QString&)>& look)
{
    using namespace std::chrono_literals;
    QEventLoop loop;
    const StopSignals signalsToStop(loop);
    QFileSystemWatcher watcher;
    // Editors write in several steps. The rescans find what the watcher can't tell of: file systems over a network, and
    // files that were replaced.
    QTimer settled;
    settled.setSingleShot(true);
    settled.setInterval(100ms);
    QTimer rescan;
    rescan.setInterval(1s);

    Snapshot known;
    const auto compare = [&] {
        Snapshot now = take(paths);
        const QString path = difference(known, now);
        if (path.isEmpty()) return;
        watcher.addPaths(now.keys());
        known = std::move(now);
        if (!look(path)) loop.quit();
    };
    QObject::connect(&watcher, &QFileSystemWatcher::fileChanged, &settled, [&settled] { settled.start(); });
    QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &settled, [&settled] { settled.start(); });
    QObject::connect(&settled, &QTimer::timeout, &loop, compare);
    QObject::connect(&rescan, &QTimer::timeout, &loop, compare);
    rescan.start();
    QTimer::singleShot(0, &loop, compare);
    loop.exec();
}

} // namespace lcdcheck
