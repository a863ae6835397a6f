// The factory bindings of the panel's function buttons, from "fnkeyboardconfig.xml". What the user has bound since
// stands in the settings. The order of the operations is a contract with the host.
#ifndef LCDMAINCONFIG_IFNBUTTONCONFIG_H
#define LCDMAINCONFIG_IFNBUTTONCONFIG_H

#include <QString>
#include <QVector>

#include "lcdmainconfig/panel.h"

namespace LCD::MainConfig {

/// The factory bindings of the function buttons. Panel file "fnkeyboardconfig.xml", root LCD. Every result is a copy.
class IFNButtonConfig {
public:
    virtual ~IFNButtonConfig() = default;

    /// Reads "fnkeyboardconfig.xml" of the directory. False, with the reason in `error`, for a file that cannot be
    /// opened or parsed, is of another kind, or lacks "DefaultVal", "MaxCount" or "Sequence"; what was read before the
    /// failure stays. `error` is empty on success. A second load replaces the numbers, and the bindings if its file has
    /// "DefaultBindings", but appends to the sequence.
    virtual bool readConfig(const QString& dir, QString& error) = 0;

    /// "DefaultVal", attribute "val": the type of a button without one. 0 before a load.
    virtual int findFNBtnDefaultValue() = 0;

    /// "MaxCount", attribute "count": how many function buttons there are. 0 before a load.
    virtual int findFNBtnMaxCount() = 0;

    /// The attributes "name" of the elements of "Sequence", in file order. Empty before a load.
    virtual QVector<QString> findSequenceStrArray() = 0;

    /// The "FN" elements of "DefaultBindings", in file order. Empty before a load. A file without "DefaultBindings"
    /// leaves them as they were.
    virtual QVector<s_FnDefaultBinding> findDefaultBindings() = 0;

    /// The first binding with that index. If there is none, one is made: key code index + 321, the default value as
    /// type, target 0, no remark.
    virtual s_FnDefaultBinding findDefaultBindingByIndex(int index) = 0;
};

} // namespace LCD::MainConfig

#endif
