#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/ChildProcess.h"
#include "support/RunCli.h"
#include "support/TempDir.h"

namespace testing_support {

/// A system-like D-Bus daemon of a test's own, with a python3-dbusmock template on it. While
/// it lives DBUS_SYSTEM_BUS_ADDRESS points at it, so the library's system-bus clients (and
/// programs the test starts) talk to the mock; the previous value comes back at the end.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// Why the bus cannot be run here (dbus-daemon or dbusmock missing); empty when it can.
    static std::string skipReason();

    /// Starts the daemon; false when it did not come up.
    bool start();
    /// Starts dbusmock's `templateName` (a template of dbusmock's or the path of a template
    /// file) and waits until `readyCall` (busctl arguments after "call") answers; false when
    /// it never did. Several mocks may run on one bus.
    bool startMock(const std::string& templateName, const std::vector<std::string>& readyCall);
    /// Starts any program that serves on the bus (`argv`) and waits for `readyCall` the same way.
    bool startPeer(const std::vector<std::string>& argv, const std::vector<std::string>& readyCall);

    /// The bus address ("unix:path=...").
    std::string address() const { return "unix:path=" + socket_; }
    /// Runs busctl on this bus with JSON output.
    CliResult busctl(std::vector<std::string> args) const;
    /// busctl call with `args`; its parsed JSON reply (null when it printed nothing). Failures
    /// are reported as test failures.
    nlohmann::json call(const std::vector<std::string>& args) const;
    /// Calls `method` of dbusmock's control interface on the object `path` of `service`.
    nlohmann::json mockControl(const std::string& service, const std::string& path, const std::string& method,
                               const std::string& signature, const std::vector<std::string>& args) const;

private:
    TempDir tmp_;
    std::string socket_;
    std::optional<std::string> savedAddress_;
    bool addressSet_ = false;
    std::unique_ptr<ChildProcess> daemon_;
    std::vector<std::unique_ptr<ChildProcess>> peers_;
};

/// A test with a private bus running (skipped where it cannot run); fixtures start their mock
/// on `bus`.
class PrivateBusTest : public ::testing::Test {
protected:
    void SetUp() override;

    PrivateBus bus;
};

}  // namespace testing_support
