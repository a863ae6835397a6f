#include "lcdhost_text.h"

#include <unistd.h>

#include <algorithm>
#include <iterator>

namespace lcdhost {
namespace {

bool wantsColour(std::FILE* file)
{
    return isatty(fileno(file)) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

const char* escape(Style style)
{
    switch (style) {
    case Style::Heading:
        return "\033[1m";
    case Style::Faint:
        return "\033[2m";
    case Style::Bad:
        return "\033[31m";
    case Style::Plain:
        break;
    }
    return "";
}

bool isWide(uint character)
{
    // The blocks of East Asian characters, and the pictures that terminals draw as wide as these.
    constexpr std::pair<uint, uint> WIDE[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},  {0x3041, 0xA4CF}, {0xAC00, 0xD7A3},
                                              {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},  {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6},
                                              {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};
    return std::any_of(std::begin(WIDE), std::end(WIDE),
                       [character](auto block) { return character >= block.first && character <= block.second; });
}

bool isMark(uint character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing || category == QChar::Other_Format;
}

/// Texts come from files: a control character among them must not reach the terminal, nor break a row.
QString printable(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar character) { return character.category() == QChar::Other_Control; },
        QChar(' '));
    return text;
}

} // namespace

Page::Page(std::FILE* file) : _out(file), _coloured(wantsColour(file)) { _out.setCodec("UTF-8"); }

void Page::line(const QString& text, Style style)
{
    const bool coloured = _coloured && style != Style::Plain;
    if (coloured) _out << escape(style);
    _out << printable(text);
    if (coloured) _out << "\033[0m";
    _out << '\n' << Qt::flush;
    _empty = false;
}

void Page::heading(const QString& text)
{
    if (!_empty) line();
    line(text, Style::Heading);
}

int columnsOf(const QString& text)
{
    int columns = 0;
    for (const uint character : text.toUcs4())
        if (!isMark(character)) columns += isWide(character) ? 2 : 1;
    return columns;
}

QString padded(const QString& text, int width)
{
    return text + QString(std::max(0, width - columnsOf(text)), QChar(' '));
}

QString Table::laidOut(const QStringList& cells, const std::vector<int>& widths) const
{
    QString line(2, QChar(' '));
    for (std::size_t i = 0; i < _columns.size(); ++i) {
        const QString cell = cells.value(int(i));
        const QString room(widths[i] - columnsOf(cell), QChar(' '));
        line += _columns[i].number ? room + cell : cell + room;
        line += QStringLiteral("  ");
    }
    while (line.endsWith(QChar(' '))) line.chop(1);
    return line;
}

void Table::print(Page& page, const QString& whenEmpty) const
{
    if (_rows.empty()) {
        page.line(QStringLiteral("  ") + whenEmpty, Style::Faint);
        return;
    }
    QStringList titles;
    std::vector<int> widths;
    for (const Column& column : _columns) {
        titles.append(column.title);
        int width = columnsOf(column.title);
        for (const QStringList& row : _rows) width = std::max(width, columnsOf(row.value(titles.size() - 1)));
        widths.push_back(width);
    }
    if (!titles.join(QString()).isEmpty()) page.line(laidOut(titles, widths), Style::Faint);
    for (const QStringList& row : _rows) page.line(laidOut(row, widths));
}

} // namespace lcdhost
