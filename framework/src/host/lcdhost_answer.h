// What a command answers: values, each with a name, which a person reads in tables and a machine as JSON.
#ifndef LCDHOST_ANSWER_H
#define LCDHOST_ANSWER_H

#include "common/json.h"
#include "common/page.h"
#include "common/table.h"
#include "common/text.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace lcdhost {

using namespace lcdcommon;

inline QString text(const std::string& utf8) { return QString::fromStdString(utf8); }
template <class Number> QString number(Number value) { return QString::number(value); }

/// The items with commas between; `item` makes a text of each.
template <class List, class Item> QString listed(const List& list, const Item& item)
{
    QStringList texts;
    for (const auto& entry : list) texts.append(item(entry));
    return texts.join(QStringLiteral(", "));
}

/// A value, and how a person sees it: a list with commas between, a flag as yes or no, null as "-".
struct Cell {
    template <class Value> Cell(Value plain) : Cell(QJsonValue(plain)) {}
    Cell(QJsonValue plain);
    Cell(std::uint64_t number);
    Cell(QJsonValue plain, QString words) : value(std::move(plain)), shown(std::move(words)) {}

    QJsonValue value;
    QString shown;
};

/// Both ends of a range.
Cell span(int min, int max);

/// The name of a value in JSON, made of its title: "Work mode (current)" gives "workMode".
QString keyOf(const QString& title);

/// Values below their titles, a line for each; JSON has an object.
class Facts {
public:
    void add(const QString& title, const Cell& cell);
    void print(Page& page, const QString& whenEmpty) const { _table.print(page, whenEmpty); }
    /// Null without any value.
    [[nodiscard]] QJsonValue json() const { return _values.isEmpty() ? QJsonValue() : _values; }

private:
    Table _table{{words(), words()}};
    QJsonObject _values;
};

/// Rows of values below titles; JSON has an object for each row.
class Records {
public:
    explicit Records(std::vector<Column> columns) : _table(columns), _columns(std::move(columns)) {}

    /// One cell for each column. Of a row that belongs to the one above a person does not see the first `shared` cells.
    void add(const std::vector<Cell>& cells, int shared = 0);
    void print(Page& page, const QString& whenEmpty = {}) const { _table.print(page, whenEmpty); }
    [[nodiscard]] const QJsonArray& json() const { return _rows; }

private:
    Table _table;
    std::vector<Column> _columns;
    QJsonArray _rows;
};

/// The answer to one command, in the order in which it is shown.
class Answer {
public:
    /// A heading with values below it, under the heading's key.
    template <class Values> void add(const QString& heading, const Values& values, const QString& whenEmpty = {})
    {
        json[keyOf(heading)] = values.json();
        show([heading, values, whenEmpty](Page& page) {
            page.heading(heading);
            values.print(page, whenEmpty);
        });
    }
    /// What a person alone sees.
    void show(std::function<void(Page&)> part) { _parts.push_back(std::move(part)); }
    void print(Page& page) const
    {
        for (const auto& part : _parts) part(page);
    }

    QJsonObject json;
    QString error;        ///< Why there is no answer, or not all of it; empty when there is.
    QStringList warnings; ///< What stands beside the answer.

private:
    std::vector<std::function<void(Page&)>> _parts;
};

} // namespace lcdhost

#endif
