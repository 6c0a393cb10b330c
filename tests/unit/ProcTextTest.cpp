#include "host/parse/ProcText.h"

#include <gtest/gtest.h>

namespace {

using namespace tvpolicy::parse;

struct TextCase {
    std::string (*parse)(const std::string&);
    std::string raw;
    std::string value;
};

class ProcTextTest : public testing::TestWithParam<TextCase> {};

TEST_P(ProcTextTest, GivesThePlainValue) { EXPECT_EQ(GetParam().parse(GetParam().raw), GetParam().value); }

INSTANTIATE_TEST_SUITE_P(Texts, ProcTextTest, testing::Values(
    TextCase{&procCommName, "sleep\n", "sleep"},
    TextCase{&procCommName, "tvpolicy-live-sl\n", "tvpolicy-live-sl"},
    TextCase{&procCommName, "two words \n", "two words "},
    TextCase{&procCommName, "odd\nname\n", "odd\nname"},
    TextCase{&procCommName, "\n", ""},
    TextCase{&procCommName, "", ""},
    TextCase{&procExeTarget, "/usr/bin/sleep", "/usr/bin/sleep"},
    TextCase{&procExeTarget, "/opt/agent/agentd (deleted)", "/opt/agent/agentd"},
    TextCase{&procExeTarget, " (deleted)", " (deleted)"},
    TextCase{&procExeTarget, "/bin/a (deleted) b", "/bin/a (deleted) b"},
    TextCase{&sysfsValue, "LENOVO\n", "LENOVO"},
    TextCase{&sysfsValue, "To Be Filled By O.E.M.   \n", "To Be Filled By O.E.M."},
    TextCase{&sysfsValue, " \n", ""},
    TextCase{&sysfsValue, "", ""}));

}  // namespace
