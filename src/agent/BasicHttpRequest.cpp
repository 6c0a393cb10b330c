#include <tvpolicy/agent/BasicHttpRequest.h>

#include <cstdio>
#include <limits>
#include <memory>
#include <mutex>

#include <tvpolicy/host/Machine.h>

#include "net/CurlHandle.h"

namespace com::torvane {

namespace {

using tvpolicy::net::appendBounded;
using tvpolicy::net::BoundedText;
using tvpolicy::net::CurlHandle;
using tvpolicy::net::CurlList;

const char* const compatibilityUserAgent = "KVA Agent";
const std::string agentUserAgent = "Torvane-Agent/5.2.6.69 (" + Machine::getOSString() + ";)";
const std::string agentHeader = "X-TVUserAgent: " + agentUserAgent;
const std::string cookieMark = "Set-Cookie: ";

std::mutex boundsMutex;
HttpBounds processBounds;

HttpBounds currentBounds()
{
    std::lock_guard<std::mutex> lock(boundsMutex);
    return processBounds;
}

std::size_t capOf(const HttpBounds& bounds)
{
    return bounds.enabled ? bounds.maxBodyBytes : static_cast<std::size_t>(-1);
}

// The limits go on after the operation's own options; libcurl's defaults stay when they are off.
// Signals are never used for time-outs, whatever the bounds.
void applyBounds(CURL* handle, const HttpBounds& bounds)
{
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    if (!bounds.enabled) {
        return;
    }
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS, bounds.connectTimeoutMs);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, bounds.totalTimeoutMs);
    curl_easy_setopt(handle, CURLOPT_LOW_SPEED_LIMIT, bounds.lowSpeedBytesPerSecond);
    curl_easy_setopt(handle, CURLOPT_LOW_SPEED_TIME, bounds.lowSpeedSeconds);
    curl_easy_setopt(handle, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(bounds.maxBodyBytes));
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, bounds.protocols.c_str());
    curl_easy_setopt(handle, CURLOPT_REDIR_PROTOCOLS_STR, bounds.protocols.c_str());
}

CurlList agentHeaderList()
{
    return CurlList(curl_slist_append(nullptr, agentHeader.c_str()));
}

// The text after the first "Set-Cookie: " of `text` up to the next carriage return (or the
// end); nothing when the mark is absent.
bool cookieIn(const std::string& text, std::string& cookie)
{
    std::size_t mark = text.find(cookieMark);
    if (mark == std::string::npos) {
        return false;
    }
    std::size_t start = mark + cookieMark.size();
    std::size_t end = text.find('\r', start);
    cookie = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
    return true;
}

// A file written within the body cap, for getBinary when the bounds are on.
struct BoundedFile {
    std::FILE* file;
    std::size_t left;
};

extern "C" std::size_t writeBoundedFile(char* data, std::size_t size, std::size_t count, void* target)
{
    auto* sink = static_cast<BoundedFile*>(target);
    std::size_t bytes = size * count;
    if (bytes > sink->left) {
        return 0;
    }
    sink->left -= bytes;
    return std::fwrite(data, 1, bytes, sink->file);
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

std::string* BasicHttpRequest::get(std::string url, std::string cookie, bool stripPreamble)
{
    HttpBounds bounds = currentBounds();
    std::string body;
    std::string headers;
    if (CurlHandle curl = tvpolicy::net::makeCurlHandle()) {
        CURL* handle = curl.get();
        BoundedText bodySink{&body, capOf(bounds)};
        BoundedText headerSink{&headers, capOf(bounds)};
        curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &appendBounded);
        curl_easy_setopt(handle, CURLOPT_WRITEDATA, &bodySink);
        curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, &appendBounded);
        curl_easy_setopt(handle, CURLOPT_HEADERDATA, &headerSink);
        CurlList unused = agentHeaderList();  // built like the others', then left off on purpose
        curl_easy_setopt(handle, CURLOPT_HTTPHEADER, static_cast<curl_slist*>(nullptr));
        curl_easy_setopt(handle, CURLOPT_USERAGENT, compatibilityUserAgent);
        curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
        curl_easy_setopt(handle, CURLOPT_HTTPGET, 1L);
        if (!cookie.empty()) {
            curl_easy_setopt(handle, CURLOPT_COOKIE, cookie.c_str());
        }
        curl_easy_setopt(handle, CURLOPT_HEADER, 0L);
        applyBounds(handle, bounds);
        curl_easy_perform(handle);
    }

    auto result = std::make_unique<std::string>();
    if (stripPreamble) {
        std::size_t blank = body.size() >= 4 ? body.find("\r\n\r\n") : std::string::npos;
        *result = blank == std::string::npos ? std::move(body) : body.substr(blank + 4);
    } else {
        cookieIn(body, *result);  // the body, not the headers: this is how the agent reads it
    }
    return result.release();
}

std::string* BasicHttpRequest::get(std::string, unsigned int, std::string, std::string, std::string, bool)
{
    return new std::string();
}

std::string* BasicHttpRequest::post(std::string url, std::string postFields, std::string cookie, bool wantContents)
{
    std::map<std::string, std::string> reply = post2(std::move(url), std::move(postFields), std::move(cookie));
    auto found = reply.find(wantContents ? "contents" : "cookie");
    return new std::string(found != reply.end() ? std::move(found->second) : std::string());
}

std::map<std::string, std::string> BasicHttpRequest::post2(std::string url, std::string postFields, std::string cookie)
{
    HttpBounds bounds = currentBounds();
    std::map<std::string, std::string> reply;
    std::string contents;
    std::string headers;
    char errorText[CURL_ERROR_SIZE] = {0};
    long verifyResult = 0;
    long responseCode = 0;
    if (CurlHandle curl = tvpolicy::net::makeCurlHandle()) {
        CURL* handle = curl.get();
        BoundedText bodySink{&contents, capOf(bounds)};
        BoundedText headerSink{&headers, capOf(bounds)};
        curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &appendBounded);
        curl_easy_setopt(handle, CURLOPT_WRITEDATA, &bodySink);
        curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, &appendBounded);
        curl_easy_setopt(handle, CURLOPT_HEADERDATA, &headerSink);
        curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, errorText);
        CurlList headerList = agentHeaderList();
        curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headerList.get());
        curl_easy_setopt(handle, CURLOPT_USERAGENT, compatibilityUserAgent);
        curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
        curl_easy_setopt(handle, CURLOPT_POST, 1L);
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, postFields.c_str());
        if (!cookie.empty()) {
            curl_easy_setopt(handle, CURLOPT_COOKIE, cookie.c_str());
        }
        curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 1L);
        curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 2L);
        curl_easy_setopt(handle, CURLOPT_HEADER, 0L);
        applyBounds(handle, bounds);
        curl_easy_perform(handle);
        curl_easy_getinfo(handle, CURLINFO_SSL_VERIFYRESULT, &verifyResult);
        curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &responseCode);
    } else {
        std::snprintf(errorText, sizeof errorText, "%s", "cannot start a transfer");
    }
    reply["verifyResult"] = std::to_string(verifyResult);
    reply["responseCode"] = std::to_string(responseCode);
    std::string cookieText;
    if (cookieIn(headers, cookieText)) {
        reply["cookie"] = std::move(cookieText);
    }
    reply["contents"] = std::move(contents);
    reply["headers"] = std::move(headers);
    reply["error"] = errorText;
    return reply;
}

long BasicHttpRequest::test(std::string url)
{
    HttpBounds bounds = currentBounds();
    CurlHandle curl = tvpolicy::net::makeCurlHandle();
    if (!curl) {
        return 0;
    }
    CURL* handle = curl.get();
    CurlList unused = agentHeaderList();  // built like the others', then left off on purpose
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, static_cast<curl_slist*>(nullptr));
    curl_easy_setopt(handle, CURLOPT_USERAGENT, compatibilityUserAgent);
    curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
    curl_easy_setopt(handle, CURLOPT_NOBODY, 1L);
    curl_easy_setopt(handle, CURLOPT_HEADER, 0L);
    applyBounds(handle, bounds);
    long code = 0;
    if (curl_easy_perform(handle) == CURLE_OK) {
        curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &code);
    }
    return code;
}

bool BasicHttpRequest::getBinary(std::string url, std::string path)
{
    HttpBounds bounds = currentBounds();
    std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "wb"));
    CurlHandle curl = file ? tvpolicy::net::makeCurlHandle() : CurlHandle();
    if (!curl) {
        return true;
    }
    CURL* handle = curl.get();
    char errorText[CURL_ERROR_SIZE] = {0};
    BoundedFile sink{file.get(), bounds.maxBodyBytes};
    if (bounds.enabled) {
        curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &writeBoundedFile);
        curl_easy_setopt(handle, CURLOPT_WRITEDATA, &sink);
    } else {
        curl_easy_setopt(handle, CURLOPT_WRITEDATA, file.get());
    }
    curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, errorText);
    CurlList headerList = agentHeaderList();
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headerList.get());
    curl_easy_setopt(handle, CURLOPT_USERAGENT, compatibilityUserAgent);
    curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
    curl_easy_setopt(handle, CURLOPT_HEADER, 0L);
    applyBounds(handle, bounds);
    curl_easy_perform(handle);
    return true;
}

std::string BasicHttpRequest::urlEncode(std::string text)
{
    CurlHandle curl = tvpolicy::net::makeCurlHandle();
    if (!curl || text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return text;
    }
    std::unique_ptr<char, decltype(&curl_free)> escaped(
        curl_easy_escape(curl.get(), text.data(), static_cast<int>(text.size())), &curl_free);
    return escaped ? std::string(escaped.get()) : text;
}

void BasicHttpRequest::setBounds(const HttpBounds& bounds)
{
    std::lock_guard<std::mutex> lock(boundsMutex);
    processBounds = bounds;
}

HttpBounds BasicHttpRequest::getBounds() { return currentBounds(); }

}  // namespace com::torvane
