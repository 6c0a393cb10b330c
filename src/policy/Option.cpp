#include <tvpolicy/policy/Option.h>

#include "policy/GroupIndex.h"
#include "policy/ItemKey.h"

using tvpolicy::policy::announcedName;

Option::Option(Policy* owner) : Section(owner) {}

Option::~Option()
{
    for (Section* section : owned) {
        delete section;
    }
}

void Option::addSection(const std::string& key, Section* section)
{
    sections[key] = section;
    owned.insert(section);
}

void Option::parse(xercesc::SAX2XMLReader* reader)
{
    for (auto& [key, section] : sections) {
        if (!section->getUrl().empty()) {
            section->parse(reader);
        }
    }
}

std::string Option::getType() { return "Option"; }

bool Option::isAllProhibited() { return allProhibited; }

bool Option::allFailed()
{
    for (auto& [key, section] : sections) {
        if (section->passed() || section->getStatus() == 5) {
            return false;
        }
    }
    return true;
}

bool Option::groupPartiallyPassed(const std::string& groupName) const
{
    auto found = groupPartially.find(groupName);
    return found != groupPartially.end() && found->second;
}

void Option::setLogicalType(const std::string& type)
{
    if (type == "ONLY") {
        logicType = 2;
    }
}

bool Option::test()
{
    bool result = sections.empty();
    bool allSkipped = true;
    int warnings = 0;
    const auto groups = tvpolicy::policy::secondariesByGroup(sections);
    for (auto& [key, section] : sections) {
        if (!section->isPrimary()) {
            continue;  // evaluated from its group's primary
        }
        if (!section->getGroup().empty()) {
            testGroup(key, *section, tvpolicy::policy::membersOf(groups, section->getGroup()), warnings, allSkipped);
            continue;
        }
        announce(announcedName(key), section);
        bool passed = section->test();
        if (section->getStatus() == 5) {
            ++warnings;
        }
        result = passed;
        if (passed && logicType == 1) {
            break;  // the first passing ungrouped primary decides
        }
    }
    if (logicType == 2) {
        countOnlyOneGroups(result);
    }
    if (!result) {
        for (auto& [groupName, passed] : groupPassed) {
            if (passed) {
                primaryGroup = groupName;
                result = logicType == 1;
                break;
            }
        }
    }
    status = result ? 1 : (warnings > 0 ? 5 : 2);
    if (allSkipped) {
        status = 0;
    }
    passed_ = result;
    return result;
}

void Option::testGroup(const std::string& key, Section& primarySection,
                       const std::vector<std::pair<std::string, Section*>>& secondaries, int& warnings,
                       bool& allSkipped)
{
    const std::string groupName = primarySection.getGroup();
    const std::string where = " section '" + primarySection.getName() + "' for group '" + groupName + "'";
    announce(announcedName(key), &primarySection);
    countProgress();
    trace("--Start primary" + where);
    bool primaryPassed = primarySection.test();
    groupPassed[groupName] = primaryPassed;
    if (primarySection.getStatus() == 5) {
        ++warnings;
    }
    if (primaryPassed && !primarySection.isCustomScan()) {
        groupPartially[groupName] = true;
    }
    allProhibited = allProhibited && primarySection.isProhibited();
    allSkipped = allSkipped && primarySection.isSkipped();
    for (const auto& [otherKey, secondary] : secondaries) {
        if (!primaryPassed || primarySection.isSkipped()) {
            trace("\tSkipping evaluation of " + secondary->getName());
            announce("", secondary);
            countProgress();
            continue;
        }
        announce(announcedName(otherKey), secondary);
        countProgress();
        trace("--Primary Passed and Section Not Skipped... Starting section '" + secondary->getName() +
              "' for group '" + groupName + "'");
        bool counts = secondary->test() || secondary->getStatus() == 4;
        groupPassed[groupName] = groupPassed[groupName] && counts;
        if (secondary->getStatus() == 5) {
            ++warnings;
        }
        if (counts && secondary->isCustomScan()) {
            groupPartially[groupName] = true;
        }
    }
    trace("--End primary" + where);
}

void Option::countOnlyOneGroups(bool& result)
{
    trace("Option " + getName() + " is an ONLY ONE option");
    int count = 0;
    for (auto& [groupName, passed] : groupPassed) {
        if (passed) {
            trace("group " + groupName + " fully passed");
            ++count;
        }
    }
    for (auto& [groupName, passed] : groupPartially) {
        if (passed) {
            trace("group " + groupName + " partially passed");
            ++count;
        }
    }
    if (count >= 2) {
        trace("setting retval to false because count = " + std::to_string(count));
        result = false;
    }
}
