// Every operation of the nine interfaces with its signature, in entry order behind the two entries of the virtual
// destructor: what hosts compiled long ago rely on. A signature that is not met, const included, does not compile.
#ifndef TESTS_INTERFACES_H
#define TESTS_INTERFACES_H

#include <lcdmainconfig/iconnectorconfig.h>
#include <lcdmainconfig/ideviceconfig.h>
#include <lcdmainconfig/ifnbuttonconfig.h>
#include <lcdmainconfig/ikeycheckconfig.h>
#include <lcdmainconfig/ilcdconfig.h>
#include <lcdmainconfig/ilcdlanguageconfig.h>
#include <lcdmainconfig/ilockareaconfig.h>
#include <lcdmainconfig/imenuconfig.h>
#include <lcdmainconfig/isubcardconfig.h>

#include <tuple>

namespace interfaces {

using namespace LCD::MainConfig;
template <class Record> using Ptr = std::shared_ptr<Record>;
template <class Entry> using List = std::vector<Entry>;
using Text = const QString&;
using Load = bool(const QString&, QString&);

template <class Signature, class Interface> constexpr Signature Interface::*op(Signature Interface::*entry)
{
    return entry;
}

// clang-format off
template <class I = IMenuConfig> constexpr auto menu = std::tuple{
    op<bool(Text)>(&I::readConfig), op<Ptr<s_MenuItem>() const>(&I::rootMenuItem),
    op<Ptr<s_MenuItem>(QString) const>(&I::findMenuItem), op<QList<Ptr<s_MenuItem>>(QString) const>(&I::findChidItemsByKey),
    op<int(QString) const>(&I::findChidItemSizeByKey)};

template <class I = IConnectorConfig> constexpr auto connectors = std::tuple{
    op<Load>(&I::readConfig), op<Ptr<s_ConnectorHDCP>(int)>(&I::findHDCPInfo), op<Ptr<s_ConnectorPlayer>(int)>(&I::findPlayerInfo),
    op<Ptr<s_HPD>(int)>(&I::findHPDInfo), op<Ptr<s_EDID>(int)>(&I::findEDIDInfo),
    op<Ptr<s_ConnectorDynamicRange>(int) const>(&I::findDynamicRangeInfo), op<Ptr<s_ConnectorColorDepths>(int)>(&I::findColorDepthsInfo),
    op<Ptr<s_SupportInfo>(int)>(&I::findHDRInfo), op<Ptr<List<s_CapacityModeInInterface>>(int) const>(&I::findResoluCapacityMode),
    op<Ptr<s_ConnectorColorSpaces>(int) const>(&I::findColorSpacesInfo),
    op<Ptr<s_ResolutionRatios>(int, int, int)>(&I::findConnectorResolutionRatios),
    op<Ptr<s_ResolutionRatio>(int, int, int)>(&I::findConnectorDefaultResolution), op<std::string(int) const>(&I::findConnectorTypeName),
    op<List<s_resolutionResolutionRatio>(int, int, int) const>(&I::findConnectorResolutions),
    op<s_PresetRefresh(int, int)>(&I::findConnectorRates), op<s_PreSetTimingInterface(int, int)>(&I::findConnectorTiming)};

template <class I = IDeviceConfig> constexpr auto devices = std::tuple{
    op<Load>(&I::readConfig), op<bool(int, int, int, List<s_Slot>&)>(&I::findSlotConnectors), op<const QList<s_Device>&() const>(&I::DeviceConfigs),
    op<s_Device() const>(&I::curDeviceConfigs), op<std::uint64_t(int) const>(&I::findSubcardModelId),
    op<QString() const>(&I::findDeviceTypeName), op<QString() const>(&I::getBrand), op<std::uint64_t() const>(&I::findDeviceModelId),
    op<List<s_LayerType>(int, int) const>(&I::findLayerTypes), op<s_LayerWindow(int) const>(&I::findLayerWindowDefaultRange),
    op<Ptr<s_Screen>(int) const>(&I::screenConfigs), op<Ptr<List<s_SilkOrder>>() const>(&I::silkConfigs),
    op<Ptr<s_Layer>(int) const>(&I::layerConfigs), op<Ptr<s_Preset>() const>(&I::presetConfigs), op<Ptr<s_Ptzs>() const>(&I::ptzsConfigs),
    op<Ptr<s_CleanFeeds>() const>(&I::cleanFeedsConfigs), op<bool() const>(&I::isSupportDantePort), op<Ptr<s_Tally>() const>(&I::tallyConfigs),
    op<Ptr<s_InternalSource>() const>(&I::internalSourceConfigs), op<Ptr<s_Language>() const>(&I::languageConfigs),
    op<Ptr<s_MOSAICSource>() const>(&I::inputMOSAICConfigs), op<Ptr<s_LayerCutoutGeneral>(int) const>(&I::layerCutoutConfigs),
    op<Ptr<s_QuickToPology>() const>(&I::quickConfigurationConfigs), op<s_SenderGenLock(int) const>(&I::findFramerates),
    op<Ptr<s_RecodeSettingCfg>() const>(&I::recodeSettingConfigs), op<Ptr<s_Genlock>() const>(&I::genlockConfigs),
    op<Ptr<s_MediaPool>() const>(&I::mediaPoolCfg), op<Ptr<List<EnumValue>>() const>(&I::findEffectTypes),
    op<Ptr<s_ThreeD>(int) const>(&I::screenThreeDConfigs), op<Ptr<s_Effect>() const>(&I::effectConfigs),
    op<Ptr<s_Genlock>(int) const>(&I::genlockScreenConfigs), op<std::string(RelativePathType) const>(&I::getRelativePath)};

template <class I = ISubcardConfig> constexpr auto cards = std::tuple{
    op<Load>(&I::readConfig), op<Ptr<s_DCSSubcard>() const>(&I::subcardConfig), op<Ptr<s_SubcardConnector>(int, int) const>(&I::findConnector),
    op<List<s_ConnectorInTypes>(int) const>(&I::findTypesByModelId),
    op<Ptr<s_SubcardConnectorGroup>(int, int) const>(&I::findConnectorLocatedGroup),
    op<List<s_SubcardConnector>(int, int) const>(&I::findConnectorByGroupId),
    op<s_SubcardDeviceMode(int, int, int) const>(&I::findSubcardModeData),
    op<List<s_ConnectorInfo>(int, int, int, int) const>(&I::findConnectorCopyData), op<int(int) const>(&I::findCardMode),
    op<int() const>(&I::countAuxConnector),
    op<s_CapacityInConnectorsDeviceModeCapacitys(int, int, int) const>(&I::findConnectorDeviceModeCapacity),
    op<Ptr<s_ConnectorInConnectorsDeviceModeCapacitysCapacity>(int, int, int, int, int) const>(&I::findConnectorDeviceModeCapacityConnector),
    op<int(int, int, int, int) const>(&I::findConnectorDeviceModeCapacityDynamicRangeSupport),
    op<int(int, int, int, int) const>(&I::findConnectorInterlacedType),
    op<s_ResolutionRatiosInConnectorsDeviceModeTiming(int, int, int, int, int) const>(&I::findTimingDeviceModeResolutionRatios),
    op<List<int>(int, int, int) const>(&I::findSupportedCapacity), op<Ptr<s_HPDIn>(int, int) const>(&I::findHPDInfo),
    op<s_SubcardConnectorGroup(int, int) const>(&I::findConnectorGroupByGroupId)};

template <class I = IKeyCheckConfig> constexpr auto keyChecks = std::tuple{
    op<Load>(&I::readConfig), op<QList<QPair<int, QString>>() const>(&I::getKeyCheckList),
    op<QList<QPair<int, QString>>() const>(&I::getKnobKeyCheckList), op<QList<QPair<int, QString>>() const>(&I::getTbarJoyStickCheckList)};

template <class I = ILockAreaConfig> constexpr auto lockAreas = std::tuple{
    op<Load>(&I::readConfig), op<int(int) const>(&I::getIdByLCDKey)};

template <class I = ILcdConfig> constexpr auto settings = std::tuple{
    op<bool(Text)>(&I::readConfig), op<void(int)>(&I::setReturnToHomeTime), op<int()>(&I::getReturnToHomeTime),
    op<int(int)>(&I::getPgmEditStatusOnWorkMode), op<std::map<int, int>()>(&I::getPgmEditStatus), op<int(int)>(&I::getCurrentPgmEditStatus),
    op<void(int, int)>(&I::setCurrentPgmEditStatus), op<void()>(&I::setCurrentPgmEditDefaultStatus), op<void(int)>(&I::setFnBtnMaxCount),
    op<void(int, int)>(&I::setFnSettingValue), op<void(int)>(&I::setALLFnSettingValue), op<int(int)>(&I::getFnSettingValue),
    op<void(int)>(&I::setUserModeSettingValue), op<int()>(&I::getUserModeSettingValue), op<void(int)>(&I::setDevLockStatusValue),
    op<int()>(&I::getDevLockStatusValue), op<void(int)>(&I::setLightOnSupportValue), op<int()>(&I::getLightOnSupportValue),
    op<void(Text)>(&I::setLanguage), op<QString()>(&I::getLanguage), op<QString()>(&I::getDefaultLanguage),
    op<void(int)>(&I::setLightBreathSupportValue), op<int()>(&I::getLightBreathSupportValue), op<void(int)>(&I::setLightColorValue),
    op<int()>(&I::getLightColorValue), op<void(int)>(&I::setAspectRatioValue), op<int()>(&I::getAspectRatioValue),
    op<int()>(&I::getKeySamplingTime), op<QString()>(&I::getKeySenderIp), op<int()>(&I::getUISupportPartition),
    op<int()>(&I::getTitleSupportCenter), op<int()>(&I::getHttpPort), op<int()>(&I::getWebSocketPort), op<int()>(&I::getSupprotMenuHide),
    op<int()>(&I::getPlaySupportConnectorType), op<List<int>()>(&I::getInputListNoSupportConnectorType),
    op<int()>(&I::getSupprotLSourceCapacityDisplay), op<int()>(&I::getScreenWidth), op<QString()>(&I::getDeviceRelativePath),
    op<QString()>(&I::getCompanyMailDefault), op<QString()>(&I::getCompanyAddressDefault), op<QString()>(&I::getSwitchBackGround),
    op<int()>(&I::getSupportAssess), op<int()>(&I::getSupportUpgradeWaitDlg), op<int()>(&I::getSupportScale), op<int()>(&I::getDomesticDevice),
    op<int()>(&I::getSupportUsbKeyboard), op<std::pair<int, int>()>(&I::getOffLightColorValue),
    op<bool(int, int)>(&I::isSourceTypeUseGeneralName)};

template <class I = IFNButtonConfig> constexpr auto functionKeys = std::tuple{
    op<Load>(&I::readConfig), op<int()>(&I::findFNBtnDefaultValue), op<int()>(&I::findFNBtnMaxCount),
    op<QVector<QString>()>(&I::findSequenceStrArray), op<QVector<s_FnDefaultBinding>()>(&I::findDefaultBindings),
    op<s_FnDefaultBinding(int)>(&I::findDefaultBindingByIndex)};

template <class I = ILcdLanguageConfig> constexpr auto userSettings = std::tuple{
    op<bool()>(&I::readConfig), op<void(Text)>(&I::setLanguage), op<QString()>(&I::getLanguage), op<void(const int&)>(&I::setTBarTolerance),
    op<int()>(&I::getTBarTolerance), op<void(const std::pair<int, int>&)>(&I::setTBarCalibration),
    op<std::pair<int, int>()>(&I::getTBarCalibration), op<List<std::pair<int, QString>>()>(&I::getRTSPSettingPara),
    op<void(int, int)>(&I::setFnSettingValue), op<void(int)>(&I::setALLFnSettingValue), op<int(int)>(&I::getFnSettingValue),
    op<bool(int)>(&I::hasFnSettingValue), op<void(int, int)>(&I::setFnSettingTargetValue), op<int(int)>(&I::getFnSettingTargetValue),
    op<void(int, int)>(&I::setFnSettingTargetTypeValue), op<int(int)>(&I::getFnSettingTargetTypeValue), op<void(int)>(&I::setFnBtnMaxCount),
    op<void(int)>(&I::setReturnToHomeTime), op<int()>(&I::getReturnToHomeTime), op<void(int)>(&I::setUserModeSettingValue),
    op<int()>(&I::getUserModeSettingValue), op<void(int)>(&I::setDevLockStatusValue), op<int()>(&I::getDevLockStatusValue),
    op<void(int)>(&I::setStartRecordStreamTriggerType), op<int()>(&I::getStartRecordStreamTriggerType),
    op<void(int)>(&I::setStopRecordStreamTriggerType), op<int()>(&I::getStopRecordStreamTriggerType), op<void(int)>(&I::setSourceSortType),
    op<int()>(&I::getSourceSortType), op<void(int)>(&I::setJumpFlag), op<int()>(&I::getJumpFlag), op<bool()>(&I::hasSourceCustomSort),
    op<void(Text, int)>(&I::setSourceCustomSort), op<List<s_SourceCustomSort>()>(&I::getSourceCustomSort),
    op<void(const QStringList&)>(&I::removeGroups), op<void(int)>(&I::setScreenLight), op<int()>(&I::getScreenLight),
    op<void(int)>(&I::setKnobTimeOut), op<int()>(&I::getKnobTimeOut), op<void(int)>(&I::setBackExitMVRTimeOut),
    op<int()>(&I::getBackExitMVRTimeOut)};
// clang-format on

} // namespace interfaces

#endif
