// Layouts that don't tile: cells that overlap, or stand outside what they are part of.
#include "rules.h"

#include <lcdmainconfig/feature.h>
#include <lcdmainconfig/screen.h>

#include <map>
#include <set>
#include <tuple>

namespace lcdcheck {

using namespace LCD::MainConfig;

namespace {

/// The fields of a rectangle in some record.
struct Shape {
    Field x;
    Field y;
    Field width;
    Field height;
};

// clang-format off
const Shape CELL{fieldOf<s_Cell>(&s_Cell::x), fieldOf<s_Cell>(&s_Cell::y), fieldOf<s_Cell>(&s_Cell::width), fieldOf<s_Cell>(&s_Cell::height)};
const Shape RECTANGLE{fieldOf<s_Rectangle>(&s_Rectangle::x), fieldOf<s_Rectangle>(&s_Rectangle::y), fieldOf<s_Rectangle>(&s_Rectangle::width), fieldOf<s_Rectangle>(&s_Rectangle::height)};
const Field ROWS       = fieldOf<s_Layout>(&s_Layout::rows);
const Field COLUMNS    = fieldOf<s_Layout>(&s_Layout::columns);
const Field ROW        = fieldOf<s_Cell>(&s_Cell::row);
const Field COLUMN     = fieldOf<s_Cell>(&s_Cell::column);
const Field TEMPLATE   = fieldOf<s_MosaicTemplate>(&s_MosaicTemplate::pitId);
const Field MAX_WIDTH  = fieldOf<s_MosaicTemplate>(&s_MosaicTemplate::maxWidth);
const Field MAX_HEIGHT = fieldOf<s_MosaicTemplate>(&s_MosaicTemplate::maxHeight);
// clang-format on

/// One cell or rectangle whose numbers are all known.
struct Box {
    const Value* at;
    qlonglong x;
    qlonglong y;
    qlonglong width;
    qlonglong height;

    [[nodiscard]] bool overlaps(const Box& other) const
    {
        return x < other.x + other.width && other.x < x + width && y < other.y + other.height && other.y < y + height;
    }
};

class Layouts {
public:
    Layouts(const Collected& collected, Findings& findings) : _collected(collected), _judge(collected, findings) {}

    void judgeGrids();
    void judgeOverlaps(const Shape& shape, const Field& owner, const QString& name);
    void judgeMosaics();

private:
    [[nodiscard]] const Value* on(const Value& value, const Field& field) const;
    [[nodiscard]] std::map<std::pair<int, int>, std::vector<Box>> boxes(const Shape& shape, const Field& owner) const;
    [[nodiscard]] bool isTold(const Value& cell) const { return _told.count({cell.file, cell.element}) != 0; }
    void judgeGrid(const Value& cell, const Field& limit, const QString& name);

    const Collected& _collected;
    Judge _judge;
    std::set<std::pair<int, int>> _told; ///< Cells that stand in the place of another one.
};

/// The good value of another field of the same record; null when there is none.
const Value* Layouts::on(const Value& value, const Field& field) const
{
    const Value* const found = _collected.above(value, field);
    return found != nullptr && found->element == value.element && found->good ? found : nullptr;
}

void Layouts::judgeGrid(const Value& cell, const Field& limit, const QString& name)
{
    const Value* const most = _collected.above(cell, limit);
    if (!cell.good || !cell.present || most == nullptr || !most->good || !most->present) return;
    if (cell.number() >= 0 && cell.number() < most->number()) return;
    _judge.about("cell-outside", cell,
                 QString("%1 %2 is outside the grid of %3, which are counted from 0")
                     .arg(name)
                     .arg(cell.number())
                     .arg(most->number()));
}

void Layouts::judgeGrids()
{
    for (const Value& cell : _collected.all(ROW)) judgeGrid(cell, ROWS, "row");
    for (const Value& cell : _collected.all(COLUMN)) judgeGrid(cell, COLUMNS, "column");
    std::map<std::tuple<int, int, qlonglong, qlonglong>, const Value*> taken;
    for (const Value& row : _collected.all(ROW)) {
        const Value* const column = on(row, COLUMN);
        const Value* const layout = _collected.above(row, ROWS);
        if (!row.good || column == nullptr || layout == nullptr) continue;
        const Value*& earlier = taken[{row.file, layout->element, row.number(), column->number()}];
        if (earlier == nullptr) {
            earlier = &row;
            continue;
        }
        _told.insert({row.file, row.element});
        _judge.about("overlapping-cells", row,
                     QString("row %1, column %2 holds the cell of %3 already")
                         .arg(row.number())
                         .arg(column->number())
                         .arg(_judge.where(*earlier, row)));
    }
}

/// The rectangles of each element that holds some.
std::map<std::pair<int, int>, std::vector<Box>> Layouts::boxes(const Shape& shape, const Field& owner) const
{
    std::map<std::pair<int, int>, std::vector<Box>> found;
    for (const Value& x : _collected.all(shape.x)) {
        const Value* const y = on(x, shape.y);
        const Value* const width = on(x, shape.width);
        const Value* const height = on(x, shape.height);
        const Value* const parent = _collected.above(x, owner);
        if (!x.good || y == nullptr || width == nullptr || height == nullptr || parent == nullptr) continue;
        found[{parent->file, parent->element}].push_back(
            {&x, x.number(), y->number(), width->number(), height->number()});
    }
    return found;
}

void Layouts::judgeOverlaps(const Shape& shape, const Field& owner, const QString& name)
{
    for (const auto& [place, all] : boxes(shape, owner))
        for (std::size_t later = 1; later < all.size(); ++later)
            for (std::size_t earlier = 0; earlier < later; ++earlier)
                if (all[later].overlaps(all[earlier]) && !isTold(*all[later].at)) {
                    _judge.about("overlapping-cells", *all[later].at,
                                 QString("this %1 overlaps that of %2")
                                     .arg(name, _judge.where(*all[earlier].at, *all[later].at)));
                    break;
                }
}

void Layouts::judgeMosaics()
{
    for (const auto& [place, all] : boxes(RECTANGLE, TEMPLATE))
        for (const Box& box : all) {
            const Value* const width = _collected.above(*box.at, MAX_WIDTH);
            const Value* const height = _collected.above(*box.at, MAX_HEIGHT);
            const bool wide = width != nullptr && width->good && width->present && box.x + box.width > width->number();
            const bool high =
                height != nullptr && height->good && height->present && box.y + box.height > height->number();
            if (box.x < 0 || box.y < 0 || wide || high)
                _judge.about("cell-outside", *box.at, "this rectangle reaches beyond the largest size of its template");
        }
}

} // namespace

std::set<Field> fieldsOfLayouts()
{
    return {CELL.x, CELL.y,  CELL.width, CELL.height, RECTANGLE.x, RECTANGLE.y, RECTANGLE.width, RECTANGLE.height,
            ROWS,   COLUMNS, ROW,        COLUMN,      TEMPLATE,    MAX_WIDTH,   MAX_HEIGHT};
}

void judgeLayouts(const Collected& collected, Findings& findings)
{
    Layouts layouts(collected, findings);
    layouts.judgeGrids();
    layouts.judgeOverlaps(CELL, ROWS, "cell");
    layouts.judgeOverlaps(RECTANGLE, TEMPLATE, "rectangle");
    layouts.judgeMosaics();
}

} // namespace lcdcheck
