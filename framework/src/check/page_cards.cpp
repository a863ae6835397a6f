// The cards: a face plate each, with its connectors, what they may carry in each device mode and capacity, and where
// the card may sit.
#include "page_parts.h"

#include <algorithm>

namespace lcdcheck {
namespace {

/// More cards than these are shown folded, so that the page scrolls.
constexpr std::size_t UNFOLDED = 12;

constexpr double BOX_WIDTH = 112;
constexpr double BOX_HEIGHT = 104;
constexpr double BOX_GAP = 8;
constexpr int BOXES_IN_ROW = 8;
constexpr int CAPACITY_MODES = 3;

Words cardModeWords(int mode)
{
    static const Words names[] = {{"control", "主控"},    {"input", "输入"},     {"output", "输出"},
                                  {"multi-view", "预监"}, {"auxiliary", "辅助"}, {"mixed", "混合"}};
    const Words number = plain(QString::number(mode));
    if (mode < 0 || mode >= int(std::size(names))) return number;
    return {number.english + ' ' + names[mode].english, number.chinese + ' ' + names[mode].chinese};
}

const char* colourOf(int interfaceType)
{
    switch (interfaceType) {
    case 1:
        return "port in";
    case 2:
        return "port out";
    case 4:
        return "port multiview";
    case 8:
        return "port auxiliary";
    default:
        return "port";
    }
}

QString groupsOf(const Lcd::s_Subcard& card, int position)
{
    QStringList groups;
    for (const Lcd::s_SubcardConnectorGroup& group : card.capacity.connectorGroups)
        for (const Lcd::s_SubcardConnector& connector : group.connectors)
            if (connector.position == position) groups.append(QString::number(group.value));
    groups.removeDuplicates();
    return groups.join(", ");
}

std::vector<Lcd::s_SubcardConnector> byPosition(const Lcd::s_Subcard& card)
{
    std::vector<Lcd::s_SubcardConnector> connectors = card.connectors.connectors;
    std::ranges::stable_sort(connectors, {}, &Lcd::s_SubcardConnector::position);
    return connectors;
}

/// As much of the text as the width holds; a Chinese character is as wide as two others.
QString fitting(const QString& text, int columns)
{
    QString kept;
    for (const QChar character : text) {
        columns -= character.unicode() >= 0x2E80 ? 2 : 1;
        if (columns < 0) return kept + QStringLiteral("…");
        kept += character;
    }
    return kept;
}

// --- The face plate

/// A connector's socket with an arrow through it, as the signal goes: inward, outward, or neither.
void drawSocket(Sheet& sheet, const Lcd::s_SubcardConnector& connector)
{
    const bool hasSocket = connector.printKeyNo != 0 && connector.virtualInput.support == 0;
    sheet.out.empty("rect", {{"class", QString(colourOf(connector.interfaceType)) + (hasSocket ? "" : " dashed")},
                             {"x", 42},
                             {"y", 12},
                             {"width", 58},
                             {"height", 26},
                             {"rx", 6}});
    const bool outward = (connector.interfaceType & 1) == 0;
    sheet.out.empty("path",
                    {{"class", "arrow"}, {"d", outward ? "M58 25h22m-6-6l6 6l-6 6" : "M84 25h-22m6-6l-6 6l6 6"}});
}

void drawConnector(Sheet& sheet, const Lcd::s_Subcard& card, const Lcd::s_SubcardConnector& connector)
{
    Markup& out = sheet.out;
    const PageConnectorType* type = sheet.model.type(connector.type);
    const bool known = type != nullptr && type->known;
    const bool off = connector.enable == 0 || connector.visible == 0;
    out.empty("rect", {{"class", QString(known ? "box" : "box bad") + (off ? " off" : "")},
                       {"width", BOX_WIDTH},
                       {"height", BOX_HEIGHT},
                       {"rx", 5}});
    out.leaf("text", {{"class", "number"}, {"x", 21}, {"y", 33}}, QString::number(connector.position));
    drawSocket(sheet, connector);
    if (known)
        out.leaf("text", {{"class", "strong"}, {"x", 10}, {"y", 58}},
                 Words{fitting(type->name.english, 15), fitting(type->name.chinese, 15)});
    else
        out.leaf("text", {{"class", "bad"}, {"x", 10}, {"y", 58}},
                 Words{"no type %1", "无类型 %1"}.with(connector.type));
    out.leaf("text", {{"class", "faint"}, {"x", 10}, {"y", 76}}, interfaceWords(connector.interfaceType));
    for (int mode = 0; mode < CAPACITY_MODES; ++mode)
        out.empty("rect", {{"class", mode <= connector.capacityMode ? "pip on" : "pip"},
                           {"x", 10 + mode * 12},
                           {"y", 86},
                           {"width", 9},
                           {"height", 9},
                           {"rx", 2}});
    const QString groups = groupsOf(card, connector.position);
    if (!groups.isEmpty())
        out.leaf("text", {{"class", "faint end"}, {"x", BOX_WIDTH - 10}, {"y", 95}},
                 Words{"group %1", "组 %1"}.with(groups));
}

void drawFacePlate(Sheet& sheet, const Lcd::s_Subcard& card)
{
    const std::vector<Lcd::s_SubcardConnector> connectors = byPosition(card);
    if (connectors.empty()) return nothing(sheet, {"This card has no connector.", "此板卡没有接口。"});
    const auto count = int(connectors.size());
    const int columns = std::min(count, BOXES_IN_ROW);
    const int rows = (count + BOXES_IN_ROW - 1) / BOXES_IN_ROW;
    const Drawing drawing(sheet, Drawing::Kind::WithLinks, columns * (BOX_WIDTH + BOX_GAP) + BOX_GAP,
                          rows * (BOX_HEIGHT + BOX_GAP) + BOX_GAP,
                          Words{"Face plate of card %1", "板卡 %1 的面板"}.with(card.modelId), "plate");
    sheet.out.empty("rect", {{"class", "plate"}, {"width", "100%"}, {"height", "100%"}, {"rx", 6}});
    for (int at = 0; at < count; ++at) {
        const Lcd::s_SubcardConnector& connector = connectors[std::size_t(at)];
        const double x = BOX_GAP + at % BOXES_IN_ROW * (BOX_WIDTH + BOX_GAP);
        const double y = BOX_GAP + at / BOXES_IN_ROW * (BOX_HEIGHT + BOX_GAP);
        const PageConnectorType* type = sheet.model.type(connector.type);
        const bool known = type != nullptr && type->known;
        const Element place(sheet.out, "g", {{"transform", QString("translate(%1 %2)").arg(x).arg(y)}});
        const Element link(sheet.out, "a", {{"href", known ? '#' + type->anchor : QString()}});
        drawConnector(sheet, card, connector);
    }
}

// --- Tables

QString inputsOf(const Lcd::s_SubcardConnector& connector)
{
    QStringList positions;
    for (const Lcd::s_Position& position : connector.inputPositions) positions.append(QString::number(position.value));
    return positions.join(", ");
}

void writeConnectorRow(Sheet& sheet, const Lcd::s_Subcard& card, const Lcd::s_SubcardConnector& connector)
{
    Markup& out = sheet.out;
    const Element row(out, "tr");
    out.leaf("th", {{"scope", "row"}}, QString::number(connector.position));
    {
        const Element cell(out, "td");
        typeLink(sheet, connector.type);
    }
    Words interface = interfaceWords(connector.interfaceType);
    const QString number = QString::number(connector.interfaceType) + ' ';
    out.leaf("td", {}, Words{number + interface.english, number + interface.chinese});
    out.leaf("td", {}, QString::number(connector.capacityMode));
    out.leaf("td", {}, groupsOf(card, connector.position));
    const Element cell(out, "td");
    if (connector.enable == 0) out.words({"not enabled. ", "未启用。"});
    if (connector.visible == 0) out.words({"hidden. ", "隐藏。"});
    if (connector.virtualInput.support != 0)
        out.words(Words{"virtual, made of %1. ", "虚拟，由 %1 组成。"}.with(inputsOf(connector)));
    else if (connector.printKeyNo == 0)
        out.words({"no socket. ", "无插座。"});
    if (connector.backupPos != 0) out.words(Words{"backed up by %1. ", "备份为 %1。"}.with(connector.backupPos));
}

void writeConnectorTable(Sheet& sheet, const Lcd::s_Subcard& card)
{
    if (card.connectors.connectors.empty()) return;
    const TableSheet table(sheet, {"Connectors", "接口"},
                           {{"Position", "位置"},
                            {"Type", "类型"},
                            {"Interface", "接口类型"},
                            {"Capacity mode", "带宽模式"},
                            {"Groups", "组"},
                            {"Remarks", "备注"}});
    for (const Lcd::s_SubcardConnector& connector : byPosition(card)) writeConnectorRow(sheet, card, connector);
}

/// One capacity in one device mode: the capacity mode of each position, as the panel is told it.
void writeCapacityRow(Sheet& sheet, const Lcd::s_Subcard& card, int deviceMode, int capacity,
                      const std::vector<Lcd::s_SubcardConnector>& positions)
{
    const auto answer = sheet.model.loaded().cards->findConnectorDeviceModeCapacity(card.modelId, capacity, deviceMode);
    const auto offered = sheet.model.loaded().cards->findSubcardModeData(card.modelId, capacity, deviceMode);
    const Element row(sheet.out, "tr");
    sheet.out.leaf("th", {{"scope", "row"}}, QString("%1  %2").arg(capacity).arg(QString::fromStdString(answer.name)));
    sheet.out.leaf("td", {}, QString::number(deviceMode));
    for (const Lcd::s_SubcardConnector& place : positions) {
        const auto found = std::ranges::find(answer.connectors, place.position, &Lcd::s_SubcardConnector::position);
        const auto shown =
            std::ranges::find(offered.connectors, place.position, &Lcd::s_ConnectorInCapacityGroups::position);
        const bool off = found == answer.connectors.end() || found->enable == 0 ||
                         (shown != offered.connectors.end() && shown->enable == 0);
        if (off) {
            sheet.out.leaf("td", {{"class", "off"}}, Words{"off", "停用"});
            continue;
        }
        sheet.out.leaf("td", {{"class", QString("mode mode-%1").arg(std::clamp(found->capacityMode, 0, 3))}},
                       QString::number(found->capacityMode) + (found->interlacedType != 0 ? " i" : ""));
    }
}

void writeCapacities(Sheet& sheet, const Lcd::s_Subcard& card)
{
    std::vector<Lcd::s_SubcardConnector> positions = byPosition(card);
    const auto isRepeated = [](const Lcd::s_SubcardConnector& one, const Lcd::s_SubcardConnector& next) {
        return one.position == next.position;
    };
    positions.erase(std::unique(positions.begin(), positions.end(), isRepeated), positions.end());
    std::vector<std::pair<int, int>> rows;
    for (const Lcd::s_DeviceModeInConnectors& mode : card.connectors.deviceModes)
        for (const auto& capacity : mode.capacitys) rows.emplace_back(mode.value, capacity.value);
    if (rows.empty() || positions.empty()) return;

    std::vector<Words> titles{{"Capacity", "容量"}, {"Device mode", "设备模式"}};
    for (const Lcd::s_SubcardConnector& place : positions)
        titles.push_back(Words{"Pos. %1", "位置 %1"}.with(place.position));
    const TableSheet table(sheet,
                           {"Capacity mode of each connector by device mode and capacity; i: interlaced",
                            "各设备模式与容量下每个接口的带宽模式；i 表示隔行"},
                           titles);
    for (const auto& [mode, capacity] : rows) writeCapacityRow(sheet, card, mode, capacity, positions);
}

// --- Timing

TimingNumber numberOf(const Lcd::s_WidthInConnectorsDeviceModeTiming& from) { return {from.value, from.min, from.max}; }

TimingDirection directionOf(const Lcd::s_HorizontalInConnectorsDeviceModeTiming& from)
{
    return {numberOf(from.addTime), numberOf(from.frontPorch), numberOf(from.sync), numberOf(from.totalTime)};
}

QString keyOf(const TimingDirection& from)
{
    return QString("%1 %2 %3 %4")
        .arg(from.active.value)
        .arg(from.frontPorch.value)
        .arg(from.sync.value)
        .arg(from.total.value);
}

/// The timings that the card starts with: each once, however many modes share it.
void writeTimings(Sheet& sheet, const Lcd::s_Subcard& card)
{
    QStringList seen;
    for (const Lcd::s_DeviceModeInConnectors& mode : card.connectors.deviceModes)
        for (const auto& connector : mode.timing)
            for (const auto& interface : connector.interfaces)
                for (const auto& capacity : interface.capacityModes) {
                    const auto answer = sheet.model.loaded().cards->findTimingDeviceModeResolutionRatios(
                        card.modelId, mode.value, connector.type, interface.type, capacity.value);
                    const TimingDirection horizontal = directionOf(answer.horizontal);
                    const TimingDirection vertical = directionOf(answer.vertical);
                    const QString key = keyOf(horizontal) + ' ' + keyOf(vertical);
                    if (seen.contains(key)) continue;
                    if (seen.isEmpty()) sheet.out.open("div", {{"class", "figures"}});
                    seen.append(key);
                    writeTimingFrame(sheet, horizontal, vertical,
                                     Words{"Timing of type %1, interface %2, capacity mode %3",
                                           "类型 %1、接口类型 %2、带宽模式 %3 的时序"}
                                         .with(connector.type, interface.type, capacity.value));
                }
    if (!seen.isEmpty()) sheet.out.close();
}

// --- One card

void writeSlots(Sheet& sheet, const Lcd::s_Subcard& card)
{
    const auto places = sheet.model.slotsOf(card.modelId);
    if (places.empty()) return sheet.out.words({"no slot", "没有槽位"});
    listOf(sheet, places, [&sheet](const auto& place) {
        if (!place.second->anchor.isNull())
            link(sheet, place.second->anchor, QString::number(place.second->slot->index));
    });
}

Words groupWords(const Lcd::s_Subcard& card)
{
    QStringList english, chinese;
    for (const Lcd::s_SubcardConnectorGroup& group : card.capacity.connectorGroups) {
        std::vector<int> positions;
        for (const Lcd::s_SubcardConnector& connector : group.connectors) positions.push_back(connector.position);
        english.append(
            QString("group %1: %2 of positions %3").arg(group.value).arg(group.selectNum).arg(numbers(positions)));
        chinese.append(
            QString("组 %1：位置 %3 中的 %2 个").arg(group.value).arg(group.selectNum).arg(numbers(positions)));
    }
    return {english.join("; "), chinese.join("；")};
}

void writeFacts(Sheet& sheet, const Lcd::s_Subcard& card)
{
    Facts facts(sheet);
    facts.add({"Used by slots", "所在槽位"}, [&] { writeSlots(sheet, card); });
    facts.add({"Card mode", "板卡类别"}, cardModeWords(card.cardMode));
    if (!card.capacity.connectorGroups.empty()) facts.add({"At full capacity", "满容量"}, groupWords(card));
    if (card.interlacedMaxCount != 0)
        facts.add({"Interlaced at most", "隔行最多"}, QString::number(card.interlacedMaxCount));
    if (!card.sections.empty()) facts.add({"Backplane sections", "背板分区"}, numbers(card.sections));
    if (card.connectorCopySupport != 0) facts.add({"Connector copy", "接口复制"}, yesNo(true));
}

void writeCard(Sheet& sheet, const PageCard& entry, bool unfolded)
{
    const Lcd::s_Subcard& card = *entry.card;
    const Words name = lcdcommon::named(card.name.en, card.name.zhCN);
    const Element block(
        sheet.out, "details",
        {{"class", "item"},
         {"id", entry.anchor},
         {"open", unfolded ? QString("") : QString()},
         {"data-find", QString("card %1 %2 %3 板卡").arg(card.modelId).arg(name.english, name.chinese)}});
    {
        const Element summary(sheet.out, "summary");
        sheet.out.leaf("span", {{"class", "id"}}, QString::number(card.modelId));
        {
            const Element title(sheet.out, "h3");
            sheet.out.words(name);
        }
        badge(sheet, entry.anchor);
    }
    if (sheet.model.card(std::uint64_t(std::int64_t(card.modelId)))->card != &card)
        nothing(sheet, {"A card of this model was loaded before it. Most questions are answered from that one.",
                        "此型号的另一板卡先被加载，多数查询由它回答。"});
    writeFacts(sheet, card);
    drawFacePlate(sheet, card);
    writeConnectorTable(sheet, card);
    writeCapacities(sheet, card);
    writeTimings(sheet, card);
}

} // namespace

void writeCards(Sheet& sheet)
{
    const Element part(sheet.out, "section", {{"id", "cards"}, {"aria-labelledby", "cards-title"}});
    heading(sheet, "cards", {"Cards", "板卡"},
            {"Each card model with its face plate. An arrow to the left is an input, to the right an output; squares "
             "count the capacity mode; a dashed socket is not printed on the card.",
             "每种板卡及其面板。箭头向左为输入，向右为输出；方块表示带宽模式；虚线表示没有插座。"});
    if (sheet.model.cards().empty()) nothing(sheet, {"No card was loaded.", "没有加载板卡。"});
    for (const PageCard& card : sheet.model.cards()) writeCard(sheet, card, sheet.model.cards().size() <= UNFOLDED);
}

} // namespace lcdcheck
