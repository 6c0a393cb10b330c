#include "support/PrivateBus.h"

#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>
#include <unistd.h>

namespace testing_support {

std::string PrivateBus::skipReason()
{
    if (::access("/usr/bin/dbus-daemon", X_OK) != 0 ||
        std::system("/usr/bin/python3 -c 'import dbusmock' >/dev/null 2>&1") != 0) {
        return "dbus-daemon or python3-dbusmock is not installed";
    }
    return {};
}

PrivateBus::PrivateBus() : socket_((tmp_.path() / "bus").string()) {}

PrivateBus::~PrivateBus()
{
    peers_.clear();
    daemon_.reset();
    if (!addressSet_) {
        return;
    }
    if (savedAddress_) {
        ::setenv("DBUS_SYSTEM_BUS_ADDRESS", savedAddress_->c_str(), 1);
    } else {
        ::unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
    }
}

bool PrivateBus::start()
{
    std::string config =
        tmp_.write(
                "bus.conf",
                "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-BUS Bus Configuration 1.0//EN\" "
                "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                "<busconfig><type>system</type><listen>unix:path=" +
                    socket_ +
                    "</listen><auth>EXTERNAL</auth>"
                    "<policy context=\"default\"><allow user=\"*\"/><allow own=\"*\"/><allow send_destination=\"*\"/>"
                    "<allow receive_sender=\"*\"/></policy></busconfig>\n")
            .string();
    daemon_ =
        std::make_unique<ChildProcess>(std::vector<std::string>{"dbus-daemon", "--config-file=" + config, "--nofork"});
    for (int i = 0; i < 100 && !std::filesystem::exists(socket_); ++i) {
        ::usleep(50'000);
    }
    if (!std::filesystem::exists(socket_)) {
        return false;
    }
    const char* previous = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
    savedAddress_ = previous != nullptr ? std::optional<std::string>(previous) : std::nullopt;
    ::setenv("DBUS_SYSTEM_BUS_ADDRESS", address().c_str(), 1);
    addressSet_ = true;
    return true;
}

bool PrivateBus::startMock(const std::string& templateName, const std::vector<std::string>& readyCall)
{
    return startPeer({"/usr/bin/python3", "-m", "dbusmock", "--template", templateName}, readyCall);
}

bool PrivateBus::startPeer(const std::vector<std::string>& argv, const std::vector<std::string>& readyCall)
{
    peers_.push_back(std::make_unique<ChildProcess>(argv));
    std::vector<std::string> probe = {"call"};
    probe.insert(probe.end(), readyCall.begin(), readyCall.end());
    for (int i = 0; i < 200; ++i) {
        if (busctl(probe).exitCode == 0) {
            return true;
        }
        ::usleep(50'000);
    }
    return false;
}

CliResult PrivateBus::busctl(std::vector<std::string> args) const
{
    args.insert(args.begin(), {"busctl", "--address=" + address(), "--json=short"});
    return runProgram(args);
}

nlohmann::json PrivateBus::call(const std::vector<std::string>& args) const
{
    std::vector<std::string> call = {"call"};
    call.insert(call.end(), args.begin(), args.end());
    CliResult result = busctl(call);
    EXPECT_EQ(result.exitCode, 0) << (args.size() > 3 ? args[3] : std::string()) << ": " << result.err;
    return result.out.empty() ? nlohmann::json() : nlohmann::json::parse(result.out, nullptr, false);
}

nlohmann::json PrivateBus::mockControl(const std::string& service, const std::string& path, const std::string& method,
                                       const std::string& signature, const std::vector<std::string>& args) const
{
    std::vector<std::string> full = {service, path, "org.freedesktop.DBus.Mock", method, signature};
    full.insert(full.end(), args.begin(), args.end());
    return call(full);
}

void PrivateBusTest::SetUp()
{
    std::string skip = PrivateBus::skipReason();
    if (!skip.empty()) {
        GTEST_SKIP() << skip;
    }
    ASSERT_TRUE(bus.start()) << "the bus did not start";
}

}  // namespace testing_support
