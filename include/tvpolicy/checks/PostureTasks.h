#pragma once

#include <string>
#include <vector>

#include <tvpolicy/export.h>

namespace tvpolicy {

/// Implemented by every posture check: what its last perform found, in words ("openssh-server
/// 1:9.2p1-2+deb12u3 is installed", "/etc/shadow: owner root, group shadow, mode 0640"), or why
/// it could not find out; empty before the first perform. Reports show it beside the check,
/// nested checks included.
class TVPOLICY_API PostureEvidence {
public:
    virtual ~PostureEvidence();
    virtual std::string lastFinding() const = 0;
};

/// Registers the posture checks of a Linux fleet with TaskFactory and TaskCatalog, after the
/// kinds the library registers by itself: PackageInstalledTask, ServiceActiveTask,
/// FileContentTask, FileModeTask, PortListeningTask, FirewallActiveTask, DiskEncryptedTask and
/// KernelParameterTask. A program that wants them in its policies calls this once before it
/// parses one; a second call changes nothing. Without the call the registry holds exactly
/// the built-in kinds, in their order.
///
/// The checks read their facts from currentPosture() (and installed packages from
/// currentHost()), so a ScopedPosture runs them against a described host. A check that
/// cannot find out fails and says why; none throws.
///
///     tvpolicy::registerPostureTasks();
///     Policy policy;  // <PackageInstalled name="openssh-server" required="1:9.2"/> now parses
TVPOLICY_API void registerPostureTasks();

/// The registered names of the posture kinds, in registration order.
TVPOLICY_API const std::vector<std::string>& postureTaskKinds();

/// The attributes a posture kind cannot do without; empty for other kinds.
TVPOLICY_API std::vector<std::string> requiredPostureAttributes(const std::string& kind);

/// What is wrong with the value of one attribute of a posture kind: an operation, protocol,
/// port, mode or pattern the check could not use ("maxMode is not an octal mode: 0999"), or
/// empty when the value is usable or the attribute is not one the kind checks.
TVPOLICY_API std::string postureAttributeProblem(const std::string& kind, const std::string& attribute,
                                                 const std::string& value);

}  // namespace tvpolicy
