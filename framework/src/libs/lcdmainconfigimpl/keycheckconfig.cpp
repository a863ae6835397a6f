#include "keycheckconfig.h"

namespace LCD::MainConfigImpl {

// Not read yet: the component answers as on an empty catalogue.
class KeyCheckConfig::Impl {};

KeyCheckConfig::KeyCheckConfig() : _impl(std::make_unique<Impl>()) {}

KeyCheckConfig::~KeyCheckConfig() = default;

bool KeyCheckConfig::readConfig(const QString& /*dir*/, QString& /*error*/) { return {}; }

QList<QPair<int, QString>> KeyCheckConfig::getKeyCheckList() const { return {}; }

QList<QPair<int, QString>> KeyCheckConfig::getKnobKeyCheckList() const { return {}; }

QList<QPair<int, QString>> KeyCheckConfig::getTbarJoyStickCheckList() const { return {}; }

} // namespace LCD::MainConfigImpl
