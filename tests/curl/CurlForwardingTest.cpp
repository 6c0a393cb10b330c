// The standalone program's libcurl forwarders, loaded against a stand-in libcurl: each kind of
// argument that libcurl reads after an option arrives unchanged.

#define CURL_DISABLE_TYPECHECK 1

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "curl/FakeCurl.h"

namespace {

FakeCurlCall lastCall()
{
    void* library = dlopen(TVPOLICY_CURL_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
    EXPECT_NE(library, nullptr) << "the forwarders never loaded the stand-in";
    if (library == nullptr) {
        return {};
    }
    auto last = reinterpret_cast<decltype(&fake_curl_last_call)>(dlsym(library, "fake_curl_last_call"));
    FakeCurlCall call = *last();
    dlclose(library);
    return call;
}

std::size_t onData(char*, std::size_t size, std::size_t count, void*) { return size * count; }

CURL* const handle = reinterpret_cast<CURL*>(std::uintptr_t{0x1000});

TEST(CurlForwardingTest, EachArgumentKindPassesThrough)
{
    char text[] = "http://127.0.0.1/";
    curl_slist list{text, nullptr};
    curl_blob blob{text, sizeof text, CURL_BLOB_NOCOPY};

    ASSERT_EQ(curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, 1234L), CURLE_OK);
    EXPECT_EQ(lastCall().integer, 1234);
    EXPECT_EQ(lastCall().number, CURLOPT_TIMEOUT_MS);
    EXPECT_EQ(lastCall().handle, handle);

    // A value that needs more than 32 bits.
    curl_easy_setopt(handle, CURLOPT_MAXFILESIZE_LARGE, curl_off_t{1} << 40);
    EXPECT_EQ(lastCall().large, curl_off_t{1} << 40);
    EXPECT_EQ(lastCall().number, CURLOPT_MAXFILESIZE_LARGE);

    struct PointerCase {
        CURLoption option;
        void* value;
    };
    for (PointerCase pointer : {PointerCase{CURLOPT_URL, text}, PointerCase{CURLOPT_HTTPHEADER, &list},
                                PointerCase{CURLOPT_WRITEDATA, &list}, PointerCase{CURLOPT_SSLCERT_BLOB, &blob}}) {
        curl_easy_setopt(handle, pointer.option, pointer.value);
        EXPECT_EQ(lastCall().pointer, pointer.value) << pointer.option;
        EXPECT_EQ(lastCall().number, pointer.option);
    }

    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &onData);
    EXPECT_EQ(lastCall().function, reinterpret_cast<void*>(&onData));
}

TEST(CurlForwardingTest, InformationIsWrittenThroughThePointer)
{
    long status = 0;
    ASSERT_EQ(curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &status), CURLE_OK);
    EXPECT_EQ(status, 200);
    EXPECT_EQ(lastCall().number, CURLINFO_RESPONSE_CODE);
}

}  // namespace
