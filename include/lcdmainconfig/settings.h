// What the settings hand out beyond single numbers and texts.
#ifndef LCDMAINCONFIG_SETTINGS_H
#define LCDMAINCONFIG_SETTINGS_H

namespace LCD::MainConfig {

/// One entry of the user's own order of sources: section "SourceCustomSort" of the settings. Its name is two numbers
/// joined by "_", its value a third; a piece that is not a number reads as 0.
struct s_SourceCustomSort {
    int first = 0;  ///< First number of the source, before the "_"; the panel knows its meaning.
    int second = 0; ///< Second number of the source, after the "_"; the panel knows its meaning.
    int value = 0;  ///< Place of the source in the order.
};

} // namespace LCD::MainConfig

#endif
