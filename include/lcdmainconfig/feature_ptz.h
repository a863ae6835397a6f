// The camera control of a device (protocols, adjustments, AI modes, white balance, exposure) and its clean-feed
// outputs. Unless told otherwise a member comes from the attribute or child element of its name, and a list is empty
// when the file names no entry.
#ifndef LCDMAINCONFIG_FEATURE_PTZ_H
#define LCDMAINCONFIG_FEATURE_PTZ_H

#include "lcdmainconfig/common.h"

#include <string>
#include <vector>

namespace LCD::MainConfig {

/// One control protocol. Feature file, a child of Ptzs/PtzProtocols from the first "PtzProtocol" on.
struct s_PtzProtocol {
    /// Name of the protocol, UTF-8, such as "VISCA over IP"; empty: the file names none. Attribute "ProtocolName".
    std::string protocolName;
    int port = 0; ///< Network port of the camera that the protocol uses. Attribute "Port"; 0 if absent.
    /// Makers of cameras that speak the protocol, by the panel's numbers: the first child "Manufacturer" alone, so one
    /// entry at most.
    std::vector<int> manufacturers;
};

/// The range of one camera adjustment. Feature file, a child of Ptzs/AdjustFunc from the first "AdjustDetail" on.
struct s_AdjustDetail {
    /// One value that stands for a fraction, such as a shutter time of 1/50 second. Feature file, element Vaue of an
    /// "AdjustDetail".
    struct s_ValueInfo {
        int value = 0;       ///< Number under which the fraction is set. Attribute "Value".
        int numerator = 0;   ///< Upper part of the fraction. Attribute "Numerator".
        int denominator = 0; ///< Lower part of the fraction; 0: the file gives none. Attribute "Denominator".
    };

    /// Which adjustment this is: 1 pan and tilt speed, 2 zoom speed, 3 focus mode, 4 shutter time in the example.
    /// Attribute "Mode".
    int mode = 0;
    int min = 0;          ///< Smallest value that can be set. Attribute "Min".
    int max = 0;          ///< Largest value that can be set. Attribute "Max".
    int step = 0;         ///< Distance between two values that can be set. Attribute "Step".
    int defaultValue = 0; ///< Value that the adjustment starts with. Attribute "Default".
    /// Values to choose from, where the adjustment is a list of numbers; empty: it is none. Children "Enum".
    std::vector<EnumValue> enums;
    /// Values to choose from, where the adjustment is a list of fractions; empty: it is none. Children "Vaue", spelled
    /// so in the file.
    std::vector<s_ValueInfo> values;
};

/// One camera adjustment and the AI modes that exclude it. Feature file, a child of Ptzs/AI/MutualExclusions from the
/// first "MtualExclusion" (spelled so) on.
struct s_MutualExclusion {
    int adjustDetail = 0;         ///< The adjustment that is excluded, by its mode. Attribute "AdjustDetail".
    std::vector<EnumValue> enums; ///< AI modes during which it can't be set: the "Enum" children.
};

/// Control of pan-tilt-zoom cameras. Feature file, element Ptzs.
struct s_Ptzs : s_SupportInfo {
    /// What can be adjusted at a camera. Feature file, element Ptzs/AdjustFunc.
    struct s_AdjustFunc : s_BaseAttr {
        std::vector<s_AdjustDetail> details; ///< Adjustments in file order; empty: the file names none.
    };

    /// The modes of one white-balance or exposure control. Feature file, elements of Ptzs/WhiteBalance and
    /// Ptzs/ExposureControl.
    struct s_ControlModes : s_SupportInfo {
        /// Modes of the camera that the control covers, by the panel's numbers: the list of "SupportMode"; empty: none
        /// is given.
        std::vector<EnumValue> enums;
    };

    /// Protocols that cameras can be reached by, in file order. Element "PtzProtocols".
    std::vector<s_PtzProtocol> ptzProtocols;
    s_AdjustFunc adjustFunc; ///< What can be adjusted at a camera. Element "AdjustFunc".
    /// AI modes, such as following a person; the numbers are the panel's. Element "AI/SupportMode".
    std::vector<EnumValue> aiSupportMode;
    /// Makers of cameras that have AI modes, by the panel's numbers. Element "AI/SupportFirm".
    std::vector<EnumValue> aiSupportFirm;
    /// Adjustments that AI modes exclude. Element "AI/MutualExclusions".
    std::vector<s_MutualExclusion> mutualExclusions;
    s_ControlModes whiteBalanceAuto;   ///< Automatic white balance. Element "WhiteBalance/Auto".
    s_ControlModes whiteBalanceManual; ///< White balance set by hand. Element "WhiteBalance/Manual".
    /// Aperture control that belongs to the white balance. Element "WhiteBalance/Aperture".
    s_ControlModes whiteBalanceAperture;
    s_ControlModes exposureAuto;   ///< Automatic exposure. Element "ExposureControl/Auto".
    s_ControlModes exposureManual; ///< Exposure set by hand. Element "ExposureControl/Manual".
    /// Exposure with the shutter time given (shutter priority). Element "ExposureControl/Shutter".
    s_ControlModes exposureShutter;
    /// Exposure with the aperture given (aperture priority). Element "ExposureControl/Aperture".
    s_ControlModes exposureAperture;
};

/// One clean-feed output: a picture without what the panel lays over it. Feature file, a child "CleanFeed" of
/// CleanFeeds.
struct s_CleanFeed : s_SupportInfo {
    std::string name; ///< What the output is called, UTF-8; empty: the file names none. Attribute "Name".
    /// What the output can carry: 1 programme, 2 preview, 3 programme without overlays in the example. Element
    /// "SupportFeed".
    std::vector<EnumValue> supportFeed;
    /// What the output carries at first, in the same numbers. Element "DefaultFeed".
    std::vector<EnumValue> defaultFeed;
};

/// The clean-feed outputs. Feature file, element CleanFeeds.
struct s_CleanFeeds : s_SupportInfo {
    std::vector<s_CleanFeed> cleanFeeds; ///< Outputs in file order; empty: the device has none.
};

} // namespace LCD::MainConfig

#endif
