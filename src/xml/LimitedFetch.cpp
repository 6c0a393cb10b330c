#include "xml/LimitedFetch.h"

#include <memory>
#include <mutex>

#include <curl/curl.h>

namespace tvpolicy::xml {

namespace {

struct CurlCleanup {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};

struct Download {
    std::string body;
    std::size_t maxBytes = 0;
    bool tooLarge = false;
};

// Never lets an exception cross libcurl's C frames: any failure ends the transfer.
extern "C" std::size_t collectBody(char* data, std::size_t size, std::size_t count, void* target)
{
    auto* download = static_cast<Download*>(target);
    std::size_t bytes = size * count;
    try {
        if (download->body.size() + bytes > download->maxBytes) {
            download->tooLarge = true;
            return 0;
        }
        download->body.append(data, bytes);
        return bytes;
    } catch (...) {
        return 0;
    }
}

}  // namespace

FetchLimits& documentFetchLimits()
{
    static FetchLimits limits;
    return limits;
}

FetchResult fetchDocument(const std::string& url, const FetchLimits& limits)
{
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });

    FetchResult result;
    std::unique_ptr<CURL, CurlCleanup> curl(curl_easy_init());
    if (!curl) {
        result.error = "cannot start a transfer";
        return result;
    }
    Download download;
    download.maxBytes = limits.maxBytes;
    char errorText[CURL_ERROR_SIZE] = {0};
    CURL* handle = curl.get();
    curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS, limits.connectTimeoutMs);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, limits.totalTimeoutMs);
    curl_easy_setopt(handle, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(limits.maxBytes));
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &collectBody);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &download);
    curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, errorText);

    CURLcode code = curl_easy_perform(handle);
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &result.status);
    if (download.tooLarge || code == CURLE_FILESIZE_EXCEEDED) {
        result.error = "the document is larger than " + std::to_string(limits.maxBytes) + " bytes";
    } else if (code != CURLE_OK) {
        result.error = errorText[0] != 0 ? errorText : curl_easy_strerror(code);
    } else if (result.status < 200 || result.status > 299) {
        result.error = "the server answered with status " + std::to_string(result.status);
    } else {
        result.ok = true;
        result.body = std::move(download.body);
    }
    return result;
}

}  // namespace tvpolicy::xml
