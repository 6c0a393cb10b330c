#include <tvpolicy/checks/AvastVersionTask.h>

#include <algorithm>
#include <exception>
#include <vector>

#include <tvpolicy/checks/Avast.h>
#include <tvpolicy/checks/File.h>
#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

#include "checks/TaskAttributes.h"

bool AvastVersionTask::dummy = TaskFactory::addTask("AvastVersionTask", &AvastVersionTask::create);
namespace {
const bool described = tvpolicy::TaskCatalog::describe(
    "AvastVersionTask", tvpolicy::checks::versionCheckAttributes({"startPath", "fileName"}));
}  // namespace

Task* AvastVersionTask::create() { return new AvastVersionTask; }

std::string AvastVersionTask::getType() { return "AvastVersionTask"; }

void AvastVersionTask::setOwnAttribute(const Attribute& attribute)
{
    tvpolicy::checks::assignAttribute(attribute, {{"startPath", &startPath_}, {"fileName", &fileName_}});
}

std::string AvastVersionTask::foundVersion()
{
    std::vector<std::string> dates{"0"};
    File databases(fileName_, false, "", startPath_);
    std::list<std::string> found;
    try {
        found = databases.getAllFiles();
    } catch (const std::exception&) {
        // The start directory could not be searched: no database, the date stays "0".
    }
    for (const std::string& path : found) {
        dates.push_back(Avast::getDefinitionDate(path));
    }
    // Year-month-day texts sort by date as plain text; "0" comes before every one of them.
    std::sort(dates.begin(), dates.end());

    return dates.back();
}
