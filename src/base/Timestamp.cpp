#include <tvpolicy/base/Timestamp.h>

#include <iostream>

#include "base/TimestampText.h"

namespace tvi {

void timestampText(std::time_t when, std::string& text)
{
    std::tm utc{};
    if (gmtime_r(&when, &utc) == nullptr) {
        std::cout << "Unable to get time" << '\n';
    }
    char buffer[127];
    std::size_t length = std::strftime(buffer, sizeof buffer, "%Y-%m-%d %H:%M:%S UTC :: ", &utc);
    text.assign(buffer, length);
}

std::string& timestamp(std::string& text, bool prepend)
{
    if (prepend) {
        std::string stamp;
        timestampText(std::time(nullptr), stamp);
        text.insert(0, stamp);
    } else {
        timestampText(std::time(nullptr), text);
    }
    return text;
}

std::ostream& tslog(std::ostream& stream)
{
    if (!stream.good() || stream.rdbuf() == nullptr) {
        return stream;
    }
    std::string prefix;
    return stream << timestamp(prefix, false);
}

}  // namespace tvi
