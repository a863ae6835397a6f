#include "connectorconfig.h"

namespace LCD::MainConfigImpl {

// Not read yet: the component answers as on an empty catalogue.
class ConnectorConfig::Impl {};

ConnectorConfig::ConnectorConfig() : _impl(std::make_unique<Impl>()) {}

ConnectorConfig::~ConnectorConfig() = default;

bool ConnectorConfig::readConfig(const QString& /*path*/, QString& /*error*/) { return {}; }

std::shared_ptr<s_ConnectorHDCP> ConnectorConfig::findHDCPInfo(int /*type*/) { return {}; }

std::shared_ptr<s_ConnectorPlayer> ConnectorConfig::findPlayerInfo(int /*type*/) { return {}; }

std::shared_ptr<s_HPD> ConnectorConfig::findHPDInfo(int /*type*/) { return {}; }

std::shared_ptr<s_EDID> ConnectorConfig::findEDIDInfo(int /*type*/) { return {}; }

std::shared_ptr<s_ConnectorDynamicRange> ConnectorConfig::findDynamicRangeInfo(int /*type*/) const { return {}; }

std::shared_ptr<s_ConnectorColorDepths> ConnectorConfig::findColorDepthsInfo(int /*type*/) { return {}; }

std::shared_ptr<s_SupportInfo> ConnectorConfig::findHDRInfo(int /*type*/) { return {}; }

std::shared_ptr<std::vector<s_CapacityModeInInterface>> ConnectorConfig::findResoluCapacityMode(int /*type*/) const
{
    return {};
}

std::shared_ptr<s_ConnectorColorSpaces> ConnectorConfig::findColorSpacesInfo(int /*type*/) const { return {}; }

std::shared_ptr<s_ResolutionRatios> ConnectorConfig::findConnectorResolutionRatios(int /*capacityMode*/, int /*type*/,
                                                                                   int /*interfaceMask*/)
{
    return {};
}

std::shared_ptr<s_ResolutionRatio> ConnectorConfig::findConnectorDefaultResolution(int /*capacityMode*/, int /*type*/,
                                                                                   int /*interfaceMask*/)
{
    return {};
}

std::string ConnectorConfig::findConnectorTypeName(int /*type*/) const { return {}; }

std::vector<s_resolutionResolutionRatio> ConnectorConfig::findConnectorResolutions(int /*capacityMode*/, int /*type*/,
                                                                                   int /*interfaceMask*/) const
{
    return {};
}

s_PresetRefresh ConnectorConfig::findConnectorRates(int /*type*/, int /*interfaceMask*/) { return {}; }

s_PreSetTimingInterface ConnectorConfig::findConnectorTiming(int /*type*/, int /*interfaceMask*/) { return {}; }

} // namespace LCD::MainConfigImpl
