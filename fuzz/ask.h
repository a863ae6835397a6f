// Every query of the nine interfaces with absurd arguments, and every setter of the settings.
#ifndef FUZZ_ASK_H
#define FUZZ_ASK_H

#include "transcript.h"

#include "check/loaded.h"

#include <lcdmainconfig/ilcdlanguageconfig.h>

namespace fuzz {

/// Asks all components but the settings. The answers depend on what was loaded alone.
void askAll(const lcdcheck::Loaded& loaded, Transcript& out);

void askAll(LCD::MainConfig::ILcdConfig& settings, Transcript& out);
void askAll(LCD::MainConfig::ILcdLanguageConfig& settings, Transcript& out);

/// Calls some of the setters with absurd arguments; which ones, `choice` tells.
void setSome(LCD::MainConfig::ILcdConfig& settings, unsigned choice);
void setSome(LCD::MainConfig::ILcdLanguageConfig& settings, unsigned choice);

} // namespace fuzz

#endif
