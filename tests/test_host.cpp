// The program as a person starts it: what it tells of a configuration, how it names problems and their files, its exit
// status, and that it leaves the configuration alone.
#include "support.h"

#include <QJsonDocument>
#include <QProcess>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <thread>
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

/// The program as somebody whom permissions bind, also where the tests run as the superuser.
class Unprivileged : public QProcess {
    void setupChildProcess() override
    {
        constexpr int NOBODY = 65534;
        if (geteuid() == 0 && (setgid(NOBODY) != 0 || setuid(NOBODY) != 0)) _exit(127);
    }
};

/// Runs a program; "ROOT" among the words is the configuration.
Result run(QProcess&& process, const QString& program, const QStringList& words, const Root& root)
{
    const QByteArray before = root.listing();
    process.start(program, QStringList(words).replaceInStrings("ROOT", root.path()));
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || root.listing() != before)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

Result run(const QString& words, const Root& root)
{
    return run(QProcess(), LCDHOST_PATH, words.split(' ', Qt::SkipEmptyParts), root);
}

/// What the page tells as problems, each with its file or folder before it. They come last but for a line of advice.
QStringList problemsOf(QString page, const Root& root)
{
    page.remove(0, page.indexOf("\nProblems ("));
    page = page.section("\n\nlcdcheck ", 0, 0).remove(root.path() + '/').replace("\n    ", ": ");
    return page.trimmed().split("\n  ").mid(1);
}

/// What the program writes to a terminal of so many columns.
QString shown(const QString& words, unsigned short columns)
{
    const int pty = posix_openpt(O_RDWR | O_NOCTTY);
    if (pty < 0 || grantpt(pty) != 0 || unlockpt(pty) != 0) qFatal("no terminal");
    const winsize size{50, columns, 0, 0};
    ioctl(pty, TIOCSWINSZ, &size);
    // Held open, so that what the program wrote outlives it.
    const int held = open(ptsname(pty), O_RDWR | O_NOCTTY);
    QByteArray page;
    std::thread reader([&page, pty] {
        char block[4096];
        for (ssize_t length = 0; (length = read(pty, block, sizeof block)) > 0;) page.append(block, int(length));
    });
    QProcess process;
    process.setStandardOutputFile(ptsname(pty));
    const int status = run(std::move(process), LCDHOST_PATH, words.split(' '), Root()).status;
    close(held);
    reader.join();
    close(pty);
    return status == 0 ? QString(page).remove('\r') : QString();
}

} // namespace

class TestHost : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void namesTheFileOfEachProblem_data();
    void namesTheFileOfEachProblem();
    void tellsWhatCantBeOpened_data();
    void tellsWhatCantBeOpened();
    void showsAnyDevice();
    void lostOutputIsAFailure();
    void coloursOnlyATerminal();
    void fitsTheTerminal();
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
        {"load: cards of a slot", "load ROOT", 0,
         "     7  OUT        output         301  4x HDMI 2.0 output card\n"
         "                                  302  2x 10G fibre output card\n     8"},
        {"load: nothing wrong", "load ROOT", 0, "\nNo problems\n"},
        {"load: language", "load ROOT --language zh_CN", 0, "100  主控卡\n"},
        {"cards: wide characters", "cards ROOT --language zh_CN", 0,
         "  Position  Type  Type name     Interface  Capacity mode  Work mode  Groups\n"
         "         1     5  3G-SDI接口            1              0          0  1\n"},
        {"resolutions: language", "resolutions ROOT --card 601 --position 1", 0, "  5  3G-SDI Connector\n"},
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
        {"JSON: load", "load ROOT --json", 0,
         "            \"card\": 302,\n            \"cardName\": \"2x 10G fibre output card\",\n"
         "            \"class\": \"output\",\n            \"silkName\": \"OUT\",\n            \"slot\": 7\n"},
        {"JSON: cards", "cards ROOT --json", 0,
         "\"ofPositions\": [\n                        3,\n                        4\n"},
        {"JSON: screens", "screens ROOT --json", 0, "\"slot\": 11,\n"},
        {"JSON: menu", "menu ROOT --json", 0,
         "\"key\": \"self_test\",\n            \"level\": 3,\n"},
        {"JSON: settings", "settings ROOT --json", 0, "\"httpPort\": 19998,\n"},
        {"JSON: no answer", "resolutions ROOT --card 601 --position 6 --json", 1, "{\n    \"error\": \"No card 601"},
        {"JSON: wrong use", "lod --json", 2, "{\n    \"error\": \"unknown command 'lod'"},
        {"menu: a last branch", "menu ROOT", 0,
         "     `- maintenance               3     1       0       0\n"
         "        |- self_test              0     3       0       0\n"
         "        `- factory_reset          1     3       0       0\n"},
        {"screens: a cell, a gap and a cell outside", "screens ROOT", 0,
         "    | slot 11, conn 1     |                     |\n    | 1920x1080 at 0,0    |                     |\n"
         "    +---------------------+---------------------+\n"
         "    Not in the grid:\n      row 1, column 1: slot 11, conn 2, 1920x1080 at 1920,0\n"},
        {"screens: a template", "screens ROOT", 0, "\n  Template Single monitor\n    Screen 1, 1 x 1\n"},
        {"resolutions: of what", "resolutions ROOT --card 601 --position 1", 0, "Card 601, position 1\n"},
        {"drawing: the second of two pictures", "screens ROOT --svg", 0,
         "<rect class=\"part\" x=\"361.0\" y=\"1.00\" width=\"358.0\" height=\"200.5\" rx=\"2\"/>"
         "<text class=\"strong\" x=\"540.0\" y=\"89.3\">slot 11 · 2</text>\n"
         "<text x=\"540.0\" y=\"105.3\">1920 × 1080</text>\n<text class=\"faint\" x=\"540.0\" y=\"121.3\">1920, 0</text>"},
        {"settings", "settings ROOT", 0, "  HTTP port                              19998\n"},
        {"no command", "", 2, "no command"},
        {"unknown command", "lod ROOT", 2, "unknown command 'lod'; did you mean 'load'?\n"},
        {"near to no command", "help ROOT", 2, "unknown command 'help'\n"},
        {"no root", "load", 2, "'load' takes one ROOT"},
        {"two roots", "load ROOT ROOT", 2, "'load' takes one ROOT"},
        {"root is a file", "load ROOT/menu/menuconfig.xml", 2, "menuconfig.xml is no folder"},
        {"root without catalogues", "load ROOT/menu", 2, "menu is no configuration root"},
        {"unknown option", "load ROOT --colour", 2, "Unknown option 'colour'\n"},
        {"mistyped option", "load ROOT --languaeg zh_CN", 2, "'languaeg'; did you mean '--language'?\n"},
        {"option of another command", "menu ROOT --card 1", 2, "'menu' takes no --card"},
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
    const Result result = run(words, Root({edited("devices/halcyon16/screen_multiview.xml", "Row=\"0\" Column=\"1\"",
                                                  "Row=\"1\" Column=\"1\"")}));
    QTEST(result.status, "status");
    const bool isJson = words.contains("--json");
    const QString page = result.status == 0 || isJson ? result.out : result.complaints;
    QVERIFY2(page.contains(text) && !page.contains('\033'), qPrintable(page));
    QCOMPARE(result.out + result.complaints, page);
    QCOMPARE(page.endsWith("\nTry 'lcdhost --help'.\n"), result.status == 2 && !isJson);
    QCOMPARE(QJsonDocument::fromJson(page.toUtf8()).isObject(), isJson);
}

void TestHost::namesTheFileOfEachProblem_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<Files>("files");
    QTest::addColumn<QStringList>("problems");

    const QString noSlot = "subcards: no slot takes a card, so no card file is read";
    const QString noCard = "connectors: no card was loaded, so no connector file is read";
    const QString unfinished = "Parse error at line 1, column 6: unexpected end of file";
    const QString ini = "settings/lcdsetting.ini";
    QTest::newRow("two catalogues")
        << "load ROOT" << Files{{"devices/halcyon16/slot.xml", "<DCS>"}, {"lockarea/lockareaconfig.xml", "<DCS/>"}}
        << QStringList{"devices/halcyon16/slot.xml: " + unfinished, noSlot, noCard,
                       "lockarea/lockareaconfig.xml: This file is not a valid configuration file."};
    QTest::newRow("a loader that stops at the first bad file")
        << "cards ROOT"
        << Files{{"subcards/201.xml", "<LCD/>"}, {"subcards/inputs/202.xml", "<DCS>"}, {"subcards/outputs/302.xml", {}}}
        << QStringList{"subcards/201.xml: The file is not a valid configuration file for device.",
                       "subcards/inputs/202.xml: " + unfinished,
                       "subcards: no file 302.xml, though slot 7 takes card 302: "
                       "the loading ended at a bad file, so these were not read: 100, 203, 204, 301, 401, 501, 601",
                       noCard};
    QTest::newRow("an error that hides the one before")
        << "cards ROOT"
        << Files{{"subcards/201.xml", "<DCS><Subcard/></DCS>"},
                 {"subcards/inputs/202.xml", "<DCS><Subcards><S/></Subcards></DCS>"}}
        << QStringList{"subcards/201.xml: Invalid [Subcards] node.", "subcards/inputs/202.xml: Invalid [Name] node."};
    QTest::newRow("logged and told once, met twice")
        << "cards ROOT"
        << Files{edited("connectors/6.xml", "</PresetTiming>", "<Interface/><Interface/></PresetTiming>")}
        << QStringList{"connectors/6.xml: Invalid [Interlaced] node. (2 times)"};
    QTest::newRow("a folder for a file") << "load ROOT" << Files{{"keycheck/keyboard.xml/inside", "a folder"}}
                                         << QStringList{"keycheck/keyboard.xml: a folder, not a file"};
    QTest::newRow("a file that is not there") << "menu ROOT" << Files{{"menu/menuconfig.xml", {}}}
                                              << QStringList{"menu: open menu function config file failed!"};
    QTest::newRow("no folder") << "load ROOT" << Files{{"lockarea", {}}} << QStringList{"lockarea: not there"};
    QTest::newRow("no device") << "cards ROOT" << Files{{"devices/halcyon16", {}}}
                               << QStringList{"devices: holds no device folder",
                                              "subcards: no device was loaded, so no card file is read", noCard};
    QTest::newRow("a device without files")
        << "cards ROOT" << Files{{"devices/halcyon16", {}}, {"devices/halcyon16/readme", "empty"}}
        << QStringList{"devices/halcyon16: holds no *.xml file", noSlot, noCard};
    QTest::newRow("a device without layers")
        << "screens ROOT"
        << Files{{"devices/halcyon16/layer_background.xml", {}},
                 {"devices/halcyon16/layer_mixing.xml", {}},
                 {"devices/halcyon16/layer_osd.xml", {}},
                 {"devices/halcyon16/layer_pip.xml", {}}}
        << QStringList{"devices/halcyon16: no file named ...layer..., so it has no layers"};
    QTest::newRow("connector types refused, of other content and without a file")
        << "load ROOT"
        << Files{edited("connectors/5.xml", "<SignalType Value=\"3\"/>", "<!-- no signal type -->"),
                 {"connectors/6.xml", "<DCS version=\"1.0\"/>"},
                 {"connectors/7.xml", {}},
                 {"connectors/resolutionratio.xml", {}}}
        << QStringList{"connectors/5.xml: Invalid [SignalType] node.",
                       "connectors/6.xml: holds something else, though card 204 has connector type 6",
                       "connectors: no file 7.xml, though card 302 has connector type 7: "
                       "no file resolutionratio.xml, so no connector offers a resolution"};
    QTest::newRow("nothing in a menu") << "load ROOT" << Files{{"menu/menuconfig.xml", "<LCD version=\"1.0\"/>"}}
                                       << QStringList{"menu/menuconfig.xml: holds nothing that the panel uses"};
    QTest::newRow("settings: empty") << "settings ROOT" << Files{{ini, "\n"}}
                                     << QStringList{ini + ": holds no setting that the panel knows"};
    QTest::newRow("settings: of somebody else") << "settings ROOT" << Files{{ini, "[LanguageSetting]\nName=1\n"}}
                                                << QStringList{ini + ": holds no setting that the panel knows"};
    QTest::newRow("settings: junk between")
        << "settings ROOT" << Files{edited(ini, "[LanguageSetting]", "[LanguageSetting]\njunk")}
        << QStringList{ini + ": The settings in " + ini + " are damaged; some entries are lost"};
}

void TestHost::namesTheFileOfEachProblem()
{
    QFETCH(QString, words);
    QFETCH(Files, files);
    const Root root(files);
    const Result result = run(words, root);
    QCOMPARE(result.status, 1);
    const bool isLoad = words.startsWith("load");
    QTEST(problemsOf(isLoad ? result.out : result.complaints, root), "problems");
    QCOMPARE(result.out.contains("\n\nlcdcheck " + root.path() + " tells "), isLoad);
    if (files.size() > 1 && files[1].first == "connectors/6.xml")
        QVERIFY2(result.out.contains("  no file for 7; refused: 5; not in its file: 6\n"), qPrintable(result.out));
}

void TestHost::tellsWhatCantBeOpened_data()
{
    QTest::addColumn<int>("problems");
    // What follows from it is told too: a card that is not read has no file, and without cards no connector is asked
    // for.
    QTest::newRow("connectors") << 1;
    QTest::newRow("devices/halcyon16") << 3;
    QTest::newRow("devices/halcyon16/slot.xml") << 3;
    QTest::newRow("subcards/inputs") << 5;
    QTest::newRow("menu/menuconfig.xml") << 1;
    QTest::newRow("settings/lcdsetting.ini") << 1;
}

void TestHost::tellsWhatCantBeOpened()
{
    const Root root;
    const QString name = QTest::currentDataTag();
    QCOMPARE(QProcess::execute("chmod", {"-R", "a+rX", root.path()}), 0);
    QCOMPARE(QProcess::execute("chmod", {"000", root.path(name)}), 0);
    const Result result = run(Unprivileged(), LCDHOST_PATH, {"load", "ROOT"}, root);
    QCOMPARE(QProcess::execute("chmod", {"700", root.path(name)}), 0);
    QCOMPARE(result.status, 1);
    QCOMPARE(problemsOf(result.out, root).value(0).section(": no file ", 0, 0), name + ": permission denied");
    QFETCH(int, problems);
    QVERIFY2(result.out.contains(QString("\nProblems (%1)\n").arg(problems)), qPrintable(result.out));
}

void TestHost::showsAnyDevice()
{
    const Root root;
    QProcess::execute("cp", {"-r", root.path("devices/halcyon16"), root.path("devices/second")});
    const auto [name, feature] = edited("devices/halcyon16/feature.xml", "Name=\"Halcyon 16\"", "Name=\"Twin\"");
    root.write("devices/second/feature.xml", feature);
    const std::pair<const char*, const char*> rows[] = {{"load ROOT", "  Name        Halcyon 16\n"},
                                                        {"load ROOT --device second", "  Name        Twin\n"},
                                                        {"load ROOT --device Twin", "\n  Halcyon 16       4210\n"},
                                                        {"load ROOT --device twon", "Did you mean 'Twin'?\n"},
                                                        {"screens ROOT", "\nTwin: Screen type 3"},
                                                        {"screens ROOT --device second", "\nScreen type 3"}};
    for (const auto& [words, text] : rows) {
        const Result result = run(words, root);
        QCOMPARE(result.status, result.complaints.isEmpty() ? 0 : 1);
        QVERIFY2((result.out + result.complaints).contains(text), words);
    }
}

void TestHost::lostOutputIsAFailure()
{
    for (const char* sink : {"/dev/full", "&-"})
        for (const char* words : {"menu ROOT", "menu ROOT --json", "--help"}) {
            const QString line = QString("exec %1 %2 >%3").arg(LCDHOST_PATH, words, sink);
            const Result result = run(QProcess(), "/bin/sh", {"-c", line}, Root());
            QCOMPARE(result.status, 1);
            QVERIFY2(result.complaints.startsWith("lcdhost: the output was lost: "), qPrintable(line));
        }
}

void TestHost::coloursOnlyATerminal()
{
    qputenv("TERM", "xterm");
    for (const char* noColour : {"", "1"}) {
        qputenv("NO_COLOR", noColour);
        const QString page = shown("menu ROOT", 80);
        QVERIFY(page.contains("Menu"));
        QCOMPARE(page.contains('\033'), *noColour == '\0');
    }
}

void TestHost::fitsTheTerminal()
{
    qputenv("NO_COLOR", "1");
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"load ROOT", nullptr, "    1  MAIN      main co…  100  Main co…\n"},
        {"load ROOT --language zh_CN", nullptr, "    1  MAIN      main co…  100  主控卡\n"},
        {"screens ROOT", nullptr, "    row 0, column 1: slot 11, conn 2\n      1920x1080 at 1920,0\n"},
        {"load ROOT", "120", "   100  Main control card\n"}};
    for (const auto& [words, columns, text] : rows) {
        qputenv("COLUMNS", columns);
        const QString page = shown(words, 40);
        QVERIFY2(page.contains(text), qPrintable(page));
        for (const QString& line : page.split('\n')) QVERIFY2(columns || line.size() <= 40, qPrintable(line));
    }
}

QTEST_GUILESS_MAIN(TestHost)
#include "test_host.moc"
