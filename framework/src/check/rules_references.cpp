// What one file says of another: slots of cards, cards of connector types, screens of layers, cells of connectors.
#include "rules.h"
#include "vocabulary.h"

#include <lcdmainconfig/connector.h>
#include <lcdmainconfig/device.h>
#include <lcdmainconfig/feature.h>
#include <lcdmainconfig/layer.h>
#include <lcdmainconfig/subcard.h>

#include <QFileInfo>

#include <algorithm>
#include <map>
#include <optional>

namespace lcdcheck {

using namespace LCD::MainConfig;

namespace {

// clang-format off
const Field MODULE          = fieldOf<s_InlineSubcard>(&s_InlineSubcard::moduleId);
const Field SLOT            = fieldOf<s_Slot>(&s_Slot::index);
const Field CARD            = fieldOf<s_Subcard>(&s_Subcard::modelId);
const Field POSITION        = fieldOf<s_SubcardConnector>(&s_SubcardConnector::position);
const Field GROUP           = fieldOf<s_SubcardConnectorGroup>(&s_SubcardConnectorGroup::value);
const Field CARD_CONNECTOR  = fieldOf<s_SubcardConnector>(&s_SubcardConnector::type);
const Field CONNECTOR_TYPE  = fieldOf<s_ConnectorCfg>(&s_ConnectorCfg::type);
const Field LAYER           = fieldOf<s_Layer>(&s_Layer::type);
const Field SCREEN_LAYER    = fieldOf<s_LayerType>(&s_LayerType::layerType);

/// The places that name a connector by its slot and its position on the card there.
const std::pair<Field, Field> SPOTS[] = {
    {fieldOf<s_Cell>(&s_Cell::slotIndex),                                 fieldOf<s_Cell>(&s_Cell::connectorIndex)},
    {fieldOf<s_SilkOrder>(&s_SilkOrder::slot),                            fieldOf<s_SilkOrder>(&s_SilkOrder::connector)},
    {fieldOf<s_Rectangle>(&s_Rectangle::subSourceSlotId),                 fieldOf<s_Rectangle>(&s_Rectangle::subSourceConnectorId)},
    {fieldOf<s_InternalSourceDetail>(&s_InternalSourceDetail::slotId),    fieldOf<s_InternalSourceDetail>(&s_InternalSourceDetail::connectorId)},
    {fieldOf<s_InterfaceObj>(&s_InterfaceObj::slotId),                    fieldOf<s_InterfaceObj>(&s_InterfaceObj::connectorId)},
};

/// The places that name a connector of their own card by its position.
const Field POSITIONS[] = {
    POSITION,
    fieldOf<s_ConnectorInCapacityGroups>(&s_ConnectorInCapacityGroups::position),
    fieldOf<s_ConnectorInConnectorsDeviceModeCapacitysCapacity>(&s_ConnectorInConnectorsDeviceModeCapacitysCapacity::position),
    fieldOf<s_ConnectorInfo>(&s_ConnectorInfo::position),
};
// clang-format on

/// The numbers of some things. One that could not be read may be any number, and then nothing is missing for certain.
/// Of two with one number, the other was probably meant to have a number that is missing.
struct Numbers {
    std::set<qlonglong> known;
    int doubles = 0;
    bool certain = true;

    void add(const Value& value)
    {
        if (!value.good)
            certain = false;
        else if (!known.insert(value.number()).second)
            ++doubles;
    }
    [[nodiscard]] bool lacks(qlonglong number)
    {
        if (!certain || known.count(number) != 0) return false;
        if (doubles == 0) return true;
        --doubles;
        known.insert(number);
        return false;
    }
};

class References {
public:
    References(const Collected& collected, Findings& findings) : _collected(collected), _judge(collected, findings) {}

    void gather();
    void gatherNamedFiles(const Field& field, FileKind kind, Numbers& numbers);
    void gatherPositions();
    void judgeCards();
    void judgeConnectorTypes();
    void judgeLayers();
    void judgeSpots(const Field& slotField, const Field& connectorField);
    void judgePositions(const Field& field);

private:
    [[nodiscard]] QString deviceOf(const Value& value) const { return QFileInfo(_collected.fileOf(value).path).path(); }
    [[nodiscard]] bool isOfGroup(const Value& value) const { return _collected.above(value, GROUP) != nullptr; }
    [[nodiscard]] const Value* cardOf(const Value& value) const { return _collected.above(value, CARD); }
    [[nodiscard]] const Value* beside(const Value& value, const Field& field) const;
    void judgeConnector(const Value& slot, const Value& connector);

    const Collected& _collected;
    Judge _judge;
    Numbers _cards;
    Numbers _connectorTypes;
    std::map<qlonglong, Numbers> _positions;                              ///< Of each card model.
    std::map<QString, Numbers> _slots;                                    ///< Of each device.
    std::map<QString, Numbers> _layers;                                   ///< Of each device.
    std::map<std::pair<QString, qlonglong>, std::vector<Value>> _modules; ///< The cards of each slot of a device.
};

void References::gather()
{
    gatherNamedFiles(CARD, FileKind::Card, _cards);
    gatherNamedFiles(CONNECTOR_TYPE, FileKind::Connector, _connectorTypes);
    for (const Value& value : _collected.all(LAYER)) _layers[deviceOf(value)].add(value);
    for (const Value& value : _collected.all(SLOT)) _slots[deviceOf(value)].add(value);
    gatherPositions();
    for (const Value& value : _collected.all(MODULE))
        if (const Value* const slot = _collected.above(value, SLOT))
            _modules[{deviceOf(value), slot->number()}].push_back(value);
    for (const CollectedFile& file : _collected.files()) {
        if (file.whole) continue;
        const std::vector<FileKind> kinds = kindsByPlace(file.path);
        const auto mayBe = [&](FileKind kind) { return std::find(kinds.begin(), kinds.end(), kind) != kinds.end(); };
        const QString device = QFileInfo(file.path).path();
        if (mayBe(FileKind::Slot)) _slots[device].certain = false;
        if (mayBe(FileKind::Layer)) _layers[device].certain = false;
    }
}

/// Things of which each has a file that is named for its number. Where a file is cut off, or tells a number that
/// another one has, its name tells the number that it should have.
void References::gatherNamedFiles(const Field& field, FileKind kind, Numbers& numbers)
{
    const auto addNamed = [&](const CollectedFile& file) {
        bool isNumber = false;
        const qlonglong number = QFileInfo(file.path).baseName().toLongLong(&isNumber);
        if (isNumber) numbers.known.insert(number);
    };
    for (const Value& value : _collected.all(field)) {
        if (value.good && numbers.known.count(value.number()) != 0)
            addNamed(_collected.fileOf(value));
        else
            numbers.add(value);
    }
    for (const CollectedFile& file : _collected.files()) {
        if (file.whole) continue;
        const std::vector<FileKind> kinds = kindsByPlace(file.path);
        if (std::find(kinds.begin(), kinds.end(), kind) != kinds.end()) addNamed(file);
    }
    // Where there is none at all, their folder is at fault, which is told.
    numbers.certain = numbers.certain && !numbers.known.empty();
}

void References::gatherPositions()
{
    // A model may have several files, each with all positions.
    std::map<std::pair<int, int>, Numbers> cards;
    for (const Value& value : _collected.all(POSITION)) {
        const Value* const card = cardOf(value);
        if (card == nullptr || isOfGroup(value)) continue;
        Numbers& numbers = cards[{card->file, card->element}];
        numbers.add(value);
        numbers.certain = numbers.certain && _collected.fileOf(value).whole;
    }
    for (const Value& card : _collected.all(CARD)) {
        const Numbers& own = cards[{card.file, card.element}];
        Numbers& all = _positions[card.number()];
        all.known.insert(own.known.begin(), own.known.end());
        all.doubles += own.doubles;
        all.certain = all.certain && own.certain;
    }
}

void References::judgeCards()
{
    std::set<std::pair<QString, qlonglong>> told;
    for (const Value& value : _collected.all(MODULE))
        if (value.good && _cards.lacks(value.number()) && told.insert({deviceOf(value), value.number()}).second) {
            Finding& finding =
                _judge.about("missing-card", value, QString("there is no card %1").arg(value.text.trimmed()));
            finding.cost = "a card in this slot has no connector";
        }
}

void References::judgeConnectorTypes()
{
    std::set<qlonglong> told;
    for (const Value& value : _collected.all(CARD_CONNECTOR))
        if (value.good && !isOfGroup(value) && _connectorTypes.lacks(value.number()) &&
            told.insert(value.number()).second)
            _judge
                .about("missing-connector-type", value, QString("there is no connector of type %1").arg(value.number()))
                .cost = "this connector offers nothing";
}

void References::judgeLayers()
{
    for (const Value& value : _collected.all(SCREEN_LAYER))
        if (value.good && _layers[deviceOf(value)].lacks(value.number()))
            _judge.about("missing-layer-type", value,
                         QString("this device has no layer of type %1").arg(value.number()));
}

/// The value of another field on the same element; null when it was not asked for.
const Value* References::beside(const Value& value, const Field& field) const
{
    const Value* const found = _collected.above(value, field);
    return found != nullptr && found->element == value.element ? found : nullptr;
}

void References::judgeSpots(const Field& slotField, const Field& connectorField)
{
    for (const Value& slot : _collected.all(slotField)) {
        if (!slot.good || !slot.present) continue;
        // Without a slot file, which is a mistake by itself, there is nothing to compare with.
        Numbers& known = _slots[deviceOf(slot)];
        if (!known.known.empty() && known.lacks(slot.number())) {
            _judge.about("missing-slot", slot, QString("this device has no slot %1").arg(slot.number()));
            continue;
        }
        const Value* const connector = beside(slot, connectorField);
        if (connector != nullptr && connector->good) judgeConnector(slot, *connector);
    }
}

/// A connector is missing when none of the cards that the slot takes has it.
void References::judgeConnector(const Value& slot, const Value& connector)
{
    const std::vector<Value>& modules = _modules[{deviceOf(slot), slot.number()}];
    QStringList cards;
    for (const Value& module : modules) {
        if (!module.good || _cards.known.count(module.number()) == 0) return;
        if (!_positions[module.number()].lacks(connector.number())) return;
        cards.append(QString::number(module.number()));
    }
    if (cards.isEmpty()) return;
    cards.removeDuplicates();
    _judge
        .about("missing-connector", connector,
               QString("no card of slot %1 has a connector at position %2").arg(slot.number()).arg(connector.number()))
        .hint = QString("the slot takes card %1").arg(cards.join(", "));
}

void References::judgePositions(const Field& field)
{
    for (const Value& value : _collected.all(field)) {
        if (!value.good || (field == POSITION && !isOfGroup(value))) continue;
        const Value* const card = cardOf(value);
        if (card == nullptr || !_positions[card->number()].lacks(value.number())) continue;
        _judge.about("missing-position", value,
                     QString("this card has no connector at position %1").arg(value.number()));
    }
}

} // namespace

std::set<Field> fieldsOfReferences()
{
    std::set<Field> fields{MODULE,
                           SLOT,
                           CARD,
                           POSITION,
                           GROUP,
                           CARD_CONNECTOR,
                           CONNECTOR_TYPE,
                           LAYER,
                           SCREEN_LAYER,
                           fieldOf<s_DeviceFeature>(&s_DeviceFeature::moduleId),
                           fieldOf<s_SlotAttr>(&s_SlotAttr::pluginDirection)};
    for (const auto& [slot, connector] : SPOTS) fields.insert({slot, connector});
    fields.insert(std::begin(POSITIONS), std::end(POSITIONS));
    return fields;
}

void judgeReferences(const Collected& collected, Findings& findings)
{
    References references(collected, findings);
    references.gather();
    references.judgeCards();
    references.judgeConnectorTypes();
    references.judgeLayers();
    for (const auto& [slot, connector] : SPOTS) references.judgeSpots(slot, connector);
}

void judgePositions(const Collected& collected, Findings& findings)
{
    References references(collected, findings);
    references.gather();
    for (const Field& field : POSITIONS) references.judgePositions(field);
}

} // namespace lcdcheck
