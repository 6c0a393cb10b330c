#include "host/probe/linux/SdBus.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace tvpolicy::linux_bus {

namespace {

struct ErrorHolder {
    sd_bus_error error{};  // SD_BUS_ERROR_NULL, which is a C compound literal
    ~ErrorHolder() { sd_bus_error_free(&error); }
};

// Whether a system bus may answer, known without libsystemd: an address the environment names
// (whatever it is), else the bus's well-known socket, where libsystemd looks then. A program may
// open libsystemd only on its first call, and a host without a bus need not pay for that.
bool systemBusMayAnswer()
{
    const char* address = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
    return (address != nullptr && *address != '\0') || ::access("/run/dbus/system_bus_socket", F_OK) == 0;
}

}  // namespace

SystemBus::SystemBus(std::uint64_t callTimeoutMicros) : timeout_(callTimeoutMicros)
{
    sd_bus* bus = nullptr;
    if (systemBusMayAnswer() && sd_bus_open_system(&bus) >= 0) {
        bus_ = bus;
    } else {
        error_ = "no system bus";
    }
}

SystemBus::~SystemBus()
{
    if (bus_ != nullptr) {
        sd_bus_flush_close_unref(bus_);
    }
}

Message SystemBus::call(const char* destination, const std::string& path, const char* interface, const char* method,
                        const Append& append)
{
    return callWithTimeout(destination, path, interface, method, append, timeout_);
}

Message SystemBus::callWithTimeout(const char* destination, const std::string& path, const char* interface,
                                   const char* method, const Append& append, std::uint64_t timeoutMicros)
{
    if (bus_ == nullptr) {
        error_ = "no system bus";
        return nullptr;
    }
    sd_bus_message* raw = nullptr;
    int result = sd_bus_message_new_method_call(bus_, &raw, destination, path.c_str(), interface, method);
    Message request(raw);
    if (result < 0) {
        error_ = std::string("cannot call ") + method + ": " + std::strerror(-result);
        return nullptr;
    }
    // Asking must not start a service that is not running.
    sd_bus_message_set_auto_start(request.get(), 0);
    if (append) {
        result = append(request.get());
        if (result < 0) {
            error_ = std::string("cannot build ") + method + ": " + std::strerror(-result);
            return nullptr;
        }
    }
    ErrorHolder error;
    sd_bus_message* reply = nullptr;
    result = sd_bus_call(bus_, request.get(), timeoutMicros, &error.error, &reply);
    if (result < 0) {
        error_ = error.error.message != nullptr ? error.error.message : std::strerror(-result);
        return nullptr;
    }
    return Message(reply);
}

Message SystemBus::property(const char* destination, const std::string& path, const char* interface, const char* name,
                            const char* type)
{
    Message reply = call(destination, path, "org.freedesktop.DBus.Properties", "Get",
                         [&](sd_bus_message* m) { return sd_bus_message_append(m, "ss", interface, name); });
    if (!reply || sd_bus_message_enter_container(reply.get(), 'v', type) <= 0) {
        return nullptr;
    }
    return reply;
}

std::optional<std::string> SystemBus::stringProperty(const char* destination, const std::string& path,
                                                     const char* interface, const char* name)
{
    Message reply = property(destination, path, interface, name, "s");
    const char* value = nullptr;
    if (!reply || sd_bus_message_read(reply.get(), "s", &value) <= 0) {
        return std::nullopt;
    }
    return std::string(value);
}

std::optional<std::string> SystemBus::pathProperty(const char* destination, const std::string& path,
                                                   const char* interface, const char* name)
{
    Message reply = property(destination, path, interface, name, "o");
    const char* value = nullptr;
    if (!reply || sd_bus_message_read(reply.get(), "o", &value) <= 0) {
        return std::nullopt;
    }
    return std::string(value);
}

std::optional<std::uint32_t> SystemBus::uintProperty(const char* destination, const std::string& path,
                                                     const char* interface, const char* name)
{
    Message reply = property(destination, path, interface, name, "u");
    std::uint32_t value = 0;
    if (!reply || sd_bus_message_read(reply.get(), "u", &value) <= 0) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::int32_t> SystemBus::intProperty(const char* destination, const std::string& path,
                                                   const char* interface, const char* name)
{
    Message reply = property(destination, path, interface, name, "i");
    std::int32_t value = 0;
    if (!reply || sd_bus_message_read(reply.get(), "i", &value) <= 0) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::string> SystemBus::bytesProperty(const char* destination, const std::string& path,
                                                    const char* interface, const char* name)
{
    Message reply = property(destination, path, interface, name, "ay");
    return reply ? readBytes(reply.get()) : std::nullopt;
}

std::vector<std::string> readPaths(sd_bus_message* message)
{
    std::vector<std::string> paths;
    if (sd_bus_message_enter_container(message, 'a', "o") <= 0) {
        return paths;
    }
    const char* path = nullptr;
    while (sd_bus_message_read(message, "o", &path) > 0) {
        paths.emplace_back(path);
    }
    sd_bus_message_exit_container(message);
    return paths;
}

std::vector<std::string> readStrings(sd_bus_message* message)
{
    std::vector<std::string> strings;
    if (sd_bus_message_enter_container(message, 'a', "s") <= 0) {
        return strings;
    }
    const char* text = nullptr;
    while (sd_bus_message_read(message, "s", &text) > 0) {
        strings.emplace_back(text);
    }
    sd_bus_message_exit_container(message);
    return strings;
}

std::optional<std::string> readBytes(sd_bus_message* message)
{
    const void* bytes = nullptr;
    std::size_t size = 0;
    if (sd_bus_message_read_array(message, 'y', &bytes, &size) < 0) {
        return std::nullopt;
    }
    return size == 0 ? std::string() : std::string(static_cast<const char*>(bytes), size);
}

bool readVariant(sd_bus_message* message, const char* type, const std::function<bool(sd_bus_message*)>& read)
{
    if (sd_bus_message_enter_container(message, 'v', type) <= 0) {
        return false;
    }
    bool ok = read(message);
    sd_bus_message_exit_container(message);
    return ok;
}

bool readVariantDictionary(sd_bus_message* message,
                           const std::function<bool(const std::string&, sd_bus_message*)>& visit)
{
    if (sd_bus_message_enter_container(message, 'a', "{sv}") <= 0) {
        return false;
    }
    while (sd_bus_message_enter_container(message, 'e', "sv") > 0) {
        const char* key = nullptr;
        if (sd_bus_message_read(message, "s", &key) <= 0) {
            return false;
        }
        if (!visit(key, message)) {
            sd_bus_message_skip(message, "v");
        }
        sd_bus_message_exit_container(message);
    }
    sd_bus_message_exit_container(message);
    return true;
}

}  // namespace tvpolicy::linux_bus
