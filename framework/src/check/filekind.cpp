#include "filekind.h"

#include <algorithm>

namespace lcdcheck {

const std::vector<FileKindInfo>& fileKinds()
{
    // clang-format off
    static const std::vector<FileKindInfo> kinds{
        {FileKind::Feature,      "feature",      "Feature file",      "devices/*/feature*.xml",           "What one device model can do"},
        {FileKind::Slot,         "slot",         "Slot file",         "devices/*/slot*.xml",              "The slots of a device, and the cards that fit them"},
        {FileKind::Silk,         "silk",         "Silk file",         "devices/*/silk*.xml",              "The order in which the printed keys stand for connectors"},
        {FileKind::Screen,       "screen",       "Screen file",       "devices/*/screen*.xml",            "One screen type: its modes, templates and settings"},
        {FileKind::Layer,        "layer",        "Layer file",        "devices/*/layer*.xml",             "One layer type: its properties, keying and capacity"},
        {FileKind::Card,         "card",         "Card file",         "subcards/*/MODEL.xml",             "A plug-in card: its connectors, capacities and modes"},
        {FileKind::Connector,    "connector",    "Connector file",    "connectors/TYPE.xml",              "A connector type: its signal, resolutions and timings", "Connectors"},
        {FileKind::Resolution,   "resolution",   "Resolution file",   "connectors/resolutionratio.xml",   "The standard resolutions of each capacity mode", "ResolutionRatios"},
        {FileKind::Menu,         "menu",         "Menu file",         "menu/menuconfig.xml",              "The tree of the panel's menus"},
        {FileKind::FunctionKeys, "fnbutton",     "Function key file", "fnbutton/fnkeyboardconfig.xml",    "What the function keys do before the user says so"},
        {FileKind::KeyCheck,     "keycheck",     "Key check file",    "keycheck/keyboard*checklist.xml",  "The keys of the keyboard's self-test"},
        {FileKind::LockArea,     "lockarea",     "Lock area file",    "lockarea/lockareaconfig.xml",      "The areas of keys that are locked together"},
        {FileKind::Settings,     "settings",     "Settings file",     "settings/lcdsetting.ini",          "The panel's factory settings"},
    };
    // clang-format on
    return kinds;
}

std::span<const FileKindInfo> xmlKinds() { return std::span(fileKinds()).first(std::size_t(FileKind::Settings)); }

QStringList fileKindNames()
{
    QStringList names;
    for (const FileKindInfo& kind : fileKinds()) names.append(kind.name);
    return names;
}

const FileKindInfo& infoOf(FileKind kind) { return fileKinds()[static_cast<std::size_t>(kind)]; }

const FileKindInfo* fileKindNamed(const QString& name)
{
    const auto& kinds = fileKinds();
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [&](const FileKindInfo& info) { return name == QLatin1String(info.name); });
    return found != kinds.end() ? &*found : nullptr;
}

} // namespace lcdcheck
