#include "policy/TaskSourceIndex.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <numeric>
#include <utility>

#include <tvpolicy/policy/TaskMap.h>

namespace tvpolicy::policy {

namespace {

// Each element names a registered kind, so a policy holds no more element names than there
// are kinds.
static_assert(TaskMap::capacity <= 256, "an element's number is one byte");

// A policy is at most a few megabytes long, so its lines and columns fit; a larger number
// stays the largest one kept rather than wrapping to a small one.
std::uint32_t narrow(std::uint64_t number)
{
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(number, std::numeric_limits<std::uint32_t>::max()));
}

}  // namespace

std::uint8_t TaskSourceIndex::intern(std::string_view element)
{
    auto known = std::find(elementNames_.begin(), elementNames_.end(), element);
    if (known == elementNames_.end()) {
        known = elementNames_.emplace(elementNames_.end(), element);
    }
    return static_cast<std::uint8_t>(known - elementNames_.begin());
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
    records_.push_back({task, narrow(where.line), narrow(where.column)});
    elements_.push_back(intern(element));
    ordered_ = false;
}

void TaskSourceIndex::addAttribute(std::string_view name, std::string_view value, bool read)
{
    // An attribute's name is a part of a document of at most a few megabytes.
    attributes_.push_back({text_.size(), static_cast<std::uint32_t>(records_.size() - 1),
                           static_cast<std::uint32_t>(name.size()), read ? 1u : 0u});
    text_.insert(text_.end(), name.begin(), name.end());
    text_.insert(text_.end(), value.begin(), value.end());
}

void TaskSourceIndex::order() const
{
    if (ordered_) {
        return;
    }
    order_.resize(records_.size());
    std::iota(order_.begin(), order_.end(), std::uint32_t{0});
    std::sort(order_.begin(), order_.end(), [&](std::uint32_t left, std::uint32_t right) {
        const Task* a = records_[left].task;
        const Task* b = records_[right].task;
        return std::less<const Task*>()(a, b) || (a == b && left < right);
    });
    ordered_ = true;
}

void TaskSourceIndex::build(std::uint32_t record, TaskSource& source) const
{
    source.element = elementNames_[elements_[record]];
    source.location = {records_[record].line, records_[record].column};
    auto first =
        std::lower_bound(attributes_.begin(), attributes_.end(), record,
                         [](const Attribute& attribute, std::uint32_t wanted) { return attribute.record < wanted; });
    for (auto at = first; at != attributes_.end() && at->record == record; ++at) {
        auto nameStart = text_.begin() + static_cast<std::ptrdiff_t>(at->offset);
        auto valueStart = nameStart + at->nameLength;
        auto valueEnd =
            at + 1 != attributes_.end() ? text_.begin() + static_cast<std::ptrdiff_t>((at + 1)->offset) : text_.end();
        std::string name(nameStart, valueStart);
        if (at->read == 0) {
            source.unknownAttributes.push_back(name);
        }
        source.attributes.emplace_back(std::move(name), std::string(valueStart, valueEnd));
    }
}

const TaskSource* TaskSourceIndex::find(const Task* task) const
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto built = built_.find(task);
    if (built != built_.end()) {
        return built->second.get();
    }
    order();
    auto past = std::upper_bound(order_.begin(), order_.end(), task, [&](const Task* wanted, std::uint32_t record) {
        return std::less<const Task*>()(wanted, records_[record].task);
    });
    if (past == order_.begin() || records_[*(past - 1)].task != task) {
        return nullptr;
    }
    auto source = std::make_unique<TaskSource>();
    build(*(past - 1), *source);
    return built_.emplace(task, std::move(source)).first->second.get();
}

}  // namespace tvpolicy::policy
