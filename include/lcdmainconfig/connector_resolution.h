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
    int width = 0;             ///< Pixels.
    int height = 0;            ///< Lines.
    float coefficient = 0.01F; ///< Read for disabled resolutions alone.
    int interlaced = 1;        ///< Read for standard resolutions alone.
};

/// The standard resolutions of one capacity mode. Resolution file, child of ResolutionRatios.
struct s_ResoluCapacityMode {
    int value = 0; ///< Capacity mode.
    std::vector<s_resolutionResolutionRatio> resolutions;
};

/// The content of the resolution file.
struct s_DCSResolution {
    std::vector<s_ResoluCapacityMode> capacityModes;
};

/// The bandwidth limits of a capacity mode. Connector file, element BandWidth.
struct s_BandWidth : s_SupportInfo {
    std::int64_t min = 0;
    std::int64_t max = 0;
};

/// The resolution that a connector starts with. Connector file, element ResolutionRatios/ResolutionRatio.
struct s_ResolutionRatio : s_SupportInfo {
    s_RangeValue width;       ///< Pixels.
    s_RangeValue height;      ///< Lines.
    s_RangeValue refreshRate; ///< Its own coefficient stays 1; the file's one is the next member.
    float coefficient = 1.0F; ///< Attribute "Coefficient" of "RefreshRate".
};

/// The limits of one direction of a custom timing: "Min" and "Max" from each child. The flags come from "Horizontal";
/// for "Vertical" none are read, and they keep their defaults.
struct s_ConnectorHorizontal : s_SupportInfo {
    s_RangeValue addTime; ///< Active part.
    s_RangeValue frontPorch;
    s_RangeValue sync;
    s_RangeValue totalTime;
};

/// The resolutions of one capacity mode of an interface. Connector file, element ResolutionRatios.
struct s_ResolutionRatios : s_SupportInfo {
    /// The limits of a custom timing. Connector file, element ResolutionRatios/AdvResolutionRatio.
    struct s_AdvResolutionRatio : s_SupportInfo {
        s_RangeValue refresh;
        s_ConnectorHorizontal horizontal;
        s_ConnectorHorizontal vertical;
    };

    s_ResolutionRatio defaultResolution; ///< Element "ResolutionRatio".
    s_AdvResolutionRatio advResolutionRatio;
    std::vector<s_resolutionResolutionRatio> disables; ///< Standard resolutions that the connector does not support.
};

/// One capacity mode of an interface. Connector file, two levels below CapacityMode.
struct s_CapacityModeInInterface : s_SupportInfo {
    int value = 0; ///< Capacity mode.
    s_BandWidth bandWidth;
    s_ResolutionRatios resolutionRatios;
};

/// The capacity modes of one interface type. Connector file, child of CapacityMode.
struct s_Interface {
    int type = 0; ///< Interface type, a bit mask to most queries.
    std::vector<s_CapacityModeInInterface> capacityModes;
};

} // namespace LCD::MainConfig

#endif
