// One whole device: everything that the files of one device directory say, gathered in one record.
#ifndef LCDMAINCONFIG_DEVICE_H
#define LCDMAINCONFIG_DEVICE_H

#include "lcdmainconfig/feature.h"
#include "lcdmainconfig/layer.h"
#include "lcdmainconfig/screen.h"
#include "lcdmainconfig/silk.h"
#include "lcdmainconfig/slots.h"

#include <QVector>

#include <vector>

// Under Qt's keyword macro of that name the member `slots` would vanish without a message.
#pragma push_macro("slots")
#undef slots

namespace LCD::MainConfig {

/// One device. A file that cannot be read costs its own contribution alone, so that any member may stand at its
/// defaults.
struct s_Device {
    s_DeviceFeature feature;      ///< What the device can do. Feature file; its `moduleId` is the device's key.
    s_Slots slots;                ///< Card slots of the chassis. Slot file.
    QVector<s_DCSLayer> layers;   ///< Layer types, one for each layer file, by file name.
    QVector<s_DCSScreen> screens; ///< Screen types, one for each screen file, by file name.
    /// Counting order of the printed connectors. All silk files, joined by file name.
    std::vector<s_SilkOrder> silkOrders;
};

} // namespace LCD::MainConfig

#pragma pop_macro("slots")

#endif
