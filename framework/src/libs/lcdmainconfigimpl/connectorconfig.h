// The component of the catalogue of connector types.
#ifndef LCDMAINCONFIGIMPL_CONNECTORCONFIG_H
#define LCDMAINCONFIGIMPL_CONNECTORCONFIG_H

#include "lcdmainconfig/iconnectorconfig.h"

#include <memory>

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;

class ConnectorConfig final : public IConnectorConfig {
public:
    ConnectorConfig();
    ~ConnectorConfig() override;
    ConnectorConfig(const ConnectorConfig&) = delete;
    ConnectorConfig& operator=(const ConnectorConfig&) = delete;

    bool readConfig(const QString& path, QString& error) override;
    std::shared_ptr<s_ConnectorHDCP> findHDCPInfo(int type) override;
    std::shared_ptr<s_ConnectorPlayer> findPlayerInfo(int type) override;
    std::shared_ptr<s_HPD> findHPDInfo(int type) override;
    std::shared_ptr<s_EDID> findEDIDInfo(int type) override;
    std::shared_ptr<s_ConnectorDynamicRange> findDynamicRangeInfo(int type) const override;
    std::shared_ptr<s_ConnectorColorDepths> findColorDepthsInfo(int type) override;
    std::shared_ptr<s_SupportInfo> findHDRInfo(int type) override;
    std::shared_ptr<std::vector<s_CapacityModeInInterface>> findResoluCapacityMode(int type) const override;
    std::shared_ptr<s_ConnectorColorSpaces> findColorSpacesInfo(int type) const override;
    std::shared_ptr<s_ResolutionRatios> findConnectorResolutionRatios(int capacityMode, int type,
                                                                      int interfaceMask) override;
    std::shared_ptr<s_ResolutionRatio> findConnectorDefaultResolution(int capacityMode, int type,
                                                                      int interfaceMask) override;
    std::string findConnectorTypeName(int type) const override;
    std::vector<s_resolutionResolutionRatio> findConnectorResolutions(int capacityMode, int type,
                                                                      int interfaceMask) const override;
    s_PresetRefresh findConnectorRates(int type, int interfaceMask) override;
    s_PreSetTimingInterface findConnectorTiming(int type, int interfaceMask) override;

private:
    friend struct ConnectorConfigTest; // Fills the catalogue by hand.

    class Impl;
    std::unique_ptr<Impl> _impl;
};

} // namespace LCD::MainConfigImpl

#endif
