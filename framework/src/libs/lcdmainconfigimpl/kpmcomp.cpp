// What the plug-in exports: its record, its component table and the two entry points.
#include "connectorconfig.h"
#include "constants.h"
#include "deviceconfig.h"
#include "fnbuttonconfig.h"
#include "keycheckconfig.h"
#include "lcdconfig.h"
#include "lcdlanguageconfig.h"
#include "lockareaconfig.h"
#include "menuconfig.h"
#include "subcardconfig.h"

#include <kpmsdk/plugin.h>
#include <lcdmainconfig/version.h>

namespace {

constexpr char COMPONENT_METADATA[] = "{\"end\":0 }\r\n";
constexpr char PLUGIN_METADATA[] = "{\"end\":0 }";

template <class Component> kpm::ComponentInfo info(const char* id)
{
    using Functions = kpm::ComponentTmpl<Component>;
    return {&Functions::creator, &Functions::deletor, &Functions::getMessageHandler, id, COMPONENT_METADATA};
}

} // namespace

namespace Impl = LCD::MainConfigImpl;
namespace Names = LCD::MainConfigImpl::constants;

namespace kpm {

// clang-format off
template <> ComponentInfo ComponentTmpl<Impl::MenuConfig>::componentInfo        = info<Impl::MenuConfig>(Names::COMP_MENUCONFIG_NAME);
template <> ComponentInfo ComponentTmpl<Impl::ConnectorConfig>::componentInfo   = info<Impl::ConnectorConfig>(Names::COMP_CONNECTORCONFIG_NAME);
template <> ComponentInfo ComponentTmpl<Impl::DeviceConfig>::componentInfo      = info<Impl::DeviceConfig>(Names::COMP_DEVICECONFIG_NAME);
template <> ComponentInfo ComponentTmpl<Impl::SubcardConfig>::componentInfo     = info<Impl::SubcardConfig>(Names::COMP_SUBCARDCONFIG_NAME);
template <> ComponentInfo ComponentTmpl<Impl::KeyCheckConfig>::componentInfo    = info<Impl::KeyCheckConfig>(Names::COMP_KEYCHECKCONFIG_NAME);
template <> ComponentInfo ComponentTmpl<Impl::LockAreaConfig>::componentInfo    = info<Impl::LockAreaConfig>(Names::COMP_LOCKAREACONFIG_NAME);
template <> ComponentInfo ComponentTmpl<Impl::LcdConfig>::componentInfo         = info<Impl::LcdConfig>(Names::COMP_LCDCONFIG_NAME);
template <> ComponentInfo ComponentTmpl<Impl::FNButtonConfig>::componentInfo    = info<Impl::FNButtonConfig>(Names::COMP_FNBUTTONCONFIG_NAME);
template <> ComponentInfo ComponentTmpl<Impl::LcdLanguageConfig>::componentInfo = info<Impl::LcdLanguageConfig>(Names::COMP_LCDLANGUAGECONFIG_NAME);
// clang-format on

} // namespace kpm

extern "C" {

__attribute__((visibility("default"))) extern kpm::ComponentInfo* const lcdmainconfigimpl_kpm_componentInfoTable[10];
kpm::ComponentInfo* const lcdmainconfigimpl_kpm_componentInfoTable[10] = {
    &kpm::ComponentTmpl<Impl::MenuConfig>::componentInfo,
    &kpm::ComponentTmpl<Impl::ConnectorConfig>::componentInfo,
    &kpm::ComponentTmpl<Impl::DeviceConfig>::componentInfo,
    &kpm::ComponentTmpl<Impl::SubcardConfig>::componentInfo,
    &kpm::ComponentTmpl<Impl::KeyCheckConfig>::componentInfo,
    &kpm::ComponentTmpl<Impl::LockAreaConfig>::componentInfo,
    &kpm::ComponentTmpl<Impl::LcdConfig>::componentInfo,
    &kpm::ComponentTmpl<Impl::FNButtonConfig>::componentInfo,
    &kpm::ComponentTmpl<Impl::LcdLanguageConfig>::componentInfo,
    nullptr,
};

__attribute__((visibility("default"))) const kpm::PluginInfo* pluginfo()
{
    static constexpr kpm::PluginInfo pinfo{"0.1", lcdmainconfigimpl_kpm_componentInfoTable, Names::PLUGIN_NAME,
                                           LCD::MainConfig::constants::PLUGIN_VERSION, PLUGIN_METADATA};
    return &pinfo;
}

__attribute__((visibility("default"))) void pluginit(kpm::IHostService* hostService)
{
    kpm::api::get().service = hostService;
}

} // extern "C"
