// Several threads reading documents at once (agent documents, policies, monitors), the first of
// them initialising the XML platform: every thread must get exactly what a lone reader gets.
#include <tvpolicy/agent/AgentConfigXML.h>
#include <tvpolicy/agent/AgentSchema.h>
#include <tvpolicy/agent/AgentStatusXML.h>
#include <tvpolicy/agent/LoginField.h>
#include <tvpolicy/agent/WifiConfigurationProfile.h>
#include <tvpolicy/checks/Monitor.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <iostream>
#include <memory>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace {

const std::string ns = com::torvane::agentSchemaNamespace;

bool readsOneOfEach(int round)
{
    std::string n = std::to_string(round);
    auto config = com::torvane::AgentConfigXML::parse(
        "<c xmlns='" + ns + "'><loginUrl>https://l/" + n + "</loginUrl><field name='u" + n +
        "'><type>PASSWORD</type></field><rescanText>a</rescanText><rescanText>b</rescanText></c>");
    auto status = com::torvane::AgentStatusXML::parse("<r xmlns='" + ns + "'><status>NEEDS_SCAN</status><scanName>s" +
                                                      n + "</scanName><profile><SSID>net" + n +
                                                      "</SSID><securityType>WPA2</securityType></profile></r>");
    auto field = com::torvane::LoginField::parse("<field name='f" + n + "'><type>SELECT</type></field>");
    auto broken = com::torvane::AgentConfigXML::parse("<c xmlns='" + ns + "'><loginUrl>x</c>");
    return config->loginUrl == "https://l/" + n && config->rescanText == "b" &&
           config->getField("u" + n)->getType() == com::torvane::LoginField::PASSWORD &&
           status->getStatus() == com::torvane::AgentStatusXML::NEEDS_SCAN && status->getScanName() == "s" + n &&
           status->getWifiProfile()->getSSID() == "net" + n &&
           status->getWifiProfile()->getSecurity() == com::torvane::WifiConfigurationProfile::WPA2 &&
           field->getName() == "f" + n && field->getType() == com::torvane::LoginField::SELECT &&
           broken->sjLoginTitle == "Network Credentials - Dissolvable Agent";
}

// A policy of one section holding a nested tree and a check: both kinds come from the factory.
bool readsPolicy(int round)
{
    std::string n = std::to_string(round);
    std::unique_ptr<Policy> policy(Policy::parseFromString(
        "<policy name='p" + n + "'><section name='s" + n +
            "'><and><or><true/><ProcessExists procName='x'/></or><not><false/></not></and></section></policy>",
        false));
    if (policy->getFatalParseError() || policy->getName() != "p" + n || policy->getSections().size() != 1) {
        return false;
    }
    Section* section = policy->getSections().begin()->second;
    return section->getName() == "s" + n && section->getTasks().size() == 1 &&
           section->getTasks().front()->getType() == "andTask" && section->getTasks().front()->getTerms()->size() == 2;
}

bool readsMonitors(int round)
{
    std::string n = std::to_string(round);
    std::unique_ptr<std::list<com::torvane::policy::Monitor*>> monitors(com::torvane::policy::Monitor::parseMonitors(
        "<monitors><Monitor id='m" + n + "' period='" + n +
        "'><ProcessExists procName='x'/><or><true/><false/></or></Monitor><Monitor id='e'/></monitors>"));
    bool right = monitors->size() == 2 && monitors->front()->getID() == "m" + n &&
                 monitors->front()->getPeriod() == round && monitors->front()->getTasks().size() == 2 &&
                 monitors->front()->getTasks().back()->getTerms()->size() == 2 && monitors->back()->getTasks().empty();
    for (auto* monitor : *monitors) {
        delete monitor;
    }
    return right;
}

// Sends descriptor 2 to /dev/null while alive. The standard streams stay synchronised with
// stdio, so threads may log at once; a captured stream buffer would not be safe.
class QuietStderr {
public:
    QuietStderr() : saved_(::dup(2))
    {
        int null = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        ::dup2(null, 2);
        ::close(null);
    }
    ~QuietStderr()
    {
        std::clog.flush();
        ::dup2(saved_, 2);
        ::close(saved_);
    }
    QuietStderr(const QuietStderr&) = delete;
    QuietStderr& operator=(const QuietStderr&) = delete;

private:
    int saved_;
};

// The count of readings that `read` got wrong, with 8 threads making 50 readings each at once.
int wrongReadings(const std::function<bool(int)>& read)
{
    std::atomic<int> wrong{0};
    std::atomic<bool> go{false};
    std::vector<std::thread> threads;
    threads.reserve(8);
    for (int t = 0; t < 8; ++t) {
        threads.emplace_back([&, t] {
            while (!go) {
                std::this_thread::yield();
            }
            for (int round = 0; round < 50; ++round) {
                if (!read(t * 1000 + round)) {
                    ++wrong;
                }
            }
        });
    }
    go = true;
    for (std::thread& thread : threads) {
        thread.join();
    }
    return wrong;
}

TEST(ConcurrentParse, ThreadsReadDocumentsAtOnce)
{
    QuietStderr quiet;  // the broken documents' error lines
    EXPECT_EQ(wrongReadings(readsOneOfEach), 0);
}

// Tasks are created through the one factory from every parsing thread.
TEST(ConcurrentParse, ThreadsReadPoliciesAndMonitorsAtOnce)
{
    QuietStderr quiet;  // every element read is logged
    EXPECT_EQ(wrongReadings([](int round) { return round % 2 == 0 ? readsPolicy(round) : readsMonitors(round); }), 0);
}

}  // namespace
