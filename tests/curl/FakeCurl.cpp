// A stand-in for libcurl that the standalone program's forwarders load in tests: it keeps the
// last option or information request it was given, read the way libcurl reads it.

#define CURL_DISABLE_TYPECHECK 1
#include <curl/curl.h>

#include <cstdarg>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "curl/FakeCurl.h"

namespace {
FakeCurlCall last;
using AnyFunction = void (*)();
}  // namespace

extern "C" {

FakeCurlCall* fake_curl_last_call() { return &last; }

CURLcode fakeSetopt(CURL* handle, std::underlying_type_t<CURLoption> option, ...) __asm__("curl_easy_setopt");
CURLcode fakeGetinfo(CURL* handle, std::underlying_type_t<CURLINFO> info, ...) __asm__("curl_easy_getinfo");

CURLcode fakeSetopt(CURL* handle, std::underlying_type_t<CURLoption> option, ...)
{
    last = FakeCurlCall{};
    last.handle = handle;
    last.number = static_cast<long>(option);
    std::va_list arguments;
    va_start(arguments, option);
    if (option < CURLOPTTYPE_OBJECTPOINT) {
        last.integer = va_arg(arguments, long);
    } else if (option >= CURLOPTTYPE_FUNCTIONPOINT && option < CURLOPTTYPE_OFF_T) {
        last.function = reinterpret_cast<void*>(va_arg(arguments, AnyFunction));
    } else if (option >= CURLOPTTYPE_OFF_T && option < CURLOPTTYPE_BLOB) {
        last.large = va_arg(arguments, curl_off_t);
    } else {
        last.pointer = va_arg(arguments, void*);
    }
    va_end(arguments);
    return CURLE_OK;
}

CURLcode fakeGetinfo(CURL* handle, std::underlying_type_t<CURLINFO> info, ...)
{
    last = FakeCurlCall{};
    last.handle = handle;
    last.number = static_cast<long>(info);
    std::va_list arguments;
    va_start(arguments, info);
    last.pointer = va_arg(arguments, void*);
    va_end(arguments);
    // Every request here asks for a long.
    *static_cast<long*>(last.pointer) = 200;
    return CURLE_OK;
}

CURLcode curl_global_init(long) { return CURLE_OK; }

}  // extern "C"
