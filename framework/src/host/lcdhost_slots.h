// The slots of a device, all classes of them in one list.
#ifndef LCDHOST_SLOTS_H
#define LCDHOST_SLOTS_H

#include <lcdmainconfig/slots.h>

#include <QString>

#include <vector>

namespace lcdhost {

/// One slot with the class it belongs to.
struct ClassSlot {
    LCD::MainConfig::s_Slot slot;
    QString silkName;
    QString className;
};

/// Slots of one index stand in the order of their classes.
std::vector<ClassSlot> slotsByIndex(const LCD::MainConfig::s_Slots& all);

} // namespace lcdhost

#endif
