#include <tvpolicy/policy/TaskMap.h>

#include <utility>

bool TaskMap::add(std::string name, CreateFunction create)
{
    if (count_ >= capacity) {
        return false;
    }
    entries_[count_].name = std::move(name);
    entries_[count_].create = create;
    ++count_;
    return true;
}

TaskMap::CreateFunction TaskMap::get(std::string name) const
{
    for (std::size_t i = 0; i < count_; ++i) {
        if (entries_[i].name == name) {
            return entries_[i].create;
        }
    }
    return nullptr;
}
