// The panel's menu tree: one node per element of "menuconfig.xml". Parents hold their children; a child only looks up
// at its parent, so that dropping the root frees the whole tree.
#ifndef LCDMAINCONFIG_MENU_H
#define LCDMAINCONFIG_MENU_H

#include <memory>

#include <QList>
#include <QString>

namespace LCD::MainConfig {

/// One menu item. Items are shared, never copied: the tree is handed out as it stands.
struct s_MenuItem {
    QString key;               ///< Attribute "Key", by which items are found; the file may repeat one.
    int order = 0;             ///< Attribute "Order"; children stand in file order all the same.
    int type = -1;             ///< Attribute "Type"; 0 for an item read without it, -1 for one that was never read.
    int level = 0;             ///< Depth in the tree: 0 for the root.
    bool reservedFlag = false; ///< No file sets it and no query reads it.
    int comWidgetType = 0;     ///< Attribute "ComWidgetType"; 0 if absent.
    int buttonType = 0;        ///< Attribute "ButtonType"; 0 if absent.
    QList<std::shared_ptr<s_MenuItem>> children; ///< Child elements in file order; empty at a leaf.
    std::weak_ptr<s_MenuItem> parent;            ///< The item above; empty at the root.
};

} // namespace LCD::MainConfig

#endif
