// What the card catalogue answers. Several cards may have one model, and the queries differ in what they make of that;
// the words of each search tell:
//   firstCard(model)          the first card alone, and below it the first entry at every level, with no second try;
//   cardsOf(model)...first()  all cards, all entries at every level, the first hit;
//   cardsOf(model)...last()   the same entries, the last hit.
#include "search.h"
#include "subcardconfig_impl.h"

#include <algorithm>
#include <type_traits>

namespace LCD::MainConfigImpl {
namespace {

constexpr int AUX_INTERFACE = 8;
/// The only interface type whose hot-plug detection is looked at, which is meant.
constexpr int HPD_INTERFACE = 2;

// --- The words

template <class Entry, class Show> class Entries;

template <class Entry, class Show> Entries<Entry, Show> entries(Show show) { return Entries<Entry, Show>(show); }

/// Entries in their order, wherever they stand. `Show` gives one after another to a function, until that says true.
template <class Entry, class Show> class Entries {
public:
    explicit Entries(Show show) : _show(show) {}

    /// All entries of a list that these have.
    template <class List> auto each(List list) const
    {
        using Inner = std::remove_cvref_t<decltype(std::invoke(list, std::declval<const Entry&>()).front())>;
        return entries<Inner>([show = _show, list](const auto& look) {
            return show([&](const Entry& owner) {
                const auto& inner = std::invoke(list, owner);
                return std::any_of(inner.begin(), inner.end(), look);
            });
        });
    }

    /// Only those for which the function says true.
    template <class Test> auto where(Test test) const
    {
        return entries<Entry>([show = _show, test](const auto& look) {
            return show([&](const Entry& entry) { return test(entry) && look(entry); });
        });
    }

    /// Only those whose key equals the number.
    template <class Key> auto having(Key key, int wanted) const
    {
        return where([key, wanted](const Entry& entry) { return std::invoke(key, entry) == wanted; });
    }

    /// The first entry, or null.
    const Entry* first() const
    {
        const Entry* hit = nullptr;
        _show([&hit](const Entry& entry) {
            hit = &entry;
            return true;
        });
        return hit;
    }

    /// The last entry, or null.
    const Entry* last() const
    {
        const Entry* hit = nullptr;
        _show([&hit](const Entry& entry) {
            hit = &entry;
            return false;
        });
        return hit;
    }

    int count() const
    {
        int all = 0;
        _show([&all](const Entry& /*entry*/) {
            ++all;
            return false;
        });
        return all;
    }

private:
    Show _show;
};

template <class Entry> auto allOf(const std::vector<Entry>& list)
{
    return entries<Entry>([&list](const auto& look) { return std::any_of(list.begin(), list.end(), look); });
}

auto cardsOf(const std::vector<s_Subcard>& cards, int modelId)
{
    return allOf(cards).having(&s_Subcard::modelId, modelId);
}

/// Tests whether a group has a connector at the position.
auto holds(int position)
{
    return [position](const auto& group) {
        return std::any_of(group.connectors.begin(), group.connectors.end(),
                           [position](const auto& connector) { return connector.position == position; });
    };
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
    return cardsOf(cards, modelId)
        .each(modesOf)
        .having(&Mode::value, deviceMode)
        .each(&Mode::capacitys)
        .having(&Capacity::value, capacityValue);
}

} // namespace

// --- All cards of all models

std::shared_ptr<s_DCSSubcard> SubcardConfig::Impl::subcardConfig() const
{
    return std::make_shared<s_DCSSubcard>(s_DCSSubcard{_cards});
}

int SubcardConfig::Impl::countAuxConnector() const
{
    return allOf(_cards).each(connectorsOf).having(&s_SubcardConnector::interfaceType, AUX_INTERFACE).count();
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
    const auto* const entry = allOf(type->hpds.interfaces)
                                  .having(&s_HPDsInterfaceIn::type, HPD_INTERFACE)
                                  .where([](const s_HPDsInterfaceIn& one) { return one.support != 0; })
                                  .first();
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
        cardsOf(_cards, modelId).each(connectorsOf).having(&s_SubcardConnector::position, position).first());
}

std::shared_ptr<s_SubcardConnectorGroup> SubcardConfig::Impl::findConnectorLocatedGroup(int modelId, int position) const
{
    return copyOrNull(cardsOf(_cards, modelId).each(groupsOf).where(holds(position)).first());
}

std::vector<s_ConnectorInfo> SubcardConfig::Impl::findConnectorCopyData(int modelId, int deviceMode, int position) const
{
    const auto* const group = cardsOf(_cards, modelId)
                                  .each(&s_Subcard::mainRelatedCapacitys)
                                  .each(&s_CapacityInfo::deviceModes)
                                  .having(&s_DeviceModeInfo::value, deviceMode)
                                  .each(&s_DeviceModeInfo::connectorGroups)
                                  .where(holds(position))
                                  .first();
    return group ? group->connectors : std::vector<s_ConnectorInfo>();
}

Capacity SubcardConfig::Impl::findConnectorDeviceModeCapacity(int modelId, int capacityValue, int deviceMode) const
{
    return valueOrEmpty(capacitiesOf(_cards, modelId, capacityValue, deviceMode).first());
}

std::shared_ptr<CapacityConnector>
SubcardConfig::Impl::findConnectorDeviceModeCapacityConnector(int modelId, int capacityValue, int deviceMode, int type,
                                                              int position) const
{
    return copyOrNull(capacitiesOf(_cards, modelId, capacityValue, deviceMode)
                          .each(&Capacity::connectors)
                          .having(&CapacityConnector::type, type)
                          .having(&CapacityConnector::position, position)
                          .first());
}

int SubcardConfig::Impl::findConnectorDeviceModeCapacityDynamicRangeSupport(int modelId, int capacityValue,
                                                                            int deviceMode, int position) const
{
    const auto* const hit = capacitiesOf(_cards, modelId, capacityValue, deviceMode)
                                .each(&Capacity::connectors)
                                .having(&CapacityConnector::position, position)
                                .first();
    return hit ? hit->dynamicRange.support : 0;
}

int SubcardConfig::Impl::findConnectorInterlacedType(int modelId, int type, int position, int capacityMode) const
{
    const auto* const hit = cardsOf(_cards, modelId)
                                .each(modesOf)
                                .each(&s_DeviceModeInConnectors::capacitys)
                                .each(&Capacity::connectors)
                                .having(&CapacityConnector::type, type)
                                .having(&CapacityConnector::position, position)
                                .having(&CapacityConnector::capacityMode, capacityMode)
                                .first();
    return hit ? hit->interlacedType : 0;
}

// --- All cards, the last hit

s_SubcardDeviceMode SubcardConfig::Impl::findSubcardModeData(int modelId, int capacityValue, int deviceMode) const
{
    return valueOrEmpty(cardsOf(_cards, modelId)
                            .each(&s_Subcard::capacityGroups)
                            .having(&s_CapacityInCapacityGroups::value, capacityValue)
                            .each(&s_CapacityInCapacityGroups::deviceModes)
                            .having(&s_SubcardDeviceMode::value, deviceMode)
                            .last());
}

std::vector<s_SubcardConnector> SubcardConfig::Impl::findConnectorByGroupId(int modelId) const
{
    const s_Subcard* const card = cardsOf(_cards, modelId).last();
    if (card == nullptr) return {};
    std::vector<s_SubcardConnector> connectors = connectorsOf(*card);
    takeInterfaceTypes(modelId, connectors);
    return connectors;
}

s_SubcardConnectorGroup SubcardConfig::Impl::findConnectorGroupByGroupId(int modelId, int groupId) const
{
    s_SubcardConnectorGroup group =
        valueOrEmpty(cardsOf(_cards, modelId).each(groupsOf).having(&s_SubcardConnectorGroup::value, groupId).last());
    takeInterfaceTypes(modelId, group.connectors);
    return group;
}

void SubcardConfig::Impl::takeInterfaceTypes(int modelId, std::vector<s_SubcardConnector>& connectors) const
{
    for (s_SubcardConnector& connector : connectors)
        if (const auto* const plain = cardsOf(_cards, modelId)
                                          .each(connectorsOf)
                                          .having(&s_SubcardConnector::position, connector.position)
                                          .last())
            connector.interfaceType = plain->interfaceType;
}

} // namespace LCD::MainConfigImpl
