#include "host/parse/ProcText.h"

namespace tvpolicy::parse {

std::string procCommName(const std::string& raw)
{
    if (!raw.empty() && raw.back() == '\n') {
        return raw.substr(0, raw.size() - 1);
    }
    return raw;
}

std::string_view procExeTargetView(std::string_view raw)
{
    constexpr std::string_view deleted = " (deleted)";
    if (raw.size() > deleted.size() && raw.substr(raw.size() - deleted.size()) == deleted) {
        raw.remove_suffix(deleted.size());
    }
    return raw;
}

std::string procExeTarget(const std::string& raw) { return std::string(procExeTargetView(raw)); }

std::string sysfsValue(const std::string& raw)
{
    std::size_t end = raw.find_last_not_of(" \t\r\n");
    return end == std::string::npos ? std::string() : raw.substr(0, end + 1);
}

}  // namespace tvpolicy::parse
