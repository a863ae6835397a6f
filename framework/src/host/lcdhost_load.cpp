// The command that reads everything, as the panel application does at start-up, and tells what came of it.
#include "lcdhost_commands.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace lcdhost {
namespace {

template <class Enums> QString valuesOf(const Enums& enums)
{
    return listed(enums, [](const auto& entry) { return number(entry.value); });
}

QString span(int min, int max) { return QString("%1 to %2").arg(min).arg(max); }

void tellDevice(const Session& session, Page& page)
{
    const Lcd::s_Device device = session.devices().curDeviceConfigs();
    page.heading("Device");
    Table facts({words(), words()});
    const auto given = [](const QString& value) { return value.isEmpty() ? "not given" : value; };
    if (!session.devices().DeviceConfigs().isEmpty()) {
        facts.add({"Name", given(text(device.feature.name))});
        facts.add({"Type name", given(session.devices().findDeviceTypeName())});
        facts.add({"Brand", given(session.devices().getBrand())});
        facts.add({"Module id", number(qulonglong(device.feature.moduleId))});
        facts.add({"Silk order", QString("%1 connectors").arg(device.silkOrders.size())});
    }
    facts.print(page, "none");
}

void tellOtherDevices(const Session& session, Page& page)
{
    const auto& devices = session.devices().DeviceConfigs();
    if (devices.size() < 2) return;
    page.heading("Other devices");
    Table table({words("Name"), numbers("Module id")});
    for (const Lcd::s_Device& device : devices.mid(1))
        table.add({text(device.feature.name), number(qulonglong(device.feature.moduleId))});
    table.print(page);
}

/// One slot with the class it belongs to.
struct ClassSlot {
    Lcd::s_Slot slot;
    QString silkName;
    QString className;
};

std::vector<ClassSlot> slotsByIndex(const Lcd::s_Slots& all)
{
    const std::pair<const char*, const Lcd::s_SlotAttr*> classes[] = {{"main control", &all.mainControlCardSlots},
                                                                      {"reserved", &all.reservedCardSlots},
                                                                      {"mixed", &all.mixCardSlots},
                                                                      {"input", &all.inputCardSlots},
                                                                      {"output", &all.outputCardSlots},
                                                                      {"multi-view", &all.mvrCardSlots},
                                                                      {"auxiliary", &all.auxCardSlots},
                                                                      {"expansion", &all.expCardSlots}};
    std::vector<ClassSlot> found;
    for (const auto& [name, attr] : classes)
        for (const Lcd::s_Slot& slot : attr->slots) found.push_back({slot, text(attr->silkScreenName), name});
    std::stable_sort(found.begin(), found.end(),
                     [](const ClassSlot& a, const ClassSlot& b) { return a.slot.index < b.slot.index; });
    return found;
}

void tellSlots(const Session& session, Page& page)
{
    const auto cards = session.cards().subcardConfig();
    Table table({numbers("Slot"), words("Silk name"), words("Class"), numbers("Card"), words("Card name")});
    for (const ClassSlot& entry : slotsByIndex(session.devices().curDeviceConfigs().slots)) {
        QStringList row{number(entry.slot.index), entry.silkName, entry.className};
        if (entry.slot.subcards.empty()) table.add(row + QStringList{"-", "takes no card"});
        for (const Lcd::s_InlineSubcard& card : entry.slot.subcards) {
            const QString name = session.cardName(*cards, card.moduleId);
            table.add(row + QStringList{number(qulonglong(card.moduleId)), name.isEmpty() ? "not in catalogue" : name});
            row = QStringList{{}, {}, {}};
        }
    }
    page.heading("Slots");
    table.print(page, "none");
}

QString mosaicDetail(const Lcd::s_MOSAICSource& source)
{
    return source.subSourceTypes.empty() ? QString() : "sub-source types " + valuesOf(source.subSourceTypes);
}

void tellFeatures(const Session& session, Page& page)
{
    page.heading("Features");
    const Lcd::s_Device device = session.devices().curDeviceConfigs();
    const Lcd::s_DeviceFeature& feature = device.feature;
    const Lcd::s_FuncFeatures& functions = feature.funcFeatures;
    Table table({words("Feature"), words("Supported"), words("Detail")});
    const auto add = [&table](const QString& name, const Lcd::s_SupportInfo& info, const QString& detail = {}) {
        table.add({name, text(info.support != 0), info.support != 0 ? detail : QString()});
    };
    const auto protocol = [](const Lcd::s_PtzProtocol& entry) { return text(entry.protocolName); };
    const auto feed = [](const Lcd::s_CleanFeed& entry) { return text(entry.name); };

    add("Device modes", feature.deviceModes, valuesOf(feature.deviceModes.enums));
    add("Presets", feature.preset, span(feature.preset.min, feature.preset.max));
    add("Languages", functions.language, valuesOf(functions.language.enums));
    add("Switch effects", functions.switchEffect, valuesOf(functions.switchEffect.type.enums));
    add("Genlock", functions.genlock, valuesOf(functions.genlock.type.enums));
    add("HDCP", functions.hdcp);
    add("HDR", feature.hdr);
    add("Media pool", functions.mediaPool);
    add("Recording", functions.record, QString("%1 at most").arg(functions.record.maxCount));
    add("Push stream", feature.pushStream,
        QString("%1 timings").arg(feature.pushStream.timingPreset.resolutionRatios.size()));
    add("Quick topology", functions.quickToPology);
    add("Mosaic sources", feature.mosaicSource, mosaicDetail(feature.mosaicSource));
    add("Internal sources", feature.internalSource, number(feature.internalSource.details.size()));
    add("Tally", feature.tally);
    add("Camera control", feature.ptzs, listed(feature.ptzs.ptzProtocols, protocol));
    add("Clean feeds", feature.cleanFeeds, listed(feature.cleanFeeds.cleanFeeds, feed));
    add("Audio", feature.audio, session.devices().isSupportDantePort() ? "with a Dante port" : QString());
    table.print(page);
}

void tellScreens(const Lcd::s_Device& device, Page& page)
{
    page.heading("Screens");
    Table table({numbers("Type"), numbers("Device mode"), words("Preview"), numbers("Templates"),
                 words("Layer types (most at once)")});
    const auto layerType = [](const Lcd::s_LayerType& type) {
        return QString("%1 (%2)").arg(type.layerType).arg(type.layerCountMax);
    };
    for (const Lcd::s_DCSScreen& screen : device.screens) {
        QString type = number(screen.type);
        if (screen.deviceModes.empty()) table.add({type, "-", "-", "-", "no device mode"});
        for (const Lcd::s_ScreenDeviceMode& mode : screen.deviceModes)
            table.add({std::exchange(type, {}), number(mode.value), text(mode.pvwSupport != 0),
                       number(mode.templetes.size()), listed(mode.layerTypes, layerType)});
    }
    table.print(page, "none");
}

void tellLayers(const Session& session, const Lcd::s_Device& device, Page& page)
{
    page.heading("Layers");
    Table table({numbers("Type"), words("Window width"), words("Window height"), words("Sources"), words("Keying"),
                 numbers("Borders"), numbers("Templates")});
    for (const Lcd::s_DCSLayer& layer : device.layers) {
        const Lcd::s_LayerWindow window = session.devices().findLayerWindowDefaultRange(layer.type);
        table.add({number(layer.type), span(window.width.min, window.width.max),
                   span(window.height.min, window.height.max), valuesOf(layer.source.type.enums),
                   text(layer.cutoutGeneral.info.support != 0), number(layer.borders.size()),
                   number(layer.deviceModes.templates.size())});
    }
    table.print(page, "none");
}

/// The catalogues one by one: how much there is, and what stands out.
class Counts {
public:
    explicit Counts(const Session& session) : _session(session), _cards(*session.cards().subcardConfig()) {}

    void tell(Page& page)
    {
        add("Devices", Catalogue::Devices, _session.devices().DeviceConfigs().size());
        add("Cards", Catalogue::Cards, int(_cards.subcards.size()), lackingCards());
        addConnectors();
        addMenu();
        addKeys();
        addLockAreas();
        add("Settings", Catalogue::Settings, _session.isLoaded(Catalogue::Settings) ? countSettings() : 0);
        page.heading("Catalogues");
        _table.print(page);
    }

private:
    void add(const QString& name, Catalogue catalogue, int count, const QString& note = {})
    {
        if (!_session.has(catalogue)) return _table.add({name, "-", "not there"});
        QStringList notes{note};
        if (count == 0) notes.prepend("empty");
        if (!_session.isLoaded(catalogue)) notes.prepend("not read to the end");
        notes.removeAll({});
        _table.add({name, number(count), notes.join("; ")});
    }

    QString lackingCards() const
    {
        std::set<std::uint64_t> lacking;
        for (const ClassSlot& entry : slotsByIndex(_session.devices().curDeviceConfigs().slots))
            for (const Lcd::s_InlineSubcard& card : entry.slot.subcards)
                if (_session.cardName(_cards, card.moduleId).isEmpty()) lacking.insert(card.moduleId);
        return lackingText(lacking);
    }

    template <class Numbers> static QString lackingText(const Numbers& lacking)
    {
        if (lacking.empty()) return {};
        return "no file for " + listed(lacking, [](auto value) { return QString::number(value); });
    }

    /// The interface hands out no list of types or of resolutions, so they are asked for, connector by connector.
    void addConnectors()
    {
        std::set<int> known;
        std::set<int> lacking;
        std::set<std::tuple<int, int, int>> resolutions;
        for (const Lcd::s_Subcard& card : _cards.subcards)
            for (const Lcd::s_SubcardConnector& connector : card.connectors.connectors) {
                const int type = connector.type;
                (_session.connectors().findEDIDInfo(type) ? known : lacking).insert(type);
                for (const auto& offered :
                     _session.connectors().findConnectorResolutions(2, type, connector.interfaceType))
                    resolutions.insert({offered.width, offered.height, offered.interlaced});
            }
        add("Connector types", Catalogue::Connectors, int(known.size()), lackingText(lacking));
        add("Resolutions", Catalogue::Connectors, int(resolutions.size()),
            resolutions.empty() ? QString() : "different ones that the connectors offer");
    }

    static int countItems(const Lcd::s_MenuItem& item, int& depth)
    {
        depth = std::max(depth, item.level + 1);
        int count = 1;
        for (const auto& child : item.children) count += countItems(*child, depth);
        return count;
    }

    void addMenu()
    {
        const auto root = _session.menu().rootMenuItem();
        int depth = 0;
        const bool empty = root->key.isEmpty() && root->children.isEmpty();
        const int count = empty ? 0 : countItems(*root, depth);
        add("Menu items", Catalogue::Menu, count, empty ? QString() : QString("on %1 levels").arg(depth));
    }

    void addKeys()
    {
        Lcd::IFNButtonConfig& keys = _session.functionKeys();
        const int bindings = keys.findDefaultBindings().size();
        add("Function buttons", Catalogue::FunctionKeys, keys.findFNBtnMaxCount(),
            bindings == 0 ? QString() : QString("%1 with a factory binding").arg(bindings));

        const Lcd::IKeyCheckConfig& checks = _session.keyChecks();
        const std::pair<const char*, int> lists[] = {
            {"keyboard %1", checks.getKeyCheckList().size()},
            {"knobs %1", checks.getKnobKeyCheckList().size()},
            {"T-bar and joystick %1", checks.getTbarJoyStickCheckList().size()}};
        QStringList sizes;
        for (const auto& [name, size] : lists)
            if (size > 0) sizes.append(QString(name).arg(size));
        add("Key-check lists", Catalogue::KeyChecks, sizes.size(),
            sizes.isEmpty() ? QString() : "keys: " + sizes.join(", "));
    }

    /// The interface answers by key alone; no panel has a key code beyond the ones asked for here.
    void addLockAreas()
    {
        constexpr int KEY_CODES = 65536;
        std::set<int> areas;
        int keys = 0;
        for (int key = 0; key < KEY_CODES; ++key) {
            const int area = _session.lockAreas().getIdByLCDKey(key);
            if (area == -1) continue;
            areas.insert(area);
            ++keys;
        }
        add("Lock areas", Catalogue::LockAreas, int(areas.size()),
            keys == 0 ? QString() : QString("%1 keys").arg(keys));
    }

    const Session& _session;
    const Lcd::s_DCSSubcard _cards;
    Table _table{{words("Catalogue"), numbers("Entries"), words("Note")}};
};

} // namespace

bool runLoad(Session& session, const Options& /*options*/, Console& console)
{
    session.loadAll();
    const Lcd::s_Device device = session.devices().curDeviceConfigs();
    console.out.heading(session.root());
    tellDevice(session, console.out);
    tellOtherDevices(session, console.out);
    tellSlots(session, console.out);
    tellFeatures(session, console.out);
    tellScreens(device, console.out);
    tellLayers(session, device, console.out);
    Counts(session).tell(console.out);
    return true;
}

} // namespace lcdhost
