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
    /// Every connector of the card, by position: the "Connector" children, in file order.
    std::vector<s_SubcardConnector> connectors;
    /// What the card does in each device mode: the "DeviceMode" children, in file order.
    std::vector<s_DeviceModeInConnectors> deviceModes;
    /// What the card offers for each connector type: the children of all "Types" elements, in file order.
    std::vector<s_ConnectorInTypes> types;
};

/// One card model. Card file, child of Subcards. The same model may stand in several files and then has several
/// records.
struct s_Subcard {
    int modelId = 0; ///< Number of the card model, by which slots name the card. Attribute "ModelId".
    /// What the card is for: 0 control, 1 input, 2 output, 3 multi-view, 4 auxiliary, 5 mixed in the example. Attribute
    /// "CardMode".
    int cardMode = 0;
    /// How many connectors may carry interlaced pictures at a time, 0 to 65535; a text that does not fit gives 0.
    /// Attribute "InterlacedMaxCount".
    int interlacedMaxCount = 0;
    s_Name name;             ///< Name of the card model. Element "Name", both languages required.
    s_Connectors connectors; ///< Connectors, device modes and connector types. Element "Connectors".
    s_Capacity capacity; ///< Connectors that share a channel of the card. Element "ConnectorGroups"; empty without it.
    /// Capacities that the panel offers for the card: the children of "CapacityGroups", in file order.
    std::vector<s_CapacityInCapacityGroups> capacityGroups;
    /// Sections of the backplane that the card uses: attribute "Code" of each child of "Sections", in file order.
    std::vector<int> sections;
    /// Non-zero: connectors can repeat one another's picture. Attribute "Support" of "ConnectorCopy".
    int connectorCopySupport = 0;
    int connectorCopyEditable = 0; ///< Non-zero: the user may set up copies. Attribute "Editable" of "ConnectorCopy".
    /// Factory value of the copying; the number is the panel's. Attribute "Value" of "ConnectorCopy".
    int connectorCopyValue = 0;
    /// Non-zero: copies go by groups of connectors. Attribute "Support" of "ConnectorCopy/MainRelated".
    int mainRelatedSupport = 0;
    /// Non-zero: the user may change those copies. Attribute "Editable" of "ConnectorCopy/MainRelated".
    int mainRelatedEditable = 0;
    /// Copy groups of each capacity: the children of "ConnectorCopy/MainRelated", in file order; empty: there are none.
    std::vector<s_CapacityInfo> mainRelatedCapacitys;
};

/// The whole card catalogue, in load order.
struct s_DCSSubcard {
    std::vector<s_Subcard> subcards; ///< All cards, in load order; a model that stands in several files has several.
};

} // namespace LCD::MainConfig

#endif
