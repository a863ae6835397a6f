// The keys that the panel's keyboard self-test goes through, as pairs of a key's value and its name. The order of the
// operations is a contract with the host.
#ifndef LCDMAINCONFIG_IKEYCHECKCONFIG_H
#define LCDMAINCONFIG_IKEYCHECKCONFIG_H

#include <QList>
#include <QPair>
#include <QString>

namespace LCD::MainConfig {

/// The keys of the keyboard self-test, in three lists. Panel files of one directory, "LcdKeys" below the root LCD.
/// Every result is a copy; before a load the lists are empty.
class IKeyCheckConfig {
public:
    virtual ~IKeyCheckConfig() = default;

    /// Reads every "*.xml" of the directory, which is created if missing. A file that cannot be opened or parsed is
    /// passed over, and leaves its reason in `error` though the result is true. False for an empty path, a directory
    /// that cannot be made, and a well-formed file of the wrong shape; the lists keep what earlier files gave.
    /// A file fills the list that its name tells. The match minds the case; keys of a file that fits no list are
    /// dropped. A second load appends to the lists.
    virtual bool readConfig(const QString& dir, QString& error) = 0;

    /// From files named "...keyboardchecklist..."; attributes "Value" and "Name", in file order. Empty if none.
    virtual QList<QPair<int, QString>> getKeyCheckList() const = 0;

    /// From files named "...keyboardknobchecklist..."; attributes "Value" and "Name", in file order. Empty if none.
    virtual QList<QPair<int, QString>> getKnobKeyCheckList() const = 0;

    /// From files named "...keyboardtbarjoystickchecklist..."; attributes "Value" and "Name", in file order. Empty if
    /// none.
    virtual QList<QPair<int, QString>> getTbarJoyStickCheckList() const = 0;
};

} // namespace LCD::MainConfig

#endif
