// The factory settings as a list of values.
#ifndef LCDHOST_SETTINGS_H
#define LCDHOST_SETTINGS_H

#include <lcdmainconfig/ilcdconfig.h>

namespace lcdhost {

/// How many single values the factory settings have.
int countSettings();

/// Whether any of them is neither 0 nor empty: of a file that holds none of them every one is.
bool hasAnySetting(LCD::MainConfig::ILcdConfig& settings);

} // namespace lcdhost

#endif
