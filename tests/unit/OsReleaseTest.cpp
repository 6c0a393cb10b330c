#include "host/parse/OsRelease.h"

#include <gtest/gtest.h>

#include "support/TempDir.h"

namespace {

using tvpolicy::parse::OsRelease;

struct AssignmentCase {
    std::string text;
    std::string name;
    bool present;
    std::string value;
};

class OsReleaseAssignmentTest : public testing::TestWithParam<AssignmentCase> {};

TEST_P(OsReleaseAssignmentTest, ReadsTheValueAsTheShellWould)
{
    const AssignmentCase& c = GetParam();
    OsRelease release = OsRelease::parse(c.text);
    EXPECT_EQ(release.has(c.name), c.present) << c.text;
    EXPECT_EQ(release.value(c.name), c.value) << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    Crafted, OsReleaseAssignmentTest,
    testing::Values(AssignmentCase{"VERSION_ID=12\n", "VERSION_ID", true, "12"},
                    AssignmentCase{"NAME=\"Debian GNU/Linux\"", "NAME", true, "Debian GNU/Linux"},
                    AssignmentCase{"VERSION_ID='10.6.8'\n", "VERSION_ID", true, "10.6.8"},
                    AssignmentCase{"A=\"say \\\"hi\\\" \\$HOME \\\\ \\`x\\`\"", "A", true, "say \"hi\" $HOME \\ `x`"},
                    AssignmentCase{"A=\"keep \\n and \\t\"", "A", true, "keep \\n and \\t"},
                    AssignmentCase{"A='no \\\" escapes'", "A", true, "no \\\" escapes"},
                    AssignmentCase{"A=bare\\ word", "A", true, "bare word"},
                    AssignmentCase{"A=\"a\"'b'c", "A", true, "abc"},
                    AssignmentCase{"VERSION_ID=12   \t", "VERSION_ID", true, "12"},
                    AssignmentCase{"A=\"padded  \"", "A", true, "padded  "},
                    AssignmentCase{"VERSION_ID=\"12\"\r\nNAME=x\r\n", "VERSION_ID", true, "12"},
                    AssignmentCase{"A=\"unterminated\nB=1", "A", true, "unterminated"},
                    AssignmentCase{"A=\n", "A", true, ""}, AssignmentCase{"A=1\nA=2\n", "A", true, "2"},
                    AssignmentCase{"# VERSION_ID=9\n", "VERSION_ID", false, ""},
                    AssignmentCase{"VERSION_ID\n", "VERSION_ID", false, ""}, AssignmentCase{"1A=x\n", "1A", false, ""},
                    AssignmentCase{"A-B=x\n", "A-B", false, ""}, AssignmentCase{"export A=x\n", "A", false, ""},
                    AssignmentCase{"", "NAME", false, ""},
                    AssignmentCase{std::string("A=a\0b", 5), "A", true, std::string("a\0b", 3)}));

struct RealFileCase {
    std::string file;
    std::string name;
    std::string versionId;
    bool hasVersionId;
};

class OsReleaseRealFileTest : public testing::TestWithParam<RealFileCase> {};

TEST_P(OsReleaseRealFileTest, GivesNameAndVersion)
{
    const RealFileCase& c = GetParam();
    std::string text = testing_support::readFile(std::string(TVPOLICY_TEST_DATA) + "/os-release/" + c.file);
    ASSERT_FALSE(text.empty()) << c.file;
    OsRelease release = OsRelease::parse(text);
    EXPECT_EQ(release.value("NAME"), c.name);
    EXPECT_EQ(release.value("VERSION_ID"), c.versionId);
    EXPECT_EQ(release.has("VERSION_ID"), c.hasVersionId);
}

INSTANTIATE_TEST_SUITE_P(Distributions, OsReleaseRealFileTest,
                         testing::Values(RealFileCase{"debian-12", "Debian GNU/Linux", "12", true},
                                         RealFileCase{"ubuntu-22.04", "Ubuntu", "22.04", true},
                                         RealFileCase{"fedora-39", "Fedora Linux", "39", true},
                                         RealFileCase{"alpine-3.19", "Alpine Linux", "3.19.1", true},
                                         RealFileCase{"arch", "Arch Linux", "", false}));

}  // namespace
