// The panel's menus, as "menuconfig.xml" shapes them. Loaded once, then asked by key. The order of the operations is a
// contract with the host.
#ifndef LCDMAINCONFIG_IMENUCONFIG_H
#define LCDMAINCONFIG_IMENUCONFIG_H

#include <memory>

#include <QList>
#include <QString>

#include "lcdmainconfig/menu.h"

namespace LCD::MainConfig {

/// The tree of the panel's menus. Panel file "menuconfig.xml", the first element of "MenuBar" below the root LCD.
class IMenuConfig {
public:
    virtual ~IMenuConfig() = default;

    /// Reads "menuconfig.xml" of the directory into the root. False, with a warning and the root as it was, for a file
    /// that cannot be opened or parsed, or is of another kind or version. A file without items is true. A second run
    /// adds the items again.
    virtual bool readConfig(const QString& dir) = 0;

    /// The root itself, never null; without key and children before a load. Here and below the items handed out are the
    /// tree's own, not copies.
    virtual std::shared_ptr<s_MenuItem> rootMenuItem() const = 0;

    /// The item with that key, searched breadth first: the shallowest wins, then the earliest. Null if none; before a
    /// load the empty key finds the root.
    virtual std::shared_ptr<s_MenuItem> findMenuItem(QString key) const = 0;

    /// The children of the item with that key; empty at a leaf and for an unknown key. The root is asked first; below
    /// it the search is depth first. Within one list of siblings the first match wins, while the match of a later
    /// branch replaces an earlier one, unlike in findMenuItem; both are meant.
    virtual QList<std::shared_ptr<s_MenuItem>> findChidItemsByKey(QString key) const = 0;

    /// The number of items in findChidItemsByKey; 0 for an unknown key.
    virtual int findChidItemSizeByKey(QString key) const = 0;
};

} // namespace LCD::MainConfig

#endif
