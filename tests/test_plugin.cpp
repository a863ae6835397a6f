// The built plug-in as a host meets it: its exports, its record, its component table, the entry order of its
// interfaces, and the look-up of one component by another. Nothing of the library is linked in here but its public
// headers.
#include "kpmhost.h"
#include "support.h"

#include <lcdmainconfig/ideviceconfig.h>

#include <QProcess>

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// The components in the order of the table: id, class, and the operations of the interface in entry order.
// clang-format off
const char* const INTERFACES[][3] = {
    {"lcd.menuconfig", "MenuConfig", "readConfig rootMenuItem findMenuItem findChidItemsByKey findChidItemSizeByKey"},
    {"lcd.connectorconfig", "ConnectorConfig", R"(readConfig findHDCPInfo findPlayerInfo findHPDInfo findEDIDInfo
        findDynamicRangeInfo findColorDepthsInfo findHDRInfo findResoluCapacityMode findColorSpacesInfo
        findConnectorResolutionRatios findConnectorDefaultResolution findConnectorTypeName findConnectorResolutions
        findConnectorRates findConnectorTiming)"},
    {"lcd.deviceconfig", "DeviceConfig", R"(readConfig findSlotConnectors DeviceConfigs curDeviceConfigs findSubcardModelId
        findDeviceTypeName getBrand findDeviceModelId findLayerTypes findLayerWindowDefaultRange screenConfigs silkConfigs
        layerConfigs presetConfigs ptzsConfigs cleanFeedsConfigs isSupportDantePort tallyConfigs internalSourceConfigs
        languageConfigs inputMOSAICConfigs layerCutoutConfigs quickConfigurationConfigs findFramerates recodeSettingConfigs
        genlockConfigs mediaPoolCfg findEffectTypes screenThreeDConfigs effectConfigs genlockScreenConfigs getRelativePath)"},
    {"lcd.subcardconfig", "SubcardConfig", R"(readConfig subcardConfig findConnector findTypesByModelId findConnectorLocatedGroup
        findConnectorByGroupId findSubcardModeData findConnectorCopyData findCardMode countAuxConnector
        findConnectorDeviceModeCapacity findConnectorDeviceModeCapacityConnector findConnectorDeviceModeCapacityDynamicRangeSupport
        findConnectorInterlacedType findTimingDeviceModeResolutionRatios findSupportedCapacity findHPDInfo
        findConnectorGroupByGroupId)"},
    {"lcd.keycheckconfig", "KeyCheckConfig", "readConfig getKeyCheckList getKnobKeyCheckList getTbarJoyStickCheckList"},
    {"lcd.lockareaconfig", "LockAreaConfig", "readConfig getIdByLCDKey"},
    {"lcd.lcdconfig", "LcdConfig", R"(readConfig setReturnToHomeTime getReturnToHomeTime getPgmEditStatusOnWorkMode getPgmEditStatus
        getCurrentPgmEditStatus setCurrentPgmEditStatus setCurrentPgmEditDefaultStatus setFnBtnMaxCount setFnSettingValue
        setALLFnSettingValue getFnSettingValue setUserModeSettingValue getUserModeSettingValue setDevLockStatusValue
        getDevLockStatusValue setLightOnSupportValue getLightOnSupportValue setLanguage getLanguage getDefaultLanguage
        setLightBreathSupportValue getLightBreathSupportValue setLightColorValue getLightColorValue setAspectRatioValue
        getAspectRatioValue getKeySamplingTime getKeySenderIp getUISupportPartition getTitleSupportCenter getHttpPort
        getWebSocketPort getSupprotMenuHide getPlaySupportConnectorType getInputListNoSupportConnectorType
        getSupprotLSourceCapacityDisplay getScreenWidth getDeviceRelativePath getCompanyMailDefault getCompanyAddressDefault
        getSwitchBackGround getSupportAssess getSupportUpgradeWaitDlg getSupportScale getDomesticDevice getSupportUsbKeyboard
        getOffLightColorValue isSourceTypeUseGeneralName)"},
    {"lcd.fnbuttonconfig", "FNButtonConfig", R"(readConfig findFNBtnDefaultValue findFNBtnMaxCount findSequenceStrArray
        findDefaultBindings findDefaultBindingByIndex)"},
    {"lcd.lcdlanguageconfig", "LcdLanguageConfig", R"(readConfig setLanguage getLanguage setTBarTolerance getTBarTolerance
        setTBarCalibration getTBarCalibration getRTSPSettingPara setFnSettingValue setALLFnSettingValue getFnSettingValue
        hasFnSettingValue setFnSettingTargetValue getFnSettingTargetValue setFnSettingTargetTypeValue getFnSettingTargetTypeValue
        setFnBtnMaxCount setReturnToHomeTime getReturnToHomeTime setUserModeSettingValue getUserModeSettingValue
        setDevLockStatusValue getDevLockStatusValue setStartRecordStreamTriggerType getStartRecordStreamTriggerType
        setStopRecordStreamTriggerType getStopRecordStreamTriggerType setSourceSortType getSourceSortType setJumpFlag getJumpFlag
        hasSourceCustomSort setSourceCustomSort getSourceCustomSort removeGroups setScreenLight getScreenLight setKnobTimeOut
        getKnobTimeOut setBackExitMVRTimeOut getBackExitMVRTimeOut)"},
};
// clang-format on

QStringList nm(const QStringList& arguments)
{
    QProcess process;
    process.start("nm", arguments + QStringList{"--defined-only", PLUGIN_PATH});
    process.waitForFinished();
    return QString::fromLocal8Bit(process.readAllStandardOutput()).remove("[abi:cxx11]").trimmed().split('\n');
}

template <class Function> Function* symbol(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(dlopen(PLUGIN_PATH, RTLD_NOW | RTLD_LOCAL), name));
}

} // namespace

class TestPlugin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void exportsThreeSymbols();
    void introducesItself();
    void listsItsComponents();
    void keepsTheEntryOrder();
    void endsWithoutAHost_data();
    void endsWithoutAHost();
};

void TestPlugin::exportsThreeSymbols()
{
    QCOMPARE(nm({"-D"}).replaceInStrings(QRegularExpression(".* "), {}),
             QStringList({"lcdmainconfigimpl_kpm_componentInfoTable", "pluginfo", "pluginit"}));
}

void TestPlugin::introducesItself()
{
    const auto* const before = symbol<kpm::PluginInfoFunction>("pluginfo")();
    const kpm::PluginInfo copy = *before;
    kpmhost::Host host;
    QVERIFY2(host.load(PLUGIN_PATH), host.error().c_str());
    QCOMPARE(host.info(), before);
    QCOMPARE(memcmp(&copy, before, sizeof copy), 0);
    QCOMPARE(sizeof copy, 5 * sizeof(void*));
    QCOMPARE(copy.formatVersion, "0.1");
    QCOMPARE(copy.name, "lcdmainconfigimpl");
    QCOMPARE(copy.version, "1.0.0");
    QCOMPARE(copy.metadata, "{\"end\":0 }");
    QCOMPARE(copy.componentTable, symbol<kpm::ComponentInfo* const>("lcdmainconfigimpl_kpm_componentInfoTable"));
}

void TestPlugin::listsItsComponents()
{
    auto* const* entry = symbol<kpm::PluginInfoFunction>("pluginfo")()->componentTable;
    for (const auto& [id, name, operations] : INTERFACES) {
        const kpm::ComponentInfo& component = **entry++;
        QCOMPARE(component.id, id);
        QCOMPARE(component.metadata, "{\"end\":0 }\r\n");
        void* const objects[] = {component.creator(), component.creator(), nullptr};
        QVERIFY(objects[0] != nullptr && objects[1] != nullptr && objects[0] != objects[1]);
        for (void* const object : objects) {
            QVERIFY(component.getMessageHandler(object) == nullptr);
            component.deletor(object);
        }
    }
    QVERIFY(*entry == nullptr);
}

void TestPlugin::keepsTheEntryOrder()
{
    kpmhost::Host host;
    QVERIFY(host.load(PLUGIN_PATH));
    const QStringList symbols = nm({"-C"});
    for (const auto& [id, name, operations] : INTERFACES) {
        void** entry = *host.component<void**>(id) + 2; // Behind the two entries of the virtual destructor.
        Dl_info where;
        QVERIFY(dladdr(entry, &where) != 0);
        for (const QString& operation : QString(operations).simplified().split(' ')) {
            const quintptr address = quintptr(*entry++) - quintptr(where.dli_fbase);
            const QString found = symbols.filter(QString("%1 ").arg(address, 16, 16, QChar('0'))).join('\n');
            const QString wanted = QString(" LCD::MainConfigImpl::%1::%2(").arg(name, operation);
            QVERIFY2(found.contains(wanted), qPrintable(wanted + " is not, but " + found));
        }
    }
}

void TestPlugin::endsWithoutAHost_data()
{
    QTest::addColumn<bool>("fatal");
    QTest::newRow("lcd.subcardconfig") << true;
    QTest::newRow("lcd.connectorconfig") << true;
    QTest::newRow("lcd.deviceconfig") << false; // Asks no other component.
}

void TestPlugin::endsWithoutAHost()
{
    kpmhost::Host host;
    QVERIFY(host.load(PLUGIN_PATH));
    const pid_t child = fork();
    if (child == 0) {
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
            if (type == QtFatalMsg && text.startsWith("no host to ask for")) _exit(1);
        });
        symbol<kpm::PluginInitFunction>("pluginit")(nullptr);
        QString error;
        // All interfaces with this form of readConfig have it in their first entry.
        host.component<LCD::MainConfig::IDeviceConfig>(QTest::currentDataTag())->readConfig({}, error);
        _exit(0);
    }
    int status = -1;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFEXITED(status));
    QTEST(WEXITSTATUS(status) == 1, "fatal");
}

QTEST_GUILESS_MAIN(TestPlugin)
#include "test_plugin.moc"
