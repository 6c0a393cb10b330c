// Evaluation of a parsed policy: Policy::run and the progress it counts.
#include <tvpolicy/policy/Policy.h>

#include <tvpolicy/host/ProcessTableSnapshot.h>
#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Section.h>

#include "policy/GroupIndex.h"
#include "policy/ItemKey.h"

using tvpolicy::policy::announcedName;

namespace {

bool isOption(Section& item) { return item.getType() == "Option"; }

}  // namespace

std::uint32_t Policy::getProgressMax()
{
    std::uint32_t total = 0;
    for (auto& [key, item] : items) {
        total += isOption(*item) ? static_cast<std::uint32_t>(static_cast<Option*>(item)->getSections().size()) : 1;
    }
    return total;
}

bool Policy::run()
{
    debug("Running_Policy " + name);
    // However many process checks the policy holds, they read the process table once.
    tvpolicy::ProcessTableSnapshot oneReading;
    result = true;
    const auto groups = tvpolicy::policy::secondariesByGroup(items);
    for (auto& [key, item] : items) {
        bool option = isOption(*item);
        if (!item->isPrimary() && !option && !item->isCustomScan()) {
            continue;  // a secondary: evaluated with its group's primary
        }
        if (option) {
            if (!item->test() && !item->isSkipped()) {
                result = false;
            }
        } else if (item->getGroup().empty()) {
            announce(announcedName(key), item);
            if (!item->test()) {
                result = false;
            }
        } else {
            runGroup(key, *item, tvpolicy::policy::membersOf(groups, item->getGroup()));
        }
    }
    progress = getProgressMax();
    announce("");
    debug(result ? "Policy " + name + " Passed " : "Policy " + name + " Failed.");
    return result;
}

void Policy::runGroup(const std::string& key, Section& section,
                      const std::vector<std::pair<std::string, Section*>>& secondaries)
{
    const std::string group = section.getGroup();
    const std::string kind = section.isPrimary() ? "primary" : "secondary";
    const std::string where = " section '" + section.getName() + "' for group '" + group + "'";
    debug("--Start Custom Scan " + kind + where);
    announce(announcedName(key), &section);
    ++progress;
    bool passed = section.test();
    if (!passed && !section.isSkipped()) {
        result = false;
    }
    for (const auto& [otherKey, other] : secondaries) {
        if (!passed || section.isSkipped()) {
            debug("\tSkipping evaluation of " + other->getName());
            announce("", other);
            continue;
        }
        announce(announcedName(otherKey), other);
        debug("--Primary Passed and Section Not Skipped... Starting section '" + other->getName() + "' for group '" +
              group + "'");
        if (!other->test() && !other->isSkipped()) {
            result = false;
        }
    }
    debug("--End Custom Scan " + kind + where);
}
