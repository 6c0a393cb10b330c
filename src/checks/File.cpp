#include <tvpolicy/checks/File.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

#include <tvpolicy/base/Utilities.h>
#include <tvpolicy/host/HostProbe.h>

#include "checks/DirectoryStream.h"

File::File(std::string name, bool execute, std::string args, std::string startPath)
    : name_(std::move(name)),
      execute_(execute),
      args_(std::move(args)),
      startPath_(std::move(startPath))
{
}

void File::setFileName(std::string name) { name_ = std::move(name); }

bool File::setWaitOnExecute(std::string wait)
{
    waitOnExecute_ = wait == "true";
    return waitOnExecute_;
}

std::list<std::string> File::roots() const
{
    std::list<std::string> roots = startPath_.empty() ? fixedDisks() : std::list<std::string>{startPath_};
    // Searched where this host keeps them: the real backend answers each path itself, a
    // described host maps them into a folder of its own.
    for (std::string& root : roots) {
        if (root.compare(0, 3, "//:") == 0) {
            root.erase(0, 3);
        }
        root = tvpolicy::currentHost().systemPath(root);
    }
    return roots;
}

bool File::exists()
{
    for (const std::string& root : roots()) {
        std::filesystem::path found;
        if (find_file(root, name_, found)) {
            fileList_.push_back(found.string());
            if (execute_) {
                // The arguments are prepared as a launch would take them, but nothing is started.
                std::vector<std::string> arguments;
                std::string blank = " ";
                split(args_, blank, arguments);
            }
            return true;
        }
    }
    return false;
}

std::list<std::string> File::getAllFiles()
{
    for (const std::string& root : roots()) {
        std::list<std::filesystem::path> found;
        find_files(root, name_, found);
        for (const std::filesystem::path& path : found) {
            fileList_.push_back(path.string());
        }
    }
    return fileList_;
}

std::list<std::string> File::getFileList() { return fileList_; }

std::string File::getVersion() { return "0.0.0.0"; }

std::string File::getLastModTime(std::string path)
{
    std::replace(path.begin(), path.end(), '\\', '/');
    std::time_t when = 0;
    std::tm local{};
    if (!tvpolicy::fs::modificationTime(path, when) || localtime_r(&when, &local) == nullptr) {
        return "0-0-0";
    }
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
    return text;
}

bool File::isReadOnly() { return false; }
