// The layer file, from one tree of its elements.
#include "deviceconfig.h"
#include "layerconfig.h"
#include "support.h"
#include "tree.h"

using namespace LCD::MainConfig;
using namespace LCD::MainConfigImpl;
using namespace tree;

namespace {

// clang-format off
/// In the order of reading, but for the optional elements. "Note" and a second "Layer" or "DeviceMode" are passed over; a
/// number beside the fields of a list's entry is the length of the list.
Element layerTree(const s_Layer& layer)
{
    const auto flags = [](const s_SupportInfo& record) { return record; };
    const auto& [fillInfo, fillEnable, curve, relative] = layer.cutFill;
    const auto& [shadowInfo, general, offset, color] = layer.shadow;
    const auto& [info, width, height, x, y] = layer.window;
    const auto& [maskInfo, maskEnable, left, right, top, bottom] = layer.mask;
    const auto& [cutInfo, cutEnable, cutType, luma, hue, matting] = layer.cutoutGeneral;
    const auto& crop = layer.source.crop;      const auto& front = luma.foregroundColor;      const auto& max = layer.maxLayerNum;
    const auto& modes = layer.deviceModes;     const auto& templates = modes.templates;       const auto t = at(templates, 1);
    const auto& borders = layer.borders;       const auto border = at(borders, 0);
    return el("!Device", el("!Layers", el("!Layer layer", layer.type, layer.supportHomology, layer.shadowEnableFlag,
        el("CutFill flags", fillInfo, el("Enable choice", fillEnable),
            el("Curve flags", curve.info, // The flags of the end go to the start.
                el("Start unread", flags(curve.end), el("X point", curve.start.x), el("Y point", curve.start.y)),
                el("End flags", flags(curve.start), el("X point", curve.end.x), el("Y point", curve.end.y))),
            el("Relative flags", relative.info, el("X point", relative.x), el("Y point", relative.y), el("Width point", relative.width),
                el("Height point", relative.height))),
        el("Shadow flags", shadowInfo,
            el("General unread", general.info, el("Enable setting", general.enable, el("Enum")), el("Feather range 0", general.feather)),
            el("Window flags", offset.info, el("Width range 0", offset.width), el("Height range 0", offset.height),
                el("X range 0", offset.x), el("Y range 0", offset.y)),
            el("Color flags", color.info, el("R range 0", color.r), el("G range 0", color.g), el("B range 0", color.b),
                el("Opacity range 0", color.opacity))),
        el("IsInverse choice", layer.isInverse),
        el("MaxLayerNum flags", max.info, // The sources repeat what stands in the element above them.
            el("Single single", max.single, int(max.sources.size()), at(max.sources, 1), el("Note"), el("Source"), el("Other"))),
        el("LayerSwitch flags", layer.layerSwitch),
        el("!SceneType choice", layer.sceneType), el("!ZOrder plain 255", layer.zOrder), el("!Selected choice", layer.selected),
        el("!General flags", layer.general.info, el("!Name text", layer.general.name)), el("!IsBackground choice", layer.isBackground),
        el("!IsFreeze choice", layer.isFreeze), el("!IsMonochrome choice", layer.isMonochrome), el("!FlipType choice", layer.flipType),
        el("!Source flags", layer.source.info, el("!Type choice", layer.source.type),
            el("!Crop flags", crop.info, el("!Enable choice", crop.enable), el("!WidthRatio range 255", crop.widthRatio),
                el("!HeightRatio range 255", crop.heightRatio), el("!XRatio range 255", crop.xRatio),
                el("!YRatio range 255", crop.yRatio))),
        el("!Window flags", info, el("!Width range 255", width), el("!Height range 255", height), el("!X range 255", x),
            el("!Y range 255", y)),
        el("!Borders flags", layer.bordersInfo, el("Note"), // From the first "Border" on, every tag is one.
            el("Border count", int(borders.size()), border.info, el("Enable values", border.enable), el("Type values", border.type),
                el("Size unread", flags(border.size), el("HWidth width", border.size.hWidth), el("VWidth width", border.size.vWidth))),
            el("Other", el("Size bare", at(borders, 1).size.hWidth))),
        el("!Mask flags", maskInfo, el("!Enable choice", maskEnable), el("!Left range 255", left), el("!Right range 255", right),
            el("!Top range 255", top), el("!Bottom range 255", bottom)),
        el("!CutoutGeneral flags", cutInfo, el("!Enable choice", cutEnable), el("!Type choice", cutType),
            el("!Brightness flags", luma.info, el("!Threshold plain 100", luma.threshold), el("!Gain plain 255", luma.gain),
                el("!ForegroundColor flags", flags(front), el("!Enable choice", front.enable), el("!R plain 255", front.r),
                    el("!G plain 255", front.g), el("!B plain 255", front.b))),
            el("!Intelligence flags", matting.info,
                el("!Color", el("!R key 0 0 255", matting.r), el("!G key 0 0 255", matting.g), el("!B key 0 0 255", matting.b)),
                el("!MattingStrength key 0 0 100", matting.mattingStrength), el("!GainAdjust key 0 0 100", matting.gainAdjust)),
            el("!Hue flags", hue.info, el("!HueClip key 10 5 180", hue.hueClip), el("!HueRamp key 90 5 180", hue.hueRamp),
                el("!SaturationClip key 10 0 100", hue.saturationClip), el("!SaturationGain key 10 0 100", hue.saturationGain),
                el("!Spill key 10 0 100", hue.spill), el("!Shadow stepped 10 0 100", hue.shadow),
                el("!HighLigh key 10 0 100", hue.highLigh),
                el("!Color", el("!R key 0 0 255", hue.r), el("!G key 0 0 255", hue.g), el("!B key 0 0 255", hue.b)))),
        el("~DeviceModes flags", modes.info, el("~CustomTemplateCount setting", modes.customTemplateCount),
            el("~DeviceMode mode", modes.deviceMode,
                el("~Templates templates", modes.templatesValue, modes.autoCreate, modes.templatesType, el("Other"),
                    el("Template template", int(templates.size()), t.id, t.templateFlag,
                        el("Layout layout", t.rows, t.columns, t.baseResolutionWidth, t.baseResolutionHeight, t.capacityMode)))),
            el("DeviceMode"))), el("Layer")));
}

const QHash<QString, QStringList> SHAPES{
    // What is stored: numbers in the attributes                               no attribute               no element
    {"layer",     {"Type SupportHomology 1",                                    "0 0 1",                   "1 -1 1"}},
    {"flags",     {"Support Editable 2",                                        "1 1 2",                   "0 -1 2"}},
    {"unread",    {"0 -1 2",                                                    "0 -1 2",                  "0 -1 2"}},
    {"setting",   {"Support Editable 2 Value DataType",                         "1 1 2 0 0",               "0 -1 2 0 0"}},
    {"choice",    {"Support Editable 2 Value DataType Enum Other",              "1 1 2 0 0 0 0",           "0 -1 2 0 0"}},
    {"values",    {"0 -1 2 0 0 Enum Other",                                     "0 -1 2 0 0 0 0",          "0 -1 2 0 0"}},
    {"range",     {"Support Editable 2 Value DataType Min Max Step 1",          "1 1 2 0 0 0 %1 1 1",      "0 -1 2 0 0 0 255 0 1"}},
    {"plain",     {"Support Editable 2 Value DataType Min Max 0 1",             "1 1 2 0 0 0 %1 0 1",      "0 -1 2 0 0 0 255 0 1"}},
    {"point",     {"Support Editable 2 Value DataType Min Max",                 "1 1 2 0 0 0 0",           "0 -1 2 0 0 0 255"}},
    {"text",      {"Support Editable 2 Value DataType Min Max",                 "1 1 2 0 0 0 0",           "0 -1 2 - 0 0 255"}},
    {"key",       {"Support Editable 2 Value 0 Min Max 0 1",                    "1 1 2 %1 0 %2 %3 0 1",    "0 -1 2 0 0 0 255 0 1"}},
    {"stepped",   {"Support Editable 2 Value 0 Min Max Step 1",                 "1 1 2 %1 0 %2 %3 1 1",    "0 -1 2 0 0 0 255 0 1"}},
    {"single",    {"Support Editable 2 2 Support Editable 2 Value 0 0 255 0 1",
                   "1 1 2 2 1 1 2 0 0 0 255 0 1", "0 -1 2 0 0 -1 2 0 0 0 255 0 1"}},
    {"count",     {"2 0 -1 2",                                                  "2 0 -1 2",                "0 0 -1 2"}},
    {"width",     {"0 -1 2 Value 0 Min Max Step 1",                             "0 -1 2 0 0 0 0 0 1",      "0 -1 2 0 0 0 255 0 1"}},
    {"bare",      {"0 -1 2 0 0 0 0 0 1",                                        "0 -1 2 0 0 0 0 0 1",      "0 -1 2 0 0 0 255 0 1"}},
    {"mode",      {"Value",                                                     "0",                       "255"}},
    {"templates", {"Value AutoCreate Type",                                     "0 0 0",                   "0 0 0"}},
    {"template",  {"2 Id TemplateFlag",                                         "2 0 0",                   "0 0 0"}},
    {"layout",    {"Rows Columns BaseResolutionWidth BaseResolutionHeight CapacityMode", "0 0 0 0 0",      "0 0 0 0 0"}},
};
// clang-format on

} // namespace

class TestLayers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void endsBefore_data();
    void endsBefore();
    void readsEveryElement();
    void isSilentOnTheOptional();
    void loadsADirectory();

private:
    bool read(const File& file, QString& error, s_DCSLayer& layer)
    {
        const QString path = _folder.write("layer.xml", "<DCS>" + file.xml + "</DCS>");
        return LayerConfigManager::instance()->parseDeviceLayercfg(path, error, layer);
    }

    const Folder _folder;
};

void TestLayers::endsBefore_data()
{
    QTest::addColumn<bool>("accepted");
    File{SHAPES, false,
         [](const QString& path, QChar mark) {
             if (!mark.isNull()) QTest::newRow(qPrintable(path)) << (mark == '~');
             return !mark.isNull();
         }}
        .add(layerTree({}));
}

/// What is read after the element is missing too, so that the message tells the order of reading.
void TestLayers::endsBefore()
{
    const QString missing = QTest::currentDataTag();
    bool ended = false;
    File file{SHAPES, false, [&](const QString& path, QChar) { return !(ended = ended || path == missing); }};
    const LogLines log;
    QString error;
    s_DCSLayer layer;
    const bool good = read(file.add(layerTree({})), error, layer);
    QTEST(good, "accepted");
    const QString hue = missing.endsWith("Hue/Color") ? "hueColor " : "";
    QCOMPARE(error, QString("Invalid %1[%2] node.").arg(hue, missing.section('/', -1)));
    QCOMPARE(log.taken(), good ? QStringList{"debug: " + error} : QStringList());
    QCOMPARE(layer.sceneType.support, int(file.xml.contains("</SceneType>")));
    QCOMPARE(layer.layerSwitch.support, int(good));
    // The keying and the device modes are stored whole or not at all.
    QCOMPARE(show(layer.cutoutGeneral.info.support, layer.deviceModes.info.support), show(int(good), 0));
}

/// The last one is refused, and shows the defaults of the records.
void TestLayers::readsEveryElement()
{
    const QString all = "all", required = "!", none;
    for (const auto& [numbers, kept] : {std::pair(true, all), {false, all}, {true, required}, {true, none}}) {
        File file{SHAPES, numbers, [&](const QString&, QChar mark) { return kept == all || kept.contains(mark); }};
        const LogLines log;
        s_DCSLayer layer;
        QString error;
        QCOMPARE(read(file.add(layerTree({})), error, layer), !kept.isEmpty());
        QCOMPARE(shown(layerTree(layer)), file.lines);
        QCOMPARE(log.taken().join('|'), QString(kept == required ? "debug: Invalid [DeviceModes] node." : ""));
    }
}

/// An optional element is missing where the one around it is there.
void TestLayers::isSilentOnTheOptional()
{
    QStringList optional, required;
    File{SHAPES, true,
         [&](const QString& path, QChar mark) {
             (mark.isNull() ? optional : required) << path;
             return true;
         }}
        .add(layerTree({}));
    for (const QString& missing : optional) {
        if (required.contains(missing)) continue; // A second one.
        File file{SHAPES, true, [&](const QString& path, QChar) { return path != missing; }};
        const LogLines log;
        s_DCSLayer layer;
        QString error;
        QVERIFY2(read(file.add(layerTree({})), error, layer), qPrintable(missing));
        QVERIFY2(error.isEmpty() && log.taken().isEmpty(), qPrintable(missing + ": " + error));
    }
}

/// A refused file among the example's costs itself alone.
void TestLayers::loadsADirectory()
{
    const Folder folder;
    const QDir examples(EXAMPLES_PATH "/halcyon/devices/halcyon16");
    for (const QString& name : examples.entryList({"*.xml"})) QFile::copy(examples.filePath(name), folder.path(name));
    folder.write("layer_c.xml", "<DCS><Device/></DCS>");
    const LogLines log;
    DeviceConfig config;
    QString error, types;
    QVERIFY(config.readConfig(folder.path(), error));
    QCOMPARE(error + log.taken().join('|'), QString("Error: Invalid [Layers] node."));
    const s_Device& device = config.DeviceConfigs().first();
    for (const s_DCSLayer& layer : device.layers) types += show(layer.type) + ' ';
    for (const s_DCSScreen& screen : device.screens) types += show(screen.type) + ' ';
    QCOMPARE(types, QString("3 1 4 2 3 2 1 "));
    QVERIFY(!device.silkOrders.empty());
}

QTEST_GUILESS_MAIN(TestLayers)
#include "test_layers.moc"
