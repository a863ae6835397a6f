// Resolutions: the standard list of every capacity mode, filled from the resolution file, and what one connector type
// makes of it, filled from the element CapacityMode of the connector files. A capacity mode is a bandwidth class; the
// queries know 0, 1 and 2.
#ifndef LCDMAINCONFIG_CONNECTOR_RESOLUTION_H
#define LCDMAINCONFIG_CONNECTOR_RESOLUTION_H

#include "lcdmainconfig/common.h"

#include <cstdint>
#include <vector>

namespace LCD::MainConfig {

/// One resolution, standard or disabled. Resolution file, two levels below ResolutionRatios; connector file, child of
/// ResolutionRatios/Disables.
struct s_resolutionResolutionRatio {
    int width = 0;  ///< Active width in pixels. Attribute "Width".
    int height = 0; ///< Active height in lines. Attribute "Height".
    /// Factor for refresh rates, passed on as it stands. Attribute "Coefficient", read for disabled resolutions alone.
    float coefficient = 0.01F;
    /// Scan mode: 1 interlaced, 0 progressive. Attribute "Interlaced", read for standard resolutions alone; 1 in
    /// others.
    int interlaced = 1;
};

/// The standard resolutions of one capacity mode. Resolution file, child of ResolutionRatios.
struct s_ResoluCapacityMode {
    int value = 0; ///< Capacity mode that the list is for. Attribute "Value".
    /// Its standard resolutions, in file order with duplicates; empty: the mode offers none of its own.
    std::vector<s_resolutionResolutionRatio> resolutions;
};

/// The content of the resolution file: its element ResolutionRatios.
struct s_DCSResolution {
    /// One list for each capacity mode, in file order; of two with one number the first counts.
    std::vector<s_ResoluCapacityMode> capacityModes;
};

/// The limits of the pixel clock in a capacity mode, in kilohertz in the example. Connector file, element BandWidth
/// below CapacityMode.
struct s_BandWidth : s_SupportInfo {
    std::int64_t min = 0; ///< Lowest pixel clock. Attribute "Min", a 32-bit number in the file.
    std::int64_t max = 0; ///< Highest pixel clock. Attribute "Max", a 32-bit number in the file.
};

/// The resolution that a connector starts with. Connector file, element ResolutionRatios/ResolutionRatio.
struct s_ResolutionRatio : s_SupportInfo {
    s_RangeValue width;  ///< Active width in pixels: what the connector starts with, and the limits. Element "Width".
    s_RangeValue height; ///< Active height in lines: what the connector starts with, and the limits. Element "Height".
    /// Refresh rate before the factor in `coefficient`; its own coefficient stays 1. Element "RefreshRate".
    s_RangeValue refreshRate;
    /// Factor from the stored rate to hertz, 0.01 for hundredths of a hertz. Attribute "Coefficient" of "RefreshRate".
    float coefficient = 1.0F;
};

/// The limits of one direction of a custom timing: pixels of a line where it is horizontal, lines of a frame where it
/// is vertical. Connector file, element Horizontal or Vertical of AdvResolutionRatio; "Min" and "Max" of each child.
/// The flags come from "Horizontal"; for "Vertical" none are read, and they keep their defaults.
struct s_ConnectorHorizontal : s_SupportInfo {
    s_RangeValue addTime; ///< Active part: what is seen of the picture. Element "AddTime".
    /// Front porch: blanking between the active part and the sync pulse. Element "FrontPorch".
    s_RangeValue frontPorch;
    s_RangeValue sync; ///< Length of the sync pulse. Element "Sync".
    /// Whole line or frame: active part, front porch, sync and back porch. Element "TotalTime".
    s_RangeValue totalTime;
};

/// The resolutions of one capacity mode of an interface. Connector file, element ResolutionRatios below CapacityMode.
struct s_ResolutionRatios : s_SupportInfo {
    /// The limits of a custom timing. Connector file, element AdvResolutionRatio of ResolutionRatios.
    struct s_AdvResolutionRatio : s_SupportInfo {
        s_RangeValue refresh;             ///< Refresh rate, in hundredths of a hertz in the example. Element "Refresh".
        s_ConnectorHorizontal horizontal; ///< Limits of a line, in pixels. Element "Horizontal".
        s_ConnectorHorizontal vertical;   ///< Limits of a frame, in lines. Element "Vertical".
    };

    /// Resolution and refresh rate that the connector starts with. Element "ResolutionRatio".
    s_ResolutionRatio defaultResolution;
    s_AdvResolutionRatio advResolutionRatio; ///< Limits of a custom timing. Element "AdvResolutionRatio".
    /// Standard resolutions that the connector does not offer, by width and height. Optional element "Disables".
    std::vector<s_resolutionResolutionRatio> disables;
};

/// One capacity mode of an interface. Connector file, two levels below CapacityMode.
struct s_CapacityModeInInterface : s_SupportInfo {
    int value = 0;         ///< Capacity mode: bandwidth class 0, 1 or 2 to the queries. Attribute "Value".
    s_BandWidth bandWidth; ///< Limits of the pixel clock. Element "BandWidth".
    /// What the mode adds to and takes from the standard resolutions. Element "ResolutionRatios".
    s_ResolutionRatios resolutionRatios;
};

/// The capacity modes of one interface type. Connector file, child of CapacityMode.
struct s_Interface {
    /// Interface type, a bit mask to most queries; in the example 1 input, 2 output, 4 multi-view output, 8 auxiliary
    /// output. Attribute "Type".
    int type = 0;
    /// What the interface carries in each capacity mode, in file order.
    std::vector<s_CapacityModeInInterface> capacityModes;
};

} // namespace LCD::MainConfig

#endif
