#pragma once

#include <string>

namespace tvpolicy::fs {

/// The search behind find_file and find_files: a depth-first walk that lists each directory
/// through its descriptor and takes entry types from the listing, so an entry costs a stat only
/// when the listing does not say what it is, or when a link bears the name looked for.
///
/// Rules of the walk:
///  - entries come in the order the directory yields them; a subdirectory is descended into as
///    soon as it is met, before the later entries of its parent;
///  - directories are never matched by name, and a symbolic link that leads to a directory is
///    neither followed nor matched;
///  - an error inside a descent (a directory that cannot be opened or read, or vanishes) ends
///    that descent only; an error on the starting directory itself is thrown as
///    std::filesystem::filesystem_error;
///  - memory grows with the depth of the tree (one open directory per level), not its size;
///    a tree deeper than the process may hold open descriptors ends its descent there, as an
///    unreadable directory would.
class FileWalker {
public:
    /// Told of every match; returns true to end the walk.
    class Visitor {
    public:
        virtual bool found(const std::string& path) = 0;

        virtual ~Visitor() = default;
    };

    /// Walks `root` for entries named exactly `name`; returns true when the visitor ended the
    /// walk, false when the tree was exhausted or `root` does not exist.
    static bool walk(const std::string& root, const std::string& name, Visitor& visitor);
};

}  // namespace tvpolicy::fs
