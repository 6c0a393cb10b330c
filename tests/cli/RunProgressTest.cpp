// What a person sees on a terminal while a policy runs and after: the bar, its width, colour.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

bool haveScript() { return std::system("command -v script >/dev/null 2>&1") == 0; }

// Runs `shellCommand` on a terminal of `columns` columns; what the terminal received.
std::string onTerminal(const std::string& shellCommand, unsigned columns, const std::string& environment = "TERM=xterm")
{
    std::string command = "stty cols " + std::to_string(columns) + " rows 24; env " + environment + " " + shellCommand;
    return testing_support::runProgram({"script", "-qec", command, "/dev/null"}).out;
}

// Display columns of the longest redrawn bar (between a carriage return and the erase-line code).
std::size_t widestBar(const std::string& screen)
{
    std::size_t widest = 0;
    for (std::size_t start = screen.find('\r'); start != std::string::npos; start = screen.find('\r', start + 1)) {
        std::size_t end = screen.find("\033[K", start);
        if (end == std::string::npos) {
            break;
        }
        std::size_t columns = 0;
        for (std::size_t i = start + 1; i < end; ++i) {
            unsigned char c = static_cast<unsigned char>(screen[i]);
            if ((c & 0xC0) != 0x80) {
                columns += c >= 0xE3 && c <= 0xE9 ? 2 : 1;  // CJK ideographs take two columns
            }
        }
        widest = std::max(widest, columns);
    }
    return widest;
}

struct TerminalCase {
    std::string title;
    unsigned columns;
    std::string environment;
    std::vector<std::string> extra;
    std::vector<std::string> present;
    std::vector<std::string> absent;
};

class RunOnTerminalTest : public testing::TestWithParam<TerminalCase> {};

TEST_P(RunOnTerminalTest, ShowsWhatTheTerminalCanTake)
{
    if (!haveScript()) {
        GTEST_SKIP() << "the script program (util-linux) is not installed, so no terminal can be given";
    }
    const TerminalCase& c = GetParam();
    testing_support::TempDir dir;
    auto policy = dir.write(
        "p.xml",
        "<policy name=\"p\">"
        "<section name=\"日本語の名前がとても長いセクションです本当に長い\" primary=\"true\"><true/></section>"
        "<section name=\"second\" group=\"g\" primary=\"true\"><false/></section>"
        "<section name=\"skipped secondary\" group=\"g\"><true/></section></policy>");
    std::string command = std::string(TVPOLICY_CLI) + " run " + policy.string();
    for (const std::string& argument : c.extra) {
        command += " " + argument;
    }
    std::string screen = onTerminal(command, c.columns, c.environment);
    for (const std::string& text : c.present) {
        EXPECT_NE(screen.find(text), std::string::npos) << "missing: " << text << "\nscreen: " << screen;
    }
    for (const std::string& text : c.absent) {
        EXPECT_EQ(screen.find(text), std::string::npos) << "present: " << text << "\nscreen: " << screen;
    }
    EXPECT_LT(widestBar(screen), c.columns) << screen;
}

INSTANTIATE_TEST_SUITE_P(
    Terminals, RunOnTerminalTest,
    testing::Values(
        TerminalCase{"Wide",
                     100,
                     "TERM=xterm",
                     {},
                     {"] 3/3 (passed over) skipped secondary\033[K", "\033[31mFAIL\033[0m", "\033[32mpassed\033[0m"},
                     {"[1/3]"}},
        TerminalCase{"Narrow", 40, "TERM=xterm", {}, {"] 1/3 日本", "\r\033[K"}, {"本当に長い\033[K"}},
        TerminalCase{
            "Dumb", 80, "TERM=dumb", {}, {"[1/3] 日本語", "[3/3] (passed over) skipped secondary\r\n"}, {"\033["}},
        TerminalCase{"NoColorVariable", 80, "TERM=xterm NO_COLOR=1", {}, {"FAIL ("}, {"\033[3"}},
        TerminalCase{"NoColorFlag", 80, "TERM=xterm", {"--no-color"}, {"FAIL ("}, {"\033[3"}},
        TerminalCase{"Quiet", 80, "TERM=xterm", {"-q"}, {"FAIL"}, {"1/3", "\033[K"}}),
    [](const testing::TestParamInfo<TerminalCase>& testCase) { return testCase.param.title; });

// Ctrl-C in the middle of a run erases the bar before the program ends.
TEST(RunOnTerminal, InterruptErasesTheBar)
{
    if (!haveScript()) {
        GTEST_SKIP() << "the script program (util-linux) is not installed, so no terminal can be given";
    }
    testing_support::TempDir dir;
    auto policy = dir.write("slow.xml",
                            "<policy name=\"p\"><section name=\"slow\" primary=\"true\">"
                            "<VersionFromScript script=\"sleep 5; echo 1\" required=\"1\"/></section></policy>");
    std::string command =
        std::string(TVPOLICY_CLI) + " run " + policy.string() + " & sleep 1; kill -INT $!; wait $!; echo \"status $?\"";
    std::string screen = onTerminal("sh -c '" + command + "'", 80);
    std::size_t bar = screen.find("] 1/1 slow\033[K");
    ASSERT_NE(bar, std::string::npos) << screen;
    EXPECT_NE(screen.find("\r\033[K", bar), std::string::npos) << screen;
    EXPECT_NE(screen.find("status 130"), std::string::npos) << screen;
}

}  // namespace
