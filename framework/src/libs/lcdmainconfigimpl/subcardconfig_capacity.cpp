// The card file below "CapacityGroups" and "ConnectorCopy": which connectors go together per capacity and device mode.
#include "subcardconfig_readers.h"

namespace LCD::MainConfigImpl::cardfile {
namespace {

// clang-format off
constexpr auto groupConnector = cells(
    cell("Position",     &s_ConnectorInCapacityGroups::position),
    cell("Enable",       &s_ConnectorInCapacityGroups::enable),
    cell("Visible",      &s_ConnectorInCapacityGroups::visible),
    cell("CapacityMode", &s_ConnectorInCapacityGroups::capacityMode),
    cell("WorkMode",     &s_ConnectorInCapacityGroups::workMode),
    cell("BackupPos",    &s_ConnectorInCapacityGroups::backupPos));

constexpr auto copyGroup = cells(
    Value,
    entries(&s_ConnectorGroupInfo::connectors, cell("Position", &s_ConnectorInfo::position)));

constexpr auto copyCapacity = cells(
    cell("Name",   &s_CapacityInfo::name),
    cell("Enable", &s_CapacityInfo::enable),
    cell("Value",  &s_CapacityInfo::value),
    entries(&s_CapacityInfo::deviceModes,
        Value,
        entries(&s_DeviceModeInfo::connectorGroups, copyGroup)));
// clang-format on

} // namespace

// clang-format off
void readCapacityGroup(const Reader& in, s_CapacityInCapacityGroups& group)
{
    in.read(group,
        cell("Name",   &s_CapacityInCapacityGroups::name),
        cell("Enable", &s_CapacityInCapacityGroups::enable),
        cell("Value",  &s_CapacityInCapacityGroups::value),
        below("DeviceModes", OnNull::Fail, entries(&s_CapacityInCapacityGroups::deviceModes,
            Value,
            entries(&s_SubcardDeviceMode::connectors, groupConnector))));
}

void readConnectorCopy(const Reader& in, s_Subcard& card)
{
    in.read(card,
        cell("Support",  &s_Subcard::connectorCopySupport),
        cell("Editable", &s_Subcard::connectorCopyEditable),
        cell("Value",    &s_Subcard::connectorCopyValue),
        below("MainRelated", OnNull::Skip,
            cell("Support",  &s_Subcard::mainRelatedSupport),
            cell("Editable", &s_Subcard::mainRelatedEditable),
            entries(&s_Subcard::mainRelatedCapacitys, copyCapacity)));
}
// clang-format on

} // namespace LCD::MainConfigImpl::cardfile
