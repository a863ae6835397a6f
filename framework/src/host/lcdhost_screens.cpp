// The command that draws the layouts of the screens: which connector of which slot feeds which part of a screen.
#include "lcdhost_commands.h"

#include <algorithm>
#include <map>

namespace lcdhost {
namespace {

/// A grid of cells as text. Plain characters, since terminals disagree about how wide the ones for lines are.
class Grid {
public:
    explicit Grid(const Lcd::s_Layout& layout) : _rows(layout.rows), _columns(layout.columns)
    {
        for (const Lcd::s_Cell& cell : layout.cells) _width = std::max(_width, columnsOf(sizeOf(cell)));
        if (!canDraw()) {
            for (const Lcd::s_Cell& cell : layout.cells) _others.append(whole(cell));
            return;
        }
        const int first = countsFromOne(layout) ? 1 : 0;
        for (const Lcd::s_Cell& cell : layout.cells) place(cell, first);
    }

    void print(Page& page) const
    {
        if (canDraw()) draw(page);
        if (!_others.isEmpty()) page.line("    Not in the grid:");
        for (const QString& other : _others) page.line("      " + other);
    }

private:
    /// Larger grids fit no terminal.
    [[nodiscard]] bool canDraw() const { return _rows > 0 && _columns > 0 && _rows <= 64 && _columns <= 16; }

    /// Nothing fixes where files begin to count: from 1 where no cell is at 0 and one is at the end.
    static bool countsFromOne(const Lcd::s_Layout& layout)
    {
        bool atEnd = false;
        for (const Lcd::s_Cell& cell : layout.cells) {
            if (cell.row == 0 || cell.column == 0) return false;
            atEnd = atEnd || cell.row == layout.rows || cell.column == layout.columns;
        }
        return atEnd;
    }

    static QString sourceOf(const Lcd::s_Cell& cell)
    {
        return QString("slot %1, conn %2").arg(cell.slotIndex).arg(cell.connectorIndex);
    }
    static QString sizeOf(const Lcd::s_Cell& cell)
    {
        return QString("%1x%2 at %3,%4").arg(cell.width).arg(cell.height).arg(cell.x).arg(cell.y);
    }
    static QString whole(const Lcd::s_Cell& cell)
    {
        return QString("row %1, column %2: ").arg(cell.row).arg(cell.column) + sourceOf(cell) + ", " + sizeOf(cell);
    }

    void place(const Lcd::s_Cell& cell, int first)
    {
        const int row = cell.row - first;
        const int column = cell.column - first;
        const bool inside = row >= 0 && row < _rows && column >= 0 && column < _columns;
        if (!inside || !_places.try_emplace({row, column}, &cell).second) _others.append(whole(cell));
    }

    void draw(Page& page) const
    {
        QString rule = "    +";
        for (int column = 0; column < _columns; ++column) rule += QString(_width + 2, QChar('-')) + '+';
        page.line(rule);
        for (int row = 0; row < _rows; ++row) {
            drawRow(page, row, sourceOf);
            drawRow(page, row, sizeOf);
            page.line(rule);
        }
    }

    void drawRow(Page& page, int row, QString (*textOf)(const Lcd::s_Cell&)) const
    {
        QString line = "    |";
        for (int column = 0; column < _columns; ++column) {
            const auto cell = _places.find({row, column});
            line += ' ' + padded(cell == _places.end() ? QString() : textOf(*cell->second), _width) + " |";
        }
        page.line(line);
    }

    int _rows;
    int _columns;
    int _width = 16;
    std::map<std::pair<int, int>, const Lcd::s_Cell*> _places; ///< By row and column, from 0.
    QStringList _others;
};

void tellTemplate(const Session& session, const Lcd::s_Templete& screenTemplate, Page& page)
{
    const QString name = session.inLanguage(screenTemplate.name.en, screenTemplate.name.zhCN);
    page.line("  Template " + (name.isEmpty() ? "without a name" : name));
    if (screenTemplate.layouts.empty()) page.line("    no layout", Style::Faint);
    for (const Lcd::s_Layout& layout : screenTemplate.layouts) {
        page.line(QString("    Screen %1, %2 x %3").arg(layout.screenId).arg(layout.rows).arg(layout.columns));
        Grid(layout).print(page);
    }
}

} // namespace

bool runScreens(Session& session, const Options& options, Console& console)
{
    session.load(Catalogue::Devices);
    if (options.svg) {
        console.out.write(screensDrawing(session));
        return true;
    }
    const auto& devices = session.devices().DeviceConfigs();
    bool any = false;
    for (const Lcd::s_Device& device : devices) {
        const QString owner = devices.size() > 1 ? text(device.feature.name) + ": " : QString();
        for (const Lcd::s_DCSScreen& screen : device.screens)
            for (const Lcd::s_ScreenDeviceMode& mode : screen.deviceModes) {
                any = true;
                console.out.heading(owner + QString("Screen type %1, device mode %2").arg(screen.type).arg(mode.value));
                if (mode.templetes.empty()) console.out.line("  no template", Style::Faint);
                for (const Lcd::s_Templete& entry : mode.templetes) tellTemplate(session, entry, console.out);
            }
    }
    if (!any) console.out.line("There are no screens.");
    return true;
}

} // namespace lcdhost
