#include "devicefeatureconfig.h"

#include "once.h"
#include "reading/cells.h"
#include "reading/document.h"

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;
using namespace reading;

std::atomic<DeviceFeatureConfig*> DeviceFeatureConfig::_pDeviceFeatureCfg{nullptr};
std::mutex DeviceFeatureConfig::_deviceFeatCfgMutex;

DeviceFeatureConfig* DeviceFeatureConfig::instance()
{
    return createOnce(_pDeviceFeatureCfg, _deviceFeatCfgMutex, [] { return new DeviceFeatureConfig; });
}

namespace {

// clang-format off
constexpr auto flags = cells(Support("1"), Editable("1"));

void readIdentity(const Reader& in, s_DeviceFeature& feature)
{
    in.read(feature,
            cell("ModuleId",            &s_DeviceFeature::moduleId,            "",  Low16{}),
            cell("ConnectorPluginMode", &s_DeviceFeature::connectorPluginMode, "0", Low16{}),
            cell("SeriesShortName",     &s_DeviceFeature::seriesShortName),
            cell("Name",                &s_DeviceFeature::name),
            cell("Brand",               &s_DeviceFeature::brand));
    // A missing language ends the names, not the file.
    in.apart("TypeName", OnNull::Note, feature,
             cell("Icon", &s_DeviceFeature::icon),
             [](const Reader& typeName, s_DeviceFeature& device) {
                 typeName.content("en",    OnNull::Fail, device.typeNameEn);
                 typeName.content("zh_CN", OnNull::Fail, device.typeNameZhCN);
             });
}

void readPreset(const Reader& in, s_Preset& preset)
{
    in.read(preset, Support("0"), Editable("0"));
    in.element("PresetCount", OnNull::Fail, preset, Min("0"), Max("0"));
}

/// The whole file, in the order in which its elements are looked up; of several messages the last one stays.
void readDevice(const Reader& in, s_DeviceFeature& feature)
{
    readIdentity(in, feature);
    const Reader features = in.required("Features");
    in.staged("HDR",                           OnNull::Fail, feature.hdr,                flags);
    in.staged("LayerAlphaFunction",            OnNull::Skip, feature.layerAlphaFunction, flags);
    features.staged("Screen",                  OnNull::Note, feature.funcFeatures.screen);
    features.staged("Genlock",                 OnNull::Note, feature.funcFeatures.genlock);
    features.staged("Media",                   OnNull::Note, feature.funcFeatures.mediaPool);
    features.staged("HDCP",                    OnNull::Note, feature.funcFeatures.hdcp);
    features.staged("DynamicRangConversion",   OnNull::Note, feature.funcFeatures.dynamicRangConversion);
    features.staged("DynamicRang",             OnNull::Note, feature.funcFeatures.dynamicRang);
    features.staged("InterfaceMapping",        OnNull::Note, feature.funcFeatures.interfaceMapping);
    features.staged("CutoutPos",               OnNull::Note, feature.funcFeatures.cutoutPos);
    features.staged("Group",                   OnNull::Note, feature.funcFeatures.group);
    features.staged("Swap",                    OnNull::Note, feature.funcFeatures.swap);
    features.staged("Language",                OnNull::Note, feature.funcFeatures.language);
    features.staged("SwitchEffect",            OnNull::Note, feature.funcFeatures.switchEffect);
    features.staged("PushStream",              OnNull::Note, feature.pushStream);
    features.staged("Record",                  OnNull::Note, feature.funcFeatures.record);
    features.staged("QuickTopology",           OnNull::Note, feature.funcFeatures.quickToPology);
    in.staged("General",                       OnNull::Note, feature.general);
    in.staged("NetWorks",                      OnNull::Note, feature.networks);
    in.staged("Pictures",                      OnNull::Note, feature.pictures);
    in.staged("ProjectFile",                   OnNull::Note, feature.projectFile);
    in.staged("File",                          OnNull::Note, feature.file);
    in.staged("DeviceModes",                   OnNull::Note, feature.deviceModes);
    in.staged("PowerCtrl",                     OnNull::Note, feature.powerCtrl);
    in.staged("Subcard",                       OnNull::Note, feature.subcard);
    in.staged("RestoreFactory",                OnNull::Note, feature.restoreFactory);
    in.staged("TemplateResource",              OnNull::Note, feature.templateResource);
    in.staged("Upgrade",                       OnNull::Note, feature.upgrade);
    in.staged("DeviceSelfTest",                OnNull::Note, feature.deviceSelfTest,     Support("1"));
    in.staged("MosaicSource",                  OnNull::Note, feature.mosaicSource);
    in.element("SoundConsole",                 OnNull::Note, feature.soundConsole);
    in.staged("Custom",                        OnNull::Skip, feature.custom,             Support("0"), Editable("1"));
    in.staged("Ptzs",                          OnNull::Note, feature.ptzs);
    in.element("Preset",                       OnNull::Fail, feature.preset,             readPreset);
    in.staged("CleanFeeds",                    OnNull::Skip, feature.cleanFeeds);
    in.staged("Audio",                         OnNull::Skip, feature.audio);
    features.staged("Tally",                   OnNull::Skip, feature.tally);
    in.staged("InternalSource",                OnNull::Skip, feature.internalSource);
}
// clang-format on

} // namespace

bool DeviceFeatureConfig::parseDeviceFeaturecfg(const QString& filePath, QString& error, s_DeviceFeature& feature) const
{
    const Report report{error, tr};
    return readDocument(filePath, DEVICE_FRAME, report, feature, below("Device", OnNull::Fail, readDevice));
}

} // namespace LCD::MainConfigImpl
