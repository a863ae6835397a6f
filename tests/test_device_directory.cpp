// The loader of device directories: which name sends a file to which reader, and what a bad file costs.
#include "deviceconfig.h"
#include "support.h"

using namespace LCD::MainConfig;
using LCD::MainConfigImpl::DeviceConfig;
using Files = QMap<QString, QString>; ///< Contents by name; null is a directory of that name.

namespace {

/// A file with a number that is kept by each reader that takes it. It has no layer: the reader of layers refuses it.
QString numbered(int number)
{
    return QString(R"(<DCS><Device ModuleId="%1"><Features/><HDR/><Preset><PresetCount/></Preset>
        <Slots><MainControlCardSlots><Slot Index="%1"/></MainControlCardSlots></Slots><Keys><Key Order="%1"/></Keys>
        <Screens><Screen Type="%1"/></Screens></Device></DCS>)")
        .arg(number);
}

/// The numbers that the device's records kept, where they are not the defaults, and the log.
QString outcome(const s_Device& device, const LogLines& log)
{
    QStringList all;
    if (device.feature.moduleId != 0xFFFF) all += QString("feature %1").arg(device.feature.moduleId);
    for (const s_Slot& slot : device.slots.mainControlCardSlots.slots) all += QString("slot %1").arg(slot.index);
    for (const s_SilkOrder& key : device.silkOrders) all += QString("silk %1").arg(key.order);
    for (const s_DCSScreen& screen : device.screens) all += QString("screen %1").arg(screen.type);
    return (all + log.taken()).join(", ");
}

} // namespace

class TestDeviceDirectory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsEachFileByItsName_data();
    void readsEachFileByItsName();
    void makesTheDirectory();
};

void TestDeviceDirectory::readsEachFileByItsName_data()
{
    QTest::addColumn<Files>("files");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("error"); // %1: the directory that is loaded.
    const auto row = [](const QString& rule, const QStringList& names, const QString& expected,
                        const Files& badFiles = {}, const QString& error = "earlier") {
        Files files = badFiles;
        for (const QString& name : names) files[name] = numbered(names.indexOf(name) + 1);
        QTest::newRow(qPrintable(rule)) << files << expected << error;
    };
    const QString layerAsked = "Error: Invalid [Layers] node.";
    // clang-format off
    row("each kind by a part of a name", {"xfeature.xml", "slots.xml", "a.silk.xml", "1screen1.xml", "ulayers.xml"},
        "feature 1, slot 2, silk 3, screen 4, " + layerAsked);
    row("names are case-sensitive",      {"Feature.xml", "SLOT.xml", "silK.xml", "Screen.xml", "LAYER.xml"}, "");
    row("the extension is not",          {"slot.XML", "silk.txt", "screen.xml.bak"}, "slot 1");
    row("sound is no feature",           {"feature.xml", "feature_sound.xml"}, "feature 1");
    row("sound falls through",           {"feature_sound_slot.xml", "sound_silk.xml"}, "slot 1, silk 2");
    row("a later file replaces",         {"B_feature.xml", "a_feature.xml", "b_slot.xml", "A_slot.xml"}, "feature 1, slot 3");
    row("lists are joined by name",      {"silk_b.xml", "silk_A.xml", "screen2.xml", "screen1.xml"}, "silk 2, silk 1, screen 4, screen 3");
    row("a feature is nothing else",     {"feature_slot_silk_screen.xml", "feature_layer.xml"}, "feature 1");
    row("a slot file is nothing else",   {"screen_silk_slot.xml", "slot_layer.xml"}, "slot 2");
    row("a silk file may be one, too",   {"screen_silk.xml", "silk_layer.xml"}, "silk 1, silk 2, screen 1, " + layerAsked);
    row("a screen file may be a layer", {"layer_screen.xml"}, "screen 1, " + layerAsked);
    // clang-format on

    const auto bad = [&row](const char* rule, const QString& kind, const QString& xml, const QString& error,
                            const char* logged = "") {
        row(QString("%1: %2").arg(rule, kind), {"feature.xml", "slot.xml", "silk.xml", "screen.xml", "zz_screen.xml"},
            QString("feature 1, slot 2, silk 3, screen 4, screen 5") + logged,
            {{"bad.xml", "<DCS>\n"}, {"z_" + kind + ".xml", xml}}, error);
    };
    // A bad file before this one left its text; only a file that is no XML puts its own in the place of it.
    const QString stays = "Parse error at line 2, column 1:\nunexpected end of file";
    for (const char* kind : {"feature", "slot", "silk", "screen", "layer", "nothing"}) {
        bad("malformed", kind, "<DCS>", "Parse error at line 1, column 6:\nunexpected end of file");
        bad("unreadable", kind, {}, "Fail to open file [%1]!");
        bad("refused", kind, "<DCS/>", stays, qstrcmp(kind, "nothing") ? ", Error: Invalid [Device] node." : "");
    }
    const QString late = R"(<DCS><Device ModuleId="9"><Features/><Keys/></Device></DCS>)";
    bad("not kept, however far it came", "feature", late, stays, ", Error: Invalid [HDR] node.");
    bad("no layer without the screen", "silk_screen_layer", late, stays, ", Error: Invalid [Screens] node.");
}

void TestDeviceDirectory::readsEachFileByItsName()
{
    QFETCH(Files, files);
    QFETCH(QString, error);
    const Folder folder;
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        folder.write(file->isNull() ? file.key() + "/file" : file.key(), *file);
    const LogLines log;
    DeviceConfig config;
    QString found = "earlier";
    QVERIFY(config.readConfig(folder.path(), found));
    QTEST(outcome(config.DeviceConfigs().first(), log), "expected");
    QCOMPARE(found, error.replace("%1", folder.path()));
}

void TestDeviceDirectory::makesTheDirectory()
{
    const Folder folder;
    DeviceConfig config;
    QString error;
    QVERIFY(!config.readConfig({}, error));
    QCOMPARE(error, QString("Invalid file path!\n"));
    const QString belowAFile = folder.write("file", {}) + "/device";
    QVERIFY(!config.readConfig(belowAFile, error));
    QCOMPARE(error, "Invalid file path!\n" + belowAFile);
    QVERIFY(config.DeviceConfigs().isEmpty());

    // A relative path too, and nothing is made but what it names.
    const QString made = folder.path("new/device");
    for (const int devices : {1, 2}) {
        QVERIFY(config.readConfig(QDir::current().relativeFilePath(made), error));
        QVERIFY(QDir(made).exists() && QDir(made).isEmpty());
        QCOMPARE(config.DeviceConfigs().size(), devices);
    }
    QCOMPARE(config.DeviceConfigs().last().feature.name, std::string("system1"));
}

QTEST_GUILESS_MAIN(TestDeviceDirectory)
#include "test_device_directory.moc"
