// The connector catalogue as its users see it: load the connector files and the resolution file once, then ask. The
// order of the operations is a contract with the host and must not change.
#ifndef LCDMAINCONFIG_ICONNECTORCONFIG_H
#define LCDMAINCONFIG_ICONNECTORCONFIG_H

#include "lcdmainconfig/connector.h"

#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace LCD::MainConfig {

/// The catalogue of connector types. Several records may share a type; each query says which of them it looks at. They
/// are searched in load order, within a file in file order. Every result is a copy that the caller owns. Before the
/// load the catalogue is empty. An `interfaceMask` hits an interface type with which it has a bit in common; 0 hits
/// nothing.
class IConnectorConfig {
public:
    virtual ~IConnectorConfig() = default;

    /// Loads the resolution file of `path` and the files of the connector types that the cards use; the cards must have
    /// been read before. A missing directory is created. Returns false when the load had to stop; what was read before
    /// that stays. `error` holds the last problem met and may be set although the result is true; without any card the
    /// result is false with `error` untouched, and only a log line tells why. A second call appends connectors and
    /// replaces the standard resolutions.
    virtual bool readConfig(const QString& path, QString& error) = 0;

    /// Copy protection. First connector of the type only; null when there is none.
    virtual std::shared_ptr<s_ConnectorHDCP> findHDCPInfo(int type) = 0;

    /// The built-in player. First connector of the type only; null when there is none.
    virtual std::shared_ptr<s_ConnectorPlayer> findPlayerInfo(int type) = 0;

    /// Hot-plug detection of the interface of type exactly 2. First hit over all connectors of the type; null when
    /// there is none.
    virtual std::shared_ptr<s_HPD> findHPDInfo(int type) = 0;

    /// EDID. First connector of the type only; null when there is none.
    virtual std::shared_ptr<s_EDID> findEDIDInfo(int type) = 0;

    /// Dynamic range. First connector of the type only; null when there is none.
    virtual std::shared_ptr<s_ConnectorDynamicRange> findDynamicRangeInfo(int type) const = 0;

    /// Colour depths. First connector of the type only; null when there is none.
    virtual std::shared_ptr<s_ConnectorColorDepths> findColorDepthsInfo(int type) = 0;

    /// High dynamic range; no file fills it, so a known type gives the defaults. First connector of the type only; null
    /// when there is none.
    virtual std::shared_ptr<s_SupportInfo> findHDRInfo(int type) = 0;

    /// The capacity modes of the interface of type exactly 2. First hit over all connectors of the type whose capacity
    /// mode has a support of 1; null when there is none.
    virtual std::shared_ptr<std::vector<s_CapacityModeInInterface>> findResoluCapacityMode(int type) const = 0;

    /// Colour spaces. First connector of the type only; null when there is none.
    virtual std::shared_ptr<s_ConnectorColorSpaces> findColorSpacesInfo(int type) const = 0;

    /// The resolutions of a capacity mode, the disabled ones included. First hit over all connectors of the type and
    /// all their interfaces that the mask hits; null when there is none.
    virtual std::shared_ptr<s_ResolutionRatios> findConnectorResolutionRatios(int capacityMode, int type,
                                                                              int interfaceMask) = 0;

    /// The default resolution of a capacity mode, found as `findConnectorResolutionRatios` finds it; null when there is
    /// none.
    virtual std::shared_ptr<s_ResolutionRatio> findConnectorDefaultResolution(int capacityMode, int type,
                                                                              int interfaceMask) = 0;

    /// The Chinese name, UTF-8, whatever the language of the panel. First connector of the type only; empty when there
    /// is none.
    virtual std::string findConnectorTypeName(int type) const = 0;

    /// The resolutions that a connector offers: the standard ones of every capacity mode from 0 up to `capacityMode`, 2
    /// at most, less those that equal in width and height one that any of these modes disables. Duplicates stay. A mode
    /// that the connector or the resolution file does not know adds and disables nothing. Empty for a negative mode and
    /// for an unknown type.
    virtual std::vector<s_resolutionResolutionRatio> findConnectorResolutions(int capacityMode, int type,
                                                                              int interfaceMask) const = 0;

    /// The refresh rates of the preset timing that the mask hits. First hit over all connectors of the type; a default
    /// record when there is none.
    virtual s_PresetRefresh findConnectorRates(int type, int interfaceMask) = 0;

    /// The whole preset timing that the mask hits. First hit over all connectors of the type; a default record when
    /// there is none.
    virtual s_PreSetTimingInterface findConnectorTiming(int type, int interfaceMask) = 0;
};

} // namespace LCD::MainConfig

#endif
