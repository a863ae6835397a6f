// The camera control of a device (protocols, adjustments, AI modes, white balance, exposure) and its clean-feed
// outputs. Unless told otherwise a member comes from the attribute or child element of its name, and a list is empty
// when the file names no entry.
#ifndef LCDMAINCONFIG_FEATURE_PTZ_H
#define LCDMAINCONFIG_FEATURE_PTZ_H

#include "lcdmainconfig/common.h"

#include <string>
#include <vector>

namespace LCD::MainConfig {

/// One control protocol. Feature file, a child of Ptzs/PtzProtocols.
struct s_PtzProtocol {
    std::string protocolName; ///< UTF-8.
    int port = 0;
    std::vector<int> manufacturers; ///< The first child Manufacturer alone, so one entry at most.
};

/// The range of one camera adjustment. Feature file, a child of Ptzs/AdjustFunc.
struct s_AdjustDetail {
    /// One value given as a fraction.
    struct s_ValueInfo {
        int value = 0;
        int numerator = 0;
        int denominator = 0; ///< 0 when the file gives none.
    };

    int mode = 0; ///< Which adjustment this is.
    int min = 0;
    int max = 0;
    int step = 0;
    int defaultValue = 0; ///< Attribute "Default".
    std::vector<EnumValue> enums;
    std::vector<s_ValueInfo> values; ///< Children "Vaue", spelled so in the file.
};

/// One camera adjustment and the values that exclude it. Feature file, a child "MtualExclusion" (spelled so) of
/// Ptzs/AI/MutualExclusions.
struct s_MutualExclusion {
    int adjustDetail = 0; ///< Number of the adjustment.
    std::vector<EnumValue> enums;
};

/// Feature file, element Ptzs.
struct s_Ptzs : s_SupportInfo {
    struct s_AdjustFunc : s_BaseAttr {
        std::vector<s_AdjustDetail> details;
    };

    /// The modes of one white-balance or exposure control; the list comes from its child SupportMode.
    struct s_ControlModes : s_SupportInfo {
        std::vector<EnumValue> enums;
    };

    std::vector<s_PtzProtocol> ptzProtocols;
    s_AdjustFunc adjustFunc;
    std::vector<EnumValue> aiSupportMode;            ///< Element AI/SupportMode.
    std::vector<EnumValue> aiSupportFirm;            ///< Element AI/SupportFirm.
    std::vector<s_MutualExclusion> mutualExclusions; ///< Element AI/MutualExclusions.
    s_ControlModes whiteBalanceAuto;                 ///< Element WhiteBalance/Auto.
    s_ControlModes whiteBalanceManual;               ///< Element WhiteBalance/Manual.
    s_ControlModes whiteBalanceAperture;             ///< Element WhiteBalance/Aperture.
    s_ControlModes exposureAuto;                     ///< Element ExposureControl/Auto.
    s_ControlModes exposureManual;                   ///< Element ExposureControl/Manual.
    s_ControlModes exposureShutter;                  ///< Element ExposureControl/Shutter.
    s_ControlModes exposureAperture;                 ///< Element ExposureControl/Aperture.
};

/// One clean-feed output. Feature file, a child "CleanFeed" of CleanFeeds.
struct s_CleanFeed : s_SupportInfo {
    std::string name; ///< UTF-8.
    std::vector<EnumValue> supportFeed;
    std::vector<EnumValue> defaultFeed;
};

/// Feature file, element CleanFeeds.
struct s_CleanFeeds : s_SupportInfo {
    std::vector<s_CleanFeed> cleanFeeds;
};

} // namespace LCD::MainConfig

#endif
