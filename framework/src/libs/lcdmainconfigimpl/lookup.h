// The way from one component to another: through the host, by interface name.
#ifndef LCDMAINCONFIGIMPL_LOOKUP_H
#define LCDMAINCONFIGIMPL_LOOKUP_H

#include <kpmsdk/api.h>
#include <lcdmainconfig/components.h>

#include <QtGlobal>

namespace LCD::MainConfigImpl {

/// The component that serves `interfaceName`. A plug-in without a host, or a host without the component, is a
/// programming error of the host and ends the process at once, in release builds too.
template <class Interface> Interface& lookUp(const char* interfaceName)
{
    kpm::IHostService* const service = kpm::api::get().service;
    if (service == nullptr) qFatal("no host to ask for \"%s\"", interfaceName);
    void* const component = service->queryInterface(interfaceName);
    if (component == nullptr) qFatal("no component serves \"%s\"", interfaceName);
    return *static_cast<Interface*>(component);
}

} // namespace LCD::MainConfigImpl

#endif
