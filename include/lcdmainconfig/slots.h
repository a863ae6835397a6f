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

/// One group of a card's connectors, as a mixed card's slot names it. Slot file, element ConnectorGroup under a
/// "Subcard" of MixCardSlots.
struct s_SlotConnectorGroup {
    int value = 0; ///< Number of the connector group in the card file. Attribute "Value".
    /// What the panel calls the group, UTF-8; empty: the file names none. Attribute "GroupName".
    std::string groupName;
};

/// One card model that may sit in a slot. Slot file, a child of "Subcards" of a slot.
struct s_InlineSubcard {
    /// Number of the card model, which is also the name of its card file; unsigned 64 bits, under "MixCardSlots" a
    /// signed 64-bit number. Attribute "ModuleId".
    std::uint64_t moduleId = 0;
    /// Groups of the card's connectors, in file order; filled for the slots of "MixCardSlots" alone.
    std::vector<s_SlotConnectorGroup> connectorGroups;
};

/// One slot of the chassis. Slot file, a child of a card class from the first "Slot" on.
struct s_Slot {
    int index = 0; ///< Place of the slot in the chassis, the key of the queries. Attribute "Index".
    /// Card models that may sit in the slot, in file order; empty: the file names none.
    std::vector<s_InlineSubcard> subcards;
};

/// One card model that a whole class of slots takes. Slot file, a child of "Subcards" of a card class.
struct s_SlotSubcard {
    /// Number of the card model. Attribute "ModuleId". Only "MainControlCardSlots" reads the whole unsigned 64-bit
    /// range; the other classes read a signed 32-bit number and extend its sign.
    std::uint64_t moduleId = 0;
};

/// One class of card and its slots. Slot file, a child of Device/Slots.
struct s_SlotAttr {
    /// Letters printed on the chassis, UTF-8; empty: the file gives none. Attribute "SilkScreenName".
    std::string silkScreenName;
    /// Side of the chassis that cards are plugged in at: 0 front, 1 rear in the example; never interpreted here.
    /// Attribute "PluginDirection".
    int pluginDirection = 0;
    /// Interface types of the class, as a bit mask: 1 input, 2 output, 4 multi-view output, 8 auxiliary output in the
    /// example; never interpreted here. Attribute "InterfaceType".
    int interfaceType = 0;
    /// Slots of the class, in file order, repeated indexes kept. The children from the first "Slot" on.
    std::vector<s_Slot> slots;
    /// Card models that the class takes as a whole, in file order, duplicates kept. Children of "Subcards".
    std::vector<s_SlotSubcard> subcards;
};

/// All slots of one device. Slot file, element Device/Slots. A walk over the classes takes all eight, in this order.
struct s_Slots {
    /// Cards that control the device. Element "MainControlCardSlots", the only one that a file must have.
    s_SlotAttr mainControlCardSlots;
    s_SlotAttr reservedCardSlots; ///< Room in the record that no file fills; always empty.
    s_SlotAttr mixCardSlots;      ///< Cards with inputs and outputs. Element "MixCardSlots".
    /// Cards with inputs. Element "InputCardSlots"; a "Slot" without "Index" is left out here alone.
    s_SlotAttr inputCardSlots;
    s_SlotAttr outputCardSlots; ///< Cards with outputs. Element "OutputCardSlots".
    s_SlotAttr mvrCardSlots;    ///< Cards with multi-view outputs. Element "MVRCardSlots".
    s_SlotAttr auxCardSlots;    ///< Cards with auxiliary outputs. Element "AUXCardSlots".
    s_SlotAttr expCardSlots;    ///< Expansion cards. Element "EXPCardSlots".
};

/// The name under which the parser of the slot file hands them out; the spelling is meant.
struct s_DCSSolt : s_Slots {};

} // namespace LCD::MainConfig

#pragma pop_macro("slots")

#endif
