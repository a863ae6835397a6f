// The functions below "Features" that only a few settings describe, and the device's general data.
#include "devicefeatureconfig_readers.h"

namespace LCD::MainConfigImpl::featurefile {

using namespace LCD::MainConfig;
using namespace reading;

// clang-format off
void readScreen(const Reader& in, s_FuncFeatures::s_ScreenFeature& screen)
{
    in.read(screen, flags);
    in.element("ScreenId",   OnNull::Fail, screen.screenId,   Min("0"), Max("255"), DataType("0"), flags);
    in.element("ScreenType", OnNull::Fail, screen.screenType, DataType("0"), flags, enums(Walk::Any));
}

void readGenlock(const Reader& in, s_Genlock& genlock)
{
    in.read(genlock, flags, cell("SupportType", &s_Genlock::attrMode, "2"));
    in.element("Type",           OnNull::Fail, genlock.type,   DataType("0"), flags, Value("0"), enums(Walk::Any));
    const Reader phase = in.required("Phase");
    phase.read(genlock.phase, flags);
    phase.element("Enable",      OnNull::Fail, genlock.enable, DataType("0"), flags, Value("0"), enums(Walk::Any));
    phase.element("Offset",      OnNull::Fail, genlock.offset, DataType("0"), flags, Value("0"), Min("0"), Max("0"));
    in.element("ConnectorTypes", OnNull::Skip, genlock.connectorTypes, enums(Walk::Any));
}

void readDynamicRangConversion(const Reader& in, s_DynamicRangConversion& conversion)
{
    in.read(conversion, flags);
    in.element("Enable", OnNull::Fail, conversion.enable, DataType("0"), flags, Value("0"), enums(Walk::Any));
    // The type takes its attributes from "Enable" and only its list from "Type", which is meant.
    in.element("Enable", OnNull::Fail, conversion.type,   DataType("0"), flags, Value("0"));
    in.element("Type",   OnNull::Fail, conversion.type,   enums(Walk::Any));
}

void readDynamicRang(const Reader& in, s_BaseAttr& dynamicRang)
{
    in.read(dynamicRang, DataType("0"), flags, Value("0"));
}

namespace {

void readTestPattern(const Reader& in, s_DeviceFeatTestPattern& pattern)
{
    in.read(pattern, flags);
    in.element("Enable",        OnNull::Fail, pattern.enable,        DataType("0"), flags, Value("0"), enums(Walk::Any));
    in.element("Type",          OnNull::Fail, pattern.type,          DataType("0"), flags, Value("0"), enums(Walk::Any));
    in.element("Bright",        OnNull::Fail, pattern.bright,        DataType("0"), flags, Value("0"), Min("0"), Max("0"));
    in.element("GridSpace",     OnNull::Fail, pattern.gridSpace,     DataType("0"), flags, Value("0"), Min("0"), Max("0"));
    in.element("GridLineWidth", OnNull::Fail, pattern.gridLineWidth, DataType("0"), flags, Value("0"), Min("0"), Max("0"));
    in.element("Speed",         OnNull::Fail, pattern.speed,         DataType("0"), flags, Value("0"), Min("0"), Max("0"));
}

} // namespace

void readInterfaceMapping(const Reader& in, s_InterfaceMapping& mapping)
{
    in.read(mapping, flags);
    in.element("Type",        OnNull::Fail, mapping.type,        DataType("0"), flags, Value("0"), enums(Walk::Any));
    in.element("TestPattern", OnNull::Fail, mapping.testPattern, readTestPattern);
}

void readCutoutPos(const Reader& in, s_CutoutPos& cutoutPos)
{
    in.read(cutoutPos, flags);
    in.element("Enable", OnNull::Fail, cutoutPos.enable, flags, DataType("0"), Value("0"), enums(Walk::Any));
    in.element("Type",   OnNull::Fail, cutoutPos.type,   flags, DataType("0"), Value("0"), enums(Walk::Any));
}

void readGroup(const Reader& in, s_FuncFeatures::s_GroupFeature& group)
{
    in.read(group, flags);
    in.element("Name", OnNull::Fail, group.name, DataType("0"), flags, Value, Min("0"), Max("255"));
}

void readSwap(const Reader& in, s_EnumField& swap)
{
    in.read(swap, flags, DataType("0"), Value("0"), enums(Walk::FirstNamed));
}

void readLanguage(const Reader& in, s_Language& language)
{
    in.read(language, flags, DataType("0"), Value("0"), enums(Walk::FirstNamed));
}

void readQuickTopology(const Reader& in, s_QuickToPology& topology)
{
    in.read(topology, flags);
    in.element("Width",      OnNull::Fail, topology.width,      flags, Max, Min);
    in.element("Height",     OnNull::Fail, topology.height,     flags, Max, Min);
    // Unlike elsewhere, what stands before the gap is kept when this one is absent, which is meant.
    in.element("LayoutType", OnNull::Note, topology.layoutType, flags, enums(Walk::FirstNamed));
}

void readGeneral(const Reader& in, s_General& general)
{
    in.read(general, flags);
    // The name is described by attributes of "General"; "Name" itself only has to be there, which is meant.
    if (!in.has("Name")) in.fail("Name");
    in.read(general.name, flags, DataType("0"), Min("0"), Max("255"));
    in.element("Status", OnNull::Fail, general.status, flags, DataType("0"), Value("0"), enums(Walk::FirstNamed));
}
// clang-format on

} // namespace LCD::MainConfigImpl::featurefile
