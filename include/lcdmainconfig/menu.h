// The panel's menu tree: one node per element of "menuconfig.xml". Parents hold their children; a child only looks up
// at its parent, so that dropping the root frees the whole tree.
#ifndef LCDMAINCONFIG_MENU_H
#define LCDMAINCONFIG_MENU_H

#include <memory>

#include <QList>
#include <QString>

namespace LCD::MainConfig {

/// One menu item. Panel file "menuconfig.xml", the first child of MenuBar and all below it. Items are shared, never
/// copied: the tree is handed out as it stands.
struct s_MenuItem {
    QString key; ///< Name by which the item is found; the file may repeat one. Attribute "Key".
    /// Place of the item as the panel numbers it; children stand in file order all the same. Attribute "Order"; 0 if
    /// absent.
    int order = 0;
    /// Kind of item: 1 list of items, 2 page of settings, 3 action in the example; -1: never read. Attribute "Type"; 0
    /// if absent.
    int type = -1;
    int level = 0;             ///< Depth in the tree: 0 for the root.
    bool reservedFlag = false; ///< Room in the record that no file fills and no query reads.
    /// Widget of a page: 0 none, 1 list, 2 number, 3 switch, 4 text in the example. Attribute "ComWidgetType"; 0 if
    /// absent.
    int comWidgetType = 0;
    /// Kind of soft key: 0 plain, 1 one that stays down in the example. Attribute "ButtonType"; 0 if absent.
    int buttonType = 0;
    /// Items below, in file order: the child elements of any tag; empty at a leaf.
    QList<std::shared_ptr<s_MenuItem>> children;
    std::weak_ptr<s_MenuItem> parent; ///< The item above; empty at the root.
};

} // namespace LCD::MainConfig

#endif
