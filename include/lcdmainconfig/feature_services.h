// The housekeeping of a device: presets, media pool, network port, project files, cards, template resources and
// upgrade. Unless told otherwise a member comes from the attribute or child element of its name, and a list is empty
// when the file names no entry.
#ifndef LCDMAINCONFIG_FEATURE_SERVICES_H
#define LCDMAINCONFIG_FEATURE_SERVICES_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/feature_functions.h"

#include <vector>

namespace LCD::MainConfig {

/// How many presets the device may store. Feature file, element Preset, without which the file is refused.
struct s_Preset : s_SupportInfo {
    int min = 0; ///< Smallest number of presets. Attribute "Min" of "PresetCount".
    int max = 0; ///< Largest number of presets. Attribute "Max" of "PresetCount".
};

/// The media pool. Feature file, element Features/Media.
struct s_MediaPool : s_SupportInfo {
    /// One kind of media. Feature file, elements Audio and PicSet of Features/Media.
    struct s_MediaList : s_SupportInfo {
        std::vector<EnumValue> enums; ///< Media of that kind; always empty, whatever the file lists: this is meant.
    };

    /// Audio files of the pool. Element "Audio"; absent from a Media that is there, it counts as supported and not
    /// editable.
    s_MediaList audio;
    /// Picture sets of the pool. Support 1 and editable 0 when the element "PicSet" is absent; the defaults when it is
    /// there: this is meant.
    s_MediaList picSet;
};

/// The network port. Feature file, element NetWorks/NetWork; the first one counts.
struct s_Network : s_SupportInfo {
    int index = 0;    ///< Number of the port. Attribute "Index"; 1 if absent.
    s_EnumField dhcp; ///< Switches DHCP, the automatic setting of addresses, on and off. Element "Dhcp".
    /// IP address of the device from the factory, as text; `min` and `max` are not filled. Element "Ip".
    s_TextValue ip;
    /// Subnet mask, which is required but repeats `ip`, as it is read from element "Ip": this is meant.
    s_TextValue subNetMask;
    /// IP address of the gateway from the factory, as text; `min` and `max` are not filled. Element "Gateway".
    s_TextValue gateway;
};

/// What a project file may contain; a factory value of 1 if the file gives none. Feature file, element
/// ProjectFile/Contain.
struct s_Contain : s_SupportInfo {
    s_EnumField other;  ///< Settings that the other three leave. Element "Other".
    s_EnumField bkg;    ///< Backgrounds. Element "BKG".
    s_EnumField logo;   ///< Logos. Element "Logo".
    s_EnumField preset; ///< Presets. Element "Preset"; here alone an absent "Editable" is 2.
};

/// Project files, which hold a set-up of the device. Feature file, element ProjectFile. Only `projectPath` and
/// `contain` are filled; the flags and the other members keep their defaults whatever the file says. This is meant.
struct s_ProjectFile : s_SupportInfo {
    s_Path projectPath;        ///< Folder of the project files. Element "ProjectPath".
    s_RangeValue fileId;       ///< Range of numbers of project files. Element "FileId", required but not kept.
    s_EnumField fileType;      ///< Kinds of project file. Element "FileType", required but not kept.
    s_SupportInfo fileGeneral; ///< Whether project files can be named. Element "FileGeneral", required but not kept.
    s_RangeValue name; ///< Length of the name of a project file. Element "FileGeneral/Name", required but not kept.
    s_Contain contain; ///< What a project file may contain. Element "Contain".
};

/// The connectors that a device's cards may have. Feature file, element Subcard/Connector.
struct s_DeviceFeatureConnector : s_SupportInfo {
    s_EnumField type; ///< Connector types that cards may have, by the numbers of the connector files. Element "Type".
    s_EnumField workMode; ///< Modes of working of connectors; the numbers are the panel's. Element "WorkMode".
    /// Capacity modes of connectors: bandwidth classes 0, 1 and 2 to the queries. Element "CapacityMode".
    s_EnumField capacityMode;
};

/// The cards that a device takes. Feature file, element Subcard.
struct s_DeviceFeatureSubcard : s_SupportInfo {
    /// Kinds of card: 1 input, 2 output, 4 multi-view output, 8 auxiliary output in the example. Element "CardType".
    s_EnumField cardType;
    s_DeviceFeatureConnector connector; ///< Connectors that the cards may have. Element "Connector".
};

/// Where the device keeps its resources. Feature file, element TemplateResource: each child of type 2 has a target
/// path, which goes to `relativePath` of the first place below whose name it contains (case-sensitive); the last such
/// child wins. `absolutePath` is always empty, and so is `relativePath` of a place that no child names.
struct s_TemplateResourceInfo : s_SupportInfo {
    s_Path stream;  ///< Folder of pushed streams. The target path that contains "stream".
    s_Path camera;  ///< Folder of what belongs to cameras. The target path that contains "camera".
    s_Path record;  ///< Folder of recordings. The target path that contains "record".
    s_Path project; ///< Folder of project files. The target path that contains "project".
    s_Path media;   ///< Folder of the media pool. The target path that contains "media".
    s_Path logs;    ///< Folder of log files. The target path that contains "logs".
};

/// Upgrade of the firmware; the listed numbers are the panel's. Feature file, element Upgrade.
struct s_Upgrade : s_SupportInfo {
    /// Upgrade of the cards. Feature file, element Upgrade/Cards.
    struct s_Cards : s_SupportInfo {
        s_EnumField type; ///< What of the cards can be upgraded; the numbers are the panel's. Element "Type".
    };

    s_EnumField type;       ///< What can be upgraded. Element "Type".
    s_EnumField reboot;     ///< Whether the device restarts after an upgrade. Element "Reboot".
    s_EnumField deleteFile; ///< Whether the upgrade file is deleted afterwards. Element "DeleteFile".
    s_Cards cards;          ///< What of the cards can be upgraded, and whether at all. Element "Cards".
};

} // namespace LCD::MainConfig

#endif
