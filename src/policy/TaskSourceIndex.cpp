#include "policy/TaskSourceIndex.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <tvpolicy/policy/TaskMap.h>

namespace tvpolicy::policy {

namespace {

// The stream holds two kinds of entries, told by their first byte. A record: the number of its
// element's name, then its task's address and its line as differences from the record before,
// then its column. An attribute of the record before it: one of the two marks below, then its
// name and its value, each as a length and that many bytes. Numbers take seven bits a byte,
// the lowest first, and a set high bit says that more follow.
constexpr std::uint8_t readAttribute = 0xFE;
constexpr std::uint8_t unreadAttribute = 0xFF;

// Each element names a registered kind, so a policy holds no more element names than there
// are kinds, and their numbers stay below the marks.
static_assert(TaskMap::capacity <= readAttribute, "an element's number is one byte below the marks");

// A difference of two numbers, kept small whichever way it goes: 0, -1, 1, -2 ... become
// 0, 1, 2, 3 ...
std::uint64_t zigzag(std::uint64_t from, std::uint64_t to)
{
    std::uint64_t difference = to - from;
    return (difference << 1) ^ (std::uint64_t{0} - (difference >> 63));
}

std::uint64_t unzigzag(std::uint64_t from, std::uint64_t coded)
{
    return from + ((coded >> 1) ^ (std::uint64_t{0} - (coded & 1)));
}

class StreamReader {
public:
    StreamReader(const std::deque<std::uint8_t>& stream, std::size_t at) : stream_(stream), at_(at) {}

    bool atEnd() const { return at_ >= stream_.size(); }
    std::size_t position() const { return at_; }
    std::uint8_t peek() const { return stream_[at_]; }
    std::uint8_t byte() { return stream_[at_++]; }

    std::uint64_t number()
    {
        std::uint64_t value = 0;
        for (unsigned shift = 0;; shift += 7) {
            std::uint8_t part = byte();
            value |= std::uint64_t{part & 0x7Fu} << shift;
            if ((part & 0x80u) == 0) {
                return value;
            }
        }
    }

    std::string text()
    {
        auto length = static_cast<std::size_t>(number());
        auto first = stream_.begin() + static_cast<std::ptrdiff_t>(at_);
        at_ += length;
        return std::string(first, first + static_cast<std::ptrdiff_t>(length));
    }

private:
    const std::deque<std::uint8_t>& stream_;
    std::size_t at_;
};

}  // namespace

std::uint8_t TaskSourceIndex::intern(std::string_view element)
{
    auto known = std::find(elementNames_.begin(), elementNames_.end(), element);
    if (known == elementNames_.end()) {
        known = elementNames_.emplace(elementNames_.end(), element);
    }
    return static_cast<std::uint8_t>(known - elementNames_.begin());
}

void TaskSourceIndex::putNumber(std::uint64_t number)
{
    for (; number >= 0x80; number >>= 7) {
        stream_.push_back(static_cast<std::uint8_t>(number | 0x80));
    }
    stream_.push_back(static_cast<std::uint8_t>(number));
}

void TaskSourceIndex::putText(std::string_view text)
{
    putNumber(text.size());
    stream_.insert(stream_.end(), text.begin(), text.end());
}

void TaskSourceIndex::add(const Task* task, std::string_view element, SourceLocation where)
{
    if (!built_.empty()) {
        auto stale = built_.find(task);
        if (stale != built_.end()) {
            replaced_.push_back(std::move(stale->second));
            built_.erase(stale);
        }
    }
    auto address = reinterpret_cast<std::uintptr_t>(task);
    stream_.push_back(intern(element));
    putNumber(zigzag(lastTask_, address));
    putNumber(zigzag(lastLine_, where.line));
    putNumber(where.column);
    lastTask_ = address;
    lastLine_ = where.line;
}

void TaskSourceIndex::addAttribute(std::string_view name, std::string_view value, bool read)
{
    stream_.push_back(read ? readAttribute : unreadAttribute);
    putText(name);
    putText(value);
}

void TaskSourceIndex::readNewRecords() const
{
    auto byTask = [](const Record& left, const Record& right) {
        return std::less<const Task*>()(left.task, right.task);
    };
    std::size_t known = records_.size();
    StreamReader reader(stream_, readUpTo_);
    while (!reader.atEnd()) {
        std::uint8_t kind = reader.byte();
        if (kind == readAttribute || kind == unreadAttribute) {
            reader.text();
            reader.text();
            continue;
        }
        Record record{};
        readTask_ = static_cast<std::uintptr_t>(unzigzag(readTask_, reader.number()));
        readLine_ = unzigzag(readLine_, reader.number());
        record.task = reinterpret_cast<const Task*>(readTask_);
        record.location = {readLine_, reader.number()};
        record.attributes = reader.position();
        record.element = kind;
        records_.push_back(record);
    }
    readUpTo_ = reader.position();
    // Both runs in task order and, for one task, in stream order: the last record of a task is its own.
    auto fresh = records_.begin() + static_cast<std::ptrdiff_t>(known);
    std::stable_sort(fresh, records_.end(), byTask);
    std::inplace_merge(records_.begin(), fresh, records_.end(), byTask);
}

void TaskSourceIndex::build(const Record& record, TaskSource& source) const
{
    source.element = elementNames_[record.element];
    source.location = record.location;
    StreamReader reader(stream_, record.attributes);
    while (!reader.atEnd() && (reader.peek() == readAttribute || reader.peek() == unreadAttribute)) {
        bool read = reader.byte() == readAttribute;
        std::string name = reader.text();
        if (!read) {
            source.unknownAttributes.push_back(name);
        }
        source.attributes.emplace_back(std::move(name), reader.text());
    }
}

const TaskSource* TaskSourceIndex::find(const Task* task) const
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto built = built_.find(task);
    if (built != built_.end()) {
        return built->second.get();
    }
    if (readUpTo_ < stream_.size()) {
        readNewRecords();
    }
    auto past = std::upper_bound(records_.begin(), records_.end(), task, [](const Task* wanted, const Record& record) {
        return std::less<const Task*>()(wanted, record.task);
    });
    if (past == records_.begin() || (past - 1)->task != task) {
        return nullptr;
    }
    auto source = std::make_unique<TaskSource>();
    build(*(past - 1), *source);
    return built_.emplace(task, std::move(source)).first->second.get();
}

}  // namespace tvpolicy::policy
