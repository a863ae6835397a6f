#include "lcdconfig.h"

#include "settings/settingsarray.h"
#include "settings/settingsstore.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

#include <atomic>

namespace LCD::MainConfigImpl {

namespace {

// clang-format off
// The misspellings are the file's.
constexpr char RETURN_TO_HOME[]         = "/ReturnToHomeSetting/ReturnToHomeValue";
constexpr char USER_MODE[]              = "/UserModeSetting/UserModeValue";
constexpr char DEV_LOCK_STATUS[]        = "/DevSetting/LockStatusValue";
constexpr char LIGHT_ON_SUPPORT[]       = "/LightOnSetting/SupportValue";
constexpr char LANGUAGE[]               = "/LanguageSetting/LanguageValue";
constexpr char LANGUAGE_DEFAULT[]       = "/LanguageSetting/LanguageDefault";
constexpr char LIGHT_BREATH_SUPPORT[]   = "/LightBreathSetting/BreathSupportValue";
constexpr char LIGHT_COLOR[]            = "/LightColorSetting/LightColor";
constexpr char ASPECT_RATIO[]           = "/AspectRatioSetting/AspectRatio";
constexpr char KEY_SAMPLING[]           = "/KeySamplingSetting/KeySampling";
constexpr char KEY_SENDER_IP[]          = "/KeySenderIpSetting/KeySenderIp";
constexpr char UI_SUPPORT_PARTITION[]   = "/UISetting/SupportPartition";
constexpr char TITLE_SUPPORT_CENTER[]   = "/TitleSetting/SupportCenter";
constexpr char HTTP_PORT[]              = "/HttpPortSetting/HttpPort";
constexpr char WEB_SOCKET_PORT[]        = "/WebSocketPortSetting/WebSocketPort";
constexpr char MENU_HIDE[]              = "/SupprotMenuHideSetting/SupprotMenuHide";
constexpr char PLAY_CONNECTOR_TYPE[]    = "/PlaySupportConnectorType/ConnectorTypeValue";
constexpr char CAPACITY_DISPLAY[]       = "/SupprotCapacityDisplaySettting/SupprotCapacityDisplay";
constexpr char SCREEN_WIDTH[]           = "/ScreenWidthSetting/ScreenWidth";
constexpr char RELATIVE_STORAGE_PATH[]  = "/DeviceRelativePath/RelativeStoragePath";
constexpr char COMPANY_MAIL[]           = "/CompanyMail/CompanyMailDefault";
constexpr char COMPANY_ADDRESS[]        = "/CompanyAddress/CompanyAddressDefault";
constexpr char SWITCH_BACKGROUND[]      = "/LcdWidget/SwitchBackground";
constexpr char SUPPORT_ASSESS[]         = "/SupportAssessSettting/SupportAssess";
constexpr char UPGRADE_WAITING_DIALOG[] = "/Upgrade/SupportUpgradeWaitingDlg";
constexpr char SUPPORT_SCALE[]          = "/ScaleSettting/SupportScale";
constexpr char DOMESTIC_DEVICE[]        = "/DomesticDevice/DomesticDevice";
constexpr char USB_KEYBOARD[]           = "/UsbKeyboard/SupportUsbKeyboard";
constexpr char OFF_LIGHT_COLOR[]        = "/OffColorSetting/OffLightColor";
constexpr char OFF_LIGHT_BRIGHTNESS[]   = "/OffColorSetting/LightColorBrightness";
constexpr char FN_VALUE[]               = "/FnSetting/FnValue"; // and the button's index
// Two entries that the file may hold and that no operation reads.
[[maybe_unused]] constexpr char PGM_EDIT_WORK_MODE[] = "/PgmEditStatusSetting/WorkModeValue";
[[maybe_unused]] constexpr char PGM_EDIT_STATUS[]    = "/PgmEditStatusSetting/PgmEditStatusValue";

constexpr char PGM_EDIT_FACTORY[]       = "PgmEditStatusSetting";
constexpr char PGM_EDIT_CURRENT[]       = "PgmEditStatusCurrent";
constexpr char INPUT_LIST_LEFT_OUT[]    = "InputListNoSupportConnectorTypeSetting";
constexpr char GENERAL_NAME_SOURCES[]   = "SourceTypeUseGeneralNameSetting";

constexpr char WORK_MODE[]              = "WorkMode";
constexpr char STATUS[]                 = "Status";
constexpr char INTERFACE_TYPE[]         = "InterfaceType";
constexpr char CONNECTOR_TYPE[]         = "ConnectorType";
// clang-format on

QString fnKey(int index) { return FN_VALUE + QString::number(index); }

int rowOfWorkMode(const SettingsArray& modes, int workMode)
{
    return modes.firstRow([&](int row) { return modes.number(row, WORK_MODE) == workMode; });
}

} // namespace

class LcdConfig::Impl : public SettingsStore {
public:
    [[nodiscard]] int statusOf(const char* array, int workMode) const
    {
        return readOrWarn(-1, [&](IniFile& setting) {
            const SettingsArray modes(setting, array);
            const int row = rowOfWorkMode(modes, workMode);
            return row < 0 ? -1 : modes.number(row, STATUS);
        });
    }

    std::atomic<int> fnBtnMaxCount = 6;
};

LcdConfig::LcdConfig() : _impl(std::make_unique<Impl>()) {}

LcdConfig::~LcdConfig() = default;

bool LcdConfig::readConfig(const QString& dir)
{
    const QString path = QDir::cleanPath(dir + "/lcdsetting.ini");
    if (!QFileInfo(path).isFile()) {
        qWarning().noquote() << "Key setting config file is not exist,file name:" << path;
        return false;
    }
    _impl->open(path);
    return true;
}

// clang-format off
int     LcdConfig::getReturnToHomeTime()              { return _impl->number(RETURN_TO_HOME,         0); }
int     LcdConfig::getUserModeSettingValue()          { return _impl->number(USER_MODE,              0); }
int     LcdConfig::getDevLockStatusValue()            { return _impl->number(DEV_LOCK_STATUS,        0); }
int     LcdConfig::getLightOnSupportValue()           { return _impl->number(LIGHT_ON_SUPPORT,       0); }
QString LcdConfig::getLanguage()                      { return _impl->text(LANGUAGE,                 ""); }
QString LcdConfig::getDefaultLanguage()               { return _impl->text(LANGUAGE_DEFAULT,         ""); }
int     LcdConfig::getLightBreathSupportValue()       { return _impl->number(LIGHT_BREATH_SUPPORT,   0); }
int     LcdConfig::getLightColorValue()               { return _impl->number(LIGHT_COLOR,            0); }
int     LcdConfig::getAspectRatioValue()              { return _impl->number(ASPECT_RATIO,           0); }
int     LcdConfig::getKeySamplingTime()               { return _impl->number(KEY_SAMPLING,           0); }
QString LcdConfig::getKeySenderIp()                   { return _impl->text(KEY_SENDER_IP,            "192.168.0.55"); }
int     LcdConfig::getUISupportPartition()            { return _impl->number(UI_SUPPORT_PARTITION,   0); }
int     LcdConfig::getTitleSupportCenter()            { return _impl->number(TITLE_SUPPORT_CENTER,   0); }
int     LcdConfig::getHttpPort()                      { return _impl->number(HTTP_PORT,              19999); }
int     LcdConfig::getWebSocketPort()                 { return _impl->number(WEB_SOCKET_PORT,        19999); }
int     LcdConfig::getSupprotMenuHide()               { return _impl->number(MENU_HIDE,              0); }
int     LcdConfig::getPlaySupportConnectorType()      { return _impl->number(PLAY_CONNECTOR_TYPE,    0); }
int     LcdConfig::getSupprotLSourceCapacityDisplay() { return _impl->number(CAPACITY_DISPLAY,       0); }
int     LcdConfig::getScreenWidth()                   { return _impl->number(SCREEN_WIDTH,           480); }
QString LcdConfig::getDeviceRelativePath()            { return _impl->text(RELATIVE_STORAGE_PATH,    ""); }
QString LcdConfig::getCompanyMailDefault()            { return _impl->text(COMPANY_MAIL,             ""); }
QString LcdConfig::getCompanyAddressDefault()         { return _impl->textUnlocked(COMPANY_ADDRESS,  ""); } // no lock, which is meant
QString LcdConfig::getSwitchBackGround()              { return _impl->textUnlocked(SWITCH_BACKGROUND, ""); } // no lock, which is meant
int     LcdConfig::getSupportAssess()                 { return _impl->number(SUPPORT_ASSESS,         0); }
int     LcdConfig::getSupportUpgradeWaitDlg()         { return _impl->number(UPGRADE_WAITING_DIALOG, 0); }
int     LcdConfig::getSupportScale()                  { return _impl->number(SUPPORT_SCALE,          1); }
int     LcdConfig::getDomesticDevice()                { return _impl->number(DOMESTIC_DEVICE,        1); }
int     LcdConfig::getSupportUsbKeyboard()            { return _impl->number(USB_KEYBOARD,           0); }
int     LcdConfig::getFnSettingValue(int index)       { return _impl->number(fnKey(index),           0); }

void LcdConfig::setReturnToHomeTime(int value)              { _impl->set(RETURN_TO_HOME,       value); }
void LcdConfig::setUserModeSettingValue(int value)          { _impl->set(USER_MODE,            value); }
void LcdConfig::setDevLockStatusValue(int value)            { _impl->set(DEV_LOCK_STATUS,      value); }
void LcdConfig::setLightOnSupportValue(int value)           { _impl->set(LIGHT_ON_SUPPORT,     value); }
void LcdConfig::setLanguage(const QString& language)        { _impl->set(LANGUAGE,             language); }
void LcdConfig::setLightBreathSupportValue(int value)       { _impl->set(LIGHT_BREATH_SUPPORT, value); }
void LcdConfig::setLightColorValue(int value)               { _impl->set(LIGHT_COLOR,          value); }
void LcdConfig::setAspectRatioValue(int value)              { _impl->set(ASPECT_RATIO,         value); }
void LcdConfig::setFnSettingValue(int index, int value)     { _impl->setAndWrite(fnKey(index),       value); }
// clang-format on

std::pair<int, int> LcdConfig::getOffLightColorValue()
{
    const std::vector<int> numbers = _impl->numbers({{OFF_LIGHT_COLOR, 7}, {OFF_LIGHT_BRIGHTNESS, 25}});
    return {numbers[0], numbers[1]};
}

void LcdConfig::setFnBtnMaxCount(int count) { _impl->fnBtnMaxCount = count; }

void LcdConfig::setALLFnSettingValue(int value)
{
    const int count = boundedFnButtons(_impl->fnBtnMaxCount);
    for (int index = 0; index < count; ++index) setFnSettingValue(index, value);
}

int LcdConfig::getPgmEditStatusOnWorkMode(int workMode) { return _impl->statusOf(PGM_EDIT_FACTORY, workMode); }

int LcdConfig::getCurrentPgmEditStatus(int workMode) { return _impl->statusOf(PGM_EDIT_CURRENT, workMode); }

std::map<int, int> LcdConfig::getPgmEditStatus()
{
    return _impl->readOrWarn(std::map<int, int>{}, [](IniFile& setting) {
        const SettingsArray factory(setting, PGM_EDIT_FACTORY);
        std::map<int, int> statuses;
        for (int row = 0; row < factory.size(); ++row)
            statuses.emplace(factory.number(row, WORK_MODE), factory.number(row, STATUS));
        return statuses;
    });
}

void LcdConfig::setCurrentPgmEditStatus(int workMode, int status)
{
    const auto use = [&](IniFile& setting) {
        SettingsArray current(setting, PGM_EDIT_CURRENT);
        const int row = rowOfWorkMode(current, workMode);
        if (row >= 0) current.set(row, STATUS, status);
    };
    if (_impl->changeOrWarn(use)) linuxSync();
}

void LcdConfig::setCurrentPgmEditDefaultStatus()
{
    const auto use = [](IniFile& setting) {
        const SettingsArray factory(setting, PGM_EDIT_FACTORY);
        SettingsArray current(setting, PGM_EDIT_CURRENT);
        const int rows = factory.size();
        for (int row = 0; row < rows; ++row) current.set(row, STATUS, factory.number(row, STATUS));
        current.growTo(rows);
    };
    if (_impl->changeOrWarn(use)) linuxSync();
}

std::vector<int> LcdConfig::getInputListNoSupportConnectorType()
{
    return _impl->readOrWarn(std::vector<int>{}, [](IniFile& setting) {
        const SettingsArray leftOut(setting, INPUT_LIST_LEFT_OUT);
        const int rows = leftOut.size();
        std::vector<int> types(static_cast<std::size_t>(rows));
        for (int row = 0; row < rows; ++row) types[static_cast<std::size_t>(row)] = leftOut.number(row, CONNECTOR_TYPE);
        return types;
    });
}

bool LcdConfig::isSourceTypeUseGeneralName(int interfaceType, int connectorType)
{
    return _impl->readOrWarn(false, [&](IniFile& setting) {
        const SettingsArray sources(setting, GENERAL_NAME_SOURCES);
        return sources.firstRow([&](int row) {
            return sources.number(row, INTERFACE_TYPE) == interfaceType &&
                   sources.number(row, CONNECTOR_TYPE) == connectorType;
        }) >= 0;
    });
}

} // namespace LCD::MainConfigImpl
