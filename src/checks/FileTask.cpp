#include <tvpolicy/checks/FileTask.h>

#include <algorithm>
#include <exception>

#include <tvpolicy/checks/DelimVersion.h>
#include <tvpolicy/checks/File.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

#include "checks/TaskAttributes.h"

bool FileTask::whatever = TaskFactory::addTask("FileTask", &FileTask::create);
namespace {
const bool described = tvpolicy::TaskCatalog::describe(
    "FileTask", {"fileName", "startPath", "lastModified", "version", "execute", "args", "wait"});
}  // namespace

Task* FileTask::create() { return new FileTask; }

std::string FileTask::getType() { return "FileTask"; }

void FileTask::setAttribute(Attribute* attribute)
{
    if (attribute->first == "execute") {
        execute_ = attribute->second == "true";
        return;
    }
    tvpolicy::checks::assignAttribute(*attribute, {{"fileName", &fileName_},
                                                   {"args", &args_},
                                                   {"startPath", &startPath_},
                                                   {"lastModified", &lastModified_},
                                                   {"version", &version_},
                                                   {"wait", &wait_}});
}

TaskResponse* FileTask::perform()
{
    auto* response = new TaskResponse(0);
    File file(fileName_, execute_, args_, startPath_);
    file.setWaitOnExecute(wait_);

    bool found = false;
    try {
        found = file.exists();
    } catch (const std::exception&) {
        found = false;  // the start directory could not be searched: nothing was found there
    }
    response->passed = found;
    if (!found) {
        response->message = getType() + "/File Not Found";
    }

    if (!lastModified_.empty()) {
        std::string newest = "0-0-0";
        DelimVersion comparer(std::string("gte"));
        for (std::string path : file.getFileList()) {
            std::replace(path.begin(), path.end(), '/', '\\');
            std::string modified = file.getLastModTime(path);
            if (comparer.versionAtLeast(newest, "-", modified)) {
                newest = modified;
            }
        }
        response->passed = comparer.versionAtLeast(lastModified_, "-", newest);
        if (!response->passed) {
            response->message = getType() + "/Too Old: " + newest;
        }
    }

    if (!version_.empty()) {
        DelimVersion comparer(std::string("gte"));
        response->passed = comparer.versionAtLeast(version_, ".,", file.getVersion());
        response->message += getType() + "/File Version: " + file.getVersion();
    }

    passed_ = response->passed;
    return response;
}
