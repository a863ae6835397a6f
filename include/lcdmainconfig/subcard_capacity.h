// The connector positions of a plug-in card and the ways a card groups them: connector groups, capacity groups and
// connector copies. Filled from the card files.
#ifndef LCDMAINCONFIG_SUBCARD_CAPACITY_H
#define LCDMAINCONFIG_SUBCARD_CAPACITY_H

#include "lcdmainconfig/common.h"

#include <string>
#include <vector>

namespace LCD::MainConfig {

/// A position that a virtual input may take its picture from. Card file, element
/// Connectors/Connector/virtualInput/InputPositions/Position.
struct s_Position {
    int value = 0; ///< Connector position on the card.
    int interfaceType = 0;
};

/// One physical connector position of a card. Card file, element Connectors/Connector, or an entry of a connector
/// group; a group's entry has the nine plain attributes and no virtual input.
struct s_SubcardConnector {
    int enable = 0;
    int position = 0; ///< The key by which queries find a connector on a card.
    int visible = 0;
    int capacityMode = 0; ///< Bandwidth class; selects the connector catalogue's resolutions.
    int workMode = 0;
    int backupPos = 0;
    int groupId = 0; ///< Read for the connectors of a device mode's capacity alone; 0 elsewhere.
    int type = 0;    ///< Connector type, which is also the number of the connector file.
    int printKeyNo = 0;
    int interfaceType = 0;                  ///< 8 marks an auxiliary connector.
    s_SupportInfo reservedAttr;             ///< No file fills it.
    s_SupportInfo virtualInput;             ///< Element "virtualInput".
    std::vector<s_Position> inputPositions; ///< Empty: the connector is no virtual input, or names no sources.
};

/// Connectors of a card of which a number can be selected together. Card file, element ConnectorGroups/Capacity, one
/// per child.
struct s_SubcardConnectorGroup {
    int value = 0;     ///< Group id.
    int selectNum = 0; ///< Attribute "SelectNum".
    std::vector<s_SubcardConnector> connectors;
};

/// The connector groups of a card. Card file, element ConnectorGroups; of several "Capacity" children only the first
/// counts.
struct s_Capacity {
    int value = 0;         ///< Attribute "Value" of "ConnectorGroups" itself.
    std::string name;      ///< Attribute "Name" of "Capacity", UTF-8.
    int capacityValue = 0; ///< Attribute "Value" of "Capacity".
    std::vector<s_SubcardConnectorGroup> connectorGroups;
};

/// A connector as one capacity group and device mode offer it. Card file, below CapacityGroups/.../DeviceModes.
struct s_ConnectorInCapacityGroups {
    int enable = 0;
    int position = 0; ///< Connector position on the card.
    int visible = 0;
    int capacityMode = 0;
    int workMode = 0;
    int backupPos = 0;
};

/// The connectors of a capacity group in one device mode. Card file, child of CapacityGroups/.../DeviceModes.
struct s_SubcardDeviceMode {
    int value = 0; ///< Device mode.
    std::vector<s_ConnectorInCapacityGroups> connectors;
};

/// One capacity group. Card file, child of CapacityGroups.
struct s_CapacityInCapacityGroups {
    std::string name; ///< UTF-8.
    int enable = 0;
    int value = 0; ///< Capacity number, the key of the queries.
    std::vector<s_SubcardDeviceMode> deviceModes;
};

/// A connector that takes part in a copy.
struct s_ConnectorInfo {
    int position = 0; ///< Connector position on the card.
};

/// Connector positions that show the same picture.
struct s_ConnectorGroupInfo {
    int value = 0;
    std::vector<s_ConnectorInfo> connectors;
};

/// The copy groups of one device mode.
struct s_DeviceModeInfo {
    int value = 0; ///< Device mode.
    std::vector<s_ConnectorGroupInfo> connectorGroups;
};

/// The connector copies of one capacity. Card file, child of ConnectorCopy/MainRelated.
struct s_CapacityInfo {
    std::string name; ///< UTF-8.
    int enable = 0;
    int value = 0; ///< Capacity number.
    std::vector<s_DeviceModeInfo> deviceModes;
};

} // namespace LCD::MainConfig

#endif
