// The program as a person starts it: what it tells of a configuration, how it names problems and their files, its exit
// status, and that it leaves the configuration alone.
#include "support.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <fcntl.h>
#include <unistd.h>

namespace {

QString dcs(const QString& body) { return "<DCS version=\"1.0\">" + body + "</DCS>"; }
QString lcd(const QString& body) { return "<LCD version=\"1.0\">" + body + "</LCD>"; }

QString slotFile(const QStringList& models)
{
    return dcs(
        "<Device><Slots><MainControlCardSlots SilkScreenName=\"MC\"><Slot Index=\"2\"><Subcards><Subcard ModuleId=\"" +
        models.join("\"/><Subcard ModuleId=\"") + "\"/></Subcards></Slot></MainControlCardSlots></Slots></Device>");
}

QString cardFile(const QString& parts = "<ConnectorGroups><Capacity/></ConnectorGroups><CapacityGroups/><Sections/>")
{
    return dcs("<Subcards><Subcard ModelId=\"7\"><Name><zh_CN>输入卡</zh_CN><en>Input card</en></Name><Connectors>"
               "<Connector Type=\"1\" InterfaceType=\"1\" Position=\"4\" CapacityMode=\"1\"/></Connectors>" +
               parts + "</Subcard></Subcards>");
}

QString resolutionMode(int mode, const QString& disables)
{
    const QString direction = "<AddTime/><FrontPorch/><Sync/><TotalTime/>";
    return QString("<Mode Value=\"%1\"><BandWidth/><ResolutionRatios><ResolutionRatio><Width Value=\"1920\"/>"
                   "<Height Value=\"1080\"/><RefreshRate Value=\"5994\" Coefficient=\"0.01\"/></ResolutionRatio>"
                   "<AdvResolutionRatio><Refresh/><Horizontal>%2</Horizontal><Vertical>%2</Vertical>"
                   "</AdvResolutionRatio><Disables>%3</Disables></ResolutionRatios></Mode>")
        .arg(mode)
        .arg(direction, disables);
}

QString connectorFile(const QString& presetTiming = {})
{
    const QString names = "<zh_CN>高清</zh_CN><en>HD</en>";
    return dcs("<Connectors><Connector Type=\"1\"><Name>" + names + "</Name><ShortName>" + names +
               "</ShortName><SignalType/><CapacityMode><Interface Type=\"1\">" +
               resolutionMode(0, "<R Width=\"640\" Height=\"480\"/>") + resolutionMode(1, {}) +
               "</Interface></CapacityMode><HDCP/><General><Type/><Name/><NameGB2312/></General><PresetTiming>" +
               presetTiming +
               "</PresetTiming><ColorDepths/><ColorSpaces/><ColorRanges/><FormatMapping/><DynamicRange/><Player>"
               "<LoopType/><PlayFileType/><AutoPlayEnable/><PicturePlayTime/><EffectTime/><EffectType/><FilePath/>"
               "<DiskType/></Player><ImageQuality/><Crop><Enable/><XRatio/><YRatio/><WidthRatio/><HeightRatio/>"
               "<MaxCount/></Crop><TimingSelect><Select/></TimingSelect><EDID/><HPDs/></Connector></Connectors>");
}

QString screenFile()
{
    return dcs("<Device><Screens><Screen Type=\"1\"><DeviceModes><DeviceMode Value=\"2\"><Templetes><Templete>"
               "<Name en=\"Wall\" zh_CN=\"墙\"/><Layouts><Layout Rows=\"1\" Columns=\"2\" ScreenId=\"3\">"
               "<Cell Width=\"1920\" Height=\"1080\" SlotIndex=\"7\" ConnectorIndex=\"1\"/>"
               "<Cell Row=\"1\" SlotIndex=\"8\"/></Layout></Layouts></Templete></Templetes></DeviceMode></DeviceModes>"
               "</Screen></Screens></Device>");
}

/// A whole configuration in which nothing is wrong.
void writeRoot(const Folder& root)
{
    root.write("devices/one/slot.xml", slotFile({"7", "8"}));
    root.write("devices/one/screen.xml", screenFile());
    root.write("subcards/inputs/7.xml", cardFile());
    root.write("connectors/1.xml", connectorFile());
    root.write(
        "connectors/resolutionratio.xml",
        dcs("<ResolutionRatios><M Value=\"0\"><R Width=\"640\" Height=\"480\"/><R Width=\"1280\" Height=\"720\"/>"
            "</M><M Value=\"1\"><R Width=\"1920\" Height=\"1080\" Interlaced=\"1\"/></M></ResolutionRatios>"));
    root.write("menu/menuconfig.xml", lcd("<MenuBar><Item Key=\"home\" Type=\"1\"><Item Key=\"输入\" Order=\"12\"/>"
                                          "<Item Key=\"output\"/></Item></MenuBar>"));
    root.write("fnbutton/fnkeyboardconfig.xml", lcd("<DefaultVal val=\"3\"/><MaxCount count=\"2\"/><Sequence/>"));
    root.write("keycheck/keyboardchecklist.xml", lcd("<LcdKeys><Key Value=\"1\" Name=\"A\"/></LcdKeys>"));
    root.write("lockarea/lockareaconfig.xml",
               lcd("<LockAreas><LockArea Id=\"1\"><Button LCDKey=\"5\" RealKey=\"6\"/></LockArea></LockAreas>"));
    root.write("settings/lcdsetting.ini", "[HttpPortSetting]\nHttpPort=8080\n");
}

struct Result {
    int status = -1;
    QString out;
    QString complaints;
};

/// Runs the program; "ROOT" among the words is the configuration.
Result run(const QString& words, const QString& root, const QString& outputFile = {}, const QString& noColour = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TERM", "xterm");
    environment.insert("NO_COLOR", noColour);
    QProcess process;
    process.setProcessEnvironment(environment);
    if (!outputFile.isEmpty()) process.setStandardOutputFile(outputFile);
    QStringList arguments = words.split(' ', Qt::SkipEmptyParts);
    process.start(LCDHOST_PATH, arguments.replaceInStrings("ROOT", root));
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

/// The problems as "file: text", with paths from the configuration root on.
QStringList problemsIn(QString page, const QString& root)
{
    page.remove(0, page.indexOf("Problems (")).remove(root + '/');
    QStringList problems;
    QString file;
    for (const QString& line : page.split('\n').mid(1)) {
        if (line.startsWith("    "))
            problems.append(file + ": " + line.trimmed());
        else
            file = line.trimmed();
    }
    return problems;
}

} // namespace

class TestHost : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void refusesWrongUse_data();
    void refusesWrongUse();
    void namesTheFileOfEachProblem_data();
    void namesTheFileOfEachProblem();
    void coloursOnlyATerminal_data();
    void coloursOnlyATerminal();
    void writesJson();
    void leavesTheRootAlone();
};

void TestHost::answers_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");

    QTest::newRow("help tells the layout") << "--help" << 0 << "lockareaconfig.xml";
    QTest::newRow("version") << "--version" << 0 << "lcdhost 1.";
    QTest::newRow("load: card names of a slot") << "load ROOT" << 0
                                                << "     2  MC         main control     7  Input card\n                "
                                                   "                    8  not in catalogue\n";
    QTest::newRow("load: counts") << "load ROOT" << 0 << "Cards                  1  no file for 8\n";
    QTest::newRow("load: nothing wrong") << "load ROOT" << 0 << "\nNo problems\n";
    QTest::newRow("load: language") << "load ROOT --language zh_CN" << 0 << "7  输入卡";
    QTest::newRow("cards: wide characters")
        << "cards ROOT" << 0
        << "  Position  Type  Type name  Interface  Capacity mode  Work mode  Groups\n"
           "         4     1  高清               1              1          0\n";
    QTest::newRow("resolutions: less the disabled ones")
        << "resolutions ROOT --card 7 --position 4" << 0
        << "Resolutions (2)\n  Width  Height  Interlaced\n   1280     720           0\n   1920    1080           1\n";
    QTest::newRow("resolutions: scaled rate")
        << "resolutions ROOT --card 7 --position 4" << 0 << "   1920    1080         59.94\n";
    QTest::newRow("resolutions: a mask that hits nothing")
        << "resolutions ROOT --card 7 --position 4 --interface 0x2" << 0 << "Resolutions (0)\n  none\n";
    QTest::newRow("resolutions: no such connector") << "resolutions ROOT --card 7 --position 5" << 1 << "";
    QTest::newRow("menu: wide characters")
        << "menu ROOT" << 0
        << "  home           0     1       0       0\n  |- 输入       12     0       0       0\n"
           "  `- output      0     0       0       0\n";
    QTest::newRow("screens: a cell, a gap and a cell outside")
        << "screens ROOT" << 0
        << "    | slot 7, conn 1   |                  |\n    | 1920x1080 at 0,0 |                  |\n"
           "    +------------------+------------------+\n"
           "    Not in the grid:\n      row 1, column 0: slot 8, conn 0, 0x0 at 0,0\n";
    QTest::newRow("settings") << "settings ROOT" << 0 << "  HTTP port                              8080\n";
}

void TestHost::answers()
{
    QFETCH(QString, words);
    QFETCH(QString, text);
    const Folder root;
    writeRoot(root);
    const Result result = run(words, root.path());
    QVERIFY2(result.out.contains(text), qPrintable(result.out));
    QTEST(result.status, "status");
    QCOMPARE(result.complaints.isEmpty(), result.status == 0);
}

void TestHost::refusesWrongUse_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("reason");

    QTest::newRow("no command") << ""
                                << "no command";
    QTest::newRow("unknown command") << "lod ROOT"
                                     << "unknown command 'lod'";
    QTest::newRow("no root") << "load"
                             << "'load' takes one ROOT";
    QTest::newRow("two roots") << "load ROOT ROOT"
                               << "'load' takes one ROOT";
    QTest::newRow("root is a file") << "load ROOT/menu/menuconfig.xml"
                                    << "menuconfig.xml is no folder";
    QTest::newRow("root without catalogues") << "load ROOT/menu"
                                             << "menu is no configuration root";
    QTest::newRow("unknown option") << "load ROOT --colour"
                                    << "Unknown option 'colour'";
    QTest::newRow("option of another command") << "menu ROOT --json"
                                               << "'menu' takes no --json";
    QTest::newRow("option missing") << "resolutions ROOT --card 7"
                                    << "--position is needed";
    QTest::newRow("no number") << "resolutions ROOT --card x --position 4"
                               << "--card takes a number, not 'x'";
    QTest::newRow("unknown language") << "load ROOT --language de"
                                      << "--language takes en or zh_CN";
    QTest::newRow("no plug-in") << "load ROOT --plugin ROOT/settings/lcdsetting.ini"
                                << "lcdsetting.ini";
}

void TestHost::refusesWrongUse()
{
    QFETCH(QString, words);
    QFETCH(QString, reason);
    const Folder root;
    writeRoot(root);
    const Result result = run(words, root.path());
    QCOMPARE(result.status, 2);
    QCOMPARE(result.out, QString());
    QVERIFY2(result.complaints.contains(reason), qPrintable(result.complaints));
    QVERIFY(result.complaints.endsWith("Try 'lcdhost --help'.\n"));
}

void TestHost::namesTheFileOfEachProblem_data()
{
    using Files = QVector<QPair<QString, QString>>;
    QTest::addColumn<QString>("words");
    QTest::addColumn<Files>("files"); // Written over the good ones; a folder without a text is removed.
    QTest::addColumn<QStringList>("problems");

    QTest::newRow("two catalogues")
        << "load ROOT" << Files{{"devices/one/slot.xml", "<DCS>"}, {"keycheck/keyboardchecklist.xml", dcs({})}}
        << QStringList{"devices/one/slot.xml: Parse error at line 1, column 6: unexpected end of file",
                       "connectors: device is empty",
                       "keycheck/keyboardchecklist.xml: This file is not a valid configuration file."};
    QTest::newRow("a loader that stops at the first bad file")
        << "cards ROOT" << Files{{"subcards/7.xml", lcd({})}, {"subcards/inputs/8.xml", "<DCS>"}}
        << QStringList{"subcards/7.xml: The file is not a valid configuration file for device.",
                       "subcards/inputs/8.xml: Parse error at line 1, column 6: unexpected end of file",
                       "connectors: device is empty"};
    QTest::newRow("an error that hides the one before")
        << "cards ROOT"
        << Files{{"subcards/7.xml", dcs("<Subcard/>")}, {"subcards/inputs/8.xml", dcs("<Subcards><S/></Subcards>")}}
        << QStringList{"subcards/7.xml: Invalid [Subcards] node.", "subcards/inputs/8.xml: Invalid [Name] node."};
    QTest::newRow("logged and told once, met twice")
        << "resolutions ROOT --card 7 --position 4"
        << Files{{"connectors/1.xml", connectorFile("<Interface/><Interface/>")}}
        << QStringList{"connectors/1.xml: Invalid [Interlaced] node. (2 times)"};
    QTest::newRow("a text that names the folder read")
        << "load ROOT" << Files{{"keycheck/keyboard.xml/inside", "a folder"}}
        << QStringList{"keycheck/keyboard.xml: Fail to open file [keycheck]!"};
    QTest::newRow("a file that is not there") << "menu ROOT" << Files{{"menu", {}}, {"menu/other.xml", "no menu"}}
                                              << QStringList{"menu: open menu function config file failed!"};
    QTest::newRow("no folder") << "load ROOT" << Files{{"lockarea", {}}} << QStringList{"lockarea: not there"};
    QTest::newRow("no device") << "cards ROOT" << Files{{"devices/one", {}}}
                               << QStringList{"devices: holds no device folder", "subcards: device is empty",
                                              "connectors: device is empty"};
}

void TestHost::namesTheFileOfEachProblem()
{
    using Files = QVector<QPair<QString, QString>>;
    QFETCH(QString, words);
    QFETCH(Files, files);
    const Folder root;
    writeRoot(root);
    for (const auto& [name, text] : files)
        text.isEmpty() ? void(QDir(root.path(name)).removeRecursively()) : void(root.write(name, text));
    const Result result = run(words, root.path());
    QCOMPARE(result.status, 1);
    const QString page = words.startsWith("load") ? result.out : result.complaints;
    QFETCH(QStringList, problems);
    QCOMPARE(problemsIn(page, root.path()).join('\n'), problems.join('\n'));
}

void TestHost::coloursOnlyATerminal_data()
{
    QTest::addColumn<bool>("terminal");
    QTest::addColumn<QString>("noColour");
    QTest::addColumn<bool>("coloured");

    QTest::newRow("terminal") << true << "" << true;
    QTest::newRow("terminal, NO_COLOR set") << true << "1" << false;
    QTest::newRow("pipe") << false << "" << false;
}

void TestHost::coloursOnlyATerminal()
{
    QFETCH(bool, terminal);
    QFETCH(QString, noColour);
    const Folder root;
    writeRoot(root);
    const int pty = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    QVERIFY(pty >= 0 && grantpt(pty) == 0 && unlockpt(pty) == 0);
    // Held open, so that what the program wrote outlives it.
    const int held = open(ptsname(pty), O_RDWR | O_NOCTTY);
    const Result result = run("menu ROOT", root.path(), terminal ? ptsname(pty) : QString(), noColour);
    QByteArray shown = result.out.toUtf8();
    // The terminal hands over what was written when it is ready to.
    const auto isComplete = [&shown, pty] {
        char buffer[4096];
        const ssize_t count = read(pty, buffer, sizeof buffer);
        if (count > 0) shown.append(buffer, int(count));
        return shown.contains("output");
    };
    QTRY_VERIFY(isComplete());
    close(held);
    close(pty);
    QCOMPARE(result.status, 0);
    QTEST(shown.contains('\033'), "coloured");
}

void TestHost::writesJson()
{
    const Folder root;
    writeRoot(root);
    const Result result = run("resolutions ROOT --card 7 --position 4 --json", root.path());
    const QJsonObject offer = QJsonDocument::fromJson(result.out.toUtf8()).object();
    QCOMPARE(offer["connectorTypeName"].toString(), QString("高清"));
    QCOMPARE(offer["resolutions"].toArray().size(), 2);
    QCOMPARE(offer["resolutions"].toArray()[0].toObject()["width"].toInt(), 1280);
    QCOMPARE(offer["defaultResolution"].toObject()["coefficient"].toDouble(), 0.01);
    QVERIFY(offer["timing"].isNull());
}

void TestHost::leavesTheRootAlone()
{
    const Folder root;
    writeRoot(root);
    root.write("connectors/1.xml", "<DCS>");
    QDir(root.path("fnbutton")).removeRecursively();
    const auto listing = [&root] {
        QStringList entries;
        for (QDirIterator all(root.path(), QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                              QDirIterator::Subdirectories);
             all.hasNext();) {
            const QFileInfo entry(all.next());
            entries.append(entry.filePath() + entry.lastModified().toString(Qt::ISODateWithMs));
        }
        entries.sort();
        return entries;
    };
    const QStringList before = listing();
    for (const char* words : {"load ROOT", "cards ROOT", "resolutions ROOT --card 7 --position 4", "screens ROOT",
                              "menu ROOT", "settings ROOT"})
        QVERIFY2(run(words, root.path()).status >= 0, words);
    QCOMPARE(listing(), before);
}

QTEST_GUILESS_MAIN(TestHost)
#include "test_host.moc"
