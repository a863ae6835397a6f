// What the panel's keys are: the factory bindings of the function buttons, and the groups of keys that can be locked.
#ifndef LCDMAINCONFIG_PANEL_H
#define LCDMAINCONFIG_PANEL_H

#include <vector>

#include <QString>

namespace LCD::MainConfig {

/// The factory binding of one function button. Panel file "fnkeyboardconfig.xml", an "FN" element of DefaultBindings.
struct s_FnDefaultBinding {
    int index = 0;  ///< Number of the function button, from 0. Attribute "index"; 0 if absent.
    int lcdKey = 0; ///< Key code of the button. Attribute "lcdKey"; 0 if absent.
    /// Function that the button has, by its place in "Sequence" in the example. Attribute "type"; the file's default
    /// value where it is absent.
    int type = 0;
    /// What the function acts on, such as a screen or a preset, by its number. Attribute "target"; 0 if absent.
    int target = 0;
    QString remark; ///< Note for readers of the file; empty if absent. Attribute "remark".
};

/// One key of a lock area. Lock-area file, an element "Button" anywhere in a "LockArea". Both numbers were checked when
/// read; a bad button is dropped.
struct s_LockAreaButton {
    int lcdKey = 0;  ///< Key code by which areas are looked up. Attribute "LCDKey"; 0 if absent.
    int realKey = 0; ///< Number of the key on the keyboard, read by no query. Attribute "RealKey"; 0 if absent.
};

/// Keys that are locked together. Lock-area file, a child "LockArea" of LockAreas.
struct s_LockArea {
    QString name; ///< What the panel calls the area; empty: the file names none. Attribute "Name".
    int id = 0;   ///< Number of the area, which the query gives. Attribute "Id"; 0 if absent.
    std::vector<s_LockAreaButton> buttons; ///< Keys of the area, in document order; empty if none was good.
};

} // namespace LCD::MainConfig

#endif
