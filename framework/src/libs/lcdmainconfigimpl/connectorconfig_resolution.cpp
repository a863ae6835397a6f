// Reads the resolution file and the capacity modes of a connector. A missing element of a capacity mode, other than the
// list of disabled resolutions, costs the whole connector.
#include "connectorconfig_readers.h"

namespace LCD::MainConfigImpl::connectorreading {
namespace {

// clang-format off
constexpr auto limits = cells(Min, Max);
constexpr auto extent = cells(Support, Editable, Value, Min, Max, Step, DataType);

void readDefaultResolution(const Reader& in, s_ResolutionRatio& resolution)
{
    in.read(resolution, flags);
    in.element("Width",       OnNull::Fail, resolution.width,  extent);
    in.element("Height",      OnNull::Fail, resolution.height, extent);
    in.element("RefreshRate", OnNull::Fail, resolution,        part(&s_ResolutionRatio::refreshRate, range), Coefficient);
}

void readTimes(const Reader& in, s_ConnectorHorizontal& direction)
{
    in.element("AddTime",    OnNull::Fail, direction.addTime,    limits);
    in.element("FrontPorch", OnNull::Fail, direction.frontPorch, limits);
    in.element("Sync",       OnNull::Fail, direction.sync,       limits);
    in.element("TotalTime",  OnNull::Fail, direction.totalTime,  limits);
}

void readCustomTiming(const Reader& in, s_ResolutionRatios::s_AdvResolutionRatio& timing)
{
    in.read(timing, flags);
    in.element("Refresh",    OnNull::Fail, timing.refresh,    range);
    in.element("Horizontal", OnNull::Fail, timing.horizontal, flags, readTimes);
    // It is meant that the flags of "Vertical" are not read, unlike those of a preset timing.
    in.element("Vertical",   OnNull::Fail, timing.vertical,   readTimes);
}

void readResolutionRatios(const Reader& in, s_ResolutionRatios& ratios)
{
    in.read(ratios, flags);
    in.element("ResolutionRatio",    OnNull::Fail, ratios.defaultResolution,  readDefaultResolution);
    in.element("AdvResolutionRatio", OnNull::Fail, ratios.advResolutionRatio, readCustomTiming);
    in.element("Disables",           OnNull::Skip, ratios,
               list(Walk::Any, "ResolutionRatio", &s_ResolutionRatios::disables, Width, Height, Coefficient));
}

void readMode(const Reader& in, s_CapacityModeInInterface& mode)
{
    in.read(mode, flags, Value);
    in.element("BandWidth",        OnNull::Fail, mode.bandWidth,        flags, Max, Min);
    in.element("ResolutionRatios", OnNull::Fail, mode.resolutionRatios, readResolutionRatios);
}

} // namespace

void readCapacityMode(const Reader& in, s_ConnectorCfg& connector)
{
    in.read(connector.capacityMode, flags);
    in.list(Walk::Any, "Interface", connector.interfaces,
            Type, list(Walk::Any, "CapacityMode", &s_Interface::capacityModes, readMode));
}

void readStandardResolutions(const Reader& in, s_DCSResolution& standard)
{
    in.list(Walk::Any, "CapacityMode", standard.capacityModes,
            Value, list(Walk::Any, "ResolutionRatio", &s_ResoluCapacityMode::resolutions,
                        Width, Height, cell("Interlaced", &s_resolutionResolutionRatio::interlaced)));
}
// clang-format on

} // namespace LCD::MainConfigImpl::connectorreading
