#include "layoutdrawing.h"

#include <algorithm>

namespace lcdcommon {
namespace {

constexpr double LINE = 16;   ///< Height of a line of text.
constexpr double GLYPH = 7.2; ///< Mean width of a character.

double widthOf(const QString& text) { return double(text.size()) * GLYPH; }

} // namespace

QString sizeText(std::int64_t width, std::int64_t height)
{
    return QString::number(width) + QStringLiteral(" × ") + QString::number(height);
}

std::vector<Part> partsOf(const LCD::MainConfig::s_Layout& layout,
                          const std::function<RectangleNote(const LCD::MainConfig::s_Cell&)>& note)
{
    std::vector<Part> parts;
    for (const LCD::MainConfig::s_Cell& cell : layout.cells) {
        const Words title = Words{QStringLiteral("slot %1 · %2"), QStringLiteral("槽位 %1 · %2")}.with(
            cell.slotIndex, cell.connectorIndex);
        parts.push_back({cell.x, cell.y, cell.width, cell.height, title,
                         QString("%1·%2").arg(cell.slotIndex).arg(cell.connectorIndex),
                         note ? note(cell) : RectangleNote()});
    }
    return parts;
}

PartsDrawing::PartsDrawing(std::vector<Part> parts, double boxWidth, double boxHeight) : _parts(std::move(parts))
{
    for (const Part& part : _parts) {
        _left = std::min(_left, part.x);
        _top = std::min(_top, part.y);
        _right = std::max(_right, part.x + part.width);
        _bottom = std::max(_bottom, part.y + part.height);
    }
    const auto wide = double(std::max<std::int64_t>(_right - _left, 1));
    const auto high = double(std::max<std::int64_t>(_bottom - _top, 1));
    _scale = std::min(boxWidth / wide, boxHeight / high);
    _width = std::max(wide * _scale, 2.0);
    _height = std::max(high * _scale, 2.0);
}

QString PartsDrawing::pixels() const { return sizeText(_right - _left, _bottom - _top); }

void PartsDrawing::draw(Markup& out) const
{
    out.empty("rect", {{"class", "frame"}, {"width", _width}, {"height", _height}});
    for (const Part& part : _parts) {
        if (part.note.target.isNull()) {
            drawPart(out, part);
            continue;
        }
        const Element link(out, "a", {{"href", part.note.target}});
        drawPart(out, part);
    }
}

void PartsDrawing::drawPart(Markup& out, const Part& part) const
{
    const double x = double(part.x - _left) * _scale;
    const double y = double(part.y - _top) * _scale;
    const double width = std::max(double(part.width) * _scale, 1.0);
    const double height = std::max(double(part.height) * _scale, 1.0);
    const bool faulty = !part.note.problem.english.isEmpty();
    out.empty("rect", {{"class", faulty ? "part bad" : "part"},
                       {"x", x + 1},
                       {"y", y + 1},
                       {"width", std::max(width - 2, 1.0)},
                       {"height", std::max(height - 2, 1.0)},
                       {"rx", 2}});

    const QString size = sizeText(part.width, part.height);
    const QString place = QString("%1, %2").arg(part.x).arg(part.y);
    const bool roomy = width > std::max(widthOf(size), widthOf(part.title.english)) + 8;
    if (!roomy && (width < widthOf(part.shortTitle) || height < LINE)) return;
    const int lines = !roomy ? 1 : std::clamp(int(height / LINE), 1, faulty ? 4 : 3);
    const double middle = x + width / 2;
    double base = y + height / 2 - (lines - 1) * LINE / 2 + 4;
    const QString kind = faulty ? "bad" : QString();
    if (!roomy) return out.leaf("text", {{"class", kind}, {"x", middle}, {"y", base}}, part.shortTitle);

    out.leaf("text", {{"class", faulty ? "strong bad" : "strong"}, {"x", middle}, {"y", base}}, part.title);
    if (lines > 1) out.leaf("text", {{"class", kind}, {"x", middle}, {"y", base += LINE}}, size);
    if (lines > 2) out.leaf("text", {{"class", faulty ? "bad" : "faint"}, {"x", middle}, {"y", base += LINE}}, place);
    if (lines > 3) out.leaf("text", {{"class", "bad"}, {"x", middle}, {"y", base + LINE}}, part.note.problem);
}

} // namespace lcdcommon
