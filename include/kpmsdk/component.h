// The component frame: what a plug-in shows of each of its classes, so that a host can make, use and destroy objects of
// them without knowing them.
#ifndef KPMSDK_COMPONENT_H
#define KPMSDK_COMPONENT_H

#include <functional>
#include <new>

namespace kpm {

/// Receives messages for a component. A plug-in whose components take none gives null pointers of this type.
class IMessageHandler;

/// One component class of a plug-in.
struct ComponentInfo {
    std::function<void*()> creator;                           ///< Makes one object; null when memory is out.
    std::function<void(void*)> deletor;                       ///< Destroys one object; null is let pass.
    std::function<IMessageHandler*(void*)> getMessageHandler; ///< The object's message handler; null: takes none.
    const char* id;                                           ///< The component's identifier, such as "lcd.menuconfig".
    const char* metadata;                                     ///< Text for the host, which alone knows its form.
};

/// The record and its functions for the class `T`, whose objects a host reaches through the one interface that `T`
/// derives from. The plug-in defines `componentInfo` for each of its classes.
template <class T> struct ComponentTmpl {
    static ComponentInfo componentInfo; ///< The class as the host sees it: an entry of the plug-in's component table.

    /// A new object as a pointer to its interface; null, with no constructor run, when memory is out.
    static void* creator() { return new (std::nothrow) T; }
    /// Destroys an object that `creator` made; null is let pass.
    static void deletor(void* component) { delete static_cast<T*>(component); }
    /// Always null: the components take no messages.
    static IMessageHandler* getMessageHandler(void* /*component*/) { return nullptr; }
};

} // namespace kpm

#endif
