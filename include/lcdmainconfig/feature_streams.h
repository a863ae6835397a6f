// What a device sends, keeps and makes itself: tally protocols, internal sources, push stream and recording. Unless
// told otherwise a member comes from the attribute or child element of its name, and a list is empty when the file
// names no entry.
#ifndef LCDMAINCONFIG_FEATURE_STREAMS_H
#define LCDMAINCONFIG_FEATURE_STREAMS_H

#include "lcdmainconfig/common.h"

#include <string>
#include <vector>

namespace LCD::MainConfig {

/// One allowed tally business value. Feature file, an "Enum" child of
/// Features/Tally/Porotocol/TslUMDV5/BusinessStatus/PGM or PVW.
struct s_TallyBusinessEnum {
    int value = 0;
    int defaultValue = 0; ///< Attribute "Default".
};

/// Feature file, element Features/Tally. Everything in it is optional.
struct s_Tally : s_SupportInfo {
    /// A setting with a value of no further type.
    struct s_Value : s_SupportInfo {
        int value = 0;
    };

    /// A setting with a start value.
    struct s_Default : s_SupportInfo {
        int defaultValue = 0; ///< Attribute "Default".
    };

    /// What one bus shows.
    struct s_Business : s_Value {
        std::vector<s_TallyBusinessEnum> businessEnums;
    };

    /// One part of a tally display.
    struct s_Display : s_Value {
        std::vector<EnumValue> enums;
    };

    /// The TSL UMD protocol, version 5.
    struct s_TslUMDV5 : s_Value {
        s_SupportInfo businessStatus;
        s_Business pgm; ///< The programme bus: element BusinessStatus/PGM.
        s_Business pvw; ///< The preview bus: element BusinessStatus/PVW.
        s_Display lh;   ///< Left-hand lamp: element LH.
        s_Display rh;   ///< Right-hand lamp: element RH.
        s_Display text;
        s_Default dle; ///< Element DLE.
    };

    /// How often the tally state is sent.
    struct s_SendInterval : s_Default {
        int step = 0;
        int min = 0;
        int max = 0;
        std::vector<EnumValue> enums; ///< Children "emum", spelled so in the file.
    };

    struct s_Protocol : s_Default {
        s_Value naya;
        s_Value tslUMDV3; ///< The TSL UMD protocol, version 3.
        s_TslUMDV5 tslUMDV5;
        s_SendInterval sendInterval;
    };

    s_EnumField sourceType;
    s_EnumField sceneType;
    s_EnumField screenType;
    s_Value sameSourceLimitCount;
    s_Protocol protocol; ///< Element Porotocol, spelled so in the file.
};

/// One source that the device makes itself. Feature file, a child "InternalSourceDetail" of InternalSource; every
/// member is an attribute.
struct s_InternalSourceDetail {
    int connectorId = 0;
    int slotId = 0;
    int testMode = 0;
    int mode = 0;
    int r = 0; ///< Red part of the colour.
    int g = 0; ///< Green part of the colour.
    int b = 0; ///< Blue part of the colour.
    int brightness = 0;
    int minSpacing = 0;
    int maxSpacing = 0;
};

/// Feature file, element InternalSource.
struct s_InternalSource : s_SupportInfo {
    std::vector<s_InternalSourceDetail> details;
};

/// One resolution of a pushed stream. Feature file, a child of Features/PushStream/TimingPreset.
struct s_ResolutioRatio {
    int width = 0;  ///< Pixels.
    int height = 0; ///< Pixels.
    int refreshRate = 0;
};

/// One quality level of a pushed stream. Feature file, a child of Features/PushStream/EncodeQuality.
struct s_Quality {
    int value = 0; ///< Quality level.
    int streamBitRate = 0;
};

/// One stream. No file describes any, so it has no content.
struct s_Stream {};

/// Feature file, element Features/PushStream.
struct s_PushStreamSetting : s_SupportInfo {
    struct s_TimingPreset : s_SupportInfo {
        std::vector<s_ResolutioRatio> resolutionRatios;
    };

    struct s_EncodeQuality : s_SupportInfo {
        int value = 0; ///< Quality level in force.
        std::vector<s_Quality> qualities;
    };

    /// No file fills it: always 0 and empty.
    struct s_StreamBlock {
        int value = 0;
        std::vector<s_Stream> streams;
    };

    s_Path pushStreamPath;
    s_TimingPreset timingPreset;
    s_EnumField angle;          ///< Flags and `enums` alone are filled.
    s_EnumField encodeFormat;   ///< Flags and `enums` alone are filled.
    s_RangeValue streamBitRate; ///< Flags, `min` and `max` alone are filled.
    s_EncodeQuality encodeQuality;
    s_StreamBlock stream;
};

/// One place where recordings may be stored. Feature file, a child of Features/Record/Paths.
struct s_RecodeStoragePathCfg {
    int type = 0;
    std::string path; ///< UTF-8.
};

/// Feature file, element Features/Record. Each number is the attribute "Value" of the child element of its name, unless
/// told otherwise; nothing checks a duration against its limits. The file names no unit for capacities and durations.
struct s_RecodeSettingCfg : s_SupportInfo {
    struct s_Paths : s_SupportInfo {
        std::vector<s_RecodeStoragePathCfg> storagePaths;
    };

    s_Paths paths;
    s_Path recordPath;
    int warnCapacity = 300;
    int closeCapacity = 10;
    int maxCount = 2;
    int timeDuration = 1; ///< May lie below `timeDurationMin`: an absent "Value" counts as 1.
    int defaultTimeDuration = 40;
    int timeDurationMin = 2;    ///< Element TimeDuration, attribute "Min".
    int timeDurationMax = 1440; ///< Element TimeDuration, attribute "Max".
};

} // namespace LCD::MainConfig

#endif
