// The component of what the user sets at the panel.
#ifndef LCDMAINCONFIGIMPL_LCDLANGUAGECONFIG_H
#define LCDMAINCONFIGIMPL_LCDLANGUAGECONFIG_H

#include "lcdmainconfig/ilcdlanguageconfig.h"

#include <memory>

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;

class LcdLanguageConfig final : public ILcdLanguageConfig {
public:
    /// The path is another one in tests alone.
    explicit LcdLanguageConfig(const QString& path = QStringLiteral("/userdata/log/lcd/ini/lcdsetting.ini"));
    ~LcdLanguageConfig() override;
    LcdLanguageConfig(const LcdLanguageConfig&) = delete;
    LcdLanguageConfig& operator=(const LcdLanguageConfig&) = delete;

    bool readConfig() override;
    void setLanguage(const QString& language) override;
    QString getLanguage() override;
    void setTBarTolerance(const int& tolerance) override;
    int getTBarTolerance() override;
    void setTBarCalibration(const std::pair<int, int>& calibration) override;
    std::pair<int, int> getTBarCalibration() override;
    std::vector<std::pair<int, QString>> getRTSPSettingPara() override;
    void setFnSettingValue(int index, int value) override;
    void setALLFnSettingValue(int value) override;
    int getFnSettingValue(int index) override;
    bool hasFnSettingValue(int index) override;
    void setFnSettingTargetValue(int index, int target) override;
    int getFnSettingTargetValue(int index) override;
    void setFnSettingTargetTypeValue(int index, int targetType) override;
    int getFnSettingTargetTypeValue(int index) override;
    void setFnBtnMaxCount(int count) override;
    void setReturnToHomeTime(int value) override;
    int getReturnToHomeTime() override;
    void setUserModeSettingValue(int value) override;
    int getUserModeSettingValue() override;
    void setDevLockStatusValue(int value) override;
    int getDevLockStatusValue() override;
    void setStartRecordStreamTriggerType(int type) override;
    int getStartRecordStreamTriggerType() override;
    void setStopRecordStreamTriggerType(int type) override;
    int getStopRecordStreamTriggerType() override;
    void setSourceSortType(int type) override;
    int getSourceSortType() override;
    void setJumpFlag(int flag) override;
    int getJumpFlag() override;
    bool hasSourceCustomSort() override;
    void setSourceCustomSort(const QString& name, int value) override;
    std::vector<s_SourceCustomSort> getSourceCustomSort() override;
    void removeGroups(const QStringList& groups) override;
    void setScreenLight(int value) override;
    int getScreenLight() override;
    void setKnobTimeOut(int value) override;
    int getKnobTimeOut() override;
    void setBackExitMVRTimeOut(int value) override;
    int getBackExitMVRTimeOut() override;

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

} // namespace LCD::MainConfigImpl

#endif
