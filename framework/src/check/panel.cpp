#include "panel.h"

#include <lcdmainconfig/components.h>

extern "C" {
const kpm::PluginInfo* pluginfo();
void pluginit(kpm::IHostService* hostService);
}

namespace lcdcheck {

namespace Lcd = LCD::MainConfig;
using namespace Lcd::constants;

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
            component<Lcd::IDeviceConfig>(COMP_DEVICECONFIG_NAME),
            component<Lcd::ISubcardConfig>(COMP_SUBCARDCONFIG_NAME),
            component<Lcd::IConnectorConfig>(COMP_CONNECTORCONFIG_NAME),
            component<Lcd::IMenuConfig>(COMP_MENUCONFIG_NAME),
            component<Lcd::IFNButtonConfig>(COMP_FNBUTTONCONFIG_NAME),
            component<Lcd::IKeyCheckConfig>(COMP_KEYCHECKCONFIG_NAME),
            component<Lcd::ILockAreaConfig>(COMP_LOCKAREACONFIG_NAME),
            component<Lcd::ILcdConfig>(COMP_LCDCONFIG_NAME)};
}

void* Panel::queryInterface(const char* interfaceName)
{
    const std::string name = interfaceName;
    if (name == OBJ_DEVICECONFIG_NAME) return _objects.at(COMP_DEVICECONFIG_NAME);
    if (name == OBJ_SUBCARDCONFIG_NAME) return _objects.at(COMP_SUBCARDCONFIG_NAME);
    return nullptr;
}

} // namespace lcdcheck
