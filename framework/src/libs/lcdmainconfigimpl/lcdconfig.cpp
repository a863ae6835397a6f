#include "lcdconfig.h"

namespace LCD::MainConfigImpl {

// Not read yet: the component answers as on an empty catalogue.
class LcdConfig::Impl {};

LcdConfig::LcdConfig() : _impl(std::make_unique<Impl>()) {}

LcdConfig::~LcdConfig() = default;

bool LcdConfig::readConfig(const QString& /*dir*/) { return {}; }

void LcdConfig::setReturnToHomeTime(int /*value*/) {}

int LcdConfig::getReturnToHomeTime() const { return {}; }

int LcdConfig::getPgmEditStatusOnWorkMode(int /*workMode*/) const { return {}; }

std::map<int, int> LcdConfig::getPgmEditStatus() const { return {}; }

int LcdConfig::getCurrentPgmEditStatus(int /*workMode*/) const { return {}; }

void LcdConfig::setCurrentPgmEditStatus(int /*workMode*/, int /*status*/) {}

void LcdConfig::setCurrentPgmEditDefaultStatus() {}

void LcdConfig::setFnBtnMaxCount(int /*count*/) {}

void LcdConfig::setFnSettingValue(int /*index*/, int /*value*/) {}

void LcdConfig::setALLFnSettingValue(int /*value*/) {}

int LcdConfig::getFnSettingValue(int /*index*/) const { return {}; }

void LcdConfig::setUserModeSettingValue(int /*value*/) {}

int LcdConfig::getUserModeSettingValue() const { return {}; }

void LcdConfig::setDevLockStatusValue(int /*value*/) {}

int LcdConfig::getDevLockStatusValue() const { return {}; }

void LcdConfig::setLightOnSupportValue(int /*value*/) {}

int LcdConfig::getLightOnSupportValue() const { return {}; }

void LcdConfig::setLanguage(const QString& /*language*/) {}

QString LcdConfig::getLanguage() const { return {}; }

QString LcdConfig::getDefaultLanguage() const { return {}; }

void LcdConfig::setLightBreathSupportValue(int /*value*/) {}

int LcdConfig::getLightBreathSupportValue() const { return {}; }

void LcdConfig::setLightColorValue(int /*value*/) {}

int LcdConfig::getLightColorValue() const { return {}; }

void LcdConfig::setAspectRatioValue(int /*value*/) {}

int LcdConfig::getAspectRatioValue() const { return {}; }

int LcdConfig::getKeySamplingTime() const { return {}; }

QString LcdConfig::getKeySenderIp() const { return {}; }

int LcdConfig::getUISupportPartition() const { return {}; }

int LcdConfig::getTitleSupportCenter() const { return {}; }

int LcdConfig::getHttpPort() const { return {}; }

int LcdConfig::getWebSocketPort() const { return {}; }

int LcdConfig::getSupprotMenuHide() const { return {}; }

int LcdConfig::getPlaySupportConnectorType() const { return {}; }

std::vector<int> LcdConfig::getInputListNoSupportConnectorType() const { return {}; }

int LcdConfig::getSupprotLSourceCapacityDisplay() const { return {}; }

int LcdConfig::getScreenWidth() const { return {}; }

QString LcdConfig::getDeviceRelativePath() const { return {}; }

QString LcdConfig::getCompanyMailDefault() const { return {}; }

QString LcdConfig::getCompanyAddressDefault() const { return {}; }

QString LcdConfig::getSwitchBackGround() const { return {}; }

int LcdConfig::getSupportAssess() const { return {}; }

int LcdConfig::getSupportUpgradeWaitDlg() const { return {}; }

int LcdConfig::getSupportScale() const { return {}; }

int LcdConfig::getDomesticDevice() const { return {}; }

int LcdConfig::getSupportUsbKeyboard() const { return {}; }

std::pair<int, int> LcdConfig::getOffLightColorValue() const { return {}; }

bool LcdConfig::isSourceTypeUseGeneralName(int /*interfaceType*/, int /*connectorType*/) const { return {}; }

} // namespace LCD::MainConfigImpl
