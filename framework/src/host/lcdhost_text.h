// What a person reads: lines with a little colour on a terminal, and tables with aligned columns.
#ifndef LCDHOST_TEXT_H
#define LCDHOST_TEXT_H

#include <QString>
#include <QStringList>
#include <QTextStream>

#include <cstdio>
#include <string>
#include <vector>

namespace lcdhost {

enum class Style { Plain, Heading, Faint, Bad };

/// One of the program's two outputs, in UTF-8 whatever the locale: the texts come in two languages. Coloured on a
/// terminal alone, and not there either when NO_COLOR is set.
class Page {
public:
    explicit Page(std::FILE* file);

    void line(const QString& text = {}, Style style = Style::Plain);
    /// A heading, with a free line above unless it opens the page.
    void heading(const QString& text);

private:
    QTextStream _out;
    bool _coloured;
    bool _empty = true;
};

/// One column of a table.
struct Column {
    QString title;
    bool number = false; ///< Aligned to the right.
};

inline Column words(const QString& title = {}) { return {title, false}; }
inline Column numbers(const QString& title) { return {title, true}; }

/// Rows of cells, all shown at once so that the columns can be as wide as they must be.
class Table {
public:
    explicit Table(std::vector<Column> columns) : _columns(std::move(columns)) {}

    /// One cell for each column.
    void add(const QStringList& cells) { _rows.push_back(cells); }
    /// The rows below their titles, or `whenEmpty` when there are none.
    void print(Page& page, const QString& whenEmpty = {}) const;

private:
    [[nodiscard]] QString laidOut(const QStringList& cells, const std::vector<int>& widths) const;

    std::vector<Column> _columns;
    std::vector<QStringList> _rows;
};

/// How many columns of a terminal a text takes: a Chinese character takes two, a combining mark none.
int columnsOf(const QString& text);

/// The text, filled up with spaces on the right.
QString padded(const QString& text, int width);

inline QString text(const std::string& utf8) { return QString::fromStdString(utf8); }
inline QString text(bool yes) { return yes ? QStringLiteral("yes") : QStringLiteral("no"); }
template <class Number> QString number(Number value) { return QString::number(value); }

/// The items with commas between; `item` makes a text of each.
template <class List, class Item> QString listed(const List& list, const Item& item)
{
    QStringList texts;
    for (const auto& entry : list) texts.append(item(entry));
    return texts.join(QStringLiteral(", "));
}

} // namespace lcdhost

#endif
