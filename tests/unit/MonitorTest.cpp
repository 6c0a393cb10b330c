#include <tvpolicy/checks/Monitor.h>
#include <tvpolicy/host/DescribedHostProbe.h>
#include <tvpolicy/host/HostProbe.h>

#include <gtest/gtest.h>

#include <chrono>
#include <iostream>
#include <limits>
#include <memory>

#include "support/CaptureStream.h"

using com::torvane::policy::Monitor;

namespace {

using MonitorList = std::vector<std::unique_ptr<Monitor>>;

MonitorList parseMonitors(const std::string& xml)
{
    std::unique_ptr<std::list<Monitor*>> parsed(Monitor::parseMonitors(xml));
    MonitorList monitors;
    for (Monitor* monitor : *parsed) {
        monitors.emplace_back(monitor);
    }
    return monitors;
}

std::string statusOf(Monitor& monitor)
{
    std::unique_ptr<com::torvane::policy::MonitorResponse> response(monitor.perform());
    return response->getXML();
}

std::string report(const std::string& id, bool status)
{
    return "<monitor><id>" + id + "</id><status>" + (status ? "true" : "false") + "</status></monitor>";
}

struct MonitorCase {
    std::string name;
    std::string element;  // one Monitor element
    bool status;
};

class MonitorStatusTest : public testing::TestWithParam<MonitorCase> {};

TEST_P(MonitorStatusTest, ReportsTheTasksOutcome)
{
    tvpolicy::DescribedHostProbe host;
    host.processes = {{1, "init", std::string("/sbin/init")}, {42, "sshd", std::string("/usr/sbin/sshd")}};
    tvpolicy::ScopedHost scoped(host);

    MonitorList monitors = parseMonitors("<monitors>" + GetParam().element + "</monitors>");
    ASSERT_EQ(monitors.size(), 1u);
    EXPECT_EQ(statusOf(*monitors.front()), report("m", GetParam().status)) << GetParam().element;
}

INSTANTIATE_TEST_SUITE_P(
    Monitors, MonitorStatusTest,
    testing::Values(MonitorCase{"empty", "<Monitor id='m'/>", false},
                    MonitorCase{"empty prohibited", "<Monitor id='m' prohibit='true'/>", true},
                    MonitorCase{"passing", "<Monitor id='m'><true/></Monitor>", true},
                    MonitorCase{"stops at a failure", "<Monitor id='m'><true/><false/><true/></Monitor>", false},
                    MonitorCase{"prohibit inverts", "<Monitor id='m' prohibit='true'><true/></Monitor>", false},
                    MonitorCase{"prohibit only for true", "<Monitor id='m' prohibit='TRUE'><true/></Monitor>", true},
                    MonitorCase{"prohibit 1 is not true", "<Monitor id='m' prohibit='1'><false/></Monitor>", false},
                    MonitorCase{"process running", "<Monitor id='m'><ProcessExists procName='sshd'/></Monitor>", true},
                    MonitorCase{"prohibited process running",
                                "<Monitor id='m' prohibit='true'><ProcessExists procName='sshd'/></Monitor>", false},
                    MonitorCase{"prohibited process absent",
                                "<Monitor id='m' prohibit='true'><ProcessExists procName='p2pd'/></Monitor>", true},
                    MonitorCase{"nested composites",
                                "<Monitor id='m'><and><true/><or><false/><Validate status='true'/></or>"
                                "<not><and><true/><false/></and></not></and></Monitor>",
                                true},
                    MonitorCase{"nested failure",
                                "<Monitor id='m'><or><false/><and><true/><not><true/></not></and></or></Monitor>",
                                false},
                    MonitorCase{"unknown and text skipped",
                                "<Monitor id='m'>text<!-- c --><Bogus x='1'><false/></Bogus><true/></Monitor>", true},
                    MonitorCase{"a check keeps no terms",
                                "<Monitor id='m'><ProcessExists procName='sshd'><false/></ProcessExists></Monitor>",
                                true},
                    MonitorCase{"names are exact", "<Monitor id='m'><True/><FALSE/></Monitor>", false}),
    [](const auto& testCase) {
        std::string n = testCase.param.name;
        for (char& c : n)
            if (!isalnum(c))
                c = '_';
        return n;
    });

TEST(Monitor, CollectsMonitorElementsAtAnyDepthInOrder)
{
    MonitorList monitors = parseMonitors(
        "<root><Monitor id='a' period='60'><true/></Monitor><group><Monitor id='b' period='5x'/>"
        "<x><Monitor id='c&amp;d' period='abc'><false/></Monitor></x></group><monitor id='lower'/></root>");
    ASSERT_EQ(monitors.size(), 3u);
    EXPECT_EQ(monitors[0]->getID(), "a");
    EXPECT_EQ(monitors[0]->getPeriod(), 60);
    EXPECT_EQ(monitors[1]->getPeriod(), 5);  // leading digits only
    EXPECT_EQ(monitors[2]->getPeriod(), 0);
    EXPECT_EQ(monitors[0]->getPriority(), 0);
    // The id is written as it is, not escaped.
    EXPECT_EQ(statusOf(*monitors[2]), "<monitor><id>c&d</id><status>false</status></monitor>");
}

TEST(Monitor, TextThatIsNoXmlGivesNoMonitors)
{
    for (const std::string text : {"", "not xml at all", "<Monitor id='a'", "\xff\xfe"}) {
        testing_support::CaptureStream log(std::clog);
        testing_support::CaptureStream errors(std::cerr);
        EXPECT_TRUE(parseMonitors(text).empty()) << text;
    }
    testing_support::CaptureStream errors(std::cerr);
    parseMonitors("");
    EXPECT_NE(errors.text().find("No Doc???"), std::string::npos);
}

long long seconds(const std::timespec& t) { return t.tv_sec; }

TEST(Monitor, NextRunTimeIsTheLastRunPlusThePeriod)
{
    using std::chrono::system_clock;
    auto nowSeconds = [] { return static_cast<long long>(system_clock::to_time_t(system_clock::now())); };
    long long before = nowSeconds();
    MonitorList monitors = parseMonitors("<m><Monitor id='p' period='30'><true/></Monitor><Monitor id='z'/></m>");
    long long built = nowSeconds();
    for (auto& monitor : monitors) {  // due at once
        EXPECT_GE(seconds(monitor->getNextRunTime()), before);
        EXPECT_LE(seconds(monitor->getNextRunTime()), built);
        EXPECT_LT(monitor->getNextRunTime().tv_nsec, 1000000000L);
    }
    long long ran = nowSeconds();
    statusOf(*monitors[0]);
    statusOf(*monitors[1]);
    long long after = nowSeconds();
    EXPECT_GE(seconds(monitors[0]->getNextRunTime()), ran + 30);
    EXPECT_LE(seconds(monitors[0]->getNextRunTime()), after + 30);
    // No period: the next run time is the time of the last run.
    MonitorList extreme = parseMonitors(
        "<m><Monitor id='far' period='99999999999999999999'/>"
        "<Monitor id='past' period='-99999999999999999999'/></m>");
    statusOf(*extreme[0]);
    statusOf(*extreme[1]);
    EXPECT_EQ(extreme[0]->getNextRunTime().tv_sec, std::numeric_limits<std::time_t>::max());
    EXPECT_LT(extreme[1]->getNextRunTime().tv_sec, 0);
    EXPECT_GE(seconds(monitors[1]->getNextRunTime()), ran);
    EXPECT_LE(seconds(monitors[1]->getNextRunTime()), after);
}

TEST(Monitor, StringFormReadsTheRootWithoutProhibitOrNesting)
{
    testing_support::CaptureStream log(std::clog);
    // The node form nests the terms: and(false) fails, and prohibit inverts it.
    MonitorList nested = parseMonitors("<Monitor id='s' period='7' prohibit='true'><and><false/></and></Monitor>");
    ASSERT_EQ(nested.size(), 1u);
    EXPECT_EQ(statusOf(*nested.front()), report("s", true));

    // The string form takes the and without its terms (an empty and passes) and no prohibit.
    Monitor single("<Monitor id='s' period='7' prohibit='true'><and><false/></and><Bogus/></Monitor>");
    EXPECT_EQ(single.getID(), "s");
    EXPECT_EQ(single.getPeriod(), 7);
    EXPECT_FALSE(single.getProhibit());
    EXPECT_EQ(single.getTasks().size(), 1u);
    EXPECT_EQ(statusOf(single), report("s", true));

    Monitor broken("<Monitor id='x'");
    EXPECT_EQ(broken.getID(), "");
    EXPECT_TRUE(broken.getTasks().empty());
}

}  // namespace
