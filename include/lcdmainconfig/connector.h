// The catalogue of connector types: one record per type with all that its connector file tells. The subtrees have
// headers of their own, included here.
#ifndef LCDMAINCONFIG_CONNECTOR_H
#define LCDMAINCONFIG_CONNECTOR_H

#include "lcdmainconfig/common.h"
#include "lcdmainconfig/connector_picture.h"
#include "lcdmainconfig/connector_resolution.h"
#include "lcdmainconfig/connector_signal.h"
#include "lcdmainconfig/connector_timing.h"

#include <string>
#include <vector>

namespace LCD::MainConfig {

/// One connector type. Connector file, child of Connectors.
struct s_ConnectorCfg {
    int type = 0;     ///< Connector type, as the cards' connectors name it.
    std::string icon; ///< UTF-8.
    s_Name name;
    s_ShortName shortName;
    int signalType = 0; ///< Attribute "Value" of "SignalType"; the panel knows its meaning.
    s_SupportInfo capacityMode;
    std::vector<s_Interface> interfaces; ///< The children of "CapacityMode".
    s_ConnectorHDCP hdcp;
    s_ConnectorPlayer player;
    s_ConnectorHPDs hpds;
    s_ConnectorGeneral general;
    s_SupportInfo presetTiming;
    std::vector<s_PreSetTimingInterface> presetTimings; ///< The complete children of "PresetTiming".
    s_ConnectorColorDepths colorDepths;
    s_ConnectorColorSpaces colorSpaces;
    s_ConnectorColorRanges colorRanges;
    s_ConnectorDynamicRange dynamicRange;
    s_SupportInfo hdr; ///< No file fills it.
    s_ConnectorFormatMapping formatMapping;
    s_ConnectorTestPattern testPattern; ///< No file fills it.
    s_ConnectorImageQuality imageQuality;
    s_ConnectorCrop crop;
    s_ConnectorCutoutGeneral cutoutGeneral; ///< No file fills it.
    s_ConnectorTimingSelect timingSelect;
    s_EDID edid;
};

/// The content of one connector file. Empty when the file holds no usable connector.
struct s_DCSConnector {
    std::vector<s_ConnectorCfg> configs; ///< In file order.
};

} // namespace LCD::MainConfig

#endif
