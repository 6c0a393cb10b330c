#include <tvpolicy/base/Timestamp.h>

#include <ctime>
#include <iostream>

namespace tvi {

std::string& timestamp(std::string& text, bool prepend)
{
    std::time_t now = std::time(nullptr);
    std::tm utc{};
    if (gmtime_r(&now, &utc) == nullptr) {
        std::cout << "Unable to get time" << '\n';
    }
    char buffer[127];
    std::size_t length = std::strftime(buffer, sizeof buffer, "%Y-%m-%d %H:%M:%S UTC :: ", &utc);
    if (prepend) {
        text.insert(0, buffer, length);
    } else {
        text.assign(buffer, length);
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
