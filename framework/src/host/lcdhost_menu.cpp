// The command that shows the menu tree.
#include "lcdhost_commands.h"

namespace lcdhost {
namespace {

/// The tree as a table for a person, and as JSON: there the items stand one behind the other, each with its level,
/// since a tree may be deeper than a reader of JSON goes.
struct Tree {
    Table table{{words("Key"), numbers("Order"), numbers("Type"), numbers("Widget"), numbers("Button")}};
    QJsonArray items;
};

void addItem(Tree& tree, const Lcd::s_MenuItem& item, const QString& lead, const QString& leadBelow)
{
    tree.table.add(
        {lead + item.key, number(item.order), number(item.type), number(item.comWidgetType), number(item.buttonType)});
    tree.items.append(QJsonObject{{"key", item.key},
                                  {"level", item.level},
                                  {"order", item.order},
                                  {"type", item.type},
                                  {"widget", item.comWidgetType},
                                  {"button", item.buttonType}});
    for (const auto& child : item.children) {
        const bool last = child == item.children.last();
        addItem(tree, *child, leadBelow + (last ? "`- " : "|- "), leadBelow + (last ? "   " : "|  "));
    }
}

} // namespace

Answer runMenu(Session& session, const Options& /*options*/)
{
    session.load(Catalogue::Menu);
    const auto root = session.menu().rootMenuItem();
    Tree tree;
    if (!root->key.isEmpty() || !root->children.isEmpty()) addItem(tree, *root, {}, {});
    Answer answer;
    answer.json["menu"] = tree.items;
    answer.show([table = tree.table](Page& page) {
        page.heading("Menu");
        table.print(page, "empty");
    });
    return answer;
}

} // namespace lcdhost
