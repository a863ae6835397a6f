// Checking again whenever files change.
#ifndef LCDCHECK_WATCH_H
#define LCDCHECK_WATCH_H

#include <QStringList>

#include <functional>

namespace lcdcheck {

/// Calls `look` at once, and again each time something below `paths` (files or folders) has changed, come or gone and
/// then settled, with one of the paths that did. Returns on SIGINT or SIGTERM, or when `look` gives false.
void watch(const QStringList& paths, const std::function<bool(const QString& path)>& look);

} // namespace lcdcheck

#endif
