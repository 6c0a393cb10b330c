#pragma once

#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// The `File` element: passes when a file of the given name exists under "startPath" (or
/// anywhere below "/"), and optionally when it was modified on or after "lastModified"
/// (year-month-day) or carries at least "version".
///
/// Attributes: "fileName", "execute" (exactly "true"), "args", "startPath", "lastModified",
/// "version", "wait". Messages: "FileTask/File Not Found", "FileTask/Too Old: <date>", and
/// "FileTask/File Version: <version>" appended whenever a version is asked for.
class TVPOLICY_API FileTask : public Task {
public:
    static Task* create();

    void setAttribute(Attribute* attribute) override;
    TaskResponse* perform() override;
    std::string getType() override;

    static bool whatever;

private:
    std::string fileName_;
    [[maybe_unused]] bool flag_ = true;  // kept with the task's shape; nothing reads it
    bool execute_ = false;
    std::string args_;
    std::string startPath_;
    std::string lastModified_;
    std::string version_;
    std::string wait_;
};
