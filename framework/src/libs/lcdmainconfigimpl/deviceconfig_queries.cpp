// What the device catalogue answers: who the current device is, which modules its slots hold, and its feature groups,
// screens and layers.
#include "deviceconfig.h"
#include "search.h"
#include "slotclasses.h"

#include <QCoreApplication>
#include <QDebug>
#include <QVariant>

#include <utility>

namespace LCD::MainConfigImpl {
namespace {

bool panelSpeaksEnglish()
{
    return QCoreApplication::instance()->property("lcd_locale").toString() == QLatin1String("en");
}

/// A copy of one group of the feature file, or null when there is no device.
template <class Record> std::shared_ptr<Record> copyOf(const s_Device* device, Record s_DeviceFeature::*group)
{
    return device != nullptr ? newCopy(device->feature.*group) : nullptr;
}

template <class Record> std::shared_ptr<Record> copyOf(const s_Device* device, Record s_FuncFeatures::*group)
{
    return device != nullptr ? newCopy(device->feature.funcFeatures.*group) : nullptr;
}

std::uint64_t deviceKey(const s_Device& device) { return device.feature.moduleId; }

/// The first screen or layer of a type; null when there is none, or no device.
const s_DCSScreen* screenOf(const s_Device* device, int screenType)
{
    return device != nullptr ? firstWhere(device->screens, &s_Screen::type, screenType) : nullptr;
}

const s_DCSLayer* layerOf(const s_Device* device, int layerType)
{
    return device != nullptr ? firstWhere(device->layers, &s_Layer::type, layerType) : nullptr;
}

} // namespace

const s_Device* DeviceConfig::current() const { return firstWhere(_devices, deviceKey, findDeviceModelId()); }

const s_Device* DeviceConfig::currentOrWarn() const
{
    const std::uint64_t currentId = findDeviceModelId();
    const s_Device* const device = firstWhere(_devices, deviceKey, currentId);
    if (device == nullptr) qWarning().noquote() << QStringLiteral("could not find device(%1)'s cfg.").arg(currentId);
    return device;
}

// --- Identity and slots

std::uint64_t DeviceConfig::findDeviceModelId() const
{
    if (!_devices.isEmpty()) return _devices.first().feature.moduleId;
    qWarning() << "could not find device's cfg.";
    return 0;
}

const QList<s_Device>& DeviceConfig::DeviceConfigs() const { return _devices; }

s_Device DeviceConfig::curDeviceConfigs() const
{
    const s_Device* const device = current();
    return device != nullptr ? *device : s_Device();
}

QString DeviceConfig::findDeviceTypeName() const
{
    const s_Device* const device = currentOrWarn();
    if (device == nullptr) return {};
    return QString::fromStdString(panelSpeaksEnglish() ? device->feature.typeNameEn : device->feature.typeNameZhCN);
}

QString DeviceConfig::getBrand() const
{
    const s_Device* const device = currentOrWarn();
    return device != nullptr ? QString::fromStdString(device->feature.brand) : QString();
}

std::uint64_t DeviceConfig::findSubcardModelId(int slotIndex) const
{
    const s_Device* const device = currentOrWarn();
    if (device == nullptr) return 0;
    for (const s_SlotAttr* const slotClass : slotClasses(device->slots))
        for (const s_Slot& slot : slotClass->slots)
            if (slot.index == slotIndex && !slot.subcards.empty()) return slot.subcards.front().moduleId;
    return 0;
}

bool DeviceConfig::findSlotConnectors(int deviceId, int slotIndex, int moduleId, std::vector<s_Slot>& out)
{
    // A walk over the list as it is would detach it while somebody holds a copy, and free what others refer to.
    for (const s_Device& device : std::as_const(_devices)) {
        if (deviceKey(device) != static_cast<std::uint64_t>(deviceId)) continue;
        for (const s_SlotAttr* const slotClass : slotClasses(device.slots))
            for (const s_Slot& slot : slotClass->slots) {
                if (slot.index != slotIndex) continue;
                for (const s_InlineSubcard& subcard : slot.subcards)
                    if (subcard.moduleId == static_cast<std::uint64_t>(moduleId)) out.push_back(slot);
            }
    }
    return !_devices.isEmpty();
}

// --- Feature groups: a copy of the member, or null with a warning when there is no device

// clang-format off
std::shared_ptr<s_Preset>           DeviceConfig::presetConfigs() const             { return copyOf(currentOrWarn(), &s_DeviceFeature::preset); }
std::shared_ptr<s_Ptzs>             DeviceConfig::ptzsConfigs() const               { return copyOf(currentOrWarn(), &s_DeviceFeature::ptzs); }
std::shared_ptr<s_CleanFeeds>       DeviceConfig::cleanFeedsConfigs() const         { return copyOf(currentOrWarn(), &s_DeviceFeature::cleanFeeds); }
std::shared_ptr<s_Tally>            DeviceConfig::tallyConfigs() const              { return copyOf(currentOrWarn(), &s_DeviceFeature::tally); }
std::shared_ptr<s_InternalSource>   DeviceConfig::internalSourceConfigs() const     { return copyOf(currentOrWarn(), &s_DeviceFeature::internalSource); }
std::shared_ptr<s_Language>         DeviceConfig::languageConfigs() const           { return copyOf(currentOrWarn(), &s_FuncFeatures::language); }
std::shared_ptr<s_MOSAICSource>     DeviceConfig::inputMOSAICConfigs() const        { return copyOf(currentOrWarn(), &s_DeviceFeature::mosaicSource); }
std::shared_ptr<s_QuickToPology>    DeviceConfig::quickConfigurationConfigs() const { return copyOf(currentOrWarn(), &s_FuncFeatures::quickToPology); }
std::shared_ptr<s_RecodeSettingCfg> DeviceConfig::recodeSettingConfigs() const      { return copyOf(currentOrWarn(), &s_FuncFeatures::record); }
std::shared_ptr<s_Genlock>          DeviceConfig::genlockConfigs() const            { return copyOf(currentOrWarn(), &s_FuncFeatures::genlock); }
std::shared_ptr<s_MediaPool>        DeviceConfig::mediaPoolCfg() const              { return copyOf(currentOrWarn(), &s_FuncFeatures::mediaPool); }
// clang-format on

std::shared_ptr<s_Effect> DeviceConfig::effectConfigs() const
{
    const s_Device* const device = currentOrWarn();
    return device != nullptr ? newCopy(device->feature.funcFeatures.switchEffect.effect) : nullptr;
}

std::shared_ptr<std::vector<EnumValue>> DeviceConfig::findEffectTypes() const
{
    const s_Device* const device = currentOrWarn();
    return device != nullptr ? newCopy(device->feature.funcFeatures.switchEffect.type.enums) : nullptr;
}

std::shared_ptr<std::vector<s_SilkOrder>> DeviceConfig::silkConfigs() const
{
    const s_Device* const device = currentOrWarn();
    return device != nullptr ? newCopy(device->silkOrders) : nullptr;
}

bool DeviceConfig::isSupportDantePort() const
{
    const s_Device* const device = currentOrWarn();
    return device != nullptr && device->feature.audio.support == 1 && device->feature.audio.audioDante.support == 1;
}

std::string DeviceConfig::getRelativePath(RelativePathType type) const
{
    const s_Device* const device = currentOrWarn();
    if (device == nullptr) return {};
    const s_TemplateResourceInfo& places = device->feature.templateResource;
    switch (type) {
    case RelativePathType::Stream:
        return places.stream.relativePath;
    case RelativePathType::Record:
        return places.record.relativePath;
    case RelativePathType::Project:
        return places.project.relativePath;
    case RelativePathType::Media:
        return places.media.relativePath;
    case RelativePathType::Camera:
        return places.camera.relativePath;
    case RelativePathType::Logs:
        return places.logs.relativePath;
    }
    qWarning().noquote() << QStringLiteral("%1 get RelativePath is empty").arg(static_cast<int>(type));
    return {};
}

// --- Screens

const s_DCSScreen* DeviceConfig::screenOrWarn(int screenType) const
{
    const s_Device* const device = currentOrWarn();
    const s_DCSScreen* const screen = screenOf(device, screenType);
    if (device != nullptr && screen == nullptr)
        qWarning().noquote() << QStringLiteral("could not find screen type(%1)'s cfg.").arg(screenType);
    return screen;
}

std::shared_ptr<s_Screens> DeviceConfig::getScreenData(int screenType) const
{
    const s_DCSScreen* const screen = screenOrWarn(screenType);
    return screen != nullptr ? std::make_shared<s_Screens>(s_Screens{*screen}) : nullptr;
}

std::shared_ptr<s_Screen> DeviceConfig::screenConfigs(int screenType) const { return getScreenData(screenType); }

std::shared_ptr<s_ThreeD> DeviceConfig::screenThreeDConfigs(int screenType) const
{
    const s_DCSScreen* const screen = screenOrWarn(screenType);
    return screen != nullptr ? newCopy(screen->features.threeD) : nullptr;
}

std::shared_ptr<s_Genlock> DeviceConfig::genlockScreenConfigs(int screenType) const
{
    const s_DCSScreen* const screen = screenOrWarn(screenType);
    return screen != nullptr ? newCopy(screen->features.genlock) : nullptr;
}

std::vector<s_LayerType> DeviceConfig::findLayerTypes(int screenType, int deviceMode) const
{
    const s_DCSScreen* const screen = screenOf(current(), screenType);
    const auto* const mode = screen ? firstWhere(screen->deviceModes, &s_ScreenDeviceMode::value, deviceMode) : nullptr;
    return mode ? mode->layerTypes : std::vector<s_LayerType>();
}

s_SenderGenLock DeviceConfig::findFramerates(int screenType) const
{
    const s_DCSScreen* const screen = screenOf(current(), screenType);
    return screen ? screen->features.senderGenLock : s_SenderGenLock();
}

// --- Layers

std::shared_ptr<s_Layer> DeviceConfig::layerConfigs(int layerType) const
{
    const s_Device* const device = currentOrWarn();
    const s_DCSLayer* const layer = layerOf(device, layerType);
    if (layer != nullptr) return newCopy<s_Layer>(*layer);
    if (device != nullptr)
        qWarning().noquote() << QStringLiteral("could not find layer type(%1)'s cfg.").arg(layerType);
    return {};
}

std::shared_ptr<s_LayerCutoutGeneral> DeviceConfig::layerCutoutConfigs(int layerType) const
{
    const s_Device* const device = currentOrWarn();
    const s_DCSLayer* const layer = layerOf(device, layerType);
    if (layer != nullptr) return newCopy(layer->cutoutGeneral);
    // Worded unlike layerConfigs(), which is meant.
    if (device != nullptr)
        qWarning().noquote() << QStringLiteral("could not find layer type:(%1)'s cfg.").arg(layerType);
    return {};
}

s_LayerWindow DeviceConfig::findLayerWindowDefaultRange(int layerType) const
{
    const s_DCSLayer* const layer = layerOf(current(), layerType);
    return layer ? layer->window : s_LayerWindow();
}

} // namespace LCD::MainConfigImpl
