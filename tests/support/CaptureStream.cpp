#include "support/CaptureStream.h"

#include <regex>

namespace testing_support {

std::string withoutTimestamps(const std::string& log)
{
    static const std::regex prefix(R"(\d{4}-\d{2}-\d{2} \d{2}:\d{2}:\d{2} UTC :: )");
    return std::regex_replace(log, prefix, "");
}

}  // namespace testing_support
