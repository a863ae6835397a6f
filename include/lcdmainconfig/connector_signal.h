// What the signal of a connector type can be: copy protection, colour depths, spaces and ranges, dynamic range, format
// mapping, EDID and hot-plug detection, and the limits of its name. Filled from the connector files.
#ifndef LCDMAINCONFIG_CONNECTOR_SIGNAL_H
#define LCDMAINCONFIG_CONNECTOR_SIGNAL_H

#include "lcdmainconfig/common.h"

#include <vector>

namespace LCD::MainConfig {

/// A setting of a connector with a list of allowed values, one per child element of any tag.
struct s_ConnectorValueList : s_BaseAttr {
    std::vector<ConnectorEnumValue> enums;
};

/// Copy protection of one interface type. Connector file, child of HDCP.
struct s_InterfaceInHDCP {
    int type = 0;                  ///< Interface type.
    s_ConnectorValueList enable;   ///< Element "Enable".
    s_ConnectorValueList hdcpType; ///< Element "Type".
};

/// Copy protection. Connector file, element HDCP.
struct s_ConnectorHDCP : s_SupportInfo {
    std::vector<s_InterfaceInHDCP> interfaces;
};

/// Naming of a connector. Connector file, element General.
struct s_ConnectorGeneral : s_SupportInfo {
    s_ConnectorValueList type; ///< "Value" is not read.
    s_RangeValue name;         ///< `min` and `max` limit the name; "Value" is not read.
    s_RangeValue nameGB2312;   ///< The same for a name in that encoding.
};

/// Colour depths of one interface type. Connector file, child of ColorDepths.
struct s_InterfaceInColorDepth {
    int type = 0; ///< Interface type.
    s_ConnectorValueList colorDepth;
};

/// Colour depths. Connector file, element ColorDepths.
struct s_ConnectorColorDepths : s_SupportInfo {
    std::vector<s_InterfaceInColorDepth> interfaces;
};

/// Colour spaces of one interface type. Connector file, child of ColorSpaces.
struct s_InterfaceInColorSpace {
    int type = 0; ///< Interface type.
    s_ConnectorValueList colorSpace;
};

/// Colour spaces. Connector file, element ColorSpaces.
struct s_ConnectorColorSpaces : s_SupportInfo {
    std::vector<s_InterfaceInColorSpace> interfaces;
};

/// Colour ranges of one interface type. Connector file, child of ColorRanges.
struct s_InterfaceInColorRange {
    int type = 0; ///< Interface type.
    s_ConnectorValueList colorRange;
};

/// Colour ranges. Connector file, element ColorRanges.
struct s_ConnectorColorRanges : s_SupportInfo {
    std::vector<s_InterfaceInColorRange> interfaces;
};

/// Format mapping. Connector file, element FormatMapping.
struct s_ConnectorFormatMapping : s_ConnectorValueList {};

/// Dynamic range. Connector file, element DynamicRange.
struct s_ConnectorDynamicRange : s_SupportInfo {};

/// Whether the connector has an EDID and lets the user change it. Connector file, element EDID.
struct s_EDID : s_SupportInfo {};

/// Hot-plug detection of one interface. Connector file, element HPDs/.../HPD; "Editable" is not read.
struct s_HPD : s_SupportInfo {
    int value = 0;
    int min = 0;
    int max = 0;
    int step = 0;
};

/// Hot-plug detection. Connector file, element HPDs; the defaults stand without it.
struct s_ConnectorHPDs : s_SupportInfo {
    /// Hot-plug detection of one interface type. Connector file, child of HPDs; "Editable" is not read. Nested, since
    /// the card's block has the same name.
    struct s_HPDsInterface : s_SupportInfo {
        int type = 0; ///< Interface type; the query looks at 2 alone.
        s_HPD hpd;
    };

    std::vector<s_HPDsInterface> interfaces;
};

} // namespace LCD::MainConfig

#endif
