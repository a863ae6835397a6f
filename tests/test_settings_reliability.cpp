// What must not be lost: by threads and components on one file, by a kill amid writes, by a storage that takes nothing
// more, by whatever else keeps a file from being read or written.
#include "settings/settingsstore.h"
#include "settings_support.h"

#include <csignal>
#include <functional>
#include <future>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include <QLockFile>
#include <QSysInfo>

using F = LCD::MainConfigImpl::LcdConfig;
using U = LCD::MainConfigImpl::LcdLanguageConfig;
using LCD::MainConfigImpl::IniEntries;
using LCD::MainConfigImpl::IniFile;
using LCD::MainConfigImpl::SettingsStore;
using namespace std::chrono_literals;

using StoreWork = std::function<void(SettingsStore&, const QString&)>;
using FileWork = std::function<void(const QString&)>;
Q_DECLARE_METATYPE(StoreWork)
Q_DECLARE_METATYPE(FileWork)

namespace {

/// Large, so that a write takes its time.
constexpr int FILLER = 400000;

/// The user's file with the value `n` for the first button.
QString generation(int n, int filler = FILLER)
{
    return QStringLiteral("[FnSetting]\nFnValue0=%1\n\n[LanguageSetting]\nLanguageValue=%2\n\n[TBar]\nTolerance=7\n")
        .arg(n)
        .arg(QString(filler, 'x'));
}

/// What a second process of this program does. As nobody, since the superuser may read and write everywhere; 77: that
/// cannot be shown here.
int child(const QByteArray& task, const QString& file)
{
    if (task == "as nobody" && geteuid() == 0 && setuid(65534) != 0) return 77;
    if (task == "as nobody" && access(qPrintable(file), R_OK) == 0 && access(qPrintable(file + "/.."), W_OK) == 0)
        return 77;
    U config(file);
    if (!config.readConfig()) return 1;
    if (task == "as nobody") {
        config.setFnSettingValue(0, 5);
        return config.getTBarTolerance() + config.getKnobTimeOut() + config.getFnSettingValue(0);
    }
    for (int n = config.getFnSettingValue(0) + 1;; ++n) {
        config.setFnSettingValue(0, n);
        if (write(STDOUT_FILENO, ".", 1) != 1) return 1;
    }
}

void start(QProcess& process, const char* task, const QString& file)
{
    process.start(QCoreApplication::applicationFilePath(), {"--child", task, file});
}

/// Runs the work in eight threads, each with its number.
template <class Work> void inEightThreads(const Work& work)
{
    std::vector<std::thread> threads;
    for (int number = 0; number < 8; ++number)
        threads.emplace_back([&, number] {
            for (int n = 1; n <= 12; ++n) work(number, n);
        });
    for (std::thread& thread : threads) thread.join();
}

void expectWarning(const QString& pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^The settings in .* " + pattern));
}

} // namespace

class TestSettingsReliability : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesTheTextOfQSettings()
    {
        IniEntries entries{{"plain", "x"},
                           {"general/x", 1},
                           {"A b/c/d", QString(" ")},
                           {QString::fromUtf8("Größe/€=;%"), ""},
                           {"AB/x", QStringList{"a", "", "b,c"}},
                           {"A/none", QStringList()},
                           {"A/one", QStringList("@x")},
                           {"A/bytes", QByteArray("\0\xff a", 4)},
                           {"A/invalid", QVariant()},
                           {"A/list", QVariantList{1, "two", QByteArray("three")}},
                           {"A/time", QDateTime({2020, 2, 29}, {1, 2})},
                           {"A/char", QVariant(QChar('x'))}};
        for (char16_t letter = 0; letter < 300; ++letter) {
            const QString text = QString("%1a%1%1 b9%1").arg(QChar(letter));
            entries[QString("V/%1").arg(int(letter))] = text;
            if (letter != '/') entries['K' + text + "/k" + text] = letter;
        }
        const Folder folder;
        QSettings settings(folder.path("x.ini"), QSettings::IniFormat);
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) settings.setValue(entry.key(), *entry);
        settings.sync();
        QFile file(folder.path("x.ini"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QCOMPARE(LCD::MainConfigImpl::iniText(entries), text);
    }

    void losesNoValueAmongThreads()
    {
        static constexpr std::pair<void (U::*)(int), int (U::*)()> own[8] = {
            {&U::setReturnToHomeTime, &U::getReturnToHomeTime},
            {&U::setUserModeSettingValue, &U::getUserModeSettingValue},
            {&U::setStartRecordStreamTriggerType, &U::getStartRecordStreamTriggerType},
            {&U::setSourceSortType, &U::getSourceSortType},
            {&U::setJumpFlag, &U::getJumpFlag},
            {&U::setScreenLight, &U::getScreenLight},
            {&U::setKnobTimeOut, &U::getKnobTimeOut},
            {&U::setBackExitMVRTimeOut, &U::getBackExitMVRTimeOut}};
        User panel(QString{});
        QVERIFY(QFile::link(panel.file(), panel.folder.path("link.ini")));
        U second(panel.folder.path("link.ini"));
        QVERIFY(second.readConfig());
        const LogLines log;
        std::atomic<int> wrong = 0;
        inEightThreads([&](int thread, int n) {
            U& config = thread % 2 == 0 ? *panel : second;
            const auto [set, get] = own[size_t(thread)];
            config.setFnSettingTargetValue(thread, n);
            config.setSourceCustomSort(QStringLiteral("%1_0").arg(thread), n);
            config.setFnBtnMaxCount(thread);
            config.removeGroups({"Scratch"});
            if (n == thread + 1) config.setTBarCalibration({n, n});
            (config.*set)(n);
            if ((config.*get)() != n || config.getFnSettingTargetValue(thread) != n) ++wrong;
            if (config.getRTSPSettingPara().size() != 7 || config.getSourceCustomSort().empty()) ++wrong;
        });
        QCOMPARE(wrong, 0);
        QCOMPARE(log.taken(), QStringList());
        // All of it is in the file, with the components still alive.
        User copy(panel.text());
        for (int thread = 0; thread < 8; ++thread) {
            const auto get = own[thread].second;
            QCOMPARE(((*copy).*get)(), 12);
            QCOMPARE(copy->getFnSettingTargetValue(thread), 12);
        }
        QCOMPARE(int(copy->getSourceCustomSort().size()), 8);
    }

    /// With a change held open, each operation waits, but for those that are told to take no lock.
    void waitsForAChange_data()
    {
        QTest::addColumn<StoreWork>("work");
        QTest::addColumn<bool>("waits");
        const auto nothing = [](IniFile&) { return 0; };
        // clang-format off
        const std::tuple<const char*, bool, StoreWork> rows[] = {
            {"open",            true,  [](SettingsStore& store, const QString& file) { store.open(file); }},
            {"number",          true,  [](SettingsStore& store, const QString&) { Q_UNUSED(store.number("A/x", 0)) }},
            {"text",            true,  [](SettingsStore& store, const QString&) { Q_UNUSED(store.text("A/x", "")) }},
            {"textUnlocked",    false, [](SettingsStore& store, const QString&) { Q_UNUSED(store.textUnlocked("A/x", "")) }},
            {"seeded",          true,  [](SettingsStore& store, const QString&) { Q_UNUSED(store.seeded({{"A/x", "1"}})) }},
            {"set",             true,  [](SettingsStore& store, const QString&) { store.set("A/x", 1); }},
            {"read",            true,  [=](SettingsStore& store, const QString&) { store.read(0, nothing); }},
            {"readOrWarn",      true,  [=](SettingsStore& store, const QString&) { store.readOrWarn(0, nothing); }},
            {"change",          true,  [=](SettingsStore& store, const QString&) { store.change(nothing); }},
            {"changeOrWarn",    true,  [=](SettingsStore& store, const QString&) { store.changeOrWarn(nothing); }},
            {"changeUnlocked",  false, [=](SettingsStore& store, const QString&) { store.changeUnlocked(nothing); }}};
        // clang-format on
        for (const auto& [name, waits, work] : rows) QTest::newRow(name) << work << waits;
    }

    void waitsForAChange()
    {
        QFETCH(StoreWork, work);
        QFETCH(bool, waits);
        const Folder folder;
        const QString file = folder.write("lcdsetting.ini", "[A]\nx=1\n");
        SettingsStore store;
        store.open(file);
        std::promise<void> begun;
        std::promise<void> release;
        std::thread holder([&] {
            store.change([&](IniFile&) {
                begun.set_value();
                release.get_future().wait();
            });
        });
        begun.get_future().wait();
        auto done = std::async(std::launch::async, [&] { work(store, file); });
        const bool isDone = done.wait_for(waits ? 50ms : 5000ms) == std::future_status::ready;
        release.set_value();
        holder.join();
        QCOMPARE(isDone, !waits);
        done.get();
    }

    /// Where the write belongs to the change, a getter waits for it, but no longer than another process may hold it up.
    void holdsTheLockOverAWrite()
    {
        const Folder folder;
        SettingsStore store;
        store.open(folder.write("lcdsetting.ini", ""));
        QVERIFY(QDir().mkdir(folder.path("lcdsetting.ini.lock")));
        expectWarning("cannot be written now: ");
        std::promise<QElapsedTimer> begun;
        std::thread setter([&] {
            store.changeAndWrite([&](IniFile& file) {
                QElapsedTimer time;
                time.start();
                file.setValue("A/x", 7);
                begun.set_value(time);
            });
        });
        const QElapsedTimer time = begun.get_future().get();
        QCOMPARE(store.number("A/x", 0), 7);
        QVERIFY(time.elapsed() >= 300);
        setter.join();
    }

    /// A change that comes amid a write is not taken for written.
    void closesWithWhatWasSetLast()
    {
        const Folder folder;
        const QString path = folder.write("lcdsetting.ini", "");
        for (int round = 1; round <= 50; ++round) {
            auto file = IniFile::open(path);
            std::atomic<bool> writing = true;
            std::thread other([&] {
                while (writing) file->write();
            });
            for (int n = 0; n < 4; ++n) file->setValue("Section/entry", round + n);
            writing = false;
            other.join();
            file.reset();
            QCOMPARE(QSettings(path, QSettings::IniFormat).value("Section/entry").toInt(), round + 3);
        }
    }

    void createsOneFileForAWrite()
    {
        User panel("[A]\nx=1\n");
        const int events = inotify_init1(IN_NONBLOCK);
        inotify_add_watch(events, qPrintable(panel.folder.path()), IN_CREATE);
        const auto created = [&] {
            alignas(inotify_event) char buffer[4096];
            const ssize_t size = read(events, buffer, sizeof buffer);
            const auto* first = reinterpret_cast<const inotify_event*>(buffer);
            // The name is the same for all of them.
            return size <= 0 ? 0 : int(size / ssize_t(sizeof *first + first->len));
        };
        panel->setLanguage("en");
        QCOMPARE(created(), 1);
        panel->setTBarCalibration({1, 2});
        QCOMPARE(created(), 1);
        panel->getRTSPSettingPara();
        QCOMPARE(created(), 1);
        panel->getSourceCustomSort();
        panel->getRTSPSettingPara();
        panel->removeGroups({"none"});
        panel.close();
        QCOMPARE(created(), 0);
        ::close(events);
    }

    void survivesKills()
    {
        User panel(generation(0));
        const QString lock = panel.file() + ".lock";
        int amidAWrite = 0;
        int last = 0;
        for (int kill = 0; kill < 15; ++kill) {
            QProcess writer;
            start(writer, "write on and on", panel.file());
            // A lock that an earlier kill has left must not hold up the next process.
            QVERIFY(writer.waitForReadyRead(20000));
            usleep(useconds_t(kill * 250));
            ::kill(pid_t(writer.processId()), SIGKILL);
            QVERIFY(writer.waitForFinished());
            const QString text = panel.text();
            const int n = text.section('\n', 1, 1).section('=', 1).toInt();
            QVERIFY2(n > last && text == generation(n), qPrintable(text.left(30) + writer.readAllStandardError()));
            last = n;
            amidAWrite += QFile::exists(lock);
        }
        QVERIFY2(amidAWrite > 1, qPrintable(QString::number(amidAWrite)));
        panel.close();
        QVERIFY(U(panel.file()).readConfig());
        QCOMPARE(QDir(panel.folder.path()).entryList(QDir::Files), QStringList("lcdsetting.ini"));
    }

    void keepsWhatAFullStorageHolds_data()
    {
        QTest::addColumn<int>("room");
        QTest::addColumn<int>("filler");
        QTest::newRow("none") << 0 << 100;
        QTest::newRow("for the head of a small file") << 100 << 100;
        QTest::newRow("for the head of a large file") << 50000 << FILLER;
        QTest::newRow("for all but one byte") << int(generation(3, 100).size()) - 1 << 100;
    }

    void keepsWhatAFullStorageHolds()
    {
        QFETCH(int, room);
        QFETCH(int, filler);
        const QString stored = generation(3, filler);
        User panel(stored);
        signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const auto setWhileFull = [&](int value) {
            const rlimit full{rlim_t(room), before.rlim_max};
            setrlimit(RLIMIT_FSIZE, &full);
            panel->setFnSettingValue(0, value);
            QCOMPARE(panel->getFnSettingValue(0), value);
        };
        // The value waits for room, and then gets into the file by the event loop or by the next setter.
        expectWarning("cannot be written now: the new file cannot be written: File too large");
        setWhileFull(5);
        QCOMPARE(panel.text(), stored);
        setrlimit(RLIMIT_FSIZE, &before);
        if (room == 0) panel->removeGroups({"none"});
        const QString whole = QString(stored).replace("FnValue0=3", "FnValue0=5");
        if (room == 0) QCOMPARE(panel.text(), whole);
        QTRY_COMPARE(panel.text(), whole);
        // What the close could not write waits for the next one who opens the file.
        expectWarning("cannot be written now");
        setWhileFull(6);
        panel.close();
        setrlimit(RLIMIT_FSIZE, &before);
        QVERIFY(panel.text().contains("FnValue0=5\n"));
        QVERIFY(U(panel.file()).readConfig());
        QVERIFY(panel.text().contains("FnValue0=6\n"));
    }

    void waitsForWhatStandsInTheWay_data()
    {
        QTest::addColumn<FileWork>("obstruct");
        QTest::addColumn<FileWork>("clear");
        static std::unique_ptr<QLockFile> held;
        QTest::newRow("a lock that lives") << FileWork([](const QString& file) {
            held = std::make_unique<QLockFile>(file + ".lock");
            QVERIFY(held->tryLock(0));
        }) << FileWork([](const QString&) { held.reset(); });
        QTest::newRow("a living process that does not hold the file of its lock") << FileWork([](const QString& file) {
            QLockFile lock(file + ".lock");
            QVERIFY(lock.tryLock(0));
            QVERIFY(QFile::copy(file + ".lock", file + ".copy"));
            lock.unlock();
            QVERIFY(QFile::rename(file + ".copy", file + ".lock"));
        }) << FileWork([](const QString& file) { QFile::remove(file + ".lock"); });
        QTest::newRow("a folder named like the lock")
            << FileWork([](const QString& file) { QVERIFY(QDir().mkdir(file + ".lock")); })
            << FileWork([](const QString& file) { QDir().rmdir(file + ".lock"); });
        static const auto renameFolder = [](const QString& file, const char* from, const char* to) {
            const QString folder = QFileInfo(file).path();
            QVERIFY(QDir().rename(folder + from, folder + to));
        };
        QTest::newRow("no folder") << FileWork([](const QString& file) { renameFolder(file, "", "-gone"); })
                                   << FileWork([](const QString& file) { renameFolder(file, "-gone", ""); });
    }

    void waitsForWhatStandsInTheWay()
    {
        QFETCH(FileWork, obstruct);
        QFETCH(FileWork, clear);
        const Folder folder;
        const QString file = folder.write("ini/lcdsetting.ini", "[JumpFlag]\nJump=1\n");
        U panel(file);
        QVERIFY(panel.readConfig());
        obstruct(file);
        expectWarning("cannot be written now: ");
        std::thread setter([&] { panel.setJumpFlag(2); });
        QElapsedTimer answer;
        for (int n = 0; n < 15; ++n) {
            answer.start();
            panel.getLanguage();
            QVERIFY2(answer.elapsed() < 200, qPrintable(QString::number(answer.elapsed())));
            usleep(10000);
        }
        setter.join();
        answer.start();
        panel.setJumpFlag(3);
        QVERIFY2(answer.elapsed() < 200, qPrintable(QString::number(answer.elapsed())));
        QCOMPARE(panel.getJumpFlag(), 3);
        clear(file);
        QTRY_VERIFY(QSettings(file, QSettings::IniFormat).value("JumpFlag/Jump") == "3");
    }

    /// A timer that goes off as its file is closed, here or in another thread, finds nothing and leaves nothing.
    void closesAmidRetries()
    {
        const Folder folder;
        const QString file = folder.write("lcdsetting.ini", "");
        QVERIFY(QDir().mkdir(file + ".lock"));
        IniFile::waits = {0ms, 1ms, 1ms};
        expectWarning("cannot be written now: ");
        for (int round = 0; round < 40; ++round) {
            auto config = std::make_unique<U>(file);
            QVERIFY(config->readConfig());
            std::thread other([&] {
                config->setJumpFlag(round);
                if (round % 2 == 0) config.reset();
            });
            QTest::qWait(3);
            other.join();
        }
        QVERIFY(QDir().rmdir(file + ".lock"));
        // Closed, it is written by no timer, but by the next one who opens it.
        QTest::qWait(20);
        QCOMPARE(QFileInfo(file).size(), 0);
        QVERIFY(U(file).readConfig());
        QCOMPARE(QSettings(file, QSettings::IniFormat).value("JumpFlag/Jump").toInt(), 39);
    }

    void leavesWhatItMayNotTouch_data()
    {
        QTest::addColumn<int>("fileMode");
        QTest::addColumn<int>("folderMode");
        QTest::addColumn<int>("answer");
        // The seed, the number without a store, and the value that waits.
        QTest::newRow("unreadable") << 0 << 0777 << 100 - 1 + 5;
        QTest::newRow("read-only file") << 0444 << 0777 << 7 + 0 + 5;
        QTest::newRow("read-only folder") << 0666 << 0555 << 7 + 0 + 5;
    }

    void leavesWhatItMayNotTouch()
    {
        QFETCH(int, fileMode);
        QFETCH(int, folderMode);
        QFETCH(int, answer);
        const User panel(generation(3));
        chmod(qPrintable(panel.folder.path()), mode_t(folderMode));
        chmod(qPrintable(panel.file()), mode_t(fileMode));
        QProcess process;
        start(process, "as nobody", panel.file());
        QVERIFY(process.waitForFinished());
        chmod(qPrintable(panel.folder.path()), 0755);
        chmod(qPrintable(panel.file()), 0644);
        if (process.exitCode() == 77) QSKIP("no user here who can be stopped");
        QCOMPARE(process.exitCode(), answer);
        QVERIFY(process.readAllStandardError().contains("cannot be written now: "));
        QCOMPARE(panel.text(), generation(3));
    }

    void refusesWhatIsNoSettingsFile()
    {
        const Folder folder;
        const QString pipe = folder.path("lcdsetting.ini");
        QCOMPARE(mkfifo(qPrintable(pipe), 0666), 0);
        QTest::ignoreMessage(QtWarningMsg, qPrintable("LcdLanguageConfig: create ini failed: " + pipe));
        QVERIFY(!U(pipe).readConfig());

        Factory large;
        large.folder.write("lcdsetting.ini", "[A]\nx=" + QString(IniFile::MOST_BYTES, 'x'));
        expectWarning("cannot be read: it is larger than 4 MiB");
        QVERIFY(large->readConfig(large.folder.path()));
        QCOMPARE(large->getHttpPort(), 19999);
        expectWarning("cannot be written now: the old file cannot be read: it is larger than 4 MiB");
        large->setLightColorValue(1);
        QCOMPARE(QFileInfo(large.file()).size(), IniFile::MOST_BYTES + 6);
        large.close();
    }

    void keepsADamagedFileAside()
    {
        const QString damaged = "[JumpFlag]\nJump=4\n[A\nno ini\n";
        expectWarning("are damaged");
        User panel(damaged);
        QCOMPARE(panel->getJumpFlag(), 4);
        panel->setJumpFlag(5);
        panel->setJumpFlag(6);
        QVERIFY(panel.text().startsWith("[JumpFlag]\nJump=6\n"));
        QFile aside(panel.file() + ".damaged");
        QVERIFY(aside.open(QIODevice::ReadOnly));
        QCOMPARE(QString(aside.readAll()), damaged);
    }

    void keepsLinkOwnerAndMode()
    {
        const Folder folder;
        const QString file = folder.write("there/real.ini", "");
        const QString link = folder.path("lcdsetting.ini");
        chmod(qPrintable(file), 0640);
        const bool isRoot = chown(qPrintable(file), 1234, 4321) == 0;
        QVERIFY(QFile::link(file, link));
        U panel(link);
        QVERIFY(panel.readConfig());
        panel.setJumpFlag(1);
        struct stat status {};
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(stat(qPrintable(file), &status), 0);
        QCOMPARE(status.st_mode & 07777U, 0640U);
        QVERIFY(status.st_size > 0 && (!isRoot || (status.st_uid == 1234 && status.st_gid == 4321)));
    }

    void endsWithAnyNumberOfButtons()
    {
        Factory panel(QString{});
        panel->setFnBtnMaxCount(2147483647);
        QTest::ignoreMessage(QtWarningMsg, "Only the first 256 of 2147483647 function buttons are set");
        panel->setALLFnSettingValue(1);
        QCOMPARE(panel->getFnSettingValue(255), 1);
    }

    void init() { IniFile::waits = {300ms, 20ms, 40ms}; }

private:
    StandInSync _sync;
};

int main(int count, char** arguments)
{
    keepFilesInMemory();
    const QCoreApplication application(count, arguments);
    if (count == 4 && qstrcmp(arguments[1], "--child") == 0)
        return child(arguments[2], QString::fromLocal8Bit(arguments[3]));
    TestSettingsReliability test;
    return QTest::qExec(&test, count, arguments);
}
#include "test_settings_reliability.moc"
