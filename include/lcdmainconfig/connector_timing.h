// Preset timings of a connector type, per interface type, and the choice among timings. Filled from the elements
// PresetTiming and TimingSelect of the connector files.
#ifndef LCDMAINCONFIG_CONNECTOR_TIMING_H
#define LCDMAINCONFIG_CONNECTOR_TIMING_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/connector_signal.h"

#include <vector>

namespace LCD::MainConfig {

/// The limits of one direction of a preset timing, horizontal and vertical alike.
struct s_PresetHorizontal : s_SupportInfo {
    /// The range of one timing number, in pixels or lines as the file gives it.
    struct s_TimingItem : s_BaseAttr {
        int min = 0;
        int max = 0;
    };

    s_TimingItem addTime; ///< Active part; alone among the items it has a "Value" in the file.
    s_TimingItem frontPorch;
    s_TimingItem sync;
    s_TimingItem totalTime;
    s_BaseAttr syncPolarity;
    std::vector<int> syncPolarityValues; ///< Allowed values of `syncPolarity`.
};

/// The refresh rates of a preset timing, as a query hands them out; the units are the file's.
struct s_PresetRefresh {
    s_BaseAttr refresh;
    float coefficient = 0.0F;       ///< Scale between the stored integers and the shown rates.
    std::vector<int> refreshValues; ///< Allowed values of `refresh`; empty when nothing matches.
};

/// The preset timing of one interface type. Connector file, child of PresetTiming; an entry with a part missing is
/// left out.
struct s_PreSetTimingInterface {
    /// The bandwidth limits of a preset timing. Connector file, element BandWidth below PresetTiming.
    struct s_PresetBandWidth : s_SupportInfo {
        int min = 0;
        int max = 0;
        int dataType = 0;
    };

    int type = 0; ///< Interface type, a bit mask to the queries.
    s_BaseAttr interlaced;
    std::vector<int> interlacedValues; ///< Allowed values of `interlaced`.
    s_PresetBandWidth bandWidth;
    s_BaseAttr refresh;
    float coefficient = 0.0F;       ///< Attribute "Coefficient" of "Refresh".
    std::vector<int> refreshValues; ///< Allowed values of `refresh`.
    s_PresetHorizontal horizontal;
    s_PresetHorizontal vertical;
};

/// The choice among timings. Connector file, element TimingSelect.
struct s_ConnectorTimingSelect : s_SupportInfo {
    s_ConnectorValueList select;
};

} // namespace LCD::MainConfig

#endif
