#include "skeleton.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

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
        const auto isThereOrBelow = [&](const QString& key) {
            return key == path || (key.startsWith(path) && (key[path.size()] == '/' || key[path.size()] == '@'));
        };
        const QStringList keys = _values.keys();
        return std::any_of(keys.begin(), keys.end(), isThereOrBelow);
    }

    void writeElement(const Element& element, int depth, bool isInComment)
    {
        if (element.refused) return;
        const bool opensComment = !isInComment && element.parent != nullptr && !isWanted(element);
        const bool isComment = isInComment || opensComment;
        const QString indent(2 * depth, ' ');
        _text += indent + (opensComment ? "<!-- <" : "<") + element.tag + attributesOf(element);
        const QString content = _values.value(element.path()).toHtmlEscaped();
        if (!content.isEmpty()) {
            _text += '>' + content + "</" + element.tag + '>';
        } else if (element.children.empty()) {
            _text += "/>";
        } else {
            _text += ">\n";
            for (const Element* const child : inSafeOrder(element)) writeElement(*child, depth + 1, isComment);
            _text += indent + "</" + element.tag + '>';
        }
        _text += opensComment ? " -->\n" : "\n";
    }

    /// The children, those last whose list takes all that follows them for entries too.
    static std::vector<const Element*> inSafeOrder(const Element& element)
    {
        std::vector<const Element*> order;
        for (const auto& child : element.children) order.push_back(child.get());
        std::stable_partition(order.begin(), order.end(), [](const Element* child) {
            return !child->isEntry() || child->visits.front().walk != reading::Walk::FirstNamed;
        });
        return order;
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

/// A value below a path.
using Below = std::pair<const char*, const char*>;

Values values(const QString& path, std::initializer_list<Below> below)
{
    Values all;
    for (const auto& [place, value] : below) all.insert(path + place, value);
    return all;
}

/// One card of model 1 in slot 1, with one connector of type 1 at position 0.
const std::vector<SmallFile>& smallRoot()
{
    // clang-format off
    static const std::vector<SmallFile> files{
        {FileKind::Feature, "devices/device/feature.xml", values("DCS/Device", {
            {"@ModuleId", "1"}, {"@Name", "Device"}, {"@Brand", "Brand"},
            {"/TypeName/en", "Device"}, {"/TypeName/zh_CN", "Device"}})},
        {FileKind::Slot, "devices/device/slot.xml", values("DCS/Device/Slots/InputCardSlots", {
            {"@SilkScreenName", "IN"}, {"@InterfaceType", "1"}, {"/Slot@Index", "1"}, {"/Slot/Subcards/Subcard@ModuleId", "1"}})},
        {FileKind::Screen, "devices/device/screen.xml", values("DCS/Device/Screens/Screen", {
            {"@Type", "1"}, {"@Support", "1"}, {"@Editable", "1"}, {"/DeviceModes/DeviceMode/LayerTypes/LayerType@Value", "1"}})},
        {FileKind::Layer, "devices/device/layer.xml", values("DCS/Device/Layers/Layer", {{"@Type", "1"}})},
        {FileKind::Card, "subcards/inputs/1.xml", values("DCS/Subcards/Card", {
            {"@ModelId", "1"}, {"@CardMode", "1"}, {"/Name/en", "Card"}, {"/Name/zh_CN", "Card"},
            {"/Connectors/Connector@Type", "1"}, {"/Connectors/Connector@InterfaceType", "1"},
            {"/Connectors/Connector@Enable", "1"}, {"/Connectors/Connector@Visible", "1"}})},
        {FileKind::Connector, "connectors/1.xml", values("DCS/Connectors/Connector", {
            {"@Type", "1"}, {"/Name/en", "Connector"}, {"/Name/zh_CN", "Connector"},
            {"/ShortName/en", "C"}, {"/ShortName/zh_CN", "C"}, {"/CapacityMode/Interface@Type", "1"},
            {"/CapacityMode/Interface/CapacityMode/ResolutionRatios/ResolutionRatio/Width@Value", "1920"},
            {"/CapacityMode/Interface/CapacityMode/ResolutionRatios/ResolutionRatio/Width@Max", "1920"},
            {"/CapacityMode/Interface/CapacityMode/ResolutionRatios/ResolutionRatio/Height@Value", "1080"},
            {"/CapacityMode/Interface/CapacityMode/ResolutionRatios/ResolutionRatio/Height@Max", "1080"}})},
        {FileKind::Resolution, "connectors/resolutionratio.xml", values("DCS/ResolutionRatios/CapacityMode/ResolutionRatio", {
            {"@Width", "1920"}, {"@Height", "1080"}})},
        {FileKind::Menu, "menu/menuconfig.xml", values("LCD/MenuBar/Menu", {
            {"@Key", "home"}, {"/Menu@Key", "input"}})},
        {FileKind::FunctionKeys, "fnbutton/fnkeyboardconfig.xml", values("LCD", {
            {"/MaxCount@count", "1"}, {"/Sequence/Function@name", "None"}})},
        {FileKind::KeyCheck, "keycheck/keyboardchecklist.xml", values("LCD/LcdKeys/Key", {
            {"@Value", "257"}, {"@Name", "Key"}})},
        {FileKind::LockArea, "lockarea/lockareaconfig.xml", values("LCD/LockAreas/LockArea", {
            {"@Name", "Keys"}, {"@Id", "1"}, {"/Button@LCDKey", "257"}})},
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
    return writeFile(settings, "; What is left out keeps its default.\n[LanguageSetting]\nLanguageValue=en\n")
               ? QString()
               : settings;
}

} // namespace lcdcheck
