// The component of the lock areas of the panel's keys.
#ifndef LCDMAINCONFIGIMPL_LOCKAREACONFIG_H
#define LCDMAINCONFIGIMPL_LOCKAREACONFIG_H

#include "lcdmainconfig/ilockareaconfig.h"

#include <memory>

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;

class LockAreaConfig final : public ILockAreaConfig {
public:
    LockAreaConfig();
    ~LockAreaConfig() override;
    LockAreaConfig(const LockAreaConfig&) = delete;
    LockAreaConfig& operator=(const LockAreaConfig&) = delete;

    bool readConfig(const QString& filePath, QString& error) override;
    int getIdByLCDKey(int lcdKey) const override;

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

} // namespace LCD::MainConfigImpl

#endif
