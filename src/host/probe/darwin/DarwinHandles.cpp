#include "host/probe/darwin/DarwinHandles.h"

#include <cstring>
#include <vector>

namespace tvpolicy::darwin {

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
    return CFHolder<CFStringRef>(CFStringCreateWithBytes(kCFAllocatorDefault,
                                                         reinterpret_cast<const UInt8*>(text.data()),
                                                         static_cast<CFIndex>(text.size()),
                                                         kCFStringEncodingUTF8, false));
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
