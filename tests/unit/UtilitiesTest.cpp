#include <tvpolicy/host/Timestamp.h>
#include <tvpolicy/host/Utilities.h>

#include <gtest/gtest.h>

#include <iostream>
#include <list>
#include <regex>
#include <sstream>
#include <tuple>

#include "support/CaptureStream.h"

namespace {

struct SplitCase {
    std::string text;
    std::string delimiters;
    std::vector<std::string> tokens;
};

class SplitTest : public testing::TestWithParam<SplitCase> {};

TEST_P(SplitTest, BothFormsAppendTheSameTokens)
{
    SplitCase c = GetParam();
    std::vector<std::string> vectorTokens{"x"};
    std::list<std::string> listTokens{"x"};
    split(c.text, c.delimiters, vectorTokens);
    split(c.text, c.delimiters, listTokens);

    std::vector<std::string> expected{"x"};
    expected.insert(expected.end(), c.tokens.begin(), c.tokens.end());
    EXPECT_EQ(vectorTokens, expected);
    EXPECT_EQ(std::vector<std::string>(listTokens.begin(), listTokens.end()), expected);
}

INSTANTIATE_TEST_SUITE_P(Tokens, SplitTest,
                         testing::Values(SplitCase{",,a,,b,,", ",", {"a", "b"}}, SplitCase{"", ",", {}},
                                         SplitCase{",,,", ",", {}}, SplitCase{"abc", "", {"abc"}},
                                         SplitCase{"a b\tc", " \t", {"a", "b", "c"}},
                                         SplitCase{"10.6.8", ".", {"10", "6", "8"}},
                                         SplitCase{"a/:b:/c", "/:", {"a", "b", "c"}},
                                         SplitCase{"single", ",", {"single"}}));

struct UrlCase {
    std::string url;
    std::string host;
    std::string port;
    std::string page;
};

class SplitUrlTest : public testing::TestWithParam<UrlCase> {};

TEST_P(SplitUrlTest, FillsHostPortAndPage)
{
    UrlCase c = GetParam();
    std::map<std::string, std::string> parts{{"host", "stale"}, {"page", "stale"}, {"other", "kept"}};
    splitURL(c.url, parts);
    EXPECT_EQ(parts["host"], c.host);
    EXPECT_EQ(parts["port"], c.port);
    EXPECT_EQ(parts["page"], c.page);
    EXPECT_EQ(parts["other"], "kept");
}

INSTANTIATE_TEST_SUITE_P(Urls, SplitUrlTest,
                         testing::Values(UrlCase{"svc://server:8443/a/b", "server", "8443", "/a/b"},
                                         UrlCase{"svc://h:80", "h", "80", ""},
                                         UrlCase{"svc://h:80//x//y/", "h", "80", "/x/y"},
                                         UrlCase{"https://h/index.html", "h", "index.html", ""},
                                         UrlCase{"svc://h", "h", "", ""}, UrlCase{"svc", "", "", ""},
                                         UrlCase{"", "", "", ""}));

TEST(Urlencode, EncodesAllButTheFirstCharacter)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"a&b=c d", "a%26b%3Dc%20d"},
        {"%", "%"},
        {"x%", "x%25"},
        {"&&", "&%26"},
        {"/a b", "/a%20b"},
        {"", ""},
        {"x\r\n\"#,./:;<>?", "x%0D%0A%22%23%2C%2E%2F%3A%3B%3C%3E%3F"},
        {"a%20", "a%2520"},
        {"a-_~+@!\xc3\xa9Z9", "a-_~+@!\xc3\xa9Z9"}};
    for (const auto& [text, encoded] : cases) {
        EXPECT_EQ(urlencode(text), encoded) << text;
    }
}

TEST(NormalizeMac, UppercasesOnlyHexLetters)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"00:1b:63:ab:cd:ef", "00:1B:63:AB:CD:EF"}, {"zz-gg", "zz-gg"}, {"", ""}, {"aA:fF:gG", "AA:FF:gG"}};
    for (auto [mac, normalized] : cases) {
        normalizeMAC(mac);
        EXPECT_EQ(mac, normalized);
    }
}

TEST(CommandOutput, ReturnsEverythingWrittenUntouched)
{
    const std::vector<std::tuple<std::string, unsigned long, std::string>> cases = {
        {"printf '1.2\\n'", 256, "1.2\n"},
        // A line longer than the buffer arrives in pieces and is joined.
        {"printf 'abcdefghijklmnopqrstuvwxyz\\n0123'", 4, "abcdefghijklmnopqrstuvwxyz\n0123"},
        {"printf 'xy'", 1, "xy"},
        {"printf 'one\\ntwo\\n\\n'", 8192, "one\ntwo\n\n"},
        {"exit 3", 256, ""},
        {"echo hidden >&2", 256, ""}};
    for (const auto& [command, bufferSize, output] : cases) {
        EXPECT_EQ(getOutputFromCommand(command, bufferSize), output) << command;
    }
}

TEST(CommandOutput, EmptyCommandStartsNoShell)
{
    // With no shell on PATH a started command could not print; an empty one must not even try.
    EXPECT_EQ(getOutputFromCommand("", 256), "");
}

TEST(CommandOutput, LargeOutputIsComplete)
{
    std::string output = getOutputFromCommand("seq 1 100000", 256);
    EXPECT_EQ(output.size(), 588895u);
    EXPECT_EQ(output.substr(output.size() - 7), "100000\n");
}

TEST(RunCommand, ReturnsTheWaitStatus)
{
    EXPECT_EQ(runCommand("true"), 0);
    int status = runCommand("exit 7");
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 7);
}

TEST(AgentId, NoneIsGenerated) { EXPECT_EQ(generateAgentId(), ""); }

const std::regex stampPattern(R"(\d{4}-\d{2}-\d{2} \d{2}:\d{2}:\d{2} UTC :: )");

TEST(Timestamp, ReplacesOrPrepends)
{
    std::string text = "old";
    EXPECT_TRUE(std::regex_match(tvi::timestamp(text, false), stampPattern));

    std::string line = "Version = 0";
    tvi::timestamp(line, true);
    ASSERT_GT(line.size(), 11u);
    EXPECT_EQ(line.substr(line.size() - 11), "Version = 0");
    EXPECT_TRUE(std::regex_match(line.substr(0, line.size() - 11), stampPattern));
}

TEST(Timestamp, TslogWritesThePrefixAndSkipsDiscardingStreams)
{
    std::ostringstream stream;
    tvi::tslog(stream) << "x";
    std::string written = stream.str();
    EXPECT_TRUE(std::regex_match(written.substr(0, written.size() - 1), stampPattern));

    std::ostream bufferless(nullptr);
    tvi::tslog(bufferless) << "y";
    EXPECT_TRUE(bufferless.bad());

    std::ostringstream failed;
    failed.setstate(std::ios::failbit);
    tvi::tslog(failed);
    EXPECT_EQ(failed.str(), "");
}

TEST(Debug, WritesOneTimestampedLineAndIgnoresContext)
{
    testing_support::CaptureStream captured(std::clog);
    debug("andTask Passed", "ignored context");
    std::string line = captured.text();
    std::smatch match;
    ASSERT_TRUE(std::regex_match(line, match, std::regex(R"((.*)Debug: andTask Passed\n)")));
    EXPECT_TRUE(std::regex_match(match[1].str(), stampPattern));
}

}  // namespace
