// The catalogue of plug-in cards: one record per card model with all that its card file tells. The large subtrees have
// headers of their own, included here.
#ifndef LCDMAINCONFIG_SUBCARD_H
#define LCDMAINCONFIG_SUBCARD_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/subcard_capacity.h"
#include "lcdmainconfig/subcard_modes.h"
#include "lcdmainconfig/subcard_types.h"

#include <vector>

namespace LCD::MainConfig {

/// The connectors of a card: as positions, per device mode and per connector type. Card file, element Connectors; all
/// empty without it.
struct s_Connectors {
    std::vector<s_SubcardConnector> connectors;        ///< "Connector" children.
    std::vector<s_DeviceModeInConnectors> deviceModes; ///< "DeviceMode" children.
    std::vector<s_ConnectorInTypes> types;             ///< The children of all "Types" elements.
};

/// One card model. Card file, child of Subcards. The same model may stand in several files and then has several
/// records.
struct s_Subcard {
    int modelId = 0; ///< The module identifier by which slots name the card.
    int cardMode = 0;
    int interlacedMaxCount = 0; ///< Unsigned 16 bits; a text that does not fit gives 0.
    s_Name name;
    s_Connectors connectors;
    s_Capacity capacity;                                    ///< Element "ConnectorGroups".
    std::vector<s_CapacityInCapacityGroups> capacityGroups; ///< Element "CapacityGroups".
    std::vector<int> sections;                              ///< Attribute "Code" of each child of "Sections".
    int connectorCopySupport = 0;                           ///< Attribute "Support" of "ConnectorCopy".
    int connectorCopyEditable = 0;                          ///< Attribute "Editable" of "ConnectorCopy".
    int connectorCopyValue = 0;                             ///< Attribute "Value" of "ConnectorCopy".
    int mainRelatedSupport = 0;                             ///< Attribute "Support" of "ConnectorCopy/MainRelated".
    int mainRelatedEditable = 0;                            ///< Attribute "Editable" of "ConnectorCopy/MainRelated".
    std::vector<s_CapacityInfo> mainRelatedCapacitys;       ///< The children of "ConnectorCopy/MainRelated".
};

/// The whole card catalogue, in load order.
struct s_DCSSubcard {
    std::vector<s_Subcard> subcards;
};

} // namespace LCD::MainConfig

#endif
