// The command that reads everything, as the panel application does at start-up, and tells what came of it.
#include "lcdhost_commands.h"
#include "lcdhost_settings.h"
#include "lcdhost_slots.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace lcdhost {
namespace {

template <class Enums> QJsonArray valuesOf(const Enums& enums)
{
    return jsonArray(enums, [](const auto& entry) { return entry.value; });
}

Facts deviceFacts(const Session& session, const Lcd::s_Device& device)
{
    Facts facts;
    if (session.devices().DeviceConfigs().isEmpty()) return facts;
    const auto given = [](const QString& value) { return Cell(value, value.isEmpty() ? "not given" : value); };
    facts.add("Name", given(text(device.feature.name)));
    facts.add("Type name", given(session.devices().findDeviceTypeName()));
    facts.add("Brand", given(session.devices().getBrand()));
    facts.add("Module id", device.feature.moduleId);
    const int silkOrder = int(device.silkOrders.size());
    facts.add("Silk order", {silkOrder, QString("%1 connectors").arg(silkOrder)});
    return facts;
}

void answerOtherDevices(const Session& session, Answer& answer)
{
    const auto& devices = session.devices().DeviceConfigs();
    if (devices.size() < 2) return;
    Records records({words("Name"), numbers("Module id")});
    for (const Lcd::s_Device& device : devices.mid(1))
        records.add({text(device.feature.name), device.feature.moduleId});
    answer.add("Other devices", records);
}

Records slotRecords(const Session& session)
{
    Records records({numbers("Slot"), words("Silk name"), words("Class"), numbers("Card"), words("Card name")});
    for (const ClassSlot& entry : slotsByIndex(session.devices().curDeviceConfigs().slots)) {
        const std::vector<Cell> slot{entry.slot.index, entry.silkName, entry.className};
        const auto add = [&](const Cell& card, const Cell& name, int shared) {
            records.add({slot[0], slot[1], slot[2], card, name}, shared);
        };
        if (entry.slot.subcards.empty()) add(QJsonValue::Null, {QJsonValue::Null, "takes no card"}, 0);
        int shared = 0;
        for (const Lcd::s_InlineSubcard& card : entry.slot.subcards) {
            const QString name = session.cardName(card.moduleId);
            const Cell known = session.hasCard(card.moduleId) ? Cell(name) : Cell(QJsonValue::Null, "not in catalogue");
            add(card.moduleId, known, std::exchange(shared, int(slot.size())));
        }
    }
    return records;
}

Cell mosaicDetail(const Lcd::s_MOSAICSource& source)
{
    const Cell types = valuesOf(source.subSourceTypes);
    return {types.value, source.subSourceTypes.empty() ? QString() : "sub-source types " + types.shown};
}

/// A count with words around it.
template <class Count> Cell counted(Count count, const char* words) { return {int(count), QString(words).arg(count)}; }

Records featureRecords(const Session& session, const Lcd::s_DeviceFeature& feature)
{
    const Lcd::s_FuncFeatures& functions = feature.funcFeatures;
    Records records({words("Feature"), words("Supported"), words("Detail")});
    const Cell none(QJsonValue::Null, QString());
    const auto add = [&](const char* name, const Lcd::s_SupportInfo& info, const Cell& detail) {
        records.add({name, info.support != 0, info.support != 0 ? detail : none});
    };
    const auto protocol = [](const Lcd::s_PtzProtocol& entry) { return text(entry.protocolName); };
    const auto feed = [](const Lcd::s_CleanFeed& entry) { return text(entry.name); };

    add("Device modes", feature.deviceModes, valuesOf(feature.deviceModes.enums));
    add("Presets", feature.preset, span(feature.preset.min, feature.preset.max));
    add("Languages", functions.language, valuesOf(functions.language.enums));
    add("Switch effects", functions.switchEffect, valuesOf(functions.switchEffect.type.enums));
    add("Genlock", functions.genlock, valuesOf(functions.genlock.type.enums));
    add("HDCP", functions.hdcp, none);
    add("HDR", feature.hdr, none);
    add("Media pool", functions.mediaPool, none);
    add("Recording", functions.record, counted(functions.record.maxCount, "%1 at most"));
    add("Push stream", feature.pushStream,
        counted(feature.pushStream.timingPreset.resolutionRatios.size(), "%1 timings"));
    add("Quick topology", functions.quickToPology, none);
    add("Mosaic sources", feature.mosaicSource, mosaicDetail(feature.mosaicSource));
    add("Internal sources", feature.internalSource, int(feature.internalSource.details.size()));
    add("Tally", feature.tally, none);
    add("Camera control", feature.ptzs, jsonArray(feature.ptzs.ptzProtocols, protocol));
    add("Clean feeds", feature.cleanFeeds, jsonArray(feature.cleanFeeds.cleanFeeds, feed));
    add("Audio", feature.audio, session.devices().isSupportDantePort() ? Cell("with a Dante port") : none);
    return records;
}

Cell layerTypes(const std::vector<Lcd::s_LayerType>& types)
{
    const auto object = [](const Lcd::s_LayerType& type) {
        return QJsonObject{{"type", type.layerType}, {"most", type.layerCountMax}};
    };
    const auto shown = [](const Lcd::s_LayerType& type) {
        return QString("%1 (%2)").arg(type.layerType).arg(type.layerCountMax);
    };
    return {jsonArray(types, object), listed(types, shown)};
}

Records screenRecords(const Lcd::s_Device& device)
{
    Records records({numbers("Type"), numbers("Device mode"), words("Preview"), numbers("Templates"),
                     words("Layer types (most at once)")});
    for (const Lcd::s_DCSScreen& screen : device.screens) {
        const Cell none = QJsonValue::Null;
        if (screen.deviceModes.empty()) records.add({screen.type, none, none, none, {QJsonArray(), "no device mode"}});
        int shared = 0;
        for (const Lcd::s_ScreenDeviceMode& mode : screen.deviceModes)
            records.add({screen.type, mode.value, mode.pvwSupport != 0, int(mode.templetes.size()),
                         layerTypes(mode.layerTypes)},
                        std::exchange(shared, 1));
    }
    return records;
}

Records layerRecords(const Session& session, const Lcd::s_Device& device)
{
    Records records({numbers("Type"), words("Window width"), words("Window height"), words("Sources"), words("Keying"),
                     numbers("Borders"), numbers("Templates")});
    for (const Lcd::s_DCSLayer& layer : device.layers) {
        const Lcd::s_LayerWindow window = session.devices().findLayerWindowDefaultRange(layer.type);
        records.add({layer.type, span(window.width.min, window.width.max), span(window.height.min, window.height.max),
                     valuesOf(layer.source.type.enums), layer.cutoutGeneral.info.support != 0,
                     int(layer.borders.size()), int(layer.deviceModes.templates.size())});
    }
    return records;
}

/// The catalogues one by one: how much there is, and what stands out.
class Counts {
public:
    explicit Counts(Session& session) : _session(session), _cards(session.allCards()) {}

    [[nodiscard]] Records counted()
    {
        add("Devices", Catalogue::Devices, _session.devices().DeviceConfigs().size());
        add("Cards", Catalogue::Cards, int(_cards.subcards.size()), gapsIn(Catalogue::Cards));
        addConnectors();
        addMenu();
        addKeys();
        addLockAreas();
        add("Settings", Catalogue::Settings, _session.isLoaded(Catalogue::Settings) ? countSettings() : 0);
        return _records;
    }

private:
    void add(const QString& name, Catalogue catalogue, int count, const QString& note = {})
    {
        if (!_session.has(catalogue)) return _records.add({name, QJsonValue::Null, "not there"});
        QStringList notes{note};
        if (count == 0) {
            notes.prepend("empty");
            _session.noteEmpty(catalogue);
        }
        if (!_session.isLoaded(catalogue)) notes.prepend("not read to the end");
        notes.removeAll({});
        _records.add({name, count, notes.join("; ")});
    }

    /// What is asked for and was not loaded, by the reason.
    [[nodiscard]] QString gapsIn(Catalogue catalogue) const
    {
        const std::pair<Cause, const char*> causes[] = {{Cause::NoFile, "no file for "},
                                                        {Cause::Refused, "refused: "},
                                                        {Cause::NotRead, "not read: "},
                                                        {Cause::OtherContent, "not in its file: "}};
        QStringList notes;
        for (const auto& [cause, label] : causes) {
            QStringList ids;
            for (const Gap& gap : _session.gaps())
                if (gap.catalogue == catalogue && gap.cause == cause) ids.append(gap.id);
            if (!ids.isEmpty()) notes.append(label + ids.join(", "));
        }
        return notes.join("; ");
    }

    /// The interface hands out no list of types or of resolutions, so they are asked for, connector by connector.
    void addConnectors()
    {
        std::set<int> known;
        std::set<std::tuple<int, int, int>> resolutions;
        for (const Lcd::s_Subcard& card : _cards.subcards)
            for (const Lcd::s_SubcardConnector& connector : card.connectors.connectors) {
                const int type = connector.type;
                if (_session.hasConnectorType(type)) known.insert(type);
                for (const auto& offered :
                     _session.connectors().findConnectorResolutions(2, type, connector.interfaceType))
                    resolutions.insert({offered.width, offered.height, offered.interlaced});
            }
        add("Connector types", Catalogue::Connectors, int(known.size()), gapsIn(Catalogue::Connectors));
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

        Lcd::IKeyCheckConfig& checks = _session.keyChecks();
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

    Session& _session;
    const Lcd::s_DCSSubcard& _cards;
    Records _records{{words("Catalogue"), numbers("Entries"), words("Note")}};
};

} // namespace

Answer runLoad(Session& session, const Options& /*options*/)
{
    session.loadAll();
    const Lcd::s_Device device = session.devices().curDeviceConfigs();
    Answer answer;
    answer.json["root"] = session.root();
    answer.show([&session](Page& page) { page.heading(session.root()); });
    answer.add("Device", deviceFacts(session, device), "none");
    answerOtherDevices(session, answer);
    answer.add("Slots", slotRecords(session), "none");
    answer.add("Features", featureRecords(session, device.feature));
    answer.add("Screens", screenRecords(device), "none");
    answer.add("Layers", layerRecords(session, device), "none");
    answer.add("Catalogues", Counts(session).counted());
    return answer;
}

} // namespace lcdhost
