// What the device catalogue answers: with no device, with one of a kind and with two, and the warnings on the way. The
// records go in by hand, since what a file makes of them is the readers' matter.
#include "deviceconfig.h"
#include "support.h"

using namespace LCD::MainConfig;
using LCD::MainConfigImpl::DeviceConfig;

namespace {

QList<s_Device>& devices(DeviceConfig& config) { return const_cast<QList<s_Device>&>(config.DeviceConfigs()); }

/// The number in an answer that tells it from others.
template <class Answer> QString show(const Answer& answer)
{
    // clang-format off
    if constexpr (requires { answer.get(); }) return answer ? show(*answer) : "null";
    else if constexpr (requires { answer.empty(); }) return answer.empty() ? "none" : show(answer.front());
    else if constexpr (requires { answer.support; }) return QString::number(answer.support);
    else if constexpr (requires { answer.info; }) return QString::number(answer.info.support);
    else if constexpr (requires { answer.window; }) return show(answer.window);
    else if constexpr (requires { answer.layerType; }) return QString::number(answer.layerType);
    else if constexpr (requires { answer.order; }) return QString::number(answer.order);
    else return QString::number(answer.value);
    // clang-format on
}

/// The warnings of the queries that only search for the device's number, and of those that want the device.
const QString NO_NUMBER = "could not find device's cfg.", NO_DEVICE = NO_NUMBER + "could not find device(0)'s cfg.";

} // namespace

class TestDeviceQueries : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void groups();
    void identity();
    void slotsAndTheirCards();
};

/// A number goes into the one field that a query is to answer from; every other field keeps its default. The first
/// device answers, and the first one of two screens, modes or layers of one type.
void TestDeviceQueries::groups()
{
    DeviceConfig none, config;
    devices(config) = {s_Device(), s_Device()};
    s_Device& first = devices(config).first();
    s_DeviceFeature& feature = first.feature;
    feature.funcFeatures.switchEffect.type.enums.resize(2);
    first.silkOrders.resize(2);
    first.screens.resize(2);
    first.layers.resize(2);
    s_DCSScreen& screen = first.screens.first();
    screen.deviceModes.resize(2);
    auto& layerTypes = screen.deviceModes[0].layerTypes;
    layerTypes.resize(1);
    for (const int twin : {0, 1})
        first.screens[twin].type = first.layers[twin].type = screen.deviceModes.at(std::size_t(twin)).value = 1;

    const LogLines log;
    // `ask` gets a type; `noType` is what an unknown one is warned of, null in a query without a type. The queries
    // whose answer is not null without a device warn of no device either.
    const auto row = [&](const QString& query, int& field, auto ask, QString noType = {}, const char* empty = "null") {
        const auto asked = [&](auto& d, int type) { return QStringList{query, ask(d, type), log.taken().join("")}; };
        const QString warning = noType.isEmpty() ? "" : "could not find " + noType + "'s cfg.";
        field = 77;
        QCOMPARE(asked(config, 1), (QStringList{query, "77", ""}));
        QCOMPARE(asked(config, 7), (QStringList{query, noType.isNull() ? "77" : empty, warning}));
        field = 0;
        QCOMPARE(asked(none, 1), (QStringList{query, empty, qstrcmp(empty, "null") ? NO_NUMBER : NO_DEVICE}));
    };
    // clang-format off
    row("preset",          feature.preset.support,                 [](auto& d, int) { return show(d.presetConfigs()); });
    row("ptzs",            feature.ptzs.support,                   [](auto& d, int) { return show(d.ptzsConfigs()); });
    row("cleanFeeds",      feature.cleanFeeds.support,             [](auto& d, int) { return show(d.cleanFeedsConfigs()); });
    row("tally",           feature.tally.support,                  [](auto& d, int) { return show(d.tallyConfigs()); });
    row("internalSource",  feature.internalSource.support,         [](auto& d, int) { return show(d.internalSourceConfigs()); });
    row("mosaicSource",    feature.mosaicSource.support,           [](auto& d, int) { return show(d.inputMOSAICConfigs()); });
    row("language",        feature.funcFeatures.language.support,  [](auto& d, int) { return show(d.languageConfigs()); });
    row("quickToPology",   feature.funcFeatures.quickToPology.support, [](auto& d, int) { return show(d.quickConfigurationConfigs()); });
    row("record",          feature.funcFeatures.record.support,    [](auto& d, int) { return show(d.recodeSettingConfigs()); });
    row("genlock",         feature.funcFeatures.genlock.support,   [](auto& d, int) { return show(d.genlockConfigs()); });
    row("mediaPool",       feature.funcFeatures.mediaPool.support, [](auto& d, int) { return show(d.mediaPoolCfg()); });
    row("effect",          feature.funcFeatures.switchEffect.effect.support, [](auto& d, int) { return show(d.effectConfigs()); });
    row("effects",         feature.funcFeatures.switchEffect.type.enums[0].value, [](auto& d, int) { return show(d.findEffectTypes()); });
    row("silk",            first.silkOrders[0].order,              [](auto& d, int) { return show(d.silkConfigs()); });
    row("screen",          screen.support, [](auto& d, int t) { return show(d.screenConfigs(t)); }, "screen type(7)");
    row("screen lock", screen.features.genlock.support, [](auto& d, int t) { return show(d.genlockScreenConfigs(t)); }, "screen type(7)");
    row("threeD",          screen.features.threeD.value, [](auto& d, int t) { return show(d.screenThreeDConfigs(t)); }, "screen type(7)");
    row("layer",           first.layers[0].window.info.support,    [](auto& d, int t) { return show(d.layerConfigs(t)); }, "layer type(7)");
    row("cut", first.layers[0].cutoutGeneral.info.support, [](auto& d, int t) { return show(d.layerCutoutConfigs(t)); }, "layer type:(7)");
    row("area", first.layers[0].window.info.support, [](auto& d, int t) { return show(d.findLayerWindowDefaultRange(t)); }, "", "0");
    row("rates",           screen.features.senderGenLock.support,  [](auto& d, int t) { return show(d.findFramerates(t)); }, "", "0");
    row("screen, layers",  layerTypes[0].layerType,                [](auto& d, int t) { return show(d.findLayerTypes(t, 1)); }, "", "none");
    row("mode, layers",    layerTypes[0].layerType,                [](auto& d, int t) { return show(d.findLayerTypes(1, t)); }, "", "none");
    // clang-format on
}

void TestDeviceQueries::identity()
{
    DeviceConfig config;
    const LogLines log;
    QCOMPARE(config.getBrand() + config.findDeviceTypeName() + config.getRelativePath({}).c_str(), QString());
    QVERIFY(config.findSubcardModelId(1) == 0 && !config.isSupportDantePort());
    QVERIFY(config.findDeviceModelId() == 0 && config.curDeviceConfigs().feature.moduleId == 0xFFFF);
    QCOMPARE(log.taken().join(""), NO_DEVICE.repeated(5) + NO_NUMBER.repeated(2));

    devices(config) = {s_Device(), s_Device()};
    s_DeviceFeature& feature = devices(config).first().feature;
    feature.moduleId = 1000;
    QVERIFY(config.findDeviceModelId() == 1000 && config.curDeviceConfigs().feature.moduleId == 1000);
    feature.brand = "brand ";
    feature.typeNameEn = "Kingfisher";
    feature.typeNameZhCN = "Cuiniao";
    for (const auto& [locale, name] : {std::pair{"EN", "Cuiniao"}, {"zh_CN", "Cuiniao"}, {"en", "Kingfisher"}}) {
        qApp->setProperty("lcd_locale", locale);
        QCOMPARE(config.getBrand() + config.findDeviceTypeName(), QString("brand ") + name);
    }
    for (const auto& [own, dante, expected] : {std::tuple{1, 1, true}, {2, 1, false}, {1, 2, false}, {0, 1, false}}) {
        feature.audio.support = own;
        feature.audio.audioDante.support = dante;
        QCOMPARE(config.isSupportDantePort(), expected);
    }
    s_TemplateResourceInfo& at = feature.templateResource;
    for (int type = 0; s_Path * place : {&at.stream, &at.record, &at.project, &at.media, &at.camera, &at.logs}) {
        place->relativePath = std::to_string(type);
        QCOMPARE(config.getRelativePath(static_cast<RelativePathType>(type++)), place->relativePath);
    }
    QCOMPARE(config.getRelativePath(static_cast<RelativePathType>(-1)), std::string());
    QCOMPARE(log.taken(), QStringList("-1 get RelativePath is empty"));
}

/// By number every device answers, and a slot that lists the card twice is found twice. Else the first card is taken,
/// of the first slot that has one, in the order of the classes.
void TestDeviceQueries::slotsAndTheirCards()
{
    DeviceConfig config;
    std::vector<s_Slot> found;
    QVERIFY(!config.findSlotConnectors(0, 3, 5, found));
    devices(config) = {s_Device(), s_Device(), s_Device()};
    devices(config)[0].feature.moduleId = 1;
    const auto classes = {&s_Slots::mainControlCardSlots, &s_Slots::reservedCardSlots, &s_Slots::mixCardSlots,
                          &s_Slots::inputCardSlots,       &s_Slots::outputCardSlots,   &s_Slots::mvrCardSlots,
                          &s_Slots::auxCardSlots,         &s_Slots::expCardSlots};
    std::uint64_t card = 80;
    for (const auto slotClass : classes)
        for (s_Device& device : devices(config))
            (device.slots.*slotClass).slots = {{3, {}}, {4, {{5, {}}}}, {3, {{++card, {}}, {5, {}}, {5, {}}}}};
    for (const auto& [id, at, model, n] : {std::tuple{0xFFFF, 3, 5, 32}, {1, 3, 81, 1}, {1, 4, 81, 0}, {9, 3, 5, 0}}) {
        found.resize(1);
        QVERIFY(config.findSlotConnectors(id, at, model, found));
        QCOMPARE(int(found.size()), 1 + n);
    }
    // A copy in other hands moves nothing: what was handed out before the query still stands behind it.
    const s_Device& first = config.DeviceConfigs().first();
    {
        const QList<s_Device> copy = config.DeviceConfigs();
        QVERIFY(config.findSlotConnectors(1, 3, 81, found));
    }
    QVERIFY(&first == &config.DeviceConfigs().first());
    for (const auto slotClass : classes) {
        QCOMPARE(config.findSubcardModelId(3), (devices(config)[0].slots.*slotClass).slots[2].subcards[0].moduleId);
        (devices(config)[0].slots.*slotClass).slots.clear();
    }
    QCOMPARE(config.findSubcardModelId(3), std::uint64_t(0));
}

QTEST_GUILESS_MAIN(TestDeviceQueries)
#include "test_device_queries.moc"
