#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <systemd/sd-bus.h>

namespace tvpolicy::linux_bus {

struct MessageUnref {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, MessageUnref>;

/// A connection to the system bus (DBUS_SYSTEM_BUS_ADDRESS when set), closed when it ends.
/// Every call is bounded by a time-out and never starts a service that is not running.
class SystemBus {
public:
    /// Connects; `connected()` tells whether that worked.
    explicit SystemBus(std::uint64_t callTimeoutMicros = 5'000'000);
    ~SystemBus();
    SystemBus(const SystemBus&) = delete;
    SystemBus& operator=(const SystemBus&) = delete;

    bool connected() const { return bus_ != nullptr; }
    /// The connection itself, for matches and an event loop of the caller's; null when not
    /// connected. It stays owned by this object.
    sd_bus* handle() const { return bus_; }
    /// The error of the last call that failed.
    const std::string& lastError() const { return error_; }

    using Append = std::function<int(sd_bus_message*)>;
    /// Calls a method; the reply, or null with lastError() set.
    Message call(const char* destination, const std::string& path, const char* interface, const char* method,
                 const Append& append = Append());
    /// Calls a method with a longer time-out than the default.
    Message callWithTimeout(const char* destination, const std::string& path, const char* interface, const char* method,
                            const Append& append, std::uint64_t timeoutMicros);

    std::optional<std::string> stringProperty(const char* destination, const std::string& path, const char* interface,
                                              const char* name);
    std::optional<std::string> pathProperty(const char* destination, const std::string& path, const char* interface,
                                            const char* name);
    std::optional<std::uint32_t> uintProperty(const char* destination, const std::string& path, const char* interface,
                                              const char* name);
    std::optional<std::int32_t> intProperty(const char* destination, const std::string& path, const char* interface,
                                            const char* name);
    std::optional<std::string> bytesProperty(const char* destination, const std::string& path, const char* interface,
                                             const char* name);
    /// The reply to org.freedesktop.DBus.Properties.Get, entered into its variant of `type`.
    Message property(const char* destination, const std::string& path, const char* interface, const char* name,
                     const char* type);

private:
    sd_bus* bus_ = nullptr;
    std::uint64_t timeout_;
    std::string error_;
};

/// Reads an array of object paths ("ao") at the message's position.
std::vector<std::string> readPaths(sd_bus_message* message);
/// Reads a byte array ("ay") at the message's position as text.
std::optional<std::string> readBytes(sd_bus_message* message);
/// Reads an array of strings ("as") at the message's position.
std::vector<std::string> readStrings(sd_bus_message* message);

/// Walks a dictionary of variants ("a{sv}") at the message's position: `visit` is called with
/// each key and the message positioned at its variant, and must read the variant or return
/// false (then it is skipped). False when the message is not such a dictionary.
bool readVariantDictionary(sd_bus_message* message,
                           const std::function<bool(const std::string&, sd_bus_message*)>& visit);

/// Reads a variant holding `type` with `read` (which reads the contents); false when the
/// variant holds another type (it is then left unread).
bool readVariant(sd_bus_message* message, const char* type, const std::function<bool(sd_bus_message*)>& read);

}  // namespace tvpolicy::linux_bus
