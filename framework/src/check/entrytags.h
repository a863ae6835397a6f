// What the entries of a list are called where the reader takes every tag. The readers can't tell; it is the custom of
// the authors, and only shown, proposed and looked for first, never demanded.
#ifndef LCDCHECK_ENTRYTAGS_H
#define LCDCHECK_ENTRYTAGS_H

#include <QStringList>

namespace lcdcheck {

/// The tags that entries of the list at the path are likely to have, the likeliest first; never empty.
QStringList likelyEntryTags(const QString& listPath);

} // namespace lcdcheck

#endif
