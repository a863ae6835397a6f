#include "lcdlanguageconfig.h"

namespace LCD::MainConfigImpl {

// Not read yet: the component answers as on an empty catalogue.
class LcdLanguageConfig::Impl {};

LcdLanguageConfig::LcdLanguageConfig() : _impl(std::make_unique<Impl>()) {}

LcdLanguageConfig::~LcdLanguageConfig() = default;

bool LcdLanguageConfig::readConfig() { return {}; }

void LcdLanguageConfig::setLanguage(const QString& /*language*/) {}

QString LcdLanguageConfig::getLanguage() const { return {}; }

void LcdLanguageConfig::setTBarTolerance(const int& /*tolerance*/) {}

int LcdLanguageConfig::getTBarTolerance() const { return {}; }

void LcdLanguageConfig::setTBarCalibration(const std::pair<int, int>& /*calibration*/) {}

std::pair<int, int> LcdLanguageConfig::getTBarCalibration() const { return {}; }

std::vector<std::pair<int, QString>> LcdLanguageConfig::getRTSPSettingPara() const { return {}; }

void LcdLanguageConfig::setFnSettingValue(int /*index*/, int /*value*/) {}

void LcdLanguageConfig::setALLFnSettingValue(int /*value*/) {}

int LcdLanguageConfig::getFnSettingValue(int /*index*/) const { return {}; }

bool LcdLanguageConfig::hasFnSettingValue(int /*index*/) const { return {}; }

void LcdLanguageConfig::setFnSettingTargetValue(int /*index*/, int /*target*/) {}

int LcdLanguageConfig::getFnSettingTargetValue(int /*index*/) const { return {}; }

void LcdLanguageConfig::setFnSettingTargetTypeValue(int /*index*/, int /*targetType*/) {}

int LcdLanguageConfig::getFnSettingTargetTypeValue(int /*index*/) const { return {}; }

void LcdLanguageConfig::setFnBtnMaxCount(int /*count*/) {}

void LcdLanguageConfig::setReturnToHomeTime(int /*value*/) {}

int LcdLanguageConfig::getReturnToHomeTime() const { return {}; }

void LcdLanguageConfig::setUserModeSettingValue(int /*value*/) {}

int LcdLanguageConfig::getUserModeSettingValue() const { return {}; }

void LcdLanguageConfig::setDevLockStatusValue(int /*value*/) {}

int LcdLanguageConfig::getDevLockStatusValue() const { return {}; }

void LcdLanguageConfig::setStartRecordStreamTriggerType(int /*type*/) {}

int LcdLanguageConfig::getStartRecordStreamTriggerType() const { return {}; }

void LcdLanguageConfig::setStopRecordStreamTriggerType(int /*type*/) {}

int LcdLanguageConfig::getStopRecordStreamTriggerType() const { return {}; }

void LcdLanguageConfig::setSourceSortType(int /*type*/) {}

int LcdLanguageConfig::getSourceSortType() const { return {}; }

void LcdLanguageConfig::setJumpFlag(int /*flag*/) {}

int LcdLanguageConfig::getJumpFlag() const { return {}; }

bool LcdLanguageConfig::hasSourceCustomSort() const { return {}; }

void LcdLanguageConfig::setSourceCustomSort(const QString& /*name*/, int /*value*/) {}

std::vector<s_SourceCustomSort> LcdLanguageConfig::getSourceCustomSort() const { return {}; }

void LcdLanguageConfig::removeGroups(const QStringList& /*groups*/) {}

void LcdLanguageConfig::setScreenLight(int /*value*/) {}

int LcdLanguageConfig::getScreenLight() const { return {}; }

void LcdLanguageConfig::setKnobTimeOut(int /*value*/) {}

int LcdLanguageConfig::getKnobTimeOut() const { return {}; }

void LcdLanguageConfig::setBackExitMVRTimeOut(int /*value*/) {}

int LcdLanguageConfig::getBackExitMVRTimeOut() const { return {}; }

} // namespace LCD::MainConfigImpl
