// What the device catalogue answers: with no device, with one of a kind and with two, and the warnings on the way. The
// records go in by hand, since what a file makes of them is the readers' matter.
#include "deviceconfig.h"
#include "support.h"

#include <array>
#include <functional>

using namespace LCD::MainConfig;
using LCD::MainConfigImpl::DeviceConfig;

/// A question to the catalogue, about a type where it is about one.
using Ask = std::function<QString(const IDeviceConfig&, int type)>;
Q_DECLARE_METATYPE(Ask)

namespace {

s_Device& addDevice(DeviceConfig& config)
{
    auto& devices = const_cast<QList<s_Device>&>(config.DeviceConfigs());
    devices.append(s_Device());
    return devices.last();
}

/// A device with a number of its own in whatever a query can ask for, counted from `base`.
void fill(s_Device& device, int base)
{
    s_DeviceFeature& feature = device.feature;
    s_FuncFeatures& functions = feature.funcFeatures;
    feature.moduleId = static_cast<std::uint64_t>(base);
    feature.brand = "brand" + std::to_string(base);
    feature.typeNameZhCN = "type" + std::to_string(base);
    int number = base;
    for (s_SupportInfo* info : std::initializer_list<s_SupportInfo*>{
             &feature.preset, &feature.ptzs, &feature.cleanFeeds, &feature.tally, &feature.internalSource,
             &functions.language, &feature.mosaicSource, &functions.quickToPology, &functions.record,
             &functions.genlock, &functions.mediaPool, &functions.switchEffect.effect})
        info->support = ++number;
    functions.switchEffect.type.enums = {{base + 20}, {0}};
    device.silkOrders = {{0, 0, base + 21}};
    for (int twin : {0, 100}) {
        s_DCSScreen screen;
        screen.type = 1;
        screen.limitNum = base + twin + 30;
        screen.features.threeD.value = base + twin + 31;
        screen.features.genlock.support = base + twin + 32;
        screen.features.senderGenLock.internalFrameRate = base + twin + 33;
        for (int modeTwin : {0, 50}) {
            s_ScreenDeviceMode mode;
            mode.value = 2;
            mode.layerTypes.resize(1);
            mode.layerTypes[0].layerType = base + twin + modeTwin + 34;
            screen.deviceModes.push_back(mode);
        }
        device.screens.append(screen);
        s_DCSLayer layer;
        layer.type = 1;
        layer.cutoutGeneral.info.support = base + twin + 40;
        layer.window.width.max = base + twin + 41;
        device.layers.append(layer);
    }
}

template <class Record> QString support(const std::shared_ptr<Record>& record)
{
    return record ? QString::number(record->support) : "null";
}

/// The classes of card in the order in which they are searched.
std::array<s_SlotAttr*, 8> classes(s_Slots& all)
{
    return {&all.mainControlCardSlots, &all.reservedCardSlots, &all.mixCardSlots, &all.inputCardSlots,
            &all.outputCardSlots,      &all.mvrCardSlots,      &all.auxCardSlots, &all.expCardSlots};
}

} // namespace

class TestDeviceQueries : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { qApp->setProperty("lcd_locale", {}); }
    void answers_data();
    void answers();
    void speaksTheLanguageOfTheMoment();
    void findsSlotsWithACard();
    void findsTheFirstCardOfASlot();
    void dantePort();
    void relativePath();
};

void TestDeviceQueries::answers_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::addColumn<QString>("withDevices");
    QTest::addColumn<QString>("empty");
    QTest::addColumn<QString>("noDevice");
    QTest::addColumn<QString>("noType");
    const auto row = [](const char* name, const Ask& ask, const char* with, const char* empty,
                        const char* noDevice = nullptr, const char* noType = nullptr) {
        QTest::newRow(name) << ask << with << empty << noDevice << noType;
    };
    using D = const IDeviceConfig&;
    const char* const warn = "could not find device(0)'s cfg.";
    const char* const screen = "could not find screen type(7)'s cfg.";
    const char* const silent = "";
    // clang-format off
    row("presetConfigs",             [](D d, int) { return support(d.presetConfigs()); },             "1001", "null", warn);
    row("ptzsConfigs",               [](D d, int) { return support(d.ptzsConfigs()); },               "1002", "null", warn);
    row("cleanFeedsConfigs",         [](D d, int) { return support(d.cleanFeedsConfigs()); },         "1003", "null", warn);
    row("tallyConfigs",              [](D d, int) { return support(d.tallyConfigs()); },              "1004", "null", warn);
    row("internalSourceConfigs",     [](D d, int) { return support(d.internalSourceConfigs()); },     "1005", "null", warn);
    row("languageConfigs",           [](D d, int) { return support(d.languageConfigs()); },           "1006", "null", warn);
    row("inputMOSAICConfigs",        [](D d, int) { return support(d.inputMOSAICConfigs()); },        "1007", "null", warn);
    row("quickConfigurationConfigs", [](D d, int) { return support(d.quickConfigurationConfigs()); }, "1008", "null", warn);
    row("recodeSettingConfigs",      [](D d, int) { return support(d.recodeSettingConfigs()); },      "1009", "null", warn);
    row("genlockConfigs",            [](D d, int) { return support(d.genlockConfigs()); },            "1010", "null", warn);
    row("mediaPoolCfg",              [](D d, int) { return support(d.mediaPoolCfg()); },              "1011", "null", warn);
    row("effectConfigs",             [](D d, int) { return support(d.effectConfigs()); },             "1012", "null", warn);
    row("findEffectTypes",           [](D d, int) { const auto r = d.findEffectTypes(); return r ? QString("%1 of %2").arg(r->at(0).value).arg(r->size()) : "null"; }, "1020 of 2", "null", warn);
    row("silkConfigs",               [](D d, int) { const auto r = d.silkConfigs(); return r ? QString::number(r->at(0).order) : "null"; }, "1021", "null", warn);
    row("getBrand",                  [](D d, int) { return d.getBrand(); },                           "brand1000", "", warn);
    row("findDeviceTypeName",        [](D d, int) { return d.findDeviceTypeName(); },                 "type1000", "", warn);
    row("findSubcardModelId",        [](D d, int) { return QString::number(d.findSubcardModelId(1)); }, "0", "0", warn);
    row("isSupportDantePort",        [](D d, int) { return QString::number(d.isSupportDantePort()); }, "0", "0", warn);
    row("getRelativePath",           [](D d, int) { return QString::fromStdString(d.getRelativePath(RelativePathType::Logs)); }, "", "", warn);
    row("findDeviceModelId",         [](D d, int) { return QString::number(d.findDeviceModelId()); }, "1000", "0");
    row("curDeviceConfigs",          [](D d, int) { return QString::number(d.curDeviceConfigs().feature.moduleId); }, "1000", "65535");
    row("screenConfigs",             [](D d, int t) { const auto r = d.screenConfigs(t); return r ? QString::number(r->limitNum) : "null"; }, "1030", "null", warn, screen);
    row("screenThreeDConfigs",       [](D d, int t) { const auto r = d.screenThreeDConfigs(t); return r ? QString::number(r->value) : "null"; }, "1031", "null", warn, screen);
    row("genlockScreenConfigs",      [](D d, int t) { return support(d.genlockScreenConfigs(t)); },   "1032", "null", warn, screen);
    row("layerConfigs",              [](D d, int t) { const auto r = d.layerConfigs(t); return r ? QString::number(r->window.width.max) : "null"; }, "1041", "null", warn, "could not find layer type(7)'s cfg.");
    row("layerCutoutConfigs",        [](D d, int t) { const auto r = d.layerCutoutConfigs(t); return r ? QString::number(r->info.support) : "null"; }, "1040", "null", warn, "could not find layer type:(7)'s cfg.");
    row("findFramerates",            [](D d, int t) { const auto r = d.findFramerates(t); return QString("%1 %2").arg(r.editable).arg(r.internalFrameRate); }, "-1 1033", "-1 0", nullptr, silent);
    row("findLayerTypes: screen",    [](D d, int t) { const auto r = d.findLayerTypes(t, 2); return r.empty() ? "empty" : QString::number(r[0].layerType); }, "1034", "empty", nullptr, silent);
    row("findLayerTypes: mode",      [](D d, int t) { const auto r = d.findLayerTypes(1, t + 1); return r.empty() ? "empty" : QString::number(r[0].layerType); }, "1034", "empty", nullptr, silent);
    row("findLayerWindowDefaultRange", [](D d, int t) { const auto r = d.findLayerWindowDefaultRange(t); return QString("%1 %2").arg(r.info.editable).arg(r.width.max); }, "-1 1041", "-1 255", nullptr, silent);
    // clang-format on
}

/// With two devices the first answers, and of two screens, modes or layers of one type the first, without a warning.
void TestDeviceQueries::answers()
{
    QFETCH(Ask, ask);
    QFETCH(QString, noDevice);
    QFETCH(QString, noType);
    const LogLines log;
    DeviceConfig config;
    QTEST(ask(config, 1), "empty");
    QCOMPARE(log.taken(),
             QStringList("could not find device's cfg.") + QStringList(noDevice).filter(QRegularExpression(".")));
    fill(addDevice(config), 1000);
    fill(addDevice(config), 2000);
    QTEST(ask(config, 1), "withDevices");
    QCOMPARE(log.taken(), QStringList());
    if (noType.isNull()) return;
    QTEST(ask(config, 7), "empty");
    QCOMPARE(log.taken().join('|'), noType);
}

void TestDeviceQueries::speaksTheLanguageOfTheMoment()
{
    DeviceConfig config;
    addDevice(config).feature.typeNameEn = "Kingfisher";
    for (const char* locale : {"EN", "zh_CN", "en"}) {
        qApp->setProperty("lcd_locale", locale);
        QCOMPARE(config.findDeviceTypeName(), QString(qstrcmp(locale, "en") == 0 ? "Kingfisher" : ""));
    }
}

/// A slot that lists the card twice is found twice, and every device of the number answers.
void TestDeviceQueries::findsSlotsWithACard()
{
    DeviceConfig config;
    std::vector<s_Slot> found(1);
    QVERIFY(!config.findSlotConnectors(0, 3, 5, found));
    for (int id : {1, 2, 2}) {
        s_Device& device = addDevice(config);
        device.feature.moduleId = static_cast<std::uint64_t>(id);
        for (s_SlotAttr* slotClass : classes(device.slots))
            slotClass->slots = {{3, {{5, {}}, {6, {}}, {5, {}}}}, {4, {{5, {}}}}, {3, {{7, {}}}}};
    }
    for (const auto& [id, index, card, hits] : {std::tuple{2, 3, 5, 32}, {1, 3, 7, 8}, {1, 4, 7, 0}, {9, 3, 5, 0}}) {
        found.resize(1);
        QVERIFY(config.findSlotConnectors(id, index, card, found));
        QCOMPARE(int(found.size()), 1 + hits);
    }
}

void TestDeviceQueries::findsTheFirstCardOfASlot()
{
    DeviceConfig config;
    std::uint64_t card = 80;
    const auto all = classes(addDevice(config).slots);
    for (auto slotClass = all.rbegin(); slotClass != all.rend(); ++slotClass) {
        (*slotClass)->slots = {{3, {}}, {4, {{1, {}}}}, {3, {{++card, {}}, {2, {}}}}};
        QCOMPARE(config.findSubcardModelId(3), card);
    }
    QCOMPARE(config.findSubcardModelId(9), std::uint64_t(0));
}

void TestDeviceQueries::dantePort()
{
    DeviceConfig config;
    s_DeviceFeatureAudio& audio = addDevice(config).feature.audio;
    for (const auto& [own, dante, expected] : {std::tuple{1, 1, true}, {2, 1, false}, {1, 2, false}, {0, 1, false}}) {
        audio.support = own;
        audio.audioDante.support = dante;
        QCOMPARE(config.isSupportDantePort(), expected);
    }
}

void TestDeviceQueries::relativePath()
{
    DeviceConfig config;
    s_TemplateResourceInfo& places = addDevice(config).feature.templateResource;
    const QList<s_Path*> inOrder{&places.stream, &places.record, &places.project,
                                 &places.media,  &places.camera, &places.logs};
    for (int type = 0; type < inOrder.size(); ++type) {
        inOrder[type]->relativePath = "/place/" + std::to_string(type);
        QCOMPARE(config.getRelativePath(static_cast<RelativePathType>(type)), inOrder[type]->relativePath);
    }
    for (const int type : {6, -1}) {
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QString("%1 get RelativePath is empty").arg(type)));
        QCOMPARE(config.getRelativePath(static_cast<RelativePathType>(type)), std::string());
    }
}

QTEST_GUILESS_MAIN(TestDeviceQueries)
#include "test_device_queries.moc"
