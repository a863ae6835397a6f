// The layout of a screen drawn to scale: which connector of which slot shows which part of the picture.
#ifndef LCDCOMMON_LAYOUTDRAWING_H
#define LCDCOMMON_LAYOUTDRAWING_H

#include "common/markup.h"

#include <lcdmainconfig/screen.h>

#include <functional>

namespace lcdcommon {

/// What is to be said of a rectangle beyond what it holds.
struct RectangleNote {
    QString target; ///< Where a click leads, as "#slot-7"; null: nowhere.
    Words problem;  ///< Why it is marked as faulty; empty: it is not.
};

/// A part of a picture: its place in pixels, and two lines about it.
struct Part {
    std::int64_t x = 0;
    std::int64_t y = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    Words title;        ///< Where there is room for it.
    QString shortTitle; ///< Where there is little room.
    RectangleNote note;
};

/// A picture that is cut into parts, drawn to scale.
class PartsDrawing {
public:
    /// The drawing fits a box of that size.
    PartsDrawing(std::vector<Part> parts, double boxWidth, double boxHeight);

    [[nodiscard]] double width() const { return _width; }
    [[nodiscard]] double height() const { return _height; }
    /// The size of the picture in pixels, as "3840 × 2160".
    [[nodiscard]] QString pixels() const;
    /// Draws into an open "svg" or "g".
    void draw(Markup& out) const;

private:
    void drawPart(Markup& out, const Part& part) const;

    std::vector<Part> _parts;
    std::int64_t _left = 0;
    std::int64_t _top = 0;
    std::int64_t _right = 0;
    std::int64_t _bottom = 0;
    double _scale = 1;
    double _width = 0;
    double _height = 0;
};

/// The cells of a layout as parts. `note` may be empty.
std::vector<Part> partsOf(const LCD::MainConfig::s_Layout& layout,
                          const std::function<RectangleNote(const LCD::MainConfig::s_Cell&)>& note = {});

/// "1920 × 1080".
QString sizeText(std::int64_t width, std::int64_t height);

} // namespace lcdcommon

#endif
