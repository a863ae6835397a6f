// The loader of device directories: which name sends a file to which reader, and what a bad file costs.
#include "deviceconfig.h"
#include "support.h"

using namespace LCD::MainConfig;
using LCD::MainConfigImpl::DeviceConfig;

namespace {

/// A file that every reader but the layers' takes; whichever it was, `number` tells the file.
QString anyKind(int number)
{
    return QString(R"(<DCS><Device ModuleId="%1"><Features/><HDR/><Preset><PresetCount/></Preset>
        <Slots><MainControlCardSlots InterfaceType="%1"/></Slots><Keys><Key Order="%1"/></Keys>
        <Screens><Screen Type="%1"/></Screens></Device></DCS>)")
        .arg(number);
}

/// The numbers of the files that each kind's record came from.
QString origins(const s_Device& device)
{
    QString text = QString("feature %1, slot %2, silk")
                       .arg(device.feature.moduleId)
                       .arg(device.slots.mainControlCardSlots.interfaceType);
    for (const s_SilkOrder& key : device.silkOrders) text += " " + QString::number(key.order);
    text += ", screen";
    for (const s_DCSScreen& screen : device.screens) text += " " + QString::number(screen.type);
    return text;
}

} // namespace

class TestDeviceDirectory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void classifiesByName_data();
    void classifiesByName();
    void aBadFileCostsItself_data();
    void aBadFileCostsItself();
    void makesTheDirectory();
};

void TestDeviceDirectory::classifiesByName_data()
{
    QTest::addColumn<QStringList>("names"); // Numbered from 1.
    QTest::addColumn<QString>("expected");
    // clang-format off
    QTest::newRow("an empty directory")            << QStringList{}                                               << "feature 65535, slot 0, silk, screen";
    QTest::newRow("each kind by a part of a name") << QStringList{"xfeature.xml", "slots.xml", "a.silk.xml", "my_screen_1.xml"} << "feature 1, slot 2, silk 3, screen 4";
    QTest::newRow("names are case-sensitive")      << QStringList{"Feature.xml", "SLOT.xml", "silK.xml", "Screen.xml"} << "feature 65535, slot 0, silk, screen";
    QTest::newRow("the extension is not")          << QStringList{"slot.XML", "silk.txt", "screen.xml.bak"}       << "feature 65535, slot 1, silk, screen";
    QTest::newRow("sound is no feature")           << QStringList{"feature.xml", "feature_sound.xml"}             << "feature 1, slot 0, silk, screen";
    QTest::newRow("sound falls through")           << QStringList{"feature_sound_slot.xml", "sound_silk.xml"}     << "feature 65535, slot 1, silk 2, screen";
    QTest::newRow("a later file replaces")         << QStringList{"B_feature.xml", "a_feature.xml", "b_slot.xml", "A_slot.xml"} << "feature 1, slot 3, silk, screen";
    QTest::newRow("lists are joined by name")      << QStringList{"silk_b.xml", "silk_A.xml", "screen_2.xml", "screen_1.xml"} << "feature 65535, slot 0, silk 2 1, screen 4 3";
    QTest::newRow("a feature is nothing else")     << QStringList{"feature_slot_silk_screen.xml"}                 << "feature 1, slot 0, silk, screen";
    QTest::newRow("a slot file is nothing else")   << QStringList{"screen_silk_slot.xml"}                         << "feature 65535, slot 1, silk, screen";
    QTest::newRow("a silk file may be a screen")   << QStringList{"screen_silk.xml"}                              << "feature 65535, slot 0, silk 1, screen 1";
    // clang-format on
}

void TestDeviceDirectory::classifiesByName()
{
    QFETCH(QStringList, names);
    const Folder folder;
    for (int i = 0; i < names.size(); ++i) folder.write(names[i], anyKind(i + 1));
    const LogLines log;
    DeviceConfig config;
    QString error = "earlier";
    QVERIFY(config.readConfig(folder.path(), error));
    QTEST(origins(config.DeviceConfigs().first()), "expected");
    QCOMPARE(error, QString("earlier"));
    QCOMPARE(log.taken(), QStringList());
}

void TestDeviceDirectory::aBadFileCostsItself_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("xml");   // Null: a directory of that name.
    QTest::addColumn<QString>("error"); // %1: the directory that is loaded.
    QTest::addColumn<QStringList>("logged");
    const QString malformed = "Parse error at line 1, column 6:\nunexpected end of file";
    const QStringList noDevice{"Error: Invalid [Device] node."};
    for (const char* name :
         {"z_feature.xml", "z_slot.xml", "z_silk.xml", "z_screen.xml", "z_silk_screen.xml", "z_layer.xml", "z.xml"}) {
        QTest::addRow("malformed: %s", name) << name << "<DCS>" << malformed << QStringList{};
        QTest::addRow("unreadable: %s", name) << name << QString() << "Fail to open file [%1]!" << QStringList{};
        if (!QByteArray(name).startsWith("z_") || QByteArray(name).contains("layer")) continue;
        QTest::addRow("refused: %s", name) << name << "<DCS/>" << QString() << noDevice;
    }
    // A reader's record of a refused file is not kept, however far it came.
    // clang-format off
    QTest::newRow("refused late")         << "z_feature.xml"     << R"(<DCS><Device ModuleId="9"><Features/></Device></DCS>)" << QString() << QStringList{"Error: Invalid [HDR] node."};
    QTest::newRow("silk, then no screen") << "z_silk_screen.xml" << "<DCS><Device><Keys/></Device></DCS>" << QString() << QStringList{"Error: Invalid [Screens] node."};
    QTest::newRow("of no kind")           << "z.xml"             << "<DCS/>" << QString() << QStringList{};
    // clang-format on
}

void TestDeviceDirectory::aBadFileCostsItself()
{
    QFETCH(QString, name);
    QFETCH(QString, xml);
    QFETCH(QString, error);
    const Folder folder;
    for (const QString kind : {"feature", "slot", "silk", "screen"}) folder.write(kind + ".xml", anyKind(1));
    folder.write("zz_screen.xml", anyKind(2));
    if (xml.isNull())
        QVERIFY(QDir(folder.path()).mkdir(name));
    else
        folder.write(name, xml);
    const LogLines log;
    DeviceConfig config;
    QString found;
    QVERIFY(config.readConfig(folder.path(), found));
    QCOMPARE(found, error.replace("%1", folder.path()));
    QCOMPARE(origins(config.DeviceConfigs().first()), QString("feature 1, slot 1, silk 1, screen 1 2"));
    QTEST(log.taken(), "logged");
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
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    QVERIFY(config.readConfig("new/device", error));
    QVERIFY(config.readConfig("new/device", error));
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(QDir(folder.path("new")).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList{"device"});
    QVERIFY(QDir(folder.path("new/device")).isEmpty());
    QCOMPARE(config.DeviceConfigs().size(), 2);
    QCOMPARE(config.DeviceConfigs().last().feature.name, std::string("system1"));
}

QTEST_GUILESS_MAIN(TestDeviceDirectory)
#include "test_device_directory.moc"
