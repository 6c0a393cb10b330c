#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <tvpolicy/host/Machine.h>

#include "support/RunCli.h"

namespace {

using testing_support::runCli;

// What the library answers in this process, which runs on the same machine.
nlohmann::json expectedFacts()
{
    return {{"osVersion", Machine::getOSVersion()}, {"os", Machine::getOSString()},
            {"hostName", Machine::getHostName()}, {"architecture", Machine::getHWDescription()},
            {"hardware", Machine::getHardwareDesc()}, {"uuid", Machine::getSystemUUID()},
            {"serialNumber", Machine::getSystemSerialNumber()}};
}

TEST(FactsCommand, JsonHoldsThisMachinesFactsAndNothingElse)
{
    auto result = runCli({"-v", "facts", "--json"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    nlohmann::json facts = nlohmann::json::parse(result.out);  // one clean document, log or not
    ASSERT_TRUE(facts.contains("processCount"));
    EXPECT_GT(facts["processCount"].get<int>(), 1);
    facts.erase("processCount");
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
                           "Serial number:  " + facts["serialNumber"].get<std::string>() + "\n" +
                           "Processes:      ";
    EXPECT_EQ(result.out.substr(0, expected.size()), expected);
    EXPECT_GT(std::stoi(result.out.substr(expected.size())), 1);
}

}  // namespace
