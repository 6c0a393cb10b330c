#include <tvpolicy/agent/BasicHttpRequest.h>

#include <cctype>
#include <cstdio>
#include <cstring>
#include <limits>
#include <memory>
#include <mutex>

#include <tvpolicy/host/Machine.h>

#include "net/CurlHandle.h"
#include "net/ResponseText.h"

namespace com::torvane {

namespace {

using tvpolicy::net::appendBounded;
using tvpolicy::net::bodyAfterPreamble;
using tvpolicy::net::BoundedText;
using tvpolicy::net::cookieIn;
using tvpolicy::net::CurlHandle;
using tvpolicy::net::CurlList;

const char* const compatibilityUserAgent = "KVA Agent";
const std::string agentUserAgent = "Torvane-Agent/5.2.6.69 (" + Machine::getOSString() + ";)";
const std::string agentHeader = "X-TVUserAgent: " + agentUserAgent;

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

extern "C" int endWhenCancelled(void* flag, curl_off_t, curl_off_t, curl_off_t, curl_off_t)
{
    return static_cast<const std::atomic<bool>*>(flag)->load() ? 1 : 0;
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
    if (!bounds.caFile.empty()) {
        curl_easy_setopt(handle, CURLOPT_CAINFO, bounds.caFile.c_str());
        curl_easy_setopt(handle, CURLOPT_CAPATH, nullptr);
    }
    if (bounds.insecure) {
        curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 0L);
        curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 0L);
    }
    if (bounds.cancel != nullptr) {
        curl_easy_setopt(handle, CURLOPT_XFERINFOFUNCTION, &endWhenCancelled);
        curl_easy_setopt(handle, CURLOPT_XFERINFODATA, const_cast<std::atomic<bool>*>(bounds.cancel));
        curl_easy_setopt(handle, CURLOPT_NOPROGRESS, 0L);
    }
}

// A file written within the body cap, for getBinary when the bounds are on.
struct BoundedFile {
    std::FILE* file;
    std::size_t left;
    bool tooLarge = false;  // set when a block would have passed the cap
};

extern "C" std::size_t writeBoundedFile(char* data, std::size_t size, std::size_t count, void* target)
{
    auto* sink = static_cast<BoundedFile*>(target);
    std::size_t bytes = size * count;
    if (bytes > sink->left) {
        sink->tooLarge = true;
        return 0;
    }
    sink->left -= bytes;
    return std::fwrite(data, 1, bytes, sink->file);
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// A request header as libcurl reads it: "Name;" sends Name empty, where "Name:" would take
// libcurl's own header of that name away.
std::string curlHeaderLine(const std::string& line)
{
    std::size_t colon = line.find(':');
    std::size_t value = line.find_first_not_of(" \t", colon + 1);
    return value == std::string::npos ? line.substr(0, colon) + ";" : line;
}

void appendHeader(CurlList& list, const std::string& line)
{
    curl_slist* longer = curl_slist_append(list.get(), line.c_str());
    if (!list) {
        list.reset(longer);  // appending to an existing list keeps its head
    }
}

}  // namespace

bool isValidHttpHeader(const std::string& line)
{
    static const char* const tokenMarks = "!#$%&'*+-.^_`|~";
    std::size_t colon = line.find(':');
    if (colon == 0 || colon == std::string::npos) {
        return false;
    }
    for (std::size_t i = 0; i < colon; ++i) {
        unsigned char c = static_cast<unsigned char>(line[i]);
        if (!std::isalnum(c) && std::strchr(tokenMarks, c) == nullptr) {
            return false;
        }
    }
    for (std::size_t i = colon + 1; i < line.size(); ++i) {
        unsigned char c = static_cast<unsigned char>(line[i]);
        if ((c < 0x20 && c != '\t') || c == 0x7f) {
            return false;
        }
    }
    return true;
}

HttpTransfer BasicHttpRequest::transfer(HttpOperation operation, const std::string& url, const std::string& postFields,
                                        const std::string& cookie, const std::string& path,
                                        const std::string& contentType)
{
    using Op = HttpOperation;
    HttpBounds bounds = currentBounds();
    HttpTransfer result;
    std::unique_ptr<std::FILE, FileCloser> file;
    if (operation == Op::download) {
        file.reset(std::fopen(path.c_str(), "wb"));
        if (!file) {
            result.error = "cannot open " + path + " for writing";
            return result;  // libcurl would write through a null file
        }
    }
    CurlHandle curl = tvpolicy::net::makeCurlHandle();
    if (!curl) {
        result.error = tvpolicy::net::whyNoCurlHandle();
        return result;
    }

    // The options in the order the agent has always set them; get and test send no header of
    // their own (only the bounds' headers, when there are any).
    CURL* handle = curl.get();
    bool collects = operation == Op::get || operation == Op::post;
    BoundedText bodySink{&result.contents, capOf(bounds)};
    BoundedText headerSink{&result.headers, capOf(bounds)};
    BoundedFile fileSink{file.get(), bounds.maxBodyBytes};
    char errorText[CURL_ERROR_SIZE] = {0};
    if (collects) {
        curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &appendBounded);
        curl_easy_setopt(handle, CURLOPT_WRITEDATA, &bodySink);
        curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, &appendBounded);
        curl_easy_setopt(handle, CURLOPT_HEADERDATA, &headerSink);
    } else if (operation == Op::download && bounds.enabled) {
        curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &writeBoundedFile);
        curl_easy_setopt(handle, CURLOPT_WRITEDATA, &fileSink);
    } else if (operation == Op::download) {
        curl_easy_setopt(handle, CURLOPT_WRITEDATA, file.get());
    }
    if (operation == Op::post || operation == Op::download) {
        curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, errorText);
    }
    bool sendsAgentHeader = operation == Op::post || operation == Op::download;
    CurlList headerList;
    if (sendsAgentHeader) {
        appendHeader(headerList, agentHeader);
    }
    if (operation == Op::post && !contentType.empty()) {
        appendHeader(headerList, "Content-Type: " + contentType);
    }
    if (bounds.enabled) {
        for (const std::string& line : bounds.headers) {
            if (isValidHttpHeader(line)) {
                appendHeader(headerList, curlHeaderLine(line));
            }
        }
    }
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headerList.get());
    curl_easy_setopt(handle, CURLOPT_USERAGENT, compatibilityUserAgent);
    curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
    if (operation == Op::get) {
        curl_easy_setopt(handle, CURLOPT_HTTPGET, 1L);
    } else if (operation == Op::post) {
        curl_easy_setopt(handle, CURLOPT_POST, 1L);
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, postFields.c_str());
    } else if (operation == Op::head) {
        curl_easy_setopt(handle, CURLOPT_NOBODY, 1L);
    }
    if (collects && !cookie.empty()) {
        curl_easy_setopt(handle, CURLOPT_COOKIE, cookie.c_str());
    }
    if (operation == Op::post) {
        curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 1L);
        curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 2L);
    }
    curl_easy_setopt(handle, CURLOPT_HEADER, 0L);
    applyBounds(handle, bounds);

    CURLcode code = curl_easy_perform(handle);
    curl_easy_getinfo(handle, CURLINFO_SSL_VERIFYRESULT, &result.verifyResult);
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &result.responseCode);
    result.completed = code == CURLE_OK;
    if (bodySink.tooLarge || headerSink.tooLarge || fileSink.tooLarge || code == CURLE_FILESIZE_EXCEEDED) {
        result.error = "the answer is larger than " + std::to_string(bounds.maxBodyBytes) + " bytes";
    } else if (!result.completed) {
        result.error = errorText[0] != 0 ? errorText : curl_easy_strerror(code);
    }
    return result;
}

std::string* BasicHttpRequest::get(std::string url, std::string cookie, bool stripPreamble)
{
    // Whether the transfer succeeded is not looked at: what arrived is the body.
    std::string body = transfer(HttpOperation::get, url, std::string(), cookie, std::string()).contents;
    auto result = std::make_unique<std::string>();
    if (stripPreamble) {
        *result = bodyAfterPreamble(std::move(body));
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
    HttpTransfer done = transfer(HttpOperation::post, url, postFields, cookie, std::string());
    std::map<std::string, std::string> reply;
    reply["verifyResult"] = std::to_string(done.verifyResult);
    reply["responseCode"] = std::to_string(done.responseCode);
    std::string cookieText;
    if (cookieIn(done.headers, cookieText)) {
        reply["cookie"] = std::move(cookieText);
    }
    reply["contents"] = std::move(done.contents);
    reply["headers"] = std::move(done.headers);
    reply["error"] = std::move(done.error);
    return reply;
}

long BasicHttpRequest::test(std::string url)
{
    HttpTransfer done = transfer(HttpOperation::head, url, std::string(), std::string(), std::string());
    return done.completed ? done.responseCode : 0;
}

bool BasicHttpRequest::getBinary(std::string url, std::string path)
{
    transfer(HttpOperation::download, url, std::string(), std::string(), path);
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
