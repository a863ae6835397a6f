// What is asked of the connector catalogue, and the component's side of it.
#include "connectorconfig_impl.h"
#include "search.h"

#include <QDebug>

#include <algorithm>

namespace LCD::MainConfigImpl {
namespace {

/// The interface type that hot-plug detection and capacity modes are handed out for; a number here, not a mask.
constexpr int OUTPUT_INTERFACE = 2;
/// The capacity modes that are known, from 0 to this one.
constexpr int HIGHEST_CAPACITY_MODE = 2;

bool sameSize(const s_resolutionResolutionRatio& one, const s_resolutionResolutionRatio& other)
{
    return one.width == other.width && one.height == other.height;
}

} // namespace

// --- Searches

const s_HPD* ConnectorConfig::Impl::hpd(int type) const
{
    return firstHit(type, [](const s_ConnectorCfg& connector) {
        const auto* const entry =
            firstWhere(connector.hpds.interfaces, &s_ConnectorHPDs::s_HPDsInterface::type, OUTPUT_INTERFACE);
        return entry != nullptr ? &entry->hpd : nullptr;
    });
}

const std::vector<s_CapacityModeInInterface>* ConnectorConfig::Impl::outputCapacityModes(int type) const
{
    using Modes = const std::vector<s_CapacityModeInInterface>*;
    return firstHit(type, [](const s_ConnectorCfg& connector) -> Modes {
        if (connector.capacityMode.support != 1) return nullptr;
        const auto* const interface = firstWhere(connector.interfaces, &s_Interface::type, OUTPUT_INTERFACE);
        return interface != nullptr ? &interface->capacityModes : nullptr;
    });
}

const s_ResolutionRatios* ConnectorConfig::Impl::resolutionRatios(int capacityMode, int type, int interfaceMask) const
{
    return firstHit(type, [=](const s_ConnectorCfg& connector) -> const s_ResolutionRatios* {
        for (const s_Interface& interface : connector.interfaces) {
            if ((interfaceMask & interface.type) == 0) continue;
            if (const auto* mode = firstWhere(interface.capacityModes, &s_CapacityModeInInterface::value, capacityMode))
                return &mode->resolutionRatios;
        }
        return nullptr;
    });
}

const s_PreSetTimingInterface* ConnectorConfig::Impl::presetTiming(int type, int interfaceMask) const
{
    const auto hit = [=](const s_PreSetTimingInterface& timing) { return (timing.type & interfaceMask) != 0; };
    return firstHit(type,
                    [&](const s_ConnectorCfg& connector) { return firstWhere(connector.presetTimings, hit, true); });
}

// --- The resolutions that a connector offers

ConnectorConfig::Impl::Resolutions ConnectorConfig::Impl::findConnectorStandardResolution(int capacityMode, int type,
                                                                                          int interfaceMask,
                                                                                          Resolutions& disables) const
{
    const s_ResolutionRatios* const ratios = resolutionRatios(capacityMode, type, interfaceMask);
    if (ratios == nullptr) return {};
    disables = ratios->disables;
    if (const auto* const mode = firstWhere(resolutions.capacityModes, &s_ResoluCapacityMode::value, capacityMode))
        return mode->resolutions;
    qWarning().noquote() << "not find capacityMode:" << capacityMode;
    return {};
}

ConnectorConfig::Impl::Resolutions ConnectorConfig::Impl::findConnectorResolutions(int capacityMode, int type,
                                                                                   int interfaceMask) const
{
    Resolutions offered;
    Resolutions disabled;
    for (int mode = 0; mode <= std::min(capacityMode, HIGHEST_CAPACITY_MODE); ++mode) {
        Resolutions modeDisables;
        const Resolutions standard = findConnectorStandardResolution(mode, type, interfaceMask, modeDisables);
        // A mode that adds nothing disables nothing either.
        if (standard.empty()) continue;
        offered.insert(offered.end(), standard.begin(), standard.end());
        disabled.insert(disabled.end(), modeDisables.begin(), modeDisables.end());
    }
    // Whatever mode disables a size, it is gone from all of them.
    std::erase_if(offered, [&disabled](const s_resolutionResolutionRatio& resolution) {
        return std::any_of(disabled.begin(), disabled.end(),
                           [&](const s_resolutionResolutionRatio& entry) { return sameSize(entry, resolution); });
    });
    return offered;
}

// --- The component

ConnectorConfig::ConnectorConfig() : _impl(std::make_unique<Impl>()) {}

ConnectorConfig::~ConnectorConfig() = default;

bool ConnectorConfig::readConfig(const QString& path, QString& error) { return _impl->readConfig(path, error); }

// clang-format off
std::shared_ptr<s_ConnectorHDCP>         ConnectorConfig::findHDCPInfo(int type)               { return _impl->copyOf(type, &s_ConnectorCfg::hdcp); }
std::shared_ptr<s_ConnectorPlayer>       ConnectorConfig::findPlayerInfo(int type)             { return _impl->copyOf(type, &s_ConnectorCfg::player); }
std::shared_ptr<s_HPD>                   ConnectorConfig::findHPDInfo(int type)                { return copyOrNull(_impl->hpd(type)); }
std::shared_ptr<s_EDID>                  ConnectorConfig::findEDIDInfo(int type)               { return _impl->copyOf(type, &s_ConnectorCfg::edid); }
std::shared_ptr<s_ConnectorDynamicRange> ConnectorConfig::findDynamicRangeInfo(int type) const { return _impl->copyOf(type, &s_ConnectorCfg::dynamicRange); }
std::shared_ptr<s_ConnectorColorDepths>  ConnectorConfig::findColorDepthsInfo(int type)        { return _impl->copyOf(type, &s_ConnectorCfg::colorDepths); }
std::shared_ptr<s_SupportInfo>           ConnectorConfig::findHDRInfo(int type)                { return _impl->copyOf(type, &s_ConnectorCfg::hdr); }
std::shared_ptr<s_ConnectorColorSpaces>  ConnectorConfig::findColorSpacesInfo(int type) const  { return _impl->copyOf(type, &s_ConnectorCfg::colorSpaces); }
// clang-format on

std::shared_ptr<std::vector<s_CapacityModeInInterface>> ConnectorConfig::findResoluCapacityMode(int type) const
{
    return copyOrNull(_impl->outputCapacityModes(type));
}

std::shared_ptr<s_ResolutionRatios> ConnectorConfig::findConnectorResolutionRatios(int capacityMode, int type,
                                                                                   int interfaceMask)
{
    return copyOrNull(_impl->resolutionRatios(capacityMode, type, interfaceMask));
}

std::shared_ptr<s_ResolutionRatio> ConnectorConfig::findConnectorDefaultResolution(int capacityMode, int type,
                                                                                   int interfaceMask)
{
    const s_ResolutionRatios* const ratios = _impl->resolutionRatios(capacityMode, type, interfaceMask);
    return ratios != nullptr ? newCopy(ratios->defaultResolution) : nullptr;
}

std::string ConnectorConfig::findConnectorTypeName(int type) const
{
    const auto name = _impl->copyOf(type, &s_ConnectorCfg::name);
    return name ? name->zhCN : std::string();
}

std::vector<s_resolutionResolutionRatio> ConnectorConfig::findConnectorResolutions(int capacityMode, int type,
                                                                                   int interfaceMask) const
{
    return _impl->findConnectorResolutions(capacityMode, type, interfaceMask);
}

s_PresetRefresh ConnectorConfig::findConnectorRates(int type, int interfaceMask)
{
    const s_PreSetTimingInterface* const timing = _impl->presetTiming(type, interfaceMask);
    if (timing == nullptr) return {};
    return {timing->refresh, timing->coefficient, timing->refreshValues};
}

s_PreSetTimingInterface ConnectorConfig::findConnectorTiming(int type, int interfaceMask)
{
    const s_PreSetTimingInterface* const timing = _impl->presetTiming(type, interfaceMask);
    return timing != nullptr ? *timing : s_PreSetTimingInterface();
}

} // namespace LCD::MainConfigImpl
