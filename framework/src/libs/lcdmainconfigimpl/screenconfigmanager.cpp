#include "screenconfigmanager.h"

#include "once.h"
#include "reading/cells.h"
#include "reading/document.h"

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;
using namespace reading;

std::atomic<ScreenConfigManager*> ScreenConfigManager::_pScreenCfg{nullptr};
std::mutex ScreenConfigManager::_screenCfgMutex;

ScreenConfigManager* ScreenConfigManager::instance()
{
    return createOnce(_pScreenCfg, _screenCfgMutex, [] { return new ScreenConfigManager; });
}

void ScreenConfigManager::destroyInstance() { destroyOnce(_pScreenCfg, _screenCfgMutex); }

bool ScreenConfigManager::parseDeviceScreencfg(const QString& /*filePath*/, QString& /*error*/,
                                               s_DCSScreen& /*out*/) const
{
    return true; // Not read yet.
}

} // namespace LCD::MainConfigImpl
