// The order in which the connectors printed on a chassis are counted: what the silk files say. A device may have
// several such files; their lists are joined in the order of the file names.
#ifndef LCDMAINCONFIG_SILK_H
#define LCDMAINCONFIG_SILK_H

namespace LCD::MainConfig {

/// One printed connector. Silk file, a child of Device/Keys from the first "Key" on. Nothing is sorted or checked for
/// duplicates; an absent attribute reads as 0.
struct s_SilkOrder {
    int slot = 0;      ///< Slot that the connector is in, by its index. Attribute "Slot".
    int connector = 0; ///< Connector on the card in that slot, by its position. Attribute "Connector".
    int order = 0;     ///< Place of the connector in the count over the whole chassis. Attribute "Order".
};

} // namespace LCD::MainConfig

#endif
