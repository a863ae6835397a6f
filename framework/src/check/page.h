// One HTML page of a whole configuration, to look at and to print: chassis, cards, connectors, screens, menu, keys, and
// the findings where they belong. It holds all that it needs and asks no network for anything.
#ifndef LCDCHECK_PAGE_H
#define LCDCHECK_PAGE_H

#include "finding.h"
#include "loaded.h"

#include <QByteArray>

#include <functional>

namespace lcdcheck {

struct PageOptions {
    QString language = "en"; ///< The language that the page opens in, "en" or "zh_CN"; its reader can switch.
    QString version;         ///< Of this program; empty: the page does not tell it.
};

/// Hands out a line of a file, counted from 1; a null text where there is none.
using SourceLine = std::function<QString(const QString& file, int line)>;

/// The page, in UTF-8. It asks the components as the panel does, so that it shows what the panel will see; a component
/// that could load nothing leaves its part empty.
QByteArray page(const Loaded& loaded, const Findings& findings, const SourceLine& sourceLine,
                const PageOptions& options = {});

} // namespace lcdcheck

#endif
