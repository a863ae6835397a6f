#include "lcdhost_slots.h"

#include <algorithm>
#include <utility>

namespace lcdhost {

std::vector<ClassSlot> slotsByIndex(const LCD::MainConfig::s_Slots& all)
{
    const std::pair<const char*, const LCD::MainConfig::s_SlotAttr*> classes[] = {
        {"main control", &all.mainControlCardSlots},
        {"reserved", &all.reservedCardSlots},
        {"mixed", &all.mixCardSlots},
        {"input", &all.inputCardSlots},
        {"output", &all.outputCardSlots},
        {"multi-view", &all.mvrCardSlots},
        {"auxiliary", &all.auxCardSlots},
        {"expansion", &all.expCardSlots}};
    std::vector<ClassSlot> found;
    for (const auto& [name, attr] : classes)
        for (const LCD::MainConfig::s_Slot& slot : attr->slots)
            found.push_back({slot, QString::fromStdString(attr->silkScreenName), name});
    std::stable_sort(found.begin(), found.end(),
                     [](const ClassSlot& a, const ClassSlot& b) { return a.slot.index < b.slot.index; });
    return found;
}

} // namespace lcdhost
