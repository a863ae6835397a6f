// What the panel's keys are: the factory bindings of the function buttons, and the groups of keys that can be locked.
#ifndef LCDMAINCONFIG_PANEL_H
#define LCDMAINCONFIG_PANEL_H

#include <vector>

#include <QString>

namespace LCD::MainConfig {

/// The factory binding of one function button: an "FN" element of "fnkeyboardconfig.xml".
struct s_FnDefaultBinding {
    int index = 0;  ///< Attribute "index": the number of the function button, from 0; 0 if absent.
    int lcdKey = 0; ///< Attribute "lcdKey": the code of its key; 0 if absent.
    int type = 0;   ///< Attribute "type"; the file's default value where it is absent.
    int target = 0; ///< Attribute "target"; 0 if absent.
    QString remark; ///< Attribute "remark"; empty if absent.
};

/// One key of a lock area: a "Button" element. Both numbers were checked when read; a bad button is dropped.
struct s_LockAreaButton {
    int lcdKey = 0;  ///< Attribute "LCDKey": the code by which areas are looked up; 0 if absent.
    int realKey = 0; ///< Attribute "RealKey"; 0 if absent. No query reads it.
};

/// Keys that are locked together: a "LockArea" element.
struct s_LockArea {
    QString name;                          ///< Attribute "Name".
    int id = 0;                            ///< Attribute "Id"; 0 if absent.
    std::vector<s_LockAreaButton> buttons; ///< In document order; empty if none was good.
};

} // namespace LCD::MainConfig

#endif
