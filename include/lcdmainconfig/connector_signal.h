// What the signal of a connector type can be: copy protection, colour depths, spaces and ranges, dynamic range, format
// mapping, EDID and hot-plug detection, and the limits of its name. Filled from the connector files.
#ifndef LCDMAINCONFIG_CONNECTOR_SIGNAL_H
#define LCDMAINCONFIG_CONNECTOR_SIGNAL_H

#include "lcdmainconfig/common.h"

#include <vector>

namespace LCD::MainConfig {

/// A setting of a connector with a list of allowed values: attribute "Value" of each child element of any tag.
struct s_ConnectorValueList : s_BaseAttr {
    /// Allowed values, in file order with duplicates; empty: the file lists none.
    std::vector<ConnectorEnumValue> enums;
};

/// Copy protection (HDCP) of one interface type. Connector file, child of HDCP; an entry without one of its two
/// elements is left out.
struct s_InterfaceInHDCP {
    /// Interface type that the entry is for; in the example 1 input, 2 output, 4 multi-view output, 8 auxiliary output.
    /// Attribute "Type".
    int type = 0;
    s_ConnectorValueList enable;   ///< Switches HDCP on and off. Element "Enable".
    s_ConnectorValueList hdcpType; ///< Version of HDCP: 0 HDCP 1.4, 1 HDCP 2.2 in the example. Element "Type".
};

/// Copy protection (HDCP) of a connector type. Connector file, element HDCP.
struct s_ConnectorHDCP : s_SupportInfo {
    /// One entry for each interface type, in file order; empty: no interface has HDCP settings.
    std::vector<s_InterfaceInHDCP> interfaces;
};

/// Naming of a connector. Connector file, element General.
struct s_ConnectorGeneral : s_SupportInfo {
    s_ConnectorValueList type; ///< Kinds of name to choose from; "Value" is not read. Element "Type".
    /// Length of the connector's name in characters, from `min` to `max`; "Value" is not read. Element "Name".
    s_RangeValue name;
    s_RangeValue nameGB2312; ///< The same for a name encoded in GB 2312. Element "NameGB2312".
};

/// Colour depths of one interface type. Connector file, child of ColorDepths; an entry without "ColorDepth" is left
/// out.
struct s_InterfaceInColorDepth {
    int type = 0;                    ///< Interface type that the entry is for. Attribute "Type".
    s_ConnectorValueList colorDepth; ///< Bits per colour component, such as 8, 10 or 12. Element "ColorDepth".
};

/// Colour depths. Connector file, element ColorDepths.
struct s_ConnectorColorDepths : s_SupportInfo {
    std::vector<s_InterfaceInColorDepth> interfaces; ///< One entry for each interface type, in file order.
};

/// Colour spaces of one interface type. Connector file, child of ColorSpaces; an entry without "ColorSpace" is left
/// out.
struct s_InterfaceInColorSpace {
    int type = 0; ///< Interface type that the entry is for. Attribute "Type".
    /// Colour encoding of the signal: 0 RGB, 1 YCbCr 4:4:4, 2 YCbCr 4:2:2, 3 YCbCr 4:2:0 in the example. Element
    /// "ColorSpace".
    s_ConnectorValueList colorSpace;
};

/// Colour spaces. Connector file, element ColorSpaces.
struct s_ConnectorColorSpaces : s_SupportInfo {
    std::vector<s_InterfaceInColorSpace> interfaces; ///< One entry for each interface type, in file order.
};

/// Colour ranges (quantisation) of one interface type. Connector file, child of ColorRanges; an entry without
/// "ColorRange" is left out.
struct s_InterfaceInColorRange {
    int type = 0; ///< Interface type that the entry is for. Attribute "Type".
    /// Quantisation range: 0 limited (16 to 235 of 8 bits), 1 full (0 to 255) in the example. Element "ColorRange".
    s_ConnectorValueList colorRange;
};

/// Colour ranges. Connector file, element ColorRanges.
struct s_ConnectorColorRanges : s_SupportInfo {
    std::vector<s_InterfaceInColorRange> interfaces; ///< One entry for each interface type, in file order.
};

/// How a picture that comes over several links is put together: 0 square division, 1 two-sample interleave in the
/// example. Connector file, element FormatMapping.
struct s_ConnectorFormatMapping : s_ConnectorValueList {};

/// Whether the connector carries high dynamic range. Connector file, element DynamicRange.
struct s_ConnectorDynamicRange : s_SupportInfo {};

/// Whether the connector has an EDID and lets the user change it. Connector file, element EDID.
struct s_EDID : s_SupportInfo {};

/// Hot-plug detection (HPD) of one interface: how long the line is held low to make the source read the EDID again.
/// Connector file, element HPDs/.../HPD; "Editable" is not read. The example counts milliseconds.
struct s_HPD : s_SupportInfo {
    int value = 0; ///< Factory length of the low pulse. Attribute "Value".
    int min = 0;   ///< Shortest low pulse that can be set. Attribute "Min".
    int max = 0;   ///< Longest low pulse that can be set. Attribute "Max".
    int step = 0;  ///< Distance between two lengths that can be set. Attribute "Step".
};

/// Hot-plug detection. Connector file, element HPDs; the defaults stand without it.
struct s_ConnectorHPDs : s_SupportInfo {
    /// Hot-plug detection of one interface type. Connector file, child of HPDs; "Editable" is not read. Nested, since
    /// the card's block has the same name.
    struct s_HPDsInterface : s_SupportInfo {
        int type = 0; ///< Interface type that the entry is for; the query looks at 2 alone. Attribute "Type".
        s_HPD hpd;    ///< The low pulse on this interface. Element "HPD"; the defaults stand without it.
    };

    /// One entry for each interface type, in file order; empty: the connector has no HPD line to control.
    std::vector<s_HPDsInterface> interfaces;
};

} // namespace LCD::MainConfig

#endif
