// Things that are told apart by a number or a name, and stand twice.
#include "rules.h"

#include <lcdmainconfig/connector.h>
#include <lcdmainconfig/device.h>
#include <lcdmainconfig/layer.h>
#include <lcdmainconfig/menu.h>
#include <lcdmainconfig/panel.h>
#include <lcdmainconfig/subcard.h>

#include <QFileInfo>
#include <QPair>

#include <map>

namespace lcdcheck {

using namespace LCD::MainConfig;

Finding& Judge::about(const char* id, const Value& value, const QString& message)
{
    const CollectedFile& file = _collected.fileOf(value);
    Finding finding;
    finding.kind = kindOf(id);
    finding.file = file.path;
    finding.place = value.place;
    finding.element = file.pathOf(value.element);
    finding.message = message;
    _findings.push_back(std::move(finding));
    return _findings.back();
}

QString Judge::where(const Value& value, const Value& here) const
{
    const QString line = QString("line %1").arg(value.place.line);
    if (value.file == here.file) return line;
    return line + " of " + QFileInfo(_collected.fileOf(value).path).fileName();
}

namespace {

/// Among which things a number or name must not stand twice.
enum class Among {
    All,
    Device, ///< Those of one device folder.
    File,
    Parent, ///< Those below one element that was read into the record of `owner`.
};

struct Identity {
    Field key;
    const char* name;
    Among among;
    const char* winner; ///< Which one counts.
    const char* id = "duplicate-identifier";
    Field owner = {};
    /// What has a value of this field on or above it is no such thing.
    Field except = {};
};

const std::vector<Identity>& identities()
{
    using Key = QPair<int, QString>;
    static const Field card = fieldOf<s_Subcard>(&s_Subcard::modelId);
    static const Field group = fieldOf<s_SubcardConnectorGroup>(&s_SubcardConnectorGroup::value);
    static const Field screen = fieldOf<s_Screen>(&s_Screen::type);
    static const Field mosaic = fieldOf<s_SubSourceType>(&s_SubSourceType::value);
    static const Field interfaceMode = fieldOf<s_Interface>(&s_Interface::type);
    // clang-format off
    static const std::vector<Identity> all{
        {fieldOf<s_DeviceFeature>(&s_DeviceFeature::moduleId),            "device",          Among::All,    "the panel asks the first one", "shadowed"},
        {fieldOf<s_Slot>(&s_Slot::index),                                 "slot",            Among::Device, "the first one that takes a card counts"},
        {screen,                                                          "screen type",     Among::Device, "the first one counts"},
        {fieldOf<s_Layer>(&s_Layer::type),                                "layer type",      Among::Device, "the first one counts"},
        {card,                                                            "card model",      Among::All,    "most queries answer from the first one"},
        {fieldOf<s_SubcardConnector>(&s_SubcardConnector::position),      "position",        Among::Parent, "the first one counts", "duplicate-identifier", card, group},
        {fieldOf<s_ConnectorCfg>(&s_ConnectorCfg::type),                  "connector type",  Among::All,    "the first one counts"},
        {fieldOf<s_MenuItem>(&s_MenuItem::key),                           "menu key",        Among::All,    "a look-up finds the one nearest to the root, its children those of the last branch"},
        {fieldOf<s_FnDefaultBinding>(&s_FnDefaultBinding::index),         "function button", Among::All,    "the first one counts"},
        {fieldOf<s_FnDefaultBinding>(&s_FnDefaultBinding::lcdKey),        "key code",        Among::All,    "two buttons have one code"},
        {fieldOf<Key>(&Key::first),                                       "key code",        Among::File,   "both are asked for"},
        {fieldOf<s_LockAreaButton>(&s_LockAreaButton::lcdKey),            "key code",        Among::All,    "the first area that holds it counts"},
        {fieldOf<s_ScreenDeviceMode>(&s_ScreenDeviceMode::value),         "device mode",     Among::Parent, "the first one counts", "shadowed", screen},
        {fieldOf<s_ResoluCapacityMode>(&s_ResoluCapacityMode::value),     "capacity mode",   Among::File,   "the first one counts", "shadowed"},
        {fieldOf<s_CapacityModeInInterface>(&s_CapacityModeInInterface::value), "capacity mode", Among::Parent, "the first one counts", "shadowed", interfaceMode},
        {fieldOf<s_MosaicTemplate>(&s_MosaicTemplate::pitId),             "mosaic template", Among::Parent, "the first one counts", "shadowed", mosaic},
    };
    // clang-format on
    return all;
}

/// The element or file within which a value must be alone.
QString scopeOf(const Collected& collected, const Identity& identity, const Value& value)
{
    switch (identity.among) {
    case Among::All:
        return {};
    case Among::Device:
        return QFileInfo(collected.fileOf(value).path).path();
    case Among::File:
        return QString::number(value.file);
    case Among::Parent:
        if (const Value* const owner = collected.above(value, identity.owner))
            return QString("%1/%2").arg(owner->file).arg(owner->element);
    }
    return QString("%1/").arg(value.file);
}

void judgeIdentity(const Collected& collected, const Identity& identity, Judge& judge)
{
    std::map<std::pair<QString, QString>, const Value*> first;
    for (const Value& value : collected.all(identity.key)) {
        if (!value.good || value.text.isEmpty()) continue;
        if (identity.except != Field() && collected.above(value, identity.except) != nullptr) continue;
        bool isNumber = false;
        const qlonglong number = value.text.toLongLong(&isNumber);
        const QString shown = isNumber ? QString::number(number) : value.text;
        const Value*& earlier = first[{scopeOf(collected, identity, value), shown}];
        if (earlier == nullptr) {
            earlier = &value;
            continue;
        }
        judge
            .about(identity.id, value,
                   QString("%1 %2 stands on %3 already").arg(identity.name, shown, judge.where(*earlier, value)))
            .cost = identity.winner;
    }
}

} // namespace

std::set<Field> fieldsOfIdentities()
{
    std::set<Field> fields;
    for (const Identity& identity : identities()) fields.insert({identity.key, identity.owner, identity.except});
    fields.erase(Field());
    return fields;
}

void judgeIdentities(const Collected& collected, Findings& findings)
{
    Judge judge(collected, findings);
    for (const Identity& identity : identities()) judgeIdentity(collected, identity, judge);
}

} // namespace lcdcheck
