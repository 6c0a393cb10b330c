#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <tvpolicy/host/Machine.h>

#include <sys/stat.h>
#include <unistd.h>
#include <cstdlib>

#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::runCli;

// What the library answers in this process, which runs on the same machine.
nlohmann::json expectedFacts()
{
    return {{"osVersion", Machine::getOSVersion()},
            {"os", Machine::getOSString()},
            {"hostName", Machine::getHostName()},
            {"architecture", Machine::getHWDescription()},
            {"hardware", Machine::getHardwareDesc()},
            {"uuid", Machine::getSystemUUID()},
            {"serialNumber", Machine::getSystemSerialNumber()}};
}

TEST(FactsCommand, JsonHoldsThisMachinesFactsAndNothingElse)
{
    auto result = runCli({"-v", "facts", "--json"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    nlohmann::json facts = nlohmann::json::parse(result.out);  // one clean document, log or not
    ASSERT_TRUE(facts.contains("processCount"));
    EXPECT_GT(facts["processCount"].get<int>(), 1);
    ASSERT_TRUE(facts.contains("processesWithheld"));
    EXPECT_LE(facts["processesWithheld"].get<int>(), facts["processCount"].get<int>());
    facts.erase("processCount");
    facts.erase("processesWithheld");
    EXPECT_EQ(facts, expectedFacts());
    EXPECT_NE(result.err.find(" UTC :: Version = "), std::string::npos) << "-v shows the library's log";
}

TEST(FactsCommand, PlainListingOneFactPerLine)
{
    auto result = runCli({"facts"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.err, "");
    nlohmann::json facts = expectedFacts();
    std::string expected = "OS version:     " + facts["osVersion"].get<std::string>() + "\n" +
                           "OS:             " + facts["os"].get<std::string>() + "\n" +
                           "Host name:      " + facts["hostName"].get<std::string>() + "\n" +
                           "Architecture:   " + facts["architecture"].get<std::string>() + "\n" +
                           "Hardware:       " + facts["hardware"].get<std::string>() + "\n" +
                           "UUID:           " + facts["uuid"].get<std::string>() + "\n" +
                           "Serial number:  " + facts["serialNumber"].get<std::string>() + "\n" + "Processes:      ";
    EXPECT_EQ(result.out.substr(0, expected.size()), expected);
    EXPECT_GT(std::stoi(result.out.substr(expected.size())), 1);
}

// An unprivileged user cannot read the executables of root's processes: facts counts them, and
// a run of a policy with a process check warns that its answer may be partial.
TEST(FactsCommand, CountsProcessesAnUnprivilegedUserCannotRead)
{
    if (::geteuid() != 0 || std::system("command -v setpriv >/dev/null 2>&1") != 0) {
        GTEST_SKIP() << "needs root and setpriv to run the tool as another user";
    }
    // Copies readable by anyone: the build tree may sit below a folder only root may enter.
    testing_support::TempDir dir;
    ::chmod(dir.path().c_str(), 0755);
    std::string cli = std::string(TVPOLICY_CLI);
    std::string library = std::string(TVPOLICY_LIBRARY_DIR);
    auto copy = testing_support::runProgram({"sh", "-c",
                                             "cp -L " + cli + " " + library + "/libtvpolicy.so.0 " +
                                                 dir.path().string() + " && chmod -R a+rX " + dir.path().string()});
    ASSERT_EQ(copy.exitCode, 0) << copy.err;
    auto policy = dir.write("p.xml",
                            "<policy name=\"p\"><section name=\"s\" primary=\"true\">"
                            "<ProcessExists procName=\"init\"/></section></policy>");
    ::chmod(policy.c_str(), 0644);
    std::string asNobody =
        "setpriv --reuid=65534 --regid=65534 --clear-groups env LD_LIBRARY_PATH=" + dir.path().string() + " " +
        (dir.path() / "tvpolicy").string();
    auto facts = testing_support::runProgram({"sh", "-c", asNobody + " facts --json"});
    ASSERT_EQ(facts.exitCode, 0) << facts.err;
    EXPECT_GT(nlohmann::json::parse(facts.out)["processesWithheld"].get<int>(), 0) << facts.out;
    auto run = testing_support::runProgram({"sh", "-c", asNobody + " run -q " + policy.string()});
    EXPECT_NE(run.err.find("processes could not be read fully"), std::string::npos) << run.err;
}

}  // namespace
