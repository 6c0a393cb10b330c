#pragma once

#include <xercesc/util/XMLNetAccessor.hpp>

namespace tvpolicy::xml {

/// What the XML reader's URL input sources fetch through, in place of the accessor built into
/// the XML library (which has no time-out, follows redirects and hands on error pages): a GET
/// of http and https addresses within documentFetchLimits(). A failed fetch is logged and
/// thrown as the reader's network error, which the reader reports as a fatal parse error.
class LimitedNetAccessor : public xercesc::XMLNetAccessor {
public:
    const XMLCh* getId() const override;
    xercesc::BinInputStream* makeNew(const xercesc::XMLURL& url, const xercesc::XMLNetHTTPInfo* httpInfo) override;
};

}  // namespace tvpolicy::xml
