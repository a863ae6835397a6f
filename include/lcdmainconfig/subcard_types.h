// What a plug-in card offers per connector type beyond its plain connector list: capacities, output displays, hot-plug
// detection, properties that follow the interface, and preset timings. Filled from the element Connectors/Types of the
// card files, where every part may be absent.
#ifndef LCDMAINCONFIG_SUBCARD_TYPES_H
#define LCDMAINCONFIG_SUBCARD_TYPES_H

#include "lcdmainconfig/common.h"

#include <vector>

namespace LCD::MainConfig {

/// The capacities that an interface type allows. Card file, element InterfaceType or Interface of a type.
struct s_InterfaceInTypes {
    int type = -1; ///< Interface type.
    std::vector<int> capacitys;
};

/// The output displays of an interface type. Card file, element OutputDisplay of a type.
struct s_OutputDisplayInTypes {
    int type = -1; ///< Interface type; attribute "Type" of the first "InterfaceType".
    std::vector<int> outputDisplays;
};

/// Hot-plug detection of one interface of a card. Card file, element HPDs/.../HPD; "Editable" is not read.
struct s_HPDIn : s_SupportInfo {
    int value = 0;
    int min = 0;
    int max = 0;
    int step = 0;
};

/// Hot-plug detection of one interface type. Card file, child of HPDs; "Editable" is not read.
struct s_HPDsInterfaceIn : s_SupportInfo {
    int type = 0; ///< Interface type; queries look at 2 alone.
    s_HPDIn hpd;
};

/// Hot-plug detection of a connector type. Card file, element HPDs of a type; of several the last one stays. "Editable"
/// is not read.
struct s_HPDsInterface : s_SupportInfo {
    std::vector<s_HPDsInterfaceIn> interfaces;
};

/// Which properties change along with which interface. Card file, element FollowProperty/Interface.
struct s_FollowPropertyInterface {
    int type = 0;                          ///< Interface type.
    s_SupportInfo followInterfaceType;     ///< Element "FollowInterfaceType".
    std::vector<int> followInterfaceTypes; ///< Its "Enum" values.
    s_SupportInfo propertys;               ///< Element "Propertys".
    std::vector<int> propertyValues;       ///< Its "Enum" values.
};

/// A resolution that a preset timing allows. Card file, element ResolutionRatios/ResolutionRatio of a capacity mode.
struct s_WorkResolution : s_SupportInfo {
    int width = 0;  ///< Pixels.
    int height = 0; ///< Lines.
    int interlaced = 0;
};

/// The preset timings of one capacity mode. Card file, element CapacityModes/CapacityMode of a work mode.
struct s_CapacityModeWk {
    int value = 0;                         ///< Capacity mode.
    s_SupportInfo refreshs;                ///< Element "Refreshs".
    std::vector<s_BaseAttr> refreshValues; ///< Refresh rates in hundredths of a hertz, cut off: 59.94 is 5994.
    s_SupportInfo resolutionRatios;        ///< Element "ResolutionRatios".
    std::vector<s_WorkResolution> resolutions;
};

/// The preset timings of one work mode. Card file, element WorkModes/WorkMode of a preset interface.
struct s_WorkMode {
    int value = 0; ///< Work mode.
    std::vector<s_CapacityModeWk> capacityModes;
};

/// The preset timings of one interface type. Card file, element PresetTiming/Interface.
struct s_PresetInterface {
    int type = 0; ///< Interface type.
    std::vector<s_WorkMode> workModes;
};

/// What a card offers for one connector type. Card file, child of Connectors/Types.
struct s_ConnectorInTypes {
    /// Card file, element FollowProperty of a type; of several the last one stays.
    struct s_FollowProperty : s_SupportInfo {
        std::vector<s_FollowPropertyInterface> interfaces;
    };

    /// Card file, element PresetTiming of a type; of several the last one stays.
    struct s_PresetTiming : s_SupportInfo {
        std::vector<s_PresetInterface> interfaces;
    };

    int type = -1;                              ///< Connector type.
    std::vector<s_InterfaceInTypes> interfaces; ///< "InterfaceType" and "Interface" children together, in file order.
    std::vector<s_OutputDisplayInTypes> outputDisplays;
    s_HPDsInterface hpds;
    s_FollowProperty followProperty;
    s_PresetTiming presetTiming;
};

} // namespace LCD::MainConfig

#endif
