// The component of the panel's menu tree.
#ifndef LCDMAINCONFIGIMPL_MENUCONFIG_H
#define LCDMAINCONFIGIMPL_MENUCONFIG_H

#include "lcdmainconfig/imenuconfig.h"

#include <memory>

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;

class MenuConfig final : public IMenuConfig {
public:
    MenuConfig();
    ~MenuConfig() override;
    MenuConfig(const MenuConfig&) = delete;
    MenuConfig& operator=(const MenuConfig&) = delete;

    bool readConfig(const QString& dir) override;
    std::shared_ptr<s_MenuItem> rootMenuItem() const override;
    std::shared_ptr<s_MenuItem> findMenuItem(QString key) const override;
    QList<std::shared_ptr<s_MenuItem>> findChidItemsByKey(QString key) const override;
    int findChidItemSizeByKey(QString key) const override;

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

} // namespace LCD::MainConfigImpl

#endif
