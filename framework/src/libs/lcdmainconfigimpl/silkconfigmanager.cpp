#include "silkconfigmanager.h"

#include "once.h"
#include "reading/cells.h"
#include "reading/document.h"

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;
using namespace reading;

std::atomic<SilkConfigManager*> SilkConfigManager::_pScreenCfg{nullptr};
std::mutex SilkConfigManager::_screenCfgMutex;

SilkConfigManager* SilkConfigManager::instance()
{
    return createOnce(_pScreenCfg, _screenCfgMutex, [] { return new SilkConfigManager; });
}

void SilkConfigManager::destroyInstance() { destroyOnce(_pScreenCfg, _screenCfgMutex); }

bool SilkConfigManager::parseDeviceSilkcfg(const QString& /*filePath*/, QString& /*error*/,
                                           std::vector<s_SilkOrder>& /*out*/) const
{
    return true; // Not read yet.
}

} // namespace LCD::MainConfigImpl
