// What must not be lost: by eight threads on one store, by a kill amid writes, by a storage that takes nothing more.
#include "settings/settingsstore.h"
#include "settings_support.h"

#include <csignal>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

using F = LCD::MainConfigImpl::LcdConfig;
using U = LCD::MainConfigImpl::LcdLanguageConfig;

namespace {

/// Large, so that a write takes its time.
constexpr int FILLER = 400000;

/// The user's file as the writing process leaves it for the number `n`.
QString generation(int n, int filler = FILLER)
{
    return QStringLiteral("[FnSetting]\nFnValue0=%1\n\n[LanguageSetting]\nLanguageValue=%2-%1\n\n"
                          "[TBar]\nCalibrationMax=%1\nCalibrationMin=%1\n")
        .arg(n)
        .arg(QString(filler, 'x'));
}

/// What a second process of this program does.
int child(const QByteArray& task, const QString& file)
{
    // The superuser may write everywhere.
    if (task == "write as nobody" && geteuid() == 0 && setuid(65534) != 0) return 77;
    if (task == "write as nobody" && access(qPrintable(QFileInfo(file).path()), W_OK) == 0) return 77;
    U config(file);
    if (!config.readConfig()) return 1;
    if (task == "write as nobody") config.setFnSettingValue(0, 5);
    for (int n = config.getFnSettingValue(0) + 1; task == "write on and on"; ++n) {
        config.setTBarCalibration({n, n});
        config.setLanguage(QString(FILLER, 'x') + QString::number(-n));
        config.setFnSettingValue(0, n);
        if (write(STDOUT_FILENO, ".", 1) != 1) return 1;
    }
    return config.getFnSettingValue(0);
}

void start(QProcess& process, const char* task, const QString& file)
{
    process.start(QCoreApplication::applicationFilePath(), {"--child", task, file});
}

/// Runs the work in eight threads, each with its number, while this thread turns its event loop as a host does.
template <class Work> void inEightThreads(const Work& work)
{
    std::atomic<int> running = 8;
    std::vector<std::thread> threads;
    for (int number = 0; number < 8; ++number)
        threads.emplace_back([&, number] {
            for (int n = 1; n <= 60; ++n) work(number, n);
            --running;
        });
    while (running > 0) QCoreApplication::processEvents(QEventLoop::AllEvents);
    for (std::thread& thread : threads) thread.join();
    QCoreApplication::processEvents();
}

} // namespace

class TestSettingsReliability : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
        std::atomic<int> wrong = 0;
        inEightThreads([&](int thread, int n) {
            U& config = *panel;
            const auto [set, get] = own[size_t(thread)];
            config.setFnSettingTargetValue(thread, n);
            config.setSourceCustomSort(QStringLiteral("%1_0").arg(thread), n);
            config.setFnBtnMaxCount(thread);
            config.removeGroups({"Scratch"});
            if (n % 8 == thread) config.setTBarCalibration({n, n});
            (config.*set)(n);
            const auto [least, most] = config.getTBarCalibration();
            if ((config.*get)() != n || config.getFnSettingTargetValue(thread) != n) ++wrong;
            if (least != most && least != 160) ++wrong;
            if (config.getRTSPSettingPara().size() != 7 || config.getSourceCustomSort().empty()) ++wrong;
        });
        QCOMPARE(wrong, 0);
        // All of it is in the file, with the component still alive.
        User copy(panel.text());
        for (int thread = 0; thread < 8; ++thread) {
            const auto get = own[thread].second;
            QCOMPARE(((*copy).*get)(), 60);
            QCOMPARE(copy->getFnSettingTargetValue(thread), 60);
        }
        QCOMPARE(int(copy->getSourceCustomSort().size()), 8);
    }

    /// Clearing takes no lock, and so may make QSettings forget that a value is still to be written.
    void closesWithWhatWasSetLast()
    {
        const Folder folder;
        const QString path = folder.write("lcdsetting.ini", "");
        for (int round = 1; round <= 1000; ++round) {
            auto store = std::make_unique<LCD::MainConfigImpl::SettingsStore>();
            store->open(path);
            std::atomic<bool> clearing = true;
            std::thread other([&] {
                while (clearing) store->changeUnlocked([](LCD::MainConfigImpl::IniFile& file) { file.write(); });
            });
            for (int n = 0; n < 4; ++n)
                store->change([&](QSettings& file) { file.setValue("Section/entry", round + n); });
            clearing = false;
            other.join();
            store.reset();
            QCOMPARE(QSettings(path, QSettings::IniFormat).value("Section/entry").toInt(), round + 3);
        }
    }

    void answersWithoutALock()
    {
        Factory panel("[CompanyAddress]\nCompanyAddressDefault=here\n[LcdWidget]\nSwitchBackground=blue\n"
                      "[PgmEditStatusSetting]\n1\\WorkMode=1\n1\\Status=4\nsize=1\n"
                      "[PgmEditStatusCurrent]\n1\\WorkMode=1\n1\\Status=3\nsize=1\n");
        std::atomic<int> wrong = 0;
        inEightThreads([&](int thread, int n) {
            F& config = *panel;
            if (thread == 0) config.readConfig(panel.folder.path());
            if (thread == 1) config.setCurrentPgmEditStatus(1, 3 + n % 2);
            if (thread == 2) config.setCurrentPgmEditDefaultStatus();
            for (int again = 0; again < 50; ++again) {
                const int status = config.getCurrentPgmEditStatus(1);
                if ((status != 3 && status != 4) || config.getPgmEditStatus() != std::map<int, int>{{1, 4}}) ++wrong;
                if (config.getCompanyAddressDefault() != "here" || config.getSwitchBackGround() != "blue") ++wrong;
            }
        });
        QCOMPARE(wrong, 0);
    }

    void survivesKills()
    {
        User panel(generation(0));
        const QString lock = panel.file() + ".lock";
        int amidAWrite = 0;
        int last = 0;
        for (int kill = 0; kill < 200; ++kill) {
            QProcess writer;
            start(writer, "write on and on", panel.file());
            QElapsedTimer waiting;
            waiting.start();
            // A lock that an earlier kill has left must not hold up the next process.
            QVERIFY(writer.waitForReadyRead(20000));
            // QSettings holds the lock while it writes.
            while (!QFile::exists(lock) && waiting.elapsed() < 20000) {
            }
            usleep(useconds_t(kill * 7));
            ::kill(pid_t(writer.processId()), SIGKILL);
            QVERIFY(writer.waitForFinished());
            const QString text = panel.text();
            const int n = text.section('\n', 1, 1).section('=', 1).toInt();
            QVERIFY2(n > last && text == generation(n), qPrintable(text.left(200)));
            last = n;
            amidAWrite += QFile::exists(lock);
            // The file that the write was to end in.
            const QDir folder(panel.folder.path(), "lcdsetting.ini.??????");
            for (const QString& name : folder.entryList(QDir::Files)) QFile::remove(folder.filePath(name));
        }
        QVERIFY2(amidAWrite > 20, qPrintable(QString::number(amidAWrite)));
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
        const auto whileFull = [&](const auto& work) {
            signal(SIGXFSZ, SIG_IGN);
            rlimit before{};
            getrlimit(RLIMIT_FSIZE, &before);
            const rlimit full{rlim_t(room), before.rlim_max};
            setrlimit(RLIMIT_FSIZE, &full);
            work();
            setrlimit(RLIMIT_FSIZE, &before);
            QCOMPARE(panel.text(), stored);
        };
        whileFull([&] {
            panel->setFnSettingValue(0, 5);
            QCoreApplication::processEvents();
        });
        // The value waits for room, and then gets into the file by itself.
        QCOMPARE(panel->getFnSettingValue(0), 5);
        QTRY_COMPARE(panel.text(), QString(stored).replace("FnValue0=3", "FnValue0=5"));
        panel.folder.write("lcdsetting.ini", stored);
        whileFull([&] {
            panel->setFnSettingValue(0, 6);
            panel.close();
        });
    }

    void keepsWhatAReadOnlyFolderHolds()
    {
        User panel(generation(3));
        QFile folder(panel.folder.path());
        folder.setPermissions(QFile::Permissions(0x5555));
        QProcess process;
        start(process, "write as nobody", panel.file());
        QVERIFY(process.waitForFinished());
        folder.setPermissions(QFile::Permissions(0x7755));
        if (process.exitCode() == 77) QSKIP("no user here whom a read-only folder would stop");
        QCOMPARE(process.exitCode(), 5);
        QCOMPARE(panel.text(), generation(3));
    }

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
