// The record by which a plug-in introduces itself, and the two symbols that a host resolves.
#ifndef KPMSDK_PLUGIN_H
#define KPMSDK_PLUGIN_H

#include "api.h"
#include "component.h"

namespace kpm {

/// What a plug-in says of itself.
struct PluginInfo {
    const char* formatVersion;            ///< Version of this record's form, "0.1".
    ComponentInfo* const* componentTable; ///< The plug-in's component classes; ends with a null pointer.
    const char* name;                     ///< Name of the plug-in, "lcdmainconfigimpl".
    const char* version;                  ///< Version of the plug-in, "1.0.0".
    const char* metadata;                 ///< Text for the host, which alone knows its form.
};

using PluginInfoFunction = const PluginInfo*();             ///< Symbol "pluginfo"; may be called before pluginit.
using PluginInitFunction = void(IHostService* hostService); ///< Symbol "pluginit"; a second call replaces the service.

} // namespace kpm

#endif
