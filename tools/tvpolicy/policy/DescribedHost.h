#pragma once

#include <memory>
#include <string>

#include <tvpolicy/base/Result.h>
#include <tvpolicy/host/DescribedHostProbe.h>
#include <tvpolicy/host/PostureProbe.h>

namespace tvpolicy::cli {

/// A host described by a JSON document (format in the README), ready to stand in for this
/// computer through tvpolicy::ScopedHost. Paths the checks open or search are mapped into the
/// description's "root" folder (relative to the document's folder); without one, into an empty
/// folder made for the run and removed with it. Commands are answered from "commands", never run.
class DescribedHost {
public:
    /// Reads `path`; a failure naming the field at fault when it cannot be used.
    static Result<std::unique_ptr<DescribedHost>> load(const std::string& path);
    ~DescribedHost();
    DescribedHost(const DescribedHost&) = delete;
    DescribedHost& operator=(const DescribedHost&) = delete;

    tvpolicy::DescribedHostProbe& host() { return host_; }
    /// The posture facts (services, sockets, packet filter, mounts, kernel parameters, file
    /// owners and modes), for tvpolicy::ScopedPosture.
    tvpolicy::DescribedPosture& posture() { return posture_; }

private:
    DescribedHost() = default;

    tvpolicy::DescribedHostProbe host_;
    tvpolicy::DescribedPosture posture_;
    std::string emptyRoot_;  // made for a description without "root"; removed on destruction
};

}  // namespace tvpolicy::cli
