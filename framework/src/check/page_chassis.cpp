// The chassis: the front and the rear with their slots, and the same as a table.
#include "page_parts.h"

#include <algorithm>

namespace lcdcheck {
namespace {

constexpr double SLOT_WIDTH = 396;
constexpr double SLOT_HEIGHT = 58;
constexpr double GAP = 8;
constexpr double EAR = 26; ///< The flanges by which a chassis is screwed into its rack.
constexpr double CHIP_WIDTH = 42;
constexpr double CHIP_STEP = 46;
constexpr double CHIP_HEIGHT = 20;
constexpr int CHIPS_IN_ROW = 5;
constexpr int CHIPS = 2 * CHIPS_IN_ROW;

/// A card that the slot takes, as a small plate that leads to it.
void drawChip(Sheet& sheet, double x, double y, std::uint64_t model)
{
    const PageCard* card = sheet.model.card(model);
    const auto plate = [&sheet, x, y, model](const char* kind) {
        sheet.out.empty(
            "rect", {{"class", kind}, {"x", x}, {"y", y}, {"width", CHIP_WIDTH}, {"height", CHIP_HEIGHT}, {"rx", 3}});
        sheet.out.leaf("text", {{"x", x + CHIP_WIDTH / 2}, {"y", y + 14}}, QString::number(qulonglong(model)));
    };
    if (card == nullptr) {
        const Element missing(sheet.out, "g", {{"class", "bad"}});
        sheet.out.leaf("title", {}, Words{"not in the catalogue", "目录中没有"}.english);
        return plate("chip bad");
    }
    const Element link(sheet.out, "a", {{"href", '#' + card->anchor}});
    sheet.out.leaf("title", {}, QString::fromStdString(card->card->name.en));
    plate("chip");
}

void drawSlot(Sheet& sheet, const PageSlot& slot, double x, double y)
{
    const Element place(sheet.out, "g", {{"transform", QString("translate(%1 %2)").arg(x).arg(y)}});
    const bool repeated = slot.anchor.isNull();
    sheet.out.empty(
        "rect", {{"class", repeated ? "slot bad" : "slot"}, {"width", SLOT_WIDTH}, {"height", SLOT_HEIGHT}, {"rx", 4}});
    for (const double screw : {9.0, SLOT_WIDTH - 9})
        sheet.out.empty("circle", {{"class", "screw"}, {"cx", screw}, {"cy", SLOT_HEIGHT / 2}, {"r", 3}});
    {
        const Element number(sheet.out, "a", {{"href", repeated ? QString() : '#' + slot.anchor}});
        sheet.out.leaf("text", {{"class", "number"}, {"x", 38}, {"y", SLOT_HEIGHT / 2 + 8}},
                       QString::number(slot.slot->index));
    }
    sheet.out.leaf("text", {{"class", "silk"}, {"x", 64}, {"y", 25}},
                   QString::fromStdString(slot.slotClass->silkScreenName).left(6));
    sheet.out.leaf("text", {{"class", "faint"}, {"x", 64}, {"y", 43}},
                   repeated ? Words{"repeated", "重复"} : slot.className);

    const auto& cards = slot.slot->subcards;
    const bool twoRows = cards.size() > CHIPS_IN_ROW;
    const double top = twoRows ? 7 : (SLOT_HEIGHT - CHIP_HEIGHT) / 2;
    for (std::size_t at = 0; at < cards.size() && at < CHIPS; ++at) {
        const std::size_t line = at / CHIPS_IN_ROW;
        const double left = 150 + double(at % CHIPS_IN_ROW) * CHIP_STEP;
        drawChip(sheet, left, top + double(line) * (CHIP_HEIGHT + 4), cards[at].moduleId);
    }
    if (cards.size() > CHIPS)
        sheet.out.leaf("text", {{"class", "faint end"}, {"x", SLOT_WIDTH - 4}, {"y", SLOT_HEIGHT - 3}},
                       QString("+%1").arg(cards.size() - CHIPS));
}

void drawSide(Sheet& sheet, const std::vector<const PageSlot*>& taken, const Words& title)
{
    const int columns = taken.size() > 1 ? 2 : 1;
    const int rows = std::max(1, int(taken.size() + 1) / columns);
    const double plate = 2 * SLOT_WIDTH + 3 * GAP;
    const double width = plate + 2 * EAR;
    const double height = rows * (SLOT_HEIGHT + GAP) + GAP;
    const Drawing drawing(sheet, Drawing::Kind::WithLinks, width, height, title, "chassis");
    sheet.out.empty("rect", {{"class", "ear"}, {"width", width}, {"height", height}, {"rx", 5}});
    sheet.out.empty("rect", {{"class", "plate"}, {"x", EAR}, {"width", plate}, {"height", height}});
    for (const double x : {EAR / 2, width - EAR / 2})
        for (const double y : {14.0, height - 14})
            sheet.out.empty("ellipse", {{"class", "screw"}, {"cx", x}, {"cy", y}, {"rx", 6}, {"ry", 4}});
    if (taken.empty())
        sheet.out.leaf("text", {{"class", "faint middle"}, {"x", width / 2}, {"y", height / 2 + 5}},
                       Words{"no card slots on this side", "此面没有板卡槽位"});
    for (std::size_t at = 0; at < taken.size(); ++at) {
        const int column = int(at) / rows;
        const int row = int(at) % rows;
        drawSlot(sheet, *taken[at], EAR + GAP + column * (SLOT_WIDTH + GAP), GAP + row * (SLOT_HEIGHT + GAP));
    }
}

Words sideWords(int direction)
{
    if (direction == 0) return {"Front", "前面板"};
    if (direction == 1) return {"Rear", "后面板"};
    return Words{"Side %1", "第 %1 面"}.with(direction);
}

void drawSides(Sheet& sheet, const PageDevice& device)
{
    std::map<int, std::vector<const PageSlot*>> sides{{0, {}}, {1, {}}};
    for (const PageSlot& slot : device.cardSlots) sides[slot.slotClass->pluginDirection].push_back(&slot);
    for (const auto& [direction, taken] : sides) {
        const Words side = sideWords(direction);
        drawSide(sheet, taken,
                 {side.english + QString(": %1 card slots").arg(taken.size()),
                  side.chinese + QString("：%1 个板卡槽位").arg(taken.size())});
    }
}

/// How the connectors of a slot are counted over the whole chassis, as "1→5"; red where no card has such a connector.
void writeCounts(Sheet& sheet, const PageDevice& device, const PageSlot& slot)
{
    const Element cell(sheet.out, "td", {{"class", "count"}});
    for (const Lcd::s_SilkOrder& order : device.device->silkOrders) {
        if (order.slot != slot.slot->index) continue;
        const bool there = sheet.model.hasConnector(slot, order.connector);
        sheet.out.leaf("span", {{"class", there ? QString() : QString("missing")}},
                       QString("%1→%2").arg(order.connector).arg(order.order));
        sheet.out.text(QStringLiteral(" "));
        if (!there) sheet.out.words({"(no such connector) ", "（没有此接口）"});
    }
}

void writeCell(Sheet& sheet, const std::function<void()>& write)
{
    const Element cell(sheet.out, "td");
    write();
}

void writeSlotRow(Sheet& sheet, const PageDevice& device, const PageSlot& slot)
{
    Markup& out = sheet.out;
    const QString index = QString::number(slot.slot->index);
    const QString silk = QString::fromStdString(slot.slotClass->silkScreenName);
    const Element row(out, "tr",
                      {{"id", slot.anchor.isNull() ? QString() : slot.anchor},
                       {"data-find", slot.anchor.isNull() ? QString() : QString("slot %1 %2 槽位").arg(index, silk)}});
    out.leaf("th", {{"scope", "row"}}, index);
    out.leaf("td", {}, silk);
    writeCell(sheet, [&] { out.words(slot.className); });
    writeCell(sheet, [&] { out.words(sideWords(slot.slotClass->pluginDirection)); });
    writeCell(sheet, [&] { out.words(interfaceWords(slot.slotClass->interfaceType)); });
    writeCell(sheet, [&] {
        if (slot.slot->subcards.empty()) out.words({"takes no card", "不接受板卡"});
        const List folded(sheet, slot.slot->subcards.size());
        const Element list(out, "ul", {{"class", "plain"}});
        for (const Lcd::s_InlineSubcard& entry : slot.slot->subcards) {
            const Element item(out, "li");
            cardLink(sheet, entry.moduleId);
            const PageCard* card = sheet.model.card(entry.moduleId);
            out.text(QStringLiteral(" "));
            if (card != nullptr) out.words(lcdcommon::named(card->card->name.en, card->card->name.zhCN));
            for (const Lcd::s_SlotConnectorGroup& group : entry.connectorGroups)
                out.leaf("small", {},
                         QString(" · %1 %2").arg(group.value).arg(QString::fromStdString(group.groupName)));
        }
    });
    writeCounts(sheet, device, slot);
}

void writeDeviceFacts(Sheet& sheet, const Lcd::s_Device& device)
{
    const Lcd::s_DeviceFeature& feature = device.feature;
    const auto text = [](const std::string& utf8) { return utf8.empty() ? "–" : QString::fromStdString(utf8); };
    Facts facts(sheet);
    facts.add({"Model", "型号"}, lcdcommon::named(feature.typeNameEn, feature.typeNameZhCN));
    facts.add({"Name", "名称"}, text(feature.name));
    facts.add({"Brand", "品牌"}, text(feature.brand));
    facts.add({"Series", "系列"}, text(feature.seriesShortName));
    facts.add({"Module id", "模块号"}, QString::number(qulonglong(feature.moduleId)));
    facts.add({"Device modes", "设备模式"}, enumValues(feature.deviceModes.enums));
}

void writeDevice(Sheet& sheet, const PageDevice& device)
{
    writeDeviceFacts(sheet, *device.device);
    drawSides(sheet, device);
    if (device.cardSlots.empty()) return nothing(sheet, {"This device has no card slot.", "此设备没有板卡槽位。"});
    const TableSheet table(sheet, {"The slots as a table", "槽位列表"},
                           {{"Slot", "槽位"},
                            {"Printed", "丝印"},
                            {"Class", "类别"},
                            {"Side", "面"},
                            {"Interface", "接口类型"},
                            {"Cards", "板卡"},
                            {"Connector → count", "接口 → 序号"}});
    for (const PageSlot& slot : device.cardSlots) writeSlotRow(sheet, device, slot);
}

} // namespace

void writeChassis(Sheet& sheet)
{
    const Element part(sheet.out, "section", {{"id", "chassis"}, {"aria-labelledby", "chassis-title"}});
    heading(sheet, "chassis", {"Chassis", "机箱"},
            {"Slots in the order of their numbers, with the cards that each may take. A click shows the card.",
             "按编号排列的槽位及其可接受的板卡。点击查看板卡。"});
    if (sheet.model.devices().empty()) nothing(sheet, {"No device was loaded.", "没有加载设备。"});
    for (const PageDevice& device : sheet.model.devices()) {
        const Element block(sheet.out, "div", {{"class", "device"}});
        if (sheet.model.devices().size() > 1)
            sheet.out.leaf("h3", {},
                           lcdcommon::named(device.device->feature.typeNameEn, device.device->feature.typeNameZhCN));
        writeDevice(sheet, device);
    }
}

} // namespace lcdcheck
