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
    int getReturnToHomeTime() override;
    int getPgmEditStatusOnWorkMode(int workMode) override;
    std::map<int, int> getPgmEditStatus() override;
    int getCurrentPgmEditStatus(int workMode) override;
    void setCurrentPgmEditStatus(int workMode, int status) override;
    void setCurrentPgmEditDefaultStatus() override;
    void setFnBtnMaxCount(int count) override;
    void setFnSettingValue(int index, int value) override;
    void setALLFnSettingValue(int value) override;
    int getFnSettingValue(int index) override;
    void setUserModeSettingValue(int value) override;
    int getUserModeSettingValue() override;
    void setDevLockStatusValue(int value) override;
    int getDevLockStatusValue() override;
    void setLightOnSupportValue(int value) override;
    int getLightOnSupportValue() override;
    void setLanguage(const QString& language) override;
    QString getLanguage() override;
    QString getDefaultLanguage() override;
    void setLightBreathSupportValue(int value) override;
    int getLightBreathSupportValue() override;
    void setLightColorValue(int value) override;
    int getLightColorValue() override;
    void setAspectRatioValue(int value) override;
    int getAspectRatioValue() override;
    int getKeySamplingTime() override;
    QString getKeySenderIp() override;
    int getUISupportPartition() override;
    int getTitleSupportCenter() override;
    int getHttpPort() override;
    int getWebSocketPort() override;
    int getSupprotMenuHide() override;
    int getPlaySupportConnectorType() override;
    std::vector<int> getInputListNoSupportConnectorType() override;
    int getSupprotLSourceCapacityDisplay() override;
    int getScreenWidth() override;
    QString getDeviceRelativePath() override;
    QString getCompanyMailDefault() override;
    QString getCompanyAddressDefault() override;
    QString getSwitchBackGround() override;
    int getSupportAssess() override;
    int getSupportUpgradeWaitDlg() override;
    int getSupportScale() override;
    int getDomesticDevice() override;
    int getSupportUsbKeyboard() override;
    std::pair<int, int> getOffLightColorValue() override;
    bool isSourceTypeUseGeneralName(int interfaceType, int connectorType) override;

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

} // namespace LCD::MainConfigImpl

#endif
