// The screen and silk files: what each attribute fills, what an absence costs, and the walks that take more than they
// are named after.
#include "screenconfigmanager.h"
#include "silkconfigmanager.h"
#include "support.h"

#include <QDomDocument>

using namespace LCD::MainConfig;
using LCD::MainConfigImpl::ScreenConfigManager;
using LCD::MainConfigImpl::SilkConfigManager;

namespace {

const Folder& folder()
{
    static const Folder files;
    return files;
}

/// A screen file with this element under "Features"; every element whose absence leaves a message stands there, but for
/// the tags in `without` and the one of the element itself.
QString screenFile(const QString& feature = {}, const QStringList& without = {},
                   const QString& modes = QStringLiteral("<DeviceModes/>"))
{
    QString all = feature;
    for (const QString tag : {"ImageQuality", "FTB", "TestPattern", "SwitchEffect", "Tbar", "HDR", "Genlock", "ThreeD"})
        if (!without.contains(tag) && !feature.startsWith("<" + tag))
            all += QString("<%1>%2</%1>").arg(tag, tag == "ThreeD" ? "<EmitterDelay/>" : "");
    const QString subtree = without.contains("Features") ? QString() : "<Features>" + all + "</Features>";
    return QString("<DCS><Device><Screens><Screen>%1%2</Screen></Screens></Device></DCS>").arg(modes, subtree);
}

bool read(const QString& xml, QString& error, s_DCSScreen& screen)
{
    return ScreenConfigManager::instance()->parseDeviceScreencfg(folder().write("screen.xml", xml), error, screen);
}

QString show(int number) { return QString::number(number); }
QString show(const s_SupportInfo& info)
{
    return QString("%1 %2 %3").arg(info.support).arg(info.editable).arg(info.attrMode);
}
QString show(const s_BaseAttr& attr)
{
    return show(static_cast<const s_SupportInfo&>(attr)) + QString(" %1 %2").arg(attr.value).arg(attr.dataType);
}
template <class Entry> QString show(const std::vector<Entry>& entries)
{
    QString values;
    for (const Entry& entry : entries) values += QString(" %1").arg(entry.value);
    return "[" + values.mid(1) + "]";
}
QString show(const s_EnumField& field) { return show(static_cast<const s_BaseAttr&>(field)) + " " + show(field.enums); }
QString show(const s_RangeValue& range)
{
    return show(static_cast<const s_BaseAttr&>(range)) +
           QString(" %1 %2 %3 %4").arg(range.min).arg(range.max).arg(range.step).arg(range.coefficient);
}
template <class... Fields> QString row(const Fields&... fields) { return QStringList{show(fields)...}.join(" "); }

/// The whole record, a line for each group.
QStringList dump(const s_Screen& screen)
{
    QStringList lines;
    const auto line = [&lines](const char* name, const auto&... fields) {
        lines << name + QStringList{QString(), show(fields)...}.join(" / ");
    };
    const s_Features& f = screen.features;
    const s_TestPattern& pattern = f.testPattern;
    // clang-format off
    line("screen", screen, screen.type, screen.spliceMode, screen.incompleteSplicing, screen.customBuild, screen.customDelete, screen.limitNum);
    line("modes", screen.deviceModesInfo, screen.deviceModes);
    for (const auto& mode : screen.deviceModes) {
        line("mode", mode.value, mode.pvwSupport, mode.pvwSoftImp, mode.templetesValue, int(mode.templetes.size()), int(mode.layerTypes.size()));
        for (const auto& templete : mode.templetes) {
            lines << "name " + QString::fromStdString(templete.name.en + "," + templete.name.zhCN);
            line("size", templete.dotPitch, templete.unit, templete.width, templete.height);
            for (const auto& layout : templete.layouts) {
                line("layout", layout.rows, layout.columns, layout.screenId);
                for (const auto& c : layout.cells) line("cell", c.x, c.y, c.width, c.height, c.row, c.column, c.slotIndex, c.connectorIndex);
            }
        }
        for (const auto& layer : mode.layerTypes) line("layer", layer.layerType, layer.layerCountMax, layer.layerCountValid, layer.unit);
    }
    line("unfilled",        f.general, f.general.name, f.mosaic, f.mosaic.type, f.imageQuality, f.imageQualityFlag, f.tbar, f.hdr);
    line("backgroundColor", f.backgroundColor, f.backgroundColor.r, f.backgroundColor.g, f.backgroundColor.b);
    line("featuresLayout",  f.layout, f.layout.x, f.layout.y);
    line("pgmEdit",         f.pgmEdit);
    line("selected",        f.selected);
    line("freeze",          f.freeze);
    line("ftb",             f.ftb, f.ftb.enable, f.ftb.time);
    line("pattern",         pattern.info);
    for (const auto& [tag, field] : {std::pair{"Enable", &pattern.enable}, {"Type", &pattern.type}, {"Bright", &pattern.bright}, {"SupportZero", &pattern.supportZero},
                                     {"GridGear", &pattern.gridGear}, {"GridType", &pattern.gridType}, {"Speed", &pattern.speed}})
        line(tag, *field);
    line("GridPixel",       pattern.gridPixel);
    line("GridLineWidth",   pattern.gridLineWidth);
    line("switchEffect",    f.switchEffect, f.switchEffect.type);
    line("genlock",         f.genlock, f.genlock.type, f.genlock.connectorTypes);
    line("senderGenLock",   f.senderGenLock, f.senderGenLock.internalFrameRate, f.senderGenLock.internalFrameRateCoefficient, f.senderGenLock.internalFrameRateForm);
    line("audio",           f.audio.support, f.audio.editable, f.audio.min, f.audio.max, f.audio.step, f.audio.value);
    line("threeD",          f.threeD.min, f.threeD.max, f.threeD.value, f.threeD.step);
    // clang-format on
    return lines;
}

} // namespace

class TestScreens : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavesAMessage_data();
    void leavesAMessage();
    void fillsFields_data();
    void fillsFields();
    void threeDStandsAlone();
    void survivesALossAnywhere();
    void silkWalk();
    void loadsTheExamples();
};

void TestScreens::leavesAMessage_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<QString>("message");
    // clang-format off
    QTest::newRow("version")                    << "<DCS version=\"1.0 \"/>"                      << false << "The file is not a valid configuration file of version 1.0 for device.";
    QTest::newRow("Device")                     << "<DCS version=\"1.0\"/>"                       << false << "Invalid [Device] node.";
    QTest::newRow("Screens")                    << "<DCS><Device><Screen/></Device></DCS>"        << false << "Invalid [Screens] node.";
    QTest::newRow("Screen")                     << "<DCS><Device><Screens/></Device></DCS>"       << false << "Invalid [Screen] node.";
    for (const char* tag : {"Features", "ImageQuality", "FTB", "TestPattern", "SwitchEffect", "Tbar", "HDR", "Genlock", "ThreeD"})
        QTest::newRow(tag)                      << screenFile({}, {tag})                          << true  << QString("Invalid [%1] node.").arg(tag);
    QTest::newRow("EmitterDelay")               << screenFile("<ThreeD/>")                        << true  << "Invalid [EmitterDelay] node.";
    QTest::newRow("DeviceModes")                << screenFile({}, {}, {})                         << true  << "Invalid [DeviceModes] node.";
    QTest::newRow("Features after DeviceModes") << screenFile({}, {"Features"}, {})               << true  << "Invalid [Features] node.";
    QTest::newRow("the last one stays")         << screenFile({}, {"HDR", "Genlock", "FTB"})      << true  << "Invalid [Genlock] node.";
    QTest::newRow("none is missing or cleared") << screenFile()                                   << true  << "earlier";
    // clang-format on
}

void TestScreens::leavesAMessage()
{
    QFETCH(QString, xml);
    const LogLines log;
    QString error = "earlier";
    s_DCSScreen screen;
    screen.type = 42;
    QTEST(read(xml, error, screen), "isRead");
    QTEST(error, "message");
    QTEST(screen.type == 0, "isRead");
    QCOMPARE(log.taken(), QStringList());
}

void TestScreens::fillsFields_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("expected");
    // Attributes that tell: each has its own number. "Step" is a whole number wherever it is read.
    const QString numbers =
        R"( Support="3" Editable="4" Value="5" DataType="6" Min="7" Max="8" Step="9" Coefficient="2.5")";
    const auto telling = [&](const QString& tag) {
        return QString(R"(<%1%2><Enum Value="11"/><Other Value="12"/><Enum/></%1>)").arg(tag, numbers);
    };
    const auto with = [&](const QString& tag, const QString& content = {}) {
        return QString("<%1%2>%3</%1>").arg(tag, numbers, content);
    };
    const auto feature = [](const char* rule, const QString& xml, const QString& expected) {
        QTest::newRow(rule) << screenFile(xml) << expected;
    };
    const auto modes = [](const char* rule, const QString& xml, const QString& expected) {
        QTest::newRow(rule) << screenFile({}, {}, xml) << "modes / 1 1 2 / [0]; " + expected;
    };
    const QString mode = "<DeviceModes><Mode>%1</Mode></DeviceModes>";
    const QString templete = mode.arg("<Templetes Value=\"0\"><Any>%1</Any></Templetes>");
    const QString layer = mode.arg("<LayerTypes><Any Value=\"2\">%1</Any></LayerTypes>");
    // clang-format off
    feature("a bare file, beside a record of defaults", {}, "screen / 0 0 2 / 0 / 0 / 0 / 0 / 0 / 0; modes / 1 1 2 / []; featuresLayout / 0 0 2 / 0 -1 2 0 0 0 255 0 1 / 0 -1 2 0 0 0 255 0 1; "
            "ftb / 0 0 2 / 0 -1 2 0 0 [] / 0 0 2 0 0 0 0 0 1; pattern / 0 0 2; genlock / 0 0 2 / 0 -1 2 0 0 [] / 0 -1 2 0 0 []; audio / -1 / -1 / -1 / -1 / -1 / 50");
    QTest::newRow("no features") << R"(<DCS><Device><Screens><Screen Type="1" Support="2" SpliceMode="3" IncompleteSplicing="4" CustomBuild="5" CustomDelete="6"
        Editable="7" LimitNum="8"/><Screen Type="9"/></Screens></Device></DCS>)"
        << "screen / 2 7 2 / 1 / 3 / 4 / 5 / 6 / 8; modes / 0 -1 2 / []; featuresLayout / 0 -1 2 / 0 -1 2 0 0 0 255 0 1 / 0 -1 2 0 0 0 255 0 1; "
           "ftb / 0 -1 2 / 0 -1 2 0 0 [] / 0 -1 2 0 0 0 255 0 1; pattern / 0 -1 2; genlock / 0 -1 2 / 0 -1 2 0 0 [] / 0 -1 2 0 0 []; audio / 0 / -1 / 0 / 255 / 0 / 0";
    for (const char* tag : {"General", "Mosaic", "ImageQuality", "Tbar", "HDR"}) feature(tag, with(tag, telling("Type") + telling("Name")), {});
    feature("BackgroundColor",              with("BackgroundColor", telling("R") + "<B/>"), "backgroundColor / 3 4 2 / 3 4 2 5 6 7 8 0 1 / 0 -1 2 0 0 0 255 0 1 / 0 0 2 0 0 0 0 0 1");
    feature("BackgroundColor G",            "<BackgroundColor><G Value=\"1\"/></BackgroundColor>", "backgroundColor / 0 0 2 / 0 -1 2 0 0 0 255 0 1 / 0 0 2 1 0 0 0 0 1 / 0 -1 2 0 0 0 255 0 1");
    feature("Layout is turned round",       with("Layout", telling("X")), "featuresLayout / 0 -1 2 / 0 -1 2 0 0 0 255 0 1 / 0 -1 2 0 0 0 255 0 1");
    feature("PGMEdit",                      telling("PGMEdit"),  "pgmEdit / 3 4 2 5 6 [11 12 0]");
    feature("Selected",                     telling("Selected"), "selected / 3 4 2 5 6 [11 12 0]");
    feature("Freeze",                       telling("Freeze"),   "freeze / 3 4 2 5 6 [11 12 0]");
    feature("FTB: Enable takes Time along", with("FTB", "<Before Value=\"1\"/><Enable Value=\"2\"/>" + telling("Time")), "ftb / 3 4 2 / 0 -1 2 0 0 [2 5] / 3 4 2 5 6 7 8 9 1");
    feature("FTB: Time first; half a step", "<FTB><Time Step=\"2.5\"/><Enable Value=\"2\"/><Enable/></FTB>", "ftb / 0 0 2 / 0 -1 2 0 0 [2 0] / 0 0 2 0 0 0 0 0 1");
    feature("TestPattern",                  with("TestPattern"), "pattern / 3 4 2");
    for (const char* tag : {"Enable", "Type", "Bright", "SupportZero", "GridGear", "GridType", "Speed"})
        feature(tag, "<TestPattern>" + telling(tag) + "</TestPattern>", tag + QString(" / 3 4 2 5 6 [11 12 0]"));
    feature("GridPixel",                    "<TestPattern>" + telling("GridPixel") + "</TestPattern>",     "GridPixel / 3 4 2 5 6 7 8 0 2.5");
    feature("GridPixel, no Coefficient",    "<TestPattern><GridPixel/></TestPattern>",                     "GridPixel / 0 0 2 0 0 0 0 0 0");
    feature("GridLineWidth",                "<TestPattern>" + telling("GridLineWidth") + "</TestPattern>", "GridLineWidth / 3 4 2 5 6 7 8 0 1");
    feature("SwitchEffect: the list alone", with("SwitchEffect", telling("Type")), "switchEffect / 0 -1 2 / 0 -1 2 0 0 [11 12 0]");
    feature("Genlock: Type is the sockets", with("Genlock", telling("Type") + telling("ConnectorTypes")), "genlock / 3 4 2 / 0 -1 2 0 0 [11 12 0] / 0 -1 2 0 0 []");
    feature("SenderGenLock",                with("SenderGenLock", with("InternalFrameRate") + telling("InternalFrameRateForm")), "senderGenLock / 3 4 2 / 5 / 0 / [11 12 0]");
    feature("InternalFrameRate",            "<SenderGenLock><InternalFrameRate Coefficient=\"6\"/></SenderGenLock>", "senderGenLock / 0 0 2 / 0 / 6 / []");
    feature("Audio",                        with("Audio", telling("Volume")),   "audio / 3 / 4 / 7 / 8 / 9 / 5");
    feature("Audio without Volume",         "<Audio/>",                         "audio / 0 / 0 / -1 / -1 / -1 / 50");
    feature("Audio with a bare Volume",     "<Audio><Volume/></Audio>",         "audio / 0 / 0 / 0 / 0 / 0 / 0");
    feature("ThreeD",                       with("ThreeD", telling("EmitterDelay")), "threeD / 7 / 8 / 5 / 9");
    feature("ThreeD without its delay",     with("ThreeD"), {});
    QTest::newRow("DeviceModes takes any tag") << screenFile({}, {}, with("DeviceModes", "<Mode Value=\"2\"/><Other/>")) << "modes / 3 4 2 / [2 0]; mode / 2 / 0 / 0 / 0 / 0 / 0; mode / 0 / 0 / 0 / 0 / 0 / 0";
    modes("mode: bare children",            mode.arg("<PVW/><Templetes/><LayerTypes/>"), "mode / 0 / 1 / 1 / 1 / 0 / 0");
    modes("mode: attributes",               mode.arg(R"(<PVW Support="3" SoftImp="4"/><Templetes Value="5"/>)"), "mode / 0 / 3 / 4 / 5 / 0 / 0");
    const QString oneTemplete = "mode / 0 / 0 / 0 / 0 / 1 / 0; name %1; size / %2 / 0 -1 2 0 0 [] / %3 / 0 -1 2 0 0 0 255 0 1";
    modes("template: bare",                 templete.arg(QString()), oneTemplete.arg(",", "0 -1 2 0 0 0 255 0 1", "0 -1 2 0 0 0 255 0 1"));
    modes("template: name and layouts",     templete.arg(R"(<Name en="Wall" zh_CN="墙"><en>Other</en></Name><Layouts><A Rows="1" Columns="2" ScreenId="3"><B X="1" Y="2" Width="3" Height="4" Row="5" Column="6"
        SlotIndex="7" ConnectorIndex="8"/><C X="-9"/></A><D/></Layouts>)"), oneTemplete.arg("Wall,墙", "0 -1 2 0 0 0 255 0 1", "0 -1 2 0 0 0 255 0 1") +
        "; layout / 1 / 2 / 3; cell / 1 / 2 / 3 / 4 / 5 / 6 / 7 / 8; cell / -9 / 0 / 0 / 0 / 0 / 0 / 0 / 0; layout / 0 / 0 / 0");
    modes("template: value is Support",     templete.arg(with("PhysicalSize", telling("DotPitch") + "<Width Value=\"7\"/>")), oneTemplete.arg(",", "3 4 2 3 6 7 8 0 1", "0 0 2 0 0 0 0 0 1"));
    modes("template: unit and height",      templete.arg(with("PhysicalSize", telling("Unit") + telling("Height"))), "mode / 0 / 0 / 0 / 0 / 1 / 0; name ,; size / 0 -1 2 0 0 0 255 0 1 / 3 4 2 3 6 [11 12 0] / 0 -1 2 0 0 0 255 0 1 / 3 4 2 3 6 7 8 0 1");
    modes("layer type: bare",               layer.arg(QString()), "mode / 0 / 0 / 0 / 0 / 0 / 1; layer / 2 / 0 / 0 / 0 -1 2 0 0 []");
    modes("layer type: bare children",      layer.arg("<LayerCount/><Unit/>"), "mode / 0 / 0 / 0 / 0 / 0 / 1; layer / 2 / 1 / 1 / 0 -1 2 1 1 []");
    modes("layer type: attributes",         layer.arg(R"(<LayerCount Max="16" Valid="8"/>)" + telling("Unit")), "mode / 0 / 0 / 0 / 0 / 0 / 1; layer / 2 / 16 / 8 / 0 -1 2 5 6 [11 12 0]");
    // clang-format on
}

/// The lines by which the record differs from the one of a bare file are the expected ones, and no other.
void TestScreens::fillsFields()
{
    QFETCH(QString, xml);
    QString error;
    s_DCSScreen bare;
    s_DCSScreen screen;
    if (xml != screenFile()) QVERIFY(read(screenFile(), error, bare));
    QVERIFY(read(xml, error, screen));
    QStringList changed = dump(screen);
    for (const QString& line : dump(bare)) changed.removeAll(line);
    QTEST(changed.join("; "), "expected");
}

void TestScreens::threeDStandsAlone()
{
    QDomDocument document;
    QVERIFY(document.setContent(QString("<A><ThreeD/><D><ThreeD><EmitterDelay Min='1' Max='x'/></ThreeD></D></A>")));
    const auto* const reader = ScreenConfigManager::instance();
    s_ThreeD threeD{1, 2, 3, 4};
    QString error;
    QVERIFY(!reader->threeDConfig(document.documentElement(), error, threeD));
    QCOMPARE(error, QString("Invalid [EmitterDelay] node."));
    QCOMPARE(threeD.value, 3);
    QVERIFY(reader->threeDConfig(document.documentElement().lastChildElement(), error, threeD));
    QCOMPARE(row(threeD.min, threeD.max, threeD.value, threeD.step), QString("1 0 0 0"));
}

void TestScreens::survivesALossAnywhere()
{
    QDomDocument document;
    QFile file(EXAMPLES_PATH "/halcyon/devices/halcyon16/screen_wall.xml");
    QVERIFY(document.setContent(&file));
    const QDomNodeList elements = document.elementsByTagName("*");
    s_DCSScreen screen;
    QString error;
    for (int i = 1; i < elements.size(); ++i) {
        QDomElement element = elements.at(i).toElement();
        const QString tag = element.tagName();
        element.setTagName("Gone");
        const bool required = QStringList{"Device", "Screens", "Screen"}.contains(tag);
        QVERIFY2(read(document.toString(), error, screen) != required, qPrintable(tag));
        element.setTagName(tag);
    }
}

void TestScreens::silkWalk()
{
    const auto readSilk = [](const QString& device, QString& error, std::vector<s_SilkOrder>& out) {
        const QString path = folder().write("silk.xml", "<DCS>" + device + "</DCS>");
        return SilkConfigManager::instance()->parseDeviceSilkcfg(path, error, out);
    };
    std::vector<s_SilkOrder> out{{7, 8, 9}};
    QString error;
    QVERIFY(!readSilk("<Device/>", error, out));
    QCOMPARE(error, QString("Invalid [Keys] node."));
    QVERIFY(readSilk("<Device><Keys/></Device>", error, out));
    QVERIFY(readSilk(R"(<Device><Keys><Skipped Slot="1"/><Key Slot="1" Connector="2" Order="3"/><Key/>
        <Any Order="x" Slot="4"/></Keys></Device>)",
                     error, out));
    QString shown;
    for (const s_SilkOrder& key : out) shown += row(key.slot, key.connector, key.order) + "; ";
    QCOMPARE(shown, QString("7 8 9; 1 2 3; 0 0 0; 4 0 0; "));
}

void TestScreens::loadsTheExamples()
{
    const QString device = EXAMPLES_PATH "/halcyon/devices/halcyon16/";
    const LogLines log;
    QString error;
    QMap<int, s_DCSScreen> screens;
    for (const QString& name : QDir(device).entryList({"screen_*.xml"})) {
        s_DCSScreen screen;
        QVERIFY(ScreenConfigManager::instance()->parseDeviceScreencfg(device + name, error, screen));
        screens[screen.type] = screen;
    }
    QCOMPARE(screens.keys(), QList<int>({1, 2, 3}));
    std::vector<s_SilkOrder> silk;
    QVERIFY(SilkConfigManager::instance()->parseDeviceSilkcfg(device + "silk.xml", error, silk));
    QVERIFY(!silk.empty());
    QCOMPARE(error, QString());
    QCOMPARE(log.taken(), QStringList());
}

QTEST_GUILESS_MAIN(TestScreens)
#include "test_screens.moc"
