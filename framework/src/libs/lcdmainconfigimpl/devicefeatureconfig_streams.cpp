// What a device sends, keeps and makes itself: tally protocols, internal sources, push stream and recording.
#include "devicefeatureconfig_readers.h"

namespace LCD::MainConfigImpl::featurefile {

using namespace LCD::MainConfig;
using namespace reading;

namespace {

// clang-format off
constexpr auto number   = cells(flags, Value("0"));
constexpr auto display  = cells(number, enums(Walk::Named, "0"));
constexpr auto business = cells(number, list(Walk::Named, "Enum", &s_Tally::s_Business::businessEnums, Value("0"), Default("0")));

void readTslUMDV5(const Reader& in, s_Tally::s_TslUMDV5& tsl)
{
    in.read(tsl, number);
    in.element("BusinessStatus", OnNull::Skip, tsl.businessStatus, flags);
    in.element("BusinessStatus", OnNull::Skip, tsl,
               child("PGM", OnNull::Skip, &s_Tally::s_TslUMDV5::pgm, business),
               child("PVW", OnNull::Skip, &s_Tally::s_TslUMDV5::pvw, business));
    in.element("LH",             OnNull::Skip, tsl.lh,             display);
    in.element("RH",             OnNull::Skip, tsl.rh,             display);
    in.element("Text",           OnNull::Skip, tsl.text,           display);
    in.element("DLE",            OnNull::Skip, tsl.dle,            flags, Default("0"));
}

void readProtocol(const Reader& in, s_Tally::s_Protocol& protocol)
{
    in.read(protocol, flags, Default("0"));
    in.element("Naya",         OnNull::Skip, protocol.naya,         number);
    in.element("TslUMDV3",     OnNull::Skip, protocol.tslUMDV3,     number);
    in.element("TslUMDV5",     OnNull::Skip, protocol.tslUMDV5,     readTslUMDV5);
    // "emum" is spelled so.
    in.element("SendInterval", OnNull::Skip, protocol.sendInterval, flags, Default("0"), Step("0"), Min("0"), Max("0"), enums(Walk::Named, "0", "emum"));
}

} // namespace

void readTally(const Reader& in, s_Tally& tally)
{
    in.read(tally, flags);
    in.element("SourceType",           OnNull::Skip, tally.sourceType,           setting);
    in.element("SceneType",            OnNull::Skip, tally.sceneType,            setting);
    in.element("ScreenType",           OnNull::Skip, tally.screenType,           setting);
    in.element("SameSourceLimitCount", OnNull::Skip, tally.sameSourceLimitCount, number);
    // "Porotocol" is spelled so.
    in.element("Porotocol",            OnNull::Skip, tally.protocol,             readProtocol);
}

void readInternalSource(const Reader& in, s_InternalSource& source)
{
    in.read(source, flags);
    in.list(Walk::Named, "InternalSourceDetail", source.details,
            cell("ConnectorId", &s_InternalSourceDetail::connectorId, "0"),
            cell("SlotId",      &s_InternalSourceDetail::slotId,      "0"),
            cell("TestMode",    &s_InternalSourceDetail::testMode,    "0"),
            cell("Mode",        &s_InternalSourceDetail::mode,        "0"),
            cell("R",           &s_InternalSourceDetail::r,           "0"),
            cell("G",           &s_InternalSourceDetail::g,           "0"),
            cell("B",           &s_InternalSourceDetail::b,           "0"),
            cell("Brightness",  &s_InternalSourceDetail::brightness,  "0"),
            cell("MinSpacing",  &s_InternalSourceDetail::minSpacing,  "0"),
            cell("MaxSpacing",  &s_InternalSourceDetail::maxSpacing,  "0"));
}

namespace {

constexpr auto resolutions = list(
    Walk::FirstNamed, "ResolutionRatio", &s_PushStreamSetting::s_TimingPreset::resolutionRatios,
    Width, Height, cell("RefreshRate", &s_ResolutioRatio::refreshRate));

constexpr auto qualities = list(
    Walk::FirstNamed, "Quality", &s_PushStreamSetting::s_EncodeQuality::qualities,
    Value, cell("StreamBitRate", &s_Quality::streamBitRate));

constexpr auto storagePaths = list(
    Walk::FirstNamed, "Path", &s_RecodeSettingCfg::s_Paths::storagePaths,
    Type, cell("Path", &s_RecodeStoragePathCfg::path));

} // namespace

void readPushStream(const Reader& in, s_PushStreamSetting& pushStream)
{
    in.read(pushStream, flags);
    // The message for an absent path names the element after it, which is meant.
    if (!in.has("PushStreamPath")) in.fail("TimingPreset");
    in.element("PushStreamPath", OnNull::Fail, pushStream.pushStreamPath, place);
    in.element("TimingPreset",   OnNull::Fail, pushStream.timingPreset,   flags, resolutions);
    in.element("Angle",          OnNull::Fail, pushStream.angle,          flags, enums(Walk::FirstNamed));
    in.element("EncodeFormat",   OnNull::Fail, pushStream.encodeFormat,   flags, enums(Walk::FirstNamed));
    in.element("StreamBitRate",  OnNull::Fail, pushStream.streamBitRate,  flags, Min("1"), Max("1"));
    in.element("EncodeQuality",  OnNull::Fail, pushStream.encodeQuality,  flags, Value("1"), qualities);
}

void readRecord(const Reader& in, s_RecodeSettingCfg& record)
{
    in.read(record, flags);
    in.element("RecordPath",          OnNull::Fail, record.recordPath,          place);
    in.element("Paths",               OnNull::Fail, record.paths,               flags, storagePaths);
    in.element("WarnCapacity",        OnNull::Fail, record.warnCapacity,        entry("Value", "300"));
    in.element("CloseCapacity",       OnNull::Fail, record.closeCapacity,       entry("Value", "10"));
    in.element("DefaultTimeDuration", OnNull::Fail, record.defaultTimeDuration, entry("Value", "40"));
    in.element("MaxCount",            OnNull::Fail, record.maxCount,            entry("Value", "2"));
    in.element("TimeDuration",        OnNull::Fail, record,
               cell("Value", &s_RecodeSettingCfg::timeDuration,    "1"),
               cell("Min",   &s_RecodeSettingCfg::timeDurationMin, "2"),
               cell("Max",   &s_RecodeSettingCfg::timeDurationMax, "1440"));
}
// clang-format on

} // namespace LCD::MainConfigImpl::featurefile
