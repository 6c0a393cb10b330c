#include "host/ProcessNames.h"

namespace tvpolicy::host {

namespace {

// The offsets of the last component of `path`: [start, end).
std::pair<std::size_t, std::size_t> lastComponent(std::string_view path)
{
    std::size_t last = path.find_last_not_of('/');
    if (last == std::string_view::npos) {
        return {0, 0};
    }
    std::size_t slash = path.rfind('/', last);
    return {slash == std::string_view::npos ? 0 : slash + 1, last + 1};
}

}  // namespace

std::string executableName(std::string_view path)
{
    auto [start, end] = lastComponent(path);
    if (end == 0) {
        return path.empty() ? std::string(".") : std::string("/");
    }
    return std::string(path.substr(start, end - start));
}

bool isExecutableNamed(std::string_view path, std::string_view name)
{
    auto [start, end] = lastComponent(path);
    if (end == 0) {
        return name == (path.empty() ? "." : "/");
    }
    return path.substr(start, end - start) == name;
}

}  // namespace tvpolicy::host
