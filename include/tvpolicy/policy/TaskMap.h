#pragma once

#include <cstddef>
#include <string>

#include <tvpolicy/export.h>

class Task;

/// Fixed table of registered task kinds: at most 100 (name, creation function) entries in the
/// order they were added. Lookups scan from the first entry; the first exact match wins.
class TVPOLICY_API TaskMap {
public:
    using CreateFunction = Task* (*)();
    static constexpr std::size_t capacity = 100;

    struct Entry {
        std::string name;
        CreateFunction create = nullptr;
    };

    /// Appends an entry; false, and nothing changes, when the table is full.
    bool add(std::string name, CreateFunction create);
    /// The creation function of the first entry named exactly `name`, or null.
    CreateFunction get(std::string name) const;

    std::size_t size() const { return count_; }
    const Entry& entry(std::size_t index) const { return entries_[index]; }

private:
    Entry entries_[capacity];
    std::size_t count_ = 0;
};
