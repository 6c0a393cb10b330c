#include "xml/LimitedFetch.h"

#include <string>
#include <utility>

#include "net/CurlHandle.h"

namespace tvpolicy::xml {

namespace {

// "30 s", or "0.7 s" below a second.
std::string seconds(long milliseconds)
{
    if (milliseconds % 1000 == 0) {
        return std::to_string(milliseconds / 1000) + " s";
    }
    std::string text = std::to_string(milliseconds / 1000) + "." + std::to_string(milliseconds % 1000 + 1000).substr(1);
    while (text.back() == '0') {
        text.pop_back();
    }
    return text + " s";
}

thread_local std::string lastFailure;

}  // namespace

std::string takeLastFetchFailure() { return std::exchange(lastFailure, std::string()); }

FetchLimits& documentFetchLimits()
{
    static FetchLimits limits;
    return limits;
}

Result<FetchedDocument> fetchDocument(const std::string& url, const FetchLimits& limits)
{
    net::CurlHandle curl = net::makeCurlHandle();
    if (!curl) {
        lastFailure = tvpolicy::net::whyNoCurlHandle();
        return Failure{lastFailure};
    }
    std::string body;
    net::BoundedText download{&body, limits.maxBytes};
    char errorText[CURL_ERROR_SIZE] = {0};
    CURL* handle = curl.get();
    curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS, limits.connectTimeoutMs);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, limits.totalTimeoutMs);
    curl_easy_setopt(handle, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(limits.maxBytes));
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &net::appendBounded);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &download);
    curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, errorText);

    CURLcode code = curl_easy_perform(handle);
    long status = 0;
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &status);
    std::string why;
    if (download.tooLarge || code == CURLE_FILESIZE_EXCEEDED) {
        why = "the document is larger than " + std::to_string(limits.maxBytes) + " bytes";
    } else if (code == CURLE_OPERATION_TIMEDOUT) {
        why = "no complete answer within the time-out of " + seconds(limits.totalTimeoutMs) + " (" +
              (errorText[0] != 0 ? errorText : curl_easy_strerror(code)) + ")";
    } else if (code == CURLE_PEER_FAILED_VERIFICATION || code == CURLE_SSL_CACERT_BADFILE) {
        why = "the server's certificate is not trusted (" +
              std::string(errorText[0] != 0 ? errorText : curl_easy_strerror(code)) + ")";
    } else if (code != CURLE_OK) {
        why = errorText[0] != 0 ? errorText : curl_easy_strerror(code);
    } else if (status >= 300 && status <= 399) {
        const char* location = nullptr;
        curl_easy_getinfo(handle, CURLINFO_REDIRECT_URL, &location);
        why = "the server answered with status " + std::to_string(status) + ", a redirect" +
              (location != nullptr ? std::string(" to ") + location : std::string()) + " that is not followed";
    } else if (status < 200 || status > 299) {
        why = "the server answered with status " + std::to_string(status);
    }
    lastFailure = why;
    if (!why.empty()) {
        return Failure{why, static_cast<int>(status)};
    }
    return FetchedDocument{status, std::move(body)};
}

}  // namespace tvpolicy::xml
