// The way from a plug-in back to its host: the host's service object and the handle that keeps it.
#ifndef KPMSDK_API_H
#define KPMSDK_API_H

/// The component frame: the contract between a host process and its plug-ins.
namespace kpm {

/// The host's service object. The entry order is the contract; it is never destroyed through this class, hence no
/// virtual destructor, which would take the first entries.
class IHostService {
public:
    virtual void reserved0() = 0; ///< The host's own; a plug-in never calls it.
    virtual void reserved1() = 0; ///< The host's own; a plug-in never calls it.
    virtual void reserved2() = 0; ///< The host's own; a plug-in never calls it.

    /// The component that serves an interface name such as "lcdDeviceConfig", as a pointer to the interface itself;
    /// null when no component serves it. The name is not the component's id.
    virtual void* queryInterface(const char* interfaceName) = 0;

protected:
    ~IHostService() = default;
};

/// Three words of which the first is the host's service object.
struct HostHandle {
    IHostService* service; ///< The host's service object; null before the plug-in's entry point was called.
    void* reserved[2];     ///< Room that is never used; null.
};

/// A plug-in's way back to its host.
namespace api {

/// The plug-in's handle of its host: all zero until the plug-in's entry point sets the service.
inline HostHandle& get()
{
    static HostHandle _api{};
    return _api;
}

} // namespace api
} // namespace kpm

#endif
