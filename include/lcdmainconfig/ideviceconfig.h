// What the device is and what it can do: the questions that the panel asks about the device directories which the host
// has loaded. The order of the operations is a contract with the host.
#ifndef LCDMAINCONFIG_IDEVICECONFIG_H
#define LCDMAINCONFIG_IDEVICECONFIG_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/device.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace LCD::MainConfig {

/// The device catalogue. "The device" below is the current one: the first in the list that has the number which
/// findDeviceModelId() gives, so the one that was loaded first. Every result but DeviceConfigs() is a copy that belongs
/// to the caller.
///
/// Queries never fail but by an empty result: a null pointer, an empty text or list, false or 0. With no device they
/// warn `"could not find device(%1)'s cfg."`, unless told otherwise, after the warning of findDeviceModelId(). With
/// several screens or layers of one type the first in the list answers.
class IDeviceConfig {
public:
    virtual ~IDeviceConfig() = default;

    /// Reads the "*.xml" files of one device directory and adds one device to the list. A missing directory is made.
    /// False, with the reason in `error`, only if the path is empty or the directory cannot be made. A file that cannot
    /// be opened or is not XML leaves its reason in `error`, and the result is true all the same; a file that its
    /// parser refuses costs a warning, "Error:" and the reason. The device then keeps what it had of that kind.
    virtual bool readConfig(const QString& path, QString& error) = 0;

    /// Adds to `out` the slots of index `slotIndex` that list the card model `moduleId`, from every device with the
    /// number `deviceId`, not from the current one alone; a slot that lists the model twice is added twice. False, and
    /// no warning, only if there is no device at all. Slot file, "Slot" of all card classes.
    virtual bool findSlotConnectors(int deviceId, int slotIndex, int moduleId, std::vector<s_Slot>& out) = 0;

    /// All devices, in load order. The list itself: it changes with the next readConfig(). Empty before a load.
    virtual const QList<s_Device>& DeviceConfigs() const = 0;

    /// The device with all that its files say. Without one a record of defaults, and no warning of its own.
    virtual s_Device curDeviceConfigs() const = 0;

    /// The first card model of the first slot of that index that lists any. 0, and no further warning, if there is
    /// none. Slot file, "Slot/Subcards/Subcard" of all card classes, attribute "ModuleId".
    virtual std::uint64_t findSubcardModelId(int slotIndex) const = 0;

    /// The model name: English if the application's property "lcd_locale" is "en", else Chinese. Feature file,
    /// "Device/TypeName", elements "en" and "zh_CN".
    virtual QString findDeviceTypeName() const = 0;

    /// The brand. Feature file, "Device", attribute "Brand".
    virtual QString getBrand() const = 0;

    /// The number of the first device in the list. Warns "could not find device's cfg." and gives 0 for an empty list.
    /// Feature file, "Device", attribute "ModuleId".
    virtual std::uint64_t findDeviceModelId() const = 0;

    /// The layer types that may be opened on a screen type in a device mode, with their counts. Empty, and no warning
    /// of its own, if there is no such screen or mode. Screen file, "Screen/DeviceModes", the mode's "LayerTypes".
    virtual std::vector<s_LayerType> findLayerTypes(int screenType, int deviceMode) const = 0;

    /// The ranges of a layer's window. A record of defaults, ranges 0 to 255, and no warning of its own, if there is no
    /// such layer type. Layer file, "Layer/Window".
    virtual s_LayerWindow findLayerWindowDefaultRange(int layerType) const = 0;

    /// The whole screen type. Null, with the warning `"could not find screen type(%1)'s cfg."`, if there is none.
    /// Screen file, "Screen".
    virtual std::shared_ptr<s_Screen> screenConfigs(int screenType) const = 0;

    /// The counting order of the connectors on the chassis; an empty list if no file gives one. Silk files, "Keys/Key".
    virtual std::shared_ptr<std::vector<s_SilkOrder>> silkConfigs() const = 0;

    /// The whole layer type. Null, with the warning `"could not find layer type(%1)'s cfg."`, if there is none. Layer
    /// file, "Layer".
    virtual std::shared_ptr<s_Layer> layerConfigs(int layerType) const = 0;

    /// The number of presets. Feature file, "Device/Preset".
    virtual std::shared_ptr<s_Preset> presetConfigs() const = 0;

    /// Camera control; defaults if the file has none. Feature file, "Device/Ptzs".
    virtual std::shared_ptr<s_Ptzs> ptzsConfigs() const = 0;

    /// The clean-feed outputs; defaults if the file has none. Feature file, "Device/CleanFeeds".
    virtual std::shared_ptr<s_CleanFeeds> cleanFeedsConfigs() const = 0;

    /// True if both "Support" attributes are exactly 1; any other number is a no. Feature file, "Device/Audio" and
    /// "Device/Audio/AudioDante".
    virtual bool isSupportDantePort() const = 0;

    /// Tally; defaults if the file has none. Feature file, "Device/Features/Tally".
    virtual std::shared_ptr<s_Tally> tallyConfigs() const = 0;

    /// The sources that the device makes itself; defaults if the file has none. Feature file, "Device/InternalSource".
    virtual std::shared_ptr<s_InternalSource> internalSourceConfigs() const = 0;

    /// The panel languages; defaults if the file has none. Feature file, "Device/Features/Language".
    virtual std::shared_ptr<s_Language> languageConfigs() const = 0;

    /// Mosaic sources and their templates; defaults if the file has none. Feature file, "Device/MosaicSource".
    virtual std::shared_ptr<s_MOSAICSource> inputMOSAICConfigs() const = 0;

    /// The keying of a layer type. Null, with the warning `"could not find layer type:(%1)'s cfg."`, if there is none;
    /// the colon, which layerConfigs() lacks, is meant. Layer file, "Layer/CutoutGeneral".
    virtual std::shared_ptr<s_LayerCutoutGeneral> layerCutoutConfigs(int layerType) const = 0;

    /// Quick topology; defaults if the file has none. Feature file, "Device/Features/QuickTopology".
    virtual std::shared_ptr<s_QuickToPology> quickConfigurationConfigs() const = 0;

    /// The output frame rates of a screen type. A record of defaults with an empty list, and no warning of its own, if
    /// there is no such screen type. Screen file, "Screen/Features/SenderGenLock".
    virtual s_SenderGenLock findFramerates(int screenType) const = 0;

    /// Recording; defaults if the file has none. Feature file, "Device/Features/Record".
    virtual std::shared_ptr<s_RecodeSettingCfg> recodeSettingConfigs() const = 0;

    /// Genlock of the device; defaults if the file has none. Feature file, "Device/Features/Genlock".
    virtual std::shared_ptr<s_Genlock> genlockConfigs() const = 0;

    /// The media pool; defaults if the file has none. Feature file, "Device/Features/Media".
    virtual std::shared_ptr<s_MediaPool> mediaPoolCfg() const = 0;

    /// The effect types on offer; an empty list if the file has none. Feature file,
    /// "Device/Features/SwitchEffect/Type".
    virtual std::shared_ptr<std::vector<EnumValue>> findEffectTypes() const = 0;

    /// The three-dimensional display of a screen type. Null as from screenConfigs(), with the same warning; zeros if
    /// the file has none. Screen file, "Screen/Features/ThreeD".
    virtual std::shared_ptr<s_ThreeD> screenThreeDConfigs(int screenType) const = 0;

    /// Wipe patterns and the controls of each effect; defaults if the file has none. Feature file,
    /// "Device/Features/SwitchEffect/Effect".
    virtual std::shared_ptr<s_Effect> effectConfigs() const = 0;

    /// Genlock of a screen type. Null as from screenConfigs(), with the same warning; defaults if the file has none.
    /// Screen file, "Screen/Features/Genlock".
    virtual std::shared_ptr<s_Genlock> genlockScreenConfigs(int screenType) const = 0;

    /// The relative path of a storage place, UTF-8; empty, and no warning, if the file names none. A number outside the
    /// enumeration gives an empty text and the warning `"%1 get RelativePath is empty"`. Feature file,
    /// "Device/TemplateResource", attribute "TargetPath" of its children.
    virtual std::string getRelativePath(RelativePathType type) const = 0;
};

} // namespace LCD::MainConfig

#endif
