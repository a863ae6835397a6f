// What a connector type can do to its picture: the built-in player, image quality, cropping, test pattern and cut-out.
// Filled from the connector files; test pattern and cut-out are filled by no file and keep their defaults.
#ifndef LCDMAINCONFIG_CONNECTOR_PICTURE_H
#define LCDMAINCONFIG_CONNECTOR_PICTURE_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/connector_signal.h"

#include <vector>

namespace LCD::MainConfig {

/// The built-in media player; the meaning of the listed numbers is the panel's. Connector file, element Player; the
/// whole record keeps its defaults when the element or one of its children is missing.
struct s_ConnectorPlayer : s_SupportInfo {
    s_ConnectorValueList loopType; ///< How the play list repeats; "DataType" is not read. Element "LoopType".
    /// Kinds of file that can be played; "DataType" is not read. Element "PlayFileType".
    s_ConnectorValueList playFileType;
    /// Whether playing starts by itself; "DataType" is not read. Element "AutoPlayEnable".
    s_ConnectorValueList autoPlayEnable;
    /// Repeats `autoPlayEnable`: element "AutoPlayEnable" is read once more, and the double is meant.
    s_ConnectorValueList autoPlayEnableSecond;
    /// How long a still picture is shown, in milliseconds in the example; "DataType" is not read. Element
    /// "PicturePlayTime".
    s_RangeValue picturePlayTime;
    /// How long a transition between two files lasts, in milliseconds in the example; "Value" is not read. Element
    /// "EffectTime".
    s_RangeValue effectTime;
    s_ConnectorValueList effectType; ///< Transition between two files; "DataType" is not read. Element "EffectType".
    /// Whether a path of the files can be shown and chosen, and its data type; "Value" is not read. Element "FilePath".
    s_BaseAttr filePath;
    /// Kinds of drive that files can be played from; "DataType" is not read. Element "DiskType".
    s_ConnectorValueList diskType;
};

/// Image quality of one interface type. Connector file, child of ImageQuality; an entry without one of its elements is
/// left out.
struct s_InterfaceInImageQuality {
    /// A setting for each colour. Connector file, elements Contrast and Brightness of an interface. Of its own flags
    /// "Support" alone is read, of the colours' all but "Editable".
    struct s_RGB : s_SupportInfo {
        s_RangeValue r; ///< Red. Element "R".
        s_RangeValue g; ///< Green. Element "G".
        s_RangeValue b; ///< Blue. Element "B".
    };

    int type = 0;            ///< Interface type that the entry is for. Attribute "Type".
    s_RGB contrast;          ///< Gain of each colour. Element "Contrast".
    s_RGB brightness;        ///< Offset of each colour. Element "Brightness".
    s_RangeValue hue;        ///< Turn of the hue round the colour circle. Element "Hue".
    s_RangeValue saturation; ///< Strength of the colours, from grey upwards. Element "Saturation".
    /// Exponent of the transfer curve, 220 for 2.2 in the example; the only one with a "Coefficient" in the file.
    /// Element "Gamma".
    s_RangeValue gamma;
};

/// Image quality. Connector file, element ImageQuality.
struct s_ConnectorImageQuality : s_SupportInfo {
    /// One entry for each interface type, in file order; empty: nothing can be adjusted.
    std::vector<s_InterfaceInImageQuality> interfaces;
};

/// Cropping of the picture. Connector file, element Crop.
struct s_ConnectorCrop : s_SupportInfo {
    /// An edge or an extent of the crop as a part of the picture, from 0 to 1 once multiplied by the coefficient.
    /// Connector file, elements XRatio, YRatio, WidthRatio and HeightRatio of Crop.
    struct s_Ratio : s_BaseAttr {
        /// How the panel bounds the value; the number is the panel's and never interpreted here. Attribute "RangeType".
        int rangeType = 0;
        /// Factor from the stored integer to the ratio, such as 0.0001. Attribute "Coefficient".
        float coefficient = 1.0F;
    };

    /// How many crops a picture may have. Connector file, element MaxCount of Crop.
    struct s_MaxCount : s_BaseAttr {
        /// How the panel bounds the value; the number is the panel's and never interpreted here. Attribute "RangeType".
        int rangeType = 0;
    };

    s_ConnectorValueList enable; ///< Switches cropping on and off. Element "Enable".
    s_Ratio xRatio;              ///< Left edge of the crop, as a part of the picture's width. Element "XRatio".
    s_Ratio yRatio;              ///< Upper edge of the crop, as a part of the picture's height. Element "YRatio".
    s_Ratio widthRatio;          ///< Width of the crop, as a part of the picture's. Element "WidthRatio".
    s_Ratio heightRatio;         ///< Height of the crop, as a part of the picture's. Element "HeightRatio".
    s_MaxCount maxCount;         ///< How many crops the picture may have. Element "MaxCount".
};

/// A test pattern in place of the picture; no file fills it.
struct s_ConnectorTestPattern : s_SupportInfo {
    s_ConnectorValueList enable; ///< Whether the pattern is on.
    s_ConnectorValueList type;   ///< Which pattern is shown.
    s_RangeValue bright;         ///< Brightness of the pattern.
    s_RangeValue gridSpace;      ///< Distance between the lines of a grid.
    s_RangeValue gridLineWidth;  ///< Thickness of the lines of a grid.
    s_RangeValue speed;          ///< How fast a moving pattern moves.
};

/// Cut-out of one interface type; no file fills it.
struct s_InterfaceInCutoutGeneral {
    int type = 0;                    ///< Interface type that the entry is for.
    s_ConnectorValueList cutoutType; ///< Ways of cutting out.
};

/// Cut-out; no file fills it.
struct s_ConnectorCutoutGeneral : s_SupportInfo {
    std::vector<s_InterfaceInCutoutGeneral> interfaces; ///< Always empty.
};

} // namespace LCD::MainConfig

#endif
