// ServiceActive against systemd's manager as python3-dbusmock's template plays it, on a
// private system-like bus: units added, started and stopped through the mock, the unit file
// state added as a property of the unit.
#include <gtest/gtest.h>

#include <memory>

#include "checks/PostureTask.h"
#include "support/PrivateBus.h"

namespace {

const char* const systemd1 = "org.freedesktop.systemd1";
const char* const systemd1Path = "/org/freedesktop/systemd1";
const char* const manager = "org.freedesktop.systemd1.Manager";

class MockedSystemd : public testing_support::PrivateBusTest {
protected:
    void SetUp() override
    {
        PrivateBusTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        ASSERT_TRUE(bus.startMock(
            "systemd", {systemd1, systemd1Path, "org.freedesktop.DBus.Properties", "Get", "ss", manager, "Version"}))
            << "the systemd mock did not come up";
    }

    void addUnit(const std::string& unit, bool started, const std::string& fileState)
    {
        bus.mockControl(systemd1, systemd1Path, "AddMockUnit", "s", {unit});
        if (started) {
            bus.call({systemd1, systemd1Path, manager, "StartUnit", "ss", unit, "replace"});
        }
        if (!fileState.empty()) {
            std::string path = bus.call({systemd1, systemd1Path, manager, "GetUnit", "s", unit})["data"][0];
            bus.mockControl(systemd1, path, "AddProperty", "ssv",
                            {"org.freedesktop.systemd1.Unit", "UnitFileState", "s", fileState});
        }
    }

    static std::pair<bool, std::string> serviceActive(const std::string& unit, const char* enabled = nullptr)
    {
        std::unique_ptr<Task> task(tvpolicy::checks::createServiceActive());
        Task::Attribute name{"unit", unit};
        task->setAttribute(&name);
        if (enabled != nullptr) {
            Task::Attribute flag{"enabled", enabled};
            task->setAttribute(&flag);
        }
        std::unique_ptr<TaskResponse> response(task->perform());
        return {response->passed, response->message};
    }
};

TEST_F(MockedSystemd, ActiveEnabledInactiveAndUnknownUnits)
{
    addUnit("ssh.service", true, "enabled");
    addUnit("cron.service", true, "disabled");
    addUnit("telnet.socket", false, "");
    struct Row {
        const char* unit;
        const char* enabled;
        bool passes;
        const char* message;
    } rows[] = {
        {"ssh", nullptr, true, "ssh.service is active (enabled)"},
        {"ssh.service", "true", true, "ssh.service is active (enabled)"},
        {"cron", "true", false, "cron.service is active (disabled), not enabled"},
        {"cron", "false", true, "cron.service is active (disabled)"},
        {"telnet.socket", nullptr, false, "telnet.socket is inactive"},
        {"absent", nullptr, false, "absent.service: not found"},
    };
    for (const auto& row : rows) {
        auto [passed, message] = serviceActive(row.unit, row.enabled);
        EXPECT_EQ(passed, row.passes) << row.unit << ": " << message;
        EXPECT_EQ(message.rfind(row.message, 0), 0u) << row.unit << ": " << message;
    }
    bus.call({systemd1, systemd1Path, manager, "StopUnit", "ss", "ssh.service", "replace"});
    EXPECT_FALSE(serviceActive("ssh").first);
}

TEST(ServiceWithoutBus, FailsSayingTheBusDoesNotAnswer)
{
    const char* saved = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
    std::string previous = saved != nullptr ? saved : "";
    ::setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/tvpolicy-bus", 1);
    std::unique_ptr<Task> task(tvpolicy::checks::createServiceActive());
    Task::Attribute name{"unit", "ssh"};
    task->setAttribute(&name);
    std::unique_ptr<TaskResponse> response(task->perform());
    if (saved != nullptr) {
        ::setenv("DBUS_SYSTEM_BUS_ADDRESS", previous.c_str(), 1);
    } else {
        ::unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
    }
    EXPECT_FALSE(response->passed);
    EXPECT_EQ(response->detail, "Task could not be performed.");
    EXPECT_NE(response->message.find("ssh.service: "), std::string::npos) << response->message;
}

}  // namespace
