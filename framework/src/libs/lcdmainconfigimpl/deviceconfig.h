// The component of the device catalogue: reads device directories, and answers what the current device is and can do.
#ifndef LCDMAINCONFIGIMPL_DEVICECONFIG_H
#define LCDMAINCONFIGIMPL_DEVICECONFIG_H

#include "lcdmainconfig/ideviceconfig.h"

#include <QString>

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;

class DeviceConfig final : public IDeviceConfig {
public:
    bool readConfig(const QString& path, QString& error) override;
    bool findSlotConnectors(int deviceId, int slotIndex, int moduleId, std::vector<s_Slot>& out) override;
    const QList<s_Device>& DeviceConfigs() const override;
    s_Device curDeviceConfigs() const override;
    std::uint64_t findSubcardModelId(int slotIndex) const override;
    QString findDeviceTypeName() const override;
    QString getBrand() const override;
    std::uint64_t findDeviceModelId() const override;
    std::vector<s_LayerType> findLayerTypes(int screenType, int deviceMode) const override;
    s_LayerWindow findLayerWindowDefaultRange(int layerType) const override;
    std::shared_ptr<s_Screen> screenConfigs(int screenType) const override;
    std::shared_ptr<std::vector<s_SilkOrder>> silkConfigs() const override;
    std::shared_ptr<s_Layer> layerConfigs(int layerType) const override;
    std::shared_ptr<s_Preset> presetConfigs() const override;
    std::shared_ptr<s_Ptzs> ptzsConfigs() const override;
    std::shared_ptr<s_CleanFeeds> cleanFeedsConfigs() const override;
    bool isSupportDantePort() const override;
    std::shared_ptr<s_Tally> tallyConfigs() const override;
    std::shared_ptr<s_InternalSource> internalSourceConfigs() const override;
    std::shared_ptr<s_Language> languageConfigs() const override;
    std::shared_ptr<s_MOSAICSource> inputMOSAICConfigs() const override;
    std::shared_ptr<s_LayerCutoutGeneral> layerCutoutConfigs(int layerType) const override;
    std::shared_ptr<s_QuickToPology> quickConfigurationConfigs() const override;
    s_SenderGenLock findFramerates(int screenType) const override;
    std::shared_ptr<s_RecodeSettingCfg> recodeSettingConfigs() const override;
    std::shared_ptr<s_Genlock> genlockConfigs() const override;
    std::shared_ptr<s_MediaPool> mediaPoolCfg() const override;
    std::shared_ptr<std::vector<EnumValue>> findEffectTypes() const override;
    std::shared_ptr<s_ThreeD> screenThreeDConfigs(int screenType) const override;
    std::shared_ptr<s_Effect> effectConfigs() const override;
    std::shared_ptr<s_Genlock> genlockScreenConfigs(int screenType) const override;
    std::string getRelativePath(RelativePathType type) const override;

    /// The readers of one file each, by kind. `out` is the kind's fresh record; false with `error` set when the file is
    /// of no use. A true result may leave in `error` the message of an absent element.
    bool parseDeviceFeaturecfg(const QString& filePath, QString& error, s_DeviceFeature& out) const;
    bool parseDeviceSlotcfg(const QString& filePath, QString& error, s_DCSSolt& out) const;
    bool parseDeviceLayercfg(const QString& filePath, QString& error, s_DCSLayer& out) const;
    bool parseDeviceScreencfg(const QString& filePath, QString& error, s_DCSScreen& out) const;
    bool parseDeviceSilkcfg(const QString& filePath, QString& error, std::vector<s_SilkOrder>& out) const;

private:
    void readFile(const QString& filePath, const QString& fileName, s_Device& device) const;
    /// The current device; null when there is none, of which the second form warns.
    const s_Device* current() const;
    const s_Device* currentOrWarn() const;
    /// The first screen of that type of the current device, and a copy of it; null, with a warning, when there is none.
    const s_DCSScreen* screenOrWarn(int screenType) const;
    std::shared_ptr<s_Screens> getScreenData(int screenType) const;

    QList<s_Device> _devices; ///< In the order of the readConfig calls; the first one is the current device.
};

} // namespace LCD::MainConfigImpl

#endif
