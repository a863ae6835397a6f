// The mosaic input: its capacity, and the templates that divide it into rectangles.
#include "devicefeatureconfig_readers.h"

namespace LCD::MainConfigImpl::featurefile {

using namespace LCD::MainConfig;
using namespace reading;

namespace {

// clang-format off
constexpr auto rectangle = cells(
    cell("X",                    &s_Rectangle::x,                    "1"),
    cell("Y",                    &s_Rectangle::y,                    "1"),
    cell("Width",                &s_Rectangle::width,                "1"),
    cell("Height",               &s_Rectangle::height,               "1"),
    cell("RectangleIndex",       &s_Rectangle::rectangleIndex,       "1"),
    cell("Priority",             &s_Rectangle::priority,             "1"),
    cell("RectangleType",        &s_Rectangle::rectangleType,        "1"),
    cell("MinWidth",             &s_Rectangle::minWidth,             "1"),
    cell("MinHeight",            &s_Rectangle::minHeight,            "1"),
    cell("SubSourceSlotId",      &s_Rectangle::subSourceSlotId,      "1"),
    cell("SubSourceConnectorId", &s_Rectangle::subSourceConnectorId, "1"));

constexpr auto mosaicTemplate = cells(
    cell("PitId",         &s_MosaicTemplate::pitId,         "1"),
    cell("Column",        &s_MosaicTemplate::column,        "1"),
    cell("Row",           &s_MosaicTemplate::row,           "1"),
    cell("DefaultWidth",  &s_MosaicTemplate::defaultWidth,  "1"),
    cell("DefaultHeight", &s_MosaicTemplate::defaultHeight, "1"),
    cell("MaxColumn",     &s_MosaicTemplate::maxColumn,     "1"),
    cell("MaxRow",        &s_MosaicTemplate::maxRow,        "1"),
    cell("MaxCell",       &s_MosaicTemplate::maxCell,       "1"),
    cell("MaxWidth",      &s_MosaicTemplate::maxWidth,      "1"),
    cell("MaxHeight",     &s_MosaicTemplate::maxHeight,     "1"),
    cell("MaxPixel",      &s_MosaicTemplate::maxPixel,      "1"),
    list(Walk::Any, "", &s_MosaicTemplate::rectangles, rectangle));

constexpr auto subSourceType = cells(
    cell("Value",           &s_SubSourceType::value,           "1"),
    cell("DefaultTemplate", &s_SubSourceType::defaultTemplate, "1"),
    list(Walk::Any, "", &s_SubSourceType::mosaicTemplates, mosaicTemplate));

constexpr auto capacities = list(
    Walk::Any, "", &s_MOSAICSource::s_CapacityCalculate::capacities,
    cell("Value", &s_MOCSIACapacity::value),
    cell("Pixel", &s_MOCSIACapacity::pixel));

} // namespace

void readMosaicSource(const Reader& in, s_MOSAICSource& mosaic)
{
    in.read(mosaic, flags, cell("Style", &s_MOSAICSource::style, "1"));
    in.element("CapacityCalculate", OnNull::Skip, mosaic.capacityCalculate, flags, Value("1"), capacities);
    in.element("MosaicTemplates",   OnNull::Fail, mosaic,
               cell("DeviceDefaultTemplate", &s_MOSAICSource::deviceDefaultTemplate, "1"), Step("1"),
               list(Walk::Any, "", &s_MOSAICSource::subSourceTypes, subSourceType));
}
// clang-format on

} // namespace LCD::MainConfigImpl::featurefile
