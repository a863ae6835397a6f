// The functions of one device model as its feature file lists them: genlock, dynamic range, interface mapping, cut-out,
// languages, quick topology, HDR, and the device's general data. Unless told otherwise a member comes from the
// attribute or child element of its name, and a list is empty when the file names no entry.
#ifndef LCDMAINCONFIG_FEATURE_FUNCTIONS_H
#define LCDMAINCONFIG_FEATURE_FUNCTIONS_H

#include "lcdmainconfig/common.h"

#include <string>

namespace LCD::MainConfig {

/// The panel languages. Feature file, element Features/Language.
struct s_Language : s_EnumField {};

/// Feature file, element HDR.
struct s_HDRInfo : s_SupportInfo {
    s_EnumField type; ///< No file fills it: always at its defaults.
};

/// Feature file, element Features/Genlock. A screen file's Features/Genlock fills the flags and `type.enums` alone, the
/// latter from its child ConnectorTypes.
struct s_Genlock : s_SupportInfo {
    s_EnumField type;
    s_SupportInfo phase;        ///< Flags of element Phase; its two children follow as members of their own.
    s_EnumField enable;         ///< Element Phase/Enable.
    s_RangeValue offset;        ///< Element Phase/Offset.
    s_EnumField connectorTypes; ///< Optional; `enums` alone is filled.
};

/// Feature file, element Features/DynamicRangConversion.
struct s_DynamicRangConversion : s_SupportInfo {
    s_EnumField enable;
    s_EnumField type; ///< Its list comes from Type, its flags and value from Enable: this is meant.
};

/// The test pattern of an interface. Feature file, element Features/InterfaceMapping/TestPattern.
struct s_DeviceFeatTestPattern : s_SupportInfo {
    s_EnumField enable;
    s_EnumField type;
    s_RangeValue bright;
    s_RangeValue gridSpace;
    s_RangeValue gridLineWidth;
    s_RangeValue speed;
};

/// Feature file, element Features/InterfaceMapping.
struct s_InterfaceMapping : s_SupportInfo {
    s_EnumField type;
    s_DeviceFeatTestPattern testPattern;
};

/// Feature file, element Features/CutoutPos.
struct s_CutoutPos : s_SupportInfo {
    s_EnumField enable;
    s_EnumField type;
};

/// Feature file, element Features/QuickTopology.
struct s_QuickToPology : s_SupportInfo {
    s_RangeValue width;     ///< Flags, `min` and `max` alone are filled.
    s_RangeValue height;    ///< Flags, `min` and `max` alone are filled.
    s_EnumField layoutType; ///< Flags and `enums` alone are filled. Absent, it leaves width and height standing.
};

/// Feature file, element General.
struct s_General : s_SupportInfo {
    s_RangeValue name; ///< Limits of the device name, read from General and not from its child Name: this is meant.
    s_EnumField status;
};

} // namespace LCD::MainConfig

#endif
