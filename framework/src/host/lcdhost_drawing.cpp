// The layouts of the screens as one drawing, for a document or a browser.
#include "lcdhost_commands.h"

#include "common/layoutdrawing.h"

#include <algorithm>

namespace lcdhost {
namespace {

constexpr double BOX_WIDTH = 720;
constexpr double BOX_HEIGHT = 480;
constexpr double MARGIN = 24;
constexpr double TITLE = 28;

/// Follows the reader's choice of light or dark, as a page does.
constexpr char STYLE[] = R"css(
svg { color-scheme: light dark; font: 12px system-ui, "Noto Sans", "Noto Sans CJK SC", sans-serif; background: #fff; }
text { fill: #1b1f24; text-anchor: middle; }
.title { text-anchor: start; font-size: 15px; font-weight: 600; }
.strong { font-weight: 600; }
.faint { fill: #565e67; }
.frame { fill: #eff0ef; }
.part { fill: #e6eefa; stroke: #1a56b0; stroke-opacity: .4; }
@media (prefers-color-scheme: dark) {
  svg { background: #1a1d21; }
  text { fill: #e7e9eb; }
  .faint { fill: #a5adb6; }
  .frame { fill: #23272c; }
  .part { fill: #1c2a41; stroke: #8fb8f6; }
}
)css";

struct Layout {
    QString title;
    PartsDrawing picture;
};

std::vector<Layout> layoutsOf(const Session& session, const QList<Lcd::s_Device>& devices)
{
    std::vector<Layout> layouts;
    for (const Lcd::s_Device& device : devices)
        for (const Lcd::s_DCSScreen& screen : device.screens)
            for (const Lcd::s_ScreenDeviceMode& mode : screen.deviceModes)
                for (const Lcd::s_Templete& entry : mode.templetes)
                    for (const Lcd::s_Layout& layout : entry.layouts) {
                        PartsDrawing picture(partsOf(layout), BOX_WIDTH, BOX_HEIGHT);
                        const QString title = QString("Screen type %1, device mode %2, screen %3: %4, ")
                                                  .arg(screen.type)
                                                  .arg(mode.value)
                                                  .arg(layout.screenId)
                                                  .arg(picture.pixels()) +
                                              session.inLanguage(entry.name.en, entry.name.zhCN);
                        layouts.push_back({title, std::move(picture)});
                    }
    return layouts;
}

} // namespace

QByteArray screensDrawing(const Session& session, const QList<Lcd::s_Device>& devices)
{
    const std::vector<Layout> layouts = layoutsOf(session, devices);
    double height = MARGIN;
    for (const Layout& layout : layouts) height += TITLE + layout.picture.height() + MARGIN;
    Markup out(session.isEnglish() ? Markup::Language::English : Markup::Language::Chinese);
    {
        const double width = BOX_WIDTH + 2 * MARGIN;
        const Element drawing(out, "svg",
                              {{"xmlns", "http://www.w3.org/2000/svg"},
                               {"role", "img"},
                               {"width", width},
                               {"height", height},
                               {"viewBox", QString("0 0 %1 %2").arg(width).arg(height)}});
        out.leaf("title", {}, Words{"Layouts of the screens", "屏幕布局"});
        out.raw("style", STYLE);
        double y = MARGIN;
        for (const Layout& layout : layouts) {
            out.leaf("text", {{"class", "title"}, {"x", MARGIN}, {"y", y + 14}}, layout.title);
            const Element place(out, "g", {{"transform", QString("translate(%1 %2)").arg(MARGIN).arg(y + TITLE)}});
            layout.picture.draw(out);
            y += TITLE + layout.picture.height() + MARGIN;
        }
    }
    return out.bytes() + '\n';
}

} // namespace lcdhost
