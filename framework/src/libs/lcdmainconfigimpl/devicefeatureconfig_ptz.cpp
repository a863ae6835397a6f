// The camera control of a device, and its clean-feed outputs.
#include "devicefeatureconfig_readers.h"

namespace LCD::MainConfigImpl::featurefile {

using namespace LCD::MainConfig;
using namespace reading;

namespace {

// clang-format off
constexpr auto oneManufacturer = [](const Reader& in, std::vector<int>& manufacturers) {
    in.append(manufacturers, entry("Value", "0"));
};

constexpr auto protocol = cells(
    cell("ProtocolName", &s_PtzProtocol::protocolName),
    cell("Port",         &s_PtzProtocol::port, "0"),
    child("Manufacturer", OnNull::Skip, &s_PtzProtocol::manufacturers, oneManufacturer));

// "Vaue" is spelled so.
constexpr auto adjustDetail = cells(
    cell("Mode", &s_AdjustDetail::mode, "0"), Min("0"), Max("0"), Step("0"), Default("0"),
    enums(Walk::FirstNamed, "0"),
    list(Walk::FirstNamed, "Vaue", &s_AdjustDetail::values,
         cell("Value",       &s_AdjustDetail::s_ValueInfo::value,       "0"),
         cell("Numerator",   &s_AdjustDetail::s_ValueInfo::numerator,   "0"),
         cell("Denominator", &s_AdjustDetail::s_ValueInfo::denominator, "0")));

constexpr auto exclusion = cells(
    cell("AdjustDetail", &s_MutualExclusion::adjustDetail, "0"),
    enums(Walk::FirstNamed, "0"));

constexpr auto modes = cells(flags, below("SupportMode", OnNull::Skip, enums(Walk::FirstNamed, "0")));

void readAi(const Reader& in, s_Ptzs& ptzs)
{
    in.element("SupportMode",      OnNull::Skip, ptzs.aiSupportMode, enumList(Walk::FirstNamed, "0"));
    in.element("SupportFirm",      OnNull::Skip, ptzs.aiSupportFirm, enumList(Walk::FirstNamed, "0"));
    // "MtualExclusion" is spelled so.
    in.element("MutualExclusions", OnNull::Skip, ptzs,
               list(Walk::FirstNamed, "MtualExclusion", &s_Ptzs::mutualExclusions, exclusion));
}

} // namespace

void readPtzs(const Reader& in, s_Ptzs& ptzs)
{
    in.read(ptzs, flags);
    in.element("PtzProtocols",    OnNull::Fail, ptzs,
               list(Walk::FirstNamed, "PtzProtocol", &s_Ptzs::ptzProtocols, protocol));
    in.element("AdjustFunc",      OnNull::Fail, ptzs.adjustFunc, flags, Value("0"), DataType("2"),
               list(Walk::FirstNamed, "AdjustDetail", &s_Ptzs::s_AdjustFunc::details, adjustDetail));
    in.element("AI",              OnNull::Skip, ptzs, readAi);
    in.element("WhiteBalance",    OnNull::Skip, ptzs,
               child("Auto",     OnNull::Skip, &s_Ptzs::whiteBalanceAuto,     modes),
               child("Manual",   OnNull::Skip, &s_Ptzs::whiteBalanceManual,   modes),
               child("Aperture", OnNull::Skip, &s_Ptzs::whiteBalanceAperture, modes));
    in.element("ExposureControl", OnNull::Skip, ptzs,
               child("Auto",     OnNull::Skip, &s_Ptzs::exposureAuto,     modes),
               child("Manual",   OnNull::Skip, &s_Ptzs::exposureManual,   modes),
               child("Shutter",  OnNull::Skip, &s_Ptzs::exposureShutter,  modes),
               child("Aperture", OnNull::Skip, &s_Ptzs::exposureAperture, modes));
}

void readCleanFeeds(const Reader& in, s_CleanFeeds& cleanFeeds)
{
    in.read(cleanFeeds, flags);
    in.list(Walk::Named, "CleanFeed", cleanFeeds.cleanFeeds,
            cell("Name", &s_CleanFeed::name), flags,
            child("SupportFeed", OnNull::Skip, &s_CleanFeed::supportFeed, enumList(Walk::Named, "0")),
            child("DefaultFeed", OnNull::Skip, &s_CleanFeed::defaultFeed, enumList(Walk::Named, "0")));
}
// clang-format on

} // namespace LCD::MainConfigImpl::featurefile
