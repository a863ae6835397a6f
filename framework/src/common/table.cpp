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
    // First long words and titles are cut, then all words and titles. Numbers come last: half a number is a wrong one.
    struct Least {
        int title;
        int word;
    };
    std::vector<int> widths;
    for (std::size_t i = 0; i < _columns.size(); ++i)
        widths.push_back(std::max({1, columnsOf(_columns[i].title), widestCell(i)}));
    const int cells = room - INDENT - GAP * (int(_columns.size()) - 1);
    for (const Least& stage : {Least{5, 16}, Least{3, 10}, Least{1, 4}}) {
        std::vector<int> least;
        for (std::size_t i = 0; i < _columns.size(); ++i)
            least.push_back(_columns[i].number ? std::max(stage.title, widestCell(i)) : stage.word);
        narrow(widths, least, cells);
    }
    narrow(widths, std::vector<int>(widths.size(), 1), cells);
    return widths;
}

QString Table::laidOut(const QStringList& cells, const std::vector<int>& widths) const
{
    QString line(INDENT, QChar(' '));
    for (std::size_t i = 0; i < _columns.size(); ++i) {
        const QString cell = cut(printable(cells.value(int(i))), widths[i]);
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
