// A configuration as the panel would see it: the components after their loading, reached through their interfaces. The
// rules about references and the page read it, and never the files.
#ifndef LCDCHECK_LOADED_H
#define LCDCHECK_LOADED_H

#include <lcdmainconfig/iconnectorconfig.h>
#include <lcdmainconfig/ideviceconfig.h>
#include <lcdmainconfig/ifnbuttonconfig.h>
#include <lcdmainconfig/ikeycheckconfig.h>
#include <lcdmainconfig/ilcdconfig.h>
#include <lcdmainconfig/ilockareaconfig.h>
#include <lcdmainconfig/imenuconfig.h>
#include <lcdmainconfig/isubcardconfig.h>

#include <QString>

namespace lcdcheck {

struct Loaded {
    QString root; ///< The folder that was loaded.
    LCD::MainConfig::IDeviceConfig* devices = nullptr;
    LCD::MainConfig::ISubcardConfig* cards = nullptr;
    LCD::MainConfig::IConnectorConfig* connectors = nullptr;
    LCD::MainConfig::IMenuConfig* menu = nullptr;
    LCD::MainConfig::IFNButtonConfig* functionKeys = nullptr;
    LCD::MainConfig::IKeyCheckConfig* keyChecks = nullptr;
    LCD::MainConfig::ILockAreaConfig* lockAreas = nullptr;
    LCD::MainConfig::ILcdConfig* settings = nullptr;
};

} // namespace lcdcheck

#endif
