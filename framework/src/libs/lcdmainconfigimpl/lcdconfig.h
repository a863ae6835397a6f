// The component of the factory-level panel settings.
#ifndef LCDMAINCONFIGIMPL_LCDCONFIG_H
#define LCDMAINCONFIGIMPL_LCDCONFIG_H

#include "lcdmainconfig/ilcdconfig.h"

#include <memory>

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;

class LcdConfig final : public ILcdConfig {
public:
    LcdConfig();
    ~LcdConfig() override;
    LcdConfig(const LcdConfig&) = delete;
    LcdConfig& operator=(const LcdConfig&) = delete;

    bool readConfig(const QString& dir) override;
    void setReturnToHomeTime(int value) override;
    int getReturnToHomeTime() const override;
    int getPgmEditStatusOnWorkMode(int workMode) const override;
    std::map<int, int> getPgmEditStatus() const override;
    int getCurrentPgmEditStatus(int workMode) const override;
    void setCurrentPgmEditStatus(int workMode, int status) override;
    void setCurrentPgmEditDefaultStatus() override;
    void setFnBtnMaxCount(int count) override;
    void setFnSettingValue(int index, int value) override;
    void setALLFnSettingValue(int value) override;
    int getFnSettingValue(int index) const override;
    void setUserModeSettingValue(int value) override;
    int getUserModeSettingValue() const override;
    void setDevLockStatusValue(int value) override;
    int getDevLockStatusValue() const override;
    void setLightOnSupportValue(int value) override;
    int getLightOnSupportValue() const override;
    void setLanguage(const QString& language) override;
    QString getLanguage() const override;
    QString getDefaultLanguage() const override;
    void setLightBreathSupportValue(int value) override;
    int getLightBreathSupportValue() const override;
    void setLightColorValue(int value) override;
    int getLightColorValue() const override;
    void setAspectRatioValue(int value) override;
    int getAspectRatioValue() const override;
    int getKeySamplingTime() const override;
    QString getKeySenderIp() const override;
    int getUISupportPartition() const override;
    int getTitleSupportCenter() const override;
    int getHttpPort() const override;
    int getWebSocketPort() const override;
    int getSupprotMenuHide() const override;
    int getPlaySupportConnectorType() const override;
    std::vector<int> getInputListNoSupportConnectorType() const override;
    int getSupprotLSourceCapacityDisplay() const override;
    int getScreenWidth() const override;
    QString getDeviceRelativePath() const override;
    QString getCompanyMailDefault() const override;
    QString getCompanyAddressDefault() const override;
    QString getSwitchBackGround() const override;
    int getSupportAssess() const override;
    int getSupportUpgradeWaitDlg() const override;
    int getSupportScale() const override;
    int getDomesticDevice() const override;
    int getSupportUsbKeyboard() const override;
    std::pair<int, int> getOffLightColorValue() const override;
    bool isSourceTypeUseGeneralName(int interfaceType, int connectorType) const override;

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

} // namespace LCD::MainConfigImpl

#endif
