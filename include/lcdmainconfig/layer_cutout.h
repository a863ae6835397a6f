// Keying of a layer: how part of its picture is cut out by brightness, by colour, or by automatic matting. Filled from
// the layer file's "CutoutGeneral", as a whole or not at all. Elements below are named relative to it.
#ifndef LCDMAINCONFIG_LAYER_CUTOUT_H
#define LCDMAINCONFIG_LAYER_CUTOUT_H

#include "lcdmainconfig/common.h"

namespace LCD::MainConfig {

/// Luma key: what is dark or bright is cut out. Layer file, element CutoutGeneral/Brightness.
struct s_CutoutBrightness {
    /// The colour that a luma key keeps in front. Layer file, element CutoutGeneral/Brightness/ForegroundColor.
    struct s_ForegroundColor : s_SupportInfo {
        s_EnumField enable; ///< Switches the foreground colour on and off. Element "Enable".
        s_RangeValue r;     ///< Red part, 0 to 255 unless the file says otherwise. Element "R".
        s_RangeValue g;     ///< Green part, 0 to 255 unless the file says otherwise. Element "G".
        s_RangeValue b;     ///< Blue part, 0 to 255 unless the file says otherwise. Element "B".
    };

    s_SupportInfo info; ///< Whether the layer has a luma key. The element's own flags.
    /// Brightness at which the key switches, 0 to 100 unless the file says otherwise. Element "Threshold".
    s_RangeValue threshold;
    /// Steepness of the key around the threshold, 0 to 255 unless the file says otherwise. Element "Gain".
    s_RangeValue gain;
    s_ForegroundColor foregroundColor; ///< Colour that the key keeps in front. Element "ForegroundColor".
};

/// Chroma key: what has the key colour is cut out. Layer file, element CutoutGeneral/Hue. An element that is there
/// without attributes gives the keyer's defaults, told below. No element's "DataType" is read.
struct s_CutoutHue {
    s_SupportInfo info; ///< Whether the layer has a chroma key. The element's own flags.
    /// Clip: distance from the key colour up to which all is cut out, in degrees of hue; 10 within 5 to 180. Element
    /// "HueClip".
    s_RangeValue hueClip;
    /// Ramp: width of the soft edge beyond the clip, in degrees of hue; 90 within 5 to 180. Element "HueRamp".
    s_RangeValue hueRamp;
    /// Saturation below which nothing is cut out; 10 within 0 to 100. Element "SaturationClip".
    s_RangeValue saturationClip;
    /// Steepness of the key around the saturation clip; 10 within 0 to 100. Element "SaturationGain".
    s_RangeValue saturationGain;
    /// Spill suppression: how much of the key colour's reflection on the foreground is taken away; 10 within 0 to 100.
    /// Element "Spill".
    s_RangeValue spill;
    /// How much of the dark parts of the background is kept; 10 within 0 to 100, the only one whose "Step" is read.
    /// Element "Shadow".
    s_RangeValue shadow;
    /// How much of the bright parts of the background is kept; 10 within 0 to 100. Element "HighLigh"; the spelling is
    /// meant.
    s_RangeValue highLigh;
    /// Red part of the key colour, 0 to 255; the flags of "Color" itself are dropped. Element "Color/R".
    s_RangeValue r;
    s_RangeValue g; ///< Green part of the key colour, 0 to 255. Element "Color/G".
    s_RangeValue b; ///< Blue part of the key colour, 0 to 255. Element "Color/B".
};

/// Automatic matting: the device finds what is in front by itself. Layer file, element CutoutGeneral/Intelligence. No
/// element's "DataType" is read.
struct s_CutoutIntelligence {
    s_SupportInfo info; ///< Whether the layer has automatic matting. The element's own flags.
    /// Red part of the matting colour, 0 to 255; the flags of "Color" itself are dropped. Element "Color/R".
    s_RangeValue r;
    s_RangeValue g; ///< Green part of the matting colour, 0 to 255. Element "Color/G".
    s_RangeValue b; ///< Blue part of the matting colour, 0 to 255. Element "Color/B".
    /// How much is cut out, 0 to 100 unless the file says otherwise. Element "MattingStrength".
    s_RangeValue mattingStrength;
    /// Amplification of the matte, 0 to 100 unless the file says otherwise. Element "GainAdjust".
    s_RangeValue gainAdjust;
};

/// What a layer type offers for keying. Layer file, element CutoutGeneral, required with all that is named here. The
/// file gives "Intelligence" before "Hue".
struct s_LayerCutoutGeneral {
    s_SupportInfo info; ///< Whether the layer can be keyed. The element's own flags.
    s_EnumField enable; ///< Switches keying on and off. Element "Enable".
    /// Which key is in use, by luma, colour or automatic matting; the numbers are the panel's. Element "Type".
    s_EnumField type;
    s_CutoutBrightness brightness;     ///< Luma key. Element "Brightness".
    s_CutoutHue hue;                   ///< Chroma key. Element "Hue".
    s_CutoutIntelligence intelligence; ///< Automatic matting. Element "Intelligence".
};

} // namespace LCD::MainConfig

#endif
