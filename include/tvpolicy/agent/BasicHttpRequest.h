#pragma once

#include <atomic>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include <tvpolicy/export.h>

namespace com::torvane {

/// Limits that every transfer of BasicHttpRequest gets once they are turned on. They are off by
/// default: then libcurl's defaults apply (no time-out, any protocol it knows, no size cap), as
/// the agent has always had it. A program that talks to servers it does not control (the
/// tvpolicy command does) turns them on with BasicHttpRequest::setBounds.
struct TVPOLICY_API HttpBounds {
    bool enabled = false;
    long connectTimeoutMs = 10000;         ///< to have the connection made (TLS included)
    long totalTimeoutMs = 60000;           ///< for the whole transfer
    long lowSpeedBytesPerSecond = 1;       ///< a transfer slower than this ...
    long lowSpeedSeconds = 15;             ///< ... for this long is ended
    std::size_t maxBodyBytes = 64u << 20;  ///< body (and, apart, headers) larger than this end the transfer
    std::string protocols = "http,https";  ///< the schemes a URL may use (libcurl's list form)
    std::string caFile;                    ///< trust the CAs of this PEM file instead of the system's
    /// Neither the server's certificate nor its host name is checked (for a test server only:
    /// anyone on the path can then read and change the transfer).
    bool insecure = false;
    /// More request headers, each "Name: value", sent by every operation after its own (one of
    /// the same name replaces the operation's, User-Agent included). An empty value is sent as
    /// an empty header. An entry whose name is not an HTTP token or whose text holds a control
    /// character other than a tab is not sent (see isValidHttpHeader).
    std::vector<std::string> headers;
    /// When set, a transfer in flight ends (within a fraction of a second) once it turns true.
    const std::atomic<bool>* cancel = nullptr;
};

/// Whether `line` is a request header that HttpBounds::headers sends: a name of HTTP token
/// characters, a colon, and a value without control characters other than a tab.
TVPOLICY_API bool isValidHttpHeader(const std::string& line);

/// The four requests of BasicHttpRequest.
enum class HttpOperation { get, post, head, download };

/// Everything one request of BasicHttpRequest::transfer learnt.
struct TVPOLICY_API HttpTransfer {
    bool completed = false;  ///< the transfer ran to its end (whatever the status)
    long responseCode = 0;   ///< the last HTTP status; 0 when no answer came
    long verifyResult = 0;   ///< the TLS peer verification result (0 = verified or not asked)
    std::string contents;    ///< the body (not for head and download)
    std::string headers;     ///< every header line as received (get and post only)
    std::string error;       ///< why the transfer failed; empty when it completed
};

/// The agent's HTTP client: static operations, each making its own libcurl easy handle and
/// performing one transfer on the calling thread. Calls may run on several threads at once.
///
/// Every request carries the User-Agent "KVA Agent". The agent's own identity,
/// "Torvane-Agent/5.2.6.69 (<OS name> <OS version>;)", travels in an "X-TVUserAgent" header on
/// post2/post and getBinary only; get and test build that header and leave it off on purpose.
/// Both texts are built once when the library is loaded.
///
/// No operation throws for a network failure: it shows as an empty body, a 0 code or the
/// "error" entry of post2. Redirects are never followed.
class TVPOLICY_API BasicHttpRequest {
public:
    BasicHttpRequest() = delete;

    /// GET `url` (with `cookie` when not empty). With `stripPreamble`, the body after its first
    /// CR LF CR LF (the whole body when it has none). Without, the text after the first
    /// "Set-Cookie: " found in the *body* up to the next carriage return, or empty. The caller
    /// owns the new text.
    static std::string* get(std::string url, std::string cookie, bool stripPreamble);
    /// Kept for callers of the older interface: performs nothing and returns a new empty text.
    static std::string* get(std::string url, unsigned int port, std::string a, std::string b, std::string c, bool flag);

    /// post2, then its "contents" (`wantContents`) or its "cookie"; a new empty text when the
    /// key is absent. The caller owns the new text.
    static std::string* post(std::string url, std::string postFields, std::string cookie, bool wantContents);
    /// POST `postFields` to `url` with TLS peer and host verification. The map holds "contents",
    /// "headers" (every header line as received), "error" (libcurl's error text, empty on
    /// success), "verifyResult" and "responseCode" (decimal), and "cookie" when the headers
    /// hold "Set-Cookie: " (the text after the first one up to the next carriage return).
    static std::map<std::string, std::string> post2(std::string url, std::string postFields, std::string cookie);
    /// A HEAD request: the response code, or 0 when the transfer failed.
    static long test(std::string url);
    /// GET `url` into the file `path` (created or truncated). Always true; when the file cannot
    /// be opened nothing is transferred.
    static bool getBinary(std::string url, std::string path);
    /// Percent-encoding of libcurl (a blank gives %20); the text unchanged when that fails.
    static std::string urlEncode(std::string text);

    /// The request that get (HttpOperation::get), post2 (post), test (head) or getBinary
    /// (download, into `path`) makes, with the same options, returning everything libcurl
    /// reported. For tools that need the status and error of any of them.
    /// A post with `contentType` sends that Content-Type instead of libcurl's form type.
    static HttpTransfer transfer(HttpOperation operation, const std::string& url, const std::string& postFields,
                                 const std::string& cookie, const std::string& path,
                                 const std::string& contentType = std::string());

    /// Turns the bounds on or off for every later operation of the process. Not meant to race
    /// with transfers in flight: those keep the bounds they started with.
    static void setBounds(const HttpBounds& bounds);
    static HttpBounds getBounds();
};

}  // namespace com::torvane
