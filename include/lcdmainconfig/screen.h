// What one screen type of a device offers: its device modes with their templates and layer types, and its features. One
// record for each screen file. Elements below are named relative to "Device/Screens/Screen" of that file. Numbers
// without a stated meaning are stored and handed out; what they mean is the panel's business.
#ifndef LCDMAINCONFIG_SCREEN_H
#define LCDMAINCONFIG_SCREEN_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/feature_effects.h"
#include "lcdmainconfig/feature_functions.h"

#include <string>
#include <vector>

namespace LCD::MainConfig {

/// One cell of a layout, tied to an output connector: an element of a layout in "Templetes".
struct s_Cell {
    int x = 0;              ///< Attribute "X", pixels.
    int y = 0;              ///< Attribute "Y", pixels.
    int width = 0;          ///< Attribute "Width", pixels.
    int height = 0;         ///< Attribute "Height", pixels.
    int row = 0;            ///< Attribute "Row" of the grid.
    int column = 0;         ///< Attribute "Column" of the grid.
    int slotIndex = 0;      ///< Attribute "SlotIndex": the slot of the output card.
    int connectorIndex = 0; ///< Attribute "ConnectorIndex": the connector on that card.
};

/// How a physical screen is cut into a grid: an element of "Layouts" in a template.
struct s_Layout {
    int rows = 0;     ///< Attribute "Rows".
    int columns = 0;  ///< Attribute "Columns".
    int screenId = 0; ///< Attribute "ScreenId".
    std::vector<s_Cell> cells;
};

/// One screen template: an element of "DeviceModes/DeviceMode/Templetes". The spelling is meant. In the four members of
/// "PhysicalSize", `value` repeats the attribute "Support", as is meant; an attribute "Value" is not looked at.
struct s_Templete {
    int id = 0;                    ///< No file sets it.
    s_Name name;                   ///< Element "Name", attributes "en" and "zh_CN".
    std::vector<s_Layout> layouts; ///< Element "Layouts".
    s_RangeValue dotPitch;         ///< Element "PhysicalSize/DotPitch": distance of two dots.
    s_EnumField unit;              ///< Element "PhysicalSize/Unit": the units of length to choose from.
    s_RangeValue width;            ///< Element "PhysicalSize/Width".
    s_RangeValue height;           ///< Element "PhysicalSize/Height".
};

/// A layer type that may be opened on the screen: an element of "DeviceModes/DeviceMode/LayerTypes".
struct s_LayerType {
    int layerType = 0;       ///< Attribute "Value": the `type` of a layer record.
    int layerCountMax = 0;   ///< Element "LayerCount", attribute "Max"; 0 without the element.
    int layerCountValid = 0; ///< Element "LayerCount", attribute "Valid"; 0 without the element.
    s_EnumField unit;        ///< Element "Unit"; "Support" and "Editable" are not read.
};

/// The screen in one device mode: an element of "DeviceModes".
struct s_ScreenDeviceMode {
    int value = 0;                       ///< Attribute "Value": the key of the mode; the first match wins.
    int pvwSupport = 0;                  ///< Element "PVW", attribute "Support"; non-zero: the mode has a preview.
    int pvwSoftImp = 0;                  ///< Element "PVW", attribute "SoftImp"; never interpreted here.
    int templetesValue = 0;              ///< Element "Templetes", attribute "Value".
    std::vector<s_Templete> templetes;   ///< Children of "Templetes", in file order.
    std::vector<s_LayerType> layerTypes; ///< Children of "LayerTypes", in file order.
};

/// A mosaic of outputs. Files may carry the element "Features/Mosaic", but nothing of it is kept: the record stands
/// with its defaults, whatever a file says, as is meant. The groups follow the element's vocabulary.
struct s_Mosaic : s_SupportInfo {
    struct s_Window : s_SupportInfo {
        s_RangeValue width;
        s_RangeValue height;
        s_RangeValue x;
        s_RangeValue y;
    };

    struct s_RefOutputPara : s_SupportInfo {
        int customBuild = 0;
        int customDelete = 0;
    };

    struct s_ColorDepths : s_SupportInfo {
        s_EnumField actualColorDepth;
        s_EnumField presetColorDepth;
    };

    struct s_ColorSpaces : s_SupportInfo {
        s_EnumField actualColorSpace;
        s_EnumField presetColorSpace;
    };

    struct s_ColorRanges : s_SupportInfo {
        s_EnumField actualColorRange;
        s_EnumField presetColorRange;
    };

    /// One direction of a timing.
    struct s_Scan : s_SupportInfo {
        s_RangeValue addTime;
        s_RangeValue frontPorch;
        s_RangeValue sync;
        s_EnumField syncPolarity;
        s_RangeValue totalTime;
    };

    struct s_Timing : s_SupportInfo {
        s_EnumField interlaced;
        s_RangeValue refresh;
        s_Scan horizontal;
        s_Scan vertical;
    };

    /// Blending at the seams of the mosaic.
    struct s_Feather : s_SupportInfo {
        s_EnumField enable;
        s_EnumField type;
        s_RangeValue gamma;
        s_RangeValue width;
    };

    s_EnumField type;
    s_Window window;
    s_RefOutputPara refOutputPara;
    s_ColorDepths colorDepths;
    s_ColorSpaces colorSpaces;
    s_ColorRanges colorRanges;
    s_EnumField formatMapping;
    s_Timing timing;
    s_Feather feather;
};

/// Test picture of a screen: element "Features/TestPattern". Each element of it is optional.
struct s_TestPattern {
    s_SupportInfo info;
    s_EnumField enable;
    s_EnumField type;
    s_EnumField bright;
    s_EnumField supportZero;    ///< Element "SupportZero".
    s_EnumField gridGear;       ///< Element "GridGear".
    s_RangeValue gridPixel;     ///< Element "GridPixel", pixels; the only one whose "Coefficient" is read.
    s_EnumField gridType;       ///< Element "GridType".
    s_RangeValue gridLineWidth; ///< Element "GridLineWidth", pixels.
    s_EnumField speed;          ///< Element "Speed": of a moving pattern.
};

/// One output frame rate: an element of "Features/SenderGenLock/InternalFrameRateForm".
struct s_OutputFramerate {
    int value = 0; ///< Attribute "Value": the rate.
};

/// The output frame rates of a screen: element "Features/SenderGenLock".
struct s_SenderGenLock : s_SupportInfo {
    int internalFrameRate = 0;                            ///< Element "InternalFrameRate", attribute "Value".
    int internalFrameRateCoefficient = 0;                 ///< Element "InternalFrameRate", attribute "Coefficient".
    std::vector<s_OutputFramerate> internalFrameRateForm; ///< Rates on offer, in file order.
};

/// Three-dimensional display: the emitter's delay, element "Features/ThreeD/EmitterDelay".
struct s_ThreeD {
    int min = 0;
    int max = 0;
    int value = 0;
    int step = 0;
};

/// What a screen type can do: element "Features" of the screen file.
struct s_Features {
    /// Naming of a screen. Files may carry "General", but nothing of it is kept, as is meant.
    struct s_ScreenGeneral : s_SupportInfo {
        struct s_PrefixedText : s_TextValue {
            std::string prefix;
        };

        s_PrefixedText name;
        s_TextValue nameGB2312;
    };

    /// Element "BackgroundColor".
    struct s_BackgroundColor : s_SupportInfo {
        s_RangeValue r;
        s_RangeValue g;
        s_RangeValue b;
    };

    /// Place in the canvas. A present element "Layout" leaves the defaults; an absent one makes both flags 0. This
    /// inversion is meant.
    struct s_ScreenLayout : s_SupportInfo {
        s_RangeValue x;
        s_RangeValue y;
    };

    /// No file fills it.
    struct s_ImageQuality : s_SupportInfo {
        struct s_ColorGroup : s_SupportInfo {
            s_RangeValue r;
            s_RangeValue g;
            s_RangeValue b;
        };

        s_ColorGroup contrast;
        s_ColorGroup brightness;
        s_RangeValue hue;
        s_RangeValue saturation;
        s_RangeValue gamma;
    };

    /// Fade to black: element "FTB".
    struct s_FTB : s_SupportInfo {
        /// Element "Enable": the list alone. It also takes the "Value" of each element that follows "Enable", so that
        /// "Time" adds its own; this is meant.
        s_EnumField enable;
        s_RangeValue time; ///< Element "Time".
    };

    /// No file fills it.
    struct s_Tbar : s_SupportInfo {
        s_EnumField enable;
        s_RangeValue position;
    };

    /// No file fills it.
    struct s_ScreenHDR : s_HDRInfo {
        s_EnumField dynamicRange;
        s_RangeValue brightness;
    };

    /// Element "Audio", the flags, and its child "Volume", the rest. Without "Audio" all six
    /// members are -1, but `value` is 50; without "Volume" the last four are. The defaults below stand only where the
    /// file has no "Features".
    struct s_ScreenAudio {
        int support = 0;
        int editable = -1;
        int min = 0;
        int max = 255;
        int step = 0;
        int value = 0;
    };

    s_ScreenGeneral general;
    s_Mosaic mosaic;
    s_BackgroundColor backgroundColor;
    s_ScreenLayout layout;
    s_EnumField pgmEdit;  ///< Element "PGMEdit": editing of the programme picture.
    s_EnumField selected; ///< Element "Selected".
    s_ImageQuality imageQuality;
    int imageQualityFlag = 1; ///< No file sets it.
    s_EnumField freeze;       ///< Element "Freeze".
    s_FTB ftb;
    s_TestPattern testPattern;
    s_SwitchEffect switchEffect; ///< Element "SwitchEffect": only `type.enums` is filled from the screen file.
    s_Tbar tbar;
    s_ScreenHDR hdr;
    s_Genlock genlock; ///< Element "Genlock": its flags, and "ConnectorTypes" into `type.enums`; no other member.
    s_SenderGenLock senderGenLock;
    s_ScreenAudio audio;
    s_ThreeD threeD;
};

/// One screen type of a device: one screen file, its first "Screen".
struct s_Screen : s_SupportInfo {
    int type = 0;               ///< Attribute "Type": the key by which queries find the screen; the first match wins.
    int spliceMode = 0;         ///< Attribute "SpliceMode".
    int incompleteSplicing = 0; ///< Attribute "IncompleteSplicing".
    int customBuild = 0;        ///< Attribute "CustomBuild".
    int customDelete = 0;       ///< Attribute "CustomDelete".
    int limitNum = 0;           ///< Attribute "LimitNum".
    s_SupportInfo deviceModesInfo;               ///< Element "DeviceModes": its own flags.
    std::vector<s_ScreenDeviceMode> deviceModes; ///< Children of "DeviceModes", in file order.
    s_Features features;
};

/// A screen type in the device's list.
struct s_DCSScreen : s_Screen {};

/// A screen type as the search by type hands it out.
struct s_Screens : s_Screen {};

} // namespace LCD::MainConfig

#endif
