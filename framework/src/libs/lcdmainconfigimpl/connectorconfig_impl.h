// The connector catalogue behind its component: what was loaded, how it is loaded (connectorconfig.cpp) and what is
// asked of it (connectorconfig_queries.cpp).
#ifndef LCDMAINCONFIGIMPL_CONNECTORCONFIG_IMPL_H
#define LCDMAINCONFIGIMPL_CONNECTORCONFIG_IMPL_H

#include "connectorconfig.h"

#include <QDomElement>
#include <QLatin1String>

#include <type_traits>

namespace LCD::MainConfigImpl {

class ConnectorConfig::Impl {
public:
    using Resolutions = std::vector<s_resolutionResolutionRatio>;

    s_DCSResolution resolutions;
    std::vector<s_DCSConnector> connectors;

    bool readConfig(const QString& path, QString& error);
    /// Reads one connector into a fresh record. False when the connector is to be dropped.
    bool readConfigConnector(const QDomElement& element, QString& error, s_ConnectorCfg& out) const;
    /// Replaces the whole list by what the element holds. False, with `out` left alone, for a null element.
    bool readConfigResolution(const QDomElement& element, s_DCSResolution& out) const;
    /// Reads the child `tag` of `parent`; "Step" and "Coefficient" are not read. False, with `out` left alone, when it
    /// is absent. This and getRGB are the forms of the rows' shapes for a single child, for callers outside the rows.
    bool getAttribute(s_RangeValue& out, const QDomElement& parent, const QLatin1String& tag, QString& error) const;
    /// The same for colour settings. It reads in another order, which has no outward effect.
    bool getRGB(s_RangeValue& out, const QDomElement& parent, const QLatin1String& tag, QString& error) const;

    /// A copy of a field of the first connector of the type; null when there is none.
    template <class Field> std::shared_ptr<Field> copyOf(int type, Field s_ConnectorCfg::*field) const
    {
        const s_ConnectorCfg* const connector = firstHit(type, [](const s_ConnectorCfg& any) { return &any; });
        return connector != nullptr ? std::make_shared<Field>(connector->*field) : nullptr;
    }

    const s_HPD* hpd(int type) const;
    const std::vector<s_CapacityModeInInterface>* outputCapacityModes(int type) const;
    const s_ResolutionRatios* resolutionRatios(int capacityMode, int type, int interfaceMask) const;
    const s_PreSetTimingInterface* presetTiming(int type, int interfaceMask) const;

    /// The standard resolutions of one capacity mode, as far as the connector knows that mode. `disables` is set to
    /// what the connector disables in it, and left as it was when the connector does not know it.
    Resolutions findConnectorStandardResolution(int capacityMode, int type, int interfaceMask,
                                                Resolutions& disables) const;
    Resolutions findConnectorResolutions(int capacityMode, int type, int interfaceMask) const;

private:
    bool readFile(const QString& filePath, QString& error);

    /// The first thing that `look`, which gives a pointer, finds in any connector of the type; null when nothing.
    template <class Look>
    auto firstHit(int type, const Look& look) const -> std::invoke_result_t<Look, const s_ConnectorCfg&>
    {
        for (const s_DCSConnector& file : connectors)
            for (const s_ConnectorCfg& connector : file.configs)
                if (connector.type == type)
                    if (const auto hit = look(connector)) return hit;
        return nullptr;
    }
};

} // namespace LCD::MainConfigImpl

#endif
