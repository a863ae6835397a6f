// The device modes of a screen type: the templates that cut a physical screen into cells, and the layer types that may
// be opened on it. Every list takes all children of its element, whatever their tags.
#include "reading/cells.h"
#include "screenconfigmanager_impl.h"

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;
using namespace reading;

namespace {

// clang-format off
constexpr auto layout = cells(
    cell("Rows",     &s_Layout::rows),
    cell("Columns",  &s_Layout::columns),
    cell("ScreenId", &s_Layout::screenId),
    list(Walk::Any, "Cell", &s_Layout::cells,
         cell("X",              &s_Cell::x),
         cell("Y",              &s_Cell::y),
         cell("Width",          &s_Cell::width),
         cell("Height",         &s_Cell::height),
         cell("Row",            &s_Cell::row),
         cell("Column",         &s_Cell::column),
         cell("SlotIndex",      &s_Cell::slotIndex),
         cell("ConnectorIndex", &s_Cell::connectorIndex)));

// Under "PhysicalSize" the value is "Support" once more, and "Value" is not looked at; this is meant.
constexpr auto supportAsValue = cell("Support", &s_BaseAttr::value);
constexpr auto length         = cells(Support, Editable, supportAsValue, Min, Max, DataType);
constexpr auto lengthUnit     = cells(Support, Editable, supportAsValue, DataType, enums(Walk::Any));

constexpr auto templete = cells(
    child("Name", OnNull::Skip, &s_Templete::name,
          cell("en",    &s_Name::en),
          cell("zh_CN", &s_Name::zhCN)),
    below("Layouts", OnNull::Skip, list(Walk::Any, "Layout", &s_Templete::layouts, layout)),
    below("PhysicalSize", OnNull::Skip,
          child("DotPitch", OnNull::Skip, &s_Templete::dotPitch, length),
          child("Unit",     OnNull::Skip, &s_Templete::unit,     lengthUnit),
          child("Width",    OnNull::Skip, &s_Templete::width,    length),
          child("Height",   OnNull::Skip, &s_Templete::height,   length)));

constexpr auto layerType = cells(
    cell("Value", &s_LayerType::layerType),
    below("LayerCount", OnNull::Skip,
          cell("Max",   &s_LayerType::layerCountMax,   "1"),
          cell("Valid", &s_LayerType::layerCountValid, "1")),
    child("Unit", OnNull::Skip, &s_LayerType::unit, Value("1"), DataType("1"), enums(Walk::Any)));

constexpr auto deviceMode = cells(
    Value,
    below("PVW", OnNull::Skip,
          cell("Support", &s_ScreenDeviceMode::pvwSupport, "1"),
          cell("SoftImp", &s_ScreenDeviceMode::pvwSoftImp, "1")),
    below("Templetes", OnNull::Skip,
          cell("Value", &s_ScreenDeviceMode::templetesValue, "1"),
          list(Walk::Any, "Templete", &s_ScreenDeviceMode::templetes, templete)),
    below("LayerTypes", OnNull::Skip, list(Walk::Any, "LayerType", &s_ScreenDeviceMode::layerTypes, layerType)));
// clang-format on

} // namespace

void readDeviceModes(const Reader& in, s_Screen& screen)
{
    in.read(screen.deviceModesInfo, Support("1"), Editable("1"));
    in.list(Walk::Any, "DeviceMode", screen.deviceModes, deviceMode);
}

} // namespace LCD::MainConfigImpl
