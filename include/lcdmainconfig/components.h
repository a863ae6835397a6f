// The names by which a host finds the components of the plug-in, and the order in which it lets them load.
#ifndef LCDMAINCONFIG_COMPONENTS_H
#define LCDMAINCONFIG_COMPONENTS_H

/// Names that a host and the library share.
namespace LCD::MainConfig::constants {

inline constexpr char COMP_DEVICECONFIG_NAME[] = "lcd.deviceconfig";           ///< Id of the `IDeviceConfig`.
inline constexpr char COMP_SUBCARDCONFIG_NAME[] = "lcd.subcardconfig";         ///< Id of the `ISubcardConfig`.
inline constexpr char COMP_CONNECTORCONFIG_NAME[] = "lcd.connectorconfig";     ///< Id of the `IConnectorConfig`.
inline constexpr char COMP_MENUCONFIG_NAME[] = "lcd.menuconfig";               ///< Id of the `IMenuConfig`.
inline constexpr char COMP_FNBUTTONCONFIG_NAME[] = "lcd.fnbuttonconfig";       ///< Id of the `IFNButtonConfig`.
inline constexpr char COMP_KEYCHECKCONFIG_NAME[] = "lcd.keycheckconfig";       ///< Id of the `IKeyCheckConfig`.
inline constexpr char COMP_LOCKAREACONFIG_NAME[] = "lcd.lockareaconfig";       ///< Id of the `ILockAreaConfig`.
inline constexpr char COMP_LCDCONFIG_NAME[] = "lcd.lcdconfig";                 ///< Id of the `ILcdConfig`.
inline constexpr char COMP_LCDLANGUAGECONFIG_NAME[] = "lcd.lcdlanguageconfig"; ///< Id of the `ILcdLanguageConfig`.

/// Interface name under which the host hands out the device catalogue, `IDeviceConfig`; not the component's id.
inline constexpr char OBJ_DEVICECONFIG_NAME[] = "lcdDeviceConfig";
/// Interface name under which the host hands out the card catalogue, `ISubcardConfig`; not the component's id.
inline constexpr char OBJ_SUBCARDCONFIG_NAME[] = "lcdSubcardConfig";

/// The ids in an order in which the components may load. The first three need it: slots choose which card files are
/// read, cards choose which connector files are read. The others need nobody.
inline constexpr const char* LOAD_ORDER[] = {
    COMP_DEVICECONFIG_NAME,   COMP_SUBCARDCONFIG_NAME,  COMP_CONNECTORCONFIG_NAME,
    COMP_MENUCONFIG_NAME,     COMP_FNBUTTONCONFIG_NAME, COMP_KEYCHECKCONFIG_NAME,
    COMP_LOCKAREACONFIG_NAME, COMP_LCDCONFIG_NAME,      COMP_LCDLANGUAGECONFIG_NAME,
};

} // namespace LCD::MainConfig::constants

#endif
