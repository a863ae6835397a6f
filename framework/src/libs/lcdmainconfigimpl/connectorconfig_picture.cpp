// Reads what a connector can do to its picture: the built-in player, image quality and cropping.
#include "connectorconfig_readers.h"

namespace LCD::MainConfigImpl::connectorreading {
namespace {

using s_RGB = s_InterfaceInImageQuality::s_RGB;

// clang-format off
constexpr auto channel    = cells(Support, Max, Min, DataType, Value);
constexpr auto playerList = cells(Support, Editable, Value, enums(Walk::Any));
constexpr auto count      = cells(Support, Editable, DataType, Value, cell("RangeType", [](auto& record) -> decltype((record.rangeType)) { return record.rangeType; }));

void readChannels(const Reader& in, s_RGB& channels)
{
    in.read(channels, Support);
    in.element("R", OnNull::Fail, channels.r, channel);
    in.element("G", OnNull::Fail, channels.g, channel);
    in.element("B", OnNull::Fail, channels.b, channel);
}

void readQuality(const Reader& in, s_InterfaceInImageQuality& quality)
{
    in.read(quality, Type);
    in.element("Contrast",   OnNull::Fail, quality.contrast,   readChannels);
    in.element("Brightness", OnNull::Fail, quality.brightness, readChannels);
    in.element("Hue",        OnNull::Fail, quality.hue,        colour);
    in.element("Saturation", OnNull::Fail, quality.saturation, colour);
    in.element("Gamma",      OnNull::Fail, quality.gamma,      colour, cell("Coefficient", &s_RangeValue::coefficient, "", ThroughFloat{}));
}

} // namespace

void readPlayer(const Reader& in, s_ConnectorPlayer& player)
{
    in.read(player, flags);
    in.element("LoopType",        OnNull::FailAndLog, player.loopType,             playerList);
    in.element("PlayFileType",    OnNull::FailAndLog, player.playFileType,         playerList);
    in.element("AutoPlayEnable",  OnNull::FailAndLog, player.autoPlayEnable,       playerList);
    // Read twice, which is meant.
    in.element("AutoPlayEnable",  OnNull::FailAndLog, player.autoPlayEnableSecond, playerList);
    in.element("PicturePlayTime", OnNull::FailAndLog, player.picturePlayTime,      flags, Value,    Min, Max, Step);
    in.element("EffectTime",      OnNull::FailAndLog, player.effectTime,           flags, DataType, Min, Max, Step);
    in.element("EffectType",      OnNull::FailAndLog, player.effectType,           playerList);
    in.element("FilePath",        OnNull::FailAndLog, player.filePath,             flags, DataType);
    in.element("DiskType",        OnNull::FailAndLog, player.diskType,             playerList);
}

void readImageQuality(const Reader& in, s_ConnectorImageQuality& quality)
{
    in.read(quality, flags);
    in.stagedList(Walk::Any, "Interface", quality.interfaces, readQuality);
}

void readCrop(const Reader& in, s_ConnectorCrop& crop)
{
    in.read(crop, flags);
    in.element("Enable",      OnNull::Fail, crop.enable,      valueList);
    in.element("XRatio",      OnNull::Fail, crop.xRatio,      count, Coefficient);
    in.element("YRatio",      OnNull::Fail, crop.yRatio,      count, Coefficient);
    in.element("WidthRatio",  OnNull::Fail, crop.widthRatio,  count, Coefficient);
    in.element("HeightRatio", OnNull::Fail, crop.heightRatio, count, Coefficient);
    in.element("MaxCount",    OnNull::Fail, crop.maxCount,    count);
}
// clang-format on

} // namespace LCD::MainConfigImpl::connectorreading
