#include <tvpolicy/host/FakeHost.h>

namespace tvpolicy {

std::string FakeHost::systemPath(const std::string& path) const
{
    const std::pair<const std::string, std::string>* best = nullptr;
    for (const auto& mapping : pathMap) {
        if (path.compare(0, mapping.first.size(), mapping.first) == 0 &&
            (best == nullptr || mapping.first.size() > best->first.size())) {
            best = &mapping;
        }
    }
    return best == nullptr ? path : best->second + path.substr(best->first.size());
}

}  // namespace tvpolicy
