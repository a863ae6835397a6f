#include "menuconfig.h"

namespace LCD::MainConfigImpl {

// Not read yet: the component answers as on an empty catalogue.
class MenuConfig::Impl {};

MenuConfig::MenuConfig() : _impl(std::make_unique<Impl>()) {}

MenuConfig::~MenuConfig() = default;

bool MenuConfig::readConfig(const QString& /*dir*/) { return {}; }

std::shared_ptr<s_MenuItem> MenuConfig::rootMenuItem() const { return std::make_shared<s_MenuItem>(); }

std::shared_ptr<s_MenuItem> MenuConfig::findMenuItem(QString /*key*/) const { return {}; }

QList<std::shared_ptr<s_MenuItem>> MenuConfig::findChidItemsByKey(QString /*key*/) const { return {}; }

int MenuConfig::findChidItemSizeByKey(QString /*key*/) const { return {}; }

} // namespace LCD::MainConfigImpl
