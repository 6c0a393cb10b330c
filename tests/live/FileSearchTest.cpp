// The file search on this machine's own tree.
#include <tvpolicy/checks/File.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

// Without a start path the whole tree below "/" is searched, up to the first match.
TEST(FileSearch, WithoutStartPathSearchesFromTheRoot)
{
    File file("os-release", false, "", "");
    ASSERT_TRUE(file.exists());
    ASSERT_EQ(file.getFileList().size(), 1u);
    const std::string found = file.getFileList().front();
    EXPECT_EQ(found.rfind('/', 0), 0u) << found;
    EXPECT_EQ(found.substr(found.size() - std::string("/os-release").size()), "/os-release") << found;
}

// Every match below /usr/lib, against the system's find over the same tree.
TEST(FileSearch, FindsWhatFindFinds)
{
    std::list<std::filesystem::path> found;
    find_files("/usr/lib", "os-release", found);
    std::vector<std::string> ours;
    for (const auto& path : found) {
        ours.push_back(path.string());
    }
    std::sort(ours.begin(), ours.end());

    std::vector<std::string> theirs;
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen("find /usr/lib -name os-release ! -type d 2>/dev/null", "r"),
                                               ::pclose);
    ASSERT_NE(pipe, nullptr);
    char line[4096];
    while (std::fgets(line, sizeof line, pipe.get()) != nullptr) {
        std::string path(line);
        path.pop_back();
        // find reports links to directories by name; the search never matches those
        if (!std::filesystem::is_directory(path)) {
            theirs.push_back(path);
        }
    }
    std::sort(theirs.begin(), theirs.end());
    EXPECT_FALSE(theirs.empty());
    EXPECT_EQ(ours, theirs);
}

}  // namespace
