// The layer file: every element of it, from one tree of tags, once with a number of its own on each attribute and once
// with no attribute at all.
#include "deviceconfig.h"
#include "layerconfigmanager.h"
#include "support.h"

#include <QRegularExpression>

#include <functional>
#include <optional>

using namespace LCD::MainConfig;
using namespace LCD::MainConfigImpl;

namespace {

// clang-format off
/// The elements, each with the shape of the record that it fills. In brackets: the file is refused without it; in braces:
/// its subtree is dropped; in parentheses: it is optional. A second element of a tag, and "Note", are to be passed over.
const QString TREE = QStringLiteral(R"([Device [Layers [Layer:layer
    (CutFill:flags (Enable:choice) (Curve:flags (Start:nothing (X:point)(Y:point)) (End:flags (X:point)(Y:point)))
        (Relative:flags (X:point)(Y:point)(Width:point)(Height:point)))
    (Shadow:flags (General:nothing (Enable:setting (Enum)) (Feather:shade))
        (Window:flags (Width:shade)(Height:shade)(X:shade)(Y:shade))
        (Color:flags (R:shade)(G:shade)(B:shade)(Opacity:shade)))
    (IsInverse:choice) (MaxLayerNum:flags (Single:flags (Note)(Source)(Other))) (LayerSwitch:flags)
    [SceneType:choice] [ZOrder:plain] [Selected:choice] [General:flags [Name:point]]
    [IsBackground:choice] [IsFreeze:choice] [IsMonochrome:choice] [FlipType:choice]
    [Source:flags [Type:choice]
        [Crop:flags [Enable:choice] [WidthRatio:range] [HeightRatio:range] [XRatio:range] [YRatio:range]]]
    [Window:flags [Width:range][Height:range][X:range][Y:range]]
    [Borders:flags (Note) (Border:nothing (Enable:values)(Type:values) (Size:nothing (HWidth:width)(VWidth:width)))]
    [Mask:flags [Enable:choice] [Left:range][Right:range][Top:range][Bottom:range]]
    [CutoutGeneral:flags [Enable:choice] [Type:choice]
        [Brightness:flags [Threshold:percent] [Gain:plain]
            [ForegroundColor:flags [Enable:choice] [R:plain][G:plain][B:plain]]]
        [Intelligence:flags [Color [R:color][G:color][B:color]] [MattingStrength:share] [GainAdjust:share]]
        [Hue:flags [HueClip:clip] [HueRamp:ramp] [SaturationClip:control] [SaturationGain:control] [Spill:control]
            [Shadow:stepped] [HighLigh:control] [Color [R:color][G:color][B:color]]]]
    {DeviceModes:flags {CustomTemplateCount:setting}
        {DeviceMode:mode {Templates:templates (Template:template (Layout:layout)) (Other:template)}} (DeviceMode)}
    ] (Layer)]])");

/// What a shape reads into the fields of its record, in their order, with the read defaults; a dash is not read.
const QString FLAGS = "Support=1 Editable=1", SETTING = FLAGS + " - Value=0 DataType=0", VALUES = " Enum/Value=0 Other/Value=0";
const QString RANGE = SETTING + " Min=0 Max=%1", KEY = FLAGS + " - Value=%1 - Min=%2 Max=%3", STEP = " Step=1";
const QHash<QString, QString> SHAPES{
    {"nothing", "-"}, {"flags", FLAGS}, {"setting", SETTING}, {"choice", SETTING + VALUES}, {"values", "- - - - -" + VALUES},
    {"range", RANGE.arg(255) + STEP}, {"plain", RANGE.arg(255)}, {"percent", RANGE.arg(100)}, {"point", RANGE.arg(0)},
    {"shade", RANGE.arg(0) + STEP}, {"width", "- - - Value=0 - Min=0 Max=0 Step=0"}, {"color", KEY.arg(0).arg(0).arg(255)},
    {"share", KEY.arg(0).arg(0).arg(100)}, {"clip", KEY.arg(10).arg(5).arg(180)}, {"ramp", KEY.arg(90).arg(5).arg(180)},
    {"control", KEY.arg(10).arg(0).arg(100)}, {"stepped", KEY.arg(10).arg(0).arg(100) + STEP},
    {"layer", "Type=0 SupportHomology=0"}, {"mode", "Value=0"}, {"templates", "Value=0 AutoCreate=0 Type=0"},
    {"template", "Id=0 TemplateFlag=0"},
    {"layout", "Rows=0 Columns=0 BaseResolutionWidth=0 BaseResolutionHeight=0 CapacityMode=0"}};

const QStringList ATTRIBUTES = QString("Support Editable SupportType Value DataType Min Max Step Coefficient Type SupportHomology "
    "AutoCreate Id TemplateFlag Rows Columns BaseResolutionWidth BaseResolutionHeight CapacityMode").split(' ');
// clang-format on

using Keep = std::function<bool(const QString& path, const QString& bracket)>;
const Keep ALL = [](const QString&, const QString&) { return true; };
const Keep REQUIRED = [](const QString&, const QString& bracket) { return bracket == "["; };

struct LayerFile {
    bool numbered;
    QString xml = {};
    QStringList paths = {}, shapes = {}; ///< Of the elements, in document order.

    LayerFile(bool withNumbers, const Keep& keep) : numbered(withNumbers)
    {
        const QString tree = QString(TREE).replace(QRegularExpression("(:choice|:values)"), "\\1 (Enum)(Other)");
        QStringList path{};
        QVector<bool> kept{true};
        for (auto all = QRegularExpression(R"(([[({])(\w+):?(\w*)|[\])}])").globalMatch(tree); all.hasNext();) {
            const auto token = all.next();
            if (token.captured(2).isEmpty()) {
                const QString tag = path.takeLast();
                if (kept.takeLast()) xml += "</" + tag + '>';
                continue;
            }
            path.append(token.captured(2));
            kept.append(kept.last() && keep(path.join('/'), token.captured(1)));
            if (!kept.last()) continue;
            paths.append(path.join('/'));
            shapes.append(token.captured(3));
            xml += '<' + path.last();
            for (int i = 0; numbered && i < ATTRIBUTES.size(); ++i)
                xml += QStringLiteral(" %1='%2'").arg(ATTRIBUTES[i]).arg(100 * paths.size() + i);
            xml += '>';
        }
        xml = "<DCS>" + xml + "</DCS>";
    }

    /// What a field of an element's record is read from; nothing when the file leaves the field alone.
    [[nodiscard]] std::optional<double> expected(const QString& path, const QString& field) const
    {
        const QString attribute = path + '/' + field.section('=', 0, 0);
        const int element = paths.indexOf(attribute.section('/', 0, -2));
        if (field == "-" || element < 0) return {};
        if (!numbered) return field.section('=', 1).toDouble();
        return 100 * (element + 1) + ATTRIBUTES.indexOf(attribute.section('/', -1));
    }
};

struct Result {
    bool good = false;
    s_DCSLayer layer = {};
    QString error = {};
    QStringList lines = {};
};

Result readFile(const QString& path)
{
    Result result;
    const LogLines log;
    result.good = LayerConfigManager::instance()->parseDeviceLayercfg(path, result.error, result.layer);
    result.lines = log.taken();
    return result;
}

Result read(const QString& xml)
{
    const Folder folder;
    return readFile(folder.write("layer.xml", xml));
}

using Numbers = QVector<double>;

Numbers numbers(const Numbers& of) { return of; }
template <class Record> Numbers numbers(const Record& of)
{
    Numbers all{double(of.support), double(of.editable), double(of.attrMode)};
    if constexpr (requires { of.value.size(); })
        all << QString::fromStdString(of.value).toDouble() << of.dataType;
    else if constexpr (requires { of.value; })
        all << of.value << of.dataType;
    if constexpr (requires { of.max; }) all << double(of.min) << double(of.max);
    if constexpr (requires { of.step; }) all << of.step << of.coefficient;
    if constexpr (requires { of.enums; })
        for (const EnumValue& allowed : of.enums) all << allowed.value;
    return all;
}

/// The fields of every record of a layer that the tree gives a shape, in its order.
QVector<Numbers> allNumbers(const s_Layer& layer)
{
    const auto& [fillInfo, fillEnable, curve, relative] = layer.cutFill;
    const auto& [shadowInfo, shadowGeneral, offset, color] = layer.shadow;
    const auto& [sourceInfo, sourceType, crop] = layer.source;
    const auto& [windowInfo, width, height, x, y] = layer.window;
    const auto& [maskInfo, maskEnable, left, right, top, bottom] = layer.mask;
    const auto& [cutoutInfo, cutoutEnable, cutoutType, luma, hue, matting] = layer.cutoutGeneral;
    const auto& front = luma.foregroundColor;
    const auto& modes = layer.deviceModes;
    const s_Border border = layer.borders.empty() ? s_Border() : layer.borders[0];
    std::vector<s_Template> templates = modes.templates;
    templates.resize(2);
    const auto& [t, other] = std::tie(templates[0], templates[1]);
    const auto listed = [](const auto&... all) { return QVector<Numbers>{numbers(all)...}; };
    const auto flags = [](const s_SupportInfo& record) { return numbers(record); };
    return listed(
        Numbers{double(layer.type), double(layer.supportHomology)}, fillInfo, fillEnable, curve.info, flags(curve.end),
        curve.start.x, curve.start.y, flags(curve.start), curve.end.x, curve.end.y, relative.info, relative.x,
        relative.y, relative.width, relative.height, shadowInfo, shadowGeneral.info, shadowGeneral.enable,
        shadowGeneral.feather, offset.info, offset.width, offset.height, offset.x, offset.y, color.info, color.r,
        color.g, color.b, color.opacity, layer.isInverse, layer.maxLayerNum.info, layer.maxLayerNum.single,
        layer.layerSwitch, layer.sceneType, layer.zOrder, layer.selected, layer.general.info, layer.general.name,
        layer.isBackground, layer.isFreeze, layer.isMonochrome, layer.flipType, sourceInfo, sourceType, crop.info,
        crop.enable, crop.widthRatio, crop.heightRatio, crop.xRatio, crop.yRatio, windowInfo, width, height, x, y,
        layer.bordersInfo, border.info, border.enable, border.type, flags(border.size), border.size.hWidth,
        border.size.vWidth, maskInfo, maskEnable, left, right, top, bottom, cutoutInfo, cutoutEnable, cutoutType,
        luma.info, luma.threshold, luma.gain, flags(front), front.enable, front.r, front.g, front.b, matting.info,
        matting.r, matting.g, matting.b, matting.mattingStrength, matting.gainAdjust, hue.info, hue.hueClip,
        hue.hueRamp, hue.saturationClip, hue.saturationGain, hue.spill, hue.shadow, hue.highLigh, hue.r, hue.g, hue.b,
        modes.info, modes.customTemplateCount, Numbers{double(modes.deviceMode)},
        Numbers{double(modes.templatesValue), double(modes.autoCreate), double(modes.templatesType)},
        Numbers{double(t.id), double(t.templateFlag)},
        Numbers{double(t.rows), double(t.columns), double(t.baseResolutionWidth), double(t.baseResolutionHeight),
                double(t.capacityMode)},
        Numbers{double(other.id), double(other.templateFlag), double(other.rows)});
}

} // namespace

class TestLayers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void endsBefore_data();
    void endsBefore();
    void readsEveryElement_data();
    void readsEveryElement();
    void walksItsLists();
    void answersFromTheFilesThatCouldBeRead();
    void loadsTheExample();
};

void TestLayers::endsBefore_data()
{
    QTest::addColumn<bool>("accepted");
    LayerFile(false, [](const QString& path, const QString& bracket) {
        if (bracket != "(") QTest::newRow(qPrintable(path)) << (bracket == "{");
        return bracket != "(";
    });
}

void TestLayers::endsBefore()
{
    // What is read after the element is missing too, so that the message tells the order of reading.
    const QString missing = QTest::currentDataTag();
    bool ended = false;
    const Keep before = [&](const QString& path, const QString&) { return !(ended = ended || path == missing); };
    const LayerFile file(false, before);
    const auto [good, layer, error, lines] = read(file.xml);
    QTEST(good, "accepted");
    const QString hue = missing.endsWith("Hue/Color") ? "hueColor " : "";
    QCOMPARE(error, QStringLiteral("Invalid %1[%2] node.").arg(hue, missing.section('/', -1)));
    QCOMPARE(lines, good ? QStringList{error} : QStringList());
    QCOMPARE(layer.layerSwitch.support, int(good));
    QCOMPARE(layer.cutoutGeneral.info.support, int(good));
    QCOMPARE(layer.deviceModes.customTemplateCount.support, 0);
    QCOMPARE(layer.sceneType.support, int(file.paths.contains("Device/Layers/Layer/SceneType")));
}

void TestLayers::readsEveryElement_data()
{
    QTest::addColumn<Numbers>("found");
    QTest::addColumn<Numbers>("expected");
    const LayerFile whole(true, ALL), bare(false, ALL), minimal(true, REQUIRED);
    for (const auto& [name, file] : {std::pair("numbers", &whole), {"no attributes", &bare}, {"minimal", &minimal}}) {
        const QVector<Numbers> found = allNumbers(read(file->xml).layer), untouched = allNumbers(s_Layer());
        int record = 0;
        for (int i = 0; i < whole.paths.size(); ++i) {
            if (whole.shapes[i].isEmpty()) continue;
            Numbers expected = untouched[record];
            const QStringList fields = SHAPES[whole.shapes[i]].split(' ');
            for (int field = 0; field < fields.size(); ++field)
                if (const auto value = file->expected(whole.paths[i], fields[field])) {
                    expected.resize(qMax(expected.size(), field + 1));
                    expected[field] = *value;
                }
            QTest::addRow("%s: %s", name, qPrintable(whole.paths[i])) << found[record++] << expected;
        }
        QCOMPARE(record, found.size());
    }
}

void TestLayers::readsEveryElement()
{
    QFETCH(Numbers, found);
    QTEST(found, "expected");
}

void TestLayers::walksItsLists()
{
    const Result minimal = read(LayerFile(false, REQUIRED).xml);
    QVERIFY(minimal.good && minimal.layer.borders.empty());

    QString xml = LayerFile(false, ALL).xml;
    xml.replace("<Note></Note><Border>", "<!-- --><Border/><Foo><Size><VWidth Max='9'/></Size></Foo><Border>");
    xml.replace("<Single><Note></Note><Source>", "<Single Value='4'><Note/><Source Value='9'>");
    const auto [good, layer, error, lines] = read(xml);
    QVERIFY(good && error.isEmpty() && lines.isEmpty());
    QCOMPARE(int(layer.borders.size()), 3);
    QCOMPARE(layer.borders[0].size.hWidth.max, 255);
    QCOMPARE(layer.borders[1].size.hWidth.max, 0);
    QCOMPARE(layer.borders[1].size.vWidth.max, 9);
    QCOMPARE(int(layer.deviceModes.templates.size()), 2);
    QCOMPARE(int(layer.maxLayerNum.sources.size()), 2);
    QCOMPARE(numbers(layer.maxLayerNum.sources[1]), (Numbers{1, 1, 2, 4, 0, 0, 255, 0, 1}));
    QCOMPARE(layer.general.name.value, std::string("0"));
}

void TestLayers::answersFromTheFilesThatCouldBeRead()
{
    const Folder folder;
    const auto write = [&folder](const char* name, int type, int mark) {
        QString xml = LayerFile(false, ALL).xml;
        xml.replace("<Layer>", QStringLiteral("<Layer Type='%1'>").arg(type));
        xml.replace(QRegularExpression("<(Window|CutoutGeneral)>"), QStringLiteral("<\\1 Support='%1'>").arg(mark));
        folder.write(name, xml);
    };
    write("layer_1.xml", 4, 41);
    folder.write("layer_2.xml", "<DCS><Device/></DCS>");
    write("layer_3.xml", 7, 71);
    write("layer_4.xml", 7, 72);
    const LogLines log;
    DeviceConfig config;
    QString error;
    QVERIFY(config.readConfig(folder.path(), error));
    QCOMPARE(log.taken(), QStringList{"Error: Invalid [Layers] node."});
    QCOMPARE(config.DeviceConfigs().first().layers.size(), 3);

    QCOMPARE(config.layerConfigs(4)->window.info.support, 41);
    QCOMPARE(config.layerConfigs(7)->window.info.support, 71);
    QCOMPARE(config.layerCutoutConfigs(7)->info.support, 71);
    QCOMPARE(config.findLayerWindowDefaultRange(7).info.support, 71);
    QCOMPARE(config.findLayerWindowDefaultRange(9).info.editable, -1);
    QCOMPARE(config.findLayerWindowDefaultRange(9).width.max, 255);
    QVERIFY(!config.layerConfigs(9) && !config.layerCutoutConfigs(9));
    QCOMPARE(log.taken(), (QStringList{"could not find layer type(9)'s cfg.", "could not find layer type:(9)'s cfg."}));
}

void TestLayers::loadsTheExample()
{
    const QStringList types{"mixing", "pip", "background", "osd"};
    for (int i = 0; i < types.size(); ++i) {
        const Result result = readFile(EXAMPLES_PATH "/halcyon/devices/halcyon16/layer_" + types[i] + ".xml");
        QVERIFY2(result.good && result.error.isEmpty() && result.lines.isEmpty(), qPrintable(result.error));
        QCOMPARE(result.layer.type, i + 1);
    }
}

QTEST_GUILESS_MAIN(TestLayers)
#include "test_layers.moc"
