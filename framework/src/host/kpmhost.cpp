#include "kpmhost.h"

#include <lcdmainconfig/components.h>

#include <dlfcn.h>

#include <utility>

namespace kpmhost {
namespace {

using namespace LCD::MainConfig::constants;

/// Which component serves an interface name that plug-ins look up. The names are not the components' ids.
constexpr std::pair<const char*, const char*> SERVED[] = {
    {OBJ_DEVICECONFIG_NAME, COMP_DEVICECONFIG_NAME},
    {OBJ_SUBCARDCONFIG_NAME, COMP_SUBCARDCONFIG_NAME},
};

} // namespace

Host::~Host()
{
    destroyComponents();
    if (_pluginInit != nullptr) _pluginInit(nullptr);
}

void Host::destroyComponents()
{
    for (auto component = _components.rbegin(); component != _components.rend(); ++component)
        component->info->deletor(component->object);
    _components.clear();
}

bool Host::fail(std::string text)
{
    _error = std::move(text);
    return false;
}

bool Host::load(const std::string& pluginPath)
{
    // Never closed: texts and records of the plug-in may be in use until the process ends.
    void* const library = dlopen(pluginPath.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) return fail(dlerror());
    const auto pluginfo = reinterpret_cast<kpm::PluginInfoFunction*>(dlsym(library, "pluginfo"));
    const auto pluginit = reinterpret_cast<kpm::PluginInitFunction*>(dlsym(library, "pluginit"));
    if (pluginfo == nullptr || pluginit == nullptr) return fail(pluginPath + " is no plug-in: it lacks an entry point");

    _pluginInit = pluginit;
    pluginit(this);
    const kpm::PluginInfo* const info = pluginfo();
    for (kpm::ComponentInfo* const* entry = info->componentTable; *entry != nullptr; ++entry) {
        void* const object = (*entry)->creator();
        if (object == nullptr) {
            destroyComponents();
            return fail(std::string("component ") + (*entry)->id + " could not be made");
        }
        _components.push_back({*entry, object});
    }
    _info = info;
    return true;
}

void* Host::component(const std::string& id) const
{
    for (const Component& component : _components)
        if (component.info->id == id) return component.object;
    return nullptr;
}

const kpm::ComponentInfo* Host::componentClass(const std::string& id) const
{
    for (const Component& component : _components)
        if (component.info->id == id) return component.info;
    return nullptr;
}

void* Host::queryInterface(const char* interfaceName)
{
    for (const auto& [name, id] : SERVED)
        if (std::string(name) == interfaceName) return component(id);
    return nullptr;
}

} // namespace kpmhost
