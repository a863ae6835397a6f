// The program as a person starts it: what it tells of a configuration, how it names problems and their files, its exit
// status, and that it leaves the configuration alone.
#include "support.h"

#include <QJsonDocument>
#include <QProcess>

#include <fcntl.h>
#include <tuple>
#include <unistd.h>

namespace {

/// Paths in the configuration root, and what is written there; a path without a text is removed.
using Files = QVector<QPair<QString, QString>>;

/// The example configuration, in which nothing is wrong, but for some files.
class Root : public Folder {
public:
    explicit Root(const Files& files = {})
    {
        QProcess::execute("cp", {"-r", EXAMPLES_PATH "/halcyon/.", path()});
        for (const auto& [name, text] : files) {
            if (!text.isEmpty())
                write(name, text);
            else if (!QFile::remove(path(name)) && !QDir(path(name)).removeRecursively())
                qFatal("the example has no %s", qPrintable(name));
        }
    }

    /// Every file and folder with the time of its last change.
    [[nodiscard]] QByteArray listing() const
    {
        QProcess find;
        find.start("find", {path(), "-printf", "%p %T@\n"});
        find.waitForFinished();
        return find.readAllStandardOutput();
    }
};

/// A file of the example with one text in it changed.
QPair<QString, QString> edited(const QString& name, const QString& from, const QString& to)
{
    QFile file(EXAMPLES_PATH "/halcyon/" + name);
    QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    if (text.count(from) != 1) qFatal("%s has not one %s", qPrintable(name), qPrintable(from));
    return {name, text.replace(from, to)};
}

struct Result {
    int status = -1; ///< -1 also where the run left a mark in the root.
    QString out;
    QString complaints;
};

/// Runs the program; "ROOT" among the words is the configuration.
Result run(const QString& words, const Root& root, const QString& outputFile = {}, const QByteArray& noColour = {})
{
    qputenv("TERM", "xterm");
    qputenv("NO_COLOR", noColour);
    const QByteArray before = root.listing();
    QProcess process;
    process.setStandardOutputFile(outputFile);
    process.start(LCDHOST_PATH, words.split(' ', Qt::SkipEmptyParts).replaceInStrings("ROOT", root.path()));
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || root.listing() != before)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class TestHost : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void namesTheFileOfEachProblem_data();
    void namesTheFileOfEachProblem();
    void coloursOnlyATerminal();
};

void TestHost::answers_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");

    const std::tuple<const char*, const char*, int, const char*> rows[] = {
        // clang-format off
        {"help tells the layout", "--help", 0, "lockarea/      lockareaconfig.xml\n"},
        {"version", "--version", 0, "lcdhost 1."},
        {"load: card names of a slot", "load ROOT", 0,
         "     7  OUT        output         301  4x HDMI 2.0 output card\n"
         "                                  302  not in catalogue\n     8"},
        {"load: a card without a file", "load ROOT", 0, "Cards                  10  no file for 302\n"},
        {"load: nothing wrong", "load ROOT", 0, "\nNo problems\n"},
        {"load: language", "load ROOT --language zh_CN", 0, "100  主控卡\n"},
        {"cards: wide characters", "cards ROOT", 0,
         "  Position  Type  Type name     Interface  Capacity mode  Work mode  Groups\n"
         "         1     5  3G-SDI接口            1              0          0  1\n"},
        {"resolutions: less the disabled ones", "resolutions ROOT --card 601 --position 1", 0,
         "Resolutions (3)\n  Width  Height  Interlaced\n   1280     720           0\n   1920    1080           0\n"
         "   1920    1080           1\n"},
        {"resolutions: scaled default", "resolutions ROOT --card 601 --position 1", 0, "   1920    1080            60\n"},
        {"resolutions: scaled rates", "resolutions ROOT --card 601 --position 1", 0, "\n  29.97    2997\n"},
        {"resolutions: a mask that hits nothing", "resolutions ROOT --card 601 --position 1 --interface 0x20", 0,
         "Resolutions (0)\n  none\n"},
        {"resolutions: no such connector", "resolutions ROOT --card 601 --position 6", 1, "No card 601"},
        {"JSON: a list", "resolutions ROOT --card 601 --position 1 --json", 0,
         "[\n        {\n            \"height\": 720,\n            \"interlaced\": 0,\n            \"width\": 1280\n"},
        {"JSON: numbers as stored, with their scale", "resolutions ROOT --card 601 --position 1 --json", 0,
         "\"coefficient\": 0.01,\n        \"height\": 1080,\n        \"refreshRate\": 6000,\n        \"width\": 1920\n"},
        {"JSON: not there", "resolutions ROOT --card 601 --position 1 --interface 0x20 --json", 0, "\"timing\": null\n"},
        {"menu: a last branch", "menu ROOT", 0,
         "     `- maintenance               3     1       0       0\n"
         "        |- self_test              0     3       0       0\n"
         "        `- factory_reset          1     3       0       0\n"},
        {"screens: a cell, a gap and a cell outside", "screens ROOT", 0,
         "    | slot 11, conn 1     |                     |\n    | 1920x1080 at 0,0    |                     |\n"
         "    +---------------------+---------------------+\n"
         "    Not in the grid:\n      row 1, column 1: slot 11, conn 2, 1920x1080 at 1920,0\n"},
        {"settings", "settings ROOT", 0, "  HTTP port                              19998\n"},
        {"no command", "", 2, "no command"},
        {"unknown command", "lod ROOT", 2, "unknown command 'lod'"},
        {"no root", "load", 2, "'load' takes one ROOT"},
        {"two roots", "load ROOT ROOT", 2, "'load' takes one ROOT"},
        {"root is a file", "load ROOT/menu/menuconfig.xml", 2, "menuconfig.xml is no folder"},
        {"root without catalogues", "load ROOT/menu", 2, "menu is no configuration root"},
        {"unknown option", "load ROOT --colour", 2, "Unknown option 'colour'"},
        {"option of another command", "menu ROOT --json", 2, "'menu' takes no --json"},
        {"option missing", "resolutions ROOT --card 7", 2, "--position is needed"},
        {"no number", "resolutions ROOT --card x --position 4", 2, "--card takes a number, not 'x'"},
        {"unknown language", "load ROOT --language de", 2, "--language takes en or zh_CN"},
        {"no plug-in", "load ROOT --plugin ROOT/settings/lcdsetting.ini", 2, "lcdsetting.ini"},
        // clang-format on
    };
    for (const auto& [rule, words, status, text] : rows) QTest::newRow(rule) << words << status << text;
}

void TestHost::answers()
{
    QFETCH(QString, words);
    QFETCH(QString, text);
    const Result result = run(words, Root({{"subcards/outputs/302.xml", {}},
                                           edited("devices/halcyon16/screen_multiview.xml", "Row=\"0\" Column=\"1\"",
                                                  "Row=\"1\" Column=\"1\"")}));
    QTEST(result.status, "status");
    const QString page = result.status == 0 ? result.out : result.complaints;
    QVERIFY2(page.contains(text) && !page.contains('\033'), qPrintable(page));
    QCOMPARE(result.out + result.complaints, page);
    QCOMPARE(page.endsWith("\nTry 'lcdhost --help'.\n"), result.status == 2);
    QCOMPARE(!QJsonDocument::fromJson(page.toUtf8()).isNull(), words.contains("--json") && result.status == 0);
}

void TestHost::namesTheFileOfEachProblem_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<Files>("files");
    QTest::addColumn<QStringList>("problems");

    const QString noDevice = "connectors: device is empty";
    const QString unfinished = "Parse error at line 1, column 6: unexpected end of file";
    QTest::newRow("two catalogues")
        << "load ROOT" << Files{{"devices/halcyon16/slot.xml", "<DCS>"}, {"lockarea/lockareaconfig.xml", "<DCS/>"}}
        << QStringList{"devices/halcyon16/slot.xml: " + unfinished, noDevice,
                       "lockarea/lockareaconfig.xml: This file is not a valid configuration file."};
    QTest::newRow("a loader that stops at the first bad file")
        << "cards ROOT" << Files{{"subcards/201.xml", "<LCD/>"}, {"subcards/inputs/202.xml", "<DCS>"}}
        << QStringList{"subcards/201.xml: The file is not a valid configuration file for device.",
                       "subcards/inputs/202.xml: " + unfinished, noDevice};
    QTest::newRow("an error that hides the one before")
        << "cards ROOT"
        << Files{{"subcards/201.xml", "<DCS><Subcard/></DCS>"},
                 {"subcards/inputs/202.xml", "<DCS><Subcards><S/></Subcards></DCS>"}}
        << QStringList{"subcards/201.xml: Invalid [Subcards] node.", "subcards/inputs/202.xml: Invalid [Name] node."};
    QTest::newRow("logged and told once, met twice")
        << "cards ROOT"
        << Files{edited("connectors/6.xml", "</PresetTiming>", "<Interface/><Interface/></PresetTiming>")}
        << QStringList{"connectors/6.xml: Invalid [Interlaced] node. (2 times)"};
    QTest::newRow("a text that names the folder read")
        << "load ROOT" << Files{{"keycheck/keyboard.xml/inside", "a folder"}}
        << QStringList{"keycheck/keyboard.xml: Fail to open file [keycheck]!"};
    QTest::newRow("a file that is not there") << "menu ROOT" << Files{{"menu/menuconfig.xml", {}}}
                                              << QStringList{"menu: open menu function config file failed!"};
    QTest::newRow("no folder") << "load ROOT" << Files{{"lockarea", {}}} << QStringList{"lockarea: not there"};
    QTest::newRow("no device") << "cards ROOT" << Files{{"devices/halcyon16", {}}}
                               << QStringList{"devices: holds no device folder", "subcards: device is empty", noDevice};
}

void TestHost::namesTheFileOfEachProblem()
{
    QFETCH(QString, words);
    QFETCH(Files, files);
    const Root root(files);
    const Result result = run(words, root);
    QCOMPARE(result.status, 1);
    QString page = words.startsWith("load") ? result.out : result.complaints;
    page.remove(0, page.indexOf("\nProblems (")).remove(root.path() + '/').replace("\n    ", ": ");
    QTEST(QStringList(page.trimmed().split("\n  ").mid(1)), "problems");
}

void TestHost::coloursOnlyATerminal()
{
    for (const char* noColour : {"", "1"}) {
        const int pty = posix_openpt(O_RDWR | O_NOCTTY);
        QVERIFY(pty >= 0 && grantpt(pty) == 0 && unlockpt(pty) == 0);
        // Held open, so that what the program wrote outlives it.
        const int held = open(ptsname(pty), O_RDWR | O_NOCTTY);
        QCOMPARE(run("menu ROOT", Root(), ptsname(pty), noColour).status, 0);
        // What comes first is enough: the page begins with a heading.
        char shown[4097] = {};
        QVERIFY(read(pty, shown, sizeof shown - 1) > 0 && QString(shown).contains("Menu"));
        QCOMPARE(QString(shown).contains('\033'), *noColour == '\0');
        close(held);
        close(pty);
    }
}

QTEST_GUILESS_MAIN(TestHost)
#include "test_host.moc"
