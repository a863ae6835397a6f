// Reads the preset timings of a connector and the choice among timings. A missing element of a preset timing costs that
// interface alone.
#include "connectorconfig_readers.h"

namespace LCD::MainConfigImpl::connectorreading {
namespace {

using Timing = s_PreSetTimingInterface;
using Direction = s_PresetHorizontal;

// clang-format off
constexpr auto limits = cells(Support, Editable, Min, Max, DataType);

/// The allowed values of a setting, plain numbers that stand beside it in its owner's record.
template <class Access> constexpr auto values(Access access) { return list(Walk::Any, "Enum", access, entry("Value")); }

void readDirection(const Reader& in, Direction& direction)
{
    in.read(direction, flags);
    in.element("AddTime",      OnNull::FailAndLog, direction.addTime,    limits, Value);
    in.element("FrontPorch",   OnNull::FailAndLog, direction.frontPorch, limits);
    in.element("Sync",         OnNull::FailAndLog, direction.sync,       limits);
    in.element("SyncPolarity", OnNull::FailAndLog, direction,            part(&Direction::syncPolarity, setting), values(&Direction::syncPolarityValues));
    in.element("TotalTime",    OnNull::FailAndLog, direction.totalTime,  limits);
}

void readTiming(const Reader& in, Timing& timing)
{
    in.read(timing, Type);
    in.element("Interlaced", OnNull::FailAndLog, timing,            part(&Timing::interlaced, setting), values(&Timing::interlacedValues));
    in.element("BandWidth",  OnNull::FailAndLog, timing.bandWidth,  limits);
    in.element("Refresh",    OnNull::FailAndLog, timing,            part(&Timing::refresh, setting), Coefficient, values(&Timing::refreshValues));
    in.element("Horizontal", OnNull::FailAndLog, timing.horizontal, readDirection);
    in.element("Vertical",   OnNull::FailAndLog, timing.vertical,   readDirection);
}
// clang-format on

} // namespace

void readPresetTiming(const Reader& in, s_ConnectorCfg& connector)
{
    in.read(connector.presetTiming, flags);
    in.stagedList(Walk::Any, "Interface", connector.presetTimings, readTiming);
}

void readTimingSelect(const Reader& in, s_ConnectorTimingSelect& timingSelect)
{
    in.read(timingSelect, flags);
    in.element("Select", OnNull::Fail, timingSelect.select, valueList);
}

} // namespace LCD::MainConfigImpl::connectorreading
