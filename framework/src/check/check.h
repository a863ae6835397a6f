// The checker's inner side as its outer side sees it: what is to be checked goes in, findings come out.
#ifndef LCDCHECK_CHECK_H
#define LCDCHECK_CHECK_H

#include "finding.h"

#include <QStringList>

#include <functional>
#include <memory>

namespace lcdcheck {

struct Request {
    QStringList roots;
    QStringList files;
    QString kind; ///< Of `--kind`; empty where place and name tell the kind of a file.
    QString language;
};

class Panel;

struct Checked {
    Findings findings;
    int files = 0; ///< How many files were looked at.
    std::function<QString(const QString& file, int line)> line;
    /// The components with the one root that was asked for, where they hold what the panel would. Null where something
    /// was mended so that reading could go on, or there were other roots.
    std::shared_ptr<const Panel> panel;
};

/// Checks all that is asked for. `progress` is told each file before it is read.
Checked check(const Request& request, const std::function<void(const QString& file)>& progress);

} // namespace lcdcheck

#endif
