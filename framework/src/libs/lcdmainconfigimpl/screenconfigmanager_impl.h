// The two subtrees of a screen file, each read in a file of its own.
#ifndef LCDMAINCONFIGIMPL_SCREENCONFIGMANAGER_IMPL_H
#define LCDMAINCONFIGIMPL_SCREENCONFIGMANAGER_IMPL_H

#include "lcdmainconfig/screen.h"
#include "reading/reader.h"

namespace LCD::MainConfigImpl {

/// Reads the element "DeviceModes". Nothing in it is required.
void readDeviceModes(const reading::Reader& in, LCD::MainConfig::s_Screen& screen);

/// Reads the element "Features". An absence leaves a message at most.
void readFeatures(const reading::Reader& in, LCD::MainConfig::s_Features& features);

} // namespace LCD::MainConfigImpl

#endif
