#include "host/parse/ProcText.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

using namespace tvpolicy::parse;

TEST(ProcText, GivesThePlainValue)
{
    const std::vector<std::tuple<std::string (*)(const std::string&), std::string, std::string>> cases = {
        {&procCommName, "sleep\n", "sleep"},
        {&procCommName, "tvpolicy-live-sl\n", "tvpolicy-live-sl"},
        {&procCommName, "two words \n", "two words "},
        {&procCommName, "odd\nname\n", "odd\nname"},
        {&procCommName, "\n", ""},
        {&procCommName, "", ""},
        {&procExeTarget, "/usr/bin/sleep", "/usr/bin/sleep"},
        {&procExeTarget, "/opt/agent/agentd (deleted)", "/opt/agent/agentd"},
        {&procExeTarget, " (deleted)", " (deleted)"},
        {&procExeTarget, "/bin/a (deleted) b", "/bin/a (deleted) b"},
        {&sysfsValue, "LENOVO\n", "LENOVO"},
        {&sysfsValue, "To Be Filled By O.E.M.   \n", "To Be Filled By O.E.M."},
        {&sysfsValue, " \n", ""},
        {&sysfsValue, "", ""}};
    for (const auto& [parse, raw, value] : cases) {
        EXPECT_EQ(parse(raw), value) << raw;
    }
}

}  // namespace
