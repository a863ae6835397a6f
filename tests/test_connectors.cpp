// The connector files: which are read, what an absence costs, and which attribute fills which field.
#include "connectorconfig_impl.h"
#include "standincards.h"
#include "standinhost.h"
#include "support.h"

#include <QDomDocument>
#include <QRegularExpression>

#include <numeric>

using namespace LCD::MainConfig;
using LCD::MainConfigImpl::ConnectorConfig;

namespace {

/// The example of a connector with everything, its numbers replaced by running ones from 1001 on.
class ConnectorFile {
public:
    ConnectorFile()
    {
        QFile example(EXAMPLES_PATH "/halcyon/connectors/1.xml");
        if (!example.open(QIODevice::ReadOnly)) qFatal("no example");
        QString text = QString::fromUtf8(example.readAll());
        static const QRegularExpression number("(?<!version)=\"[-.0-9]+\"");
        for (auto hit = number.match(text); hit.hasMatch(); hit = number.match(text, hit.capturedStart() + 1))
            text.replace(hit.capturedStart(), hit.capturedLength(), QStringLiteral("=\"%1\"").arg(++_last));
        _document.setContent(text);
    }
    [[nodiscard]] QString text() const { return _document.toString(); }
    /// The numbers of the file in its order.
    [[nodiscard]] QVector<double> numbers() const
    {
        QVector<double> all(_last - 1000);
        std::iota(all.begin(), all.end(), 1001.0);
        return all;
    }
    /// The connector itself, or an element below it.
    [[nodiscard]] QDomElement at(const QString& path) const
    {
        QDomElement element = _document.documentElement().firstChildElement().firstChildElement();
        for (const QString& tag : path.split('/', Qt::SkipEmptyParts)) element = element.firstChildElement(tag);
        if (element.isNull()) qFatal("no %s in the example", qPrintable(path));
        return element;
    }
    void duplicate(const QString& path) { at(path).parentNode().insertAfter(at(path).cloneNode(), at(path)); }
    void remove(const QString& path) { at(path).parentNode().removeChild(at(path)); }

    /// Sets every attribute that the element, or one below it, doesn't have and that is read elsewhere to -7.
    static void fill(QDomElement element)
    {
        for (const char* name : {"Support", "Editable", "Value", "DataType", "Min", "Max", "Step", "Coefficient",
                                 "Type", "SupportType", "RangeType", "Interlaced"})
            if (!element.hasAttribute(name)) element.setAttribute(name, -7);
        for (auto child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) fill(child);
    }

private:
    QDomDocument _document;
    int _last = 1000;
};

/// What a load made of some files.
struct Load {
    explicit Load(const QMap<QString, QString>& files, std::initializer_list<int> types = {0, 1, 5, 6}) : cards(types)
    {
        for (auto file = files.begin(); file != files.end(); ++file) folder.write(file.key(), file.value());
        read(folder.path());
    }
    void read(const QString& path)
    {
        StandInHost host;
        host.serve<ISubcardConfig>("lcdSubcardConfig", cards);
        const LogLines lines;
        error = "untouched";
        good = catalogue.readConfig(path, error);
        log = lines.taken();
    }

    Folder folder;
    standin::Cards cards;
    ConnectorConfig::Impl catalogue;
    bool good = false;
    QString error;
    QStringList log;
};

/// The numbers of a record in the order of its fields, with the defaults that no file changes left out.
class Numbers {
public:
    QVector<double> all;

    // clang-format off
    template <class... Fields> void add(const Fields&... fields) { (one(fields), ...); }

private:
    template <class Number> requires std::is_arithmetic_v<Number> void one(Number number) { if (number > 1000 || number < -1) all.append(double(number)); }
    template <class Entry> void one(const std::vector<Entry>& list) { for (const Entry& entry : list) one(entry); }
    template <class Record> requires requires(Record r) { r.interfaces; } void one(const Record& r) { add(flags(r), r.interfaces); }
    static const s_SupportInfo& flags(const s_SupportInfo& r) { return r; }
    static const s_BaseAttr& setting(const s_BaseAttr& r)     { return r; }
    void one(const s_SupportInfo& r)                { add(r.support, r.editable, r.attrMode); }
    void one(const s_BaseAttr& r)                   { add(flags(r), r.value, r.dataType); }
    void one(const s_RangeValue& r)                 { add(setting(r), r.min, r.max, r.step, r.coefficient); }
    void one(const ConnectorEnumValue& r)           { add(r.value); }
    void one(const s_ConnectorValueList& r)         { add(setting(r), r.enums); }
    void one(const s_BandWidth& r)                  { add(flags(r), r.min, r.max); }
    void one(const s_ResolutionRatio& r)            { add(flags(r), r.width, r.height, r.refreshRate, r.coefficient); }
    void one(const s_ConnectorHorizontal& r)        { add(flags(r), r.addTime, r.frontPorch, r.sync, r.totalTime); }
    void one(const s_ResolutionRatios::s_AdvResolutionRatio& r) { add(flags(r), r.refresh, r.horizontal, r.vertical); }
    void one(const s_resolutionResolutionRatio& r)  { add(r.width, r.height, r.coefficient, r.interlaced); }
    void one(const s_ResolutionRatios& r)           { add(flags(r), r.defaultResolution, r.advResolutionRatio, r.disables); }
    void one(const s_CapacityModeInInterface& r)    { add(flags(r), r.value, r.bandWidth, r.resolutionRatios); }
    void one(const s_Interface& r)                  { add(r.type, r.capacityModes); }
    void one(const s_InterfaceInHDCP& r)            { add(r.type, r.enable, r.hdcpType); }
    void one(const s_InterfaceInColorDepth& r)      { add(r.type, r.colorDepth); }
    void one(const s_InterfaceInColorSpace& r)      { add(r.type, r.colorSpace); }
    void one(const s_InterfaceInColorRange& r)      { add(r.type, r.colorRange); }
    void one(const s_ConnectorPlayer& r)            { add(flags(r), r.loopType, r.playFileType, r.autoPlayEnable, r.picturePlayTime, r.effectTime, r.effectType, r.filePath, r.diskType); }
    void one(const s_HPD& r)                        { add(flags(r), r.value, r.min, r.max, r.step); }
    void one(const s_ConnectorHPDs::s_HPDsInterface& r) { add(r.type, flags(r), r.hpd); }
    void one(const s_ConnectorGeneral& r)           { add(flags(r), r.type, r.name, r.nameGB2312); }
    void one(const s_PresetHorizontal::s_TimingItem& r) { add(setting(r), r.min, r.max); }
    void one(const s_PresetHorizontal& r)           { add(flags(r), r.addTime, r.frontPorch, r.sync, r.totalTime, r.syncPolarity, r.syncPolarityValues); }
    void one(const s_PreSetTimingInterface::s_PresetBandWidth& r) { add(flags(r), r.min, r.max, r.dataType); }
    void one(const s_PreSetTimingInterface& r)      { add(r.type, r.interlaced, r.interlacedValues, r.bandWidth, r.refresh, r.coefficient, r.refreshValues, r.horizontal, r.vertical); }
    void one(const s_InterfaceInImageQuality::s_RGB& r) { add(flags(r), r.r, r.g, r.b); }
    void one(const s_InterfaceInImageQuality& r)    { add(r.type, r.contrast, r.brightness, r.hue, r.saturation, r.gamma); }
    void one(const s_ConnectorCrop::s_Ratio& r)     { add(setting(r), r.rangeType, r.coefficient); }
    void one(const s_ConnectorCrop::s_MaxCount& r)  { add(setting(r), r.rangeType); }
    void one(const s_ConnectorCrop& r)              { add(flags(r), r.enable, r.xRatio, r.yRatio, r.widthRatio, r.heightRatio, r.maxCount); }
    void one(const s_ConnectorTimingSelect& r)      { add(flags(r), r.select); }
    void one(const s_ConnectorCfg& r)
    {
        add(r.type, r.signalType, r.capacityMode, r.interfaces, r.hdcp, r.player, r.hpds, r.general, r.presetTiming, r.presetTimings);
        add(r.colorDepths, r.colorSpaces, r.colorRanges, r.dynamicRange, r.hdr, r.formatMapping, r.imageQuality, r.crop, r.timingSelect, r.edid);
    }
    // clang-format on
};

QVector<double> numbersOf(const s_ConnectorCfg& connector)
{
    Numbers numbers;
    numbers.add(connector);
    return numbers.all;
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
    void needsADirectoryAndCards();
    void appendsConnectorsAndReplacesResolutions();
    void readsOneRange();
};

void TestConnectors::fillsEachFieldFromItsAttribute()
{
    const ConnectorFile file;
    ConnectorFile::fill(file.at(""));
    const Load load({{"5.xml", file.text()}});
    QCOMPARE(load.error + load.log.join("; "), QString("untouched"));
    const s_ConnectorCfg connector = load.catalogue.connectors.at(0).configs.at(0);
    QCOMPARE(numbersOf(connector), file.numbers());
    QCOMPARE(connector.icon + connector.name.zhCN + connector.name.en,
             std::string("hdmi20.pngHDMI 2.0接口HDMI 2.0 Connector"));
    QCOMPARE(connector.shortName.zhCN + connector.shortName.en, std::string("HDMI2.0HDMI 2.0"));
    const s_RangeValue& gamma = connector.imageQuality.interfaces.at(0).gamma;
    QCOMPARE(gamma.coefficient, gamma.max + 1.0);
    QCOMPARE(connector.player.autoPlayEnableSecond.value, connector.player.autoPlayEnable.value);
}

void TestConnectors::chargesAnAbsence_data()
{
    QTest::addColumn<QString>("cost");
    QTest::addColumn<bool>("logged");
    const auto rows = [](const char* cost, bool logged, const QStringList& parents, const char* tags) {
        for (const QString& parent : parents)
            for (const QString& tag : QString(tags).split(' '))
                QTest::newRow(qPrintable(parent + tag)) << QString(cost) << logged;
    };
    const QString mode = "CapacityMode/Interface/CapacityMode/";
    const QString ratios = mode + "ResolutionRatios/";
    const QString custom = ratios + "AdvResolutionRatio/";
    const QString timing = "PresetTiming/Interface/";
    const QString quality = "ImageQuality/Interface/";
    // clang-format off
    rows("connector", false, {""},                                           "Name Name/zh_CN Name/en ShortName ShortName/zh_CN ShortName/en SignalType CapacityMode");
    rows("connector", false, {mode},                                         "BandWidth ResolutionRatios");
    rows("connector", false, {ratios},                                       "ResolutionRatio AdvResolutionRatio");
    rows("connector", false, {ratios + "ResolutionRatio/"},                  "Width Height RefreshRate");
    rows("connector", false, {custom},                                       "Refresh Horizontal Vertical");
    rows("connector", false, {custom + "Horizontal/", custom + "Vertical/"}, "AddTime FrontPorch Sync TotalTime");
    rows("connector", true,  {""},                                           "HDCP General PresetTiming ColorDepths ColorSpaces ColorRanges FormatMapping DynamicRange");
    rows("connector", true,  {"General/"},                                   "Type Name NameGB2312");
    rows("connector", false, {""},                                           "ImageQuality Crop TimingSelect TimingSelect/Select EDID");
    rows("connector", false, {"Crop/"},                                      "Enable XRatio YRatio WidthRatio HeightRatio MaxCount");
    rows("entry",     true,  {"HDCP/Interface/"},                            "Enable Type");
    rows("entry",     true,  {timing},                                       "Interlaced BandWidth Refresh Horizontal Vertical");
    rows("entry",     true,  {timing + "Horizontal/", timing + "Vertical/"}, "AddTime FrontPorch Sync SyncPolarity TotalTime");
    rows("entry",     true,  {""},                                           "ColorDepths/Interface/ColorDepth ColorSpaces/Interface/ColorSpace ColorRanges/Interface/ColorRange");
    rows("entry",     false, {quality},                                      "Contrast Brightness Hue Saturation Gamma");
    rows("entry",     false, {quality + "Contrast/", quality + "Brightness/"}, "R G B");
    rows("player",    true,  {""},                                           "Player");
    rows("player",    true,  {"Player/"},                                    "LoopType PlayFileType AutoPlayEnable PicturePlayTime EffectTime EffectType FilePath DiskType");
    rows("hot plug",  true,  {""},                                           "HPDs");
    rows("nothing",   false, {"HPDs/Interface/"},                            "HPD");
    rows("nothing",   false, {ratios},                                       "Disables");
    // clang-format on
}

void TestConnectors::chargesAnAbsence()
{
    QFETCH(QString, cost);
    QFETCH(bool, logged);
    const QString path = QTest::currentDataTag();
    ConnectorFile file;
    file.duplicate("");
    if (cost == "entry") file.duplicate(path.section('/', 0, 1));
    file.remove(path);
    const Load load({{"5.xml", file.text()}});

    const QString message = QStringLiteral("Invalid [%1] node.").arg(path.section('/', -1));
    QVERIFY(load.good);
    QCOMPARE(load.error, cost == "nothing" ? "untouched" : message);
    QCOMPARE(load.log, logged ? QStringList("Log: " + message) : QStringList());
    std::vector<s_ConnectorCfg> configs = load.catalogue.connectors.at(0).configs;
    QCOMPARE(int(configs.size()), cost == "connector" ? 1 : 2);
    s_ConnectorCfg& neighbour = configs.back();
    QCOMPARE(numbersOf(neighbour), file.numbers());
    // What the first connector lost; in all the rest it equals its neighbour.
    if (cost == "player") neighbour.player = {};
    if (cost == "hot plug") neighbour.hpds = {};
    if (path.endsWith("HPD")) neighbour.hpds.interfaces[0].hpd = {};
    if (path.endsWith("Disables")) neighbour.interfaces[0].capacityModes[0].resolutionRatios.disables.clear();
    QCOMPARE(numbersOf(configs.front()), numbersOf(neighbour));
}

void TestConnectors::readsAFileOrNot_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("files");
    const auto row = [](const char* rule, const char* name, const char* text, const char* message, int files) {
        QTest::newRow(rule) << QString(name) << QString(text) << QString(message) << files;
    };
    const char* const empty = "<DCS><Connectors/></DCS>";
    // clang-format off
    row("used type",                    "5.xml",               empty,                                         "untouched", 3);
    row("type of no plain connector",   "7.xml",               "<",                                           "untouched", 2);
    row("no number counts as type 0",   "abc.xml",             empty,                                         "untouched", 3);
    row("number up to the first dot",   "5.old.xml",           empty,                                         "untouched", 3);
    row("tag counts, not the name",     "resolutionratio.xml", empty,                                         "untouched", 3);
    row("another tag",                  "5.xml",               "<DCS><Devices/><Connectors/></DCS>",          "untouched", 2);
    row("first element only",           "5.xml",               "<DCS><!-- --><Connectors/><Connectors/></DCS>", "untouched", 3);
    row("empty root",                   "5.xml",               "<DCS version=\"1.0\"/>",                      "untouched", 2);
    row("version",                      "5.xml",               "<DCS version=\"1.00\"/>",                     "The file is not a valid configuration file of version 1.0 for device.", 1);
    row("root",                         "5.xml",               "<LCD><Connectors/></LCD>",                    "The file is not a valid configuration file for device.", 1);
    row("not well-formed",              "5.xml",               "<DCS></LCD>",                                 "Parse error at line 1, column 11:\ntag mismatch", 1);
    row("a folder",                     "5.xml/inside",        "",                                            "Fail to open file [%1/5.xml]!", 1);
    // clang-format on
}

void TestConnectors::readsAFileOrNot()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, message);
    const Load load({{"1.xml", ConnectorFile().text()}, {name, text}, {"6.xml", ConnectorFile().text()}});
    // What was read before a bad file stays; what comes after it is not read.
    QTEST(int(load.catalogue.connectors.size()), "files");
    QCOMPARE(load.good, message == "untouched");
    QCOMPARE(load.error, message.replace("%1", load.folder.path()));
    QCOMPARE(load.log, QStringList());
}

void TestConnectors::needsADirectoryAndCards()
{
    Load load({{"plain", ""}, {"abc.xml", "<"}}, {5});
    QVERIFY(load.good);
    load.read(load.folder.path("plain/below"));
    QVERIFY(!load.good);
    QCOMPARE(load.error, "Invalid file path!\n" + load.folder.path("plain/below"));
    const Load cardless({}, {});
    QVERIFY(!cardless.good);
    QCOMPARE(cardless.error + cardless.log.join(' '), QString("untoucheddevice is empty"));
}

void TestConnectors::appendsConnectorsAndReplacesResolutions()
{
    Load load({{"5.xml", ConnectorFile().text()},
               {"6.xml", R"(<DCS><ResolutionRatios><Old Value="9"/></ResolutionRatios></DCS>)"},
               {"ResolutionRatio.xml", "<"},
               {"resolutionratio.xml", R"(<DCS><ResolutionRatios><Mode Value="1"><Size Width="1920" Height="1080"
                    Interlaced="1" Coefficient="-7"/><Any Width="x"/></Mode><Other/></ResolutionRatios></DCS>)"}},
              {5, 6});
    QVERIFY2(load.good, qPrintable(load.error));
    auto& modes = load.catalogue.resolutions.capacityModes;
    QCOMPARE(int(modes.size()), 2);
    QCOMPARE(modes[0].value, 1);
    const auto& sizes = modes[0].resolutions;
    QCOMPARE(int(sizes.size()), 2);
    const QVector<int> read{sizes[0].width, sizes[0].height, sizes[0].interlaced, sizes[1].width, sizes[1].interlaced};
    QCOMPARE(read, (QVector<int>{1920, 1080, 1, 0, 0}));
    QCOMPARE(sizes[0].coefficient, 0.01F);

    QVERIFY(!load.catalogue.readConfigResolution({}, load.catalogue.resolutions));
    QCOMPARE(int(modes.size()), 2);
    load.folder.write("resolutionratio.xml", "<DCS><ResolutionRatios/></DCS>");
    load.read(load.folder.path());
    QCOMPARE(int(load.catalogue.connectors.size()), 2);
    QVERIFY(load.good && modes.empty());
}

void TestConnectors::readsOneRange()
{
    const QDomElement parent = ConnectorFile().at("ImageQuality/Interface");
    for (const auto read : {&ConnectorConfig::Impl::getAttribute, &ConnectorConfig::Impl::getRGB}) {
        QString error;
        s_RangeValue range;
        QVERIFY(!(ConnectorConfig::Impl().*read)(range, parent, QLatin1String("Alpha"), error));
        QCOMPARE(error + QString::number(range.max), QString("Invalid [Alpha] node.255"));
        QVERIFY((ConnectorConfig::Impl().*read)(range, parent, QLatin1String("Gamma"), error));
        QCOMPARE(range.max, range.support + 5);
        QCOMPARE(range.coefficient, 1.0);
    }
}

QTEST_GUILESS_MAIN(TestConnectors)
#include "test_connectors.moc"
