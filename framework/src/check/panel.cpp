#include "panel.h"

extern "C" {
const kpm::PluginInfo* pluginfo();
void pluginit(kpm::IHostService* hostService);
}

namespace lcdcheck {

namespace Lcd = LCD::MainConfig;

Panel::Panel()
{
    pluginit(this);
    for (kpm::ComponentInfo* const* entry = pluginfo()->componentTable; *entry != nullptr; ++entry)
        _objects.emplace((*entry)->id, (*entry)->creator());
}

Panel::~Panel()
{
    for (kpm::ComponentInfo* const* entry = pluginfo()->componentTable; *entry != nullptr; ++entry)
        (*entry)->deletor(_objects.at((*entry)->id));
    pluginit(nullptr);
}

void Panel::read(const lcdcommon::Folder& folder, const QString& path)
{
    QString unused;
    folder.read(_objects.at(folder.component), path, unused);
}

Loaded Panel::loaded(const QString& root) const
{
    return {root,
            component<Lcd::IDeviceConfig>("lcd.deviceconfig"),
            component<Lcd::ISubcardConfig>("lcd.subcardconfig"),
            component<Lcd::IConnectorConfig>("lcd.connectorconfig"),
            component<Lcd::IMenuConfig>("lcd.menuconfig"),
            component<Lcd::IFNButtonConfig>("lcd.fnbuttonconfig"),
            component<Lcd::IKeyCheckConfig>("lcd.keycheckconfig"),
            component<Lcd::ILockAreaConfig>("lcd.lockareaconfig"),
            component<Lcd::ILcdConfig>("lcd.lcdconfig")};
}

void* Panel::queryInterface(const char* interfaceName)
{
    using namespace Lcd::constants;
    const std::string name = interfaceName;
    if (name == OBJ_DEVICECONFIG_NAME) return _objects.at("lcd.deviceconfig");
    if (name == OBJ_SUBCARDCONFIG_NAME) return _objects.at("lcd.subcardconfig");
    return nullptr;
}

} // namespace lcdcheck
