// The panel's factory settings: the file "lcdsetting.ini" of a directory that the host names. No value is cached, the
// file is the state. What a number means is for the panel to say. The order of the operations is a contract with the
// host.
#ifndef LCDMAINCONFIG_ILCDCONFIG_H
#define LCDMAINCONFIG_ILCDCONFIG_H

#include <map>
#include <utility>
#include <vector>

#include <QString>

namespace LCD::MainConfig {

/// Entries are told as section/entry. With the store open, an entry that is absent or not a number reads as 0, a text
/// as empty; "No store" tells what a getter gives before readConfig has found the file. A setter ends with a flush of
/// the operating system's files, which is its cost, and reports no failure; unless told otherwise it must not be called
/// without a store. Any thread may call, where no exception is told.
class ILcdConfig {
public:
    virtual ~ILcdConfig() = default;

    /// Opens "lcdsetting.ini" of the directory. False, with a warning, if it is not a file; it is never created here,
    /// and a store that was open stays.
    virtual bool readConfig(const QString& dir) = 0;

    /// Writes ReturnToHomeSetting/ReturnToHomeValue.
    virtual void setReturnToHomeTime(int value) = 0;
    /// ReturnToHomeSetting/ReturnToHomeValue; no unit is fixed here. No store: 0.
    virtual int getReturnToHomeTime() = 0;

    /// Factory table: "Status" of the first row of the array PgmEditStatusSetting with that "WorkMode". No such row:
    /// -1. No store: -1, with a warning.
    virtual int getPgmEditStatusOnWorkMode(int workMode) = 0;
    /// Factory table: work mode to status, from the array PgmEditStatusSetting; of a repeated work mode the first row
    /// counts. No rows: empty. No store: empty, with a warning.
    virtual std::map<int, int> getPgmEditStatus() = 0;
    /// "Status" of the first row of the array PgmEditStatusCurrent with that "WorkMode". No such row: -1. No store: -1,
    /// with a warning.
    virtual int getCurrentPgmEditStatus(int workMode) = 0;
    /// Writes "Status" of the first row of PgmEditStatusCurrent with that "WorkMode"; no row is ever added. No store: a
    /// warning, nothing written.
    virtual void setCurrentPgmEditStatus(int workMode, int status) = 0;
    /// Copies "Status" from each row of PgmEditStatusSetting to the same row of PgmEditStatusCurrent; "WorkMode" there
    /// is left alone. No store: a warning, nothing written.
    virtual void setCurrentPgmEditDefaultStatus() = 0;

    /// How many function buttons setALLFnSettingValue writes; 6 at first. Kept in memory only, and takes no lock, which
    /// is meant.
    virtual void setFnBtnMaxCount(int count) = 0;
    /// Writes FnSetting/FnValue<index>, at once.
    virtual void setFnSettingValue(int index, int value) = 0;
    /// Writes FnSetting/FnValue<index> for every function button from 0, each with a flush of its own.
    virtual void setALLFnSettingValue(int value) = 0;
    /// FnSetting/FnValue<index>: the binding of a function button. No store: 0.
    virtual int getFnSettingValue(int index) = 0;

    /// Writes UserModeSetting/UserModeValue.
    virtual void setUserModeSettingValue(int value) = 0;
    /// UserModeSetting/UserModeValue. No store: 0.
    virtual int getUserModeSettingValue() = 0;

    /// Writes DevSetting/LockStatusValue.
    virtual void setDevLockStatusValue(int value) = 0;
    /// DevSetting/LockStatusValue. No store: 0.
    virtual int getDevLockStatusValue() = 0;

    /// Writes LightOnSetting/SupportValue.
    virtual void setLightOnSupportValue(int value) = 0;
    /// LightOnSetting/SupportValue. No store: 0.
    virtual int getLightOnSupportValue() = 0;

    /// Writes LanguageSetting/LanguageValue.
    virtual void setLanguage(const QString& language) = 0;
    /// LanguageSetting/LanguageValue. No store: empty.
    virtual QString getLanguage() = 0;
    /// LanguageSetting/LanguageDefault: the language as delivered. No store: empty.
    virtual QString getDefaultLanguage() = 0;

    /// Writes LightBreathSetting/BreathSupportValue.
    virtual void setLightBreathSupportValue(int value) = 0;
    /// LightBreathSetting/BreathSupportValue. No store: 0.
    virtual int getLightBreathSupportValue() = 0;

    /// Writes LightColorSetting/LightColor.
    virtual void setLightColorValue(int value) = 0;
    /// LightColorSetting/LightColor. No store: 0.
    virtual int getLightColorValue() = 0;

    /// Writes AspectRatioSetting/AspectRatio.
    virtual void setAspectRatioValue(int value) = 0;
    /// AspectRatioSetting/AspectRatio. No store: 0.
    virtual int getAspectRatioValue() = 0;

    /// KeySamplingSetting/KeySampling. No store: 0.
    virtual int getKeySamplingTime() = 0;
    /// KeySenderIpSetting/KeySenderIp. No store: "192.168.0.55".
    virtual QString getKeySenderIp() = 0;
    /// UISetting/SupportPartition. No store: 0.
    virtual int getUISupportPartition() = 0;
    /// TitleSetting/SupportCenter. No store: 0.
    virtual int getTitleSupportCenter() = 0;
    /// HttpPortSetting/HttpPort. No store: 19999.
    virtual int getHttpPort() = 0;
    /// WebSocketPortSetting/WebSocketPort. No store: 19999.
    virtual int getWebSocketPort() = 0;
    /// SupprotMenuHideSetting/SupprotMenuHide, spelt so in the file. No store: 0.
    virtual int getSupprotMenuHide() = 0;
    /// PlaySupportConnectorType/ConnectorTypeValue. No store: 0.
    virtual int getPlaySupportConnectorType() = 0;
    /// "ConnectorType" of every row of the array InputListNoSupportConnectorTypeSetting: what the input list leaves
    /// out. No rows: empty. No store: empty, with a warning.
    virtual std::vector<int> getInputListNoSupportConnectorType() = 0;
    /// SupprotCapacityDisplaySettting/SupprotCapacityDisplay, spelt so in the file. No store: 0.
    virtual int getSupprotLSourceCapacityDisplay() = 0;
    /// ScreenWidthSetting/ScreenWidth. No store: 480.
    virtual int getScreenWidth() = 0;
    /// DeviceRelativePath/RelativeStoragePath. No store: empty.
    virtual QString getDeviceRelativePath() = 0;
    /// CompanyMail/CompanyMailDefault. No store: empty.
    virtual QString getCompanyMailDefault() = 0;
    /// CompanyAddress/CompanyAddressDefault. No store: empty. Takes no lock, which is meant.
    virtual QString getCompanyAddressDefault() = 0;
    /// LcdWidget/SwitchBackground. No store: empty. Takes no lock, which is meant.
    virtual QString getSwitchBackGround() = 0;
    /// SupportAssessSettting/SupportAssess, spelt so in the file. No store: 0.
    virtual int getSupportAssess() = 0;
    /// Upgrade/SupportUpgradeWaitingDlg: the waiting dialog of an upgrade. No store: 0.
    virtual int getSupportUpgradeWaitDlg() = 0;
    /// ScaleSettting/SupportScale, spelt so in the file. No store: 1.
    virtual int getSupportScale() = 0;
    /// DomesticDevice/DomesticDevice. No store: 1.
    virtual int getDomesticDevice() = 0;
    /// UsbKeyboard/SupportUsbKeyboard. No store: 0.
    virtual int getSupportUsbKeyboard() = 0;
    /// OffColorSetting/OffLightColor, then OffColorSetting/LightColorBrightness. No store: (7, 25).
    virtual std::pair<int, int> getOffLightColorValue() = 0;

    /// Whether the array SourceTypeUseGeneralNameSetting has a row with both "InterfaceType" and "ConnectorType". No
    /// store: false, with a warning.
    virtual bool isSourceTypeUseGeneralName(int interfaceType, int connectorType) = 0;
};

} // namespace LCD::MainConfig

#endif
