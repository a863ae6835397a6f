// The readers of card files, one per subtree, and the words that they share.
#ifndef LCDMAINCONFIGIMPL_SUBCARDCONFIG_READERS_H
#define LCDMAINCONFIGIMPL_SUBCARDCONFIG_READERS_H

#include "lcdmainconfig/subcard.h"
#include "reading/cells.h"

namespace LCD::MainConfigImpl::cardfile {

using namespace LCD::MainConfig;
using namespace reading;

/// Every card below the element "Subcards". A card without a name is left out; any other fault fails the scope.
void readCards(const Reader& in, std::vector<s_Subcard>& cards);

void readDeviceMode(const Reader& in, s_DeviceModeInConnectors& mode);
void readType(const Reader& in, s_ConnectorInTypes& type);
void readCapacityGroup(const Reader& in, s_CapacityInCapacityGroups& group);
void readConnectorCopy(const Reader& in, s_Subcard& card);

/// Most lists of a card file: an entry for every child element, whatever its tag.
template <class Access, class... Cells> constexpr auto entries(Access access, Cells... parts)
{
    return list(Walk::Any, "", access, parts...);
}

/// A list of plain numbers: the attribute "Value" of "Enum" children.
template <class Access> constexpr auto numbers(Access access)
{
    return list(Walk::FirstNamed, "Enum", access, entry("Value"));
}

// clang-format off
/// A connector position. Not all records that start with these attributes have the group id.
inline constexpr auto connectorPosition = cells(
    cell("Type",          &s_SubcardConnector::type),
    cell("InterfaceType", &s_SubcardConnector::interfaceType),
    cell("Position",      &s_SubcardConnector::position),
    cell("Enable",        &s_SubcardConnector::enable),
    cell("PrintKeyNo",    &s_SubcardConnector::printKeyNo),
    cell("Visible",       &s_SubcardConnector::visible),
    cell("CapacityMode",  &s_SubcardConnector::capacityMode),
    cell("WorkMode",      &s_SubcardConnector::workMode),
    cell("BackupPos",     &s_SubcardConnector::backupPos));
// clang-format on

} // namespace LCD::MainConfigImpl::cardfile

#endif
