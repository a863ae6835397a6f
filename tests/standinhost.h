// A host that serves what a test gives it.
#ifndef TESTS_STANDINHOST_H
#define TESTS_STANDINHOST_H

#include <kpmsdk/api.h>

#include <map>
#include <string>

/// The process's host while it lives. It serves the pointers of `components` by their interface names.
class StandInHost final : private kpm::IHostService {
public:
    explicit StandInHost(std::map<std::string, void*> components = {}) : _components(std::move(components))
    {
        kpm::api::get().service = this;
    }
    ~StandInHost() { kpm::api::get().service = nullptr; }
    StandInHost(const StandInHost&) = delete;
    StandInHost& operator=(const StandInHost&) = delete;

private:
    void reserved0() override {}
    void reserved1() override {}
    void reserved2() override {}
    void* queryInterface(const char* interfaceName) override
    {
        const auto component = _components.find(interfaceName);
        return component == _components.end() ? nullptr : component->second;
    }

    std::map<std::string, void*> _components;
};

#endif
