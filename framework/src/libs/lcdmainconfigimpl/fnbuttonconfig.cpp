#include "fnbuttonconfig.h"

namespace LCD::MainConfigImpl {

// Not read yet: the component answers as on an empty catalogue.
class FNButtonConfig::Impl {};

FNButtonConfig::FNButtonConfig() : _impl(std::make_unique<Impl>()) {}

FNButtonConfig::~FNButtonConfig() = default;

bool FNButtonConfig::readConfig(const QString& /*dir*/, QString& /*error*/) { return {}; }

int FNButtonConfig::findFNBtnDefaultValue() const { return {}; }

int FNButtonConfig::findFNBtnMaxCount() const { return {}; }

QVector<QString> FNButtonConfig::findSequenceStrArray() const { return {}; }

QVector<s_FnDefaultBinding> FNButtonConfig::findDefaultBindings() const { return {}; }

s_FnDefaultBinding FNButtonConfig::findDefaultBindingByIndex(int /*index*/) const { return {}; }

} // namespace LCD::MainConfigImpl
