// Keying of a layer: how part of its picture is cut out by brightness, by colour, or by automatic matting. Filled from
// the layer file's "CutoutGeneral", as a whole or not at all. Elements below are named relative to it.
#ifndef LCDMAINCONFIG_LAYER_CUTOUT_H
#define LCDMAINCONFIG_LAYER_CUTOUT_H

#include "lcdmainconfig/common.h"

namespace LCD::MainConfig {

/// Luma key: element "Brightness".
struct s_CutoutBrightness {
    /// The colour that the key keeps in front: element "ForegroundColor".
    struct s_ForegroundColor : s_SupportInfo {
        s_EnumField enable;
        s_RangeValue r;
        s_RangeValue g;
        s_RangeValue b;
    };

    s_SupportInfo info;
    s_RangeValue threshold; ///< Element "Threshold", 0 to 100 unless the file says otherwise.
    s_RangeValue gain;      ///< Element "Gain", 0 to 255 unless the file says otherwise.
    s_ForegroundColor foregroundColor;
};

/// Chroma key: element "Hue". Clip and ramp span 5 to 180 degrees of hue unless the file says otherwise, the controls
/// from `saturationClip` to `highLigh` 0 to 100. No element's "DataType" is read.
struct s_CutoutHue {
    s_SupportInfo info;
    s_RangeValue hueClip;
    s_RangeValue hueRamp;
    s_RangeValue saturationClip;
    s_RangeValue saturationGain;
    s_RangeValue spill;
    s_RangeValue shadow;   ///< The only control of the group whose "Step" is read.
    s_RangeValue highLigh; ///< Element "HighLigh"; the spelling is meant.
    s_RangeValue r;        ///< Element "Color/R" of the key colour; the flags of "Color" itself are dropped.
    s_RangeValue g;        ///< Element "Color/G".
    s_RangeValue b;        ///< Element "Color/B".
};

/// Automatic matting: element "Intelligence". No element's "DataType" is read.
struct s_CutoutIntelligence {
    s_SupportInfo info;
    s_RangeValue r;               ///< Element "Color/R"; the flags of "Color" itself are dropped.
    s_RangeValue g;               ///< Element "Color/G".
    s_RangeValue b;               ///< Element "Color/B".
    s_RangeValue mattingStrength; ///< Element "MattingStrength", 0 to 100 unless the file says otherwise.
    s_RangeValue gainAdjust;      ///< Element "GainAdjust", 0 to 100 unless the file says otherwise.
};

/// What a layer type offers for keying: layer file, element "CutoutGeneral". The file gives "Intelligence" before
/// "Hue".
struct s_LayerCutoutGeneral {
    s_SupportInfo info;
    s_EnumField enable;
    s_EnumField type; ///< Element "Type": the kinds of key; the numbers are the panel's.
    s_CutoutBrightness brightness;
    s_CutoutHue hue;
    s_CutoutIntelligence intelligence;
};

} // namespace LCD::MainConfig

#endif
