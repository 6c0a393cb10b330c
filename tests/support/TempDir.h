#pragma once

#include <filesystem>
#include <string>

namespace testing_support {

/// A fresh directory under the system's temporary folder, removed with everything in it.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    /// Writes `content` to `relative` (creating parent folders) and returns its full path.
    std::filesystem::path write(const std::string& relative, const std::string& content) const;

private:
    std::filesystem::path path_;
};

/// The whole content of `file`; empty when it cannot be read.
std::string readFile(const std::filesystem::path& file);

}  // namespace testing_support
