// What one layer type of a device can do and how it may be edited: one record for each layer file. Elements below are
// named relative to "Device/Layers/Layer" of that file. Lists of allowed values are stored and handed out; what their
// numbers mean is the panel's business.
#ifndef LCDMAINCONFIG_LAYER_H
#define LCDMAINCONFIG_LAYER_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/layer_cutout.h"

#include <array>
#include <cstdint>
#include <vector>

namespace LCD::MainConfig {

/// A setting with a range in 64 bits. The files are read through a signed 32-bit number all the same.
struct s_RangeValue64 : s_BaseAttr {
    /// Smallest value that can be set; 0 in an element that is there without it. Attribute "Min".
    std::int64_t min = 0;
    /// Largest value that can be set; 0 in an element that is there without it. Attribute "Max".
    std::int64_t max = 255;
};

/// Naming of a layer. Layer file, element General.
struct s_LayerGeneral {
    s_SupportInfo info; ///< Whether a layer can be named. The element's own flags.
    /// Name that a new layer gets, and the limits of its length; an absent "Value" is the text "0", an absent "Max" 0.
    /// Element "Name".
    s_TextValue name;
};

/// Cropping of a layer's source. Layer file, element Source/Crop. The example's ratios are in hundredths of a percent.
struct s_LayerCrop {
    s_SupportInfo info;       ///< Whether the source can be cropped. The element's own flags.
    s_EnumField enable;       ///< Switches cropping on and off. Element "Enable".
    s_RangeValue widthRatio;  ///< Part of the source's width that the layer shows. Element "WidthRatio".
    s_RangeValue heightRatio; ///< Part of the source's height that the layer shows. Element "HeightRatio".
    s_RangeValue xRatio;      ///< Left edge of the part shown, as a part of the source's width. Element "XRatio".
    s_RangeValue yRatio;      ///< Upper edge of the part shown, as a part of the source's height. Element "YRatio".
};

/// What a layer can show. Layer file, element Source.
struct s_Source {
    s_SupportInfo info; ///< Whether the layer takes a source. The element's own flags.
    s_EnumField type;   ///< Kinds of source that the layer takes; the numbers are the panel's. Element "Type".
    s_LayerCrop crop;   ///< Which part of the source is shown. Element "Crop".
};

/// Size and place of a window; `value` is that of a new layer. Layer file, element Window of a layer, and
/// Shadow/Window.
struct s_LayerWindow {
    s_SupportInfo info;  ///< Whether the window can be set. The element's own flags.
    s_RangeValue width;  ///< Width in pixels; of a shadow in percent of the layer in the example. Element "Width".
    s_RangeValue height; ///< Height in pixels; of a shadow in percent of the layer in the example. Element "Height".
    s_RangeValue x;      ///< Left edge in pixels; of a shadow the offset to the right. Element "X".
    s_RangeValue y;      ///< Upper edge in pixels; of a shadow the offset downwards. Element "Y".
};

/// A mask that hides the edges of a layer. Layer file, element Mask.
struct s_LayerMask {
    s_SupportInfo info;  ///< Whether the layer can be masked. The element's own flags.
    s_EnumField enable;  ///< Switches the mask on and off. Element "Enable".
    s_RangeValue left;   ///< Pixels hidden from the left side. Element "Left".
    s_RangeValue right;  ///< Pixels hidden from the right side. Element "Right".
    s_RangeValue top;    ///< Pixels hidden from the upper side. Element "Top".
    s_RangeValue bottom; ///< Pixels hidden from the lower side. Element "Bottom".
};

/// One border that a layer may have. Layer file, a child of Borders from the first "Border" on.
struct s_Border {
    /// Thickness of a border, in pixels. Layer file, element Size of a border. The flags keep their defaults; of its
    /// two children only "Min", "Max", "Value" and "Step" are read.
    struct s_Size : s_SupportInfo {
        s_RangeValue hWidth; ///< Thickness of the horizontal edges. Element "HWidth".
        s_RangeValue vWidth; ///< Thickness of the vertical edges. Element "VWidth".
    };

    /// Room in the record that no file fills.
    struct s_Reserved : s_SupportInfo {
        std::array<s_RangeValue, 4> ranges; ///< Always at their defaults.
    };

    /// Room in the record that no file fills; the flags of the whole list are the layer's `bordersInfo`.
    s_SupportInfo info;
    /// Switches the border on and off: the list of allowed values alone, no attribute. Element "Enable".
    s_EnumField enable;
    /// Looks of the border; the numbers are the panel's. The list of allowed values alone, no attribute. Element
    /// "Type".
    s_EnumField type;
    s_Size size;         ///< Thickness of the border. Element "Size".
    s_Reserved reserved; ///< Room in the record that no file fills.
};

/// Filling of the cut part of a layer. Layer file, element CutFill. Every element of it is optional.
struct s_LayerCutFill {
    /// One end of the curve. Layer file, elements Start and End of CutFill/Curve.
    struct s_Point : s_SupportInfo {
        s_RangeValue64 x; ///< Horizontal place of the point. Element "X".
        s_RangeValue64 y; ///< Vertical place of the point. Element "Y".
    };

    /// The curve of the filling, from one point to another. Layer file, element CutFill/Curve.
    struct s_Curve {
        s_SupportInfo info; ///< Whether the curve can be set. The element's own flags.
        /// First point of the curve. Element "Start"; its flags are overwritten by those of "End", as is meant.
        s_Point start;
        s_Point end; ///< Last point of the curve. Element "End": "X" and "Y" alone; the flags keep their defaults.
    };

    /// The area that the filling refers to, in pixels in the example. Layer file, element CutFill/Relative.
    struct s_Relative {
        s_SupportInfo info;    ///< Whether the area can be set. The element's own flags.
        s_RangeValue64 width;  ///< Width of the area. Element "Width".
        s_RangeValue64 height; ///< Height of the area. Element "Height".
        s_RangeValue64 x;      ///< Left edge of the area. Element "X".
        s_RangeValue64 y;      ///< Upper edge of the area. Element "Y".
    };

    s_SupportInfo info;  ///< Whether the cut part can be filled. The element's own flags.
    s_EnumField enable;  ///< Switches the filling on and off. Element "Enable".
    s_Curve curve;       ///< Curve along which the filling runs. Element "Curve".
    s_Relative relative; ///< Area that the filling refers to. Element "Relative".
};

/// Shadow of a layer. Layer file, element Shadow. Every element of it is optional. The ranges here have `max` 0, not
/// 255, where their element is there without "Max".
struct s_LayerShadow {
    /// Switch and softness of a shadow. Layer file, element Shadow/General.
    struct s_General {
        s_SupportInfo info; ///< Not read; keeps its defaults.
        /// Switches the shadow on and off: attributes alone; the list stays empty. Element "Enable".
        s_EnumField enable;
        s_RangeValue feather; ///< Softness of the shadow's edge; 0 is hard. Element "Feather".
    };

    /// Colour of a shadow. Layer file, element Shadow/Color.
    struct s_Color {
        s_SupportInfo info; ///< Whether the colour can be set. The element's own flags.
        s_RangeValue r;     ///< Red part of the colour. Element "R".
        s_RangeValue g;     ///< Green part of the colour. Element "G".
        s_RangeValue b;     ///< Blue part of the colour. Element "B".
        /// How far the shadow covers what lies below, in percent in the example. Element "Opacity".
        s_RangeValue opacity;
    };

    s_SupportInfo info;   ///< Whether the layer can have a shadow. The element's own flags.
    s_General general;    ///< Switch and softness of the shadow. Element "General".
    s_LayerWindow window; ///< Offset of the shadow from the layer, and its size. Element "Window".
    s_Color color;        ///< Colour and opacity of the shadow. Element "Color".
};

/// One template on which a layer may be split: a grid over a picture of a base resolution. Layer file, a child of
/// DeviceModes/DeviceMode/Templates. From `rows` on, the values come from its "Layout" and are 0 without one.
struct s_Template {
    int id = 0;           ///< Number of the template. Attribute "Id".
    int templateFlag = 0; ///< The panel's number for the kind of template. Attribute "TemplateFlag".
    int rows = 0;         ///< Rows of the grid. Attribute "Rows" of "Layout".
    int columns = 0;      ///< Columns of the grid. Attribute "Columns" of "Layout".
    /// Width of the picture that is split, in pixels. Attribute "BaseResolutionWidth" of "Layout".
    int baseResolutionWidth = 0;
    /// Height of the picture that is split, in pixels. Attribute "BaseResolutionHeight" of "Layout".
    int baseResolutionHeight = 0;
    /// Capacity mode that the template takes up; the number is the panel's. Attribute "CapacityMode" of "Layout".
    int capacityMode = 0;
};

/// The layer templates of one device mode. Layer file, element DeviceModes, stored whole or not at all. Only the first
/// "DeviceMode" is read.
struct s_LayerDeviceModes {
    s_SupportInfo info;             ///< Whether the layer can be split on templates. The element's own flags.
    s_BaseAttr customTemplateCount; ///< How many templates the user may make. Element "CustomTemplateCount".
    /// Device mode that the templates are for; 255: the subtree is missing or incomplete. Attribute "Value" of
    /// "DeviceMode".
    int deviceMode = 255;
    /// Template that is used at first; the number is the panel's. Attribute "Value" of "DeviceMode/Templates".
    int templatesValue = 0;
    /// Non-zero: templates are made automatically. Attribute "AutoCreate" of "DeviceMode/Templates".
    int autoCreate = 0;
    /// The panel's number for the kind of templates. Attribute "Type" of "DeviceMode/Templates".
    int templatesType = 0;
    /// Templates in file order: the children of "DeviceMode/Templates"; empty: there are none.
    std::vector<s_Template> templates;
};

/// How many layers of one source may be open. Layer file, element MaxLayerNum; optional.
struct s_LayerMaxNum {
    s_SupportInfo info;   ///< Whether the number of layers is limited. The element's own flags.
    s_SupportInfo single; ///< Whether the number is limited for each source. Element "Single".
    /// One entry for each "Single/Source", of which only the count is taken from the file. All are equal: `value` is
    /// the limit, and it is that of "Single" itself, as are the flags; this is meant.
    std::vector<s_RangeValue> sources;
};

/// One layer type of a device: one layer file, its first "Layer".
struct s_Layer {
    /// Room in the record that no file fills and nothing reads.
    struct s_ReservedCutout {
        /// First block of that room.
        struct s_First {
            s_SupportInfo info;                 ///< Always at its defaults.
            s_EnumField field;                  ///< Always at its defaults.
            std::array<s_RangeValue, 4> ranges; ///< Always at their defaults.
        };

        /// Second block of that room.
        struct s_Second {
            std::array<s_SupportInfo, 2> infos; ///< Always at their defaults.
            std::array<s_RangeValue, 3> ranges; ///< Always at their defaults.
        };

        /// Third block of that room.
        struct s_Third {
            s_SupportInfo info;                 ///< Always at its defaults.
            std::array<s_RangeValue, 6> ranges; ///< Always at their defaults.
        };

        s_First first;   ///< Always at its defaults.
        s_Second second; ///< Always at its defaults.
        s_Third third;   ///< Always at its defaults.
    };

    /// Room in the record that no file fills and nothing reads.
    struct s_ReservedBorder : s_Border {};

    /// Number of the layer type, by which queries find the layer; the first match wins. Attribute "Type"; 0 if absent.
    int type = 1;
    /// Number of the panel's own, not interpreted here. Attribute "SupportHomology"; 0 if absent.
    int supportHomology = -1;
    /// Kinds of scene that the layer can stand in; the numbers are the panel's. Element "SceneType".
    s_EnumField sceneType;
    s_RangeValue zOrder;      ///< Place in the stack of layers; "Step" is not read. Element "ZOrder".
    s_EnumField selected;     ///< Whether the layer is selected for editing. Element "Selected".
    s_LayerGeneral general;   ///< Name that a new layer gets, and its limits. Element "General".
    s_EnumField isBackground; ///< Whether the layer lies behind all others as the background. Element "IsBackground".
    s_EnumField isFreeze;     ///< Freeze: whether the layer holds its last picture. Element "IsFreeze".
    s_EnumField isMonochrome; ///< Whether the layer is shown in shades of one colour. Element "IsMonochrome".
    s_EnumField isInverse;    ///< Whether the layer is shown with inverted colours. Optional element "IsInverse".
    s_EnumField flipType;     ///< How the layer is mirrored; the numbers are the panel's. Element "FlipType".
    s_Source source;          ///< Source of the layer, and the part of it that is shown. Element "Source".
    s_LayerWindow window;     ///< Size and place on the screen. Element "Window".
    s_LayerMask mask;         ///< Edges that are hidden. Element "Mask".
    s_LayerCutoutGeneral cutoutGeneral; ///< Keying by luma, colour or automatic matting. Element "CutoutGeneral".
    s_ReservedCutout reservedCutout;    ///< Room in the record that no file fills.
    int shadowEnableFlag = 1;           ///< Room in the record; always 1.
    s_LayerShadow shadow;               ///< Shadow of the layer. Optional element "Shadow".
    s_SupportInfo bordersInfo;          ///< Whether the layer can have borders: the flags of element "Borders".
    /// Borders in file order: the children of "Borders" from the first "Border" on; empty: there are none.
    std::vector<s_Border> borders;
    s_ReservedBorder reservedBorder; ///< Room in the record that no file fills.
    s_LayerCutFill cutFill;          ///< Filling of what is cut out. Optional element "CutFill".
    s_LayerDeviceModes deviceModes;  ///< Templates on which the layer may be split. Element "DeviceModes".
    s_LayerMaxNum maxLayerNum;       ///< How many layers of one source may be open. Optional element "MaxLayerNum".
    s_SupportInfo layerSwitch;       ///< Whether layers can be switched. Optional element "LayerSwitch".
};

/// A layer type in the device's list, and what the parser of a layer file fills.
struct s_DCSLayer : s_Layer {};

} // namespace LCD::MainConfig

#endif
