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
    int value = 0; ///< State that the bus can report; the number is the panel's. Attribute "Value".
    /// Lamp that the state lights from the factory; the number is the panel's. Attribute "Default".
    int defaultValue = 0;
};

/// Tally: lamps and displays that show which source is on air. Feature file, element Features/Tally; everything in it
/// is optional.
struct s_Tally : s_SupportInfo {
    /// A part of the tally with a plain number. Feature file, elements of Features/Tally.
    struct s_Value : s_SupportInfo {
        /// Factory value: a count, the number of a protocol, or what a bus or a lamp starts with. Attribute "Value".
        int value = 0;
    };

    /// A part of the tally with a start value. Feature file, elements of Features/Tally/Porotocol.
    struct s_Default : s_SupportInfo {
        /// Value from the factory: of the protocols the number of the one in use. Attribute "Default".
        int defaultValue = 0;
    };

    /// What one bus, programme or preview, reports. Feature file, children of BusinessStatus of TslUMDV5.
    struct s_Business : s_Value {
        /// States that the bus can report, in file order: the "Enum" children; empty: none is listed.
        std::vector<s_TallyBusinessEnum> businessEnums;
    };

    /// One part of a tally display. Feature file, elements LH, RH and Text of TslUMDV5.
    struct s_Display : s_Value {
        /// Colours or states of the part, by the panel's numbers: the "Enum" children; empty: none is listed.
        std::vector<EnumValue> enums;
    };

    /// The TSL UMD protocol, version 5. Feature file, element Features/Tally/Porotocol/TslUMDV5.
    struct s_TslUMDV5 : s_Value {
        s_SupportInfo businessStatus; ///< Whether the states of the buses are sent. Element "BusinessStatus".
        s_Business pgm;               ///< Programme bus: what is on air. Element "BusinessStatus/PGM".
        s_Business pvw;               ///< Preview bus: what comes next. Element "BusinessStatus/PVW".
        s_Display lh;                 ///< Left-hand lamp. Element "LH".
        s_Display rh;                 ///< Right-hand lamp. Element "RH".
        s_Display text;               ///< Lamp behind the text. Element "Text".
        s_Default dle;                ///< Framing of the messages with DLE and STX bytes. Element "DLE".
    };

    /// How often the tally state is sent, in milliseconds in the example. Feature file, element
    /// Features/Tally/Porotocol/SendInterval.
    struct s_SendInterval : s_Default {
        int step = 0; ///< Distance between two intervals that can be set. Attribute "Step".
        int min = 0;  ///< Shortest interval that can be set. Attribute "Min".
        int max = 0;  ///< Longest interval that can be set. Attribute "Max".
        /// Intervals to choose from: the children "emum", spelled so in the file; empty: none is listed.
        std::vector<EnumValue> enums;
    };

    /// Protocols by which the tally is sent. Feature file, element Features/Tally/Porotocol, spelled so in the file.
    struct s_Protocol : s_Default {
        s_Value naya;                ///< Protocol of that name; `value` is its number. Element "Naya".
        s_Value tslUMDV3;            ///< TSL UMD protocol, version 3; `value` is its number. Element "TslUMDV3".
        s_TslUMDV5 tslUMDV5;         ///< TSL UMD protocol, version 5; `value` is its number. Element "TslUMDV5".
        s_SendInterval sendInterval; ///< How often the tally state is sent. Element "SendInterval".
    };

    /// Source types that can be given a tally; the numbers are the panel's. Element "SourceType".
    s_EnumField sourceType;
    /// Kinds of scene that can be given a tally; the numbers are the panel's. Element "SceneType".
    s_EnumField sceneType;
    /// Screen types whose pictures count as on air, by the types of the screen files. Element "ScreenType".
    s_EnumField screenType;
    s_Value sameSourceLimitCount; ///< How many tallies one source may have. Element "SameSourceLimitCount".
    s_Protocol protocol; ///< Protocols by which the tally is sent. Element "Porotocol", spelled so in the file.
};

/// One source that the device makes itself, such as a colour or a test pattern. Feature file, a child
/// "InternalSourceDetail" of InternalSource. An absent attribute reads as 0.
struct s_InternalSourceDetail {
    int connectorId = 0; ///< Connector number under which the source is chosen. Attribute "ConnectorId".
    int slotId = 0;      ///< Slot number under which the source is chosen. Attribute "SlotId".
    int testMode = 0;    ///< Which test pattern the source shows; the number is the panel's. Attribute "TestMode".
    int mode = 0;        ///< Variant of the source; the number is the panel's. Attribute "Mode".
    int r = 0;           ///< Red part of the colour. Attribute "R".
    int g = 0;           ///< Green part of the colour. Attribute "G".
    int b = 0;           ///< Blue part of the colour. Attribute "B".
    int brightness = 0;  ///< Brightness of the picture. Attribute "Brightness".
    int minSpacing = 0;  ///< Smallest distance between the lines of the pattern. Attribute "MinSpacing".
    int maxSpacing = 0;  ///< Largest distance between the lines of the pattern. Attribute "MaxSpacing".
};

/// The sources that the device makes itself. Feature file, element InternalSource.
struct s_InternalSource : s_SupportInfo {
    std::vector<s_InternalSourceDetail> details; ///< Sources in file order; empty: the device makes none.
};

/// One resolution of a pushed stream. Feature file, a child of Features/PushStream/TimingPreset.
struct s_ResolutioRatio {
    int width = 0;       ///< Width in pixels. Attribute "Width".
    int height = 0;      ///< Height in pixels. Attribute "Height".
    int refreshRate = 0; ///< Frame rate, in hertz in the example. Attribute "RefreshRate".
};

/// One quality level of a pushed stream. Feature file, a child of Features/PushStream/EncodeQuality.
struct s_Quality {
    int value = 0;         ///< Number of the quality level. Attribute "Value".
    int streamBitRate = 0; ///< Bit rate of that level, in kbit/s in the example. Attribute "StreamBitRate".
};

/// One stream. No file describes any, so it has no content.
struct s_Stream {};

/// Pushing of streams to a network server. Feature file, element Features/PushStream.
struct s_PushStreamSetting : s_SupportInfo {
    /// Resolutions that can be pushed. Feature file, element Features/PushStream/TimingPreset.
    struct s_TimingPreset : s_SupportInfo {
        /// Resolutions in file order: the children from the first "ResolutionRatio" on; empty: none is listed.
        std::vector<s_ResolutioRatio> resolutionRatios;
    };

    /// Quality levels of the encoder. Feature file, element Features/PushStream/EncodeQuality.
    struct s_EncodeQuality : s_SupportInfo {
        int value = 0; ///< Quality level from the factory. Attribute "Value"; 1 if absent.
        /// Levels in file order: the children from the first "Quality" on; empty: none is listed.
        std::vector<s_Quality> qualities;
    };

    /// No file fills it: always 0 and empty.
    struct s_StreamBlock {
        int value = 0;                 ///< Number of no known meaning; always 0.
        std::vector<s_Stream> streams; ///< Streams that are being pushed; always empty.
    };

    s_Path pushStreamPath;       ///< Folder of the streams. Element "PushStreamPath".
    s_TimingPreset timingPreset; ///< Resolutions that can be pushed. Element "TimingPreset".
    /// Turn of the picture, in degrees in the example; flags and `enums` alone are filled. Element "Angle".
    s_EnumField angle;
    /// Video coding: 0 H.264, 1 H.265 in the example; flags and `enums` alone are filled. Element "EncodeFormat".
    s_EnumField encodeFormat;
    /// Limits of the bit rate, in kbit/s in the example; flags, `min` and `max` alone are filled. Element
    /// "StreamBitRate".
    s_RangeValue streamBitRate;
    s_EncodeQuality encodeQuality; ///< Quality levels and their bit rates. Element "EncodeQuality".
    s_StreamBlock stream;          ///< Room in the record that no file fills.
};

/// One place where recordings may be stored. Feature file, a child of Features/Record/Paths.
struct s_RecodeStoragePathCfg {
    int type = 0;     ///< Kind of drive: 1 internal, 2 USB in the example. Attribute "Type".
    std::string path; ///< Folder on that drive, UTF-8; empty: the file names none. Attribute "Path".
};

/// Recording. Feature file, element Features/Record. Each number is the attribute "Value" of the child element named,
/// unless told otherwise; nothing checks a duration against its limits. The file names no unit: the example's
/// capacities are in megabytes and its durations in minutes.
struct s_RecodeSettingCfg : s_SupportInfo {
    /// Places where recordings may be stored. Feature file, element Features/Record/Paths.
    struct s_Paths : s_SupportInfo {
        /// Places in file order: the children from the first "Path" on; empty: none is listed.
        std::vector<s_RecodeStoragePathCfg> storagePaths;
    };

    s_Paths paths;          ///< Places where recordings may be stored. Element "Paths".
    s_Path recordPath;      ///< Folder of the recordings. Element "RecordPath".
    int warnCapacity = 300; ///< Free space below which the user is warned, 300 if absent. Element "WarnCapacity".
    int closeCapacity = 10; ///< Free space below which recording stops, 10 if absent. Element "CloseCapacity".
    /// Most recordings, 2 if absent; whether at a time or in all is the panel's matter. Element "MaxCount".
    int maxCount = 2;
    /// Duration of a recording; 1 if absent, which may lie below `timeDurationMin`. Element "TimeDuration".
    int timeDuration = 1;
    /// Duration that a new recording starts with, 40 if absent. Element "DefaultTimeDuration".
    int defaultTimeDuration = 40;
    int timeDurationMin = 2; ///< Shortest duration that can be set, 2 if absent. Attribute "Min" of "TimeDuration".
    /// Longest duration that can be set, 1440 if absent. Attribute "Max" of "TimeDuration".
    int timeDurationMax = 1440;
};

} // namespace LCD::MainConfig

#endif
