#include "layerconfigmanager.h"

#include "once.h"
#include "reading/cells.h"
#include "reading/document.h"

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;
using namespace reading;

std::atomic<LayerConfigManager*> LayerConfigManager::_pLayerCfgMgr{nullptr};
std::mutex LayerConfigManager::_LayerCfgMgrMutex;

LayerConfigManager* LayerConfigManager::instance()
{
    return createOnce(_pLayerCfgMgr, _LayerCfgMgrMutex, [] { return new LayerConfigManager; });
}

void LayerConfigManager::destroyInstance() { destroyOnce(_pLayerCfgMgr, _LayerCfgMgrMutex); }

bool LayerConfigManager::parseDeviceLayercfg(const QString& /*filePath*/, QString& /*error*/, s_DCSLayer& /*out*/) const
{
    return true; // Not read yet.
}

} // namespace LCD::MainConfigImpl
