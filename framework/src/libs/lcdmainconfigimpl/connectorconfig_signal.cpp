// Reads what the signal of a connector can be: copy protection, naming, colours, hot-plug detection. A missing element
// of an interface's entry costs that entry alone.
#include "connectorconfig_readers.h"

namespace LCD::MainConfigImpl::connectorreading {

// clang-format off
void readHDCP(const Reader& in, s_ConnectorHDCP& hdcp)
{
    in.read(hdcp, flags);
    in.stagedList(Walk::Any, "Interface", hdcp.interfaces, Type,
                  child("Enable", OnNull::FailAndLog, &s_InterfaceInHDCP::enable,   valueList),
                  child("Type",   OnNull::FailAndLog, &s_InterfaceInHDCP::hdcpType, valueList));
}

void readGeneral(const Reader& in, s_ConnectorGeneral& general)
{
    in.read(general, flags);
    in.element("Type",       OnNull::FailAndLog, general.type,       flags, DataType, enums(Walk::Any));
    in.element("Name",       OnNull::FailAndLog, general.name,       flags, DataType, Min, Max);
    in.element("NameGB2312", OnNull::FailAndLog, general.nameGB2312, flags, DataType, Min, Max);
}

void readColorDepths(const Reader& in, s_ConnectorColorDepths& depths)
{
    in.read(depths, flags);
    in.stagedList(Walk::Any, "Interface", depths.interfaces, Type,
                  child("ColorDepth", OnNull::FailAndLog, &s_InterfaceInColorDepth::colorDepth, valueList));
}

void readColorSpaces(const Reader& in, s_ConnectorColorSpaces& spaces)
{
    in.read(spaces, flags);
    in.stagedList(Walk::Any, "Interface", spaces.interfaces, Type,
                  child("ColorSpace", OnNull::FailAndLog, &s_InterfaceInColorSpace::colorSpace, valueList));
}

void readColorRanges(const Reader& in, s_ConnectorColorRanges& ranges)
{
    in.read(ranges, flags);
    in.stagedList(Walk::Any, "Interface", ranges.interfaces, Type,
                  child("ColorRange", OnNull::FailAndLog, &s_InterfaceInColorRange::colorRange, valueList));
}

void readHPDs(const Reader& in, s_ConnectorHPDs& hpds)
{
    in.read(hpds, flags);
    in.list(Walk::Any, "Interface", hpds.interfaces, Type, Support,
            child("HPD", OnNull::ReadDefaults, &s_ConnectorHPDs::s_HPDsInterface::hpd, Support, Value, Min, Max, Step));
}
// clang-format on

} // namespace LCD::MainConfigImpl::connectorreading
