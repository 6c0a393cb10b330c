#pragma once

#include <cstddef>
#include <string>

#include <tvpolicy/base/Result.h>

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

/// A document that a server gave with a 2xx status.
struct FetchedDocument {
    long status = 0;
    std::string body;
};

/// GETs an http or https address within `limits`. Redirects are not followed; any status
/// other than 2xx, a body over the size cap or a time-out is a failure, and its body is
/// dropped, never handed on. The failure names the cause: the status (and a redirect's
/// target), the time-out, the size cap, an untrusted certificate or the transfer's own error;
/// its code is the HTTP status, 0 when no response came.
Result<FetchedDocument> fetchDocument(const std::string& url, const FetchLimits& limits);

/// Why the last fetchDocument of this thread failed (empty after a success), once: the reader
/// reports a failed fetch only as its own network error, which does not say why.
std::string takeLastFetchFailure();

}  // namespace tvpolicy::xml
