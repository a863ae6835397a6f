// A small component host: loads one plug-in with the dynamic loader, makes one object of each of its components, and
// answers the plug-in's look-ups.
#ifndef KPMHOST_H
#define KPMHOST_H

#include <kpmsdk/plugin.h>

#include <string>
#include <vector>

namespace kpmhost {

/// Not to be made as a static object: the plug-in's records are gone before it would destroy the components.
class Host final : private kpm::IHostService {
public:
    Host() = default;
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// Loads the plug-in and creates its components, all of them or none. False with error() set when the file is no
    /// plug-in or a component can't be made. To be called once.
    bool load(const std::string& pluginPath);
    [[nodiscard]] const std::string& error() const { return _error; }

    /// What the plug-in says of itself; null before a successful load.
    [[nodiscard]] const kpm::PluginInfo* info() const { return _info; }
    /// The one object of a component, as a pointer to its interface; null for an unknown id.
    [[nodiscard]] void* component(const std::string& id) const;
    template <class Interface> [[nodiscard]] Interface* component(const std::string& id) const
    {
        return static_cast<Interface*>(component(id));
    }
    /// The class record of a component, for objects beside the host's own; null for an unknown id.
    [[nodiscard]] const kpm::ComponentInfo* componentClass(const std::string& id) const;

private:
    struct Component {
        const kpm::ComponentInfo* info;
        void* object;
    };

    bool fail(std::string text);
    void destroyComponents();
    void reserved0() override {}
    void reserved1() override {}
    void reserved2() override {}
    void* queryInterface(const char* interfaceName) override;

    const kpm::PluginInfo* _info = nullptr;
    kpm::PluginInitFunction* _pluginInit = nullptr;
    std::vector<Component> _components;
    std::string _error;
};

} // namespace kpmhost

#endif
