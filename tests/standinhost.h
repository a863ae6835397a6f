// A host for components that look one another up: while it lives, the plug-in's handle points at it.
#ifndef TESTS_STANDINHOST_H
#define TESTS_STANDINHOST_H

#include <kpmsdk/api.h>

#include <map>
#include <string>

class StandInHost final : private kpm::IHostService {
public:
    StandInHost() { kpm::api::get().service = this; }
    ~StandInHost() { kpm::api::get().service = nullptr; }
    StandInHost(const StandInHost&) = delete;
    StandInHost& operator=(const StandInHost&) = delete;

    /// Serves a component under an interface name. `Interface` must be the one that the look-up casts to.
    template <class Interface> void serve(const char* interfaceName, Interface& component)
    {
        _served[interfaceName] = &component;
    }

private:
    void reserved0() override {}
    void reserved1() override {}
    void reserved2() override {}
    void* queryInterface(const char* interfaceName) override
    {
        const auto served = _served.find(interfaceName);
        return served == _served.end() ? nullptr : served->second;
    }

    std::map<std::string, void*> _served;
};

#endif
