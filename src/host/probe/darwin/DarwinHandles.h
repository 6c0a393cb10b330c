#pragma once

// Owners of the system's reference-counted objects: every CoreFoundation, SystemConfiguration
// and I/O Kit object that the darwin probe takes is held by one of these and released when the
// holder goes, whatever path the function leaves by.

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/pwr_mgt/IOPMLib.h>

#include <string>
#include <utility>

namespace tvpolicy::darwin {

/// One CoreFoundation reference (CFStringRef, SCDynamicStoreRef ...), released with CFRelease.
template <typename Ref>
class CFHolder {
public:
    CFHolder() = default;
    /// Takes over `ref`, which the caller got from a Create or Copy function.
    explicit CFHolder(Ref ref) : ref_(ref) {}
    ~CFHolder() { reset(); }
    CFHolder(const CFHolder&) = delete;
    CFHolder& operator=(const CFHolder&) = delete;
    CFHolder(CFHolder&& other) noexcept : ref_(std::exchange(other.ref_, nullptr)) {}
    CFHolder& operator=(CFHolder&& other) noexcept
    {
        if (this != &other) {
            reset(std::exchange(other.ref_, nullptr));
        }
        return *this;
    }

    Ref get() const { return ref_; }
    explicit operator bool() const { return ref_ != nullptr; }
    void reset(Ref ref = nullptr)
    {
        if (ref_ != nullptr) {
            CFRelease(ref_);
        }
        ref_ = ref;
    }
    /// Where a Copy function that reports through an out-parameter stores its result.
    Ref* out()
    {
        reset();
        return &ref_;
    }

private:
    Ref ref_ = nullptr;
};

/// A holder of a reference of its own to `ref`, which the caller got from a Get function (or
/// holds elsewhere); null stays null.
template <typename Ref>
CFHolder<Ref> retained(Ref ref)
{
    if (ref != nullptr) {
        CFRetain(ref);
    }
    return CFHolder<Ref>(ref);
}

/// One I/O Kit object (a registry entry, an iterator, a notification), released with
/// IOObjectRelease.
class IOHolder {
public:
    IOHolder() = default;
    explicit IOHolder(io_object_t object) : object_(object) {}
    ~IOHolder() { reset(); }
    IOHolder(const IOHolder&) = delete;
    IOHolder& operator=(const IOHolder&) = delete;
    IOHolder(IOHolder&& other) noexcept : object_(std::exchange(other.object_, IO_OBJECT_NULL)) {}

    io_object_t get() const { return object_; }
    explicit operator bool() const { return object_ != IO_OBJECT_NULL; }
    void reset(io_object_t object = IO_OBJECT_NULL)
    {
        if (object_ != IO_OBJECT_NULL) {
            IOObjectRelease(object_);
        }
        object_ = object;
    }
    io_object_t* out()
    {
        reset();
        return &object_;
    }

private:
    io_object_t object_ = IO_OBJECT_NULL;
};

/// A connection to the root power domain for the system's sleep and wake notifications
/// (IORegisterForSystemPower): the session, its notification port and the notifier, given back
/// in the order the system asks for (deregister, close the session, destroy the port).
class SystemPowerConnection {
public:
    SystemPowerConnection() = default;
    ~SystemPowerConnection() { close(); }
    SystemPowerConnection(const SystemPowerConnection&) = delete;
    SystemPowerConnection& operator=(const SystemPowerConnection&) = delete;

    /// Registers `callback` with `context`; false when the system refused.
    bool open(void* context, IOServiceInterestCallback callback);
    void close();
    explicit operator bool() const { return rootPort_ != IO_OBJECT_NULL; }
    /// The session that IOAllowPowerChange answers on.
    io_connect_t rootPort() const { return rootPort_; }
    /// The run-loop source of the notification port (owned by the port).
    CFRunLoopSourceRef runLoopSource() const;

private:
    io_connect_t rootPort_ = IO_OBJECT_NULL;
    IONotificationPortRef notifyPort_ = nullptr;
    io_object_t notifier_ = IO_OBJECT_NULL;
};

/// A source added to a run loop in one mode for the lifetime of the object.
class RunLoopSourceAttachment {
public:
    RunLoopSourceAttachment(CFRunLoopRef loop, CFRunLoopSourceRef source, CFStringRef mode)
        : loop_(loop),
          source_(source),
          mode_(mode)
    {
        CFRunLoopAddSource(loop_, source_, mode_);
    }
    ~RunLoopSourceAttachment() { CFRunLoopRemoveSource(loop_, source_, mode_); }
    RunLoopSourceAttachment(const RunLoopSourceAttachment&) = delete;
    RunLoopSourceAttachment& operator=(const RunLoopSourceAttachment&) = delete;

private:
    CFRunLoopRef loop_;
    CFRunLoopSourceRef source_;
    CFStringRef mode_;
};

/// A CFString as UTF-8; empty for a null reference or a value that is not a string.
std::string utf8(CFTypeRef value);

/// A CFString made from UTF-8 text (null when the text is not UTF-8).
CFHolder<CFStringRef> cfString(const std::string& text);

/// Bytes of a CFData or characters of a CFString, as text up to the first zero byte (the
/// registry keeps C strings in data objects); empty for any other type.
std::string registryText(CFTypeRef value);

}  // namespace tvpolicy::darwin
