// Which keys of the panel are locked together. The order of the operations is a contract with the host.
#ifndef LCDMAINCONFIG_ILOCKAREACONFIG_H
#define LCDMAINCONFIG_ILOCKAREACONFIG_H

#include <QString>

namespace LCD::MainConfig {

/// The groups of keys that can be locked together. Panel file, "LockAreas" below the root LCD.
class ILockAreaConfig {
public:
    virtual ~ILockAreaConfig() = default;

    /// Reads one file; the path names the file itself. False, with the reason in `error`, for a file that is missing,
    /// cannot be opened or parsed, is of another kind or version, or has no "LockAreas". A button whose keys are not
    /// numbers is dropped with a warning. `error` is empty on success. A second load appends to the areas.
    virtual bool readConfig(const QString& filePath, QString& error) = 0;

    /// The id of the first area that holds the key, by attribute "LCDKey"; -1 if none does, and before a load.
    virtual int getIdByLCDKey(int lcdKey) const = 0;
};

} // namespace LCD::MainConfig

#endif
