// The component of the catalogue of plug-in cards.
#ifndef LCDMAINCONFIGIMPL_SUBCARDCONFIG_H
#define LCDMAINCONFIGIMPL_SUBCARDCONFIG_H

#include "lcdmainconfig/isubcardconfig.h"

#include <memory>

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;

class SubcardConfig final : public ISubcardConfig {
public:
    SubcardConfig();
    ~SubcardConfig() override;
    SubcardConfig(const SubcardConfig&) = delete;
    SubcardConfig& operator=(const SubcardConfig&) = delete;

    bool readConfig(const QString& path, QString& error) override;
    std::shared_ptr<s_DCSSubcard> subcardConfig() const override;
    std::shared_ptr<s_SubcardConnector> findConnector(int modelId, int position) const override;
    std::vector<s_ConnectorInTypes> findTypesByModelId(int modelId) const override;
    std::shared_ptr<s_SubcardConnectorGroup> findConnectorLocatedGroup(int modelId, int position) const override;
    std::vector<s_SubcardConnector> findConnectorByGroupId(int modelId, int groupId) const override;
    s_SubcardDeviceMode findSubcardModeData(int modelId, int capacityValue, int deviceMode) const override;
    std::vector<s_ConnectorInfo> findConnectorCopyData(int modelId, int capacityValue, int deviceMode,
                                                       int position) const override;
    int findCardMode(int modelId) const override;
    int countAuxConnector() const override;
    s_CapacityInConnectorsDeviceModeCapacitys findConnectorDeviceModeCapacity(int modelId, int capacityValue,
                                                                              int deviceMode) const override;
    std::shared_ptr<s_ConnectorInConnectorsDeviceModeCapacitysCapacity>
    findConnectorDeviceModeCapacityConnector(int modelId, int capacityValue, int deviceMode, int type,
                                             int position) const override;
    int findConnectorDeviceModeCapacityDynamicRangeSupport(int modelId, int capacityValue, int deviceMode,
                                                           int position) const override;
    int findConnectorInterlacedType(int modelId, int type, int position, int capacityMode) const override;
    s_ResolutionRatiosInConnectorsDeviceModeTiming
    findTimingDeviceModeResolutionRatios(int modelId, int deviceMode, int connectorType, int interfaceType,
                                         int capacityMode) const override;
    std::vector<int> findSupportedCapacity(int modelId, int connectorType, int interfaceType) const override;
    std::shared_ptr<s_HPDIn> findHPDInfo(int modelId, int connectorType) const override;
    s_SubcardConnectorGroup findConnectorGroupByGroupId(int modelId, int groupId) const override;

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

} // namespace LCD::MainConfigImpl

#endif
