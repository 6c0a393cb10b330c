#include "policy/PolicyWalk.h"

#include <list>
#include <memory>

#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>

namespace tvpolicy::cli {

void forEachSection(Policy& policy, const std::function<void(const std::string& key, Section& section)>& visit)
{
    for (auto& [key, item] : policy.getSections()) {
        if (item->getType() != "Option") {
            visit(key, *item);
            continue;
        }
        for (auto& [childKey, child] : static_cast<Option&>(*item).getSections()) {
            visit(childKey, *child);
        }
    }
}

std::vector<Task*> termsOf(Task& task)
{
    std::list<Task*>* terms = task.getTerms();
    if (terms == nullptr) {
        return {};
    }
    std::vector<Task*> list(terms->begin(), terms->end());
    // A not hands out a list of its own making; and/or hand out the list they keep.
    if (task.getType() == "notTask") {
        delete terms;
    }
    return list;
}

std::string shownName(const std::string& key, const Section& section)
{
    return section.getName().empty() && !section.getUrl().empty() ? key : section.getName();
}

}  // namespace tvpolicy::cli
