// The names under which the library and its components are known to a host.
#ifndef LCDMAINCONFIGIMPL_CONSTANTS_H
#define LCDMAINCONFIGIMPL_CONSTANTS_H

#include <lcdmainconfig/components.h>

namespace LCD::MainConfigImpl::constants {

inline constexpr char PLUGIN_NAME[] = "lcdmainconfigimpl";
using MainConfig::constants::COMP_CONNECTORCONFIG_NAME;
using MainConfig::constants::COMP_DEVICECONFIG_NAME;
using MainConfig::constants::COMP_FNBUTTONCONFIG_NAME;
using MainConfig::constants::COMP_KEYCHECKCONFIG_NAME;
using MainConfig::constants::COMP_LCDCONFIG_NAME;
using MainConfig::constants::COMP_LCDLANGUAGECONFIG_NAME;
using MainConfig::constants::COMP_LOCKAREACONFIG_NAME;
using MainConfig::constants::COMP_MENUCONFIG_NAME;
using MainConfig::constants::COMP_SUBCARDCONFIG_NAME;

} // namespace LCD::MainConfigImpl::constants

#endif
