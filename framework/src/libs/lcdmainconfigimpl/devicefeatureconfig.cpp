// The walk over a feature file: which subtree is looked up when, and what its absence costs. The readers of the
// subtrees stand in the files beside this one.
#include "devicefeatureconfig.h"

#include "devicefeatureconfig_readers.h"
#include "once.h"
#include "reading/document.h"

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;
using namespace reading;
using namespace featurefile;

std::atomic<DeviceFeatureConfig*> DeviceFeatureConfig::_pDeviceFeatureCfg{nullptr};
std::mutex DeviceFeatureConfig::_deviceFeatCfgMutex;

DeviceFeatureConfig* DeviceFeatureConfig::instance()
{
    return createOnce(_pDeviceFeatureCfg, _deviceFeatCfgMutex, [] { return new DeviceFeatureConfig; });
}

namespace {

// clang-format off
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

/// The media pool replaces the record's in every case, also when it is absent or ends early, which is meant.
s_MediaPool mediaPoolOf(const Reader& features)
{
    s_MediaPool mediaPool;
    features.apart("Media", OnNull::Note, mediaPool, readMediaPool);
    return mediaPool;
}

/// The whole file, in the order in which its elements are looked up; of several messages the last one stays.
void readDevice(const Reader& in, s_DeviceFeature& feature)
{
    s_FuncFeatures& functions = feature.funcFeatures;
    readIdentity(in, feature);
    const Reader features = in.required("Features");
    in.staged("HDR",                         OnNull::Fail, feature.hdr,                     flags);
    in.staged("LayerAlphaFunction",          OnNull::Skip, feature.layerAlphaFunction,      flags);
    features.staged("Screen",                OnNull::Note, functions.screen,                readScreen);
    features.staged("Genlock",               OnNull::Note, functions.genlock,               readGenlock);
    functions.mediaPool = mediaPoolOf(features);
    features.staged("HDCP",                  OnNull::Note, functions.hdcp,                  flags);
    features.staged("DynamicRangConversion", OnNull::Note, functions.dynamicRangConversion, readDynamicRangConversion);
    features.staged("DynamicRang",           OnNull::Note, functions.dynamicRang,           readDynamicRang);
    features.staged("InterfaceMapping",      OnNull::Note, functions.interfaceMapping,      readInterfaceMapping);
    features.staged("CutoutPos",             OnNull::Note, functions.cutoutPos,             readCutoutPos);
    features.staged("Group",                 OnNull::Note, functions.group,                 readGroup);
    features.staged("Swap",                  OnNull::Note, functions.swap,                  readSwap);
    features.staged("Language",              OnNull::Note, functions.language,              readLanguage);
    features.staged("SwitchEffect",          OnNull::Note, functions.switchEffect,          readSwitchEffect);
    features.staged("PushStream",            OnNull::Note, feature.pushStream,              readPushStream);
    features.staged("Record",                OnNull::Note, functions.record,                readRecord);
    features.staged("QuickTopology",         OnNull::Note, functions.quickToPology,         readQuickTopology);
    in.staged("General",                     OnNull::Note, feature.general,                 readGeneral);
    in.staged("NetWorks",                    OnNull::Note, feature.networks,                readNetworks);
    in.staged("Pictures",                    OnNull::Note, feature.pictures,                readPictures);
    in.staged("ProjectFile",                 OnNull::Note, feature.projectFile,             readProjectFile);
    in.staged("File",                        OnNull::Note, feature.file,                    readFile);
    in.staged("DeviceModes",                 OnNull::Note, feature.deviceModes,             readDeviceModes);
    in.staged("PowerCtrl",                   OnNull::Note, feature.powerCtrl,               readPowerCtrl);
    in.staged("Subcard",                     OnNull::Note, feature.subcard,                 readSubcard);
    in.staged("RestoreFactory",              OnNull::Note, feature.restoreFactory,          readRestoreFactory);
    in.staged("TemplateResource",            OnNull::Note, feature.templateResource,        readTemplateResource);
    in.staged("Upgrade",                     OnNull::Note, feature.upgrade,                 readUpgrade);
    in.staged("DeviceSelfTest",              OnNull::Note, feature.deviceSelfTest,          Support("1"));
    in.staged("MosaicSource",                OnNull::Note, feature.mosaicSource,            readMosaicSource);
    // Not staged, and a gap in an audio mode ends the file, which is meant.
    in.element("SoundConsole",               OnNull::Note, feature.soundConsole,            readSoundConsole);
    in.staged("Custom",                      OnNull::Skip, feature.custom,                  Support("0"), Editable("1"));
    in.staged("Ptzs",                        OnNull::Note, feature.ptzs,                    readPtzs);
    in.element("Preset",                     OnNull::Fail, feature.preset,                  whole(readPreset));
    in.staged("CleanFeeds",                  OnNull::Skip, feature.cleanFeeds,              readCleanFeeds);
    in.staged("Audio",                       OnNull::Skip, feature.audio,                   readAudio);
    features.staged("Tally",                 OnNull::Skip, feature.tally,                   readTally);
    in.staged("InternalSource",              OnNull::Skip, feature.internalSource,          readInternalSource);
}
// clang-format on

} // namespace

bool DeviceFeatureConfig::parseDeviceFeaturecfg(const QString& filePath, QString& errorMessage,
                                                s_DeviceFeature& feature) const
{
    const Report report{errorMessage, tr};
    return readDocument(filePath, DEVICE_FRAME, report, feature, below("Device", OnNull::Fail, readDevice));
}

bool DeviceFeatureConfig::presetConfig(const QDomElement& device, QString& errorMessage, s_Preset& preset) const
{
    return readElement(device, Report{errorMessage, tr}, preset, below("Preset", OnNull::Fail, readPreset));
}

bool DeviceFeatureConfig::mediaPoolCfg(const QDomElement& features, QString& errorMessage, s_MediaPool& mediaPool) const
{
    return readElement(features, Report{errorMessage, tr}, mediaPool, below("Media", OnNull::Fail, readMediaPool));
}

} // namespace LCD::MainConfigImpl
