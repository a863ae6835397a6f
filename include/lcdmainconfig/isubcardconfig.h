// The card catalogue as its users see it: load the card files once, then ask. The order of the operations is a contract
// with the host and must not change.
#ifndef LCDMAINCONFIG_ISUBCARDCONFIG_H
#define LCDMAINCONFIG_ISUBCARDCONFIG_H

#include "lcdmainconfig/subcard.h"

#include <QString>

#include <memory>
#include <vector>

namespace LCD::MainConfig {

/// The catalogue of plug-in cards. Several cards may share a model; each query says which of them it looks at. Cards
/// are searched in load order. Every result is a copy that the caller owns. Before the load the catalogue is empty.
class ISubcardConfig {
public:
    virtual ~ISubcardConfig() = default;

    /// Loads the files of `path` and its direct subdirectories that belong to a card model that some device slot can
    /// hold; the devices must have been read before. Returns false when the load had to stop; cards read before that
    /// stay. `error` is written only when a problem is met, and holds the last one, also where the result is true;
    /// without any device the result is false and only the log tells. A missing directory is made. A second call
    /// appends. A host that does not serve the device catalogue ends the process.
    virtual bool readConfig(const QString& path, QString& error) = 0;

    /// The whole catalogue; never null.
    virtual std::shared_ptr<s_DCSSubcard> subcardConfig() const = 0;

    /// The plain connector at `position`. First hit over all cards of the model; null when there is none.
    virtual std::shared_ptr<s_SubcardConnector> findConnector(int modelId, int position) const = 0;

    /// What the card offers per connector type. First card of the model only; empty when there is none.
    virtual std::vector<s_ConnectorInTypes> findTypesByModelId(int modelId) const = 0;

    /// The connector group that holds `position`. First hit over all cards of the model; null when there is none.
    virtual std::shared_ptr<s_SubcardConnectorGroup> findConnectorLocatedGroup(int modelId, int position) const = 0;

    /// The plain connectors of the model, each with the interface type that the last plain connector at its position
    /// has. Of several cards the last wins; empty when there is none. It is meant that `groupId` is not looked at.
    virtual std::vector<s_SubcardConnector> findConnectorByGroupId(int modelId, int groupId) const = 0;

    /// The connectors of a capacity group in a device mode. Over all cards of the model the last match wins; value 0
    /// and no connectors when there is none.
    virtual s_SubcardDeviceMode findSubcardModeData(int modelId, int capacityValue, int deviceMode) const = 0;

    /// The positions of the copy group that holds `position`. First hit over all cards of the model; empty when there
    /// is none. It is meant that `capacityValue` is not looked at.
    virtual std::vector<s_ConnectorInfo> findConnectorCopyData(int modelId, int capacityValue, int deviceMode,
                                                               int position) const = 0;

    /// The card mode. First card of the model only; -1 when there is none.
    virtual int findCardMode(int modelId) const = 0;

    /// The number of plain connectors with interface type 8, over all cards of all models.
    virtual int countAuxConnector() const = 0;

    /// A capacity of a device mode. First hit over all cards of the model; a record of zeros with an empty name and no
    /// connectors when there is none.
    virtual s_CapacityInConnectorsDeviceModeCapacitys findConnectorDeviceModeCapacity(int modelId, int capacityValue,
                                                                                      int deviceMode) const = 0;

    /// The connector of this `type` and `position` in a capacity of a device mode. First hit over all cards of the
    /// model, all their device modes and capacities that match; null when there is none.
    virtual std::shared_ptr<s_ConnectorInConnectorsDeviceModeCapacitysCapacity>
    findConnectorDeviceModeCapacityConnector(int modelId, int capacityValue, int deviceMode, int type,
                                             int position) const = 0;

    /// Whether the connector at `position` in a capacity of a device mode has a dynamic range; its type does not
    /// matter. First hit over all cards of the model; 0 when there is none.
    virtual int findConnectorDeviceModeCapacityDynamicRangeSupport(int modelId, int capacityValue, int deviceMode,
                                                                   int position) const = 0;

    /// The interlaced type of the connector with this type, position and capacity mode, in whatever device mode and
    /// capacity it stands. First hit over all cards of the model; 0 when there is none.
    virtual int findConnectorInterlacedType(int modelId, int type, int position, int capacityMode) const = 0;

    /// The limits of resolution and timing. First card of the model only, and the first match at every level below it,
    /// with no second try; all zeros when a level has none.
    virtual s_ResolutionRatiosInConnectorsDeviceModeTiming
    findTimingDeviceModeResolutionRatios(int modelId, int deviceMode, int connectorType, int interfaceType,
                                         int capacityMode) const = 0;

    /// The capacities that an interface type of a connector type allows. First card of the model only, and the first
    /// match at every level below it; empty when a level has none.
    virtual std::vector<int> findSupportedCapacity(int modelId, int connectorType, int interfaceType) const = 0;

    /// Hot-plug detection of a connector type, taken from its first supported interface of type 2. First card of the
    /// model only; null when the type has no hot-plug detection or no such interface.
    virtual std::shared_ptr<s_HPDIn> findHPDInfo(int modelId, int connectorType) const = 0;

    /// The connector group with this id, each connector with the interface type that the last plain connector at its
    /// position has. Over all cards of the model the last match wins; zeros and no connectors when there is none.
    virtual s_SubcardConnectorGroup findConnectorGroupByGroupId(int modelId, int groupId) const = 0;
};

} // namespace LCD::MainConfig

#endif
