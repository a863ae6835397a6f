// How the commands word single values.
#ifndef LCDHOST_TEXT_H
#define LCDHOST_TEXT_H

#include "common/page.h"
#include "common/table.h"
#include "common/text.h"

#include <QString>
#include <QStringList>

#include <string>

namespace lcdhost {

using namespace lcdcommon;

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
