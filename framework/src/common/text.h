// Text on a terminal: how wide it is, filled up, cut and made harmless.
#ifndef LCDCOMMON_TEXT_H
#define LCDCOMMON_TEXT_H

#include <QString>

namespace lcdcommon {

/// How many columns of a terminal a text takes: a Chinese character takes two, a combining mark none.
int columnsOf(const QString& text);

/// The text, filled up with spaces on the right.
QString padded(const QString& text, int width);

/// The text where it fits, else as much of it as fits with an ellipsis behind. `width` is 1 or more.
QString cut(const QString& text, int width);

/// The text with a space for each control character: texts come from files, and none may reach the terminal with a
/// command to it, nor break a row.
QString printable(QString text);

} // namespace lcdcommon

#endif
