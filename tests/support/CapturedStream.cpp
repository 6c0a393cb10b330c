#include "support/CapturedStream.h"

#include <regex>

namespace testing_support {

CapturedStream::CapturedStream(std::ostream& stream) : stream_(stream), previous_(stream.rdbuf(buffer_.rdbuf())) {}

CapturedStream::~CapturedStream() { stream_.rdbuf(previous_); }

std::vector<std::string> CapturedStream::messages() const
{
    static const std::regex prefix(R"(^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d UTC :: (Debug: )?)");
    std::vector<std::string> lines;
    std::istringstream stream(buffer_.str());
    std::string line;
    while (std::getline(stream, line)) {
        lines.push_back(std::regex_replace(line, prefix, ""));
    }
    return lines;
}

}  // namespace testing_support
