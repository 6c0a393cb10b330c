#pragma once

#include <map>
#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/host/HostProbe.h>

namespace tvpolicy {

/// A described host: every fact is a plain field that the caller sets. Used with ScopedHost to
/// run checks against exact facts.
class TVPOLICY_API FakeHost : public HostProbe {
public:
    /// Fixed system paths mapped by prefix: {"/Library/Receipts/", "/tmp/x/receipts/"} sends
    /// "/Library/Receipts/A.pkg" to "/tmp/x/receipts/A.pkg". The longest matching prefix
    /// wins; an unmapped path is answered unchanged.
    std::map<std::string, std::string> pathMap;

    std::string systemPath(const std::string& path) const override;
};

}  // namespace tvpolicy
