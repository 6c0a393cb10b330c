#include "policy/PolicyNotices.h"

#include <algorithm>

#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskSource.h>

#include "policy/PolicyWalk.h"
#include "policy/UnreadElements.h"

namespace tvpolicy::cli {

namespace {

void attributeNotices(Section& section, Task& task, const std::string& name, std::vector<Notice>& notices)
{
    if (const tvpolicy::TaskSource* source = section.getTaskSource(&task)) {
        for (const std::string& attribute : source->unknownAttributes) {
            notices.push_back({"unknown-attribute", true, source->location.line, name,
                               "attribute '" + attribute + "' of <" + source->element + "> in section \"" + name +
                                   "\" is not one that " + source->element +
                                   " reads: it changes nothing (see tvpolicy tasks)"});
        }
    }
    for (Task* term : termsOf(task)) {
        attributeNotices(section, *term, name, notices);
    }
}

bool holdsProcessCheck(Section& section, Task& task)
{
    const tvpolicy::TaskSource* source = section.getTaskSource(&task);
    if (source != nullptr && source->element == "ProcessExists") {
        return true;
    }
    std::vector<Task*> terms = termsOf(task);
    return std::any_of(terms.begin(), terms.end(), [&](Task* term) { return holdsProcessCheck(section, *term); });
}

}  // namespace

std::vector<Notice> documentNotices(Policy& policy, const std::string& text)
{
    std::vector<Notice> notices = unreadElements(text);
    unsigned sections = 0;
    forEachSection(policy, [&](const std::string& key, Section& section) {
        ++sections;
        std::string name = shownName(key, section);
        std::vector<Notice> own;
        if (!section.getUrl().empty()) {
            own.push_back({"included-not-evaluated", true, section.getLocation().line, name,
                           "included section \"" + name + "\" (" + section.getUrl() +
                               ") is read but never evaluated: it counts as skipped"});
        }
        for (const tvpolicy::IgnoredElement& element : section.getIgnoredElements()) {
            own.push_back({"unknown-element", true, element.location.line, name,
                           "<" + element.element + "> in section \"" + name +
                               "\" names no check kind: it was passed over, not evaluated (see tvpolicy tasks)"});
        }
        for (Task* task : section.getTasks()) {
            attributeNotices(section, *task, name, own);
        }
        std::stable_sort(own.begin(), own.end(), [](const Notice& a, const Notice& b) { return a.line < b.line; });
        notices.insert(notices.end(), own.begin(), own.end());
    });
    // Document order; what has no line (the whole policy) last.
    std::stable_sort(notices.begin(), notices.end(),
                     [](const Notice& a, const Notice& b) { return a.line != 0 && (b.line == 0 || a.line < b.line); });
    if (sections == 0) {
        notices.push_back({"no-sections", true, 0, "", "the policy holds no section: nothing was checked"});
    }
    return notices;
}

std::vector<Notice> hostNotices(Policy& policy)
{
    bool checksProcesses = false;
    forEachSection(policy, [&](const std::string&, Section& section) {
        for (Task* task : section.getTasks()) {
            checksProcesses = checksProcesses || holdsProcessCheck(section, *task);
        }
    });
    if (!checksProcesses) {
        return {};
    }
    auto counts = tvpolicy::currentHost().processCounts();
    if (counts.withheld == 0) {
        return {};
    }
    return {{"partial-process-table", false, 0, "",
             std::to_string(counts.withheld) + " of " + std::to_string(counts.total) +
                 " processes could not be read fully (their executable paths are withheld from this user, as "
                 "for other users' processes without privilege): a process check may miss them"}};
}

std::string describe(const Notice& notice)
{
    return (notice.line > 0 ? "line " + std::to_string(notice.line) + ": " : std::string()) + notice.message;
}

}  // namespace tvpolicy::cli
