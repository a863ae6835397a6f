// The command that shows the menu tree.
#include "lcdhost_commands.h"

namespace lcdhost {
namespace {

void addItem(Table& table, const Lcd::s_MenuItem& item, const QString& lead, const QString& leadBelow)
{
    table.add(
        {lead + item.key, number(item.order), number(item.type), number(item.comWidgetType), number(item.buttonType)});
    for (const auto& child : item.children) {
        const bool last = child == item.children.last();
        addItem(table, *child, leadBelow + (last ? "`- " : "|- "), leadBelow + (last ? "   " : "|  "));
    }
}

} // namespace

bool runMenu(Session& session, const Options& /*options*/, Console& console)
{
    session.load(Catalogue::Menu);
    const auto root = session.menu().rootMenuItem();
    Table table({words("Key"), numbers("Order"), numbers("Type"), numbers("Widget"), numbers("Button")});
    if (!root->key.isEmpty() || !root->children.isEmpty()) addItem(table, *root, {}, {});
    console.out.heading("Menu");
    table.print(console.out, "empty");
    return true;
}

} // namespace lcdhost
