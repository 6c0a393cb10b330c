#include "checks/FileWalker.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "checks/DirectoryStream.h"

namespace tvpolicy::fs {

namespace {

struct Level {
    DirectoryStream stream;
    std::size_t pathLength;  // the length of this directory's path in the shared path buffer
};

void appendName(std::string& path, const char* name)
{
    if (!path.empty() && path.back() != '/') {
        path += '/';
    }
    path += name;
}

[[noreturn]] void fail(const std::string& root, int error)
{
    throw std::filesystem::filesystem_error("cannot search directory", root,
                                            std::error_code(error, std::generic_category()));
}

}  // namespace

bool FileWalker::walk(const std::string& root, const std::string& name, Visitor& visitor)
{
    if (!std::filesystem::exists(root)) {  // throws for anything but a missing path
        return false;
    }
    int error = 0;
    std::vector<Level> levels;
    levels.push_back({DirectoryStream::open(root, error), root.size()});
    if (!levels.back().stream.valid()) {
        fail(root, error);
    }

    std::string path = root;
    while (!levels.empty()) {
        Level& level = levels.back();
        path.resize(level.pathLength);
        const char* entry = nullptr;
        EntryKind kind = EntryKind::unknown;
        if (!level.stream.next(entry, kind, error)) {
            if (error != 0 && levels.size() == 1) {
                fail(root, error);
            }
            levels.pop_back();  // exhausted, or failed inside a descent: go on with the parent
            continue;
        }
        if (kind == EntryKind::unknown) {
            kind = level.stream.kindOf(entry);
        }
        if (kind == EntryKind::directory) {
            DirectoryStream child = level.stream.openChild(entry, error);
            if (child.valid()) {
                appendName(path, entry);
                levels.push_back({std::move(child), path.size()});
            }
            continue;
        }
        if (name.compare(entry) != 0 || (kind == EntryKind::symlink && level.stream.leadsToDirectory(entry))) {
            continue;
        }
        appendName(path, entry);
        if (visitor.found(path)) {
            return true;
        }
    }
    return false;
}

}  // namespace tvpolicy::fs
