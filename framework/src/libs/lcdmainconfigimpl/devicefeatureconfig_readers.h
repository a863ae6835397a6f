// The readers of the feature file's subtrees, one source file for each subject, and the shapes that they share. The
// walk over the whole file stands in devicefeatureconfig.cpp; it decides what an absent subtree costs, and stores a
// subtree only after its last required element was found.
#ifndef LCDMAINCONFIGIMPL_DEVICEFEATURECONFIG_READERS_H
#define LCDMAINCONFIGIMPL_DEVICEFEATURECONFIG_READERS_H

#include "lcdmainconfig/feature.h"
#include "reading/cells.h"

namespace LCD::MainConfigImpl::featurefile {

/// A feature that the file mentions is supported and editable, unless the file says otherwise.
inline constexpr auto flags = reading::cells(reading::Support("1"), reading::Editable("1"));

/// A setting with allowed values, as the later subtrees of the file give it.
inline constexpr auto setting =
    reading::cells(flags, reading::DataType("0"), reading::Value("0"), reading::enums(reading::Walk::Named, "0"));

/// A storage place.
inline constexpr auto place = reading::cells(reading::RelativePath, reading::AbsolutePath);

/// Allowed values, for a member that is the bare list.
constexpr auto enumList(reading::Walk walk, reading::Literal readDefault = "")
{
    return reading::list(walk, "Enum", std::identity{}, reading::Value(readDefault));
}

// clang-format off

// Functions and general data
void readScreen               (const reading::Reader& in, MainConfig::s_FuncFeatures::s_ScreenFeature& screen);
void readGenlock              (const reading::Reader& in, MainConfig::s_Genlock& genlock);
void readDynamicRangConversion(const reading::Reader& in, MainConfig::s_DynamicRangConversion& conversion);
void readDynamicRang          (const reading::Reader& in, MainConfig::s_BaseAttr& dynamicRang);
void readInterfaceMapping     (const reading::Reader& in, MainConfig::s_InterfaceMapping& mapping);
void readCutoutPos            (const reading::Reader& in, MainConfig::s_CutoutPos& cutoutPos);
void readGroup                (const reading::Reader& in, MainConfig::s_FuncFeatures::s_GroupFeature& group);
void readSwap                 (const reading::Reader& in, MainConfig::s_EnumField& swap);
void readLanguage             (const reading::Reader& in, MainConfig::s_Language& language);
void readQuickTopology        (const reading::Reader& in, MainConfig::s_QuickToPology& topology);
void readGeneral              (const reading::Reader& in, MainConfig::s_General& general);

// Switch effects
void readSwitchEffect(const reading::Reader& in, MainConfig::s_SwitchEffect& switchEffect);

// Presets, media pool and device services
void readPreset          (const reading::Reader& in, MainConfig::s_Preset& preset);
void readMediaPool       (const reading::Reader& in, MainConfig::s_MediaPool& mediaPool);
void readNetworks        (const reading::Reader& in, MainConfig::s_DeviceFeature::s_Networks& networks);
void readPictures        (const reading::Reader& in, MainConfig::s_DeviceFeature::s_Pictures& pictures);
void readProjectFile     (const reading::Reader& in, MainConfig::s_ProjectFile& projectFile);
void readFile            (const reading::Reader& in, MainConfig::s_DeviceFeature::s_File& file);
void readDeviceModes     (const reading::Reader& in, MainConfig::s_EnumField& deviceModes);
void readPowerCtrl       (const reading::Reader& in, MainConfig::s_DeviceFeature::s_TypeChoice& powerCtrl);
void readSubcard         (const reading::Reader& in, MainConfig::s_DeviceFeatureSubcard& subcard);
void readRestoreFactory  (const reading::Reader& in, MainConfig::s_DeviceFeature::s_TypeChoice& restoreFactory);
void readTemplateResource(const reading::Reader& in, MainConfig::s_TemplateResourceInfo& places);
void readUpgrade         (const reading::Reader& in, MainConfig::s_Upgrade& upgrade);

// Mosaic sources
void readMosaicSource(const reading::Reader& in, MainConfig::s_MOSAICSource& mosaic);

// Audio and sound console
void readSoundConsole(const reading::Reader& in, MainConfig::s_DeviceFeature::s_SoundConsole& console);
void readAudio       (const reading::Reader& in, MainConfig::s_DeviceFeatureAudio& audio);

// Camera control and clean feeds
void readPtzs      (const reading::Reader& in, MainConfig::s_Ptzs& ptzs);
void readCleanFeeds(const reading::Reader& in, MainConfig::s_CleanFeeds& cleanFeeds);

// Tally, internal sources, push stream and recording
void readTally         (const reading::Reader& in, MainConfig::s_Tally& tally);
void readInternalSource(const reading::Reader& in, MainConfig::s_InternalSource& source);
void readPushStream    (const reading::Reader& in, MainConfig::s_PushStreamSetting& pushStream);
void readRecord        (const reading::Reader& in, MainConfig::s_RecodeSettingCfg& record);

// clang-format on

} // namespace LCD::MainConfigImpl::featurefile

#endif
