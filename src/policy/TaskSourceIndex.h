#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include <tvpolicy/policy/TaskSource.h>

class Task;

namespace tvpolicy::policy {

/// Where the checks of a policy came from, shared by its sections and kept small enough for
/// policies of hundreds of thousands of checks: while the policy is read, each check adds a
/// few bytes to one stream (its address, line and column as differences from the check before,
/// the number of its element's name, its attributes). The stream is read only when a source is
/// first asked for; the TaskSource is then built and kept, at the same address, for as long as
/// the index lives.
///
/// Records are added while the policy is read, on the reading thread; find() may then be
/// called from several threads at once.
class TaskSourceIndex {
public:
    /// Starts the record of `task`, read from `element` (the name of a registered kind, less
    /// its "Task") at `where`. A later record of the same address replaces it: a task released
    /// during the parse may leave its address to a new one.
    void add(const Task* task, std::string_view element, SourceLocation where);
    /// Adds an attribute, in document order, to the record started last; `read` tells whether
    /// the element's kind reads it.
    void addAttribute(std::string_view name, std::string_view value, bool read);
    /// How the document wrote `task`; null when no record names it.
    const TaskSource* find(const Task* task) const;

private:
    // A record as read back from the stream; `attributes` is where its attributes begin there.
    struct Record {
        const Task* task;
        SourceLocation location;
        std::size_t attributes;
        std::uint8_t element;
    };

    std::uint8_t intern(std::string_view element);
    void putNumber(std::uint64_t number);
    void putText(std::string_view text);
    void readNewRecords() const;
    void build(const Record& record, TaskSource& source) const;

    // Blocks rather than one array: no copy of it all as it grows, no spare half.
    std::deque<std::uint8_t> stream_;
    std::vector<std::string> elementNames_;
    std::uintptr_t lastTask_ = 0;
    std::uint64_t lastLine_ = 0;

    mutable std::mutex mutex_;
    mutable std::vector<Record> records_;  // read back so far, ordered by task, then by position
    mutable std::size_t readUpTo_ = 0;     // where in stream_ the records read back end
    mutable std::uintptr_t readTask_ = 0;
    mutable std::uint64_t readLine_ = 0;
    mutable std::map<const Task*, std::unique_ptr<TaskSource>> built_;
    // Built sources of tasks recorded again: a caller may still hold one.
    std::vector<std::unique_ptr<TaskSource>> replaced_;
};

}  // namespace tvpolicy::policy
