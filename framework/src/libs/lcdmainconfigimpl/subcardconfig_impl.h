// The card catalogue behind its component: the list of cards, its load and its queries.
#ifndef LCDMAINCONFIGIMPL_SUBCARDCONFIG_IMPL_H
#define LCDMAINCONFIGIMPL_SUBCARDCONFIG_IMPL_H

#include "subcardconfig.h"

namespace LCD::MainConfigImpl {

class SubcardConfig::Impl {
public:
    bool readConfig(const QString& path, QString& error);

    std::shared_ptr<s_DCSSubcard> subcardConfig() const;
    std::shared_ptr<s_SubcardConnector> findConnector(int modelId, int position) const;
    std::vector<s_ConnectorInTypes> findTypesByModelId(int modelId) const;
    std::shared_ptr<s_SubcardConnectorGroup> findConnectorLocatedGroup(int modelId, int position) const;
    std::vector<s_SubcardConnector> findConnectorByGroupId(int modelId) const;
    s_SubcardDeviceMode findSubcardModeData(int modelId, int capacityValue, int deviceMode) const;
    std::vector<s_ConnectorInfo> findConnectorCopyData(int modelId, int deviceMode, int position) const;
    int findCardMode(int modelId) const;
    int countAuxConnector() const;
    s_CapacityInConnectorsDeviceModeCapacitys findConnectorDeviceModeCapacity(int modelId, int capacityValue,
                                                                              int deviceMode) const;
    std::shared_ptr<s_ConnectorInConnectorsDeviceModeCapacitysCapacity>
    findConnectorDeviceModeCapacityConnector(int modelId, int capacityValue, int deviceMode, int type,
                                             int position) const;
    int findConnectorDeviceModeCapacityDynamicRangeSupport(int modelId, int capacityValue, int deviceMode,
                                                           int position) const;
    int findConnectorInterlacedType(int modelId, int type, int position, int capacityMode) const;
    s_ResolutionRatiosInConnectorsDeviceModeTiming findTimingDeviceModeResolutionRatios(int modelId, int deviceMode,
                                                                                        int connectorType,
                                                                                        int interfaceType,
                                                                                        int capacityMode) const;
    std::vector<int> findSupportedCapacity(int modelId, int connectorType, int interfaceType) const;
    std::shared_ptr<s_HPDIn> findHPDInfo(int modelId, int connectorType) const;
    s_SubcardConnectorGroup findConnectorGroupByGroupId(int modelId, int groupId) const;

private:
    /// Adds the cards of one file. False when the whole load has to stop; the cards before the fault stay.
    bool readFile(const QString& filePath, const QString& directory, QString& error);
    /// The first card of the model, and in it the first type of that number; null when there is none.
    const s_Subcard* firstCard(int modelId) const;
    const s_ConnectorInTypes* firstType(int modelId, int connectorType) const;
    /// Gives each connector the interface type that the last plain connector at its position has.
    void takeInterfaceTypes(int modelId, std::vector<s_SubcardConnector>& connectors) const;

    std::vector<s_Subcard> _cards; ///< In load order; several cards may have one model.
};

} // namespace LCD::MainConfigImpl

#endif
