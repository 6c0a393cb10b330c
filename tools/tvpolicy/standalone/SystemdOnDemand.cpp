// libsystemd on demand for the standalone tvpolicy program.
//
// libsystemd brings its compression and cryptography libraries (six of them), and opening and
// relocating them was a third of the start-up of every command; only the commands that ask the
// system bus (NetworkManager, systemd-resolved, the service manager's units) or tell the service
// manager about the agent use it. Every libsystemd function that the program calls is defined
// here; the first call opens libsystemd and each call is passed on. When it cannot be opened
// every call fails as libsystemd reports failure: a negative error number (ELIBACC), no object.
//
// This file is compiled with hidden visibility: nothing here is exported, so libsystemd's own
// calls never land in these definitions.

#include <systemd/sd-bus.h>
#include <systemd/sd-daemon.h>
#include <systemd/sd-id128.h>

#include <cerrno>
#include <cstdarg>

#include "LibraryOnDemand.h"

namespace {

tvpolicy::standalone::LibraryOnDemand& systemd()
{
    static tvpolicy::standalone::LibraryOnDemand library("libsystemd", TVPOLICY_SYSTEMD_LIBRARY);
    return library;
}

constexpr int unavailable = -ELIBACC;

}  // namespace

#define TVPOLICY_REAL(name) TVPOLICY_REAL_IN(systemd(), name)

extern "C" {

int sd_bus_open_system(sd_bus** bus)
{
    TVPOLICY_REAL(sd_bus_open_system);
    return real != nullptr ? real(bus) : unavailable;
}

sd_bus* sd_bus_flush_close_unref(sd_bus* bus)
{
    TVPOLICY_REAL(sd_bus_flush_close_unref);
    return real != nullptr ? real(bus) : nullptr;
}

int sd_bus_call(sd_bus* bus, sd_bus_message* message, uint64_t usec, sd_bus_error* error, sd_bus_message** reply)
{
    TVPOLICY_REAL(sd_bus_call);
    return real != nullptr ? real(bus, message, usec, error, reply) : unavailable;
}

void sd_bus_error_free(sd_bus_error* error)
{
    // Only libsystemd fills an error, so there is nothing to free while it is not loaded.
    TVPOLICY_REAL(sd_bus_error_free);
    if (real != nullptr) {
        real(error);
    }
}

int sd_bus_get_events(sd_bus* bus)
{
    TVPOLICY_REAL(sd_bus_get_events);
    return real != nullptr ? real(bus) : unavailable;
}

int sd_bus_get_fd(sd_bus* bus)
{
    TVPOLICY_REAL(sd_bus_get_fd);
    return real != nullptr ? real(bus) : unavailable;
}

int sd_bus_get_timeout(sd_bus* bus, uint64_t* usec)
{
    TVPOLICY_REAL(sd_bus_get_timeout);
    return real != nullptr ? real(bus, usec) : unavailable;
}

int sd_bus_process(sd_bus* bus, sd_bus_message** message)
{
    TVPOLICY_REAL(sd_bus_process);
    return real != nullptr ? real(bus, message) : unavailable;
}

int sd_bus_match_signal(sd_bus* bus, sd_bus_slot** slot, const char* sender, const char* path, const char* interface,
                        const char* member, sd_bus_message_handler_t callback, void* userdata)
{
    TVPOLICY_REAL(sd_bus_match_signal);
    return real != nullptr ? real(bus, slot, sender, path, interface, member, callback, userdata) : unavailable;
}

sd_bus_slot* sd_bus_slot_unref(sd_bus_slot* slot)
{
    TVPOLICY_REAL(sd_bus_slot_unref);
    return real != nullptr ? real(slot) : nullptr;
}

int sd_bus_message_new_method_call(sd_bus* bus, sd_bus_message** message, const char* destination, const char* path,
                                   const char* interface, const char* member)
{
    TVPOLICY_REAL(sd_bus_message_new_method_call);
    return real != nullptr ? real(bus, message, destination, path, interface, member) : unavailable;
}

int sd_bus_message_set_auto_start(sd_bus_message* message, int start)
{
    TVPOLICY_REAL(sd_bus_message_set_auto_start);
    return real != nullptr ? real(message, start) : unavailable;
}

sd_bus_message* sd_bus_message_unref(sd_bus_message* message)
{
    TVPOLICY_REAL(sd_bus_message_unref);
    return real != nullptr ? real(message) : nullptr;
}

// The two variadic functions, `name`, are passed on through their va_list forms, `vform`.
#define TVPOLICY_PASS_ON_VARIADIC(name, vform)                \
    int name(sd_bus_message* message, const char* types, ...) \
    {                                                         \
        TVPOLICY_REAL(vform);                                 \
        if (real == nullptr) {                                \
            return unavailable;                               \
        }                                                     \
        std::va_list arguments;                               \
        va_start(arguments, types);                           \
        int result = real(message, types, arguments);         \
        va_end(arguments);                                    \
        return result;                                        \
    }

TVPOLICY_PASS_ON_VARIADIC(sd_bus_message_append, sd_bus_message_appendv)
TVPOLICY_PASS_ON_VARIADIC(sd_bus_message_read, sd_bus_message_readv)

int sd_bus_message_append_array(sd_bus_message* message, char type, const void* items, size_t size)
{
    TVPOLICY_REAL(sd_bus_message_append_array);
    return real != nullptr ? real(message, type, items, size) : unavailable;
}

int sd_bus_message_read_array(sd_bus_message* message, char type, const void** items, size_t* size)
{
    TVPOLICY_REAL(sd_bus_message_read_array);
    return real != nullptr ? real(message, type, items, size) : unavailable;
}

int sd_bus_message_open_container(sd_bus_message* message, char type, const char* contents)
{
    TVPOLICY_REAL(sd_bus_message_open_container);
    return real != nullptr ? real(message, type, contents) : unavailable;
}

int sd_bus_message_close_container(sd_bus_message* message)
{
    TVPOLICY_REAL(sd_bus_message_close_container);
    return real != nullptr ? real(message) : unavailable;
}

int sd_bus_message_enter_container(sd_bus_message* message, char type, const char* contents)
{
    TVPOLICY_REAL(sd_bus_message_enter_container);
    return real != nullptr ? real(message, type, contents) : unavailable;
}

int sd_bus_message_exit_container(sd_bus_message* message)
{
    TVPOLICY_REAL(sd_bus_message_exit_container);
    return real != nullptr ? real(message) : unavailable;
}

int sd_bus_message_skip(sd_bus_message* message, const char* types)
{
    TVPOLICY_REAL(sd_bus_message_skip);
    return real != nullptr ? real(message, types) : unavailable;
}

int sd_id128_randomize(sd_id128_t* id)
{
    TVPOLICY_REAL(sd_id128_randomize);
    return real != nullptr ? real(id) : unavailable;
}

int sd_notify(int unsetEnvironment, const char* state)
{
    TVPOLICY_REAL(sd_notify);
    return real != nullptr ? real(unsetEnvironment, state) : unavailable;
}

int sd_watchdog_enabled(int unsetEnvironment, uint64_t* usec)
{
    TVPOLICY_REAL(sd_watchdog_enabled);
    return real != nullptr ? real(unsetEnvironment, usec) : unavailable;
}

}  // extern "C"
