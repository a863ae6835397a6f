// The component of the factory bindings of the function buttons.
#ifndef LCDMAINCONFIGIMPL_FNBUTTONCONFIG_H
#define LCDMAINCONFIGIMPL_FNBUTTONCONFIG_H

#include "lcdmainconfig/ifnbuttonconfig.h"

#include <memory>

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;

class FNButtonConfig final : public IFNButtonConfig {
public:
    FNButtonConfig();
    ~FNButtonConfig() override;
    FNButtonConfig(const FNButtonConfig&) = delete;
    FNButtonConfig& operator=(const FNButtonConfig&) = delete;

    bool readConfig(const QString& dir, QString& error) override;
    int findFNBtnDefaultValue() override;
    int findFNBtnMaxCount() override;
    QVector<QString> findSequenceStrArray() override;
    QVector<s_FnDefaultBinding> findDefaultBindings() override;
    s_FnDefaultBinding findDefaultBindingByIndex(int index) override;

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

} // namespace LCD::MainConfigImpl

#endif
