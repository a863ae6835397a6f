// What a connector type can do to its picture: the built-in player, image quality, cropping, test pattern and cut-out.
// Filled from the connector files; test pattern and cut-out are filled by no file and keep their defaults.
#ifndef LCDMAINCONFIG_CONNECTOR_PICTURE_H
#define LCDMAINCONFIG_CONNECTOR_PICTURE_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/connector_signal.h"

#include <vector>

namespace LCD::MainConfig {

/// The built-in media player. Connector file, element Player; the whole record keeps its defaults when the element or
/// one of its children is missing.
struct s_ConnectorPlayer : s_SupportInfo {
    s_ConnectorValueList loopType;             ///< "DataType" is not read.
    s_ConnectorValueList playFileType;         ///< "DataType" is not read.
    s_ConnectorValueList autoPlayEnable;       ///< "DataType" is not read.
    s_ConnectorValueList autoPlayEnableSecond; ///< Element "AutoPlayEnable" once more; the double is meant.
    s_RangeValue picturePlayTime;              ///< "DataType" is not read.
    s_RangeValue effectTime;                   ///< "Value" is not read.
    s_ConnectorValueList effectType;           ///< "DataType" is not read.
    s_BaseAttr filePath;                       ///< Flags and data type of the path; "Value" is not read.
    s_ConnectorValueList diskType;             ///< "DataType" is not read.
};

/// Image quality of one interface type. Connector file, child of ImageQuality.
struct s_InterfaceInImageQuality {
    /// A setting per colour channel: elements "R", "G" and "B". Of the flags "Support" alone is read.
    struct s_RGB : s_SupportInfo {
        s_RangeValue r;
        s_RangeValue g;
        s_RangeValue b;
    };

    int type = 0; ///< Interface type.
    s_RGB contrast;
    s_RGB brightness;
    s_RangeValue hue;
    s_RangeValue saturation;
    s_RangeValue gamma; ///< The only one with a "Coefficient" in the file.
};

/// Image quality. Connector file, element ImageQuality.
struct s_ConnectorImageQuality : s_SupportInfo {
    std::vector<s_InterfaceInImageQuality> interfaces;
};

/// Cropping. Connector file, element Crop.
struct s_ConnectorCrop : s_SupportInfo {
    /// An edge or an extent of the crop as a part of the picture.
    struct s_Ratio : s_BaseAttr {
        int rangeType = 0;
        float coefficient = 1.0F; ///< Scale between the stored integer and the ratio.
    };

    /// How many crops a picture may have.
    struct s_MaxCount : s_BaseAttr {
        int rangeType = 0;
    };

    s_ConnectorValueList enable;
    s_Ratio xRatio;
    s_Ratio yRatio;
    s_Ratio widthRatio;
    s_Ratio heightRatio;
    s_MaxCount maxCount;
};

/// Test pattern; no file fills it.
struct s_ConnectorTestPattern : s_SupportInfo {
    s_ConnectorValueList enable;
    s_ConnectorValueList type;
    s_RangeValue bright;
    s_RangeValue gridSpace;
    s_RangeValue gridLineWidth;
    s_RangeValue speed;
};

/// Cut-out of one interface type; no file fills it.
struct s_InterfaceInCutoutGeneral {
    int type = 0; ///< Interface type.
    s_ConnectorValueList cutoutType;
};

/// Cut-out; no file fills it.
struct s_ConnectorCutoutGeneral : s_SupportInfo {
    std::vector<s_InterfaceInCutoutGeneral> interfaces;
};

} // namespace LCD::MainConfig

#endif
