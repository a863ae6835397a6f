// Everything that one device model can do, as one record: its feature file. The subtrees are declared in the headers
// included here. Unless told otherwise a member comes from the attribute or child element of its name. A subtree that
// is absent or incomplete in the file leaves its member at the defaults given here, unless told otherwise.
#ifndef LCDMAINCONFIG_FEATURE_H
#define LCDMAINCONFIG_FEATURE_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/feature_audio.h"
#include "lcdmainconfig/feature_effects.h"
#include "lcdmainconfig/feature_functions.h"
#include "lcdmainconfig/feature_mosaic.h"
#include "lcdmainconfig/feature_ptz.h"
#include "lcdmainconfig/feature_services.h"
#include "lcdmainconfig/feature_streams.h"

#include <cstdint>
#include <string>
#include <vector>

namespace LCD::MainConfig {

/// The functions of one device model. Feature file, element Features.
struct s_FuncFeatures {
    /// Screens: their identifiers and types. Feature file, element Features/Screen.
    struct s_ScreenFeature : s_SupportInfo {
        /// Range of screen identifiers, 0 to 255 unless the file says otherwise; `value` stays 0. Element "ScreenId".
        s_RangeValue screenId;
        /// Screen types, by the numbers of the screen files: 1 wall, 2 multi-view, 3 auxiliary in the example; `value`
        /// stays 0. Element "ScreenType".
        s_EnumField screenType;
    };

    /// Groups that the user makes. Feature file, element Features/Group.
    struct s_GroupFeature : s_SupportInfo {
        /// Name that a new group gets, and the limits of its length, 0 to 255 unless the file says otherwise. Element
        /// "Name".
        s_TextValue name;
    };

    s_ScreenFeature screen; ///< Screens: their identifiers and types. Element "Screen".
    s_Genlock genlock;      ///< Synchronisation of the outputs to an external reference. Element "Genlock".
    s_SupportInfo hdcp;     ///< Whether the device can protect its outputs by HDCP. Element "HDCP".
    /// Conversion between standard and high dynamic range. Element "DynamicRangConversion".
    s_DynamicRangConversion dynamicRangConversion;
    /// Dynamic range that the device works in, standard or high; the numbers are the panel's. Element "DynamicRang".
    s_BaseAttr dynamicRang;
    /// Interfaces that can be mapped, and their test pattern. Element "InterfaceMapping".
    s_InterfaceMapping interfaceMapping;
    s_CutoutPos cutoutPos;         ///< How the place of a cut-out is given. Element "CutoutPos".
    s_GroupFeature group;          ///< Groups and the limits of their names. Element "Group".
    s_EnumField swap;              ///< What a swap does: 0 nothing, 1 copy, 2 exchange in the example. Element "Swap".
    s_Language language;           ///< Languages of the panel. Element "Language".
    s_SwitchEffect switchEffect;   ///< Transitions between sources. Element "SwitchEffect".
    s_RecodeSettingCfg record;     ///< Recording: places, capacities and durations. Element "Record".
    s_QuickToPology quickToPology; ///< Quick set-up of a canvas: its limits and layout types. Element "QuickTopology".
    s_MediaPool mediaPool;         ///< Media pool: audio files and picture sets. Element "Media".
};

/// One device model. Feature file, element Device: the paths in the comments below and in the included headers start
/// there.
struct s_DeviceFeature {
    /// The network ports. Feature file, element NetWorks.
    struct s_Networks : s_SupportInfo {
        s_Network network; ///< The port; the first one counts. Element "NetWork".
    };

    /// Limits of files, one entry per kind of file. Feature file, element File.
    struct s_File : s_SupportInfo {
        /// One per child element, whatever its tag: the limits of one kind of file, in the panel's unit. `dataType`
        /// repeats `value`; this is meant.
        std::vector<s_RangeValue> ranges;
    };

    /// A service with a choice of types. Feature file, elements PowerCtrl and RestoreFactory.
    struct s_TypeChoice : s_SupportInfo {
        s_EnumField type; ///< What the service can be told to do; the numbers are the panel's. Element "Type".
    };

    /// Opacity of layers. Feature file, element LayerAlphaFunction.
    struct s_LayerAlphaFunction : s_SupportInfo {
        std::vector<s_EnumStringValue> values; ///< Opacities to choose from; always empty: no file fills it.
    };

    /// The mixing console. Feature file, element SoundConsole. The flags keep their defaults whatever the file says:
    /// this is meant.
    struct s_SoundConsole : s_SupportInfo {
        /// Modes in file order: the children from the first "AudioMode" on. A mode that lacks a child refuses the file.
        std::vector<s_AudioMode> audioModes;
    };

    /// Where pictures are stored. Feature file, element Pictures.
    struct s_Pictures : s_SupportInfo {
        s_Path picturePath; ///< Folder of the pictures. Element "PicturePath".
    };

    /// Number of the device model: the low 16 bits of the file's number; 0xFFFF: no file was read. Attribute
    /// "ModuleId".
    std::uint64_t moduleId = 0xFFFF;
    /// How connectors are plugged in: the low 16 bits of the file's number, never interpreted here. Attribute
    /// "ConnectorPluginMode".
    std::uint64_t connectorPluginMode = 1;
    /// Short name of the product series, UTF-8; empty: the file names none. Attribute "SeriesShortName".
    std::string seriesShortName;
    /// Name that the device bears from the factory, UTF-8; empty: the file names none, "system1": no file was read.
    /// Attribute "Name".
    std::string name = "system1";
    std::string brand; ///< Brand that the panel shows, UTF-8; empty: the file names none. Attribute "Brand".
    /// Name of the panel's picture of the device, UTF-8; empty: the file names none. Attribute "Icon" of "TypeName".
    std::string icon;
    std::string typeNameEn;      ///< English model name, UTF-8; empty: the file gives none. Element "TypeName/en".
    std::string typeNameZhCN;    ///< Chinese model name, UTF-8; empty: the file gives none. Element "TypeName/zh_CN".
    s_FuncFeatures funcFeatures; ///< Functions of the device. Element "Features".
    s_General general;           ///< Limits of the device's name, and its status. Element "General".
    s_Networks networks;         ///< Network port. Element "NetWorks".
    s_ProjectFile projectFile;   ///< Project files: where they are, and what they may contain. Element "ProjectFile".
    s_File file; ///< Limits of the files that the device takes, such as pictures and logos. Element "File".
    /// Device modes, the keys of what screens and cards offer: 1 standard, 2 4K in the example. Element "DeviceModes".
    s_EnumField deviceModes;
    s_TypeChoice powerCtrl;         ///< Power control: 0 off, 1 on, 2 restart in the example. Element "PowerCtrl".
    s_DeviceFeatureSubcard subcard; ///< Cards that the device takes. Element "Subcard".
    /// Return to the factory settings: 1 everything, 2 everything but the network in the example. Element
    /// "RestoreFactory".
    s_TypeChoice restoreFactory;
    s_Upgrade upgrade; ///< Upgrade of the firmware of device and cards. Element "Upgrade".
    s_HDRInfo hdr;     ///< Whether the device can do high dynamic range. Element "HDR".
    /// Whether the device has a self-test; `support` alone is filled. Element "DeviceSelfTest".
    s_SupportInfo deviceSelfTest;
    /// Whether the opacity of layers can be set. Element "LayerAlphaFunction".
    s_LayerAlphaFunction layerAlphaFunction;
    s_Preset preset;                ///< How many presets there may be. Element "Preset".
    s_MOSAICSource mosaicSource;    ///< Mosaic inputs and their templates. Element "MosaicSource".
    s_PushStreamSetting pushStream; ///< Streams that the device sends to the network. Element "Features/PushStream".
    s_SoundConsole soundConsole;    ///< Audio modes of the mixing console. Element "SoundConsole".
    /// Whether the device has custom functions, which the panel knows; not supported unless the file says so. Element
    /// "Custom".
    s_SupportInfo custom;
    s_Pictures pictures;                     ///< Where pictures are stored. Element "Pictures".
    s_TemplateResourceInfo templateResource; ///< Where the device keeps its resources. Element "TemplateResource".
    s_Ptzs ptzs;                             ///< Control of pan-tilt-zoom cameras. Element "Ptzs".
    s_CleanFeeds cleanFeeds;                 ///< Clean-feed outputs. Element "CleanFeeds".
    s_DeviceFeatureAudio audio;              ///< Audio matrix, Dante and audio editing. Element "Audio".
    s_InternalSource internalSource;         ///< Sources that the device makes itself. Element "InternalSource".
    s_Tally tally;                           ///< Tally lamps and protocols. Element "Features/Tally".
};

} // namespace LCD::MainConfig

#endif
