// The feature file: what each element fills, what its absence costs, and where the format goes its own way.
#include "devicefeatureconfig.h"
#include "feature_rows.h"
#include "support.h"

#include <QRegularExpression>

using namespace feature;
using LCD::MainConfigImpl::DeviceFeatureConfig;

namespace {

struct Loaded {
    bool good = false;
    QString error;
    s_DeviceFeature feature;
};

/// Reads the file; whatever is wrong with it, nothing is logged.
Loaded load(const QString& xml)
{
    const Folder folder;
    Loaded loaded;
    // Of a record that was used before, the media pool alone is replaced in every case.
    loaded.feature.funcFeatures.mediaPool.support = 5;
    const QString path = folder.write("feature.xml", xml);
    QStringList lines;
    {
        const LogLines log;
        loaded.good = DeviceFeatureConfig::instance()->parseDeviceFeaturecfg(path, loaded.error, loaded.feature);
        lines = log.taken();
    }
    if (!lines.isEmpty()) qFatal("logged: %s", qPrintable(lines.join('\n')));
    return loaded;
}

/// The members that are not as `wanted(row)` says, where the row shows what a new record has. Null: anything goes.
template <class Wanted> QStringList differences(const s_DeviceFeature& feature, const Wanted& wanted)
{
    QStringList found;
    const QVector<Row> fresh = rows({}), read = rows(feature);
    for (int i = 0; i < fresh.size(); ++i)
        if (const QString text = wanted(fresh[i]); !text.isNull() && text != read[i].shown)
            found << QString("%1: %2 and not %3").arg(read[i].path, read[i].shown, text);
    return found;
}

bool isBelow(const QString& path, const QString& parent) { return parent.isEmpty() || path.startsWith(parent + '/'); }

QString invalid(const QString& tag) { return "Invalid [" + tag + "] node."; }

enum class Cost { Silence, Message, Subtree, File };

/// What the absence of an element costs.
Cost costOf(const QString& path)
{
    const auto isOneOf = [&path](const char* paths) { return QRegularExpression(paths).match(path).hasMatch(); };
    if (isOneOf("^(Features|HDR|Preset|Preset/PresetCount|SoundConsole/AudioMode/[A-Za-z/]+)$")) return Cost::File;
    if (isOneOf("^(TypeName/zh_CN|Features/QuickTopology/LayoutType)$")) return Cost::Message;
    if (isOneOf("^(LayerAlphaFunction|Custom|CleanFeeds|Audio|InternalSource|Features/Tally)(/|$)") ||
        isOneOf("^Features/SwitchEffect/(?!(Time|Direction)$)|^Ptzs/(?!(PtzProtocols|AdjustFunc)$)") ||
        isOneOf("^(MosaicSource/(?!MosaicTemplates$)|Features/Genlock/ConnectorTypes)|/\\*|^File/|/AudioMode$"))
        return Cost::Silence;
    return Cost::Subtree;
}

/// One test row for each element that a file can have.
void addPaths(const QStringList& leftOut)
{
    QTest::addColumn<QString>("path");
    QStringList paths;
    for (const Row& row : rows({}))
        for (int tags = row.path.count('/'); tags >= 0; --tags) paths << row.path.section('/', 0, tags);
    paths.removeDuplicates();
    for (const QString& path : paths)
        if (!leftOut.contains(path)) QTest::newRow(qPrintable("Device/" + path)) << path;
}

} // namespace

class TestFeature : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void elementFillsItsMembers_data();
    void elementFillsItsMembers();
    void absenceHasItsCost_data();
    void absenceHasItsCost();
    void oddities_data();
    void oddities();
    void leastFileLoads();
    void refusesAnotherFrame();
    void aNewRecordHasItsDefaults();
    void mosaicListsGoOnToTheirEnd();
    void partsCanBeReadAlone();
    void exampleLoads();
};

// The console takes any element as a mode.
void TestFeature::elementFillsItsMembers_data() { addPaths({"SoundConsole"}); }

void TestFeature::elementFillsItsMembers()
{
    QFETCH(QString, path);
    for (const bool letters : {false, true}) {
        const QDomDocument file = bareFile();
        decorate(find(file, path).toElement(), letters);
        const Loaded loaded = load(file.toString());
        QVERIFY2(loaded.good, qPrintable(loaded.error));
        const auto wanted = [&path, letters](Row row) {
            if (row.path != path) return isBelow(row.path, path) ? QString() : row.bare;
            if (letters) row.full.replace(QRegularExpression("'\\d+'"), "'x'");
            return letters ? row.full.replace(QRegularExpression("\\b\\d\\d\\b"), "0") : row.full;
        };
        QCOMPARE(differences(loaded.feature, wanted), QStringList());
    }
}

// The four stand among the oddities.
void TestFeature::absenceHasItsCost_data()
{
    addPaths({"", "Features/Media/Audio", "Features/SwitchEffect/Type", "Features/SwitchEffect/Effect"});
}

void TestFeature::absenceHasItsCost()
{
    QFETCH(QString, path);
    const QDomDocument file = bareFile();
    QDomNode gap = find(file, path);
    gap.parentNode().removeChild(gap);
    const Loaded loaded = load(file.toString());
    const Cost cost = costOf(path);
    QCOMPARE(loaded.good, cost != Cost::File);
    // The message for a stream path names the element after it.
    const QString tag = path.section('/', -1).replace("PushStreamPath", "TimingPreset");
    QCOMPARE(loaded.error, cost == Cost::Silence ? QString() : invalid(tag));
    if (cost == Cost::File) return;
    const QString subtree = path.section('/', 0, path.startsWith("Features/") ? 1 : 0);
    const QString lost = cost == Cost::Subtree ? subtree : path;
    const auto wanted = [&lost](const Row& row) { return isBelow(row.path + '/', lost) ? row.shown : row.bare; };
    QCOMPARE(differences(loaded.feature, wanted), QStringList());
}

void TestFeature::oddities_data()
{
    QTest::addColumn<QString>("path");    // This element ...
    QTest::addColumn<QString>("instead"); // ... is replaced by these,
    QTest::addColumn<QString>("look");    // and the members of this one ...
    QTest::addColumn<QString>("shown");   // ... are then these. Null: the file is refused.
    QTest::addColumn<QString>("error");
    const auto add = [](const char* rule, const char* path, const char* instead, const char* look, const char* shown,
                        const char* error = nullptr) {
        QTest::newRow(rule) << path << instead << look << QString(shown) << (error ? invalid(error) : QString());
    };
    // clang-format off
    add("no effect type: flags from nowhere", "Features/SwitchEffect/Type", "", "Features/SwitchEffect/Type", "0 1 0 0 [] | 1 -1");
    add("no effects: no flags from the type", "Features/SwitchEffect/Effect", "", "Features/SwitchEffect/Type", "1 1 0 1 [] | 0 -1");
    add("names are verbatim", "TypeName", "<TypeName><zh_CN> Z </zh_CN><en> E </en></TypeName>", "TypeName/en", "' E '");
    add("no English name: no other one", "TypeName", "<TypeName><zh_CN>Z</zh_CN></TypeName>", "TypeName/zh_CN", "''", "en");
    add("no Chinese name: the English one stays", "TypeName", "<TypeName><en>E</en></TypeName>", "TypeName/en", "'E'", "zh_CN");
    add("the first TypeName counts", "TypeName", "<TypeName Icon='a'><en/><zh_CN/></TypeName><TypeName Icon='b'/>", "TypeName", "'a'");
    add("media pool: no audio", "Features/Media", "<Media/>", "Features/Media/Audio", "1 0 []");
    add("media pool: audio alone", "Features/Media", "<Media><Audio Support='5'/></Media>", "Features/Media/Audio", "5 0 []");
    add("media pool: a list is not read", "Features/Media", "<Media><Audio><Enum Value='5'/></Audio></Media>", "Features/Media/Audio", "1 0 []");
    add("media pool: a picture set is the gap", "Features/Media", "<Media Support='5'><Audio/><PicSet Support='6'/></Media>", "Features/Media", "5 0 | 0 -1 []", "PicSet");
    add("media pool: read up to the gap", "Features/Media", "<Media><Audio Support='5'/><PicSet/></Media>", "Features/Media/Audio", "5 0 []", "PicSet");
    add("the first port counts", "NetWorks/NetWork", "<NetWork Index='7'><Dhcp/><Ip/><SubNetMask/><Gateway/></NetWork><NetWork Index='8'/>", "NetWorks/NetWork", "1 1 7");
    add("resources: types and places", "TemplateResource", "<TemplateResource><A Type='2' TargetPath='/a/streamrecord'/><A Type='2' TargetPath='/a/RECORD'/>"
        "<A Type='1' TargetPath='/a/logs'/><B Type='2' TargetPath='/a/media'/><A Type='2' TargetPath='/b/media'/></TemplateResource>",
        "TemplateResource", "1 1 '/a/streamrecord' '' '' '' '/b/media' ''");
    add("resources: the other places", "TemplateResource", "<TemplateResource><A Type='2' TargetPath='logs'/><A Type='2' TargetPath='project media'/>"
        "<A Type='2' TargetPath='record project'/><A Type='2' TargetPath='camera record'/><A Type='2' TargetPath='none'/></TemplateResource>",
        "TemplateResource", "1 1 '' 'camera record' 'record project' 'project media' '' 'logs'");
    add("a step is a whole number", "Features/SwitchEffect/Effect/EffectContext/*EffectDetail/Softness", "<Softness Step='2.5'/>",
        "Features/SwitchEffect/Effect/EffectContext/*EffectDetail/Softness", "1 1 0 2 0..100 /0");
    add("but not in the sound console", "SoundConsole/AudioMode/Gain", "<Gain Step='0.5'/>", "SoundConsole/AudioMode/Gain", "0 0 0 0 0..0 /0.5");
    add("the console's flags are dropped", "SoundConsole", "<SoundConsole Support='1' Editable='1'/>", "SoundConsole/AudioMode", "0 -1 | []");
    add("any element after an audio mode is one", "SoundConsole/AudioMode", "<AudioMode><SourceInfo><Connectors/></SourceInfo><Overdub/><Solo/><ElectricalLevel/><Gain/>"
        "<Separation/><Delay/></AudioMode><Other/>", "SoundConsole/AudioMode", nullptr, "SourceInfo");
    add("one manufacturer", "Ptzs/PtzProtocols/*PtzProtocol/Manufacturer", "<Manufacturer Value='5'/><Manufacturer Value='6'/>",
        "Ptzs/PtzProtocols/*PtzProtocol/Manufacturer", "[5]");
    add("Vaue is spelled so", "Ptzs/AdjustFunc/*AdjustDetail/*Vaue", "<Value Value='5'/>", "Ptzs/AdjustFunc/*AdjustDetail/*Vaue", "[]");
    add("MtualExclusion is spelled so", "Ptzs/AI/MutualExclusions/*MtualExclusion", "<MutualExclusion/>", "Ptzs/AI/MutualExclusions/*MtualExclusion", "[]");
    add("every file limit counts, whatever its tag", "File", "<File><A Value='1'/><B Value='2'/></File>", "File/Range", "[0 0 1 1 0..0 /0; 0 0 2 2 0..0 /0]");
    add("Porotocol is spelled so", "Features/Tally/Porotocol", "<Protocol/>", "Features/Tally/Porotocol", "0 -1 0");
    add("emum is spelled so", "Features/Tally/Porotocol/SendInterval/*emum", "<Enum Value='5'/>", "Features/Tally/Porotocol/SendInterval/*emum", "[]");
    // clang-format on
}

void TestFeature::oddities()
{
    QFETCH(QString, path);
    QFETCH(QString, instead);
    QFETCH(QString, look);
    QFETCH(QString, shown);
    QDomDocument file = bareFile();
    QDomDocument fragment;
    fragment.setContent("<x>" + instead + "</x>");
    QDomNode old = find(file, path);
    while (fragment.documentElement().hasChildNodes())
        old.parentNode().insertBefore(fragment.documentElement().firstChild(), old);
    old.parentNode().removeChild(old);
    const Loaded loaded = load(file.toString(-1));
    QCOMPARE(loaded.good, !shown.isNull());
    QTEST(loaded.error, "error");
    QStringList found;
    for (const Row& row : rows(loaded.feature))
        if (row.path == look) found << row.shown;
    if (loaded.good) QCOMPARE(found.join(" | "), shown);
}

void TestFeature::leastFileLoads()
{
    const Loaded least = load("<DCS><Device ModuleId='70000' ConnectorPluginMode='4294967295'><Features/><HDR/>"
                              "<Preset><PresetCount/></Preset></Device><Device ModuleId='1'/></DCS>");
    QVERIFY(least.good);
    // Of several messages the last one stays; of the numbers, the low 16 bits.
    QCOMPARE(least.error, invalid("Ptzs"));
    QCOMPARE(least.feature.moduleId, std::uint64_t(4464));
    QCOMPARE(least.feature.connectorPluginMode, std::uint64_t(65535));
}

void TestFeature::refusesAnotherFrame()
{
    QCOMPARE(load("<dcs/>").error, QString("The file is not a valid configuration file for device."));
    QCOMPARE(load("<DCS version='1.00'/>").error,
             QString("The file is not a valid configuration file of version 1.0 for device."));
    const Loaded empty = load("<DCS><device/></DCS>");
    QVERIFY(!empty.good);
    QCOMPARE(empty.error, invalid("Device"));
    QCOMPARE(empty.feature.name, std::string("system1"));
}

/// What stands where the file has nothing to say; the other tests compare with a new record, and so would not see it.
void TestFeature::aNewRecordHasItsDefaults()
{
    const s_DeviceFeature feature;
    QCOMPARE(feature.moduleId, std::uint64_t(0xFFFF));
    QCOMPARE(feature.connectorPluginMode, std::uint64_t(1));
    QCOMPARE(feature.audio.audioDante.divideNum, 64);
    const s_MOSAICSource& mosaic = feature.mosaicSource;
    QCOMPARE(QList<int>({mosaic.style, mosaic.capacityCalculate.value, mosaic.deviceDefaultTemplate, mosaic.step}),
             QList<int>({-1, -1, -1, -1}));
    const s_RecodeSettingCfg& record = feature.funcFeatures.record;
    QCOMPARE(QList<int>({record.warnCapacity, record.closeCapacity, record.maxCount, record.timeDuration,
                         record.defaultTimeDuration, record.timeDurationMin, record.timeDurationMax}),
             QList<int>({300, 10, 2, 1, 40, 2, 1440}));
    const s_TallyBusinessEnum business;
    const s_Tally::s_SendInterval interval;
    QCOMPARE(
        QList<int>({feature.preset.min, feature.preset.max, s_Network().index, business.value, business.defaultValue,
                    s_Tally::s_Value().value, interval.defaultValue, interval.step, interval.min, interval.max,
                    s_PushStreamSetting::s_EncodeQuality().value, s_PushStreamSetting::s_StreamBlock().value}),
        QVector<int>(12, 0).toList());
}

/// Every list of the mosaic sources has a second entry here.
void TestFeature::mosaicListsGoOnToTheirEnd()
{
    const QDomDocument file = bareFile();
    for (const char* const entry : {"MosaicTemplates/Kind/Template/Cell", "MosaicTemplates/Kind/Template",
                                    "MosaicTemplates/Kind", "CapacityCalculate/Level"}) {
        QDomNode first = find(file, QString("MosaicSource/") + entry);
        first.parentNode().insertAfter(first.cloneNode(), first);
    }
    const s_MOSAICSource mosaic = load(file.toString()).feature.mosaicSource;
    QVERIFY(mosaic.capacityCalculate.capacities.size() == 2 && mosaic.subSourceTypes.size() == 2);
    const auto& templates = mosaic.subSourceTypes[1].mosaicTemplates;
    QVERIFY(templates.size() == 2 && templates[1].rectangles.size() == 2);
}

void TestFeature::partsCanBeReadAlone()
{
    const QDomDocument file = bareFile();
    find(file, "Preset/PresetCount").toElement().setAttribute("Max", 9);
    find(file, "Features/Media").toElement().setAttribute("Support", 9);
    const DeviceFeatureConfig& reader = *DeviceFeatureConfig::instance();
    QString error;
    s_Preset preset;
    s_MediaPool mediaPool;
    QVERIFY(reader.presetConfig(find(file, "").toElement(), error, preset));
    QVERIFY(reader.mediaPoolCfg(find(file, "Features").toElement(), error, mediaPool));
    QCOMPARE(show(preset, preset.max, mediaPool), QString("0 0 9 9 0"));
    QVERIFY(error.isEmpty());
    QVERIFY(!reader.presetConfig({}, error, preset));
    QCOMPARE(error, invalid("Preset"));
    QVERIFY(!reader.mediaPoolCfg({}, error, mediaPool));
    QCOMPARE(error, invalid("Media"));
}

void TestFeature::exampleLoads()
{
    QFile file(EXAMPLES_PATH "/halcyon/devices/halcyon16/feature.xml");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const Loaded example = load(QString::fromUtf8(file.readAll()));
    QVERIFY(example.good);
    // The only thing to complain of is the picture set, which every file with a media pool has.
    QCOMPARE(example.error, invalid("PicSet"));
    // Complete: nothing shows as in a new record, but for what no file fills.
    const auto fresh = [](const Row& row) { return row.bare == row.full ? QString() : row.shown; };
    const auto anything = [](const Row& row) { return row.bare == row.full ? QString() : QString("?"); };
    QCOMPARE(differences(example.feature, fresh).size(), differences(example.feature, anything).size());
}

QTEST_GUILESS_MAIN(TestFeature)
#include "test_feature.moc"
