#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include <curl/curl.h>

namespace tvpolicy::net {

struct CurlCleanup {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
using CurlHandle = std::unique_ptr<CURL, CurlCleanup>;

struct CurlListFree {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using CurlList = std::unique_ptr<curl_slist, CurlListFree>;

/// A new easy handle (null when libcurl cannot make one). The first call initialises libcurl
/// once for the whole process, on whichever thread comes first.
CurlHandle makeCurlHandle();

/// Why makeCurlHandle gave no handle, in libcurl's words.
std::string whyNoCurlHandle();

/// Where a write or header callback appends: the text, and how large it may grow.
struct BoundedText {
    std::string* text = nullptr;
    std::size_t maxBytes = static_cast<std::size_t>(-1);
    bool tooLarge = false;  // set when a block would have passed maxBytes
};

/// A write or header callback appending to a BoundedText (the callback's data). A block that
/// would pass the cap, or that cannot be appended at all (no memory), makes it return 0, so
/// libcurl ends the transfer with a write error; no exception ever leaves it.
extern "C" std::size_t appendBounded(char* data, std::size_t size, std::size_t count, void* target);

}  // namespace tvpolicy::net
