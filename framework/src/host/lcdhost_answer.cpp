#include "lcdhost_answer.h"

#include <cmath>

namespace lcdhost {
namespace {

/// A double, as JSON has it, holds every whole number up to here.
constexpr std::uint64_t LARGEST_NUMBER = std::uint64_t(1) << 53;

QString shownAs(const QJsonValue& value)
{
    if (value.isNull()) return QStringLiteral("-");
    if (value.isBool()) return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
    if (value.isArray()) return listed(value.toArray(), shownAs);
    if (!value.isDouble()) return value.toString();
    const double number = value.toDouble();
    return std::floor(number) == number ? QString::number(number, 'f', 0) : QString::number(number, 'g', 6);
}

} // namespace

Cell::Cell(QJsonValue plain) : value(std::move(plain)), shown(shownAs(value)) {}

Cell::Cell(std::uint64_t number)
    : Cell(number <= LARGEST_NUMBER ? QJsonValue(double(number)) : QJsonValue(QString::number(number)))
{}

Cell span(int min, int max)
{
    return {QJsonObject{{"min", min}, {"max", max}}, QStringLiteral("%1 to %2").arg(min).arg(max)};
}

QString keyOf(const QString& title)
{
    QString key;
    bool startsWord = false;
    for (const QChar character : title.section('(', 0, 0)) {
        if (character.isLetterOrNumber()) key += startsWord ? character.toUpper() : character.toLower();
        startsWord = !character.isLetterOrNumber();
    }
    return key;
}

void Facts::add(const QString& title, const Cell& cell)
{
    _table.add({title, cell.shown});
    _values[keyOf(title)] = cell.value;
}

void Records::add(const std::vector<Cell>& cells, int shared)
{
    QStringList texts;
    QJsonObject row;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        texts.append(int(i) < shared ? QString() : cells[i].shown);
        row[keyOf(_columns[i].title)] = cells[i].value;
    }
    _table.add(texts);
    _rows.append(row);
}

} // namespace lcdhost
