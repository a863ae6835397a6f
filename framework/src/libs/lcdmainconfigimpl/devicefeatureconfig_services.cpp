// The housekeeping of a device: presets, media pool, network port, files, cards, power, reset, template resources and
// upgrade.
#include "devicefeatureconfig_readers.h"

namespace LCD::MainConfigImpl::featurefile {

using namespace LCD::MainConfig;
using namespace reading;

// clang-format off
void readPreset(const Reader& in, s_Preset& preset)
{
    in.read(preset, Support("0"), Editable("0"));
    in.element("PresetCount", OnNull::Fail, preset, Min("0"), Max("0"));
}

void readMediaPool(const Reader& in, s_MediaPool& mediaPool)
{
    in.read(mediaPool, Support("1"), Editable("0"));
    // An absent block is read as one without attributes, and no block takes its list from the file: this is meant.
    in.element("Audio",  OnNull::ReadDefaults, mediaPool.audio,  Support("1"), Editable("0"));
    // A picture set that is there counts as the bad one, which is meant.
    if (in.has("PicSet")) in.fail("PicSet");
    in.element("PicSet", OnNull::ReadDefaults, mediaPool.picSet, Support("1"), Editable("0"));
}

namespace {

constexpr auto address = cells(flags, DataType("0"), Value("0"));

void readNetwork(const Reader& in, s_Network& network)
{
    in.read(network, flags, cell("Index", &s_Network::index, "1"));
    in.element("Dhcp",    OnNull::Fail, network.dhcp,       flags, Value("0"), DataType("0"), enums(Walk::FirstNamed));
    in.element("Ip",      OnNull::Fail, network.ip,         address);
    // The mask repeats the address; "SubNetMask" itself only has to be there, which is meant.
    in.demand("SubNetMask");
    in.element("Ip",      OnNull::Fail, network.subNetMask, address);
    in.element("Gateway", OnNull::Fail, network.gateway,    address);
}

} // namespace

void readNetworks(const Reader& in, s_DeviceFeature::s_Networks& networks)
{
    in.read(networks, flags);
    in.element("NetWork", OnNull::Fail, networks.network, readNetwork);
}

void readPictures(const Reader& in, s_DeviceFeature::s_Pictures& pictures)
{
    in.read(pictures, flags);
    in.element("PicturePath", OnNull::Fail, pictures.picturePath, place);
}

namespace {

void readContain(const Reader& in, s_Contain& contain)
{
    constexpr auto content = cells(flags, Value("1"), DataType("0"), enums(Walk::FirstNamed));
    in.read(contain, flags);
    in.element("Other",  OnNull::Fail, contain.other,  content);
    in.element("BKG",    OnNull::Fail, contain.bkg,    content);
    in.element("Logo",   OnNull::Fail, contain.logo,   content);
    // "Editable" is 2 by default here alone, which is meant.
    in.element("Preset", OnNull::Fail, contain.preset, Support("1"), Editable("2"), Value("1"), DataType("0"), enums(Walk::FirstNamed));
}

} // namespace

void readProjectFile(const Reader& in, s_ProjectFile& projectFile)
{
    s_ProjectFile all;
    in.read(all, flags);
    in.element("ProjectPath", OnNull::Fail, all.projectPath, place);
    in.element("FileId",      OnNull::Fail, all.fileId,      Support("0"), Editable("1"), DataType("0"), Value("0"), Min("0"), Max("0"));
    in.element("FileType",    OnNull::Fail, all.fileType,    flags, Value("0"), DataType("0"), enums(Walk::FirstNamed));
    const Reader fileGeneral = in.required("FileGeneral");
    fileGeneral.read(all.fileGeneral, Support("0"), Editable("1"));
    fileGeneral.element("Name", OnNull::Fail, all.name,      flags, DataType("0"), Min("0"), Max("255"));
    in.element("Contain",     OnNull::Fail, all.contain,     readContain);
    if (in.failed()) return;
    // The rest has to be there but is not kept, which is meant.
    projectFile.projectPath = std::move(all.projectPath);
    projectFile.contain = std::move(all.contain);
}

void readFile(const Reader& in, s_DeviceFeature::s_File& file)
{
    in.read(file, flags);
    // "Value" is read twice, the second time as the data type, which is meant.
    in.list(Walk::Any, "", file.ranges, Support, Editable, Value, cell("Value", &s_RangeValue::dataType), Min, Max);
}

void readDeviceModes(const Reader& in, s_EnumField& deviceModes)
{
    in.read(deviceModes, flags, Value("1"), DataType("0"), enums(Walk::FirstNamed));
}

void readPowerCtrl(const Reader& in, s_DeviceFeature::s_TypeChoice& powerCtrl)
{
    in.read(powerCtrl, flags);
    in.element("Type", OnNull::Fail, powerCtrl.type, flags, DataType("0"), Value("0"), enums(Walk::Any));
}

namespace {

constexpr auto choice = cells(flags, Value("1"), DataType("1"), enums(Walk::Any));

} // namespace

void readSubcard(const Reader& in, s_DeviceFeatureSubcard& subcard)
{
    in.read(subcard, flags);
    in.element("CardType",  OnNull::Fail, subcard.cardType,  flags, DataType("0"), Value("0"), enums(Walk::Any));
    in.element("Connector", OnNull::Fail, subcard.connector, flags,
               child("Type",         OnNull::Fail, &s_DeviceFeatureConnector::type,         choice),
               child("WorkMode",     OnNull::Fail, &s_DeviceFeatureConnector::workMode,     choice),
               child("CapacityMode", OnNull::Fail, &s_DeviceFeatureConnector::capacityMode, choice));
}

void readRestoreFactory(const Reader& in, s_DeviceFeature::s_TypeChoice& restoreFactory)
{
    in.read(restoreFactory, flags);
    in.element("Type", OnNull::Fail, restoreFactory.type, choice);
}

namespace {

/// A target path goes to the first of these whose word it contains.
struct Place {
    const char* word;
    s_Path s_TemplateResourceInfo::* path;
};
constexpr Place PLACES[] = {
    {"stream",  &s_TemplateResourceInfo::stream},
    {"camera",  &s_TemplateResourceInfo::camera},
    {"record",  &s_TemplateResourceInfo::record},
    {"project", &s_TemplateResourceInfo::project},
    {"media",   &s_TemplateResourceInfo::media},
    {"logs",    &s_TemplateResourceInfo::logs},
};

/// The type of a resource that is a storage place; the others are of no use here.
constexpr int STORAGE_PLACE = 2;

void readResource(const Reader& in, s_TemplateResourceInfo& places)
{
    int type = 0;
    in.read(type, entry("Type"));
    if (type != STORAGE_PLACE) return;
    const QString target = in.text("TargetPath");
    for (const Place& candidate : PLACES)
        if (target.contains(QLatin1String(candidate.word))) {
            (places.*candidate.path).relativePath = target.toStdString();
            return;
        }
}

} // namespace

void readTemplateResource(const Reader& in, s_TemplateResourceInfo& places)
{
    in.read(places, flags);
    in.each(Walk::Any, "", [&places](const Reader& resource) { readResource(resource, places); });
}

void readUpgrade(const Reader& in, s_Upgrade& upgrade)
{
    in.read(upgrade, flags);
    in.element("Type",       OnNull::Fail, upgrade.type,       choice);
    in.element("Reboot",     OnNull::Fail, upgrade.reboot,     choice);
    in.element("DeleteFile", OnNull::Fail, upgrade.deleteFile, choice);
    in.element("Cards",      OnNull::Fail, upgrade.cards,      flags, child("Type", OnNull::Fail, &s_Upgrade::s_Cards::type, choice));
}
// clang-format on

} // namespace LCD::MainConfigImpl::featurefile
