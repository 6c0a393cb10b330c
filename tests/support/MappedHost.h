#pragma once

#include <map>
#include <string>

#include <tvpolicy/host/DescribedHostProbe.h>

#include "support/TempDir.h"

namespace testing_support {

/// A fake host in force while this lives, whose system paths lead into a fresh folder: each
/// system path of `paths` maps to the folder's relative path given with it.
class MappedHost {
public:
    explicit MappedHost(const std::map<std::string, std::string>& paths) : scoped_(host)
    {
        for (const auto& [system, relative] : paths) {
            host.pathMap[system] = (tmp.path() / relative).string();
        }
    }

    TempDir tmp;
    tvpolicy::DescribedHostProbe host;

private:
    tvpolicy::ScopedHost scoped_;
};

}  // namespace testing_support
