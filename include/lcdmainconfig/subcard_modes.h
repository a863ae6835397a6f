// What a plug-in card can do in each of its device modes: the capacities with their connectors and colour abilities,
// and the timing limits. Filled from the element Connectors/DeviceMode of the card files, where every part may be
// absent.
#ifndef LCDMAINCONFIG_SUBCARD_MODES_H
#define LCDMAINCONFIG_SUBCARD_MODES_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/subcard_capacity.h"

#include <string>
#include <vector>

namespace LCD::MainConfig {

/// One colour space and the colour depths it allows. Card file, child of ColorSpace/ColorSpaceValues.
struct s_ColorSpaceValue {
    int support = 0;  ///< Non-zero: the colour space can be used. Attribute "Support".
    int editable = 0; ///< Non-zero: the user may choose it. Attribute "Editable".
    /// Number of the colour space: 0 RGB, 1 YCbCr 4:4:4, 2 YCbCr 4:2:2, 3 YCbCr 4:2:0 in the example. Attribute
    /// "Value".
    int value = 0;
    /// Non-zero: the colour depth can be set; -1: there is no "ColorDepth". Attribute "Support" of "ColorDepth".
    int colorDepthSupport = -1;
    /// Non-zero: the user may change the colour depth; -1: there is no "ColorDepth". Attribute "Editable" of
    /// "ColorDepth".
    int colorDepthEditable = -1;
    /// Bits per colour component to choose from: the "Enum" values of "ColorDepth", in file order.
    std::vector<int> colorDepths;
};

/// The colour spaces of a connector. Card file, element ColorSpace of a capacity's connector; it holds a second
/// element of its own name.
struct s_ColorSpace {
    int support = 0;      ///< Non-zero: the connector has colour settings. Attribute "Support" of the outer element.
    int editable = 0;     ///< Non-zero: the user may change them. Attribute "Editable" of the outer element.
    int innerSupport = 0; ///< Non-zero: the colour space can be chosen. Attribute "Support" of the inner element.
    /// Non-zero: the user may change the colour space. Attribute "Editable" of the inner element.
    int innerEditable = 0;
    /// Colour spaces to choose from: the "Enum" values of the inner element, in file order.
    std::vector<int> colorSpaces;
    /// The colour depths that each colour space allows: the children of "ColorSpaceValues", in file order.
    std::vector<s_ColorSpaceValue> values;
};

/// A connector as one capacity of a device mode offers it: the plain connector with its group id, without virtual
/// input, and its colour abilities. Card file, child of Connectors/DeviceMode/Capacitys/....
struct s_ConnectorInConnectorsDeviceModeCapacitysCapacity : s_SubcardConnector {
    /// High dynamic range: whether it is offered, and its factory value. Element "DynamicRange"; `editable` stays -1
    /// without it.
    s_BaseAttr dynamicRange;
    s_ColorSpace colorSpace; ///< Colour spaces, and the depths that each allows. Element "ColorSpace".
    /// Non-zero: the colour depth can be set; -1: there is no "ColorDepth", or no "ColorSpace" beside it. Attribute
    /// "Support" of "ColorDepth".
    int colorDepthSupport = -1;
    /// Non-zero: the user may change the colour depth; -1 as `colorDepthSupport`. Attribute "Editable" of "ColorDepth".
    int colorDepthEditable = -1;
    /// Bits per colour component over all colour spaces: the "Enum" values of "ColorDepth", in file order.
    std::vector<int> colorDepths;
    /// Whether and how interlaced pictures are carried: 0 not, 1 yes in the example. Attribute "Type" of "Interlaced";
    /// 0 without it.
    int interlacedType = 0;
};

/// One capacity of a device mode. Card file, child of Connectors/DeviceMode/Capacitys.
struct s_CapacityInConnectorsDeviceModeCapacitys {
    std::string name; ///< Name of the capacity, UTF-8, such as "4 x HD"; empty: the file names none. Attribute "Name".
    int enable = 0;   ///< Non-zero: the capacity can be chosen. Attribute "Enable".
    int value = 0;    ///< Number of the capacity, the key of the queries. Attribute "Value".
    /// Connectors as the capacity offers them, in file order; one that is not listed has no bandwidth in it.
    std::vector<s_ConnectorInConnectorsDeviceModeCapacitysCapacity> connectors;
};

/// The range of one timing number, in pixels where it is horizontal and in lines where it is vertical. Card file, below
/// ResolutionRatio and AdvResolutionRatio of Connectors/DeviceMode/Timing; all 0 when the element is missing.
struct s_WidthInConnectorsDeviceModeTiming {
    int support = 0; ///< Non-zero: the number can be set. Attribute "Support".
    int value = 0;   ///< Number that the timing starts with. Attribute "Value".
    int min = 0;     ///< Fewest pixels or lines. Attribute "Min".
    int max = 0;     ///< Most pixels or lines. Attribute "Max".
    int step = 0;    ///< Distance between two numbers that can be set. Attribute "Step".
};

/// The ranges of one direction of a custom timing: pixels of a line where it is horizontal, lines of a frame where it
/// is vertical. Card file, element Horizontal or Vertical of AdvResolutionRatio.
struct s_HorizontalInConnectorsDeviceModeTiming {
    s_WidthInConnectorsDeviceModeTiming addTime; ///< Active part: what is seen of the picture. Element "AddTime".
    /// Whole line or frame: active part, front porch, sync and back porch. Element "TotalTime".
    s_WidthInConnectorsDeviceModeTiming totalTime;
    /// Front porch: blanking between the active part and the sync pulse. Element "FrontPorch".
    s_WidthInConnectorsDeviceModeTiming frontPorch;
    s_WidthInConnectorsDeviceModeTiming sync; ///< Length of the sync pulse. Element "Sync".
};

/// The limits of resolution and timing. Card file, element ResolutionRatios below Connectors/DeviceMode/Timing.
struct s_ResolutionRatiosInConnectorsDeviceModeTiming {
    int support = 0;                            ///< Non-zero: resolutions can be set. Attribute "Support".
    s_WidthInConnectorsDeviceModeTiming width;  ///< Active width in pixels. Element "ResolutionRatio/Width".
    s_WidthInConnectorsDeviceModeTiming height; ///< Active height in lines. Element "ResolutionRatio/Height".
    /// Limits of a line, in pixels. Element "AdvResolutionRatio/Horizontal".
    s_HorizontalInConnectorsDeviceModeTiming horizontal;
    /// Limits of a frame, in lines. Element "AdvResolutionRatio/Vertical".
    s_HorizontalInConnectorsDeviceModeTiming vertical;
};

/// The timing limits of one capacity mode. Card file, third level below Connectors/DeviceMode/Timing.
struct s_CapacityModeInConnectorsDeviceModeTiming {
    int support = 0; ///< Non-zero: timings can be set in this mode. Attribute "Support".
    int value = 0;   ///< Capacity mode, a key of the query. Attribute "Value".
    /// Limits of resolution and timing. Element "ResolutionRatios"; all 0 without it.
    s_ResolutionRatiosInConnectorsDeviceModeTiming resolutionRatios;
};

/// The timing limits of one interface type. Card file, second level below Connectors/DeviceMode/Timing.
struct s_InterfaceInConnectorsDeviceModeTiming {
    int type = 0;    ///< Interface type, a key of the query. Attribute "Type".
    int support = 0; ///< Non-zero: timings can be set on this interface. Attribute "Support".
    /// Limits in each capacity mode, in file order; the first match counts.
    std::vector<s_CapacityModeInConnectorsDeviceModeTiming> capacityModes;
};

/// The timing limits of one connector type. Card file, child of Connectors/DeviceMode/Timing.
struct s_ConnectorInConnectorsDeviceModeTiming {
    int type = 0;    ///< Connector type, a key of the query. Attribute "Type".
    int support = 0; ///< Non-zero: timings can be set on connectors of this type. Attribute "Support".
    /// Limits as each interface type, in file order; the first match counts.
    std::vector<s_InterfaceInConnectorsDeviceModeTiming> interfaces;
};

/// One device mode of a card. Card file, element Connectors/DeviceMode.
struct s_DeviceModeInConnectors {
    int value = 0;          ///< Device mode, the key of the queries. Attribute "Value".
    int capacitysValue = 0; ///< Capacity that a new card starts with. Attribute "Value" of "Capacitys".
    /// Capacities that can be chosen in the mode: the children of "Capacitys", in file order.
    std::vector<s_CapacityInConnectorsDeviceModeCapacitys> capacitys;
    /// Timing limits of each connector type: the children of "Timing", in file order; empty: none are given.
    std::vector<s_ConnectorInConnectorsDeviceModeTiming> timing;
};

} // namespace LCD::MainConfig

#endif
