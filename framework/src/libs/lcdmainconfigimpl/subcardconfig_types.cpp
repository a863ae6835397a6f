// The card file below "Connectors/Types": what the card offers per connector type. Nothing here is an error.
#include "subcardconfig_readers.h"

namespace LCD::MainConfigImpl::cardfile {
namespace {

/// A child of which there should be one; of several the last replaces those before it.
template <class Access, class... Cells> constexpr auto last(Literal tag, Access access, Cells... parts)
{
    return [tag, access, parts...](const Reader& in, auto& record) {
        in.each(Walk::Named, tag, [&](const Reader& element) {
            std::invoke(access, record) = {};
            element.read(std::invoke(access, record), parts...);
        });
    };
}

// clang-format off
constexpr auto loadInterfaceInTypes = cells(
    Type,
    below("Capacitys", OnNull::Skip, numbers(&s_InterfaceInTypes::capacitys)));

/// Two tags for one thing; both go into one list, in file order.
void readInterfaces(const Reader& in, s_ConnectorInTypes& type)
{
    in.each(Walk::Any, "", [&](const Reader& element) {
        if (element.is("InterfaceType") || element.is("Interface"))
            element.append(type.interfaces, loadInterfaceInTypes);
    });
}

constexpr auto outputDisplay = below("InterfaceType", OnNull::ReadDefaults,
    Type,
    below("OutputDisplay", OnNull::Skip, numbers(&s_OutputDisplayInTypes::outputDisplays)));

constexpr auto hpds = cells(
    Support,
    entries(&s_HPDsInterface::interfaces,
        Type, Support,
        child("HPD", OnNull::ReadDefaults, &s_HPDsInterfaceIn::hpd, Support, Value, Min, Max, Step)));

constexpr auto followProperty = cells(
    Support, Editable,
    list(Walk::FirstNamed, "Interface", &s_ConnectorInTypes::s_FollowProperty::interfaces,
        Type,
        below("FollowInterfaceType", OnNull::Skip,
            part(&s_FollowPropertyInterface::followInterfaceType, Support, Editable),
            numbers(&s_FollowPropertyInterface::followInterfaceTypes)),
        below("Propertys", OnNull::Skip,
            part(&s_FollowPropertyInterface::propertys, Support, Editable),
            numbers(&s_FollowPropertyInterface::propertyValues))));

constexpr auto presetCapacityMode = cells(
    Value,
    below("Refreshs", OnNull::Skip,
        part(&s_CapacityModeWk::refreshs, Support, Editable),
        list(Walk::FirstNamed, "Refresh", &s_CapacityModeWk::refreshValues,
            Support, Editable,
            cell("Value", &s_BaseAttr::value, "", Hundredths{}))),
    below("ResolutionRatios", OnNull::Skip,
        part(&s_CapacityModeWk::resolutionRatios, Support, Editable),
        list(Walk::FirstNamed, "ResolutionRatio", &s_CapacityModeWk::resolutions,
            Support, Editable, Width, Height,
            cell("Interlaced", &s_WorkResolution::interlaced))));

constexpr auto presetTiming = cells(
    Support, Editable,
    list(Walk::FirstNamed, "Interface", &s_ConnectorInTypes::s_PresetTiming::interfaces,
        Type,
        below("WorkModes", OnNull::Skip, list(Walk::FirstNamed, "WorkMode", &s_PresetInterface::workModes,
            Value,
            below("CapacityModes", OnNull::Skip, list(Walk::FirstNamed, "CapacityMode", &s_WorkMode::capacityModes,
                presetCapacityMode))))));
// clang-format on

} // namespace

void readType(const Reader& in, s_ConnectorInTypes& type)
{
    // clang-format off
    in.read(type,
        Type,
        readInterfaces,
        list(Walk::Named, "OutputDisplay", &s_ConnectorInTypes::outputDisplays, outputDisplay),
        last("HPDs",           &s_ConnectorInTypes::hpds,           hpds),
        last("FollowProperty", &s_ConnectorInTypes::followProperty, followProperty),
        last("PresetTiming",   &s_ConnectorInTypes::presetTiming,   presetTiming));
    // clang-format on
}

} // namespace LCD::MainConfigImpl::cardfile
