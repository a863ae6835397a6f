// The card file below "Connectors/DeviceMode": capacities with their connectors, and timing limits. Nothing here is an
// error.
#include "subcardconfig_readers.h"

namespace LCD::MainConfigImpl::cardfile {
namespace {

using CapacityConnector = s_ConnectorInConnectorsDeviceModeCapacitysCapacity;
using Capacity = s_CapacityInConnectorsDeviceModeCapacitys;
using TimingRange = s_WidthInConnectorsDeviceModeTiming;
using TimingDirection = s_HorizontalInConnectorsDeviceModeTiming;
using TimingLimits = s_ResolutionRatiosInConnectorsDeviceModeTiming;
using TimingCapacityMode = s_CapacityModeInConnectorsDeviceModeTiming;
using TimingInterface = s_InterfaceInConnectorsDeviceModeTiming;
using TimingConnector = s_ConnectorInConnectorsDeviceModeTiming;

// clang-format off
template <class Record> constexpr auto colorDepth = below("ColorDepth", OnNull::Skip,
    cell("Support",  &Record::colorDepthSupport),
    cell("Editable", &Record::colorDepthEditable),
    numbers(&Record::colorDepths));

constexpr auto innerColorSpace = cells(
    cell("Support",  &s_ColorSpace::innerSupport),
    cell("Editable", &s_ColorSpace::innerEditable),
    numbers(&s_ColorSpace::colorSpaces));

void loadConnectorInConnectorsDeviceModeCapacitysCapacity(const Reader& in, CapacityConnector& connector)
{
    // Without a colour space the colour depth is not read either, which is meant.
    if (!in.has("ColorSpace")) return;
    in.element("ColorSpace", OnNull::Skip, connector.colorSpace,
        Support, Editable,
        below("ColorSpace",       OnNull::Skip, innerColorSpace),
        below("ColorSpaceValues", OnNull::Skip, entries(&s_ColorSpace::values,
            Support, Editable, Value, colorDepth<s_ColorSpaceValue>)));
    in.read(connector, colorDepth<CapacityConnector>);
}

constexpr auto capacityConnector = cells(
    connectorPosition,
    cell("GroupId", &CapacityConnector::groupId),
    child("DynamicRange", OnNull::Skip, &CapacityConnector::dynamicRange, Support, Editable, Value, DataType),
    below("Interlaced",   OnNull::Skip, cell("Type", &CapacityConnector::interlacedType)),
    loadConnectorInConnectorsDeviceModeCapacitysCapacity);

constexpr auto capacity = cells(
    cell("Name",   &Capacity::name),
    cell("Enable", &Capacity::enable),
    cell("Value",  &Capacity::value),
    entries(&Capacity::connectors, capacityConnector));

void loadWidth(const Reader& in, TimingRange& range)
{
    in.read(range, Support, Value, Min, Max, Step);
}

void loadHorizontal(const Reader& in, TimingDirection& direction)
{
    in.element("AddTime",    OnNull::ReadDefaults, direction.addTime,    loadWidth);
    in.element("TotalTime",  OnNull::ReadDefaults, direction.totalTime,  loadWidth);
    in.element("FrontPorch", OnNull::ReadDefaults, direction.frontPorch, loadWidth);
    in.element("Sync",       OnNull::ReadDefaults, direction.sync,       loadWidth);
}

constexpr auto timingLimits = cells(
    Support,
    below("ResolutionRatio", OnNull::ReadDefaults,
        child("Width",      OnNull::ReadDefaults, &TimingLimits::width,      loadWidth),
        child("Height",     OnNull::ReadDefaults, &TimingLimits::height,     loadWidth)),
    below("AdvResolutionRatio", OnNull::ReadDefaults,
        child("Horizontal", OnNull::ReadDefaults, &TimingLimits::horizontal, loadHorizontal),
        child("Vertical",   OnNull::ReadDefaults, &TimingLimits::vertical,   loadHorizontal)));

constexpr auto timingCapacityMode = cells(
    child("ResolutionRatios", OnNull::ReadDefaults, &TimingCapacityMode::resolutionRatios, timingLimits),
    Support, Value);

constexpr auto timing = cells(
    Support, Type,
    entries(&TimingConnector::interfaces,
        Support, Type,
        entries(&TimingInterface::capacityModes, timingCapacityMode)));
// clang-format on

} // namespace

void readDeviceMode(const Reader& in, s_DeviceModeInConnectors& mode)
{
    // clang-format off
    in.read(mode,
        Value,
        below("Capacitys", OnNull::Skip,
            cell("Value", &s_DeviceModeInConnectors::capacitysValue),
            entries(&s_DeviceModeInConnectors::capacitys, capacity)),
        below("Timing", OnNull::Skip,
            entries(&s_DeviceModeInConnectors::timing, timing)));
    // clang-format on
}

} // namespace LCD::MainConfigImpl::cardfile
