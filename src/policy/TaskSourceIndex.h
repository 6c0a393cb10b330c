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
/// policies of hundreds of thousands of checks: sixteen bytes and an element number per check,
/// each element name once, and the attributes' names and values back to back. A
/// TaskSource is built when it is first asked for and kept, at the same address, for as long
/// as the index lives; nothing is ordered for lookup until then.
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
    struct Record {
        const Task* task;
        std::uint32_t line;
        std::uint32_t column;
    };
    // The name starts at `offset` in text_; the value follows it and runs to the next
    // attribute's name (the last one's to the end of text_).
    struct Attribute {
        std::uint64_t offset;
        std::uint32_t record;
        std::uint32_t nameLength : 31;
        std::uint32_t read : 1;
    };

    std::uint8_t intern(std::string_view element);
    void order() const;
    void build(std::uint32_t record, TaskSource& source) const;

    // Blocks of records rather than one array: no copy of them all as they grow, no spare half.
    std::deque<Record> records_;
    std::deque<std::uint8_t> elements_;  // each record's index in elementNames_
    std::vector<std::string> elementNames_;
    std::deque<Attribute> attributes_;  // in record order
    std::deque<char> text_;

    mutable std::mutex mutex_;
    // Record numbers ordered by task, then by number: the last of a task's records is its own.
    mutable std::vector<std::uint32_t> order_;
    mutable bool ordered_ = true;
    mutable std::map<const Task*, std::unique_ptr<TaskSource>> built_;
    // Built sources of tasks recorded again: a caller may still hold one.
    std::vector<std::unique_ptr<TaskSource>> replaced_;
};

}  // namespace tvpolicy::policy
