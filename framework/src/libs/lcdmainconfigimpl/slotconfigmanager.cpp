#include "slotconfigmanager.h"

#include "once.h"
#include "reading/cells.h"
#include "reading/document.h"

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;
using namespace reading;

std::atomic<SlotConfigManager*> SlotConfigManager::_pSlotCfgMgr{nullptr};
std::mutex SlotConfigManager::_slotCfgMgrMutex;

SlotConfigManager* SlotConfigManager::instance()
{
    return createOnce(_pSlotCfgMgr, _slotCfgMgrMutex, [] { return new SlotConfigManager; });
}

void SlotConfigManager::destroyInstance() { destroyOnce(_pSlotCfgMgr, _slotCfgMgrMutex); }

namespace {

// clang-format off
constexpr auto cardClass = cells(
    cell("SilkScreenName",  &s_SlotAttr::silkScreenName),
    cell("PluginDirection", &s_SlotAttr::pluginDirection),
    cell("InterfaceType",   &s_SlotAttr::interfaceType));

constexpr auto subcard = cells(
    cell("ModuleId", &s_InlineSubcard::moduleId));

/// The cards of a mixed slot: their numbers are signed, and they alone name connector groups.
constexpr auto mixSubcard = [](const Reader& in, s_InlineSubcard& card) {
    in.read(card, cell("ModuleId", &s_InlineSubcard::moduleId, "", Signed64{}));
    in.each(Walk::FirstNamed, "ConnectorGroups", [&](const Reader& groups) {
        groups.list(Walk::FirstNamed, "ConnectorGroup", card.connectorGroups,
                    cell("Value",     &s_SlotConnectorGroup::value),
                    cell("GroupName", &s_SlotConnectorGroup::groupName));
    });
};

template <class Subcard> constexpr auto slot(const Subcard& subcardCells)
{
    return cells(
        cell("Index", &s_Slot::index),
        below("Subcards", OnNull::Skip, list(Walk::FirstNamed, "Subcard", &s_Slot::subcards, subcardCells)));
}

constexpr auto plainSlots = list(Walk::FirstNamed, "Slot", &s_SlotAttr::slots, slot(subcard));
constexpr auto mixSlots   = list(Walk::FirstNamed, "Slot", &s_SlotAttr::slots, slot(mixSubcard));

/// A slot without an index is left out, in this class alone, which is meant.
constexpr auto indexedSlots = [](const Reader& in, s_SlotAttr& attr) {
    in.each(Walk::FirstNamed, "Slot", [&](const Reader& element) {
        if (element.hasAttribute("Index")) element.append(attr.slots, slot(subcard));
    });
};

/// The cards that the class takes. Only the main control's numbers have the full 64 bits, which is meant.
template <class Convert> constexpr auto subcards(const Convert& convert)
{
    return below("Subcards", OnNull::Skip, list(Walk::FirstNamed, "Subcard", &s_SlotAttr::subcards,
                                                cell("ModuleId", &s_SlotSubcard::moduleId, "", convert)));
}

void readSlots(const Reader& in, s_DCSSolt& slots)
{
    in.element("MainControlCardSlots", OnNull::Fail, slots.mainControlCardSlots, cardClass, plainSlots,   subcards(Plain{}));
    in.element("InputCardSlots",       OnNull::Skip, slots.inputCardSlots,       cardClass, indexedSlots, subcards(ThroughInt{}));
    in.element("OutputCardSlots",      OnNull::Skip, slots.outputCardSlots,      cardClass, plainSlots,   subcards(ThroughInt{}));
    in.element("MixCardSlots",         OnNull::Skip, slots.mixCardSlots,         cardClass, mixSlots,     subcards(ThroughInt{}));
    in.element("MVRCardSlots",         OnNull::Skip, slots.mvrCardSlots,         cardClass, plainSlots,   subcards(ThroughInt{}));
    in.element("AUXCardSlots",         OnNull::Skip, slots.auxCardSlots,         cardClass, plainSlots,   subcards(ThroughInt{}));
    in.element("EXPCardSlots",         OnNull::Skip, slots.expCardSlots,         cardClass, plainSlots,   subcards(ThroughInt{}));
}
// clang-format on

} // namespace

bool SlotConfigManager::parseDeviceSlotcfg(const QString& filePath, QString& error, s_DCSSolt& out) const
{
    s_DCSSolt slots;
    const Report report{error, tr};
    if (!readDocument(filePath, DEVICE_FRAME, report, slots,
                      below("Device", OnNull::Fail, below("Slots", OnNull::Fail, readSlots))))
        return false;
    out = std::move(slots);
    return true;
}

} // namespace LCD::MainConfigImpl
