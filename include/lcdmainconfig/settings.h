// What the settings hand out beyond single numbers and texts.
#ifndef LCDMAINCONFIG_SETTINGS_H
#define LCDMAINCONFIG_SETTINGS_H

namespace LCD::MainConfig {

/// One entry of the section "SourceCustomSort": its name is two numbers joined by "_", its value a third. A piece that
/// is not a number reads as 0.
struct s_SourceCustomSort {
    int first = 0;  ///< The entry's name before the "_".
    int second = 0; ///< The entry's name after the "_".
    int value = 0;  ///< The entry's value.
};

} // namespace LCD::MainConfig

#endif
