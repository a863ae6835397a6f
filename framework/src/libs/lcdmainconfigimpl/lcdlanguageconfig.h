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
    QString getLanguage() const override;
    void setTBarTolerance(const int& tolerance) override;
    int getTBarTolerance() const override;
    void setTBarCalibration(const std::pair<int, int>& calibration) override;
    std::pair<int, int> getTBarCalibration() const override;
    std::vector<std::pair<int, QString>> getRTSPSettingPara() const override;
    void setFnSettingValue(int index, int value) override;
    void setALLFnSettingValue(int value) override;
    int getFnSettingValue(int index) const override;
    bool hasFnSettingValue(int index) const override;
    void setFnSettingTargetValue(int index, int target) override;
    int getFnSettingTargetValue(int index) const override;
    void setFnSettingTargetTypeValue(int index, int targetType) override;
    int getFnSettingTargetTypeValue(int index) const override;
    void setFnBtnMaxCount(int count) override;
    void setReturnToHomeTime(int value) override;
    int getReturnToHomeTime() const override;
    void setUserModeSettingValue(int value) override;
    int getUserModeSettingValue() const override;
    void setDevLockStatusValue(int value) override;
    int getDevLockStatusValue() const override;
    void setStartRecordStreamTriggerType(int type) override;
    int getStartRecordStreamTriggerType() const override;
    void setStopRecordStreamTriggerType(int type) override;
    int getStopRecordStreamTriggerType() const override;
    void setSourceSortType(int type) override;
    int getSourceSortType() const override;
    void setJumpFlag(int flag) override;
    int getJumpFlag() const override;
    bool hasSourceCustomSort() const override;
    void setSourceCustomSort(const QString& name, int value) override;
    std::vector<s_SourceCustomSort> getSourceCustomSort() const override;
    void removeGroups(const QStringList& groups) override;
    void setScreenLight(int value) override;
    int getScreenLight() const override;
    void setKnobTimeOut(int value) override;
    int getKnobTimeOut() const override;
    void setBackExitMVRTimeOut(int value) override;
    int getBackExitMVRTimeOut() const override;

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

} // namespace LCD::MainConfigImpl

#endif
