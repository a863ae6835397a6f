#include "common/table.h"

#include "common/text.h"

#include <algorithm>
#include <numeric>

namespace lcdcommon {
namespace {

constexpr int INDENT = 2;
constexpr int GAP = 2;

/// Takes from the widest column, again and again, until all fit in `room` or none is wider than its least width.
void narrow(std::vector<int>& widths, const std::vector<int>& least, int room)
{
    int total = std::accumulate(widths.begin(), widths.end(), 0);
    while (total > room) {
        std::size_t widest = widths.size();
        for (std::size_t i = 0; i < widths.size(); ++i)
            if (widths[i] > least[i] && (widest == widths.size() || widths[i] > widths[widest])) widest = i;
        if (widest == widths.size()) return;
        --widths[widest];
        --total;
    }
}

} // namespace

int Table::widestCell(std::size_t column) const
{
    int width = 0;
    for (const QStringList& row : _rows) width = std::max(width, columnsOf(row.value(int(column))));
    return width;
}

std::vector<int> Table::fittingWidths(int room) const
{
    // Titles and words are cut before numbers are: half a number is a wrong one.
    constexpr int LEAST_WORD = 4;
    std::vector<int> widths;
    std::vector<int> least;
    for (std::size_t i = 0; i < _columns.size(); ++i) {
        const int cell = widestCell(i);
        widths.push_back(std::max(columnsOf(_columns[i].title), cell));
        least.push_back(std::max(1, _columns[i].number ? cell : std::min(cell, LEAST_WORD)));
    }
    const int gaps = INDENT + GAP * (int(_columns.size()) - 1);
    narrow(widths, least, room - gaps);
    narrow(widths, std::vector<int>(widths.size(), 1), room - gaps);
    return widths;
}

QString Table::laidOut(const QStringList& cells, const std::vector<int>& widths) const
{
    QString line(INDENT, QChar(' '));
    for (std::size_t i = 0; i < _columns.size(); ++i) {
        const QString cell = widths[i] > 0 ? cut(printable(cells.value(int(i))), widths[i]) : QString();
        const QString room(widths[i] - columnsOf(cell), QChar(' '));
        line += _columns[i].number ? room + cell : cell + room;
        line += QString(GAP, QChar(' '));
    }
    while (line.endsWith(QChar(' '))) line.chop(1);
    return line;
}

void Table::print(Page& page, const QString& whenEmpty) const
{
    if (_rows.empty()) {
        page.line(QString(INDENT, QChar(' ')) + whenEmpty, Style::Faint);
        return;
    }
    QStringList titles;
    for (const Column& column : _columns) titles.append(column.title);
    const std::vector<int> widths = fittingWidths(page.width());
    if (!titles.join(QString()).isEmpty()) page.line(laidOut(titles, widths), Style::Faint);
    for (const QStringList& row : _rows) page.line(laidOut(row, widths));
}

} // namespace lcdcommon
