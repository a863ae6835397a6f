// The functions of one device model as its feature file lists them: genlock, dynamic range, interface mapping, cut-out,
// languages, quick topology, HDR, and the device's general data. Unless told otherwise a member comes from the
// attribute or child element of its name, and a list is empty when the file names no entry.
#ifndef LCDMAINCONFIG_FEATURE_FUNCTIONS_H
#define LCDMAINCONFIG_FEATURE_FUNCTIONS_H

#include "lcdmainconfig/common.h"

#include <string>

namespace LCD::MainConfig {

/// The languages of the panel: 0 Chinese, 1 English in the example. Feature file, element Features/Language.
struct s_Language : s_EnumField {};

/// Whether high dynamic range is supported. Feature file, element HDR.
struct s_HDRInfo : s_SupportInfo {
    s_EnumField type; ///< Kinds of HDR; no file fills it: always at its defaults.
};

/// Synchronisation of the outputs to an external reference. Feature file, element Features/Genlock. A screen file's
/// Features/Genlock fills the flags and `type.enums` alone, the latter from its child ConnectorTypes.
struct s_Genlock : s_SupportInfo {
    /// Where the reference comes from: 0 internal clock, 1 black burst, 2 tri-level, 3 an input in the example. Element
    /// "Type".
    s_EnumField type;
    /// Whether the outputs can be shifted against the reference; the two children follow as members of their own.
    /// Element "Phase".
    s_SupportInfo phase;
    s_EnumField enable;  ///< Switches the phase offset on and off. Element "Phase/Enable".
    s_RangeValue offset; ///< Phase offset against the reference, in pixels in the example. Element "Phase/Offset".
    /// Connector types whose inputs can be the reference; `enums` alone is filled. Optional element "ConnectorTypes".
    s_EnumField connectorTypes;
};

/// Conversion between standard and high dynamic range. Feature file, element Features/DynamicRangConversion.
struct s_DynamicRangConversion : s_SupportInfo {
    s_EnumField enable; ///< Switches the conversion on and off. Element "Enable".
    /// Directions of conversion; the list comes from "Type", the flags and the value from "Enable": this is meant.
    s_EnumField type;
};

/// The test pattern of an interface. Feature file, element Features/InterfaceMapping/TestPattern.
struct s_DeviceFeatTestPattern : s_SupportInfo {
    s_EnumField enable;  ///< Switches the test pattern on and off. Element "Enable".
    s_EnumField type;    ///< Which pattern is shown: 0 colour, 1 bars, 2 grid, 3 ramp in the example. Element "Type".
    s_RangeValue bright; ///< Brightness of the pattern, in percent in the example. Element "Bright".
    s_RangeValue gridSpace; ///< Distance between the lines of the grid, in pixels in the example. Element "GridSpace".
    /// Thickness of the lines of the grid, in pixels in the example. Element "GridLineWidth".
    s_RangeValue gridLineWidth;
    s_RangeValue speed; ///< How fast a moving pattern moves, in percent in the example. Element "Speed".
};

/// Mapping of interfaces. Feature file, element Features/InterfaceMapping.
struct s_InterfaceMapping : s_SupportInfo {
    /// Interface types that can be mapped: 1 input, 2 output, 4 multi-view output, 8 auxiliary output in the example.
    /// Element "Type".
    s_EnumField type;
    s_DeviceFeatTestPattern testPattern; ///< Test pattern of an interface. Element "TestPattern".
};

/// Place of a cut-out. Feature file, element Features/CutoutPos.
struct s_CutoutPos : s_SupportInfo {
    s_EnumField enable; ///< Switches cut-outs on and off. Element "Enable".
    /// How the place is given: 0 in pixels of the source, 1 in percent in the example. Element "Type".
    s_EnumField type;
};

/// Quick set-up of a canvas. Feature file, element Features/QuickTopology.
struct s_QuickToPology : s_SupportInfo {
    /// Limits of the canvas's width, in pixels in the example; flags, `min` and `max` alone are filled. Element
    /// "Width".
    s_RangeValue width;
    /// Limits of the canvas's height, in pixels in the example; flags, `min` and `max` alone are filled. Element
    /// "Height".
    s_RangeValue height;
    /// How screens are arranged: 1 horizontal, 2 vertical, 3 matrix in the example; flags and `enums` alone are filled.
    /// Absent, it leaves width and height standing. Element "LayoutType".
    s_EnumField layoutType;
};

/// General data of the device. Feature file, element General.
struct s_General : s_SupportInfo {
    /// Limits of the length of the device's name, 0 to 255 unless the file says otherwise. Read from "General" and not
    /// from its child "Name", which is required: this is meant.
    s_RangeValue name;
    s_EnumField status; ///< States that the device can be in; the numbers are the panel's. Element "Status".
};

} // namespace LCD::MainConfig

#endif
