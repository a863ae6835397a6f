#include "subcardconfig.h"

namespace LCD::MainConfigImpl {

// Not read yet: the component answers as on an empty catalogue.
class SubcardConfig::Impl {};

SubcardConfig::SubcardConfig() : _impl(std::make_unique<Impl>()) {}

SubcardConfig::~SubcardConfig() = default;

bool SubcardConfig::readConfig(const QString& /*path*/, QString& /*error*/) { return {}; }

std::shared_ptr<s_DCSSubcard> SubcardConfig::subcardConfig() const { return std::make_shared<s_DCSSubcard>(); }

std::shared_ptr<s_SubcardConnector> SubcardConfig::findConnector(int /*modelId*/, int /*position*/) const { return {}; }

std::vector<s_ConnectorInTypes> SubcardConfig::findTypesByModelId(int /*modelId*/) const { return {}; }

std::shared_ptr<s_SubcardConnectorGroup> SubcardConfig::findConnectorLocatedGroup(int /*modelId*/,
                                                                                  int /*position*/) const
{
    return {};
}

std::vector<s_SubcardConnector> SubcardConfig::findConnectorByGroupId(int /*modelId*/, int /*groupId*/) const
{
    return {};
}

s_SubcardDeviceMode SubcardConfig::findSubcardModeData(int /*modelId*/, int /*capacityValue*/, int /*deviceMode*/) const
{
    return {};
}

std::vector<s_ConnectorInfo> SubcardConfig::findConnectorCopyData(int /*modelId*/, int /*capacityValue*/,
                                                                  int /*deviceMode*/, int /*position*/) const
{
    return {};
}

int SubcardConfig::findCardMode(int /*modelId*/) const { return -1; }

int SubcardConfig::countAuxConnector() const { return {}; }

s_CapacityInConnectorsDeviceModeCapacitys
SubcardConfig::findConnectorDeviceModeCapacity(int /*modelId*/, int /*capacityValue*/, int /*deviceMode*/) const
{
    return {};
}

std::shared_ptr<s_ConnectorInConnectorsDeviceModeCapacitysCapacity>
SubcardConfig::findConnectorDeviceModeCapacityConnector(int /*modelId*/, int /*capacityValue*/, int /*deviceMode*/,
                                                        int /*type*/, int /*position*/) const
{
    return {};
}

int SubcardConfig::findConnectorDeviceModeCapacityDynamicRangeSupport(int /*modelId*/, int /*capacityValue*/,
                                                                      int /*deviceMode*/, int /*position*/) const
{
    return {};
}

int SubcardConfig::findConnectorInterlacedType(int /*modelId*/, int /*type*/, int /*position*/,
                                               int /*capacityMode*/) const
{
    return {};
}

s_ResolutionRatiosInConnectorsDeviceModeTiming
SubcardConfig::findTimingDeviceModeResolutionRatios(int /*modelId*/, int /*deviceMode*/, int /*connectorType*/,
                                                    int /*interfaceType*/, int /*capacityMode*/) const
{
    return {};
}

std::vector<int> SubcardConfig::findSupportedCapacity(int /*modelId*/, int /*connectorType*/,
                                                      int /*interfaceType*/) const
{
    return {};
}

std::shared_ptr<s_HPDIn> SubcardConfig::findHPDInfo(int /*modelId*/, int /*connectorType*/) const { return {}; }

s_SubcardConnectorGroup SubcardConfig::findConnectorGroupByGroupId(int /*modelId*/, int /*groupId*/) const
{
    return {};
}

} // namespace LCD::MainConfigImpl
