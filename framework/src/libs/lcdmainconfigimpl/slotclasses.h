// The walk over all classes of card slots of a device.
#ifndef LCDMAINCONFIGIMPL_SLOTCLASSES_H
#define LCDMAINCONFIGIMPL_SLOTCLASSES_H

#include "lcdmainconfig/slots.h"

#include <array>

namespace LCD::MainConfigImpl {

/// All classes of card slots, in the order in which every walk takes them.
inline std::array<const LCD::MainConfig::s_SlotAttr*, 8> slotClasses(const LCD::MainConfig::s_Slots& all)
{
    return {&all.mainControlCardSlots, &all.reservedCardSlots, &all.mixCardSlots, &all.inputCardSlots,
            &all.outputCardSlots,      &all.mvrCardSlots,      &all.auxCardSlots, &all.expCardSlots};
}

} // namespace LCD::MainConfigImpl

#endif
