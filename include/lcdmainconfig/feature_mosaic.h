// The mosaic input of a device: how its capacity is computed and which templates divide it into rectangles. Unless told
// otherwise a member comes from the attribute or child element of its name, and a list is empty when the file names no
// entry. The tags of the three nested levels of templates are free.
#ifndef LCDMAINCONFIG_FEATURE_MOSAIC_H
#define LCDMAINCONFIG_FEATURE_MOSAIC_H

#include "lcdmainconfig/common.h"

#include <vector>

namespace LCD::MainConfig {

/// One entry of the capacity list. Feature file, a child of MosaicSource/CapacityCalculate.
struct s_MOCSIACapacity {
    int value = 0; ///< Capacity mode that the entry is for. Attribute "Value"; 0 if absent.
    int pixel = 0; ///< Pixels that a picture may have in that mode. Attribute "Pixel"; 0 if absent.
};

/// One part of a mosaic template: where a source is shown. Feature file, third level under
/// MosaicSource/MosaicTemplates. An absent attribute reads as 1.
struct s_Rectangle {
    int x = 0;              ///< Left edge in the mosaic, in pixels. Attribute "X".
    int y = 0;              ///< Upper edge in the mosaic, in pixels. Attribute "Y".
    int width = 0;          ///< Width in pixels. Attribute "Width".
    int height = 0;         ///< Height in pixels. Attribute "Height".
    int rectangleIndex = 0; ///< Number of the rectangle in its template. Attribute "RectangleIndex".
    int priority = 0; ///< Rank among the rectangles of the template; the panel knows its use. Attribute "Priority".
    int rectangleType = 0;        ///< Kind of rectangle; the number is the panel's. Attribute "RectangleType".
    int minWidth = 0;             ///< Smallest width that the user may set, in pixels. Attribute "MinWidth".
    int minHeight = 0;            ///< Smallest height that the user may set, in pixels. Attribute "MinHeight".
    int subSourceSlotId = 0;      ///< Slot of the source that the rectangle shows. Attribute "SubSourceSlotId".
    int subSourceConnectorId = 0; ///< Connector of that source, within its slot. Attribute "SubSourceConnectorId".
};

/// One division of the mosaic into rectangles. Feature file, second level under MosaicSource/MosaicTemplates. An absent
/// attribute reads as 1.
struct s_MosaicTemplate {
    int pitId = 0;                       ///< Number of the template, by which defaults name it. Attribute "PitId".
    int column = 0;                      ///< Columns that the template has. Attribute "Column".
    int row = 0;                         ///< Rows that the template has. Attribute "Row".
    int defaultWidth = 0;                ///< Width that the mosaic starts with, in pixels. Attribute "DefaultWidth".
    int defaultHeight = 0;               ///< Height that the mosaic starts with, in pixels. Attribute "DefaultHeight".
    int maxColumn = 0;                   ///< Most columns that the user may set. Attribute "MaxColumn".
    int maxRow = 0;                      ///< Most rows that the user may set. Attribute "MaxRow".
    int maxCell = 0;                     ///< Most rectangles that the mosaic may have. Attribute "MaxCell".
    int maxWidth = 0;                    ///< Largest width of the mosaic, in pixels. Attribute "MaxWidth".
    int maxHeight = 0;                   ///< Largest height of the mosaic, in pixels. Attribute "MaxHeight".
    int maxPixel = 0;                    ///< Most pixels that the mosaic may have in all. Attribute "MaxPixel".
    std::vector<s_Rectangle> rectangles; ///< Parts of the template, in file order: its child elements of any tag.
};

/// The templates of one sub-source type. Feature file, first level under MosaicSource/MosaicTemplates.
struct s_SubSourceType {
    int value = 0; ///< Number of the sub-source type. Attribute "Value"; 1 if absent.
    /// Template that the type starts with, by its number. Attribute "DefaultTemplate"; 1 if absent.
    int defaultTemplate = 0;
    std::vector<s_MosaicTemplate> mosaicTemplates; ///< Templates in file order: the child elements of any tag.
};

/// The mosaic input: several sources in one picture. Feature file, element MosaicSource. `style` is -1 when the element
/// or its child MosaicTemplates is absent.
struct s_MOSAICSource : s_SupportInfo {
    /// How the capacity of a mosaic is computed. Feature file, element MosaicSource/CapacityCalculate.
    struct s_CapacityCalculate : s_SupportInfo {
        /// Way of computing; the number is the panel's. Attribute "Value"; -1 when the element is absent.
        int value = -1;
        /// Pixels of each capacity mode, in file order: the child elements of any tag.
        std::vector<s_MOCSIACapacity> capacities;
    };

    int style = -1; ///< Style of the mosaic; the number is the panel's. Attribute "Style"; 1 if absent.
    /// How the capacity of a mosaic is computed. Optional element "CapacityCalculate".
    s_CapacityCalculate capacityCalculate;
    /// Template that the device starts with, by its number. Attribute "DeviceDefaultTemplate" of "MosaicTemplates".
    int deviceDefaultTemplate = -1;
    int step = -1; ///< Step of changes to a template; its unit is the panel's. Attribute "Step" of "MosaicTemplates".
    /// Templates of each sub-source type, in file order: the child elements of "MosaicTemplates".
    std::vector<s_SubSourceType> subSourceTypes;
};

} // namespace LCD::MainConfig

#endif
