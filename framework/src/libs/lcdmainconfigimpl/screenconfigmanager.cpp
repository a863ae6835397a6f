#include "screenconfigmanager.h"

#include "once.h"
#include "reading/cells.h"
#include "reading/document.h"
#include "screenconfigmanager_impl.h"

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

namespace {

// clang-format off
void readScreen(const Reader& in, s_Screen& screen)
{
    in.read(screen,
            Type,
            Support,
            cell("SpliceMode",         &s_Screen::spliceMode),
            cell("IncompleteSplicing", &s_Screen::incompleteSplicing),
            cell("CustomBuild",        &s_Screen::customBuild),
            cell("CustomDelete",       &s_Screen::customDelete),
            Editable,
            cell("LimitNum",           &s_Screen::limitNum));
    in.element("DeviceModes", OnNull::Note, screen,          readDeviceModes);
    in.element("Features",    OnNull::Note, screen.features, readFeatures);
}
// clang-format on

} // namespace

bool ScreenConfigManager::parseDeviceScreencfg(const QString& filePath, QString& error, s_DCSScreen& out) const
{
    const Report report{error, tr};
    // One screen type a file: further "Screen" elements are not looked at. Nothing is stored before the chain of
    // elements is known to be whole, and nothing after it fails.
    return readDocument(
        filePath, DEVICE_FRAME, report, out,
        below("Device", OnNull::Fail, below("Screens", OnNull::Fail, below("Screen", OnNull::Fail, readScreen))));
}

} // namespace LCD::MainConfigImpl
