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

namespace {

// clang-format off
constexpr auto keys = list(Walk::FirstNamed, "Key", std::identity{},
                           cell("Slot",      &s_SilkOrder::slot),
                           cell("Connector", &s_SilkOrder::connector),
                           cell("Order",     &s_SilkOrder::order));
// clang-format on

} // namespace

bool SilkConfigManager::parseDeviceSilkcfg(const QString& filePath, QString& error, std::vector<s_SilkOrder>& out) const
{
    const Report report{error, tr};
    return readDocument(filePath, DEVICE_FRAME, report, out,
                        below("Device", OnNull::Fail, below("Keys", OnNull::Fail, keys)));
}

} // namespace LCD::MainConfigImpl
