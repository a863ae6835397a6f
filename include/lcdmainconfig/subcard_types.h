// What a plug-in card offers per connector type beyond its plain connector list: capacities, output displays, hot-plug
// detection, properties that follow the interface, and preset timings. Filled from the element Connectors/Types of the
// card files, where every part may be absent.
#ifndef LCDMAINCONFIG_SUBCARD_TYPES_H
#define LCDMAINCONFIG_SUBCARD_TYPES_H

#include "lcdmainconfig/common.h"

#include <vector>

namespace LCD::MainConfig {

/// The capacity modes that an interface type allows. Card file, element InterfaceType or Interface of a type.
struct s_InterfaceInTypes {
    int type = -1;              ///< Interface type, a key of the query. Attribute "Type"; 0 if absent.
    std::vector<int> capacitys; ///< Capacity modes to choose from: the "Enum" values of "Capacitys", in file order.
};

/// What an output of an interface type can show. Card file, element OutputDisplay of a type.
struct s_OutputDisplayInTypes {
    int type = -1; ///< Interface type of the outputs. Attribute "Type" of the first "InterfaceType"; 0 without it.
    /// Kinds of picture: 0 programme, 1 preview, 2 test pattern in the example. The "Enum" values of
    /// "InterfaceType/OutputDisplay".
    std::vector<int> outputDisplays;
};

/// Hot-plug detection (HPD) of one interface: how long the line is held low to make the source read the EDID again.
/// Card file, element HPDs/.../HPD; "Editable" is not read. The example counts milliseconds.
struct s_HPDIn : s_SupportInfo {
    int value = 0; ///< Factory length of the low pulse. Attribute "Value".
    int min = 0;   ///< Shortest low pulse that can be set. Attribute "Min".
    int max = 0;   ///< Longest low pulse that can be set. Attribute "Max".
    int step = 0;  ///< Distance between two lengths that can be set. Attribute "Step".
};

/// Hot-plug detection of one interface type. Card file, child of HPDs; "Editable" is not read.
struct s_HPDsInterfaceIn : s_SupportInfo {
    int type = 0; ///< Interface type that the entry is for; queries look at 2 alone. Attribute "Type".
    s_HPDIn hpd;  ///< The low pulse on this interface. Element "HPD".
};

/// Hot-plug detection of a connector type. Card file, element HPDs of a type; of several the last one stays. "Editable"
/// is not read.
struct s_HPDsInterface : s_SupportInfo {
    /// One entry for each interface type, in file order. A child of any tag is one.
    std::vector<s_HPDsInterfaceIn> interfaces;
};

/// Which properties of one interface type follow those of another. Card file, element FollowProperty/Interface.
struct s_FollowPropertyInterface {
    int type = 0;                      ///< Interface type that follows. Attribute "Type".
    s_SupportInfo followInterfaceType; ///< Whether an interface type can be followed. Element "FollowInterfaceType".
    /// Interface types that can be followed: the "Enum" values of "FollowInterfaceType", in file order.
    std::vector<int> followInterfaceTypes;
    s_SupportInfo propertys; ///< Whether the properties that follow can be chosen. Element "Propertys".
    /// Properties that can follow: 1 resolution, 2 refresh rate, 3 colour space in the example. The "Enum" values of
    /// "Propertys".
    std::vector<int> propertyValues;
};

/// A resolution that a preset timing allows. Card file, element ResolutionRatios/ResolutionRatio of a capacity mode.
struct s_WorkResolution : s_SupportInfo {
    int width = 0;      ///< Active width in pixels. Attribute "Width".
    int height = 0;     ///< Active height in lines. Attribute "Height".
    int interlaced = 0; ///< Scan mode: 0 progressive, 1 interlaced. Attribute "Interlaced".
};

/// The preset timings of one capacity mode. Card file, element CapacityModes/CapacityMode of a work mode.
struct s_CapacityModeWk {
    int value = 0;          ///< Capacity mode that the timings are for. Attribute "Value".
    s_SupportInfo refreshs; ///< Whether refresh rates are offered. Element "Refreshs".
    /// Refresh rates in hundredths of a hertz, cut off: 59.94 hertz in the file is 5994. Children of "Refreshs" from
    /// the first "Refresh" on.
    std::vector<s_BaseAttr> refreshValues;
    s_SupportInfo resolutionRatios; ///< Whether resolutions are offered. Element "ResolutionRatios".
    /// Resolutions in file order: the children of "ResolutionRatios" from the first "ResolutionRatio" on.
    std::vector<s_WorkResolution> resolutions;
};

/// The preset timings of one work mode. Card file, element WorkModes/WorkMode of a preset interface.
struct s_WorkMode {
    int value = 0; ///< Mode of working that the timings are for; the number is the panel's. Attribute "Value".
    /// Timings in each capacity mode, in file order; empty: there is no "CapacityModes".
    std::vector<s_CapacityModeWk> capacityModes;
};

/// The preset timings of one interface type. Card file, element PresetTiming/Interface.
struct s_PresetInterface {
    int type = 0;                      ///< Interface type that the timings are for. Attribute "Type".
    std::vector<s_WorkMode> workModes; ///< Timings in each work mode, in file order; empty: there is no "WorkModes".
};

/// What a card offers for one connector type. Card file, child of Connectors/Types.
struct s_ConnectorInTypes {
    /// Properties of interface types that follow those of others. Card file, element FollowProperty of a type; of
    /// several the last one stays.
    struct s_FollowProperty : s_SupportInfo {
        /// One entry for each interface type that follows: the children from the first "Interface" on, in file order.
        std::vector<s_FollowPropertyInterface> interfaces;
    };

    /// Timings that can be chosen without custom numbers. Card file, element PresetTiming of a type; of several the
    /// last one stays.
    struct s_PresetTiming : s_SupportInfo {
        /// One entry for each interface type: the children from the first "Interface" on, in file order.
        std::vector<s_PresetInterface> interfaces;
    };

    int type = -1; ///< Connector type, a key of the queries. Attribute "Type".
    /// Capacity modes by interface type: "InterfaceType" and "Interface" children together, in file order.
    std::vector<s_InterfaceInTypes> interfaces;
    /// What outputs can show, by interface type: the "OutputDisplay" children, in file order.
    std::vector<s_OutputDisplayInTypes> outputDisplays;
    s_HPDsInterface hpds;            ///< Hot-plug detection. Element "HPDs"; the defaults stand without it.
    s_FollowProperty followProperty; ///< Properties that follow another interface type. Element "FollowProperty".
    s_PresetTiming presetTiming;     ///< Timings that can be chosen without custom numbers. Element "PresetTiming".
};

} // namespace LCD::MainConfig

#endif
