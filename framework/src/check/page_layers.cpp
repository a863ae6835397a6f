// The layers: the window of each type with its limits, drawn to scale, its borders, and the mosaic templates with their
// rectangles.
#include "page_parts.h"

#include <algorithm>

namespace lcdcheck {
namespace {

constexpr double WINDOW_BOX = 320;
constexpr double MOSAIC_WIDTH = 340;
constexpr double MOSAIC_HEIGHT = 220;

/// The greatest, the first and the smallest window, one in another.
void drawWindow(Sheet& sheet, const Lcd::s_LayerWindow& window, const Words& caption)
{
    const double scale = WINDOW_BOX / std::max({window.width.max, window.height.max, 1});
    const double width = std::max(2.0, window.width.max * scale);
    const double height = std::max(2.0, window.height.max * scale);
    const Drawing drawing(sheet, Drawing::Kind::Picture, width, height, caption, "window");
    const auto rectangle = [&](const char* kind, int itsWidth, int itsHeight) {
        sheet.out.empty("rect", {{"class", kind},
                                 {"x", 0.5},
                                 {"y", 0.5},
                                 {"width", std::max(1.0, itsWidth * scale - 1)},
                                 {"height", std::max(1.0, itsHeight * scale - 1)}});
    };
    rectangle("greatest", window.width.max, window.height.max);
    rectangle("first", window.width.value, window.height.value);
    rectangle("smallest", window.width.min, window.height.min);
    if (height > 40)
        sheet.out.leaf("text", {{"class", "end"}, {"x", width - 8}, {"y", height - 10}},
                       lcdcommon::sizeText(window.width.max, window.height.max));
}

void writeWindowTable(Sheet& sheet, const Lcd::s_LayerWindow& window)
{
    const TableSheet table(sheet, {"Window, pixels", "窗口（像素）"},
                           {{"Number", "项"}, {"New layer", "新图层"}, {"Limits", "范围"}, {"Step", "步进"}});
    const std::pair<Words, const Lcd::s_RangeValue*> rows[] = {{{"Width", "宽"}, &window.width},
                                                               {{"Height", "高"}, &window.height},
                                                               {{"X", "X"}, &window.x},
                                                               {{"Y", "Y"}, &window.y}};
    for (const auto& [name, number] : rows) {
        const Element row(sheet.out, "tr");
        sheet.out.leaf("th", {{"scope", "row"}}, name);
        sheet.out.leaf("td", {}, QString::number(number->value));
        sheet.out.leaf("td", {}, range(number->min, number->max));
        sheet.out.leaf("td", {}, number->step == 0 ? "–" : QString::number(number->step));
    }
}

/// A border at its first and at its greatest thickness, which takes a fifth of the drawing's height.
void drawBorder(Sheet& sheet, const Lcd::s_Border& border, int number)
{
    constexpr double WIDTH = 160;
    constexpr double HEIGHT = 100;
    const double scale = HEIGHT / 5 / std::max({1, border.size.vWidth.max, border.size.hWidth.max});
    const auto inside = [scale](int thickness, double side) { return std::clamp(thickness * scale, 0.0, side / 2); };
    const auto ring = [&](const char* kind, int across, int down) {
        const double x = inside(across, WIDTH);
        const double y = inside(down, HEIGHT);
        sheet.out.empty("path", {{"class", kind},
                                 {"fill-rule", "evenodd"},
                                 {"d", QString("M0 0h%1v%2h-%1zM%3 %4h%5v%6h-%5z")
                                           .arg(WIDTH)
                                           .arg(HEIGHT)
                                           .arg(x)
                                           .arg(y)
                                           .arg(WIDTH - 2 * x)
                                           .arg(HEIGHT - 2 * y)}});
    };
    const Drawing drawing(
        sheet, Drawing::Kind::Picture, WIDTH, HEIGHT,
        Words{"Border %1: up to %2 across and %3 down, in pixels", "边框 %1：横边最宽 %3，竖边最宽 %2（像素）"}.with(
            number, border.size.vWidth.max, border.size.hWidth.max),
        "border");
    ring("may", border.size.vWidth.max, border.size.hWidth.max);
    ring("must", border.size.vWidth.value, border.size.hWidth.value);
}

void writeBorders(Sheet& sheet, const Lcd::s_DCSLayer& layer)
{
    if (layer.borders.empty()) return;
    {
        const TableSheet table(sheet, {"Borders, pixels", "边框（像素）"},
                               {{"Border", "边框"},
                                {"Looks", "样式"},
                                {"Horizontal edges", "横边"},
                                {"Vertical edges", "竖边"},
                                {"Step", "步进"}});
        int number = 0;
        for (const Lcd::s_Border& border : layer.borders) {
            const auto& [horizontal, vertical] = std::tie(border.size.hWidth, border.size.vWidth);
            const Element row(sheet.out, "tr");
            sheet.out.leaf("th", {{"scope", "row"}}, QString::number(++number));
            sheet.out.leaf("td", {}, enumValues(border.type.enums));
            sheet.out.leaf("td", {},
                           QString("%1 (%2)").arg(horizontal.value).arg(range(horizontal.min, horizontal.max)));
            sheet.out.leaf("td", {}, QString("%1 (%2)").arg(vertical.value).arg(range(vertical.min, vertical.max)));
            sheet.out.leaf("td", {}, QString("%1, %2").arg(horizontal.step).arg(vertical.step));
        }
    }
    int number = 0;
    const Element figures(sheet.out, "div", {{"class", "figures"}});
    for (const Lcd::s_Border& border : layer.borders) drawBorder(sheet, border, ++number);
}

/// The screens on which the layer may be opened.
void writeUsers(Sheet& sheet, const PageDevice& device, int layerType)
{
    std::vector<const PageType<Lcd::s_DCSScreen>*> users;
    for (const auto& screen : device.screens)
        if (std::ranges::any_of(screen.record->deviceModes, [layerType](const Lcd::s_ScreenDeviceMode& mode) {
                return std::ranges::find(mode.layerTypes, layerType, &Lcd::s_LayerType::layerType) !=
                       mode.layerTypes.end();
            }))
            users.push_back(&screen);
    if (users.empty()) return sheet.out.words({"no screen", "没有屏幕"});
    listOf(sheet, users, [&sheet](const auto* screen) {
        link(sheet, screen->anchor, Words{"screen type %1", "屏幕类型 %1"}.with(screen->record->type));
    });
}

void writeTemplates(Sheet& sheet, const Lcd::s_LayerDeviceModes& modes)
{
    if (modes.templates.empty()) return;
    const TableSheet table(sheet, Words{"Templates in device mode %1", "设备模式 %1 的模板"}.with(modes.deviceMode),
                           {{"Template", "模板"}, {"Grid", "网格"}, {"Base", "基准"}, {"Capacity mode", "带宽模式"}});
    for (const Lcd::s_Template& entry : modes.templates) {
        const Element row(sheet.out, "tr");
        sheet.out.leaf("th", {{"scope", "row"}}, QString::number(entry.id));
        sheet.out.leaf("td", {}, lcdcommon::sizeText(entry.columns, entry.rows));
        sheet.out.leaf("td", {}, lcdcommon::sizeText(entry.baseResolutionWidth, entry.baseResolutionHeight));
        sheet.out.leaf("td", {}, QString::number(entry.capacityMode));
    }
}

void writeLayer(Sheet& sheet, const PageDevice& device, const PageType<Lcd::s_DCSLayer>& entry)
{
    const Lcd::s_DCSLayer& layer = *entry.record;
    const Element block(sheet.out, "details",
                        {{"class", "item"},
                         {"id", entry.anchor},
                         {"open", ""},
                         {"data-find", QString("layer type %1 图层 %2").arg(layer.type).arg(entry.file)}});
    {
        const Element summary(sheet.out, "summary");
        sheet.out.leaf("span", {{"class", "id"}}, QString::number(layer.type));
        sheet.out.leaf("h3", {}, Words{"Layer type %1", "图层类型 %1"}.with(layer.type));
        badge(sheet, entry.anchor);
    }
    {
        Facts facts(sheet);
        facts.add({"Opened on", "可用于"}, [&] { writeUsers(sheet, device, layer.type); });
        facts.add({"Sources", "信号源"}, enumValues(layer.source.type.enums));
        facts.add({"Place in the stack", "层级"}, range(layer.zOrder.min, layer.zOrder.max));
        facts.add({"Keying", "抠像"}, yesNo(layer.cutoutGeneral.info.support != 0));
        facts.add({"Shadow", "阴影"}, yesNo(layer.shadow.info.support != 0));
        facts.add({"Mask", "遮罩"}, yesNo(layer.mask.info.support != 0));
        facts.add({"Borders", "边框"}, QString::number(layer.borders.size()));
    }
    {
        const Element figures(sheet.out, "div", {{"class", "figures"}});
        drawWindow(sheet, layer.window,
                   {"Window: the greatest, that of a new layer, and the smallest", "窗口：最大、新图层及最小"});
        writeWindowTable(sheet, layer.window);
    }
    writeBorders(sheet, layer);
    writeTemplates(sheet, layer.deviceModes);
}

// --- Mosaic

lcdcommon::Part partOf(const Sheet& sheet, const PageDevice& device, const Lcd::s_Rectangle& rectangle)
{
    const PageSlot* slot = device.slotOf(rectangle.subSourceSlotId);
    lcdcommon::RectangleNote note;
    if (slot == nullptr)
        note.problem = {"no such slot", "没有此槽位"};
    else
        note.target = '#' + slot->anchor;
    if (slot != nullptr && !sheet.model.hasConnector(*slot, rectangle.subSourceConnectorId))
        note.problem = {"no such connector", "没有此接口"};
    return {rectangle.x,
            rectangle.y,
            rectangle.width,
            rectangle.height,
            Words{"%1: slot %2 · %3", "%1：槽位 %2 · %3"}.with(rectangle.rectangleIndex, rectangle.subSourceSlotId,
                                                               rectangle.subSourceConnectorId),
            QString::number(rectangle.rectangleIndex),
            note};
}

void writeMosaicTemplate(Sheet& sheet, const PageDevice& device, const Lcd::s_MosaicTemplate& mosaic)
{
    const Element block(sheet.out, "article", {{"class", "template"}});
    std::vector<lcdcommon::Part> parts;
    for (const Lcd::s_Rectangle& rectangle : mosaic.rectangles) parts.push_back(partOf(sheet, device, rectangle));
    if (parts.empty())
        return nothing(sheet, Words{"Template %1 has no rectangle.", "模板 %1 没有矩形。"}.with(mosaic.pitId));
    const lcdcommon::PartsDrawing picture(std::move(parts), MOSAIC_WIDTH, MOSAIC_HEIGHT);
    {
        const Drawing drawing(
            sheet, Drawing::Kind::WithLinks, picture.width(), picture.height(),
            Words{"Template %1: %2 rectangles", "模板 %1：%2 个矩形"}.with(mosaic.pitId, mosaic.rectangles.size()),
            "parts");
        picture.draw(sheet.out);
    }
    Facts facts(sheet);
    facts.add({"Starts with", "默认"}, lcdcommon::sizeText(mosaic.defaultWidth, mosaic.defaultHeight));
    facts.add({"At most", "最大"}, lcdcommon::sizeText(mosaic.maxWidth, mosaic.maxHeight));
    facts.add({"Grid at most", "网格上限"}, lcdcommon::sizeText(mosaic.maxColumn, mosaic.maxRow));
    facts.add({"Rectangles at most", "矩形上限"}, QString::number(mosaic.maxCell));
    const Element folded(sheet.out, "details", {{"class", "more"}});
    sheet.out.leaf("summary", {}, Words{"Rectangles as a table", "矩形列表"});
    TableSheet table(sheet, {"Rectangles", "矩形"},
                     {{"Index", "序号"}, {"Place", "位置"}, {"Size", "尺寸"}, {"Slot · connector", "槽位 · 接口"}});
    for (const Lcd::s_Rectangle& one : mosaic.rectangles)
        table.row({QString::number(one.rectangleIndex), QString("%1, %2").arg(one.x).arg(one.y),
                   lcdcommon::sizeText(one.width, one.height),
                   QString("%1 · %2").arg(one.subSourceSlotId).arg(one.subSourceConnectorId)});
}

} // namespace

void writeLayers(Sheet& sheet)
{
    const Element part(sheet.out, "section", {{"id", "layers"}, {"aria-labelledby", "layers-title"}});
    heading(sheet, "layers", {"Layers", "图层"},
            {"The window of each layer type within its limits, and its borders.", "每种图层的窗口范围及其边框。"});
    bool any = false;
    for (const PageDevice& device : sheet.model.devices())
        for (const auto& layer : device.layers) {
            writeLayer(sheet, device, layer);
            any = true;
        }
    if (!any) nothing(sheet, {"No layer was loaded.", "没有加载图层。"});
}

void writeMosaic(Sheet& sheet)
{
    const Element part(sheet.out, "section", {{"id", "mosaic"}, {"aria-labelledby", "mosaic-title"}});
    heading(sheet, "mosaic", {"Mosaic", "拼接源"},
            {"Templates by which several sources make one picture.", "将多个信号源组成一幅画面的模板。"});
    bool any = false;
    for (const PageDevice& device : sheet.model.devices())
        for (const Lcd::s_SubSourceType& type : device.device->feature.mosaicSource.subSourceTypes) {
            sheet.out.leaf("h3", {},
                           Words{"Sub-source type %1, starts with template %2", "子源类型 %1，默认模板 %2"}.with(
                               type.value, type.defaultTemplate));
            const Element figures(sheet.out, "div", {{"class", "figures mosaic"}});
            for (const Lcd::s_MosaicTemplate& mosaic : type.mosaicTemplates) writeMosaicTemplate(sheet, device, mosaic);
            any = true;
        }
    if (!any) nothing(sheet, {"There is no mosaic template.", "没有拼接模板。"});
}

} // namespace lcdcheck
