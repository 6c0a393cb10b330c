#include "support/CaptureStream.h"

#include <regex>
#include <sstream>

namespace testing_support {

std::string withoutTimestamps(const std::string& log)
{
    static const std::regex prefix(R"(\d{4}-\d{2}-\d{2} \d{2}:\d{2}:\d{2} UTC :: )");
    return std::regex_replace(log, prefix, "");
}

std::vector<std::string> logMessages(const std::string& log)
{
    static const std::regex marker("^Debug: ");
    std::vector<std::string> lines;
    std::istringstream stream(withoutTimestamps(log));
    std::string line;
    while (std::getline(stream, line)) {
        lines.push_back(std::regex_replace(line, marker, ""));
    }
    return lines;
}

}  // namespace testing_support
