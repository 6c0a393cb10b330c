// ServiceActive: the service manager reports a unit active (and, when asked, enabled).
#include <tvpolicy/host/PostureProbe.h>

#include "checks/PostureTask.h"

namespace tvpolicy::checks {

namespace {

class ServiceActiveTask final : public PostureTask {
public:
    std::string getType() override { return "ServiceActiveTask"; }

private:
    Outcome check() override
    {
        std::string unit = attribute("unit");
        // "ssh" is "ssh.service"; "ssh.socket" and "tmp.mount" keep their suffix.
        if (unit.find('.') == std::string::npos) {
            unit += ".service";
        }
        auto state = currentPosture().unitState(unit);
        if (!state) {
            return unknown(unit + ": " + state.error());
        }
        std::string found = unit + " is " + state->activeState;
        if (!state->unitFileState.empty()) {
            found += " (" + state->unitFileState + ")";
        }
        bool active = state->activeState == "active";
        bool enabledOk = !flag("enabled") || state->unitFileState == "enabled";
        if (active && !enabledOk) {
            found += ", not enabled";
        }
        return {active && enabledOk, found};
    }
};

}  // namespace

Task* createServiceActive() { return new ServiceActiveTask; }

}  // namespace tvpolicy::checks
