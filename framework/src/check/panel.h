// The library's components in one process, as a panel application has them, loaded from a configuration root.
#ifndef LCDCHECK_PANEL_H
#define LCDCHECK_PANEL_H

#include "loaded.h"

#include "common/layout.h"

#include <kpmsdk/plugin.h>

#include <map>
#include <string>

namespace lcdcheck {

/// One object of each component, and the host that they look each other up with. One panel at a time.
class Panel final : private kpm::IHostService {
public:
    Panel();
    ~Panel();
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    /// Has the component of a catalogue read `path`; what it reports is of no interest to those who listen.
    void read(const lcdcommon::Folder& folder, const QString& path);
    /// The components, as the panel application asks them.
    [[nodiscard]] Loaded loaded(const QString& root) const;

private:
    void reserved0() override {}
    void reserved1() override {}
    void reserved2() override {}
    void* queryInterface(const char* interfaceName) override;
    template <class Interface> Interface* component(const char* id) const
    {
        return static_cast<Interface*>(_objects.at(id));
    }

    std::map<std::string, void*> _objects;
};

} // namespace lcdcheck

#endif
