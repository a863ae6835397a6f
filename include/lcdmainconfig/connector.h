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

/// One connector type, such as HDMI 2.0 or 12G-SDI. Connector file, child of Connectors.
struct s_ConnectorCfg {
    int type = 0; ///< Number of the connector type, by which the connectors of cards name it. Attribute "Type".
    /// Name of the panel's picture of the connector, UTF-8; empty: the file names none. Attribute "Icon".
    std::string icon;
    s_Name name;           ///< Full name, for lists. Element "Name", both languages required.
    s_ShortName shortName; ///< Abbreviated name, for narrow places. Element "ShortName", both languages required.
    /// Kind of signal: 1 HDMI, 2 DisplayPort, 3 SDI, 4 DVI, 5 fibre, 6 file in the example. Attribute "Value" of
    /// "SignalType".
    int signalType = 0;
    s_SupportInfo capacityMode; ///< Whether capacity modes can be chosen. Element "CapacityMode".
    /// What the connector carries as each interface type, in file order. The children of "CapacityMode".
    std::vector<s_Interface> interfaces;
    s_ConnectorHDCP hdcp;       ///< Copy protection. Element "HDCP".
    s_ConnectorPlayer player;   ///< Built-in media player. Element "Player"; defaults when it is missing or incomplete.
    s_ConnectorHPDs hpds;       ///< Hot-plug detection. Element "HPDs"; defaults when it is missing.
    s_ConnectorGeneral general; ///< Limits of the connector's name. Element "General".
    s_SupportInfo presetTiming; ///< Whether preset timings can be chosen. Element "PresetTiming".
    /// Preset timing of each interface type: the complete children of "PresetTiming", in file order.
    std::vector<s_PreSetTimingInterface> presetTimings;
    s_ConnectorColorDepths colorDepths;   ///< Bits per colour component. Element "ColorDepths".
    s_ConnectorColorSpaces colorSpaces;   ///< Colour encodings, RGB and YCbCr. Element "ColorSpaces".
    s_ConnectorColorRanges colorRanges;   ///< Limited and full quantisation. Element "ColorRanges".
    s_ConnectorDynamicRange dynamicRange; ///< Whether high dynamic range is carried. Element "DynamicRange".
    s_SupportInfo hdr;                    ///< Whether the connector has HDR settings; no file fills it.
    /// How a picture on several links is put together. Element "FormatMapping".
    s_ConnectorFormatMapping formatMapping;
    s_ConnectorTestPattern testPattern;   ///< Test pattern in place of the picture; no file fills it.
    s_ConnectorImageQuality imageQuality; ///< Contrast, brightness, hue, saturation and gamma. Element "ImageQuality".
    s_ConnectorCrop crop;                 ///< Cropping of the picture. Element "Crop".
    s_ConnectorCutoutGeneral cutoutGeneral; ///< Cut-outs by interface type; no file fills it.
    s_ConnectorTimingSelect timingSelect;   ///< Where the timing comes from. Element "TimingSelect".
    s_EDID edid; ///< Whether there is an EDID, and whether the user may change it. Element "EDID".
};

/// The content of one connector file. Empty when the file holds no usable connector.
struct s_DCSConnector {
    /// The connector types of the file, in file order; one that lacks a required element is left out.
    std::vector<s_ConnectorCfg> configs;
};

} // namespace LCD::MainConfig

#endif
