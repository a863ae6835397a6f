// The component of the key lists of the keyboard self-test.
#ifndef LCDMAINCONFIGIMPL_KEYCHECKCONFIG_H
#define LCDMAINCONFIGIMPL_KEYCHECKCONFIG_H

#include "lcdmainconfig/ikeycheckconfig.h"

#include <memory>

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;

class KeyCheckConfig final : public IKeyCheckConfig {
public:
    KeyCheckConfig();
    ~KeyCheckConfig() override;
    KeyCheckConfig(const KeyCheckConfig&) = delete;
    KeyCheckConfig& operator=(const KeyCheckConfig&) = delete;

    bool readConfig(const QString& dir, QString& error) override;
    QList<QPair<int, QString>> getKeyCheckList() const override;
    QList<QPair<int, QString>> getKnobKeyCheckList() const override;
    QList<QPair<int, QString>> getTbarJoyStickCheckList() const override;

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

} // namespace LCD::MainConfigImpl

#endif
