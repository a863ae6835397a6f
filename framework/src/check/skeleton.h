// A file of one kind to start from: what must be there, with the read default of every attribute, and in comments what
// may be there.
#ifndef LCDCHECK_SKELETON_H
#define LCDCHECK_SKELETON_H

#include "grammar.h"

#include <QMap>

namespace lcdcheck {

/// What attributes say in place of their read defaults, by "path@name". The elements on the way there are no comments.
using Values = QMap<QString, QString>;

QString writeSkeleton(const Grammar& grammar, const Values& values = {});

/// Writes a small whole configuration into the folder: one device, one card and one connector, and the panel's files.
/// Gives the path that could not be written, or an empty text.
QString writeSmallRoot(const QString& folder);

} // namespace lcdcheck

#endif
