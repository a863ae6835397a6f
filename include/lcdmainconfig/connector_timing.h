// Preset timings of a connector type, per interface type, and the choice among timings. Filled from the elements
// PresetTiming and TimingSelect of the connector files.
#ifndef LCDMAINCONFIG_CONNECTOR_TIMING_H
#define LCDMAINCONFIG_CONNECTOR_TIMING_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/connector_signal.h"

#include <vector>

namespace LCD::MainConfig {

/// The limits of one direction of a preset timing: pixels of a line where it is horizontal, lines of a frame where it
/// is vertical. Connector file, element Horizontal or Vertical of an interface of PresetTiming.
struct s_PresetHorizontal : s_SupportInfo {
    /// The range of one timing number, in pixels where it is horizontal and in lines where it is vertical. Connector
    /// file, elements AddTime, FrontPorch, Sync and TotalTime of a direction.
    struct s_TimingItem : s_BaseAttr {
        int min = 0; ///< Fewest pixels or lines. Attribute "Min".
        int max = 0; ///< Most pixels or lines. Attribute "Max".
    };

    /// Active part: what is seen of the picture. Element "AddTime", the only item with a "Value" in the file.
    s_TimingItem addTime;
    /// Front porch: blanking between the active part and the sync pulse. Element "FrontPorch".
    s_TimingItem frontPorch;
    s_TimingItem sync; ///< Length of the sync pulse. Element "Sync".
    /// Whole line or frame: active part, front porch, sync and back porch. Element "TotalTime".
    s_TimingItem totalTime;
    /// Polarity of the sync pulse, negative or positive; which number is which is the panel's matter. Element
    /// "SyncPolarity".
    s_BaseAttr syncPolarity;
    /// Allowed values of `syncPolarity`: the children of "SyncPolarity", in file order.
    std::vector<int> syncPolarityValues;
};

/// The refresh rates of a preset timing, as a query hands them out; the units are the file's.
struct s_PresetRefresh {
    s_BaseAttr refresh; ///< Flags and factory value of the refresh rate. Element "Refresh".
    /// Factor from the stored rates to hertz, 0.01 for hundredths of a hertz; 0 when nothing matches.
    float coefficient = 0.0F;
    std::vector<int> refreshValues; ///< Refresh rates to choose from, before the factor; empty when nothing matches.
};

/// The preset timing of one interface type. Connector file, child of PresetTiming; an entry with a part missing is
/// left out.
struct s_PreSetTimingInterface {
    /// The limits of the pixel clock of a preset timing, in kilohertz in the example. Connector file, element BandWidth
    /// below PresetTiming.
    struct s_PresetBandWidth : s_SupportInfo {
        int min = 0; ///< Lowest pixel clock that the interface carries. Attribute "Min".
        int max = 0; ///< Highest pixel clock that the interface carries. Attribute "Max".
        /// How the panel shows the limits; the number is the panel's and never interpreted here. Attribute "DataType".
        int dataType = 0;
    };

    int type = 0;          ///< Interface type that the timing is for, a bit mask to the queries. Attribute "Type".
    s_BaseAttr interlaced; ///< Scan mode: 0 progressive, 1 interlaced in the example. Element "Interlaced".
    std::vector<int> interlacedValues; ///< Allowed values of `interlaced`: the children of "Interlaced", in file order.
    s_PresetBandWidth bandWidth;       ///< Limits of the pixel clock. Element "BandWidth".
    s_BaseAttr refresh;                ///< Flags and factory value of the refresh rate. Element "Refresh".
    /// Factor from the stored rates to hertz, 0.01 for hundredths of a hertz. Attribute "Coefficient" of "Refresh".
    float coefficient = 0.0F;
    /// Refresh rates to choose from, before the factor: the children of "Refresh", in file order.
    std::vector<int> refreshValues;
    s_PresetHorizontal horizontal; ///< Limits of a line, in pixels. Element "Horizontal".
    s_PresetHorizontal vertical;   ///< Limits of a frame, in lines. Element "Vertical".
};

/// The choice among timings. Connector file, element TimingSelect.
struct s_ConnectorTimingSelect : s_SupportInfo {
    /// Where the timing comes from: 0 the EDID or the signal, 1 a preset, 2 a custom timing in the example. Element
    /// "Select".
    s_ConnectorValueList select;
};

} // namespace LCD::MainConfig

#endif
