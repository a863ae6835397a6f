// The menu file's reader, and the two look-ups by key. They disagree where a key stands more than once.
#include "menuconfig.h"

#include "reading/cells.h"
#include "reading/document.h"

#include <QDebug>
#include <QQueue>

namespace LCD::MainConfigImpl {

using namespace reading;

class MenuConfig::Impl {
public:
    std::shared_ptr<s_MenuItem> root = std::make_shared<s_MenuItem>();
};

namespace {

using Item = std::shared_ptr<s_MenuItem>;

constexpr Frame MENU_FRAME{
    .rootTag = "LCD",
    .cannotOpen = "open menu function config file failed!",
    .wrongRoot = "The file is not a valid configuration file for device.",
    .wrongVersion = "The file is not a valid configuration file of version 1.0 for device.",
};

/// Recurses as deep as the file is nested, which the parser bounds.
void readItem(const Reader& in, const Item& item, int level)
{
    // clang-format off
    in.read(*item,
            cell("Key",           &s_MenuItem::key),
            cell("Order",         &s_MenuItem::order,         "0"),
            cell("Type",          &s_MenuItem::type),
            cell("ComWidgetType", &s_MenuItem::comWidgetType, "0"),
            cell("ButtonType",    &s_MenuItem::buttonType,    "0"));
    // clang-format on
    item->level = level;
    in.each(Walk::Any, "", [&](const Reader& element) {
        const Item child = std::make_shared<s_MenuItem>();
        child->parent = item;
        readItem(element, child, level + 1);
        item->children.append(child);
    });
}

/// Only the first element of the bar is read, which is meant; a bar without one leaves the root as it is.
void readMenuBar(const Reader& in, const Item& root)
{
    in.each(Walk::First, "", [&root](const Reader& first) { readItem(first, root, 0); });
}

/// Leaves in `found` the children of the last branch's match: a list ends at its first match, but the lists above it
/// go on, and a later match replaces an earlier one.
void findBelow(const QList<Item>& items, const QString& key, QList<Item>& found)
{
    for (const Item& item : items) {
        if (item->key == key) {
            found = item->children;
            return;
        }
        findBelow(item->children, key, found);
    }
}

} // namespace

MenuConfig::MenuConfig() : _impl(std::make_unique<Impl>()) {}

MenuConfig::~MenuConfig() = default;

bool MenuConfig::readConfig(const QString& dir)
{
    QString error;
    const bool good = readDocument(QStringLiteral("%1/%2").arg(dir, QStringLiteral("menuconfig.xml")), MENU_FRAME,
                                   Report{error}, _impl->root, below("MenuBar", OnNull::Skip, readMenuBar));
    if (!good) qWarning().noquote() << error;
    return good;
}

std::shared_ptr<s_MenuItem> MenuConfig::rootMenuItem() const { return _impl->root; }

std::shared_ptr<s_MenuItem> MenuConfig::findMenuItem(QString key) const
{
    QQueue<Item> queue;
    queue.enqueue(_impl->root);
    while (!queue.isEmpty()) {
        Item item = queue.dequeue();
        if (item->key == key) return item;
        queue.append(item->children);
    }
    return {};
}

QList<std::shared_ptr<s_MenuItem>> MenuConfig::findChidItemsByKey(QString key) const
{
    if (_impl->root->key == key) return _impl->root->children;
    QList<Item> found;
    findBelow(_impl->root->children, key, found);
    return found;
}

int MenuConfig::findChidItemSizeByKey(QString key) const { return static_cast<int>(findChidItemsByKey(key).size()); }

} // namespace LCD::MainConfigImpl
