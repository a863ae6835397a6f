// The connector catalogue: which files are read, what an absence costs, which attribute fills which field, and what the
// queries make of it.
#include "cards.h"
#include "connectorconfig_impl.h"

#include <QDomDocument>

namespace LCD::MainConfigImpl {
/// The catalogue behind the component, to be filled by hand.
struct ConnectorConfigTest {
    using Impl = ConnectorConfig::Impl;
    static Impl& of(ConnectorConfig& component) { return *component._impl; }
};
} // namespace LCD::MainConfigImpl

using namespace LCD::MainConfig;
using LCD::MainConfigImpl::ConnectorConfig;
using Test = LCD::MainConfigImpl::ConnectorConfigTest;
using Sizes = std::vector<s_resolutionResolutionRatio>;

namespace {

/// The example of a connector with everything, its numbers replaced by running ones from 1001 on. The example must keep
/// its elements and attributes in the order of the records' fields.
struct ConnectorFile {
    ConnectorFile()
    {
        QFile example(EXAMPLES_PATH "/halcyon/connectors/1.xml");
        if (!example.open(QIODevice::ReadOnly)) qFatal("no example");
        QString text = QString::fromUtf8(example.readAll());
        const QRegularExpression number("(?<!version)=\"[-.0-9]+\"");
        for (auto hit = number.match(text); hit.hasMatch(); hit = number.match(text, hit.capturedStart() + 1)) {
            numbers.append(1001 + numbers.size());
            text.replace(hit.capturedStart(), hit.capturedLength(), QStringLiteral("=\"%1\"").arg(numbers.last()));
        }
        document.setContent(text);
    }
    /// The connector itself, or an element below it.
    QDomElement at(const QString& path) const
    {
        QDomElement element = document.documentElement().firstChildElement().firstChildElement();
        for (const QString& tag : path.split('/', Qt::SkipEmptyParts)) element = element.firstChildElement(tag);
        return element;
    }

    QDomDocument document;
    QVector<double> numbers;
};

/// Sets every attribute that the element, or one below it, doesn't have and that is read elsewhere to -7.
void fill(QDomElement element)
{
    for (const char* name : {"Support", "Editable", "Value", "DataType", "Min", "Max", "Step", "Coefficient", "Type",
                             "SupportType", "RangeType", "Interlaced"})
        if (!element.hasAttribute(name)) element.setAttribute(name, -7);
    for (auto child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) fill(child);
}

/// The numbers that a file gave to a record, which lie beyond all defaults, in the order of its fields. The fields of
/// all records stand here in one order that agrees with each of them; one that is left out makes a number of the file
/// miss.
// clang-format off
template <class Record> QVector<double> numbersOf(const Record& r)
{
#define F(name) if constexpr (requires { r.name; }) all += numbersOf(r.name);
    QVector<double> all;
    if constexpr (std::is_arithmetic_v<Record>) { if (r > 1000 || r < -1) all.append(double(r)); }
    if constexpr (requires { r.begin(); }) for (const auto& entry : r) all += numbersOf(entry);
    if constexpr (requires { r.type + 0; }) all += numbersOf(r.type);
    F(support) F(editable) F(attrMode) F(value) F(dataType) F(min) F(max) F(step) F(enums) F(r) F(g) F(b) F(hpd) F(select) F(loopType)
    if constexpr (requires { r.type.enums; }) all += numbersOf(r.type);
    F(name) F(nameGB2312) F(signalType) F(capacityMode) F(interfaces) F(capacityModes) F(hdcp) F(player) F(hpds) F(general) F(presetTiming)
    F(presetTimings) F(colorDepths) F(colorSpaces) F(colorRanges) F(dynamicRange) F(hdr) F(formatMapping) F(imageQuality) F(crop)
    F(timingSelect) F(edid) F(interlaced) F(interlacedValues) F(bandWidth) F(resolutionRatios) F(resolutions) F(defaultResolution)
    F(advResolutionRatio) F(disables) F(width) F(height) F(refreshRate) F(refresh) F(rangeType) F(coefficient) F(refreshValues)
    F(horizontal) F(vertical) F(addTime) F(frontPorch) F(sync) F(totalTime) F(syncPolarity) F(syncPolarityValues) F(enable) F(hdcpType)
    F(colorDepth) F(colorSpace) F(colorRange) F(playFileType) F(autoPlayEnable) F(picturePlayTime) F(effectTime) F(effectType) F(filePath)
    F(diskType) F(contrast) F(brightness) F(hue) F(saturation) F(gamma) F(xRatio) F(yRatio) F(widthRatio) F(heightRatio) F(maxCount)
#undef F
    return all;
}
// clang-format on

/// What a load makes of some files, with a card that has plain connectors of some types, or without any card.
struct Load : CardFixture {
    explicit Load(const QMap<QString, QString>& files, const QStringList& types = {"0", "1", "5", "6"})
    {
        // Type 7 stands everywhere but in the plain list.
        const QString card = R"(<DCS><Subcards><Card><Name><zh_CN/><en/></Name><Connectors><Connector Type="%1"/>
            <DeviceMode><Capacitys><Capacity><Connector Type="7"/></Capacity></Capacitys></DeviceMode><Types><Type Type="7"/></Types>
            </Connectors><ConnectorGroups><Capacity><ConnectorGroup><Connector Type="7"/></ConnectorGroup></Capacity></ConnectorGroups>
            <CapacityGroups/><Sections/></Card></Subcards></DCS>)";
        addDevice({{"InputCardSlots", "1"}});
        if (!types.isEmpty()) folder.write("cards/1.xml", card.arg(types.join("\"/><Connector Type=\"")));
        if (!load()) qFatal("no cards");
        for (auto file = files.begin(); file != files.end(); ++file) folder.write("types/" + file.key(), file.value());
        read(folder.path("types"));
    }
    void read(const QString& path)
    {
        StandInHost host;
        host.serve<ISubcardConfig>("lcdSubcardConfig", catalogue);
        error = "untouched";
        good = connectors.readConfig(path, error);
    }

    Test::Impl connectors;
    bool good = false;
};

/// A connector with one interface that knows these modes, each with what it disables there.
s_ConnectorCfg connector(int type, int interfaceType, const std::vector<std::pair<int, Sizes>>& modes)
{
    s_ConnectorCfg made;
    made.type = type;
    made.interfaces = {{interfaceType, {}}};
    for (const auto& [value, disables] : modes)
        made.interfaces[0].capacityModes.push_back({{}, value, {}, {{}, {}, {}, disables}});
    return made;
}

QString listed(const Sizes& sizes)
{
    QStringList all;
    for (const auto& size : sizes) all.append(QStringLiteral("%1x%2").arg(size.width).arg(size.height));
    return all.join(' ');
}

} // namespace

class TestConnectors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fillsEachFieldFromItsAttribute();
    void chargesAnAbsence_data();
    void chargesAnAbsence();
    void readsAFileOrNot_data();
    void readsAFileOrNot();
    void loadsADirectory();
    void offersResolutions_data();
    void offersResolutions();
    void looksBeyondTheFirstConnector();
    void takesAGroupOfTheFirstConnector_data();
    void takesAGroupOfTheFirstConnector();
    void answersFromTheExample();
};

void TestConnectors::fillsEachFieldFromItsAttribute()
{
    const ConnectorFile file;
    const Test::Impl reader;
    const QDomElement quality = file.at("ImageQuality/Interface");
    QString error;
    s_ConnectorCfg read;
    fill(file.at(""));
    QVERIFY(reader.readConfigConnector(file.at(""), error, read));
    QCOMPARE(numbersOf(read), file.numbers);
    QCOMPARE(read.icon + read.name.zhCN + read.name.en + read.shortName.zhCN + read.shortName.en,
             std::string("hdmi20.pngHDMI 2.0接口HDMI 2.0 ConnectorHDMI2.0HDMI 2.0"));
    QCOMPARE(numbersOf(read.player.autoPlayEnableSecond), numbersOf(read.player.autoPlayEnable));

    // A setting alone: neither step nor coefficient.
    for (const auto readOne : {&Test::Impl::getAttribute, &Test::Impl::getRGB}) {
        s_RangeValue range;
        QVERIFY(!(reader.*readOne)(range, quality, QLatin1String("Alpha"), error));
        QCOMPARE(error + QString::number(range.max), QString("Invalid [Alpha] node.255"));
        QVERIFY((reader.*readOne)(range, quality, QLatin1String("Gamma"), error));
        QCOMPARE(numbersOf(range), numbersOf(read.imageQuality.interfaces.at(0).gamma).mid(0, 6));
    }
    // The coefficient of Gamma goes through single precision, and is 0 when absent.
    quality.firstChildElement("Gamma").setAttribute("Coefficient", "0.01");
    quality.nextSiblingElement().firstChildElement("Gamma").removeAttribute("Coefficient");
    QVERIFY(reader.readConfigConnector(file.at(""), error, read = {}));
    QCOMPARE(read.imageQuality.interfaces.at(0).gamma.coefficient, double(0.01F));
    QCOMPARE(read.imageQuality.interfaces.at(1).gamma.coefficient, 0.0);
}

void TestConnectors::chargesAnAbsence_data()
{
    QTest::addColumn<QString>("cost");
    QTest::addColumn<bool>("logged");
    const auto rows = [](const char* cost, bool logged, const QString& parent, const char* tags) {
        for (const QString& tag : QString(tags).split(' ')) QTest::newRow(qPrintable(parent + tag)) << cost << logged;
    };
    const QString ratios = "CapacityMode/Interface/CapacityMode/ResolutionRatios", adv = ratios + "/AdvResolutionRatio";
    // clang-format off
    rows("connector", false, "", "Name Name/zh_CN Name/en ShortName ShortName/zh_CN ShortName/en SignalType CapacityMode");
    rows("connector", false, "", "ImageQuality Crop TimingSelect TimingSelect/Select EDID CapacityMode/Interface/CapacityMode/BandWidth");
    rows("connector", false, ratios, " /ResolutionRatio /ResolutionRatio/Width /ResolutionRatio/Height /ResolutionRatio/RefreshRate");
    rows("connector", false, adv, " /Refresh /Horizontal /Vertical");
    rows("connector", false, adv + "/Horizontal", "/AddTime /FrontPorch /Sync /TotalTime");
    rows("connector", false, "Crop", "/Enable /XRatio /YRatio /WidthRatio /HeightRatio /MaxCount");
    rows("connector", true, "", "HDCP PresetTiming ColorDepths ColorSpaces ColorRanges FormatMapping DynamicRange");
    rows("connector", true, "General", " /Type /Name /NameGB2312");
    rows("entry", true, "HDCP/Interface", "/Enable /Type");
    rows("entry", true, "PresetTiming/Interface", "/Interlaced /BandWidth /Refresh /Horizontal /Vertical");
    rows("entry", true, "PresetTiming/Interface/Vertical", "/AddTime /FrontPorch /Sync /SyncPolarity /TotalTime");
    rows("entry", true, "Color", "Depths/Interface/ColorDepth Spaces/Interface/ColorSpace Ranges/Interface/ColorRange");
    rows("entry", false, "ImageQuality/Interface", "/Contrast /Brightness /Hue /Saturation /Gamma /Contrast/R /Contrast/G /Contrast/B");
    rows("Player", true, "Player", " /LoopType /PlayFileType /AutoPlayEnable /PicturePlayTime /EffectTime /EffectType /FilePath /DiskType");
    rows("HPDs", true, "HPDs", "");
    rows("nothing", false, "", "HPDs/Interface/HPD CapacityMode/Interface/CapacityMode/ResolutionRatios/Disables");
    // clang-format on
}

void TestConnectors::chargesAnAbsence()
{
    QFETCH(QString, cost);
    QFETCH(bool, logged);
    const QString path = QTest::currentDataTag();
    const ConnectorFile file;
    const QDomElement missing = file.at(path), entry = file.at(path.section('/', 0, 1));
    // A dropped entry has a twin that stays.
    if (cost == "entry") entry.parentNode().insertAfter(entry.cloneNode(), entry);
    missing.parentNode().removeChild(missing);
    const QString message = QStringLiteral("Invalid [%1] node.").arg(missing.tagName());
    QString error = "untouched";
    s_ConnectorCfg read;
    const LogLines lines;
    QCOMPARE(Test::Impl().readConfigConnector(file.at(""), error, read), cost != "connector");
    QCOMPARE(error, cost == "nothing" ? "untouched" : message);
    QCOMPARE(lines.taken(), logged ? QStringList("Log: " + message) : QStringList());
    // The numbers that stay are those of the file without the missing element and without what its absence costs.
    file.at(cost).parentNode().removeChild(file.at(cost));
    const QString text = file.document.toString();
    QVector<double> left;
    for (const double number : file.numbers)
        if (text.contains(QString::number(number))) left.append(number);
    if (cost != "connector") QCOMPARE(numbersOf(read), left);
}

void TestConnectors::readsAFileOrNot_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("files");
    QTest::addColumn<QString>("message");
    const char *const empty = "<DCS><Connectors/></DCS>", *const good = "untouched";
    // clang-format off
    QTest::newRow("used type")                  << "5.xml"               << empty                                           << 3 << good;
    QTest::newRow("type of no plain connector") << "7.xml"               << "<"                                             << 2 << good;
    QTest::newRow("no number counts as type 0") << "abc.xml"             << empty                                           << 3 << good;
    QTest::newRow("number up to the first dot") << "5.old.xml"           << empty                                           << 3 << good;
    QTest::newRow("tag counts, not the name")   << "resolutionratio.xml" << empty                                           << 3 << good;
    QTest::newRow("another tag")                << "5.xml"               << "<DCS><Devices/><Connectors/></DCS>"            << 2 << good;
    QTest::newRow("first element only")         << "5.xml"               << "<DCS><!-- --><Connectors/><Connectors/></DCS>" << 3 << good;
    QTest::newRow("empty root")                 << "5.xml"               << "<DCS version=\"1.0\"/>"                        << 2 << good;
    QTest::newRow("another root")    << "5.xml"        << "<LCD/>" << 1 << "The file is not a valid configuration file for device.";
    QTest::newRow("can't be opened") << "5.xml/inside" << ""       << 1 << "Fail to open file [%1]!";
    // clang-format on
}

void TestConnectors::readsAFileOrNot()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, message);
    const Load load({{"1.xml", "<DCS><Connectors/></DCS>"}, {name, text}, {"6.xml", "<DCS><Connectors/></DCS>"}});
    // What was read before a bad file stays; what comes after it is not read.
    QTEST(int(load.connectors.connectors.size()), "files");
    QCOMPARE(load.good, message == "untouched");
    QCOMPARE(load.error, message.replace("%1", load.folder.path("types/5.xml")));
}

void TestConnectors::loadsADirectory()
{
    QTest::ignoreMessage(QtWarningMsg, "device is empty");
    const Load cardless({}, {});
    QVERIFY(!cardless.good && cardless.error == "untouched");

    Load load({{"5.xml", ConnectorFile().document.toString().replace("<Connectors>", "<Connectors><Nameless/>")},
               {"6.xml", R"(<DCS><ResolutionRatios><Mode Value="1001"><Size Interlaced="1002" Width="1003" Height="1004"
                    Coefficient="-7"/><Any/></Mode><Other/></ResolutionRatios></DCS>)"},
               {"ResolutionRatio.xml", "<"}},
              {"5", "6"});
    QVERIFY(load.good && load.connectors.connectors.at(0).configs.size() == 1);
    QCOMPARE(load.error, QString("Invalid [Name] node."));
    auto& modes = load.connectors.resolutions.capacityModes;
    QCOMPARE(numbersOf(modes), (QVector<double>{1001, 1002, 1003, 1004}));
    QVERIFY(modes.size() == 2 && modes[0].resolutions.size() == 2 && modes[0].resolutions[1].interlaced == 0);
    QVERIFY(!load.connectors.readConfigResolution({}, load.connectors.resolutions) && modes.size() == 2);

    for (const QString& path : {QString(), load.folder.path("types/5.xml/below"), load.folder.path("made/of/need")}) {
        load.read(path);
        QCOMPARE(load.error, path.endsWith("need") ? "untouched" : "Invalid file path!\n" + path);
        QCOMPARE(load.good, path.endsWith("need") && QDir(path).exists());
    }
    // A second load appends connectors and replaces resolutions.
    load.folder.write("types/resolutionratio.xml", "<DCS><ResolutionRatios/></DCS>");
    load.read(load.folder.path("types"));
    QVERIFY(load.good && load.connectors.connectors.size() == 2 && modes.empty());
}

void TestConnectors::offersResolutions_data()
{
    QTest::addColumn<QString>("medium");
    QTest::addColumn<QVector<int>>("query");
    QTest::addColumn<QString>("offered");
    const QString small = "800x600 1920x1080 1920x1080", upTo1 = "1920x1080 1920x1080 2560x1440 3840x2160";
    const QString upTo2 = upTo1 + " 3840x2160 4096x2160", all = small + " 2560x1440 4096x2160";
    // clang-format off
    QTest::newRow("a higher mode disables nothing")          << "there"   << QVector<int>{0, 1, 1}  << small;
    QTest::newRow("a mode disables in the lower ones")       << "there"   << QVector<int>{1, 1, 2}  << upTo1;
    QTest::newRow("a mode above 2 is 2, duplicates stay")    << "there"   << QVector<int>{9, 1, 5}  << upTo2;
    QTest::newRow("negative mode")                           << "there"   << QVector<int>{-1, 1, 1} << "";
    QTest::newRow("the mask misses")                         << "there"   << QVector<int>{2, 1, 4}  << "";
    QTest::newRow("a mode that the connector doesn't know")  << "there"   << QVector<int>{2, 2, 2}  << "3840x2160";
    QTest::newRow("disabled by both numbers in any mode")    << "there"   << QVector<int>{2, 3, 1}  << all;
    QTest::newRow("an empty list takes its disables along")  << "empty"   << QVector<int>{1, 1, 1}  << small;
    QTest::newRow("a missing list takes its disables along") << "missing" << QVector<int>{1, 1, 1}  << small;
    // clang-format on
}

void TestConnectors::offersResolutions()
{
    QFETCH(QString, medium);
    QFETCH(QVector<int>, query);
    Test::Impl known;
    known.resolutions.capacityModes = {
        {0, {{800, 600}, {1024, 768}, {1920, 1080}, {1920, 1080, 0, 0}}},
        {medium == "missing" ? 9 : 1, medium == "empty" ? Sizes() : Sizes{{2560, 1440}, {3840, 2160}}},
        {2, {{3840, 2160}, {4096, 2160}}},
        {3, {{7680, 4320}}}};
    known.connectors = {{{connector(1, 3, {{0, {{1024, 768}}}, {1, {{800, 600, 9, 9}}}, {2, {}}, {3, {}}})}},
                        {{connector(2, 2, {{1, {{2560, 1440}}}})}},
                        {{connector(3, 1, {{0, {}}, {1, {}}, {2, {{3840, 2160}, {1024, 768}, {800, 768}}}})}}};
    if (medium == "missing") QTest::ignoreMessage(QtWarningMsg, "not find capacityMode: 1");
    QTEST(listed(known.findConnectorResolutions(query[0], query[1], query[2])), "offered");
}

void TestConnectors::looksBeyondTheFirstConnector()
{
    s_ConnectorCfg first = connector(1, 2, {{0, {{1, 1}}}}), second = connector(1, 2, {{0, {}}, {1, {{2, 2}}}});
    s_ConnectorCfg masked = connector(2, 6, {{0, {}}});
    second.interfaces.insert(second.interfaces.begin(), {6, {}});
    first.capacityMode.support = 2;
    second.capacityMode.support = masked.capacityMode.support = first.edid.support = 1;
    first.hpds.interfaces = {{{}, 3, {{}, 1}}};
    second.hpds.interfaces = {{{}, 1, {{}, 1}}, {{}, 2, {{}, 2}}};
    first.presetTimings = {{1, {}, {}, {}, {}, 1.0F, {10}, {}, {}}};
    second.presetTimings = {{6, {}, {}, {}, {}, 2.0F, {20}, {}, {}}};
    Test::Impl known;
    known.connectors = {{{first}}, {}, {{second, masked}}};

    QVERIFY(known.copyOf(1, &s_ConnectorCfg::edid)->support == 1 && known.hpd(1)->value == 2 && !known.hpd(2));
    // The interface type is a number here, and a mask for the others.
    QVERIFY(known.outputCapacityModes(1)->size() == 2 && !known.outputCapacityModes(2));
    QCOMPARE(listed(known.resolutionRatios(0, 1, 2)->disables), QString("1x1"));
    QCOMPARE(listed(known.resolutionRatios(1, 1, 2)->disables), QString("2x2"));
    QVERIFY(known.presetTiming(1, 3)->type == 1 && known.presetTiming(1, 2)->type == 6 && !known.presetTiming(1, 0));
    // A mode hands out its disables even when its standard list is missing, but not when the connector lacks it.
    Sizes disables{{3, 3}};
    known.findConnectorStandardResolution(2, 1, 2, disables);
    QCOMPARE(listed(disables), QString("3x3"));
    QTest::ignoreMessage(QtWarningMsg, "not find capacityMode: 1");
    known.findConnectorStandardResolution(1, 1, 2, disables);
    QCOMPARE(listed(disables), QString("2x2"));
}

void TestConnectors::takesAGroupOfTheFirstConnector_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVector<int>>("supports");
    QTest::newRow("no hit") << 3 << QVector<int>(5, -1);
    QTest::newRow("one hit") << 2 << QVector<int>{31, 32, 33, 34, 35};
    QTest::newRow("several hits") << 1 << QVector<int>{11, 12, 13, 14, 15};
}

void TestConnectors::takesAGroupOfTheFirstConnector()
{
    QFETCH(int, type);
    const auto marked = [](int ofType, int mark) {
        s_ConnectorCfg made = connector(ofType, 1, {});
        for (int* const support : {&made.hdcp.support, &made.player.support, &made.dynamicRange.support,
                                   &made.colorDepths.support, &made.colorSpaces.support})
            *support = ++mark;
        return made;
    };
    ConnectorConfig known;
    Test::of(known).connectors = {{{marked(1, 10), marked(1, 20)}}, {{marked(2, 30), marked(1, 40)}}};
    const auto support = [](const auto& group) { return group ? group->support : -1; };
    QTEST((QVector<int>{support(known.findHDCPInfo(type)), support(known.findPlayerInfo(type)),
                        support(known.findDynamicRangeInfo(type)), support(known.findColorDepthsInfo(type)),
                        support(known.findColorSpacesInfo(type))}),
          "supports");
}

void TestConnectors::answersFromTheExample()
{
    CardFixture stack;
    QVERIFY(stack.devices.readConfig(EXAMPLES_PATH "/halcyon/devices/halcyon16", stack.error));
    QVERIFY(stack.load(EXAMPLES_PATH "/halcyon/subcards"));
    StandInHost host;
    host.serve<ISubcardConfig>("lcdSubcardConfig", stack.catalogue);
    ConnectorConfig known;
    const LogLines lines;
    QVERIFY(known.readConfig(EXAMPLES_PATH "/halcyon/connectors", stack.error));
    QCOMPARE(stack.error + lines.taken().join(' '), QString());
    // Every connector file knows the modes in which the cards run its connectors.
    const auto cards = stack.catalogue.subcardConfig();
    for (const s_Subcard& card : cards->subcards)
        for (const s_SubcardConnector& used : card.connectors.connectors)
            QVERIFY(known.findConnectorDefaultResolution(used.capacityMode, used.type, used.interfaceType));

    QCOMPARE(known.findConnectorTypeName(2) + known.findConnectorTypeName(10), std::string("HDMI 1.4接口"));
    QVERIFY(!known.findHPDInfo(3) && !known.findEDIDInfo(10) && !known.findConnectorDefaultResolution(2, 6, 1));
    QVERIFY(known.findHPDInfo(2)->value == 500 && known.findHDRInfo(1)->editable == -1);
    QCOMPARE(known.findResoluCapacityMode(7)->at(1).bandWidth.max, std::int64_t(340000));
    QCOMPARE(listed(known.findConnectorResolutionRatios(1, 7, 2)->disables), QString("4096x2160"));
    QCOMPARE(listed(known.findConnectorResolutions(1, 6, 1)).section(' ', -1), QString("2560x1600"));
    const s_PresetRefresh rates = known.findConnectorRates(7, 2);
    QVERIFY(rates.refresh.value == 6000 && rates.coefficient == 0.01F && rates.refreshValues.size() == 10);
    QCOMPARE(known.findConnectorTiming(8, 8).bandWidth.max, 148500);
    QVERIFY(known.findConnectorRates(8, 7).refresh.editable == -1 && known.findConnectorTiming(8, 7).type == 0);
}

QTEST_GUILESS_MAIN(TestConnectors)
#include "test_connectors.moc"
