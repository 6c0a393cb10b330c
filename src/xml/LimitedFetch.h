#pragma once

#include <cstddef>
#include <string>

#include "xml/DocumentLimits.h"

namespace tvpolicy::xml {

/// Bounds of one fetch of a document from the network.
struct FetchLimits {
    long connectTimeoutMs = 10000;
    long totalTimeoutMs = 30000;
    std::size_t maxBytes = maxDocumentBytes;
};

/// The limits every document fetched for the XML reader gets (policy includes). Set them
/// before any parse starts; they are not locked.
FetchLimits& documentFetchLimits();

struct FetchResult {
    bool ok = false;
    long status = 0;    // the HTTP status, 0 when no response came
    std::string body;   // only when ok
    std::string error;  // why not, when not ok
};

/// GETs an http or https address within `limits`. Redirects are not followed; any status
/// other than 2xx, a body over the size cap or a time-out is a failure, and its body is
/// dropped, never handed on. The reason names the cause: the status (and a redirect's
/// target), the time-out, the size cap, an untrusted certificate or the transfer's own error.
FetchResult fetchDocument(const std::string& url, const FetchLimits& limits);

/// Why the last fetchDocument of this thread failed (empty after a success), once: the reader
/// reports a failed fetch only as its own network error, which does not say why.
std::string takeLastFetchFailure();

}  // namespace tvpolicy::xml
