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
    std::int64_t min = 0;   ///< Attribute "Min".
    std::int64_t max = 255; ///< Attribute "Max"; 0 in an element that is there without the attribute.
};

/// Naming of a layer: element "General".
struct s_LayerGeneral {
    s_SupportInfo info;
    s_TextValue name; ///< Element "General/Name"; in the file an absent "Value" is the text "0", an absent "Max" 0.
};

/// Cropping of a layer's source: element "Source/Crop".
struct s_LayerCrop {
    s_SupportInfo info;
    s_EnumField enable;
    s_RangeValue widthRatio;  ///< Element "WidthRatio": share of the source's width.
    s_RangeValue heightRatio; ///< Element "HeightRatio": share of the source's height.
    s_RangeValue xRatio;      ///< Element "XRatio".
    s_RangeValue yRatio;      ///< Element "YRatio".
};

/// What a layer can show: element "Source".
struct s_Source {
    s_SupportInfo info;
    s_EnumField type; ///< Element "Source/Type": the kinds of source.
    s_LayerCrop crop;
};

/// Size and place of a window: element "Window" of a layer, and of its shadow.
struct s_LayerWindow {
    s_SupportInfo info;
    s_RangeValue width;
    s_RangeValue height;
    s_RangeValue x;
    s_RangeValue y;
};

/// A mask that hides the edges of a layer: element "Mask".
struct s_LayerMask {
    s_SupportInfo info;
    s_EnumField enable;
    s_RangeValue left;
    s_RangeValue right;
    s_RangeValue top;
    s_RangeValue bottom;
};

/// One border that a layer may have: an element of "Borders".
struct s_Border {
    /// Thickness: element "Size". Of its two children only "Min", "Max", "Value" and "Step" are read.
    struct s_Size : s_SupportInfo {
        s_RangeValue hWidth; ///< Element "HWidth": the horizontal edges.
        s_RangeValue vWidth; ///< Element "VWidth": the vertical edges.
    };

    /// No file fills it.
    struct s_Reserved : s_SupportInfo {
        std::array<s_RangeValue, 4> ranges;
    };

    s_SupportInfo info; ///< Keeps its defaults; the flags of the whole list are the layer's `bordersInfo`.
    s_EnumField enable; ///< Element "Enable": the list of allowed values alone, no attribute.
    s_EnumField type;   ///< Element "Type": the list of allowed values alone, no attribute.
    s_Size size;
    s_Reserved reserved;
};

/// Filling of the cut part of a layer: element "CutFill". Every element of it is optional.
struct s_LayerCutFill {
    struct s_Point : s_SupportInfo {
        s_RangeValue64 x;
        s_RangeValue64 y;
    };

    /// The fill's curve: element "Curve".
    struct s_Curve {
        s_SupportInfo info;
        s_Point start; ///< Element "Curve/Start"; its flags are overwritten by those of "Curve/End", as is meant.
        s_Point end;   ///< Element "Curve/End": "X" and "Y" alone; the flags keep their defaults.
    };

    /// The area that the fill refers to: element "Relative".
    struct s_Relative {
        s_SupportInfo info;
        s_RangeValue64 width;
        s_RangeValue64 height;
        s_RangeValue64 x;
        s_RangeValue64 y;
    };

    s_SupportInfo info;
    s_EnumField enable;
    s_Curve curve;
    s_Relative relative;
};

/// Shadow of a layer: element "Shadow". Every element of it is optional. The ranges here have `max` 0, not 255, where
/// their element is there without "Max".
struct s_LayerShadow {
    /// Element "Shadow/General".
    struct s_General {
        s_SupportInfo info;   ///< Not read; keeps its defaults.
        s_EnumField enable;   ///< Element "Enable": attributes alone; the list stays empty.
        s_RangeValue feather; ///< Element "Feather": softness of the edge.
    };

    /// Element "Shadow/Color".
    struct s_Color {
        s_SupportInfo info;
        s_RangeValue r;
        s_RangeValue g;
        s_RangeValue b;
        s_RangeValue opacity;
    };

    s_SupportInfo info;
    s_General general;
    s_LayerWindow window; ///< Element "Shadow/Window": offset and size.
    s_Color color;
};

/// One template on which a layer may be split: an element of "DeviceModes/DeviceMode/Templates". From `rows` on, the
/// values come from its "Layout" and are 0 without one.
struct s_Template {
    int id = 0;                   ///< Attribute "Id".
    int templateFlag = 0;         ///< Attribute "TemplateFlag".
    int rows = 0;                 ///< "Layout", attribute "Rows".
    int columns = 0;              ///< "Layout", attribute "Columns".
    int baseResolutionWidth = 0;  ///< "Layout", attribute "BaseResolutionWidth", pixels.
    int baseResolutionHeight = 0; ///< "Layout", attribute "BaseResolutionHeight", pixels.
    int capacityMode = 0;         ///< "Layout", attribute "CapacityMode".
};

/// The layer templates of one device mode: element "DeviceModes", stored whole or not at all. Only the first
/// "DeviceMode" is read.
struct s_LayerDeviceModes {
    s_SupportInfo info;
    s_BaseAttr customTemplateCount; ///< Element "CustomTemplateCount".
    int deviceMode = 255;   ///< Element "DeviceMode", attribute "Value"; 255: the subtree is missing or incomplete.
    int templatesValue = 0; ///< Element "DeviceMode/Templates", attribute "Value".
    int autoCreate = 0;     ///< Element "DeviceMode/Templates", attribute "AutoCreate".
    int templatesType = 0;  ///< Element "DeviceMode/Templates", attribute "Type".
    std::vector<s_Template> templates; ///< In file order.
};

/// How many layers of one source may be open: element "MaxLayerNum".
struct s_LayerMaxNum {
    s_SupportInfo info;
    s_SupportInfo single; ///< Element "Single".
    /// One entry for each "Single/Source"; only their count is taken from the file. All entries are equal, with
    /// `support`, `editable` and `value` of "Single" itself, as is meant.
    std::vector<s_RangeValue> sources;
};

/// One layer type of a device: one layer file, its first "Layer".
struct s_Layer {
    /// Room in the record that no file fills and nothing reads.
    struct s_ReservedCutout {
        struct s_First {
            s_SupportInfo info;
            s_EnumField field;
            std::array<s_RangeValue, 4> ranges;
        };

        struct s_Second {
            std::array<s_SupportInfo, 2> infos;
            std::array<s_RangeValue, 3> ranges;
        };

        struct s_Third {
            s_SupportInfo info;
            std::array<s_RangeValue, 6> ranges;
        };

        s_First first;
        s_Second second;
        s_Third third;
    };

    /// Room in the record that no file fills and nothing reads.
    struct s_ReservedBorder : s_Border {};

    int type = 1;             ///< Attribute "Type": the key by which queries find the layer; the first match wins.
    int supportHomology = -1; ///< Attribute "SupportHomology"; never interpreted here.
    s_EnumField sceneType;    ///< Element "SceneType".
    s_RangeValue zOrder;      ///< Element "ZOrder": place in the stack of layers; "Step" is not read.
    s_EnumField selected;     ///< Element "Selected".
    s_LayerGeneral general;
    s_EnumField isBackground; ///< Element "IsBackground".
    s_EnumField isFreeze;     ///< Element "IsFreeze".
    s_EnumField isMonochrome; ///< Element "IsMonochrome".
    s_EnumField isInverse;    ///< Element "IsInverse", optional.
    s_EnumField flipType;     ///< Element "FlipType".
    s_Source source;
    s_LayerWindow window;
    s_LayerMask mask;
    s_LayerCutoutGeneral cutoutGeneral;
    s_ReservedCutout reservedCutout;
    int shadowEnableFlag = 1; ///< No file sets it.
    s_LayerShadow shadow;
    s_SupportInfo bordersInfo;     ///< Element "Borders": its own flags.
    std::vector<s_Border> borders; ///< Children of "Borders" from the first "Border" on, in file order.
    s_ReservedBorder reservedBorder;
    s_LayerCutFill cutFill;
    s_LayerDeviceModes deviceModes;
    s_LayerMaxNum maxLayerNum;
    s_SupportInfo layerSwitch; ///< Element "LayerSwitch", optional: whether layers can be switched.
};

/// A layer type in the device's list.
struct s_DCSLayer : s_Layer {};

} // namespace LCD::MainConfig

#endif
