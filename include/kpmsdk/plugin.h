// The record by which a plug-in introduces itself, and the two symbols that a host resolves.
#ifndef KPMSDK_PLUGIN_H
#define KPMSDK_PLUGIN_H

#include "api.h"
#include "component.h"

namespace kpm {

/// What a plug-in says of itself.
struct PluginInfo {
    const char* formatVersion;
    ComponentInfo* const* componentTable; ///< Ends with a null pointer.
    const char* name;
    const char* version;
    const char* metadata; ///< Text for the host.
};

using PluginInfoFunction = const PluginInfo*();             ///< Symbol "pluginfo"; may be called before pluginit.
using PluginInitFunction = void(IHostService* hostService); ///< Symbol "pluginit"; a second call replaces the service.

} // namespace kpm

#endif
