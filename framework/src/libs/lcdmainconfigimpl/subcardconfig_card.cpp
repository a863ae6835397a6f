// The card file below "Subcards": the card itself, its connector positions and its connector groups.
#include "subcardconfig_readers.h"

namespace LCD::MainConfigImpl::cardfile {
namespace {

// clang-format off
constexpr auto virtualInput = cells(
    part(&s_SubcardConnector::virtualInput, Support, Editable),
    below("InputPositions", OnNull::Skip, list(Walk::Named, "Position", &s_SubcardConnector::inputPositions,
        cell("Value",         &s_Position::value),
        cell("InterfaceType", &s_Position::interfaceType))));

void readConnector(const Reader& in, s_SubcardConnector& connector)
{
    in.read(connector, connectorPosition);
    in.each(Walk::Named, "virtualInput", [&](const Reader& input) { input.read(connector, virtualInput); });
}

void readConnectors(const Reader& in, s_Connectors& connectors)
{
    in.list(Walk::Named, "Connector",  connectors.connectors,  readConnector);
    in.list(Walk::Named, "DeviceMode", connectors.deviceModes, readDeviceMode);
    in.each(Walk::Named, "Types", [&](const Reader& types) { types.list(Walk::Any, "", connectors.types, readType); });
}

constexpr auto connectorGroup = cells(
    cell("Value",     &s_SubcardConnectorGroup::value),
    cell("SelectNum", &s_SubcardConnectorGroup::selectNum),
    entries(&s_SubcardConnectorGroup::connectors, connectorPosition));

constexpr auto connectorGroups = cells(
    cell("Value", &s_Capacity::value),
    below("Capacity", OnNull::Fail,
        cell("Name",  &s_Capacity::name),
        cell("Value", &s_Capacity::capacityValue),
        entries(&s_Capacity::connectorGroups, connectorGroup)));

constexpr auto card = cells(
    cell("ModelId",            &s_Subcard::modelId),
    cell("CardMode",           &s_Subcard::cardMode),
    cell("InterlacedMaxCount", &s_Subcard::interlacedMaxCount, "", Unsigned16{}),
    child("Name",            OnNull::Fail,       &s_Subcard::name,       languages),
    child("Connectors",      OnNull::Skip,       &s_Subcard::connectors, readConnectors),
    child("ConnectorGroups", OnNull::NoteAndLog, &s_Subcard::capacity,   connectorGroups),
    below("CapacityGroups",  OnNull::NoteAndLog, entries(&s_Subcard::capacityGroups, readCapacityGroup)),
    below("Sections",        OnNull::NoteAndLog, entries(&s_Subcard::sections, entry("Code"))),
    below("ConnectorCopy",   OnNull::Skip,       readConnectorCopy));
// clang-format on

} // namespace

void readCards(const Reader& in, std::vector<s_Subcard>& cards)
{
    in.each(Walk::Any, "", [&](const Reader& element) {
        // Without its name the card is left out and the load goes on, whereas a name without a language ends it.
        bool nameless = false;
        element.scoped(nameless).demand("Name");
        if (!nameless) element.append(cards, card);
    });
}

} // namespace LCD::MainConfigImpl::cardfile
