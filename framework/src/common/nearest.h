// What a mistyped word may have been meant to be.
#ifndef LCDCOMMON_NEAREST_H
#define LCDCOMMON_NEAREST_H

#include <QString>
#include <QStringList>

namespace lcdcommon {

/// The one of the names that differs least from the word, letter case aside; of several the first. Empty when none is
/// near: a third of the word's letters may be wrong, missing, too many or swapped with a neighbour. Long words are near
/// to nothing, so that a look-up never takes long.
QString nearest(const QString& word, const QStringList& names);

} // namespace lcdcommon

#endif
