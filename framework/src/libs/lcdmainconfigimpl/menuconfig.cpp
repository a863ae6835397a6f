// The menu file's reader, and the two look-ups by key. They disagree where a key stands more than once.
#include "menuconfig.h"

#include "reading/cells.h"
#include "reading/document.h"

#include <QDebug>
#include <QQueue>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

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

/// Deletes an item, and after it the items below that nobody else holds. One after the other: were each deleted by its
/// parent's destructor, a deep tree would take more stack than a thread may have, in whatever thread drops it last.
void deleteItem(s_MenuItem* item)
{
    static thread_local std::vector<s_MenuItem*>* waiting = nullptr;
    if (waiting != nullptr) return waiting->push_back(item);
    std::vector<s_MenuItem*> items{item};
    waiting = &items;
    while (!items.empty()) {
        const std::unique_ptr<s_MenuItem> next(items.back());
        items.pop_back();
    }
    waiting = nullptr;
}

void readAttributes(const Reader& in, s_MenuItem& item)
{
    // clang-format off
    in.read(item,
            cell("Key",           &s_MenuItem::key),
            cell("Order",         &s_MenuItem::order,         "0"),
            cell("Type",          &s_MenuItem::type),
            cell("ComWidgetType", &s_MenuItem::comWidgetType, "0"),
            cell("ButtonType",    &s_MenuItem::buttonType,    "0"));
    // clang-format on
}

/// Reads an item and all below it, without recursion: a file may be nested deeper than a thread's stack allows.
void readTree(const Reader& in, const Item& root)
{
    std::vector<std::pair<Reader, Item>> unread{{in, root}};
    while (!unread.empty()) {
        const auto [element, item] = std::move(unread.back());
        unread.pop_back();
        readAttributes(element, *item);
        const auto children = unread.size();
        element.each(Walk::Any, "", [&, &item = item](const Reader& below) {
            const Item child(new s_MenuItem, deleteItem);
            child->parent = item;
            child->level = item->level + 1;
            item->children.append(child);
            unread.emplace_back(below, child);
        });
        // In the order of the file.
        std::reverse(unread.begin() + static_cast<std::ptrdiff_t>(children), unread.end());
    }
}

/// Only the first element of the bar is read, which is meant; a bar without one leaves the root as it is.
void readMenuBar(const Reader& in, const Item& root)
{
    in.each(Walk::First, "", [&root](const Reader& first) { readTree(first, root); });
}

/// The children of the last branch's match: a list ends at its first match, but the lists above it go on, and a later
/// match replaces an earlier one.
QList<Item> findBelow(const QList<Item>& items, const QString& key)
{
    QList<Item> found;
    std::vector<std::pair<QList<Item>, int>> walked{{items, 0}};
    while (!walked.empty()) {
        auto& [list, at] = walked.back();
        if (at == list.size()) {
            walked.pop_back();
            continue;
        }
        const Item item = list.at(at++);
        if (item->key != key) {
            walked.emplace_back(item->children, 0);
            continue;
        }
        found = item->children;
        walked.pop_back();
    }
    return found;
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
    return findBelow(_impl->root->children, key);
}

int MenuConfig::findChidItemSizeByKey(QString key) const { return static_cast<int>(findChidItemsByKey(key).size()); }

} // namespace LCD::MainConfigImpl
