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

/// The factory settings of the panel. Entries are told as section/entry. With the store open, an entry that is absent
/// or not a number reads as 0, a text as empty; "No store" tells what a getter gives before readConfig has found the
/// file. A setter ends with a flush of the operating system's files, which is its cost, and reports no failure; unless
/// told otherwise it must not be called without a store. Any thread may call, where no exception is told.
class ILcdConfig {
public:
    virtual ~ILcdConfig() = default;

    /// Opens "lcdsetting.ini" of the directory. False, with a warning, if it is not a file; it is never created here,
    /// and a store that was open stays.
    virtual bool readConfig(const QString& dir) = 0;

    /// Sets how long the panel stays idle before it returns to its home page: writes
    /// ReturnToHomeSetting/ReturnToHomeValue.
    virtual void setReturnToHomeTime(int value) = 0;
    /// How long the panel stays idle before it returns to its home page: ReturnToHomeSetting/ReturnToHomeValue; no unit
    /// is fixed here. No store: 0.
    virtual int getReturnToHomeTime() = 0;

    /// The factory status of programme editing in a work mode: "Status" of the first row of the array
    /// PgmEditStatusSetting with that "WorkMode". No such row: -1. No store: -1, with a warning.
    virtual int getPgmEditStatusOnWorkMode(int workMode) = 0;
    /// The factory status of programme editing by work mode, from the array PgmEditStatusSetting; of a repeated work
    /// mode the first row counts. No rows: empty. No store: empty, with a warning.
    virtual std::map<int, int> getPgmEditStatus() = 0;
    /// The status of programme editing in a work mode as it stands: "Status" of the first row of the array
    /// PgmEditStatusCurrent with that "WorkMode". No such row: -1. No store: -1, with a warning.
    virtual int getCurrentPgmEditStatus(int workMode) = 0;
    /// Sets the status of programme editing in a work mode: writes "Status" of the first row of PgmEditStatusCurrent
    /// with that "WorkMode"; no row is ever added. No store: a warning, nothing written.
    virtual void setCurrentPgmEditStatus(int workMode, int status) = 0;
    /// Sets programme editing back to its factory statuses: copies "Status" from each row of PgmEditStatusSetting to
    /// the same row of PgmEditStatusCurrent; "WorkMode" there is left alone. No store: a warning, nothing written.
    virtual void setCurrentPgmEditDefaultStatus() = 0;

    /// How many function buttons setALLFnSettingValue writes; 6 at first. Kept in memory only, and takes no lock, which
    /// is meant.
    virtual void setFnBtnMaxCount(int count) = 0;
    /// Sets the binding of a function button: writes `FnSetting/FnValue<index>`, at once.
    virtual void setFnSettingValue(int index, int value) = 0;
    /// Binds all function buttons alike: writes `FnSetting/FnValue<index>` for every button from 0, each with a flush
    /// of its own.
    virtual void setALLFnSettingValue(int value) = 0;
    /// The binding of a function button: `FnSetting/FnValue<index>`. No store: 0.
    virtual int getFnSettingValue(int index) = 0;

    /// Sets the user mode that the panel works in: writes UserModeSetting/UserModeValue.
    virtual void setUserModeSettingValue(int value) = 0;
    /// The user mode that the panel works in: UserModeSetting/UserModeValue. No store: 0.
    virtual int getUserModeSettingValue() = 0;

    /// Sets whether the panel is locked: writes DevSetting/LockStatusValue.
    virtual void setDevLockStatusValue(int value) = 0;
    /// Whether the panel is locked: DevSetting/LockStatusValue. No store: 0.
    virtual int getDevLockStatusValue() = 0;

    /// Sets whether the keys' lamps shine: writes LightOnSetting/SupportValue.
    virtual void setLightOnSupportValue(int value) = 0;
    /// Whether the keys' lamps shine: LightOnSetting/SupportValue. No store: 0.
    virtual int getLightOnSupportValue() = 0;

    /// Sets the panel's language: writes LanguageSetting/LanguageValue.
    virtual void setLanguage(const QString& language) = 0;
    /// The panel's language: LanguageSetting/LanguageValue. No store: empty.
    virtual QString getLanguage() = 0;
    /// The language as delivered: LanguageSetting/LanguageDefault. No store: empty.
    virtual QString getDefaultLanguage() = 0;

    /// Sets whether the keys' lamps breathe: writes LightBreathSetting/BreathSupportValue.
    virtual void setLightBreathSupportValue(int value) = 0;
    /// Whether the keys' lamps breathe: LightBreathSetting/BreathSupportValue. No store: 0.
    virtual int getLightBreathSupportValue() = 0;

    /// Sets the colour of the keys' lamps: writes LightColorSetting/LightColor.
    virtual void setLightColorValue(int value) = 0;
    /// The colour of the keys' lamps: LightColorSetting/LightColor. No store: 0.
    virtual int getLightColorValue() = 0;

    /// Sets how the panel treats the aspect ratio of pictures: writes AspectRatioSetting/AspectRatio.
    virtual void setAspectRatioValue(int value) = 0;
    /// How the panel treats the aspect ratio of pictures: AspectRatioSetting/AspectRatio. No store: 0.
    virtual int getAspectRatioValue() = 0;

    /// How often the keys are sampled: KeySamplingSetting/KeySampling. No store: 0.
    virtual int getKeySamplingTime() = 0;
    /// The IP address that the keyboard sends from: KeySenderIpSetting/KeySenderIp. No store: "192.168.0.55".
    virtual QString getKeySenderIp() = 0;
    /// Whether the panel's pages are divided into parts: UISetting/SupportPartition. No store: 0.
    virtual int getUISupportPartition() = 0;
    /// Whether titles are centred: TitleSetting/SupportCenter. No store: 0.
    virtual int getTitleSupportCenter() = 0;
    /// The network port of the device's HTTP service: HttpPortSetting/HttpPort. No store: 19999.
    virtual int getHttpPort() = 0;
    /// The network port of the device's WebSocket service: WebSocketPortSetting/WebSocketPort. No store: 19999.
    virtual int getWebSocketPort() = 0;
    /// Whether menus can be hidden: SupprotMenuHideSetting/SupprotMenuHide, spelt so in the file. No store: 0.
    virtual int getSupprotMenuHide() = 0;
    /// The connector type that the media player takes: PlaySupportConnectorType/ConnectorTypeValue. No store: 0.
    virtual int getPlaySupportConnectorType() = 0;
    /// The connector types that the list of inputs leaves out: "ConnectorType" of every row of the array
    /// InputListNoSupportConnectorTypeSetting. No rows: empty. No store: empty, with a warning.
    virtual std::vector<int> getInputListNoSupportConnectorType() = 0;
    /// Whether the capacity of a source is shown: SupprotCapacityDisplaySettting/SupprotCapacityDisplay, spelt so in
    /// the file. No store: 0.
    virtual int getSupprotLSourceCapacityDisplay() = 0;
    /// The width of the panel's own screen in pixels: ScreenWidthSetting/ScreenWidth. No store: 480.
    virtual int getScreenWidth() = 0;
    /// The place of the device's storage, relative to what the panel has at hand:
    /// DeviceRelativePath/RelativeStoragePath. No store: empty.
    virtual QString getDeviceRelativePath() = 0;
    /// The maker's mail address as delivered: CompanyMail/CompanyMailDefault. No store: empty.
    virtual QString getCompanyMailDefault() = 0;
    /// The maker's postal address as delivered: CompanyAddress/CompanyAddressDefault. No store: empty. Takes no lock,
    /// which is meant.
    virtual QString getCompanyAddressDefault() = 0;
    /// The picture in the panel's background: LcdWidget/SwitchBackground. No store: empty. Takes no lock, which is
    /// meant.
    virtual QString getSwitchBackGround() = 0;
    /// Whether the panel offers an assessment: SupportAssessSettting/SupportAssess, spelt so in the file. No store: 0.
    virtual int getSupportAssess() = 0;
    /// Whether a dialog bids the user wait during an upgrade: Upgrade/SupportUpgradeWaitingDlg. No store: 0.
    virtual int getSupportUpgradeWaitDlg() = 0;
    /// Whether the panel offers scaling: ScaleSettting/SupportScale, spelt so in the file. No store: 1.
    virtual int getSupportScale() = 0;
    /// Whether the device is made for the home market: DomesticDevice/DomesticDevice. No store: 1.
    virtual int getDomesticDevice() = 0;
    /// Whether a USB keyboard can be used: UsbKeyboard/SupportUsbKeyboard. No store: 0.
    virtual int getSupportUsbKeyboard() = 0;
    /// The colour of a lamp that counts as off, and its brightness: OffColorSetting/OffLightColor, then
    /// OffColorSetting/LightColorBrightness. No store: (7, 25).
    virtual std::pair<int, int> getOffLightColorValue() = 0;

    /// Whether a source bears a general name and not the one of its connector: the array
    /// SourceTypeUseGeneralNameSetting has a row with both "InterfaceType" and "ConnectorType". No store: false, with a
    /// warning.
    virtual bool isSourceTypeUseGeneralName(int interfaceType, int connectorType) = 0;
};

} // namespace LCD::MainConfig

#endif
