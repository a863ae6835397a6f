// The built plug-in as a host meets it: its exports, its record, its component table, the entry order of its
// interfaces, and the look-up of one component by another. Nothing of the library is linked in here but its public
// headers.
#include "kpmhost.h"
#include "support.h"

#include <lcdmainconfig/ideviceconfig.h>
#include <lcdmainconfig/ilcdconfig.h>

#include <QMultiMap>
#include <QProcess>

#include <dlfcn.h>

namespace {

const QStringList COMPONENTS{"lcd.menuconfig",    "lcd.connectorconfig", "lcd.deviceconfig",
                             "lcd.subcardconfig", "lcd.keycheckconfig",  "lcd.lockareaconfig",
                             "lcd.lcdconfig",     "lcd.fnbuttonconfig",  "lcd.lcdlanguageconfig"};

QStringList nm(const QStringList& arguments)
{
    QProcess process;
    process.start("nm", arguments + QStringList(PLUGIN_PATH));
    process.waitForFinished();
    return QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

/// The functions of the plug-in by their address in the file: "Class::function" without namespaces and arguments.
QMultiMap<quintptr, QString> functionsByAddress()
{
    QMultiMap<quintptr, QString> functions;
    const QRegularExpression line("^([0-9a-f]+) [tTwW] LCD::MainConfigImpl::(\\w+::\\w+)(?:\\[abi:cxx11\\])?\\(");
    for (const QString& symbol : nm({"-C", "--defined-only"}))
        if (const auto match = line.match(symbol); match.hasMatch())
            functions.insert(match.captured(1).toULongLong(nullptr, 16), match.captured(2));
    return functions;
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
    void keepsTheEntryOrder_data();
    void keepsTheEntryOrder();
    void survivesUseWithoutAnObject();
    void endsWithoutAHost_data();
    void endsWithoutAHost();
};

void TestPlugin::exportsThreeSymbols()
{
    QStringList names;
    for (const QString& line : nm({"-D", "--defined-only"})) names.append(line.section(' ', 2));
    names.sort();
    QCOMPARE(names, QStringList({"lcdmainconfigimpl_kpm_componentInfoTable", "pluginfo", "pluginit"}));
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
    QCOMPARE(static_cast<const void*>(copy.componentTable),
             dlsym(dlopen(PLUGIN_PATH, RTLD_NOW), "lcdmainconfigimpl_kpm_componentInfoTable"));
}

void TestPlugin::listsItsComponents()
{
    QStringList ids;
    kpm::ComponentInfo* const* entry = symbol<kpm::PluginInfoFunction>("pluginfo")()->componentTable;
    for (; *entry != nullptr; ++entry) {
        ids.append((*entry)->id);
        QCOMPARE((*entry)->metadata, "{\"end\":0 }\r\n");
    }
    QCOMPARE(ids, COMPONENTS);
}

void TestPlugin::keepsTheEntryOrder_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("operations");
    QTest::newRow("MenuConfig") << "lcd.menuconfig"
                                << "readConfig rootMenuItem findMenuItem findChidItemsByKey findChidItemSizeByKey";
    QTest::newRow("ConnectorConfig")
        << "lcd.connectorconfig"
        << "readConfig findHDCPInfo findPlayerInfo findHPDInfo findEDIDInfo findDynamicRangeInfo "
           "findColorDepthsInfo findHDRInfo findResoluCapacityMode findColorSpacesInfo "
           "findConnectorResolutionRatios findConnectorDefaultResolution findConnectorTypeName "
           "findConnectorResolutions findConnectorRates findConnectorTiming";
    QTest::newRow("DeviceConfig")
        << "lcd.deviceconfig"
        << "readConfig findSlotConnectors DeviceConfigs curDeviceConfigs findSubcardModelId findDeviceTypeName "
           "getBrand findDeviceModelId findLayerTypes findLayerWindowDefaultRange screenConfigs silkConfigs "
           "layerConfigs presetConfigs ptzsConfigs cleanFeedsConfigs isSupportDantePort tallyConfigs "
           "internalSourceConfigs languageConfigs inputMOSAICConfigs layerCutoutConfigs "
           "quickConfigurationConfigs findFramerates recodeSettingConfigs genlockConfigs mediaPoolCfg "
           "findEffectTypes screenThreeDConfigs effectConfigs genlockScreenConfigs getRelativePath";
    QTest::newRow("SubcardConfig")
        << "lcd.subcardconfig"
        << "readConfig subcardConfig findConnector findTypesByModelId findConnectorLocatedGroup "
           "findConnectorByGroupId findSubcardModeData findConnectorCopyData findCardMode countAuxConnector "
           "findConnectorDeviceModeCapacity findConnectorDeviceModeCapacityConnector "
           "findConnectorDeviceModeCapacityDynamicRangeSupport findConnectorInterlacedType "
           "findTimingDeviceModeResolutionRatios findSupportedCapacity findHPDInfo findConnectorGroupByGroupId";
    QTest::newRow("KeyCheckConfig") << "lcd.keycheckconfig"
                                    << "readConfig getKeyCheckList getKnobKeyCheckList getTbarJoyStickCheckList";
    QTest::newRow("LockAreaConfig") << "lcd.lockareaconfig"
                                    << "readConfig getIdByLCDKey";
    QTest::newRow("LcdConfig")
        << "lcd.lcdconfig"
        << "readConfig setReturnToHomeTime getReturnToHomeTime getPgmEditStatusOnWorkMode getPgmEditStatus "
           "getCurrentPgmEditStatus setCurrentPgmEditStatus setCurrentPgmEditDefaultStatus setFnBtnMaxCount "
           "setFnSettingValue setALLFnSettingValue getFnSettingValue setUserModeSettingValue "
           "getUserModeSettingValue setDevLockStatusValue getDevLockStatusValue setLightOnSupportValue "
           "getLightOnSupportValue setLanguage getLanguage getDefaultLanguage setLightBreathSupportValue "
           "getLightBreathSupportValue setLightColorValue getLightColorValue setAspectRatioValue "
           "getAspectRatioValue getKeySamplingTime getKeySenderIp getUISupportPartition getTitleSupportCenter "
           "getHttpPort getWebSocketPort getSupprotMenuHide getPlaySupportConnectorType "
           "getInputListNoSupportConnectorType getSupprotLSourceCapacityDisplay getScreenWidth "
           "getDeviceRelativePath getCompanyMailDefault getCompanyAddressDefault getSwitchBackGround "
           "getSupportAssess getSupportUpgradeWaitDlg getSupportScale getDomesticDevice getSupportUsbKeyboard "
           "getOffLightColorValue isSourceTypeUseGeneralName";
    QTest::newRow("FNButtonConfig")
        << "lcd.fnbuttonconfig"
        << "readConfig findFNBtnDefaultValue findFNBtnMaxCount findSequenceStrArray findDefaultBindings "
           "findDefaultBindingByIndex";
    QTest::newRow("LcdLanguageConfig")
        << "lcd.lcdlanguageconfig"
        << "readConfig setLanguage getLanguage setTBarTolerance getTBarTolerance setTBarCalibration "
           "getTBarCalibration getRTSPSettingPara setFnSettingValue setALLFnSettingValue getFnSettingValue "
           "hasFnSettingValue setFnSettingTargetValue getFnSettingTargetValue setFnSettingTargetTypeValue "
           "getFnSettingTargetTypeValue setFnBtnMaxCount setReturnToHomeTime getReturnToHomeTime "
           "setUserModeSettingValue getUserModeSettingValue setDevLockStatusValue getDevLockStatusValue "
           "setStartRecordStreamTriggerType getStartRecordStreamTriggerType setStopRecordStreamTriggerType "
           "getStopRecordStreamTriggerType setSourceSortType getSourceSortType setJumpFlag getJumpFlag "
           "hasSourceCustomSort setSourceCustomSort getSourceCustomSort removeGroups setScreenLight "
           "getScreenLight setKnobTimeOut getKnobTimeOut setBackExitMVRTimeOut getBackExitMVRTimeOut";
}

void TestPlugin::keepsTheEntryOrder()
{
    QFETCH(QString, id);
    QFETCH(QString, operations);
    kpmhost::Host host;
    QVERIFY(host.load(PLUGIN_PATH));
    void** const table = *static_cast<void***>(host.component(id.toStdString()));
    Dl_info where;
    QVERIFY(dladdr(table, &where) != 0);
    static const QMultiMap<quintptr, QString> functions = functionsByAddress();
    int entry = 2; // Behind the two entries of the virtual destructor.
    for (const QString& operation : operations.split(' ')) {
        const quintptr address =
            reinterpret_cast<quintptr>(table[entry++]) - reinterpret_cast<quintptr>(where.dli_fbase);
        const QString wanted = QString("%1::%2").arg(QTest::currentDataTag(), operation);
        QVERIFY2(functions.values(address).contains(wanted),
                 qPrintable(wanted + " is not, but " + functions.values(address).join(", ")));
    }
}

void TestPlugin::survivesUseWithoutAnObject()
{
    kpmhost::Host host;
    QVERIFY(host.load(PLUGIN_PATH));
    for (const QString& id : COMPONENTS) {
        const kpm::ComponentInfo* const info = host.componentClass(id.toStdString());
        info->deletor(nullptr);
        QVERIFY(info->getMessageHandler(nullptr) == nullptr);
        QVERIFY(info->getMessageHandler(host.component(id.toStdString())) == nullptr);
        void* const another = info->creator();
        QVERIFY(another != nullptr && another != host.component(id.toStdString()));
        info->deletor(another);
    }
}

/// Run in a child process: reads a catalogue that needs a host, without one.
static void readWithoutAHost(const char* id)
{
    symbol<kpm::PluginInitFunction>("pluginit")(nullptr);
    kpm::ComponentInfo* const* entry = symbol<kpm::PluginInfoFunction>("pluginfo")()->componentTable;
    while (std::string((*entry)->id) != id) ++entry;
    QString error;
    // All interfaces with this form of readConfig have it in their first entry.
    static_cast<LCD::MainConfig::IDeviceConfig*>((*entry)->creator())->readConfig({}, error);
}

void TestPlugin::endsWithoutAHost_data()
{
    QTest::addColumn<bool>("ends");
    QTest::newRow("lcd.subcardconfig") << true;
    QTest::newRow("lcd.connectorconfig") << true;
    QTest::newRow("lcd.deviceconfig") << false;
}

void TestPlugin::endsWithoutAHost()
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--without-host", QTest::currentDataTag()});
    QVERIFY(child.waitForFinished());
    QFETCH(bool, ends);
    QCOMPARE(child.exitStatus() == QProcess::CrashExit || child.exitCode() != 0, ends);
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc == 3 && std::string(argv[1]) == "--without-host") {
        readWithoutAHost(argv[2]);
        return 0;
    }
    TestPlugin test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_plugin.moc"
