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

/// Feature file, element Features.
struct s_FuncFeatures {
    struct s_ScreenFeature : s_SupportInfo {
        s_RangeValue screenId;  ///< `value` stays 0: the file gives the range of identifiers.
        s_EnumField screenType; ///< `value` stays 0: the file gives the list of types.
    };

    struct s_GroupFeature : s_SupportInfo {
        s_TextValue name;
    };

    s_ScreenFeature screen;
    s_Genlock genlock;
    s_SupportInfo hdcp; ///< Element HDCP.
    s_DynamicRangConversion dynamicRangConversion;
    s_BaseAttr dynamicRang;
    s_InterfaceMapping interfaceMapping;
    s_CutoutPos cutoutPos;
    s_GroupFeature group;
    s_EnumField swap;
    s_Language language;
    s_SwitchEffect switchEffect;
    s_RecodeSettingCfg record;
    s_QuickToPology quickToPology; ///< Element QuickTopology.
    s_MediaPool mediaPool;         ///< Element Media.
};

/// One device model. Feature file, element Device: the paths in the comments below and in the included headers start
/// there.
struct s_DeviceFeature {
    struct s_Networks : s_SupportInfo {
        s_Network network; ///< Element NetWork; the first one counts.
    };

    struct s_File : s_SupportInfo {
        /// One per child element, whatever its tag. `dataType` repeats `value`: this is meant.
        std::vector<s_RangeValue> ranges;
    };

    /// A service with a choice of types.
    struct s_TypeChoice : s_SupportInfo {
        s_EnumField type;
    };

    struct s_LayerAlphaFunction : s_SupportInfo {
        std::vector<s_EnumStringValue> values; ///< Always empty: no file fills it.
    };

    /// The mixing console. The flags keep their defaults whatever the file says: this is meant.
    struct s_SoundConsole : s_SupportInfo {
        std::vector<s_AudioMode> audioModes;
    };

    struct s_Pictures : s_SupportInfo {
        s_Path picturePath;
    };

    /// Device model identifier: the low 16 bits of the number in the file. 0xFFFF: no file was read.
    std::uint64_t moduleId = 0xFFFF;
    /// The low 16 bits of the number in the file; never interpreted here.
    std::uint64_t connectorPluginMode = 1;
    std::string seriesShortName;  ///< UTF-8; empty when the file names none.
    std::string name = "system1"; ///< UTF-8; empty when the file names none, "system1" when no file was read.
    std::string brand;            ///< UTF-8; empty when the file names none.
    std::string icon;             ///< Icon name: element TypeName, attribute "Icon".
    std::string typeNameEn;       ///< Model name, UTF-8: element TypeName/en.
    std::string typeNameZhCN;     ///< Model name, UTF-8: element TypeName/zh_CN.
    s_FuncFeatures funcFeatures;
    s_General general;
    s_Networks networks; ///< Element NetWorks.
    s_ProjectFile projectFile;
    s_File file;
    s_EnumField deviceModes;
    s_TypeChoice powerCtrl;
    s_DeviceFeatureSubcard subcard;
    s_TypeChoice restoreFactory;
    s_Upgrade upgrade;
    s_HDRInfo hdr;                ///< Element HDR.
    s_SupportInfo deviceSelfTest; ///< `support` alone is filled.
    s_LayerAlphaFunction layerAlphaFunction;
    s_Preset preset;
    s_MOSAICSource mosaicSource;
    s_PushStreamSetting pushStream; ///< Element Features/PushStream.
    s_SoundConsole soundConsole;
    s_SupportInfo custom;
    s_Pictures pictures;
    s_TemplateResourceInfo templateResource;
    s_Ptzs ptzs;
    s_CleanFeeds cleanFeeds;
    s_DeviceFeatureAudio audio;
    s_InternalSource internalSource;
    s_Tally tally; ///< Element Features/Tally.
};

} // namespace LCD::MainConfig

#endif
