// The names under which the library and its components are known to a host.
#ifndef LCDMAINCONFIGIMPL_CONSTANTS_H
#define LCDMAINCONFIGIMPL_CONSTANTS_H

namespace LCD::MainConfigImpl::constants {

inline constexpr char PLUGIN_NAME[] = "lcdmainconfigimpl";
inline constexpr char COMP_MENUCONFIG_NAME[] = "lcd.menuconfig";
inline constexpr char COMP_CONNECTORCONFIG_NAME[] = "lcd.connectorconfig";
inline constexpr char COMP_DEVICECONFIG_NAME[] = "lcd.deviceconfig";
inline constexpr char COMP_SUBCARDCONFIG_NAME[] = "lcd.subcardconfig";
inline constexpr char COMP_KEYCHECKCONFIG_NAME[] = "lcd.keycheckconfig";
inline constexpr char COMP_LOCKAREACONFIG_NAME[] = "lcd.lockareaconfig";
inline constexpr char COMP_LCDCONFIG_NAME[] = "lcd.lcdconfig";
inline constexpr char COMP_FNBUTTONCONFIG_NAME[] = "lcd.fnbuttonconfig";
inline constexpr char COMP_LCDLANGUAGECONFIG_NAME[] = "lcd.lcdlanguageconfig";

} // namespace LCD::MainConfigImpl::constants

#endif
