#pragma once

#include <filesystem>
#include <list>
#include <string>

#include <tvpolicy/export.h>

/// A file looked for by its base name, under a start directory or under every fixed disk, and
/// the facts a file check asks of what was found.
class TVPOLICY_API File {
public:
    /// `name` is matched exactly against base names; an empty `startPath` searches the fixed
    /// disks. `execute` and `args` are kept, but no program is ever started.
    File(std::string name, bool execute, std::string args, std::string startPath);

    void setFileName(std::string name);
    /// Takes "true" (exactly) as true and anything else as false; returns the new value.
    bool setWaitOnExecute(std::string wait);

    /// Looks for the first file of the name and records it in the file list. An error on a
    /// starting directory itself (not readable, not a directory) is thrown as
    /// std::filesystem::filesystem_error.
    bool exists();
    /// Records every file of the name in the file list and returns the list (errors as exists).
    std::list<std::string> getAllFiles();
    std::list<std::string> getFileList();

    /// No version resource is read on this platform: always "0.0.0.0".
    std::string getVersion();
    /// The modification date of `path` as "year-month-day" in local time (2011-03-15), or
    /// "0-0-0" if it cannot be read. `path` arrives with backslashes in place of its slashes
    /// (the form a file check passes); they are turned back first.
    std::string getLastModTime(std::string path);
    /// Always false on this platform.
    bool isReadOnly();

private:
    std::list<std::string> roots() const;

    std::string name_;
    bool execute_;
    std::string args_;
    std::string startPath_;
    std::list<std::string> fileList_;
    bool waitOnExecute_ = false;
};

/// The root directories searched when no start directory is given: just "/". Built on first use.
TVPOLICY_API const std::list<std::string>& fixedDisks();

/// Depth-first search of `dir` for a non-directory entry named exactly `name`, descending into
/// each subdirectory as it is met and never through a symbolic link to a directory. The first
/// match is stored in `found`. False if `dir` does not exist or holds no such entry; errors
/// inside subdirectories are passed over, errors on `dir` itself are thrown
/// (std::filesystem::filesystem_error).
TVPOLICY_API bool find_file(std::filesystem::path dir, std::string name, std::filesystem::path& found);

/// The same walk, appending every match to `found`.
TVPOLICY_API void find_files(std::filesystem::path dir, std::string name, std::list<std::filesystem::path>& found);

/// Whether `text` occurs in the file once every run of white space (line ends included) is
/// read as one blank. An empty `text` is always found; a file that cannot be read is empty.
TVPOLICY_API bool findInFile(std::string path, std::string text);
