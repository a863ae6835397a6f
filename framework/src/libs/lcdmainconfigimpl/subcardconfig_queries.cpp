// What the card catalogue answers. Several cards may have one model, and the queries differ in what they make of that;
// the word at the head of each search tells:
//   firstCard(model)          the first card alone, and below it the first entry at every level, with no second try;
//   firstOf(cardsOf(model)..) all cards, all entries at every level, the first hit;
//   lastOf(cardsOf(model)..)  the same entries, the last hit.
#include "search.h"
#include "subcardconfig_impl.h"

#include <ranges>

namespace LCD::MainConfigImpl {
namespace {

constexpr int AUX_INTERFACE = 8;
/// The only interface type whose hot-plug detection is looked at, which is meant.
constexpr int HPD_INTERFACE = 2;

// --- The words

/// All entries of the lists that the elements before it have, in order.
template <class Key> auto each(Key list)
{
    return std::views::transform([list](const auto& owner) -> const auto& { return std::invoke(list, owner); }) |
           std::views::join;
}

/// Only the entries whose key equals the number.
template <class Key> auto having(Key key, int wanted)
{
    return std::views::filter([key, wanted](const auto& entry) { return std::invoke(key, entry) == wanted; });
}

/// Only the groups with a connector at the position.
auto holding(int position)
{
    return std::views::filter([position](const auto& group) {
        return std::ranges::any_of(group.connectors, [=](const auto& one) { return one.position == position; });
    });
}

auto cardsOf(const std::vector<s_Subcard>& cards, int modelId) { return cards | having(&s_Subcard::modelId, modelId); }

/// The first entry, or null.
template <class View> auto firstOf(View&& view)
{
    const auto hit = view.begin();
    return hit == view.end() ? nullptr : &*hit;
}

/// The last entry, or null.
template <class View> auto lastOf(View&& view)
{
    decltype(&*view.begin()) hit = nullptr;
    for (const auto& entry : view) hit = &entry;
    return hit;
}

template <class Record> Record valueOrEmpty(const Record* hit) { return hit != nullptr ? *hit : Record(); }

// --- The lists of a card

const std::vector<s_SubcardConnector>& connectorsOf(const s_Subcard& card) { return card.connectors.connectors; }
const std::vector<s_DeviceModeInConnectors>& modesOf(const s_Subcard& card) { return card.connectors.deviceModes; }
const std::vector<s_SubcardConnectorGroup>& groupsOf(const s_Subcard& card) { return card.capacity.connectorGroups; }

using Capacity = s_CapacityInConnectorsDeviceModeCapacitys;
using CapacityConnector = s_ConnectorInConnectorsDeviceModeCapacitysCapacity;

/// The capacities of that number in the device modes of that number.
auto capacitiesOf(const std::vector<s_Subcard>& cards, int modelId, int capacityValue, int deviceMode)
{
    using Mode = s_DeviceModeInConnectors;
    return cardsOf(cards, modelId) | each(modesOf) | having(&Mode::value, deviceMode) | each(&Mode::capacitys) |
           having(&Capacity::value, capacityValue);
}

} // namespace

// --- All cards of all models

std::shared_ptr<s_DCSSubcard> SubcardConfig::Impl::subcardConfig() const
{
    return std::make_shared<s_DCSSubcard>(s_DCSSubcard{_cards});
}

int SubcardConfig::Impl::countAuxConnector() const
{
    auto auxiliary = _cards | each(connectorsOf) | having(&s_SubcardConnector::interfaceType, AUX_INTERFACE);
    return static_cast<int>(std::ranges::distance(auxiliary));
}

// --- The first card alone

int SubcardConfig::Impl::findCardMode(int modelId) const
{
    const s_Subcard* const card = firstCard(modelId);
    return card ? card->cardMode : -1;
}

std::vector<s_ConnectorInTypes> SubcardConfig::Impl::findTypesByModelId(int modelId) const
{
    const s_Subcard* const card = firstCard(modelId);
    return card ? card->connectors.types : std::vector<s_ConnectorInTypes>();
}

const s_ConnectorInTypes* SubcardConfig::Impl::firstType(int modelId, int connectorType) const
{
    const s_Subcard* const card = firstCard(modelId);
    return card ? firstWhere(card->connectors.types, &s_ConnectorInTypes::type, connectorType) : nullptr;
}

std::vector<int> SubcardConfig::Impl::findSupportedCapacity(int modelId, int connectorType, int interfaceType) const
{
    const auto* const type = firstType(modelId, connectorType);
    const auto* const offer = type ? firstWhere(type->interfaces, &s_InterfaceInTypes::type, interfaceType) : nullptr;
    return offer ? offer->capacitys : std::vector<int>();
}

std::shared_ptr<s_HPDIn> SubcardConfig::Impl::findHPDInfo(int modelId, int connectorType) const
{
    const auto* const type = firstType(modelId, connectorType);
    if (type == nullptr || type->hpds.support == 0) return nullptr;
    const auto* const entry = firstOf(type->hpds.interfaces | having(&s_HPDsInterfaceIn::type, HPD_INTERFACE) |
                                      std::views::filter(&s_HPDsInterfaceIn::support));
    return entry ? newCopy(entry->hpd) : nullptr;
}

s_ResolutionRatiosInConnectorsDeviceModeTiming
SubcardConfig::Impl::findTimingDeviceModeResolutionRatios(int modelId, int deviceMode, int connectorType,
                                                          int interfaceType, int capacityMode) const
{
    using Mode = s_DeviceModeInConnectors;
    using Connector = s_ConnectorInConnectorsDeviceModeTiming;
    using Interface = s_InterfaceInConnectorsDeviceModeTiming;
    using CapacityMode = s_CapacityModeInConnectorsDeviceModeTiming;
    const auto* const card = firstCard(modelId);
    const auto* const mode = card ? firstWhere(modesOf(*card), &Mode::value, deviceMode) : nullptr;
    const auto* const connector = mode ? firstWhere(mode->timing, &Connector::type, connectorType) : nullptr;
    const auto* const port = connector ? firstWhere(connector->interfaces, &Interface::type, interfaceType) : nullptr;
    const auto* const limits = port ? firstWhere(port->capacityModes, &CapacityMode::value, capacityMode) : nullptr;
    return limits ? limits->resolutionRatios : s_ResolutionRatiosInConnectorsDeviceModeTiming();
}

const s_Subcard* SubcardConfig::Impl::firstCard(int modelId) const
{
    return firstWhere(_cards, &s_Subcard::modelId, modelId);
}

// --- All cards, the first hit

std::shared_ptr<s_SubcardConnector> SubcardConfig::Impl::findConnector(int modelId, int position) const
{
    return copyOrNull(
        firstOf(cardsOf(_cards, modelId) | each(connectorsOf) | having(&s_SubcardConnector::position, position)));
}

std::shared_ptr<s_SubcardConnectorGroup> SubcardConfig::Impl::findConnectorLocatedGroup(int modelId, int position) const
{
    return copyOrNull(firstOf(cardsOf(_cards, modelId) | each(groupsOf) | holding(position)));
}

std::vector<s_ConnectorInfo> SubcardConfig::Impl::findConnectorCopyData(int modelId, int deviceMode, int position) const
{
    const auto* const group = firstOf(
        cardsOf(_cards, modelId) | each(&s_Subcard::mainRelatedCapacitys) | each(&s_CapacityInfo::deviceModes) |
        having(&s_DeviceModeInfo::value, deviceMode) | each(&s_DeviceModeInfo::connectorGroups) | holding(position));
    return group ? group->connectors : std::vector<s_ConnectorInfo>();
}

Capacity SubcardConfig::Impl::findConnectorDeviceModeCapacity(int modelId, int capacityValue, int deviceMode) const
{
    return valueOrEmpty(firstOf(capacitiesOf(_cards, modelId, capacityValue, deviceMode)));
}

std::shared_ptr<CapacityConnector>
SubcardConfig::Impl::findConnectorDeviceModeCapacityConnector(int modelId, int capacityValue, int deviceMode, int type,
                                                              int position) const
{
    return copyOrNull(firstOf(capacitiesOf(_cards, modelId, capacityValue, deviceMode) | each(&Capacity::connectors) |
                              having(&CapacityConnector::type, type) | having(&CapacityConnector::position, position)));
}

int SubcardConfig::Impl::findConnectorDeviceModeCapacityDynamicRangeSupport(int modelId, int capacityValue,
                                                                            int deviceMode, int position) const
{
    const auto* const hit = firstOf(capacitiesOf(_cards, modelId, capacityValue, deviceMode) |
                                    each(&Capacity::connectors) | having(&CapacityConnector::position, position));
    return hit ? hit->dynamicRange.support : 0;
}

int SubcardConfig::Impl::findConnectorInterlacedType(int modelId, int type, int position, int capacityMode) const
{
    const auto* const hit = firstOf(
        cardsOf(_cards, modelId) | each(modesOf) | each(&s_DeviceModeInConnectors::capacitys) |
        each(&Capacity::connectors) | having(&CapacityConnector::type, type) |
        having(&CapacityConnector::position, position) | having(&CapacityConnector::capacityMode, capacityMode));
    return hit ? hit->interlacedType : 0;
}

// --- All cards, the last hit

s_SubcardDeviceMode SubcardConfig::Impl::findSubcardModeData(int modelId, int capacityValue, int deviceMode) const
{
    return valueOrEmpty(lastOf(cardsOf(_cards, modelId) | each(&s_Subcard::capacityGroups) |
                               having(&s_CapacityInCapacityGroups::value, capacityValue) |
                               each(&s_CapacityInCapacityGroups::deviceModes) |
                               having(&s_SubcardDeviceMode::value, deviceMode)));
}

std::vector<s_SubcardConnector> SubcardConfig::Impl::findConnectorByGroupId(int modelId) const
{
    const s_Subcard* const card = lastOf(cardsOf(_cards, modelId));
    if (card == nullptr) return {};
    std::vector<s_SubcardConnector> connectors = connectorsOf(*card);
    takeInterfaceTypes(modelId, connectors);
    return connectors;
}

s_SubcardConnectorGroup SubcardConfig::Impl::findConnectorGroupByGroupId(int modelId, int groupId) const
{
    s_SubcardConnectorGroup group = valueOrEmpty(
        lastOf(cardsOf(_cards, modelId) | each(groupsOf) | having(&s_SubcardConnectorGroup::value, groupId)));
    takeInterfaceTypes(modelId, group.connectors);
    return group;
}

void SubcardConfig::Impl::takeInterfaceTypes(int modelId, std::vector<s_SubcardConnector>& connectors) const
{
    for (s_SubcardConnector& connector : connectors)
        if (const auto* const plain = lastOf(cardsOf(_cards, modelId) | each(connectorsOf) |
                                             having(&s_SubcardConnector::position, connector.position)))
            connector.interfaceType = plain->interfaceType;
}

} // namespace LCD::MainConfigImpl
