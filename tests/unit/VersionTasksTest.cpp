#include <tvpolicy/host/DescribedHostProbe.h>

#include <gtest/gtest.h>

#include "support/MappedHost.h"
#include "support/PerformTask.h"
#include "support/TempDir.h"

namespace {

using testing_support::performBareCheck;

using testing_support::TempDir;

struct VersionCase {
    std::string name;
    std::string content;  // receipt text, or the command for a script
    std::vector<Task::Attribute> attributes;
    bool passed;
};

std::string caseName(const testing::TestParamInfo<VersionCase>& info) { return info.param.name; }

// Receipts live in a folder of the test, where the host maps /Library/Receipts/.
class ReceiptRules : public testing::TestWithParam<VersionCase> {};

TEST_P(ReceiptRules, Perform)
{
    const VersionCase& c = GetParam();
    testing_support::MappedHost mapped(std::map<std::string, std::string>{{"/Library/Receipts/", "receipts/"}});
    mapped.tmp.write("receipts/Tool.pkg/Contents/Resources/package_version", c.content);
    std::vector<Task::Attribute> attributes = {{"pkg", "Tool.pkg"}, {"delim", "."}};
    attributes.insert(attributes.end(), c.attributes.begin(), c.attributes.end());
    EXPECT_EQ(performBareCheck("VersionFromReceiptTask", attributes), c.passed);
}

INSTANTIATE_TEST_SUITE_P(
    Receipts, ReceiptRules,
    testing::Values(
        VersionCase{"MajorAndMinor", "major: 4\nminor: 2\n", {{"required", "4.2"}, {"operation", "eq"}}, true},
        VersionCase{"KeysAreLowerCased", "Major: 3\nMINOR: 1\n", {{"required", "3.1"}, {"operation", "eq"}}, true},
        // "major:3" is one word: no major is read, the version is ".1", whose one word is 1.
        VersionCase{"KeyWithoutBlank", "major:3\nminor: 1\n", {{"required", "3"}, {"operation", "gte"}}, false},
        VersionCase{
            "KeyWithoutBlankLeavesMinorFirst", "major:3\nminor: 1\n", {{"required", "1"}, {"operation", "eq"}}, true},
        VersionCase{"LaterLinesOverride",
                    "major: 1\nminor: 9\nmajor: 4\nminor: 2\n",
                    {{"required", "4.2"}, {"operation", "eq"}},
                    true},
        VersionCase{"KeyMustComeFirst",
                    "version major: 9\nmajor: 2 minor: 7\nminor: 0\n",
                    {{"required", "2.0"}, {"operation", "eq"}},
                    true},
        VersionCase{
            "NoMicroIsRead", "major: 4\nminor: 2\nmicro: 9\n", {{"required", "4.2.9"}, {"operation", "gt"}}, false},
        VersionCase{
            "IndentedLines", "  major:\t10\r\n\tminor: 6\r\n", {{"required", "10.6"}, {"operation", "eq"}}, true},
        VersionCase{"Older", "major: 4\nminor: 2\n", {{"required", "4.3"}}, false},
        VersionCase{
            "UnknownOperatorIsAtLeast", "major: 4\nminor: 2\n", {{"required", "4.1"}, {"operation", "GT"}}, true},
        VersionCase{"EmptyRequired", "major: 4\nminor: 2\n", {{"required", ""}, {"operation", "gte"}}, false},
        VersionCase{"EmptyReceipt", "", {{"required", "0"}}, false},
        VersionCase{"MissingPackage", "major: 4\nminor: 2\n", {{"pkg", "Other.pkg"}, {"required", "0"}}, false},
        VersionCase{"NoPackageName", "major: 4\nminor: 2\n", {{"pkg", ""}, {"required", "0"}}, false},
        // The whole delimiter text goes between major and minor.
        VersionCase{
            "DelimiterSet", "major: 4\nminor: 2\n", {{"delim", "-_"}, {"required", "4_2"}, {"operation", "eq"}}, true},
        VersionCase{
            "NoDelimiter", "major: 4\nminor: 2\n", {{"delim", ""}, {"required", "42"}, {"operation", "eq"}}, true}),
    caseName);

TEST(VersionFromReceipt, ReadsThroughTheHostsSystemPath)
{
    TempDir tmp;
    tmp.write("elsewhere/Tool.pkg/Contents/Resources/package_version", "major: 7\nminor: 1\n");
    tvpolicy::DescribedHostProbe host;
    host.pathMap["/Library/Receipts/"] = (tmp.path() / "elsewhere").string() + "/";
    std::vector<Task::Attribute> attributes = {
        {"pkg", "Tool.pkg"}, {"delim", "."}, {"required", "7.1"}, {"operation", "eq"}};
    {
        tvpolicy::ScopedHost scoped(host);
        EXPECT_TRUE(performBareCheck("VersionFromReceiptTask", attributes));
    }
    tvpolicy::DescribedHostProbe unmapped;
    tvpolicy::ScopedHost scoped(unmapped);
    EXPECT_FALSE(performBareCheck("VersionFromReceiptTask", attributes));
}

// Scripts run through the real shell.
class ScriptRules : public testing::TestWithParam<VersionCase> {};

TEST_P(ScriptRules, Perform)
{
    const VersionCase& c = GetParam();
    std::vector<Task::Attribute> attributes = {{"script", c.content}, {"delim", "."}};
    attributes.insert(attributes.end(), c.attributes.begin(), c.attributes.end());
    EXPECT_EQ(performBareCheck("VersionFromScriptTask", attributes), c.passed);
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, ScriptRules,
    testing::Values(
        VersionCase{"Newer", "echo 5.10.3", {{"required", "5.10"}}, true},
        VersionCase{"Older", "echo 5.10.3", {{"required", "5.11"}}, false},
        VersionCase{"TrailingNewlineIsHarmless", "echo 5.10", {{"required", "5.10"}, {"operation", "lt"}}, false},
        // The output is compared as it comes: a second line joins the words of the first.
        VersionCase{"LinesRunTogether", "echo 1.2; echo 9.9", {{"required", "1.2.9"}, {"operation", "eq"}}, true},
        VersionCase{"OnlyStandardOutput", "echo 9 >&2; echo 1", {{"required", "2"}}, false},
        VersionCase{"LongOutputIsReadWhole", "printf '%0300d.7' 0", {{"required", "0.7"}, {"operation", "eq"}}, true},
        VersionCase{"SilentCommand", "true", {{"required", "0"}}, false},
        VersionCase{"FailingCommand", "exit 3", {{"required", "0"}}, false},
        VersionCase{"NoScriptComparesZero", "", {{"required", "0.0"}}, true},
        VersionCase{"NoScriptFailsAboveZero", "", {{"required", "1.0"}}, false},
        VersionCase{"NoScriptPrefixRule", "", {{"required", "0.1"}}, true},  // only the first word is common
        VersionCase{"EmptyRequired", "echo 1", {{"required", ""}}, false},
        VersionCase{"OtherDelimiters",
                    "echo 2011-03-15",
                    {{"delim", "-"}, {"required", "2011-3"}, {"operation", "gte"}},
                    true}),
    caseName);

}  // namespace
