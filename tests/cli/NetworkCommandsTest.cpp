#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::runCli;

TEST(InterfacesCommand, JsonIsCleanAndAgreesWithTheReport)
{
    auto json = runCli({"-v", "interfaces", "--json", "--no-guests"});
    ASSERT_EQ(json.exitCode, 0) << json.err;
    nlohmann::json list = nlohmann::json::parse(json.out);  // clean, whatever the library logs
    auto xml = runCli({"interfaces", "--xml", "--no-guests"});
    ASSERT_EQ(xml.exitCode, 0);
    std::size_t withMac = 0;
    for (const auto& item : list) {
        if (!item["mac"].get<std::string>().empty()) {
            ++withMac;
            EXPECT_NE(xml.out.find("<mac><![CDATA[" + item["mac"].get<std::string>() + "]]></mac>"), std::string::npos);
        }
    }
    std::size_t fragments = 0;
    for (std::size_t at = xml.out.find("<interface>"); at != std::string::npos;
         at = xml.out.find("<interface>", at + 1)) {
        ++fragments;
    }
    EXPECT_EQ(fragments, withMac);
}

TEST(NetworkCommands, UsageErrors)
{
    testing_support::TempDir tmp;
    const std::vector<std::vector<std::string>> usage = {
        {"interfaces", "--xml", "--json"},
        {"wifi"},
        {"wifi", "join"},
        {"wifi", "join", (tmp.path() / "absent.xml").string()},
        {"wifi", "join", tmp.write("empty.xml", "<profile><name>x</name></profile>").string()},
        {"wifi", "join", tmp.write("broken.xml", "<profile><SSID>").string()},
    };
    for (const auto& args : usage) {
        auto result = runCli(args);
        EXPECT_EQ(result.exitCode, 2) << args.back() << "\n" << result.err;
        EXPECT_FALSE(result.err.empty());
    }
}

}  // namespace
