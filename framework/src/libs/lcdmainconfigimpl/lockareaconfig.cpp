#include "lockareaconfig.h"

namespace LCD::MainConfigImpl {

// Not read yet: the component answers as on an empty catalogue.
class LockAreaConfig::Impl {};

LockAreaConfig::LockAreaConfig() : _impl(std::make_unique<Impl>()) {}

LockAreaConfig::~LockAreaConfig() = default;

bool LockAreaConfig::readConfig(const QString& /*filePath*/, QString& /*error*/) { return {}; }

int LockAreaConfig::getIdByLCDKey(int /*lcdKey*/) const { return -1; }

} // namespace LCD::MainConfigImpl
