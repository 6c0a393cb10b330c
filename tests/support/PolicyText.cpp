#include "support/PolicyText.h"

#include <iostream>

#include "support/CaptureStream.h"

namespace testing_support {

ParsedPolicy parsePolicy(const std::string& xml, bool showErrors)
{
    ParsedPolicy parsed;
    CaptureStream out(std::cout);
    CaptureStream log(std::clog);
    parsed.policy.reset(Policy::parseFromString(xml, showErrors));
    std::cout.flush();
    parsed.out = out.text();
    parsed.log = log.text();
    return parsed;
}

}  // namespace testing_support
