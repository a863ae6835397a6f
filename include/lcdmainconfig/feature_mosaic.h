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
    int value = 0;
    int pixel = 0;
};

/// One part of a mosaic template. Feature file, third level under MosaicSource/MosaicTemplates; every member
/// is an attribute.
struct s_Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int rectangleIndex = 0;
    int priority = 0;
    int rectangleType = 0;
    int minWidth = 0;
    int minHeight = 0;
    int subSourceSlotId = 0;      ///< Slot of the source that the rectangle shows.
    int subSourceConnectorId = 0; ///< Connector of that source, within its slot.
};

/// One division of the mosaic. Feature file, second level under MosaicSource/MosaicTemplates.
struct s_MosaicTemplate {
    int pitId = 0;
    int column = 0;
    int row = 0;
    int defaultWidth = 0;
    int defaultHeight = 0;
    int maxColumn = 0;
    int maxRow = 0;
    int maxCell = 0;
    int maxWidth = 0;
    int maxHeight = 0;
    int maxPixel = 0;
    std::vector<s_Rectangle> rectangles;
};

/// The templates of one sub-source type. Feature file, first level under MosaicSource/MosaicTemplates.
struct s_SubSourceType {
    int value = 0;           ///< Number of the sub-source type.
    int defaultTemplate = 0; ///< Template that the type starts with.
    std::vector<s_MosaicTemplate> mosaicTemplates;
};

/// Feature file, element MosaicSource. `style` is -1 when the element or its child
/// MosaicTemplates is absent.
struct s_MOSAICSource : s_SupportInfo {
    struct s_CapacityCalculate : s_SupportInfo {
        int value = -1; ///< -1 when the element is absent.
        std::vector<s_MOCSIACapacity> capacities;
    };

    int style = -1;
    s_CapacityCalculate capacityCalculate;
    int deviceDefaultTemplate = -1; ///< Attribute of element MosaicTemplates.
    int step = -1;                  ///< Attribute of element MosaicTemplates.
    std::vector<s_SubSourceType> subSourceTypes;
};

} // namespace LCD::MainConfig

#endif
