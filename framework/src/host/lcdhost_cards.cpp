// The command that shows the card catalogue.
#include "lcdhost_commands.h"

#include <algorithm>

namespace lcdhost {
namespace {

/// The connector groups of the card in which a position stands.
QString groupsOf(const Lcd::s_Subcard& card, int position)
{
    QStringList groups;
    for (const Lcd::s_SubcardConnectorGroup& group : card.capacity.connectorGroups)
        for (const Lcd::s_SubcardConnector& connector : group.connectors)
            if (connector.position == position) groups.append(number(group.value));
    groups.removeDuplicates();
    return groups.join(", ");
}

void tellConnectors(const Session& session, const Lcd::s_Subcard& card, Page& page)
{
    Table table({numbers("Position"), numbers("Type"), words("Type name"), numbers("Interface"),
                 numbers("Capacity mode"), numbers("Work mode"), words("Groups")});
    std::vector<Lcd::s_SubcardConnector> connectors = card.connectors.connectors;
    std::stable_sort(connectors.begin(), connectors.end(),
                     [](const auto& a, const auto& b) { return a.position < b.position; });
    for (const Lcd::s_SubcardConnector& connector : connectors)
        table.add({number(connector.position), number(connector.type),
                   text(session.connectors().findConnectorTypeName(connector.type)), number(connector.interfaceType),
                   number(connector.capacityMode), number(connector.workMode), groupsOf(card, connector.position)});
    table.print(page, "no connectors");
}

void tellGroups(const Lcd::s_Subcard& card, Page& page)
{
    if (card.capacity.connectorGroups.empty()) return;
    Table table({numbers("Group"), numbers("To select"), words("Of positions")});
    for (const Lcd::s_SubcardConnectorGroup& group : card.capacity.connectorGroups)
        table.add({number(group.value), number(group.selectNum),
                   listed(group.connectors, [](const auto& connector) { return number(connector.position); })});
    page.line();
    table.print(page);
}

} // namespace

bool runCards(Session& session, const Options& /*options*/, Console& console)
{
    for (const Catalogue needed : {Catalogue::Devices, Catalogue::Cards, Catalogue::Connectors}) session.load(needed);
    const auto cards = session.cards().subcardConfig();
    if (cards->subcards.empty()) console.out.line("The card catalogue is empty.");
    for (const Lcd::s_Subcard& card : cards->subcards) {
        QStringList names{text(card.name.en), text(card.name.zhCN)};
        names.removeDuplicates();
        names.removeAll({});
        console.out.heading(QString("Card %1  ").arg(card.modelId) + names.join(" / "));
        tellConnectors(session, card, console.out);
        tellGroups(card, console.out);
    }
    return true;
}

} // namespace lcdhost
