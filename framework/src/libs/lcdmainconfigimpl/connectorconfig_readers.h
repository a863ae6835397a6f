// The readers of a connector's subtrees, each in the file of its subject, and the shapes of element that they share.
// The lists of a connector file take every child element as an entry, whatever its tag.
#ifndef LCDMAINCONFIGIMPL_CONNECTORCONFIG_READERS_H
#define LCDMAINCONFIGIMPL_CONNECTORCONFIG_READERS_H

#include "reading/cells.h"

#include <lcdmainconfig/connector.h>

namespace LCD::MainConfigImpl::connectorreading {

using namespace LCD::MainConfig;
using namespace reading;

// clang-format off
inline constexpr auto flags     = cells(Support, Editable);
inline constexpr auto range     = cells(Support, Editable, Value, Min, Max, DataType);
inline constexpr auto colour    = cells(Support, Editable, Max, Min, DataType, Value);
inline constexpr auto setting   = cells(Support, Editable, Value, DataType);
inline constexpr auto valueList = cells(setting, enums(Walk::Any));
// clang-format on

// connectorconfig_resolution.cpp
void readStandardResolutions(const Reader& in, s_DCSResolution& standard);
void readCapacityMode(const Reader& in, s_ConnectorCfg& connector);
// connectorconfig_timing.cpp
void readPresetTiming(const Reader& in, s_ConnectorCfg& connector);
void readTimingSelect(const Reader& in, s_ConnectorTimingSelect& timingSelect);
// connectorconfig_signal.cpp
void readHDCP(const Reader& in, s_ConnectorHDCP& hdcp);
void readGeneral(const Reader& in, s_ConnectorGeneral& general);
void readColorDepths(const Reader& in, s_ConnectorColorDepths& depths);
void readColorSpaces(const Reader& in, s_ConnectorColorSpaces& spaces);
void readColorRanges(const Reader& in, s_ConnectorColorRanges& ranges);
void readHPDs(const Reader& in, s_ConnectorHPDs& hpds);
// connectorconfig_picture.cpp
void readPlayer(const Reader& in, s_ConnectorPlayer& player);
void readImageQuality(const Reader& in, s_ConnectorImageQuality& quality);
void readCrop(const Reader& in, s_ConnectorCrop& crop);

} // namespace LCD::MainConfigImpl::connectorreading

#endif
