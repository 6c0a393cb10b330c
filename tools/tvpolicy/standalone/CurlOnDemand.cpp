// libcurl on demand for the standalone tvpolicy program.
//
// The program links the library's objects and Xerces-C statically and leaves libcurl out of its
// start-up: libcurl brings its TLS, Kerberos, LDAP and SSH libraries, whose loading costs several
// times what everything else does, and most commands never make a transfer. Every libcurl
// function that the library or Xerces-C calls is defined here; the first call loads libcurl
// (dlopen, under the name the build found it by) and each call is passed on. When libcurl
// cannot be loaded every call fails the way libcurl reports failure (no handle, an error code),
// and curl_easy_strerror gives the reason for any code.
//
// curl_global_init and curl_global_cleanup change nothing that can be seen until a transfer
// exists, so they are counted while libcurl is not loaded and replayed when it is: Xerces-C's
// start-up calls curl_global_init, and a policy that is only read must not load libcurl.
//
// This file is compiled with hidden visibility: nothing here is exported, so libcurl's own calls
// never land in these definitions.

#define CURL_DISABLE_TYPECHECK 1
#include <curl/curl.h>

#include <cstdarg>
#include <type_traits>

#include "LibraryOnDemand.h"

namespace {

using tvpolicy::standalone::LibraryOnDemand;

// curl_global_init calls made while libcurl was not loaded, replayed when it is. Guarded by the
// library's lock (whileUnopened, and the Opened callback).
struct PendingInits {
    long flags = CURL_GLOBAL_DEFAULT;
    int count = 0;
};

PendingInits& pendingInits()
{
    static PendingInits pending;
    return pending;
}

void replayInits(void* library)
{
    using GlobalInit = decltype(&curl_global_init);
    if (auto init = reinterpret_cast<GlobalInit>(dlsym(library, "curl_global_init"))) {
        for (PendingInits& pending = pendingInits(); pending.count > 0; --pending.count) {
            init(pending.flags);
        }
    }
}

LibraryOnDemand& curl()
{
    static LibraryOnDemand library("libcurl", TVPOLICY_CURL_LIBRARY, &replayInits);
    return library;
}

}  // namespace

#define TVPOLICY_REAL(name) TVPOLICY_REAL_IN(curl(), name)

extern "C" {

CURLcode curl_global_init(long flags)
{
    if (curl().whileUnopened([flags] {
            pendingInits().flags |= flags;
            ++pendingInits().count;
        })) {
        return CURLE_OK;
    }
    TVPOLICY_REAL(curl_global_init);
    return real != nullptr ? real(flags) : CURLE_FAILED_INIT;
}

void curl_global_cleanup(void)
{
    if (curl().whileUnopened([] { pendingInits().count -= pendingInits().count > 0 ? 1 : 0; })) {
        return;
    }
    TVPOLICY_REAL(curl_global_cleanup);
    if (real != nullptr) {
        real();
    }
}

CURL* curl_easy_init(void)
{
    TVPOLICY_REAL(curl_easy_init);
    return real != nullptr ? real() : nullptr;
}

void curl_easy_cleanup(CURL* handle)
{
    TVPOLICY_REAL(curl_easy_cleanup);
    if (real != nullptr) {
        real(handle);
    }
}

// curl_easy_setopt and curl_easy_getinfo take their last argument through "..." after a parameter
// of enum type, and va_start on a parameter whose type changes when passed through "..." is
// undefined. Their definitions therefore take the enum's underlying integer type, which is how
// the platform passes the enum, under libcurl's symbol names.
using OptionNumber = std::underlying_type_t<CURLoption>;
using InfoNumber = std::underlying_type_t<CURLINFO>;
using AnyFunction = void (*)();
CURLcode forwardSetopt(CURL* handle, OptionNumber option, ...) __asm__("curl_easy_setopt");
CURLcode forwardGetinfo(CURL* handle, InfoNumber info, ...) __asm__("curl_easy_getinfo");

// The one argument after the option is a long, an object pointer, a function pointer or a
// curl_off_t, by the option's number range, as libcurl itself reads it.
CURLcode forwardSetopt(CURL* handle, OptionNumber option, ...)
{
    TVPOLICY_REAL(curl_easy_setopt);
    if (real == nullptr) {
        return CURLE_FAILED_INIT;
    }
    const auto name = static_cast<CURLoption>(option);
    std::va_list arguments;
    va_start(arguments, option);
    CURLcode code;
    if (option < CURLOPTTYPE_OBJECTPOINT) {
        code = real(handle, name, va_arg(arguments, long));
    } else if (option >= CURLOPTTYPE_FUNCTIONPOINT && option < CURLOPTTYPE_OFF_T) {
        code = real(handle, name, va_arg(arguments, AnyFunction));
    } else if (option >= CURLOPTTYPE_OFF_T && option < CURLOPTTYPE_BLOB) {
        code = real(handle, name, va_arg(arguments, curl_off_t));
    } else {
        code = real(handle, name, va_arg(arguments, void*));
    }
    va_end(arguments);
    return code;
}

// Every piece of information is written through the one pointer that follows.
CURLcode forwardGetinfo(CURL* handle, InfoNumber info, ...)
{
    TVPOLICY_REAL(curl_easy_getinfo);
    if (real == nullptr) {
        return CURLE_FAILED_INIT;
    }
    std::va_list arguments;
    va_start(arguments, info);
    CURLcode code = real(handle, static_cast<CURLINFO>(info), va_arg(arguments, void*));
    va_end(arguments);
    return code;
}

CURLcode curl_easy_perform(CURL* handle)
{
    TVPOLICY_REAL(curl_easy_perform);
    return real != nullptr ? real(handle) : CURLE_FAILED_INIT;
}

const char* curl_easy_strerror(CURLcode code)
{
    TVPOLICY_REAL(curl_easy_strerror);
    return real != nullptr ? real(code) : curl().failure().c_str();
}

char* curl_easy_escape(CURL* handle, const char* text, int length)
{
    TVPOLICY_REAL(curl_easy_escape);
    return real != nullptr ? real(handle, text, length) : nullptr;
}

void curl_free(void* text)
{
    TVPOLICY_REAL(curl_free);
    if (real != nullptr) {
        real(text);
    }
}

curl_slist* curl_slist_append(curl_slist* list, const char* text)
{
    TVPOLICY_REAL(curl_slist_append);
    return real != nullptr ? real(list, text) : nullptr;
}

void curl_slist_free_all(curl_slist* list)
{
    TVPOLICY_REAL(curl_slist_free_all);
    if (real != nullptr) {
        real(list);
    }
}

CURLM* curl_multi_init(void)
{
    TVPOLICY_REAL(curl_multi_init);
    return real != nullptr ? real() : nullptr;
}

CURLMcode curl_multi_cleanup(CURLM* multi)
{
    TVPOLICY_REAL(curl_multi_cleanup);
    return real != nullptr ? real(multi) : CURLM_INTERNAL_ERROR;
}

CURLMcode curl_multi_add_handle(CURLM* multi, CURL* handle)
{
    TVPOLICY_REAL(curl_multi_add_handle);
    return real != nullptr ? real(multi, handle) : CURLM_INTERNAL_ERROR;
}

CURLMcode curl_multi_remove_handle(CURLM* multi, CURL* handle)
{
    TVPOLICY_REAL(curl_multi_remove_handle);
    return real != nullptr ? real(multi, handle) : CURLM_INTERNAL_ERROR;
}

CURLMcode curl_multi_perform(CURLM* multi, int* running)
{
    TVPOLICY_REAL(curl_multi_perform);
    return real != nullptr ? real(multi, running) : CURLM_INTERNAL_ERROR;
}

CURLMcode curl_multi_fdset(CURLM* multi, fd_set* reads, fd_set* writes, fd_set* errors, int* highest)
{
    TVPOLICY_REAL(curl_multi_fdset);
    return real != nullptr ? real(multi, reads, writes, errors, highest) : CURLM_INTERNAL_ERROR;
}

CURLMcode curl_multi_timeout(CURLM* multi, long* milliseconds)
{
    TVPOLICY_REAL(curl_multi_timeout);
    return real != nullptr ? real(multi, milliseconds) : CURLM_INTERNAL_ERROR;
}

CURLMsg* curl_multi_info_read(CURLM* multi, int* left)
{
    TVPOLICY_REAL(curl_multi_info_read);
    return real != nullptr ? real(multi, left) : nullptr;
}

}  // extern "C"
