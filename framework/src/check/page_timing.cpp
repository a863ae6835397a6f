// Timing drawn to scale: the frame of one timing with its blanking, and the limits of a preset timing as bars.
#include "page_parts.h"

#include <algorithm>

namespace lcdcheck {
namespace {

constexpr double BARS_WIDTH = 560;
constexpr double LABEL_WIDTH = 108;
constexpr double BAR_STEP = 24;
constexpr double FRAME_WIDTH = 300;
constexpr double FRAME_HEIGHT = 190;

struct Bar {
    Words name;
    TimingNumber number;
};

std::vector<Bar> barsOf(const TimingDirection& direction)
{
    return {{{"Active", "有效"}, direction.active},
            {{"Front porch", "前肩"}, direction.frontPorch},
            {{"Sync", "同步"}, direction.sync},
            {{"Total", "总计"}, direction.total}};
}

int greatest(const TimingDirection& direction)
{
    return std::max({1, direction.active.max, direction.frontPorch.max, direction.sync.max, direction.total.max});
}

/// One direction: solid up to the smallest number, faint up to the greatest, a line at the value.
void drawBars(Sheet& sheet, const TimingDirection& direction, const Words& title, double top)
{
    const double scale = (BARS_WIDTH - LABEL_WIDTH - 100) / greatest(direction);
    sheet.out.leaf("text", {{"class", "strong"}, {"x", 0}, {"y", top + 12}}, title);
    double y = top + BAR_STEP;
    for (const Bar& bar : barsOf(direction)) {
        const double min = std::max(0, bar.number.min) * scale;
        const double max = std::max(0, bar.number.max) * scale;
        sheet.out.leaf("text", {{"x", 0}, {"y", y + 11}}, bar.name);
        sheet.out.empty(
            "rect", {{"class", "bar may"}, {"x", LABEL_WIDTH}, {"y", y}, {"width", max}, {"height", 14}, {"rx", 2}});
        sheet.out.empty(
            "rect", {{"class", "bar must"}, {"x", LABEL_WIDTH}, {"y", y}, {"width", min}, {"height", 14}, {"rx", 2}});
        if (bar.number.value > 0)
            sheet.out.empty("path",
                            {{"class", "value"},
                             {"d", QString("M%1 %2v18").arg(LABEL_WIDTH + bar.number.value * scale).arg(y - 2)}});
        sheet.out.leaf("text", {{"class", "faint"}, {"x", LABEL_WIDTH + max + 8}, {"y", y + 11}},
                       range(bar.number.min, bar.number.max));
        y += BAR_STEP;
    }
}

/// A timing's parts in pixels or lines, put in order where files give nonsense.
struct Parts {
    explicit Parts(const TimingDirection& direction)
        : active(std::max(0, direction.active.value)),
          frontPorch(std::max(0, direction.frontPorch.value)),
          sync(std::max(0, direction.sync.value)),
          total(std::max(1, direction.total.value))
    {}
    [[nodiscard]] int backPorch() const { return total - active - frontPorch - sync; }
    [[nodiscard]] bool isWhole() const { return active > 0 && backPorch() >= 0; }

    int active, frontPorch, sync, total;
};

Words sentence(const Words& lead, const Parts& parts)
{
    const auto filled = [&parts](const QString& text) {
        return text.arg(parts.active).arg(parts.frontPorch).arg(parts.sync).arg(parts.backPorch()).arg(parts.total);
    };
    return {lead.english + filled(": active %1, front porch %2, sync %3, back porch %4, total %5"),
            lead.chinese + filled("：有效 %1，前肩 %2，同步 %3，后肩 %4，总计 %5")};
}

} // namespace

void writeTimingLimits(Sheet& sheet, const TimingDirection& horizontal, const TimingDirection& vertical,
                       const Words& title)
{
    const double directionHeight = 5 * BAR_STEP + 10;
    const Drawing drawing(sheet, Drawing::Kind::Picture, BARS_WIDTH, 2 * directionHeight, title, "bars");
    drawBars(sheet, horizontal, {"Horizontal, pixels", "水平（像素）"}, 0);
    drawBars(sheet, vertical, {"Vertical, lines", "垂直（行）"}, directionHeight);
}

void writeTimingFrame(Sheet& sheet, const TimingDirection& horizontal, const TimingDirection& vertical,
                      const Words& title)
{
    const Parts across(horizontal);
    const Parts down(vertical);
    if (!across.isWhole() || !down.isWhole()) return;
    const Element together(sheet.out, "div", {{"class", "timing"}});
    {
        const double scale = std::min(FRAME_WIDTH / across.total, FRAME_HEIGHT / down.total);
        const double width = across.total * scale;
        const double height = down.total * scale;
        const Drawing drawing(sheet, Drawing::Kind::Picture, width, height, title, "frame");
        sheet.out.empty("rect", {{"class", "blank"}, {"width", width}, {"height", height}});
        sheet.out.empty("rect", {{"class", "sync"},
                                 {"x", (across.active + across.frontPorch) * scale},
                                 {"width", std::max(across.sync * scale, 0.5)},
                                 {"height", height}});
        sheet.out.empty("rect", {{"class", "sync"},
                                 {"y", (down.active + down.frontPorch) * scale},
                                 {"width", width},
                                 {"height", std::max(down.sync * scale, 0.5)}});
        sheet.out.empty("rect",
                        {{"class", "active"}, {"width", across.active * scale}, {"height", down.active * scale}});
        sheet.out.leaf("text", {{"x", across.active * scale / 2}, {"y", down.active * scale / 2 + 5}},
                       lcdcommon::sizeText(across.active, down.active));
    }
    sheet.out.leaf("p", {{"class", "remark"}}, sentence({"Pixels across", "水平像素"}, across));
    sheet.out.leaf("p", {{"class", "remark"}}, sentence({"Lines down", "垂直行数"}, down));
}

} // namespace lcdcheck
