// The screen file, from one tree of its elements, with the oddities that need a file of their own; and the silk file.
#include "screenconfigmanager.h"
#include "silkconfigmanager.h"
#include "support.h"
#include "tree.h"

#include <QDomDocument>

using namespace LCD::MainConfig;
using LCD::MainConfigImpl::ScreenConfigManager;
using LCD::MainConfigImpl::SilkConfigManager;
using namespace tree;

namespace {

// clang-format off
/// "Any" and "Other" are entries of lists that take every tag; a number beside their fields is the length of the list. A
/// second "Screen" is not looked at. "Layout", "Audio" and the children of "FTB" follow no shape: see oddities().
Element screenTree(const s_Screen& s)
{
    const auto flags = [](const s_SupportInfo& record) { return record; };
    const s_Features& f = s.features;
    const auto& [info, enable, type, bright, zero, gear, pixel, gridType, lineWidth, speed] = f.testPattern;
    const auto& rates = f.senderGenLock.internalFrameRateForm;
    const auto mode = at(s.deviceModes, 0);       const auto templete = at(mode.templetes, 0);
    const auto layer = at(mode.layerTypes, 0);    const auto layout = at(templete.layouts, 0);    const auto c = at(layout.cells, 0);
    return el("!Device", el("!Screens", el("!Screen screen", flags(s), s.type, s.spliceMode, s.incompleteSplicing, s.customBuild,
        s.customDelete, s.limitNum,
        el("~DeviceModes modes", s.deviceModesInfo, el("Any entry", int(s.deviceModes.size()), mode.value,
            el("PVW preview", mode.pvwSupport, mode.pvwSoftImp),
            el("Templetes templetes", mode.templetesValue, el("Any count", int(mode.templetes.size()),
                el("Name name", templete.name.en, templete.name.zhCN, el("en")),
                el("Layouts", el("Any layout", int(templete.layouts.size()), layout.rows, layout.columns, layout.screenId,
                    el("Any cell", int(layout.cells.size()), c.x, c.y, c.width, c.height, c.row, c.column, c.slotIndex, c.connectorIndex),
                    el("Other")), el("Other")),
                el("PhysicalSize", el("DotPitch length", templete.dotPitch), el("Unit lengthUnit", templete.unit),
                    el("Width length", templete.width), el("Height length", templete.height))), el("Other")),
            el("LayerTypes", el("Any entry", int(mode.layerTypes.size()), layer.layerType,
                el("LayerCount layerCount", layer.layerCountMax, layer.layerCountValid), el("Unit layerUnit", layer.unit)), el("Other"))),
            el("Other")),
        el("~Features features", f.imageQualityFlag,
            el("General unread", flags(f.general), el("Name unread", flags(f.general.name))),
            el("Mosaic unread", flags(f.mosaic), el("Type unread", flags(f.mosaic.type))),
            el("BackgroundColor flags", flags(f.backgroundColor), el("R range", f.backgroundColor.r), el("G range", f.backgroundColor.g),
                el("B range", f.backgroundColor.b)),
            el("PGMEdit choice", f.pgmEdit), el("Selected choice", f.selected), el("~ImageQuality unread", flags(f.imageQuality)),
            el("Freeze choice", f.freeze), el("~FTB flags", flags(f.ftb)),
            el("~TestPattern flags", info, el("Enable choice", enable), el("Type choice", type), el("Bright choice", bright),
                el("SupportZero choice", zero), el("GridGear choice", gear), el("GridPixel scaled", pixel), el("GridType choice", gridType),
                el("GridLineWidth range", lineWidth), el("Speed choice", speed)),
            el("~SwitchEffect unread", flags(f.switchEffect), el("Type values", f.switchEffect.type)),
            el("~Tbar unread", flags(f.tbar)), el("~HDR unread", flags(f.hdr)),
            el("~Genlock flags", flags(f.genlock), el("Type unread", flags(f.genlock.connectorTypes)),
                el("ConnectorTypes values", f.genlock.type)),
            el("SenderGenLock flags", flags(f.senderGenLock),
                el("InternalFrameRate rate", f.senderGenLock.internalFrameRate, f.senderGenLock.internalFrameRateCoefficient),
                el("InternalFrameRateForm rates", int(rates.size()), at(rates, 0), at(rates, 1))),
            el("~ThreeD", el("~EmitterDelay delay", f.threeD.min, f.threeD.max, f.threeD.value, f.threeD.step)))), el("!Screen")));
}

const QHash<QString, QStringList> SHAPES{
    // What is stored:    numbers in the attributes                          no attribute              no element
    {"screen",     {"Support Editable 2 Type SpliceMode IncompleteSplicing CustomBuild CustomDelete LimitNum",
                    "0 0 2 0 0 0 0 0 0", "0 -1 2 0 0 0 0 0 0"}},
    {"modes",      {"Support Editable 2",                                "1 1 2",                  "0 -1 2"}},
    {"entry",      {"2 Value",                                           "2 0",                    "0 0"}},
    {"preview",    {"Support SoftImp",                                   "1 1",                    "0 0"}},
    {"templetes",  {"Value",                                             "1",                      "0"}},
    {"count",      {"2",                                                 "2",                      "0"}},
    {"name",       {"en zh_CN",                                          "- -",                    "- -"}},
    {"layout",     {"2 Rows Columns ScreenId",                           "2 0 0 0",                "0 0 0 0"}},
    {"cell",       {"2 X Y Width Height Row Column SlotIndex ConnectorIndex", "2 0 0 0 0 0 0 0 0", "0 0 0 0 0 0 0 0 0"}},
    {"length",     {"Support Editable 2 Support DataType Min Max 0 1",   "0 0 2 0 0 0 0 0 1",      "0 -1 2 0 0 0 255 0 1"}},
    {"lengthUnit", {"Support Editable 2 Support DataType Enum Other",    "0 0 2 0 0 0 0",          "0 -1 2 0 0"}},
    {"layerCount", {"Max Valid",                                         "1 1",                    "0 0"}},
    {"layerUnit",  {"0 -1 2 Value DataType Enum Other",                  "0 -1 2 1 1 0 0",         "0 -1 2 0 0"}},
    {"features",   {"1",                                                 "1",                      "1"}},
    {"unread",     {"0 -1 2",                                            "0 -1 2",                 "0 -1 2"}},
    {"flags",      {"Support Editable 2",                                "0 0 2",                  "0 -1 2"}},
    {"choice",     {"Support Editable 2 Value DataType Enum Other",      "0 0 2 0 0 0 0",          "0 -1 2 0 0"}},
    {"range",      {"Support Editable 2 Value DataType Min Max 0 1",     "0 0 2 0 0 0 0 0 1",      "0 -1 2 0 0 0 255 0 1"}},
    {"scaled",     {"Support Editable 2 Value DataType Min Max 0 Coefficient", "0 0 2 0 0 0 0 0 0", "0 -1 2 0 0 0 255 0 1"}},
    {"values",     {"0 -1 2 0 0 Enum Other",                             "0 -1 2 0 0 0 0",         "0 -1 2 0 0"}},
    {"rate",       {"Value Coefficient",                                 "0 0",                    "0 0"}},
    {"rates",      {"2 Enum Other",                                      "2 0 0",                  "0 0 0"}},
    {"delay",      {"Min Max Value Step",                                "0 0 0 0",                "0 0 0 0"}},
};
// clang-format on

bool read(const QString& device, QString& error, s_DCSScreen& screen)
{
    const Folder folder;
    const QString path = folder.write("screen.xml", "<DCS>" + device + "</DCS>");
    return ScreenConfigManager::instance()->parseDeviceScreencfg(path, error, screen);
}

} // namespace

class TestScreens : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void without_data();
    void without();
    void oddities_data();
    void oddities();
    void threeDStandsAlone();
    void silkWalk();
};

void TestScreens::without_data()
{
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<QString>("message");
    QTest::newRow("nothing") << true << "earlier";
    QTest::newRow("attributes") << true << "earlier";
    QTest::newRow("FTB HDR Genlock") << true << "Invalid [Genlock] node."; // A later message replaces an earlier one.
    QTest::newRow("DeviceModes Features") << true << "Invalid [Features] node.";
    const auto addRow = [](const QString& path, QChar mark) {
        const QString tag = path.section('/', -1), message = mark.isNull() ? "earlier" : "Invalid [" + tag + "] node.";
        if (tag != "Any" && tag != "Other") QTest::newRow(qPrintable(path)) << (mark != '!') << message;
        return true;
    };
    File{SHAPES, false, addRow}.add(screenTree({}));
}

/// The row tag lists what is missing: elements by path or tag, or all attributes.
void TestScreens::without()
{
    const QStringList gone = QString(QTest::currentDataTag()).split(' ');
    const auto keep = [&](const QString& path, QChar) {
        return !gone.contains(path) && !gone.contains(path.section('/', -1));
    };
    File file{SHAPES, !gone.contains("attributes"), keep};
    const LogLines log;
    QString error = "earlier";
    s_DCSScreen screen;
    QTEST(read(file.add(screenTree({})).xml, error, screen), "isRead");
    QTEST(error, "message");
    QCOMPARE(shown(screenTree(screen)), file.lines);
    QCOMPARE(log.taken(), QStringList());
}

void TestScreens::oddities_data()
{
    QTest::addColumn<QString>("features");
    QTest::addColumn<QString>("expected");
    const QString defaults = "Layout 0 -1 2 0 -1 2 0 0 0 255 0 1; ", flags = "Layout 0 0 2 0 -1 2 0 0 0 255 0 1; ";
    // clang-format off
    QTest::newRow("no features")         << QString()                                     << defaults + "Audio 0 -1 0 255 0 0";
    QTest::newRow("no element")          << ""                                            << flags + "Audio -1 -1 -1 -1 -1 50";
    QTest::newRow("Layout turned round") << "<Layout all><X all/></Layout>"               << defaults;
    QTest::newRow("no Volume")           << "<Audio all/>"                                << "Audio 3 4 -1 -1 -1 50";
    QTest::newRow("a bare Volume")       << "<Audio><Volume/></Audio>"                    << "Audio 0 0 0 0 0 0";
    QTest::newRow("Audio")               << "<Audio all><Volume all/></Audio>"            << "Audio 3 4 7 8 9 5";
    QTest::newRow("no Time is read")     << "<FTB/>"                                      << "FTB 0 -1 2 0 0; Time 0 0 2 0 0 0 0 0 1";
    QTest::newRow("Enable takes Time")   << "<FTB><A all/><Enable/><Time all/></FTB>"     << "FTB 0 -1 2 0 0 0 5; Time 3 4 2 5 6 7 8 9 1";
    QTest::newRow("half a step is 0")    << "<FTB><Time Step='2.5'/><Enable/></FTB>"      << "FTB 0 -1 2 0 0 0; Time 0 0 2 0 0 0 0 0 1";
    // clang-format on
}

void TestScreens::oddities()
{
    QFETCH(QString, features);
    QFETCH(QString, expected);
    if (!features.isNull()) features = "<Features>" + features + "</Features>";
    features.replace(" all", " Support='3' Editable='4' Value='5' DataType='6' Min='7' Max='8' Step='9'");
    QString error;
    s_DCSScreen screen;
    QVERIFY(read("<Device><Screens><Screen>" + features + "</Screen></Screens></Device>", error, screen));
    const s_Features& f = screen.features;
    const auto& [support, editable, min, max, step, value] = f.audio;
    const QString found = "FTB " + show(f.ftb.enable) + "; Time " + show(f.ftb.time) + "; Layout " +
                          show(f.layout, f.layout.x) + "; Audio " + show(support, editable, min, max, step, value);
    QVERIFY2(found.contains(expected), qPrintable(found));
}

void TestScreens::threeDStandsAlone()
{
    QDomDocument document;
    QVERIFY(document.setContent(QString("<A><ThreeD/><D><ThreeD><EmitterDelay Min='1' Max='x'/></ThreeD></D></A>")));
    const auto* const reader = ScreenConfigManager::instance();
    s_ThreeD threeD{1, 2, 3, 4};
    QString error;
    QVERIFY(!reader->threeDConfig(document.documentElement(), error, threeD) && threeD.value == 3);
    QCOMPARE(error, QString("Invalid [EmitterDelay] node."));
    QVERIFY(reader->threeDConfig(document.documentElement().lastChildElement(), error, threeD));
    QCOMPARE(show(threeD.min, threeD.max, threeD.value, threeD.step), QString("1 0 0 0"));
}

void TestScreens::silkWalk()
{
    std::vector<s_SilkOrder> silk{{7, 8, 9}};
    QString error, found;
    const Folder folder;
    const auto readSilk = [&](const QString& keys) {
        const QString path = folder.write("silk.xml", "<DCS><Device>" + keys + "</Device></DCS>");
        return SilkConfigManager::instance()->parseDeviceSilkcfg(path, error, silk);
    };
    QVERIFY(!readSilk(""));
    QCOMPARE(error, QString("Invalid [Keys] node."));
    QVERIFY(readSilk("<Keys/>"));
    QVERIFY(readSilk("<Keys><No Slot='1'/><Key Slot='1' Connector='2' Order='3'/><Any Order='x' Slot='4'/></Keys>"));
    for (const s_SilkOrder& key : silk) found += show(key.slot, key.connector, key.order) + "; ";
    QCOMPARE(found, QString("7 8 9; 1 2 3; 4 0 0; "));
}

QTEST_GUILESS_MAIN(TestScreens)
#include "test_screens.moc"
