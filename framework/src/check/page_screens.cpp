// The screens: the layout of each template to scale, with the slot and connector of each cell, and the layer types that
// may be opened.
#include "page_parts.h"

#include <algorithm>

namespace lcdcheck {
namespace {

constexpr double BOX_WIDTH = 432;
constexpr double BOX_HEIGHT = 280;

lcdcommon::RectangleNote noteOf(const Sheet& sheet, const PageDevice& device, const Lcd::s_Cell& cell)
{
    const PageSlot* slot = device.slotOf(cell.slotIndex);
    if (slot == nullptr) return {{}, {"no such slot", "没有此槽位"}};
    const QString target = '#' + slot->anchor;
    if (!sheet.model.hasConnector(*slot, cell.connectorIndex)) return {target, {"no such connector", "没有此接口"}};
    return {target, {}};
}

/// Whether two cells lie over one another.
bool overlap(const Lcd::s_Cell& one, const Lcd::s_Cell& other)
{
    const auto apart = [](std::int64_t start, std::int64_t length, std::int64_t otherStart, std::int64_t otherLength) {
        return start + length <= otherStart || otherStart + otherLength <= start;
    };
    return !apart(one.x, one.width, other.x, other.width) && !apart(one.y, one.height, other.y, other.height);
}

void writeCellTable(Sheet& sheet, const PageDevice& device, const Lcd::s_Layout& layout)
{
    const Element folded(sheet.out, "details", {{"class", "more"}});
    sheet.out.leaf("summary", {}, Words{"%1 cells as a table", "%1 个单元列表"}.with(layout.cells.size()));
    const TableSheet table(sheet, {"Cells", "单元"},
                           {{"Row, column", "行，列"},
                            {"Slot", "槽位"},
                            {"Connector", "接口"},
                            {"Size", "尺寸"},
                            {"Place", "位置"},
                            {"Remark", "备注"}});
    for (const Lcd::s_Cell& cell : layout.cells) {
        const auto note = noteOf(sheet, device, cell);
        const Element row(sheet.out, "tr");
        sheet.out.leaf("th", {{"scope", "row"}}, QString("%1, %2").arg(cell.row).arg(cell.column));
        {
            const Element slot(sheet.out, "td");
            if (note.target.isNull())
                sheet.out.text(QString::number(cell.slotIndex));
            else
                link(sheet, note.target.mid(1), QString::number(cell.slotIndex));
        }
        sheet.out.leaf("td", {}, QString::number(cell.connectorIndex));
        sheet.out.leaf("td", {}, lcdcommon::sizeText(cell.width, cell.height));
        sheet.out.leaf("td", {}, QString("%1, %2").arg(cell.x).arg(cell.y));
        sheet.out.leaf("td", {{"class", note.problem.english.isEmpty() ? QString() : QString("missing")}},
                       note.problem);
    }
}

void writeLayout(Sheet& sheet, const PageDevice& device, const Lcd::s_Layout& layout)
{
    if (layout.cells.empty()) return nothing(sheet, {"This layout has no cell.", "此布局没有单元。"});
    std::vector<lcdcommon::Part> parts =
        lcdcommon::partsOf(layout, [&](const Lcd::s_Cell& cell) { return noteOf(sheet, device, cell); });
    for (std::size_t at = 0; at < parts.size(); ++at)
        for (std::size_t other = 0; other < at; ++other)
            if (parts[at].note.problem.english.isEmpty() && overlap(layout.cells[at], layout.cells[other]))
                parts[at].note.problem = {"overlaps another cell", "与其他单元重叠"};
    const lcdcommon::PartsDrawing picture(std::move(parts), BOX_WIDTH, BOX_HEIGHT);
    {
        const QString pixels = picture.pixels();
        const Words cells = Words{"%1 × %2 cells, ", "%1 × %2 个单元，"}.with(layout.columns, layout.rows);
        const Drawing drawing(sheet, Drawing::Kind::WithLinks, picture.width(), picture.height(),
                              {QString("Screen %1: ").arg(layout.screenId) + cells.english + pixels + " pixels",
                               QString("屏幕 %1：").arg(layout.screenId) + cells.chinese + pixels + " 像素"},
                              "parts");
        picture.draw(sheet.out);
    }
    writeCellTable(sheet, device, layout);
}

QString unitNames(const Lcd::s_EnumField& unit)
{
    static const QStringList names{"mm", "cm", "inch"};
    QStringList texts;
    for (const Lcd::EnumValue& entry : unit.enums) texts.append(names.value(entry.value, QString::number(entry.value)));
    return texts.join(", ");
}

void writeTemplate(Sheet& sheet, const PageDevice& device, const Lcd::s_Templete& screenTemplate)
{
    const Element block(sheet.out, "article", {{"class", "template"}});
    const Words name = lcdcommon::named(screenTemplate.name.en, screenTemplate.name.zhCN);
    sheet.out.leaf("h5", {}, name.english.isEmpty() ? Words{"Template without a name", "未命名模板"} : name);
    for (const Lcd::s_Layout& layout : screenTemplate.layouts) writeLayout(sheet, device, layout);
    Facts facts(sheet);
    facts.add({"Physical width", "物理宽度"}, range(screenTemplate.width.min, screenTemplate.width.max));
    facts.add({"Physical height", "物理高度"}, range(screenTemplate.height.min, screenTemplate.height.max));
    facts.add({"Units", "单位"}, unitNames(screenTemplate.unit));
    facts.add({"Dot pitch, µm", "点间距（µm）"}, range(screenTemplate.dotPitch.min, screenTemplate.dotPitch.max));
}

void writeLayerTypes(Sheet& sheet, const PageDevice& device, const Lcd::s_ScreenDeviceMode& mode)
{
    if (mode.layerTypes.empty()) return;
    const TableSheet table(sheet, {"Layers that may be opened", "可打开的图层"},
                           {{"Layer type", "图层类型"}, {"Most", "最多"}, {"In use at a time", "同时使用"}});
    for (const Lcd::s_LayerType& type : mode.layerTypes) {
        const auto layer =
            std::ranges::find(device.layers, type.layerType, [](const auto& entry) { return entry.record->type; });
        const Element row(sheet.out, "tr");
        {
            const Element cell(sheet.out, "th", {{"scope", "row"}});
            if (layer != device.layers.end())
                link(sheet, layer->anchor, QString::number(type.layerType));
            else
                sheet.out.leaf("span", {{"class", "missing"}},
                               Words{"%1 no such layer type", "%1 没有此图层类型"}.with(type.layerType));
        }
        sheet.out.leaf("td", {}, QString::number(type.layerCountMax));
        sheet.out.leaf("td", {}, QString::number(type.layerCountValid));
    }
}

void writeScreen(Sheet& sheet, const PageDevice& device, const PageType<Lcd::s_DCSScreen>& entry)
{
    const Lcd::s_DCSScreen& screen = *entry.record;
    const Element block(sheet.out, "details",
                        {{"class", "item"},
                         {"id", entry.anchor},
                         {"open", ""},
                         {"data-find", QString("screen type %1 屏幕 %2").arg(screen.type).arg(entry.file)}});
    {
        const Element summary(sheet.out, "summary");
        sheet.out.leaf("span", {{"class", "id"}}, QString::number(screen.type));
        sheet.out.leaf("h3", {}, Words{"Screen type %1", "屏幕类型 %1"}.with(screen.type));
        badge(sheet, entry.anchor);
    }
    {
        Facts facts(sheet);
        facts.add({"Screens at most", "屏幕数量上限"}, QString::number(screen.limitNum));
        facts.add({"User may build", "可自建"}, yesNo(screen.customBuild != 0));
        facts.add({"Output rates, Hz", "输出帧率（Hz）"}, [&] {
            const auto rates = sheet.model.loaded().devices->findFramerates(screen.type);
            const double factor =
                rates.internalFrameRateCoefficient == 0 ? 1 : 1.0 / rates.internalFrameRateCoefficient;
            QStringList texts;
            for (const auto& rate : rates.internalFrameRateForm) texts.append(scaled(rate.value, factor));
            sheet.out.text(texts.isEmpty() ? "–" : texts.join("  "));
        });
    }
    for (const Lcd::s_ScreenDeviceMode& mode : screen.deviceModes) {
        sheet.out.leaf("h4", {},
                       mode.pvwSupport != 0
                           ? Words{"Device mode %1, with preview", "设备模式 %1，带预览"}.with(mode.value)
                           : Words{"Device mode %1", "设备模式 %1"}.with(mode.value));
        {
            const Element templates(sheet.out, "div", {{"class", "figures"}});
            for (const Lcd::s_Templete& screenTemplate : mode.templetes) writeTemplate(sheet, device, screenTemplate);
        }
        writeLayerTypes(sheet, device, mode);
    }
}

} // namespace

void writeScreens(Sheet& sheet)
{
    const Element part(sheet.out, "section", {{"id", "screens"}, {"aria-labelledby", "screens-title"}});
    heading(
        sheet, "screens", {"Screens", "屏幕"},
        {"Each template to scale, with the slot and the connector that feed each cell. A red cell is fed by a slot or "
         "connector that is not there, or lies over another.",
         "按比例绘制的模板，标出每个单元的槽位和接口。红色单元的槽位或接口不存在，或与其他单元重叠。"});
    bool any = false;
    for (const PageDevice& device : sheet.model.devices())
        for (const auto& screen : device.screens) {
            writeScreen(sheet, device, screen);
            any = true;
        }
    if (!any) nothing(sheet, {"No screen was loaded.", "没有加载屏幕。"});
}

} // namespace lcdcheck
