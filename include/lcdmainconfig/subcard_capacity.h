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
    int value = 0;         ///< Connector position on the card whose picture the virtual input takes. Attribute "Value".
    int interfaceType = 0; ///< Interface type of the connector at that position. Attribute "InterfaceType".
};

/// One physical connector position of a card. Card file, element Connectors/Connector, or an entry of a connector
/// group; a group's entry has the nine plain attributes and no virtual input.
struct s_SubcardConnector {
    int enable = 0;   ///< Non-zero: the connector can be used. Attribute "Enable".
    int position = 0; ///< Number of the connector on its card, the key of the queries. Attribute "Position".
    int visible = 0;  ///< Non-zero: the panel shows the connector. Attribute "Visible".
    /// Bandwidth class, which selects the resolutions: in the example 0 up to 1920x1080p60, 1 up to 3840x2160p30, 2 up
    /// to 3840x2160p60. Attribute "CapacityMode".
    int capacityMode = 0;
    /// Mode of working, by which preset timings are found; the number is the panel's. Attribute "WorkMode".
    int workMode = 0;
    /// Position of the connector that stands in for this one; 0 in the example, which has no backups. Attribute
    /// "BackupPos".
    int backupPos = 0;
    /// Connector group that the connector belongs to. Attribute "GroupId", read for a device mode's capacity alone; 0
    /// elsewhere.
    int groupId = 0;
    int type = 0; ///< Connector type, which is also the number of the connector file. Attribute "Type".
    /// Number printed beside the connector; 0 in the example for one without a socket. Attribute "PrintKeyNo".
    int printKeyNo = 0;
    /// Interface type: 8 marks an auxiliary connector; in the example 1 input, 2 output, 4 multi-view output. Attribute
    /// "InterfaceType".
    int interfaceType = 0;
    s_SupportInfo reservedAttr; ///< Room in the record that no file fills.
    /// Whether the connector is a virtual input, made of the pictures of others. Element "virtualInput".
    s_SupportInfo virtualInput;
    /// Connectors that a virtual input is made of; empty: it is none, or names none. Children "Position" of
    /// "virtualInput/InputPositions".
    std::vector<s_Position> inputPositions;
};

/// Connectors that share one channel of a card, so that only a number of them works at full capacity at a time. Card
/// file, element ConnectorGroups/Capacity, one per child.
struct s_SubcardConnectorGroup {
    int value = 0; ///< Number of the group, the key of the queries. Attribute "Value".
    /// How many connectors of the group may be used at full capacity at a time. Attribute "SelectNum".
    int selectNum = 0;
    std::vector<s_SubcardConnector> connectors; ///< Connectors of the group, in file order. A child of any tag is one.
};

/// The connector groups of a card. Card file, element ConnectorGroups; of several "Capacity" children only the first
/// counts.
struct s_Capacity {
    int value = 0; ///< The panel's number for the grouping as a whole. Attribute "Value" of "ConnectorGroups" itself.
    /// Name of the capacity that the groups are for, UTF-8; empty: the file names none. Attribute "Name" of "Capacity".
    std::string name;
    int capacityValue = 0; ///< Number of the capacity that the groups are for. Attribute "Value" of "Capacity".
    /// Groups in file order. A child of "Capacity" of any tag is one.
    std::vector<s_SubcardConnectorGroup> connectorGroups;
};

/// A connector as one capacity group and device mode offer it. Card file, below CapacityGroups/.../DeviceModes.
struct s_ConnectorInCapacityGroups {
    int enable = 0;       ///< Non-zero: the connector can be used. Attribute "Enable".
    int position = 0;     ///< Number of the connector on its card. Attribute "Position".
    int visible = 0;      ///< Non-zero: the panel shows the connector. Attribute "Visible".
    int capacityMode = 0; ///< Bandwidth class that the connector has here, 0 to 2. Attribute "CapacityMode".
    int workMode = 0; ///< Mode of working that the connector has here; the number is the panel's. Attribute "WorkMode".
    int backupPos = 0; ///< Position of the connector that stands in for this one. Attribute "BackupPos".
};

/// The connectors of a capacity group in one device mode. Card file, child of CapacityGroups/.../DeviceModes.
struct s_SubcardDeviceMode {
    int value = 0; ///< Device mode, the key of the queries. Attribute "Value".
    /// Connectors in that mode, in file order; empty: none is offered.
    std::vector<s_ConnectorInCapacityGroups> connectors;
};

/// One capacity that the panel offers for a card: how its bandwidth is shared out among its connectors. Card file,
/// child of CapacityGroups.
struct s_CapacityInCapacityGroups {
    std::string name; ///< Name of the capacity, UTF-8, such as "4 x HD"; empty: the file names none. Attribute "Name".
    int enable = 0;   ///< Non-zero: the capacity can be chosen. Attribute "Enable".
    int value = 0;    ///< Number of the capacity, the key of the queries. Attribute "Value".
    /// The capacity in each device mode, in file order: the children of "DeviceModes", which is required.
    std::vector<s_SubcardDeviceMode> deviceModes;
};

/// A connector that takes part in a copy. Card file, child of a copy group.
struct s_ConnectorInfo {
    int position = 0; ///< Number of the connector on its card. Attribute "Position".
};

/// Connectors that can repeat one another's picture. Card file, third level below ConnectorCopy/MainRelated.
struct s_ConnectorGroupInfo {
    int value = 0;                           ///< Number of the copy group. Attribute "Value".
    std::vector<s_ConnectorInfo> connectors; ///< Connectors of the group, in file order.
};

/// The copy groups of one device mode. Card file, second level below ConnectorCopy/MainRelated.
struct s_DeviceModeInfo {
    int value = 0; ///< Device mode, the key of the queries. Attribute "Value".
    /// Copy groups in file order; empty: nothing can be copied in that mode.
    std::vector<s_ConnectorGroupInfo> connectorGroups;
};

/// The connector copies of one capacity. Card file, child of ConnectorCopy/MainRelated.
struct s_CapacityInfo {
    std::string name; ///< Name of the capacity, UTF-8; empty: the file names none. Attribute "Name".
    int enable = 0;   ///< Non-zero: connectors can be copied in this capacity. Attribute "Enable".
    int value = 0;    ///< Number of the capacity that the copies are for; no query looks at it. Attribute "Value".
    std::vector<s_DeviceModeInfo> deviceModes; ///< Copy groups of each device mode, in file order.
};

} // namespace LCD::MainConfig

#endif
