// JSON, as the programs write it.
#ifndef LCDCOMMON_JSON_H
#define LCDCOMMON_JSON_H

#include "common/page.h"

#include <QJsonArray>
#include <QJsonObject>

namespace lcdcommon {

/// The object, indented. Control characters in its texts are escaped, those of the second block too, which terminals
/// obey.
QByteArray jsonText(const QJsonObject& object);

/// Why there is no answer, as an answer: an object with the one member "error".
inline QJsonObject jsonError(const QString& text) { return {{"error", text}}; }

/// The decimal number that a file meant; the nearest single-precision one has a tail of digits.
inline double decimal(float value) { return QString::number(double(value), 'g', 6).toDouble(); }

/// A list; `item` makes a value of each entry.
template <class List, class Item> QJsonArray jsonArray(const List& list, const Item& item)
{
    QJsonArray array;
    for (const auto& entry : list) array.append(item(entry));
    return array;
}
template <class List> QJsonArray jsonArray(const List& list)
{
    return jsonArray(list, [](const auto& entry) { return QJsonValue(entry); });
}

} // namespace lcdcommon

#endif
