#include <tvpolicy/checks/File.h>
#include <tvpolicy/checks/FileTask.h>
#include <tvpolicy/host/DescribedHostProbe.h>
#include <tvpolicy/host/HostProbe.h>

#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

#include "support/PerformTask.h"
#include "support/TempDir.h"

namespace {

namespace stdfs = std::filesystem;
using testing_support::TempDir;

// Local noon of a day, so the date reads the same in any time zone.
std::time_t localNoon(int year, int month, int day)
{
    std::tm when{};
    when.tm_year = year - 1900;
    when.tm_mon = month - 1;
    when.tm_mday = day;
    when.tm_hour = 12;
    when.tm_isdst = -1;
    return std::mktime(&when);
}

void setModified(const stdfs::path& path, std::time_t when)
{
    struct timespec times[2] = {{when, 0}, {when, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW), 0);
}

struct FileCase {
    std::string name;
    std::vector<Task::Attribute> attributes;  // "@" in a value stands for the test's folder
    bool passed;
    std::string message;
};

class FileTaskRules : public testing::TestWithParam<FileCase> {
protected:
    void SetUp() override
    {
        setModified(tmp.write("apps/Tool/bin/tool.cfg", "x"), localNoon(2011, 3, 15));
        stdfs::create_directories(tmp.path() / "apps/Folder.app");
        tmp.write("launch.sh", "");
    }

    std::vector<Task::Attribute> resolved(std::vector<Task::Attribute> attributes) const
    {
        for (Task::Attribute& attribute : attributes) {
            std::string::size_type at = attribute.second.find('@');
            if (at != std::string::npos) {
                attribute.second.replace(at, 1, tmp.path().string());
            }
        }
        return attributes;
    }

    TempDir tmp;
};

TEST_P(FileTaskRules, Perform)
{
    const FileCase& c = GetParam();
    testing_support::TaskRun run = testing_support::performTask("FileTask", resolved(c.attributes));
    EXPECT_EQ(run.response->passed, c.passed);
    EXPECT_EQ(run.response->message, c.message);
    EXPECT_EQ(run.response->code, 0);
    EXPECT_EQ(run.response->detail, "");
}

INSTANTIATE_TEST_SUITE_P(
    Attributes, FileTaskRules,
    testing::Values(
        FileCase{"Found", {{"fileName", "tool.cfg"}, {"startPath", "@/apps"}}, true, ""},
        FileCase{"StartIsTheFilesFolder", {{"fileName", "tool.cfg"}, {"startPath", "@/apps/Tool/bin"}}, true, ""},
        FileCase{"Missing", {{"fileName", "none.cfg"}, {"startPath", "@/apps"}}, false, "FileTask/File Not Found"},
        FileCase{
            "ADirectoryIsNoFile", {{"fileName", "Folder.app"}, {"startPath", "@"}}, false, "FileTask/File Not Found"},
        FileCase{
            "NamesAreCaseSensitive", {{"fileName", "TOOL.CFG"}, {"startPath", "@"}}, false, "FileTask/File Not Found"},
        FileCase{
            "MissingStart", {{"fileName", "tool.cfg"}, {"startPath", "@/nowhere"}}, false, "FileTask/File Not Found"},
        // A start that cannot be listed is an error of the walk, reported as not found.
        FileCase{
            "StartIsAFile", {{"fileName", "tool.cfg"}, {"startPath", "@/launch.sh"}}, false, "FileTask/File Not Found"},
        FileCase{"UnknownAttributesIgnored",
                 {{"FileName", "x"}, {"fileName", "tool.cfg"}, {"startpath", "/nowhere"}, {"startPath", "@"}},
                 true,
                 ""},
        FileCase{"RepeatedAttributeOverwrites",
                 {{"fileName", "none"}, {"fileName", "tool.cfg"}, {"startPath", "@"}},
                 true,
                 ""},
        // Dates compare year, month and day as numbers.
        FileCase{"NewEnough", {{"fileName", "tool.cfg"}, {"startPath", "@"}, {"lastModified", "2011-03-15"}}, true, ""},
        FileCase{"NewEnoughUnpadded",
                 {{"fileName", "tool.cfg"}, {"startPath", "@"}, {"lastModified", "2011-3-9"}},
                 true,
                 ""},
        FileCase{"OlderRequirement",
                 {{"fileName", "tool.cfg"}, {"startPath", "@"}, {"lastModified", "2010-12-31"}},
                 true,
                 ""},
        FileCase{"TooOld",
                 {{"fileName", "tool.cfg"}, {"startPath", "@"}, {"lastModified", "2011-03-16"}},
                 false,
                 "FileTask/Too Old: 2011-03-15"},
        FileCase{"TooOldByAYear",
                 {{"fileName", "tool.cfg"}, {"startPath", "@"}, {"lastModified", "2012-1-1"}},
                 false,
                 "FileTask/Too Old: 2011-03-15"},
        // Without a file the newest date is 0-0-0: any real date fails, 0-0-0 itself passes.
        FileCase{"NoFileAnyDate",
                 {{"fileName", "none"}, {"startPath", "@"}, {"lastModified", "1970-1-1"}},
                 false,
                 "FileTask/Too Old: 0-0-0"},
        FileCase{"NoFileZeroDate",
                 {{"fileName", "none"}, {"startPath", "@"}, {"lastModified", "0-0-0"}},
                 true,
                 "FileTask/File Not Found"},
        // The version of a file is always 0.0.0.0; the message tells it whatever the outcome.
        FileCase{"VersionAboveZero",
                 {{"fileName", "tool.cfg"}, {"startPath", "@"}, {"version", "1.0"}},
                 false,
                 "FileTask/File Version: 0.0.0.0"},
        FileCase{"VersionZero",
                 {{"fileName", "tool.cfg"}, {"startPath", "@"}, {"version", "0,0"}},
                 true,
                 "FileTask/File Version: 0.0.0.0"},
        FileCase{"VersionDecidesAlone",
                 {{"fileName", "none"}, {"startPath", "@"}, {"version", "0"}},
                 true,
                 "FileTask/File Not FoundFileTask/File Version: 0.0.0.0"},
        FileCase{"DateThenVersion",
                 {{"fileName", "tool.cfg"}, {"startPath", "@"}, {"lastModified", "2099-1-1"}, {"version", "0.0.0.1"}},
                 false,
                 "FileTask/Too Old: 2011-03-15FileTask/File Version: 0.0.0.0"}),
    [](const testing::TestParamInfo<FileCase>& testCase) { return testCase.param.name; });

TEST(FileTask, ExecuteNeverStartsTheFile)
{
    TempDir tmp;
    tmp.write("launch.sh", "#!/bin/sh\ntouch \"$1\"\n");
    stdfs::permissions(tmp.path() / "launch.sh", stdfs::perms::owner_all);
    File file("launch.sh", true, (tmp.path() / "marker").string(), tmp.path().string());
    EXPECT_TRUE(file.setWaitOnExecute("true"));
    EXPECT_TRUE(file.exists());
    EXPECT_FALSE(stdfs::exists(tmp.path() / "marker"));
}

TEST(File, RecordsWhatItFinds)
{
    TempDir tmp;
    tmp.write("a/db.vps", "");
    tmp.write("b/c/db.vps", "");
    File file("db.vps", false, "", "//:" + tmp.path().string());  // a "//:" prefix is dropped
    EXPECT_TRUE(file.exists());
    ASSERT_EQ(file.getFileList().size(), 1u);
    std::list<std::string> all = file.getAllFiles();
    EXPECT_EQ(all.size(), 3u);  // the first match stays recorded
    EXPECT_EQ(all, file.getFileList());

    file.setFileName("none");
    EXPECT_FALSE(file.exists());
    EXPECT_EQ(file.getFileList().size(), 3u);
}

TEST(File, LastModTimeTakesTheBackslashedPath)
{
    TempDir tmp;
    stdfs::path path = tmp.write("dir/file", "");
    setModified(path, localNoon(2009, 11, 5));
    std::string backslashed = path.string();
    std::replace(backslashed.begin(), backslashed.end(), '/', '\\');

    File file("file", false, "", "");
    EXPECT_EQ(file.getLastModTime(backslashed), "2009-11-05");
    EXPECT_EQ(file.getLastModTime(path.string()), "2009-11-05");
    EXPECT_EQ(file.getLastModTime(backslashed + "-gone"), "0-0-0");
    EXPECT_EQ(file.getLastModTime(""), "0-0-0");
}

}  // namespace

// A described host's searches never leave its folder: a start path that climbs with ".." stops
// at the folder's top, as "/.." is "/", and a relative one begins there too.
TEST(FileTask, DescribedHostSearchesStayInsideItsFolder)
{
    TempDir tmp;
    tmp.write("outside/marker", "");
    tmp.write("root/etc/marker", "");
    tvpolicy::DescribedHostProbe host;
    host.pathMap["/"] = (tmp.path() / "root").string() + "/";
    host.pathMap[""] = host.pathMap["/"];
    tvpolicy::ScopedHost described(host);
    const std::vector<std::pair<std::string, bool>> cases = {
        {"/../outside", false}, {"//:/etc/../../outside", false},
        {"../outside", false},  {"/../../../etc", true},
        {"etc", true},          {"", true},
    };
    for (const auto& [start, found] : cases) {
        File file("marker", false, "", start);
        EXPECT_EQ(file.exists(), found) << start;
    }
}
