#include "host/probe/darwin/DarwinHandles.h"

#include <cstring>
#include <vector>

namespace tvpolicy::darwin {

bool SystemPowerConnection::open(void* context, IOServiceInterestCallback callback)
{
    close();
    rootPort_ = IORegisterForSystemPower(context, &notifyPort_, callback, &notifier_);
    if (rootPort_ == IO_OBJECT_NULL) {
        notifyPort_ = nullptr;
        notifier_ = IO_OBJECT_NULL;
        return false;
    }
    return true;
}

void SystemPowerConnection::close()
{
    if (rootPort_ == IO_OBJECT_NULL) {
        return;
    }
    IODeregisterForSystemPower(&notifier_);
    IOServiceClose(rootPort_);
    IONotificationPortDestroy(notifyPort_);
    rootPort_ = IO_OBJECT_NULL;
    notifyPort_ = nullptr;
    notifier_ = IO_OBJECT_NULL;
}

CFRunLoopSourceRef SystemPowerConnection::runLoopSource() const
{
    return notifyPort_ != nullptr ? IONotificationPortGetRunLoopSource(notifyPort_) : nullptr;
}

std::string utf8(CFTypeRef value)
{
    if (value == nullptr || CFGetTypeID(value) != CFStringGetTypeID()) {
        return std::string();
    }
    auto string = static_cast<CFStringRef>(value);
    if (const char* fast = CFStringGetCStringPtr(string, kCFStringEncodingUTF8)) {
        return fast;
    }
    CFIndex size = CFStringGetMaximumSizeForEncoding(CFStringGetLength(string), kCFStringEncodingUTF8) + 1;
    std::vector<char> buffer(static_cast<std::size_t>(size));
    if (!CFStringGetCString(string, buffer.data(), size, kCFStringEncodingUTF8)) {
        return std::string();
    }
    return buffer.data();
}

CFHolder<CFStringRef> cfString(const std::string& text)
{
    return CFHolder<CFStringRef>(
        CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(text.data()),
                                static_cast<CFIndex>(text.size()), kCFStringEncodingUTF8, false));
}

std::string registryText(CFTypeRef value)
{
    if (value == nullptr) {
        return std::string();
    }
    if (CFGetTypeID(value) == CFDataGetTypeID()) {
        auto data = static_cast<CFDataRef>(value);
        auto bytes = reinterpret_cast<const char*>(CFDataGetBytePtr(data));
        std::size_t length = static_cast<std::size_t>(CFDataGetLength(data));
        return std::string(bytes, strnlen(bytes, length));
    }
    return utf8(value);
}

}  // namespace tvpolicy::darwin
