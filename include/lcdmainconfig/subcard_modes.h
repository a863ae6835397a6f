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
    int support = 0;
    int editable = 0;
    int value = 0;               ///< The colour space.
    int colorDepthSupport = -1;  ///< -1: the entry has no "ColorDepth".
    int colorDepthEditable = -1; ///< -1: the entry has no "ColorDepth".
    std::vector<int> colorDepths;
};

/// The colour spaces of a connector. Card file, element ColorSpace of a capacity's connector; it holds a second
/// element of its own name.
struct s_ColorSpace {
    int support = 0;                       ///< Attribute "Support" of the outer element.
    int editable = 0;                      ///< Attribute "Editable" of the outer element.
    int innerSupport = 0;                  ///< Attribute "Support" of the inner element.
    int innerEditable = 0;                 ///< Attribute "Editable" of the inner element.
    std::vector<int> colorSpaces;          ///< The "Enum" values of the inner element.
    std::vector<s_ColorSpaceValue> values; ///< Element "ColorSpaceValues".
};

/// A connector as one capacity of a device mode offers it: the plain connector with its group id, without virtual
/// input, and its colour abilities. Card file, child of Connectors/DeviceMode/Capacitys/....
struct s_ConnectorInConnectorsDeviceModeCapacitysCapacity : s_SubcardConnector {
    s_BaseAttr dynamicRange; ///< Element "DynamicRange"; `editable` stays -1 without it.
    s_ColorSpace colorSpace;
    int colorDepthSupport = -1;   ///< Element "ColorDepth"; -1 also where "ColorSpace" is missing.
    int colorDepthEditable = -1;  ///< As `colorDepthSupport`.
    std::vector<int> colorDepths; ///< The "Enum" values of "ColorDepth".
    int interlacedType = 0;       ///< Attribute "Type" of "Interlaced".
};

/// One capacity of a device mode. Card file, child of Connectors/DeviceMode/Capacitys.
struct s_CapacityInConnectorsDeviceModeCapacitys {
    std::string name; ///< UTF-8.
    int enable = 0;
    int value = 0; ///< Capacity number, the key of the queries.
    std::vector<s_ConnectorInConnectorsDeviceModeCapacitysCapacity> connectors;
};

/// The range of one timing number, in pixels or lines as the file gives it. All 0 when the element is missing.
struct s_WidthInConnectorsDeviceModeTiming {
    int support = 0;
    int value = 0;
    int min = 0;
    int max = 0;
    int step = 0;
};

/// The ranges of one direction of a custom timing, horizontal and vertical alike.
struct s_HorizontalInConnectorsDeviceModeTiming {
    s_WidthInConnectorsDeviceModeTiming addTime; ///< Active part.
    s_WidthInConnectorsDeviceModeTiming totalTime;
    s_WidthInConnectorsDeviceModeTiming frontPorch;
    s_WidthInConnectorsDeviceModeTiming sync;
};

/// The limits of resolution and timing. Card file, element ResolutionRatios below Connectors/DeviceMode/Timing.
struct s_ResolutionRatiosInConnectorsDeviceModeTiming {
    int support = 0;
    s_WidthInConnectorsDeviceModeTiming width;           ///< Element "ResolutionRatio/Width", pixels.
    s_WidthInConnectorsDeviceModeTiming height;          ///< Element "ResolutionRatio/Height", lines.
    s_HorizontalInConnectorsDeviceModeTiming horizontal; ///< Element "AdvResolutionRatio/Horizontal".
    s_HorizontalInConnectorsDeviceModeTiming vertical;   ///< Element "AdvResolutionRatio/Vertical".
};

/// The timing limits of one capacity mode.
struct s_CapacityModeInConnectorsDeviceModeTiming {
    int support = 0;
    int value = 0; ///< Capacity mode.
    s_ResolutionRatiosInConnectorsDeviceModeTiming resolutionRatios;
};

/// The timing limits of one interface type.
struct s_InterfaceInConnectorsDeviceModeTiming {
    int type = 0; ///< Interface type.
    int support = 0;
    std::vector<s_CapacityModeInConnectorsDeviceModeTiming> capacityModes;
};

/// The timing limits of one connector type. Card file, child of Connectors/DeviceMode/Timing.
struct s_ConnectorInConnectorsDeviceModeTiming {
    int type = 0; ///< Connector type.
    int support = 0;
    std::vector<s_InterfaceInConnectorsDeviceModeTiming> interfaces;
};

/// One device mode of a card. Card file, element Connectors/DeviceMode.
struct s_DeviceModeInConnectors {
    int value = 0;          ///< Device mode, the key of the queries.
    int capacitysValue = 0; ///< Attribute "Value" of "Capacitys".
    std::vector<s_CapacityInConnectorsDeviceModeCapacitys> capacitys;
    std::vector<s_ConnectorInConnectorsDeviceModeTiming> timing;
};

} // namespace LCD::MainConfig

#endif
