// The panel: its menu as a tree that folds, and its keys by code, with what each is bound to, checked as and locked
// with.
#include "page_parts.h"

#include <QSet>

namespace lcdcheck {
namespace {

/// No panel has a key code beyond these; the lock areas can only be asked for by code.
constexpr int KEY_CODES = 65536;

// --- Menu

Words itemTypeWords(int type)
{
    static const Words names[] = {{"0", "0"}, {"list", "列表"}, {"page", "页面"}, {"action", "动作"}};
    return type >= 0 && type < int(std::size(names)) ? names[type] : plain(QString::number(type));
}

Words widgetWords(int widget)
{
    static const Words names[] = {{"", ""}, {"list", "列表"}, {"number", "数值"}, {"switch", "开关"}, {"text", "文本"}};
    return widget >= 0 && widget < int(std::size(names)) ? names[widget] : plain(QString::number(widget));
}

class Tree {
public:
    explicit Tree(Sheet& sheet) : _sheet(sheet) {}

    void write(const Lcd::s_MenuItem& item)
    {
        Markup& out = _sheet.out;
        const QString anchor = QString("menu-%1").arg(++_count);
        const bool repeated = _keys.contains(item.key);
        _keys.insert(item.key);
        const Element entry(out, "li", {{"id", anchor}, {"data-find", "menu 菜单 " + item.key}});
        if (item.children.isEmpty()) return writeItem(item, repeated);
        const Element branch(out, "details", {{"open", item.level < 2 ? QString("") : QString()}});
        {
            const Element summary(out, "summary");
            writeItem(item, repeated);
        }
        const Element list(out, "ul");
        for (const auto& child : item.children) write(*child);
    }

private:
    void writeItem(const Lcd::s_MenuItem& item, bool repeated)
    {
        Markup& out = _sheet.out;
        out.leaf("code", {}, item.key.isEmpty() ? "–" : item.key);
        out.text(QStringLiteral(" "));
        const Element remarks(out, "small");
        out.words(itemTypeWords(item.type));
        if (item.comWidgetType != 0) {
            out.text(QStringLiteral(" · "));
            out.words(widgetWords(item.comWidgetType));
        }
        if (item.buttonType != 0) {
            out.text(QStringLiteral(" · "));
            out.words({"stays down", "自锁"});
        }
        out.text(QString(" · %1").arg(item.order));
        if (!repeated) return;
        out.text(QStringLiteral(" · "));
        out.leaf("span", {{"class", "missing"}}, Words{"repeats a key", "键重复"});
    }

    Sheet& _sheet;
    int _count = 0;
    QSet<QString> _keys;
};

// --- Keys

/// All that is known of one key code.
struct Key {
    QString name;     ///< As the key check asks for it.
    Words list;       ///< Which key check.
    QString function; ///< Of a function button.
    int area = -1;    ///< Lock area; -1: none.
};

void addChecks(std::map<int, Key>& keys, const Lcd::IKeyCheckConfig* checks)
{
    if (checks == nullptr) return;
    const std::pair<Words, QList<QPair<int, QString>>> lists[] = {
        {{"keyboard", "按键"}, checks->getKeyCheckList()},
        {{"knobs", "旋钮"}, checks->getKnobKeyCheckList()},
        {{"T-bar and joystick", "T 型杆与摇杆"}, checks->getTbarJoyStickCheckList()}};
    for (const auto& [name, list] : lists)
        for (const auto& [code, key] : list) {
            keys[code].name = key;
            keys[code].list = name;
        }
}

void addFunctions(std::map<int, Key>& keys, Lcd::IFNButtonConfig* buttons)
{
    if (buttons == nullptr) return;
    const QVector<QString> names = buttons->findSequenceStrArray();
    for (int index = 0; index < std::min(buttons->findFNBtnMaxCount(), 1024); ++index) {
        const Lcd::s_FnDefaultBinding binding = buttons->findDefaultBindingByIndex(index);
        QString text = QString("FN %1: ").arg(index + 1) + names.value(binding.type, QString::number(binding.type));
        if (binding.target != 0) text += QString(" → %1").arg(binding.target);
        if (!binding.remark.isEmpty()) text += " (" + binding.remark + ')';
        keys[binding.lcdKey].function = text;
    }
}

void addAreas(std::map<int, Key>& keys, const Lcd::ILockAreaConfig* areas)
{
    if (areas == nullptr) return;
    for (int code = 0; code < KEY_CODES; ++code) {
        const int area = areas->getIdByLCDKey(code);
        if (area != -1) keys[code].area = area;
    }
}

void writeKey(Sheet& sheet, int code, const Key& key)
{
    const Element row(sheet.out, "tr",
                      {{"id", QString("key-%1").arg(code)},
                       {"data-find", QString("key 按键 %1 ").arg(code) + key.name + ' ' + key.function}});
    sheet.out.leaf("th", {{"scope", "row"}}, QString::number(code));
    sheet.out.leaf("td", {}, key.name);
    sheet.out.leaf("td", {}, key.list);
    sheet.out.leaf("td", {}, key.function);
    const Element area(sheet.out, "td");
    if (key.area != -1) link(sheet, QString("area-%1").arg(key.area), QString::number(key.area));
}

void writeAreas(Sheet& sheet, const std::map<int, Key>& keys)
{
    std::map<int, std::vector<int>> areas;
    for (const auto& [code, key] : keys)
        if (key.area != -1) areas[key.area].push_back(code);
    if (areas.empty()) return nothing(sheet, {"No key can be locked.", "没有可锁定的按键。"});
    const TableSheet table(sheet, {"Lock areas", "锁定区域"}, {{"Area", "区域"}, {"Keys", "按键"}});
    for (const auto& [area, codes] : areas) {
        const Element row(sheet.out, "tr", {{"id", QString("area-%1").arg(area)}});
        sheet.out.leaf("th", {{"scope", "row"}}, QString::number(area));
        const Element cell(sheet.out, "td");
        listOf(sheet, codes, [&sheet](int code) { link(sheet, QString("key-%1").arg(code), QString::number(code)); });
    }
}

} // namespace

void writeMenu(Sheet& sheet)
{
    const Element part(sheet.out, "section", {{"id", "menu"}, {"aria-labelledby", "menu-title"}});
    heading(sheet, "menu", {"Menu", "菜单"},
            {"Each item by its key, with its kind, its widget and its order.", "菜单项的键、类型、控件和序号。"});
    const auto root = sheet.model.loaded().menu == nullptr ? nullptr : sheet.model.loaded().menu->rootMenuItem();
    if (root == nullptr || (root->key.isEmpty() && root->children.isEmpty()))
        return nothing(sheet, {"No menu was loaded.", "没有加载菜单。"});
    const Element tree(sheet.out, "ul", {{"class", "tree"}});
    Tree(sheet).write(*root);
}

void writeKeys(Sheet& sheet)
{
    const Element part(sheet.out, "section", {{"id", "keys"}, {"aria-labelledby", "keys-title"}});
    heading(sheet, "keys", {"Keys", "按键"},
            {"The panel's keys by code: what the self-test calls them, what function buttons do, and which are locked "
             "together.",
             "按键码列出的按键：自检名称、功能键功能及锁定区域。"});
    std::map<int, Key> keys;
    addChecks(keys, sheet.model.loaded().keyChecks);
    addFunctions(keys, sheet.model.loaded().functionKeys);
    addAreas(keys, sheet.model.loaded().lockAreas);
    if (keys.empty()) return nothing(sheet, {"No key was loaded.", "没有加载按键。"});
    {
        const TableSheet table(sheet, {"Keys by code", "按键列表"},
                               {{"Code", "键码"},
                                {"Name", "名称"},
                                {"Key check", "自检"},
                                {"Function button", "功能键"},
                                {"Lock area", "锁定区域"}});
        for (const auto& [code, key] : keys) writeKey(sheet, code, key);
    }
    writeAreas(sheet, keys);
}

} // namespace lcdcheck
