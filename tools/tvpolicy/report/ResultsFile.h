#pragma once

#include <string>

#include <tvpolicy/base/Result.h>

namespace tvpolicy::cli {

/// Writes `content` to `path` so that a reader sees either the old file or the whole new one:
/// a temporary file beside it, flushed to disk, then renamed over it. A failure, with nothing
/// left behind, when any step fails.
Result<void> writeFileAtomically(const std::string& path, const std::string& content);

/// A temporary file beside `path`, for content that another writer fills (a download): it is
/// removed when the object goes, unless commit() renamed it over `path` first.
class FileBeside {
public:
    explicit FileBeside(const std::string& path);
    ~FileBeside();
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    /// Empty when no file could be created beside `path` (why() tells).
    const std::string& name() const { return name_; }
    const std::string& why() const { return why_; }
    /// Gives the file the permissions a plainly created one would have, flushes it to disk and
    /// renames it over `path`.
    Result<void> commit();

private:
    std::string path_;
    std::string name_;
    std::string why_;
};

}  // namespace tvpolicy::cli
