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

/// One cell of a layout: a part of the picture, and the output connector that shows it. Screen file, a child of a
/// layout.
struct s_Cell {
    int x = 0;              ///< Left edge in the picture, in pixels. Attribute "X".
    int y = 0;              ///< Upper edge in the picture, in pixels. Attribute "Y".
    int width = 0;          ///< Width in pixels. Attribute "Width".
    int height = 0;         ///< Height in pixels. Attribute "Height".
    int row = 0;            ///< Row of the grid that the cell stands in, from 0 in the example. Attribute "Row".
    int column = 0;         ///< Column of the grid that the cell stands in, from 0 in the example. Attribute "Column".
    int slotIndex = 0;      ///< Slot of the output card that feeds the cell. Attribute "SlotIndex".
    int connectorIndex = 0; ///< Connector on that card, by its position. Attribute "ConnectorIndex".
};

/// How a physical screen is cut into a grid. Screen file, a child of "Layouts" of a template.
struct s_Layout {
    int rows = 0;     ///< Rows of the grid. Attribute "Rows".
    int columns = 0;  ///< Columns of the grid. Attribute "Columns".
    int screenId = 0; ///< Identifier of the screen that is cut; the number is the panel's. Attribute "ScreenId".
    std::vector<s_Cell> cells; ///< Cells in file order; empty: the file names none.
};

/// One screen template. Screen file, a child of DeviceModes/DeviceMode/Templetes; the spelling is meant. In the four
/// members of "PhysicalSize", `value` repeats the attribute "Support", as is meant; an attribute "Value" is not looked
/// at.
struct s_Templete {
    int id = 0;  ///< Room in the record that no file fills; always 0.
    s_Name name; ///< What the template is called. Attributes "en" and "zh_CN" of element "Name".
    /// Grids that the template consists of, in file order: the children of "Layouts"; empty: there are none.
    std::vector<s_Layout> layouts;
    /// Distance between two dots of the screen, in thousandths of a millimetre in the example. Element
    /// "PhysicalSize/DotPitch".
    s_RangeValue dotPitch;
    /// Units of length to choose from: 0 millimetre, 1 centimetre, 2 inch in the example. Element "PhysicalSize/Unit".
    s_EnumField unit;
    s_RangeValue width;  ///< Width of the physical screen, in the chosen unit. Element "PhysicalSize/Width".
    s_RangeValue height; ///< Height of the physical screen, in the chosen unit. Element "PhysicalSize/Height".
};

/// A layer type that may be opened on the screen. Screen file, a child of DeviceModes/DeviceMode/LayerTypes.
struct s_LayerType {
    int layerType = 0; ///< Number of the layer type, as the layer file gives it. Attribute "Value".
    /// Most layers of the type on the screen; 0: there is no "LayerCount". Attribute "Max" of "LayerCount"; 1 if
    /// absent.
    int layerCountMax = 0;
    /// How many of these can be in use at a time; 0: there is no "LayerCount". Attribute "Valid" of "LayerCount"; 1 if
    /// absent.
    int layerCountValid = 0;
    /// Units of measure for layers of the type; the numbers are the panel's. "Support" and "Editable" are not read.
    /// Element "Unit".
    s_EnumField unit;
};

/// The screen in one device mode. Screen file, a child of DeviceModes.
struct s_ScreenDeviceMode {
    int value = 0; ///< Device mode, the key of the queries; the first match wins. Attribute "Value".
    /// Non-zero: the mode has a preview; 0: there is no "PVW". Attribute "Support" of "PVW"; 1 if absent.
    int pvwSupport = 0;
    /// Non-zero: the preview is made by software; never interpreted here. Attribute "SoftImp" of "PVW"; 1 if absent.
    int pvwSoftImp = 0;
    /// The panel's number for the templates as a whole; 0: there is no "Templetes". Attribute "Value" of "Templetes"; 1
    /// if absent.
    int templetesValue = 0;
    /// Templates that the screen can be built from, in file order: the children of "Templetes".
    std::vector<s_Templete> templetes;
    /// Layer types that may be opened, with their counts, in file order: the children of "LayerTypes".
    std::vector<s_LayerType> layerTypes;
};

/// A mosaic of outputs: several of them as one picture. Files may carry the element "Features/Mosaic", but nothing of
/// it is kept: the record stands with its defaults, whatever a file says, as is meant. The groups follow the element's
/// vocabulary.
struct s_Mosaic : s_SupportInfo {
    /// Size and place of the mosaic; not kept from any file.
    struct s_Window : s_SupportInfo {
        s_RangeValue width;  ///< Width in pixels.
        s_RangeValue height; ///< Height in pixels.
        s_RangeValue x;      ///< Left edge in pixels.
        s_RangeValue y;      ///< Upper edge in pixels.
    };

    /// The outputs that the mosaic refers to; not kept from any file.
    struct s_RefOutputPara : s_SupportInfo {
        int customBuild = 0;  ///< Non-zero: the user may add outputs.
        int customDelete = 0; ///< Non-zero: the user may take outputs away.
    };

    /// Bits per colour component, as they are and as they are preset; not kept from any file.
    struct s_ColorDepths : s_SupportInfo {
        s_EnumField actualColorDepth; ///< Colour depth that is sent.
        s_EnumField presetColorDepth; ///< Colour depth that was asked for.
    };

    /// Colour encoding, as it is and as it is preset; not kept from any file.
    struct s_ColorSpaces : s_SupportInfo {
        s_EnumField actualColorSpace; ///< Colour space that is sent.
        s_EnumField presetColorSpace; ///< Colour space that was asked for.
    };

    /// Quantisation range, as it is and as it is preset; not kept from any file.
    struct s_ColorRanges : s_SupportInfo {
        s_EnumField actualColorRange; ///< Colour range that is sent.
        s_EnumField presetColorRange; ///< Colour range that was asked for.
    };

    /// One direction of a timing: pixels of a line where it is horizontal, lines of a frame where it is vertical; not
    /// kept from any file.
    struct s_Scan : s_SupportInfo {
        s_RangeValue addTime;     ///< Active part: what is seen of the picture.
        s_RangeValue frontPorch;  ///< Front porch: blanking between the active part and the sync pulse.
        s_RangeValue sync;        ///< Length of the sync pulse.
        s_EnumField syncPolarity; ///< Polarity of the sync pulse, negative or positive.
        s_RangeValue totalTime;   ///< Whole line or frame: active part, front porch, sync and back porch.
    };

    /// Timing of the outputs; not kept from any file.
    struct s_Timing : s_SupportInfo {
        s_EnumField interlaced; ///< Scan mode, progressive or interlaced.
        s_RangeValue refresh;   ///< Refresh rate.
        s_Scan horizontal;      ///< Timing of a line, in pixels.
        s_Scan vertical;        ///< Timing of a frame, in lines.
    };

    /// Blending at the seams of the mosaic; not kept from any file.
    struct s_Feather : s_SupportInfo {
        s_EnumField enable; ///< Switches the blending on and off.
        s_EnumField type;   ///< Shape of the blending.
        s_RangeValue gamma; ///< Exponent of the blending curve.
        s_RangeValue width; ///< Width of the seam in pixels.
    };

    s_EnumField type;              ///< Kinds of mosaic.
    s_Window window;               ///< Size and place of the mosaic.
    s_RefOutputPara refOutputPara; ///< Whether the user may build and delete reference outputs.
    s_ColorDepths colorDepths;     ///< Bits per colour component of the outputs.
    s_ColorSpaces colorSpaces;     ///< Colour encoding of the outputs.
    s_ColorRanges colorRanges;     ///< Quantisation range of the outputs.
    s_EnumField formatMapping;     ///< How a picture on several links is put together.
    s_Timing timing;               ///< Scan mode, refresh rate and timing of the outputs.
    s_Feather feather;             ///< Blending where two outputs overlap.
};

/// Test picture of a screen. Screen file, element Features/TestPattern. Each element of it is optional.
struct s_TestPattern {
    s_SupportInfo info; ///< Whether the screen has a test picture. The element's own flags.
    s_EnumField enable; ///< Switches the test picture on and off. Element "Enable".
    /// Which picture is shown: 0 colour bars, 1 grid, 2 ramp, 3 moving line in the example. Element "Type".
    s_EnumField type;
    s_EnumField bright; ///< Brightness of the picture, in percent in the example. Element "Bright".
    /// Whether a brightness of zero can be set; the numbers are the panel's. Element "SupportZero".
    s_EnumField supportZero;
    s_EnumField gridGear; ///< Steps of the grid's fineness; the numbers are the panel's. Element "GridGear".
    /// Distance between the lines of the grid in pixels; the only one whose "Coefficient" is read, 0 if absent. Element
    /// "GridPixel".
    s_RangeValue gridPixel;
    s_EnumField gridType;       ///< Looks of the grid; the numbers are the panel's. Element "GridType".
    s_RangeValue gridLineWidth; ///< Thickness of the lines of the grid in pixels. Element "GridLineWidth".
    s_EnumField speed;          ///< How fast a moving picture moves; the numbers are the panel's. Element "Speed".
};

/// One output frame rate. Screen file, a child of Features/SenderGenLock/InternalFrameRateForm.
struct s_OutputFramerate {
    int value = 0; ///< Frame rate, in hundredths of a hertz in the example. Attribute "Value".
};

/// The output frame rates of a screen that follows the device's own clock. Screen file, element Features/SenderGenLock.
struct s_SenderGenLock : s_SupportInfo {
    /// Frame rate from the factory, in hundredths of a hertz in the example. Attribute "Value" of "InternalFrameRate".
    int internalFrameRate = 0;
    /// Divisor from the stored rates to hertz, 100 in the example. Attribute "Coefficient" of "InternalFrameRate".
    int internalFrameRateCoefficient = 0;
    /// Frame rates to choose from, in file order; empty: the file lists none. Element "InternalFrameRateForm".
    std::vector<s_OutputFramerate> internalFrameRateForm;
};

/// Three-dimensional display: the delay of the emitter that drives the glasses, in microseconds in the example. Screen
/// file, element Features/ThreeD/EmitterDelay. All 0 without it.
struct s_ThreeD {
    int min = 0;   ///< Shortest delay that can be set. Attribute "Min".
    int max = 0;   ///< Longest delay that can be set. Attribute "Max".
    int value = 0; ///< Delay from the factory. Attribute "Value".
    int step = 0;  ///< Distance between two delays that can be set. Attribute "Step".
};

/// What a screen type can do. Screen file, element Features.
struct s_Features {
    /// Naming of a screen. Files may carry "General", but nothing of it is kept, as is meant.
    struct s_ScreenGeneral : s_SupportInfo {
        /// A text that numbers are put behind; not kept from any file.
        struct s_PrefixedText : s_TextValue {
            std::string prefix; ///< Text that the names of new screens start with, UTF-8; always empty.
        };

        s_PrefixedText name;    ///< Name that a new screen gets.
        s_TextValue nameGB2312; ///< The same for a name encoded in GB 2312.
    };

    /// Colour where no layer lies. Screen file, element Features/BackgroundColor.
    struct s_BackgroundColor : s_SupportInfo {
        s_RangeValue r; ///< Red part of the colour. Optional element "R".
        s_RangeValue g; ///< Green part of the colour. Optional element "G".
        s_RangeValue b; ///< Blue part of the colour. Optional element "B".
    };

    /// Place of the screen in the canvas. Screen file, element Features/Layout: a present one leaves the defaults; an
    /// absent one makes both flags 0. This inversion is meant.
    struct s_ScreenLayout : s_SupportInfo {
        s_RangeValue x; ///< Left edge in the canvas; always at its defaults.
        s_RangeValue y; ///< Upper edge in the canvas; always at its defaults.
    };

    /// Image quality of a screen; no file fills it.
    struct s_ImageQuality : s_SupportInfo {
        /// A setting for each colour; no file fills it.
        struct s_ColorGroup : s_SupportInfo {
            s_RangeValue r; ///< Red.
            s_RangeValue g; ///< Green.
            s_RangeValue b; ///< Blue.
        };

        s_ColorGroup contrast;   ///< Gain of each colour.
        s_ColorGroup brightness; ///< Offset of each colour.
        s_RangeValue hue;        ///< Turn of the hue round the colour circle.
        s_RangeValue saturation; ///< Strength of the colours, from grey upwards.
        s_RangeValue gamma;      ///< Exponent of the transfer curve.
    };

    /// Fade to black. Screen file, element Features/FTB.
    struct s_FTB : s_SupportInfo {
        /// Switches the blackness on and off: the list alone. It also takes the "Value" of each element that follows
        /// "Enable", so that a "Time" there adds its own; this is meant. Element "Enable".
        s_EnumField enable;
        s_RangeValue time; ///< Duration of the fade, in milliseconds in the example. Element "Time".
    };

    /// The T-bar, by which a transition is made by hand; no file fills it.
    struct s_Tbar : s_SupportInfo {
        s_EnumField enable;    ///< Switches the T-bar on and off.
        s_RangeValue position; ///< Place of the bar between its two ends.
    };

    /// High dynamic range of a screen; no file fills it.
    struct s_ScreenHDR : s_HDRInfo {
        s_EnumField dynamicRange; ///< Dynamic range that the screen shows.
        s_RangeValue brightness;  ///< Peak brightness of the screen.
    };

    /// Sound of a screen: its volume. Screen file, element Features/Audio, the flags, and its child "Volume", the rest.
    /// Without "Audio" all six members are -1, but `value` is 50; without "Volume" the last four are. The defaults
    /// below stand only where the file has no "Features".
    struct s_ScreenAudio {
        int support = 0;   ///< Non-zero: the screen has sound; -1: there is no "Audio". Attribute "Support".
        int editable = -1; ///< Non-zero: the user may change the volume; -1: there is no "Audio". Attribute "Editable".
        int min = 0;       ///< Lowest volume that can be set; -1: there is no "Volume". Attribute "Min" of "Volume".
        int max = 255;     ///< Highest volume that can be set; -1: there is no "Volume". Attribute "Max" of "Volume".
        /// Distance between two volumes that can be set; -1: there is no "Volume". Attribute "Step" of "Volume".
        int step = 0;
        int value = 0; ///< Volume from the factory; 50: there is no "Volume". Attribute "Value" of "Volume".
    };

    s_ScreenGeneral general;           ///< Name of a screen; nothing is kept of element "General".
    s_Mosaic mosaic;                   ///< Mosaic of outputs; nothing is kept of element "Mosaic".
    s_BackgroundColor backgroundColor; ///< Colour where no layer lies. Element "BackgroundColor".
    s_ScreenLayout layout;             ///< Place of the screen in the canvas. Element "Layout".
    s_EnumField pgmEdit;  ///< Whether the programme picture, which is on air, can be edited. Element "PGMEdit".
    s_EnumField selected; ///< Whether the screen is selected for editing. Element "Selected".
    /// Contrast, brightness, hue, saturation and gamma; nothing is read of element "ImageQuality".
    s_ImageQuality imageQuality;
    int imageQualityFlag = 1;  ///< Room in the record; always 1.
    s_EnumField freeze;        ///< Freeze: whether the screen holds its last picture. Element "Freeze".
    s_FTB ftb;                 ///< Fade to black. Element "FTB".
    s_TestPattern testPattern; ///< Test picture in place of the screen's. Element "TestPattern".
    /// Effect types that the screen takes: only `type.enums` is filled from the screen file. Element "SwitchEffect".
    s_SwitchEffect switchEffect;
    s_Tbar tbar;     ///< The T-bar; nothing is read of element "Tbar".
    s_ScreenHDR hdr; ///< High dynamic range; nothing is read of element "HDR".
    /// Reference of the screen: the flags, and the connector types that bring it, from "ConnectorTypes" into
    /// `type.enums`; no other member. Element "Genlock".
    s_Genlock genlock;
    s_SenderGenLock senderGenLock; ///< Output frame rates. Element "SenderGenLock".
    s_ScreenAudio audio;           ///< Volume of the screen. Element "Audio".
    s_ThreeD threeD;               ///< Three-dimensional display. Element "ThreeD".
};

/// One screen type of a device: one screen file, its first "Screen". Screen file, element Device/Screens/Screen.
struct s_Screen : s_SupportInfo {
    /// Number of the screen type, by which queries find the screen; the first match wins. Attribute "Type".
    int type = 0;
    int spliceMode = 0; ///< How outputs are spliced to one picture; the number is the panel's. Attribute "SpliceMode".
    /// Whether a splice may have gaps; the number is the panel's. Attribute "IncompleteSplicing".
    int incompleteSplicing = 0;
    /// Whether the user may build such screens; the number is the panel's. Attribute "CustomBuild".
    int customBuild = 0;
    /// Whether the user may delete such screens; the number is the panel's. Attribute "CustomDelete".
    int customDelete = 0;
    int limitNum = 0; ///< How many such screens there may be; the number is the panel's. Attribute "LimitNum".
    /// Whether the device mode of the screen can be chosen: the flags of element "DeviceModes".
    s_SupportInfo deviceModesInfo;
    /// The screen in each device mode, in file order: the children of "DeviceModes".
    std::vector<s_ScreenDeviceMode> deviceModes;
    s_Features features; ///< What can be set on the screen. Element "Features".
};

/// A screen type in the device's list, and what the parser of a screen file fills.
struct s_DCSScreen : s_Screen {};

/// A screen type as the search by type hands it out.
struct s_Screens : s_Screen {};

} // namespace LCD::MainConfig

#endif
