// Rows of cells below titles, in aligned columns that fit the page.
#ifndef LCDCOMMON_TABLE_H
#define LCDCOMMON_TABLE_H

#include "common/page.h"

#include <QStringList>

#include <vector>

namespace lcdcommon {

/// One column of a table.
struct Column {
    QString title;
    bool number = false; ///< Aligned to the right, and the last to be cut.
};

inline Column words(const QString& title = {}) { return {title, false}; }
inline Column numbers(const QString& title) { return {title, true}; }

/// Rows of cells, all shown at once so that the columns can be as wide as they must be.
class Table {
public:
    explicit Table(std::vector<Column> columns) : _columns(std::move(columns)) {}

    /// One cell for each column.
    void add(const QStringList& cells) { _rows.push_back(cells); }
    /// The rows below their titles, or `whenEmpty` when there are none. Where the page is narrower than the rows, the
    /// widest cells are cut.
    void print(Page& page, const QString& whenEmpty = {}) const;

private:
    [[nodiscard]] std::vector<int> fittingWidths(int room) const;
    [[nodiscard]] int widestCell(std::size_t column) const;
    [[nodiscard]] QString laidOut(const QStringList& cells, const std::vector<int>& widths) const;

    std::vector<Column> _columns;
    std::vector<QStringList> _rows;
};

} // namespace lcdcommon

#endif
