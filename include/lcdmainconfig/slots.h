// The card slots of a device's chassis, by class of card, and the card models that may sit in each: what the slot file
// says. The card catalogue takes from here which card files to load.
#ifndef LCDMAINCONFIG_SLOTS_H
#define LCDMAINCONFIG_SLOTS_H

#include <cstdint>
#include <string>
#include <vector>

// Under Qt's keyword macro of that name the member `slots` would vanish without a message.
#pragma push_macro("slots")
#undef slots

namespace LCD::MainConfig {

/// One group of a card's connectors, as a mixed card's slot names it: element "ConnectorGroup".
struct s_SlotConnectorGroup {
    int value = 0;         ///< Attribute "Value": the group's number.
    std::string groupName; ///< Attribute "GroupName", UTF-8.
};

/// One card model that may sit in a slot: element "Subcard" under "Slot".
struct s_InlineSubcard {
    /// Attribute "ModuleId": the card model. Unsigned 64 bits; under "MixCardSlots" a signed 64-bit number.
    std::uint64_t moduleId = 0;
    std::vector<s_SlotConnectorGroup> connectorGroups; ///< Filled for the slots of "MixCardSlots" alone.
};

/// One slot: element "Slot" of a card class.
struct s_Slot {
    int index = 0;                         ///< Attribute "Index": position in the chassis.
    std::vector<s_InlineSubcard> subcards; ///< Card models in file order; empty when the file names none.
};

/// One card model that a whole class of slots takes: element "Subcards/Subcard" of the class.
struct s_SlotSubcard {
    /// Attribute "ModuleId". Only "MainControlCardSlots" reads the whole unsigned 64-bit range; the other classes read
    /// a signed 32-bit number and extend its sign.
    std::uint64_t moduleId = 0;
};

/// One class of card: a child of "Device/Slots".
struct s_SlotAttr {
    std::string silkScreenName;          ///< Attribute "SilkScreenName": the letters printed on the chassis, UTF-8.
    int pluginDirection = 0;             ///< Attribute "PluginDirection"; never interpreted here.
    int interfaceType = 0;               ///< Attribute "InterfaceType"; never interpreted here.
    std::vector<s_Slot> slots;           ///< In file order, repeated indexes kept.
    std::vector<s_SlotSubcard> subcards; ///< In file order, duplicates kept.
};

/// All slots of one device: slot file, element "Device/Slots". A walk over the classes takes all eight, in this order.
struct s_Slots {
    s_SlotAttr mainControlCardSlots; ///< Element "MainControlCardSlots", the only one that a file must have.
    s_SlotAttr reservedCardSlots;    ///< No element fills it; always empty.
    s_SlotAttr mixCardSlots;         ///< Element "MixCardSlots": cards with inputs and outputs.
    s_SlotAttr inputCardSlots;       ///< Element "InputCardSlots"; a "Slot" without "Index" is left out here alone.
    s_SlotAttr outputCardSlots;      ///< Element "OutputCardSlots".
    s_SlotAttr mvrCardSlots;         ///< Element "MVRCardSlots": multi-view cards.
    s_SlotAttr auxCardSlots;         ///< Element "AUXCardSlots".
    s_SlotAttr expCardSlots;         ///< Element "EXPCardSlots": expansion cards.
};

/// The name under which the parser of the slot file hands them out; the spelling is meant.
struct s_DCSSolt : s_Slots {};

} // namespace LCD::MainConfig

#pragma pop_macro("slots")

#endif
