#pragma once

#include <ctime>
#include <memory>
#include <string>

#include <dirent.h>

namespace tvpolicy::fs {

/// What a directory entry is, as far as the directory listing itself tells.
enum class EntryKind { directory, symlink, other, unknown };

/// One open directory, read entry by entry through its descriptor (POSIX openat/fdopendir/
/// readdir), with the entry types the listing carries: no stat per entry. Every error is
/// reported as an errno value; nothing throws.
class DirectoryStream {
public:
    /// Opens `path` (a final symbolic link is followed). Check valid(); `error` gets errno.
    static DirectoryStream open(const std::string& path, int& error);
    /// Opens the subdirectory `name` of this directory without following a symbolic link, so a
    /// directory replaced by a link after it was listed is refused (ELOOP or ENOTDIR).
    DirectoryStream openChild(const char* name, int& error) const;

    bool valid() const { return dir_ != nullptr; }

    /// The next entry other than "." and "..": false at the end of the listing or on an error
    /// (then `error` is set, otherwise it is 0). `name` stays valid until the next call.
    bool next(const char*& name, EntryKind& kind, int& error);

    /// The kind of the entry `name` from its own metadata (a link is reported as a link).
    EntryKind kindOf(const char* name) const;
    /// Whether the entry `name` leads to a directory once links are followed; a link that
    /// cannot be resolved (dangling, looping, forbidden) does not.
    bool leadsToDirectory(const char* name) const;

private:
    struct Closer {
        void operator()(DIR* dir) const { ::closedir(dir); }
    };
    explicit DirectoryStream(DIR* dir) : dir_(dir) {}
    static DirectoryStream adopt(int fd, int& error);

    std::unique_ptr<DIR, Closer> dir_;
};

/// The last modification time of `path`; false (and `when` untouched) if it cannot be read.
bool modificationTime(const std::string& path, std::time_t& when);

}  // namespace tvpolicy::fs
