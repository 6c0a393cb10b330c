#include <tvpolicy/checks/File.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <system_error>

#include <unistd.h>

#include "checks/FileWalker.h"
#include "support/TempDir.h"
#include "support/XmlText.h"

namespace {

namespace stdfs = std::filesystem;
using testing_support::TempDir;

// The search written path by path with the standard filesystem library, rule by rule: list in
// directory order, descend into a directory when met (never through a link), match
// non-directories by name. Errors inside a descent end that descent.
void referenceWalk(const stdfs::path& dir, const std::string& name, std::vector<std::string>& found)
{
    for (const stdfs::directory_entry& entry : stdfs::directory_iterator(dir)) {
        std::error_code error;
        if (stdfs::is_directory(entry.path(), error)) {
            if (!stdfs::is_symlink(entry.symlink_status())) {
                try {
                    referenceWalk(entry.path(), name, found);
                } catch (const stdfs::filesystem_error&) {
                }
            }
        } else if (entry.path().filename() == name) {
            found.push_back(entry.path().string());
        }
    }
}

std::vector<std::string> findAll(const stdfs::path& dir, const std::string& name)
{
    std::list<stdfs::path> found;
    find_files(dir, name, found);
    return std::vector<std::string>(found.begin(), found.end());
}

void makeLink(const stdfs::path& target, const stdfs::path& link)
{
    stdfs::create_directories(link.parent_path());
    stdfs::create_symlink(target, link);
}

// A tree with the target at several depths, directories named like the target, links to
// directories (one of them a loop back to the top) and links to files.
class FindFileTree : public testing::Test {
protected:
    void SetUp() override
    {
        const stdfs::path& root = tmp.path();
        tmp.write("target", "top");
        tmp.write("a/b/c/target", "deep");
        tmp.write("a/other", "");
        tmp.write("target.d/x", "");
        tmp.write("z/target/inner/target", "under a directory named like the target");
        tmp.write("hidden/target", "only behind a link");
        for (int i = 0; i < 30; ++i) {
            tmp.write("wide/d" + std::to_string(i) + "/f" + std::to_string(i % 4) + "/target", "");
        }
        stdfs::create_directories(root / "empty");
        makeLink(root, root / "a/loop");
        makeLink(root / "hidden", root / "linked/dir");
        makeLink(root / "a/b/c/target", root / "filelink/target");
        makeLink("missing", root / "dangling/target");
        makeLink("target", root / "selfloop/target");
    }

    TempDir tmp;
};

TEST_F(FindFileTree, VisitsInTheOrderOfThePathByPathSearch)
{
    std::vector<std::string> expected;
    referenceWalk(tmp.path(), "target", expected);
    ASSERT_EQ(expected.size(), 37u);
    EXPECT_EQ(findAll(tmp.path(), "target"), expected);

    stdfs::path first;
    ASSERT_TRUE(find_file(tmp.path(), "target", first));
    EXPECT_EQ(first.string(), expected.front());
}

TEST_F(FindFileTree, MatchesFilesAndLinksToFilesButNoDirectoryAndNothingBehindADirectoryLink)
{
    std::vector<std::string> all = findAll(tmp.path(), "target");
    std::set<std::string> found(all.begin(), all.end());
    EXPECT_EQ(found.size(), all.size()) << "a path was reported twice (a link was followed)";
    const stdfs::path& root = tmp.path();
    for (const char* expected : {"target", "a/b/c/target", "z/target/inner/target", "hidden/target", "filelink/target",
                                 "dangling/target", "selfloop/target"}) {
        EXPECT_EQ(found.count((root / expected).string()), 1u) << expected;
    }
    for (const char* never : {"z/target", "linked/dir/target", "a/loop/target"}) {
        EXPECT_EQ(found.count((root / never).string()), 0u) << never;
    }
}

TEST_F(FindFileTree, ATargetOnlyBehindADirectoryLinkIsNotFound)
{
    stdfs::path found;
    EXPECT_FALSE(find_file(tmp.path() / "linked", "target", found));
    EXPECT_TRUE(findAll(tmp.path() / "linked", "target").empty());
    EXPECT_TRUE(find_file(tmp.path() / "hidden", "target", found));
}

TEST_F(FindFileTree, ADirectoryNamedLikeTheTargetIsSearchedButNotFound)
{
    stdfs::path found;
    ASSERT_TRUE(find_file(tmp.path() / "z", "target", found));
    EXPECT_EQ(found, tmp.path() / "z/target/inner/target");
    EXPECT_FALSE(find_file(tmp.path() / "z", "inner", found));
}

TEST_F(FindFileTree, NamesMatchExactly)
{
    stdfs::path found;
    EXPECT_FALSE(find_file(tmp.path(), "TARGET", found));
    EXPECT_FALSE(find_file(tmp.path(), "targe", found));
    EXPECT_FALSE(find_file(tmp.path(), "", found));
    EXPECT_TRUE(findAll(tmp.path(), "target.d").empty());
    EXPECT_EQ(findAll(tmp.path(), "f3").size(), 0u);  // directories only
    EXPECT_EQ(findAll(tmp.path() / "wide", "target").size(), 30u);
}

TEST(FindFile, StartingDirectoryRules)
{
    TempDir tmp;
    stdfs::path file = tmp.write("plain", "x");
    stdfs::path found = "untouched";
    EXPECT_FALSE(find_file(tmp.path() / "missing", "plain", found));
    EXPECT_FALSE(find_file(file / "below", "plain", found));
    EXPECT_EQ(found, "untouched");
    // The start itself must be a directory that can be listed; that error reaches the caller.
    EXPECT_THROW(find_file(file, "plain", found), stdfs::filesystem_error);
    std::list<stdfs::path> all;
    EXPECT_THROW(find_files(file, "plain", all), stdfs::filesystem_error);

    // The start may be a link to a directory, and is written as given.
    makeLink(tmp.path(), tmp.path() / "self");
    ASSERT_TRUE(find_file((tmp.path() / "self").string() + "/", "plain", found));
    EXPECT_EQ(found, (tmp.path() / "self").string() + "/plain");
}

TEST(FindFile, UnreadableSubdirectoriesArePassedOver)
{
    if (::geteuid() == 0) {
        GTEST_SKIP() << "running as root: permissions do not stop the walk";
    }
    TempDir tmp;
    tmp.write("closed/target", "");
    tmp.write("open/target", "");
    stdfs::permissions(tmp.path() / "closed", stdfs::perms::none);
    EXPECT_EQ(findAll(tmp.path(), "target"), std::vector<std::string>{(tmp.path() / "open/target").string()});
    stdfs::permissions(tmp.path() / "closed", stdfs::perms::owner_all);
}

TEST(FindFile, DeepTreesAreWalkedToTheBottom)
{
    TempDir tmp;
    const std::string relative = testing_support::repeat("d/", 200);
    tmp.write(relative + "target", "");
    stdfs::path found;
    ASSERT_TRUE(find_file(tmp.path(), "target", found));
    EXPECT_EQ(found, tmp.path() / (relative + "target"));
}

// Removes, at the first match, every directory of the tree that the walk has not finished,
// the one being listed included.
class Vandal : public tvpolicy::fs::FileWalker::Visitor {
public:
    explicit Vandal(const stdfs::path& root) : root_(root) {}
    bool found(const std::string& path) override
    {
        matches.push_back(path);
        if (matches.size() == 1) {
            for (const stdfs::directory_entry& entry : stdfs::directory_iterator(root_)) {
                stdfs::remove_all(entry.path());
            }
        }
        return false;
    }
    std::vector<std::string> matches;

private:
    stdfs::path root_;
};

TEST(FindFile, DirectoriesRemovedDuringTheWalkEndOnlyTheirDescent)
{
    TempDir tmp;
    for (int i = 0; i < 20; ++i) {
        tmp.write("d" + std::to_string(i) + "/sub/target", "");
        tmp.write("d" + std::to_string(i) + "/sub/more/target", "");
    }
    Vandal vandal(tmp.path());
    EXPECT_NO_THROW(tvpolicy::fs::FileWalker::walk(tmp.path().string(), "target", vandal));
    EXPECT_GE(vandal.matches.size(), 1u);
    EXPECT_LT(vandal.matches.size(), 40u);
    EXPECT_TRUE(findAll(tmp.path(), "target").empty());
}

struct TextCase {
    std::string content;
    std::string text;
    bool found;
};

TEST(FindInFile, ReadsWhiteSpaceRunsAsOneBlank)
{
    const std::vector<TextCase> cases = {
        {"hello\nworld\n", "hello world", true},
        {"hello \r\n\t  world", "hello world", true},
        {"hello\nworld", "hello\nworld", false},
        {"hello  world", "hello  world", false},
        {"  leading", " leading", true},
        {"Hello", "hello", false},
        {"abc", "", true},
        {"", "", true},
        {"", " ", false},
        {"version=10.6.8\nbuild 42", "10.6.8 build", true},
    };
    TempDir tmp;
    for (const TextCase& c : cases) {
        stdfs::path file = tmp.write("f.txt", c.content);
        EXPECT_EQ(findInFile(file.string(), c.text), c.found) << "'" << c.content << "' / '" << c.text << "'";
    }
    EXPECT_TRUE(findInFile((tmp.path() / "missing").string(), ""));
    EXPECT_FALSE(findInFile((tmp.path() / "missing").string(), "x"));
    EXPECT_FALSE(findInFile(tmp.path().string(), "x"));
}

}  // namespace
