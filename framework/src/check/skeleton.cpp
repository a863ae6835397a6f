#include "skeleton.h"

#include <QDir>
#include <QFile>

namespace lcdcheck {

using reading::Kind;
using reading::OnNull;

namespace {

class Skeleton {
public:
    explicit Skeleton(const Values& values) : _values(values) {}

    QString write(const Element& root)
    {
        _text = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
        writeElement(root, 0, false);
        return _text;
    }

private:
    /// Absent, it leaves a message at least; or it is an entry without which its list says nothing.
    [[nodiscard]] bool isWanted(const Element& element) const
    {
        if (element.cost() && *element.cost() < OnNull::Skip) return true;
        if (element.isEntry() && !element.body().children.empty() && element.sameAs == nullptr) return true;
        const QString path = element.path();
        for (auto value = _values.lowerBound(path); value != _values.cend() && value.key().startsWith(path); ++value)
            if (value.key()[path.size()] == '/' || value.key()[path.size()] == '@') return true;
        return false;
    }

    void writeElement(const Element& element, int depth, bool isInComment)
    {
        if (element.refused) return;
        const bool opensComment = !isInComment && element.parent != nullptr && !isWanted(element);
        const bool isComment = isInComment || opensComment;
        const QString indent(2 * depth, ' ');
        _text += indent + (opensComment ? "<!-- <" : "<") + element.tag + attributesOf(element);
        if (element.children.empty()) {
            _text += "/>";
        } else {
            _text += ">\n";
            for (const auto& child : element.children) writeElement(*child, depth + 1, isComment);
            _text += indent + "</" + element.tag + '>';
        }
        _text += opensComment ? " -->\n" : "\n";
    }

    /// What an attribute says in the file: what an absent one counts as, unless told.
    [[nodiscard]] QString valueOf(const Element& element, const Attribute& attribute) const
    {
        const Use& use = attribute.uses.front();
        const QString readDefault = use.kind != Kind::Text && use.readDefault.isEmpty() ? "0" : use.readDefault;
        return _values.value(element.path() + '@' + attribute.name, readDefault);
    }

    [[nodiscard]] QString attributesOf(const Element& element) const
    {
        QString all;
        for (const Attribute& attribute : element.body().attributes) {
            if (attribute.uses.empty()) continue;
            QString value = valueOf(element, attribute);
            // One read default lies outside of the range that those beside it give.
            const Attribute* const least = attribute.name == "Value" ? element.attribute("Min") : nullptr;
            if (least != nullptr && value.toInt() < valueOf(element, *least).toInt()) value = valueOf(element, *least);
            all += QString(" %1=\"%2\"").arg(attribute.name, value.toHtmlEscaped());
        }
        return all;
    }

    const Values& _values;
    QString _text;
};

bool writeFile(const QString& path, const QString& text)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly | QIODevice::NewOnly) &&
           file.write(text.toUtf8()) == text.toUtf8().size() && file.flush();
}

struct SmallFile {
    FileKind kind;
    const char* path;
    Values values;
};

/// One card of model 1 in slot 1, with one connector of type 1.
const std::vector<SmallFile>& smallRoot()
{
    static const QString card = "DCS/Subcards/Card";
    static const QString slot = "DCS/Device/Slots/InputCardSlots/Slot";
    static const QString connector = "DCS/Connectors/Connector";
    // clang-format off
    static const std::vector<SmallFile> files{
        {FileKind::Feature,      "devices/device/feature.xml",       {{"DCS/Device@ModuleId", "1"}, {"DCS/Device@Name", "Device"}}},
        {FileKind::Slot,         "devices/device/slot.xml",          {{slot + "@Index", "1"}, {slot + "/Subcards/Subcard@ModuleId", "1"}}},
        {FileKind::Card,         "subcards/1.xml",                   {{card + "@ModelId", "1"}, {card + "/Connectors/Connector@Type", "1"}, {card + "/Connectors/Connector@Position", "1"}}},
        {FileKind::Connector,    "connectors/1.xml",                 {{connector + "@Type", "1"}}},
        {FileKind::Resolution,   "connectors/resolutionratio.xml",   {}},
        {FileKind::Menu,         "menu/menuconfig.xml",              {}},
        {FileKind::FunctionKeys, "fnbutton/fnkeyboardconfig.xml",    {}},
        {FileKind::KeyCheck,     "keycheck/keyboardchecklist.xml",   {}},
        {FileKind::LockArea,     "lockarea/lockareaconfig.xml",      {}},
    };
    // clang-format on
    return files;
}

} // namespace

QString writeSkeleton(const Grammar& grammar, const Values& values) { return Skeleton(values).write(grammar.root()); }

QString writeSmallRoot(const QString& folder)
{
    for (const SmallFile& file : smallRoot()) {
        const QString path = QDir(folder).filePath(file.path);
        if (!writeFile(path, writeSkeleton(grammarOf(file.kind), file.values))) return path;
    }
    const QString settings = QDir(folder).filePath("settings/lcdsetting.ini");
    return writeFile(settings, "; What is left out keeps its default.\n") ? QString() : settings;
}

} // namespace lcdcheck
