// The command that shows the card catalogue.
#include "lcdhost_commands.h"

#include <algorithm>

namespace lcdhost {
namespace {

/// The connector groups of the card in which a position stands.
QJsonArray groupsOf(const Lcd::s_Subcard& card, int position)
{
    QJsonArray groups;
    for (const Lcd::s_SubcardConnectorGroup& group : card.capacity.connectorGroups)
        for (const Lcd::s_SubcardConnector& connector : group.connectors)
            if (connector.position == position && !groups.contains(group.value)) groups.append(group.value);
    return groups;
}

Records connectorsOf(const Session& session, const Lcd::s_Subcard& card)
{
    Records records({numbers("Position"), numbers("Type"), words("Type name"), numbers("Interface"),
                     numbers("Capacity mode"), numbers("Work mode"), words("Groups")});
    std::vector<Lcd::s_SubcardConnector> connectors = card.connectors.connectors;
    std::stable_sort(connectors.begin(), connectors.end(),
                     [](const auto& a, const auto& b) { return a.position < b.position; });
    for (const Lcd::s_SubcardConnector& connector : connectors)
        records.add({connector.position, connector.type, session.connectorName(connector.type), connector.interfaceType,
                     connector.capacityMode, connector.workMode, groupsOf(card, connector.position)});
    return records;
}

Records groupsOf(const Lcd::s_Subcard& card)
{
    Records records({numbers("Group"), numbers("To select"), words("Of positions")});
    for (const Lcd::s_SubcardConnectorGroup& group : card.capacity.connectorGroups)
        records.add({group.value, group.selectNum,
                     jsonArray(group.connectors, [](const auto& connector) { return connector.position; })});
    return records;
}

QString titleOf(const Lcd::s_Subcard& card)
{
    QStringList names{text(card.name.en), text(card.name.zhCN)};
    names.removeDuplicates();
    names.removeAll({});
    return QString("Card %1  ").arg(card.modelId) + names.join(" / ");
}

} // namespace

Answer runCards(Session& session, const Options& /*options*/)
{
    for (const Catalogue needed : {Catalogue::Devices, Catalogue::Cards, Catalogue::Connectors}) session.load(needed);
    const auto& cards = session.allCards().subcards;
    Answer answer;
    QJsonArray all;
    if (cards.empty()) answer.show([](Page& page) { page.line("The card catalogue is empty."); });
    for (const Lcd::s_Subcard& card : cards) {
        const Records connectors = connectorsOf(session, card);
        const Records groups = groupsOf(card);
        all.append(QJsonObject{{"model", card.modelId},
                               {"name", QJsonObject{{"en", text(card.name.en)}, {"zh_CN", text(card.name.zhCN)}}},
                               {"connectors", connectors.json()},
                               {"groups", groups.json()}});
        answer.show([title = titleOf(card), connectors, groups](Page& page) {
            page.heading(title);
            connectors.print(page, "no connectors");
            if (groups.json().isEmpty()) return;
            page.line();
            groups.print(page);
        });
    }
    answer.json["cards"] = all;
    return answer;
}

} // namespace lcdhost
