// The housekeeping of a device: presets, media pool, network port, project files, cards, template resources and
// upgrade. Unless told otherwise a member comes from the attribute or child element of its name, and a list is empty
// when the file names no entry.
#ifndef LCDMAINCONFIG_FEATURE_SERVICES_H
#define LCDMAINCONFIG_FEATURE_SERVICES_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/feature_functions.h"

#include <vector>

namespace LCD::MainConfig {

/// Feature file, element Preset.
struct s_Preset : s_SupportInfo {
    int min = 0; ///< Smallest number of presets: element Preset/PresetCount.
    int max = 0; ///< Largest number of presets: element Preset/PresetCount.
};

/// Feature file, element Features/Media.
struct s_MediaPool : s_SupportInfo {
    struct s_MediaList : s_SupportInfo {
        std::vector<EnumValue> enums; ///< Always empty, whatever the file lists: this is meant.
    };

    s_MediaList audio; ///< Absent from a Media that is there, it counts as supported and not editable.
    /// Support 1 and editable 0 when the element PicSet is absent; the defaults when it is there: this is meant.
    s_MediaList picSet;
};

/// The network port. Feature file, element NetWorks/NetWork; the first one counts.
struct s_Network : s_SupportInfo {
    int index = 0; ///< Number of the port.
    s_EnumField dhcp;
    s_TextValue ip;         ///< Address as text; `min` and `max` are not filled.
    s_TextValue subNetMask; ///< Repeats `ip`, as it is read from element Ip: this is meant.
    s_TextValue gateway;    ///< Address as text; `min` and `max` are not filled.
};

/// What a project file may contain. Feature file, element ProjectFile/Contain.
struct s_Contain : s_SupportInfo {
    s_EnumField other;
    s_EnumField bkg; ///< Backgrounds: element BKG.
    s_EnumField logo;
    s_EnumField preset;
};

/// Feature file, element ProjectFile. Only `projectPath` and `contain` are filled; the flags and the other members keep
/// their defaults whatever the file says. This is meant.
struct s_ProjectFile : s_SupportInfo {
    s_Path projectPath;
    s_RangeValue fileId;
    s_EnumField fileType;
    s_SupportInfo fileGeneral;
    s_RangeValue name; ///< Element FileGeneral/Name.
    s_Contain contain;
};

/// The connectors that a device's cards may have. Feature file, element Subcard/Connector.
struct s_DeviceFeatureConnector : s_SupportInfo {
    s_EnumField type;
    s_EnumField workMode;
    s_EnumField capacityMode;
};

/// The cards that a device takes. Feature file, element Subcard.
struct s_DeviceFeatureSubcard : s_SupportInfo {
    s_EnumField cardType;
    s_DeviceFeatureConnector connector;
};

/// Where the device keeps its resources. Feature file, element TemplateResource: each child of type 2 has a target
/// path, which goes to `relativePath` of the first place below whose name it contains (case-sensitive); the last such
/// child wins. `absolutePath` is always empty, and so is `relativePath` of a place that no child names.
struct s_TemplateResourceInfo : s_SupportInfo {
    s_Path stream;
    s_Path camera;
    s_Path record;
    s_Path project;
    s_Path media;
    s_Path logs;
};

/// Feature file, element Upgrade.
struct s_Upgrade : s_SupportInfo {
    struct s_Cards : s_SupportInfo {
        s_EnumField type;
    };

    s_EnumField type;
    s_EnumField reboot;
    s_EnumField deleteFile;
    s_Cards cards;
};

} // namespace LCD::MainConfig

#endif
