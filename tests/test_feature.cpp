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
    const LogLines log;
    Loaded loaded;
    loaded.good = DeviceFeatureConfig::instance()->parseDeviceFeaturecfg(folder.write("feature.xml", xml), loaded.error,
                                                                         loaded.feature);
    if (const QStringList lines = log.taken(); !lines.isEmpty()) qFatal("logged: %s", qPrintable(lines.join('\n')));
    return loaded;
}

/// The members at or below an element.
bool isBelow(const Row& row, const QString& path)
{
    return path.isEmpty() || row.path == path || row.path.startsWith(path + '/');
}

/// What a file says, one line for each member.
QString text(const s_DeviceFeature& feature)
{
    QString lines;
    for (const Row& row : rows(feature)) lines += row.path + ": " + row.shown + '\n';
    return lines;
}

/// The text of the bare file, with everything at and below `lost` as a new record has it.
QString bareText(const QString& lost)
{
    QString lines;
    for (const Row& row : rows({})) lines += row.path + ": " + (isBelow(row, lost) ? row.shown : row.bare) + '\n';
    return lines;
}

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
    void bareFileGivesReadDefaults();
    void elementFillsItsMembers_data();
    void elementFillsItsMembers();
    void absenceHasItsCost_data();
    void absenceHasItsCost();
    void oddities_data();
    void oddities();
    void leastFileLoads();
    void refusesAnotherFrame();
    void partsCanBeReadAlone();
    void exampleLoads();
};

void TestFeature::bareFileGivesReadDefaults()
{
    const Loaded bare = load(bareFile().toString());
    QVERIFY(bare.good);
    QCOMPARE(bare.error, QString());
    QCOMPARE(text(bare.feature), bareText("nothing"));
}

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
        for (Row row : rows(loaded.feature)) {
            if (letters) {
                row.full.replace(QRegularExpression("'\\d+'"), "'x'");
                row.full.replace(QRegularExpression("\\b\\d\\d\\b"), "0");
            }
            if (row.path == path || !isBelow(row, path))
                QCOMPARE(row.path + ": " + row.shown, row.path + ": " + (row.path == path ? row.full : row.bare));
        }
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
    const QString subtree = path.section('/', 0, path.startsWith("Features/") ? 1 : 0);
    if (cost != Cost::File) QCOMPARE(text(loaded.feature), bareText(cost == Cost::Subtree ? subtree : path));
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
    const char* const effectType = "Features/SwitchEffect/Type";
    const char* const names = "TypeName";
    const char* const media = "Features/Media";
    const char* const mode = "SoundConsole/AudioMode";
    const char* const adjust = "Ptzs/AdjustFunc/*AdjustDetail/*Vaue";
    const char* const interval = "Features/Tally/Porotocol/SendInterval/*emum";
    // clang-format off
    add("no effect type: flags from nowhere", effectType, "", effectType, "0 1 0 0 [] | 1 -1");
    add("no effects: no flags from the type", "Features/SwitchEffect/Effect", "", effectType, "1 1 0 1 [] | 0 -1");
    add("names are verbatim", names, "<TypeName><zh_CN> Z </zh_CN><en> E </en></TypeName>", "TypeName/en", "' E '");
    add("no English name: no other one", names, "<TypeName><zh_CN>Z</zh_CN></TypeName>", "TypeName/zh_CN", "''", "en");
    add("no Chinese name: the English one stays", names, "<TypeName><en>E</en></TypeName>", "TypeName/en", "'E'", "zh_CN");
    add("the first TypeName counts", names, "<TypeName Icon='a'><en/><zh_CN/></TypeName><TypeName Icon='b'/>", names, "'a'");
    add("media pool: no audio", media, "<Media/>", "Features/Media/Audio", "1 0 []");
    add("media pool: audio alone", media, "<Media><Audio Support='5'/></Media>", "Features/Media/Audio", "5 0 []");
    add("media pool: a list is not read", media, "<Media><Audio><Enum Value='5'/></Audio></Media>", "Features/Media/Audio", "1 0 []");
    add("media pool: a picture set is the gap", media, "<Media Support='5'><Audio/><PicSet Support='6'/></Media>", media, "5 0 | 0 -1 []", "PicSet");
    add("media pool: read up to the gap", media, "<Media><Audio Support='5'/><PicSet/></Media>", "Features/Media/Audio", "5 0 []", "PicSet");
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
    add("the console's flags are dropped", "SoundConsole", "<SoundConsole Support='1' Editable='1'/>", mode, "0 -1 | []");
    add("any element after an audio mode is one", mode, "<AudioMode><SourceInfo><Connectors/></SourceInfo><Overdub/><Solo/><ElectricalLevel/><Gain/>"
        "<Separation/><Delay/></AudioMode><Other/>", mode, nullptr, "SourceInfo");
    add("one manufacturer", "Ptzs/PtzProtocols/*PtzProtocol/Manufacturer", "<Manufacturer Value='5'/><Manufacturer Value='6'/>",
        "Ptzs/PtzProtocols/*PtzProtocol/Manufacturer", "[5]");
    add("Vaue is spelled so", adjust, "<Value Value='5'/>", adjust, "[]");
    add("MtualExclusion is spelled so", "Ptzs/AI/MutualExclusions/*MtualExclusion", "<MutualExclusion/>", "Ptzs/AI/MutualExclusions/*MtualExclusion", "[]");
    add("Porotocol is spelled so", "Features/Tally/Porotocol", "<Protocol/>", "Features/Tally/Porotocol", "0 -1 0");
    add("emum is spelled so", interval, "<Enum Value='5'/>", interval, "[]");
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
    QCOMPARE(example.error, QString());
    // Complete: nothing shows as in a new record, but for what no file fills.
    QStringList unfilled;
    const QVector<Row> fresh = rows({}), read = rows(example.feature);
    for (int i = 0; i < fresh.size(); ++i)
        if (fresh[i].shown == read[i].shown && fresh[i].bare != fresh[i].full) unfilled << read[i].path;
    QCOMPARE(unfilled, QStringList());
}

QTEST_GUILESS_MAIN(TestFeature)
#include "test_feature.moc"
