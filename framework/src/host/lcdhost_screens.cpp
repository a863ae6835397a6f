// The command that draws the layouts of the screens: which connector of which slot feeds which part of a screen.
#include "lcdhost_commands.h"

#include <algorithm>
#include <map>

namespace lcdhost {
namespace {

/// A grid of cells as text. Plain characters, since terminals disagree about how wide the ones for lines are.
class Grid {
public:
    explicit Grid(const Lcd::s_Layout& layout) : _layout(layout), _rows(layout.rows), _columns(layout.columns)
    {
        for (const Lcd::s_Cell& cell : layout.cells) _width = std::max(_width, columnsOf(sizeOf(cell)));
        if (!canDraw()) return;
        const int first = countsFromOne(layout) ? 1 : 0;
        for (const Lcd::s_Cell& cell : layout.cells) place(cell, first);
    }

    void print(Page& page) const
    {
        if (!canDraw() || INDENT + 1 + _columns * (_width + 3) > page.width()) return list(page);
        draw(page);
        if (!_others.isEmpty()) page.line("    Not in the grid:");
        for (const Lcd::s_Cell* const other : _others) page.line("      " + whole(*other));
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
    static QString placeOf(const Lcd::s_Cell& cell)
    {
        return QString("row %1, column %2: ").arg(cell.row).arg(cell.column) + sourceOf(cell);
    }
    static QString whole(const Lcd::s_Cell& cell) { return placeOf(cell) + ", " + sizeOf(cell); }

    void place(const Lcd::s_Cell& cell, int first)
    {
        const int row = cell.row - first;
        const int column = cell.column - first;
        const bool inside = row >= 0 && row < _rows && column >= 0 && column < _columns;
        if (!inside || !_places.try_emplace({row, column}, &cell).second) _others.append(&cell);
    }

    void list(Page& page) const
    {
        for (const Lcd::s_Cell& cell : _layout.cells) {
            page.line("    " + placeOf(cell));
            page.line("      " + sizeOf(cell));
        }
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

    static constexpr int INDENT = 4;
    const Lcd::s_Layout& _layout;
    int _rows;
    int _columns;
    int _width = 16;
    std::map<std::pair<int, int>, const Lcd::s_Cell*> _places; ///< By row and column, from 0.
    QVector<const Lcd::s_Cell*> _others;
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

QJsonObject json(const Lcd::s_Cell& cell)
{
    return {{"row", cell.row}, {"column", cell.column}, {"slot", cell.slotIndex}, {"connector", cell.connectorIndex},
            {"x", cell.x},     {"y", cell.y},           {"width", cell.width},    {"height", cell.height}};
}

QJsonObject json(const Session& session, const Lcd::s_Templete& screenTemplate)
{
    const auto layout = [](const Lcd::s_Layout& one) {
        return QJsonObject{{"screen", one.screenId},
                           {"rows", one.rows},
                           {"columns", one.columns},
                           {"cells", jsonArray(one.cells, [](const Lcd::s_Cell& cell) { return json(cell); })}};
    };
    return {{"name", session.inLanguage(screenTemplate.name.en, screenTemplate.name.zhCN)},
            {"layouts", jsonArray(screenTemplate.layouts, layout)}};
}

/// The screens of one device; `owner` leads the headings where there are several.
void answerDevice(const Session& session, const Lcd::s_Device& device, const QString& owner, Answer& answer)
{
    QJsonArray all = answer.json["screens"].toArray();
    for (const Lcd::s_DCSScreen& screen : device.screens)
        for (const Lcd::s_ScreenDeviceMode& mode : screen.deviceModes) {
            const auto entry = [&session](const Lcd::s_Templete& one) { return json(session, one); };
            all.append(QJsonObject{{"device", text(device.feature.name)},
                                   {"type", screen.type},
                                   {"deviceMode", mode.value},
                                   {"templates", jsonArray(mode.templetes, entry)}});
            const QString title = owner + QString("Screen type %1, device mode %2").arg(screen.type).arg(mode.value);
            answer.show([&session, title, mode](Page& page) {
                page.heading(title);
                if (mode.templetes.empty()) page.line("  no template", Style::Faint);
                for (const Lcd::s_Templete& one : mode.templetes) tellTemplate(session, one, page);
            });
        }
    answer.json["screens"] = all;
}

} // namespace

Answer runScreens(Session& session, const Options& options)
{
    session.load(Catalogue::Devices);
    const auto& devices = session.devices().DeviceConfigs();
    const bool one = devices.size() == 1 || !options.device.isEmpty();
    const QList<Lcd::s_Device> asked = one ? devices.mid(0, 1) : devices;
    Answer answer;
    if (options.svg) {
        answer.show([drawing = screensDrawing(session, asked)](Page& page) { page.write(drawing); });
        return answer;
    }
    answer.json["screens"] = QJsonArray();
    for (const Lcd::s_Device& device : asked)
        answerDevice(session, device, one ? QString() : text(device.feature.name) + ": ", answer);
    if (answer.json["screens"].toArray().isEmpty()) answer.show([](Page& page) { page.line("There are no screens."); });
    return answer;
}

} // namespace lcdhost
