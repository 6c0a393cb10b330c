#pragma once

#include <curl/curl.h>

// What the stand-in libcurl received last.
struct FakeCurlCall {
    CURL* handle = nullptr;
    long number = -1;  // the option or information number
    long integer = 0;
    curl_off_t large = 0;
    void* pointer = nullptr;
    void* function = nullptr;
};

extern "C" FakeCurlCall* fake_curl_last_call();
