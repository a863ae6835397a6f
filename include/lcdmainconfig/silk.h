// The order in which the connectors printed on a chassis are counted: what the silk files say. A device may have
// several such files; their lists are joined in the order of the file names.
#ifndef LCDMAINCONFIG_SILK_H
#define LCDMAINCONFIG_SILK_H

namespace LCD::MainConfig {

/// One printed connector: silk file, element "Device/Keys/Key". Nothing is sorted or checked for duplicates.
struct s_SilkOrder {
    int slot = 0;      ///< Attribute "Slot": index of the slot.
    int connector = 0; ///< Attribute "Connector": the connector within the slot's card.
    int order = 0;     ///< Attribute "Order": its place in the count.
};

} // namespace LCD::MainConfig

#endif
