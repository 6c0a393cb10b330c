#include "host/parse/ProcText.h"

namespace tvpolicy::parse {

std::string procCommName(const std::string& raw)
{
    if (!raw.empty() && raw.back() == '\n') {
        return raw.substr(0, raw.size() - 1);
    }
    return raw;
}

std::string procExeTarget(const std::string& raw)
{
    static const std::string deleted = " (deleted)";
    if (raw.size() > deleted.size() && raw.compare(raw.size() - deleted.size(), deleted.size(), deleted) == 0) {
        return raw.substr(0, raw.size() - deleted.size());
    }
    return raw;
}

std::string sysfsValue(const std::string& raw)
{
    std::size_t end = raw.find_last_not_of(" \t\r\n");
    return end == std::string::npos ? std::string() : raw.substr(0, end + 1);
}

}  // namespace tvpolicy::parse
