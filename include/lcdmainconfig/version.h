// The version of the records and interfaces in these headers.
#ifndef LCDMAINCONFIG_VERSION_H
#define LCDMAINCONFIG_VERSION_H

namespace LCD::MainConfig::constants {

/// Changes with every change to the layout of a record or to an interface. A host that was compiled against these
/// headers fits a plug-in whose `kpm::PluginInfo::version` has this very text, and no other one.
inline constexpr char PLUGIN_VERSION[] = "1.0.0";

} // namespace LCD::MainConfig::constants

#endif
