#include <tvpolicy/checks/PostureTasks.h>

#include <algorithm>
#include <exception>
#include <mutex>

#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>
#include <tvpolicy/policy/TaskResponse.h>

#include "checks/PostureTask.h"

namespace tvpolicy {

namespace {

struct PostureKind {
    const char* name;
    TaskMap::CreateFunction create;
    std::vector<std::string> attributes;  // as a person should see them
    std::vector<std::string> required;
};

const std::vector<PostureKind>& kinds()
{
    static const std::vector<PostureKind> all{
        {"PackageInstalledTask", &checks::createPackageInstalled, {"name", "required", "operation"}, {"name"}},
        {"ServiceActiveTask", &checks::createServiceActive, {"unit", "enabled"}, {"unit"}},
        {"FileContentTask", &checks::createFileContent, {"path", "pattern", "absent"}, {"path", "pattern"}},
        {"FileModeTask", &checks::createFileMode, {"path", "owner", "group", "maxMode"}, {"path"}},
        {"PortListeningTask", &checks::createPortListening, {"port", "protocol"}, {"port"}},
        {"FirewallActiveTask", &checks::createFirewallActive, {}, {}},
        {"DiskEncryptedTask", &checks::createDiskEncrypted, {"mount"}, {}},
        {"KernelParameterTask", &checks::createKernelParameter, {"name", "value"}, {"name", "value"}},
    };
    return all;
}

const PostureKind* kindNamed(const std::string& name)
{
    for (const auto& kind : kinds()) {
        if (name == kind.name) {
            return &kind;
        }
    }
    return nullptr;
}

}  // namespace

PostureEvidence::~PostureEvidence() = default;

void registerPostureTasks()
{
    static std::once_flag once;
    std::call_once(once, [] {
        for (const auto& kind : kinds()) {
            if (TaskFactory::getMap().get(kind.name) == nullptr) {
                TaskFactory::addTask(kind.name, kind.create);
            }
            TaskCatalog::describe(kind.name, kind.attributes);
        }
    });
}

const std::vector<std::string>& postureTaskKinds()
{
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        for (const auto& kind : kinds()) {
            all.emplace_back(kind.name);
        }
        return all;
    }();
    return names;
}

std::vector<std::string> requiredPostureAttributes(const std::string& kind)
{
    const PostureKind* found = kindNamed(kind);
    return found != nullptr ? found->required : std::vector<std::string>();
}

std::string postureAttributeProblem(const std::string& kind, const std::string& attribute, const std::string& value)
{
    if (kindNamed(kind) == nullptr) {
        return {};
    }
    unsigned number = 0;
    if (kind == "PackageInstalledTask" && attribute == "operation" && value != "gt" && value != "gte" &&
        value != "eq" && value != "lte" && value != "lt") {
        return "operation is not one of gt, gte, eq, lte, lt: " + value;
    }
    if (kind == "FileModeTask" && attribute == "maxMode" && !checks::parseOctalMode(value, number)) {
        return "maxMode is not an octal mode: " + value;
    }
    if (kind == "FileContentTask" && attribute == "pattern") {
        return checks::patternProblem(value);
    }
    if (kind == "PortListeningTask" && attribute == "port" && !checks::parsePort(value, number)) {
        return "port is not a number from 1 to 65535: " + value;
    }
    if (kind == "PortListeningTask" && attribute == "protocol" && value != "tcp" && value != "udp") {
        return "protocol is not tcp or udp: " + value;
    }
    return {};
}

namespace checks {

bool postureKindReads(const std::string& kind, const std::string& attribute)
{
    const PostureKind* found = kindNamed(kind);
    return found != nullptr &&
           std::find(found->attributes.begin(), found->attributes.end(), attribute) != found->attributes.end();
}

void PostureTask::setAttribute(Attribute* attribute)
{
    if (attribute != nullptr && postureKindReads(getType(), attribute->first)) {
        attributes_[attribute->first] = attribute->second;
    }
}

std::string PostureTask::attribute(const std::string& name, const std::string& fallback) const
{
    auto found = attributes_.find(name);
    return found != attributes_.end() ? found->second : fallback;
}

TaskResponse* PostureTask::perform()
{
    Outcome outcome;
    try {
        std::string kind = getType();
        for (const auto& name : requiredPostureAttributes(kind)) {
            if (attributes_.count(name) == 0) {
                outcome = unknown("the attribute " + name + " is missing");
                break;
            }
        }
        for (auto entry = attributes_.begin(); outcome.found && entry != attributes_.end(); ++entry) {
            std::string problem = postureAttributeProblem(kind, entry->first, entry->second);
            if (!problem.empty()) {
                outcome = unknown(problem);
            }
        }
        if (outcome.found) {
            outcome = check();
        }
    } catch (const std::exception& error) {
        outcome = unknown(std::string("the check stopped: ") + error.what());
    }
    auto* response = new TaskResponse(0);
    response->passed = outcome.passed;
    response->message = outcome.message;
    finding_ = outcome.message;
    response->detail = outcome.found ? "Task performed properly." : "Task could not be performed.";
    passed_ = outcome.passed;
    return response;
}

namespace {

// A number of at most five digits below `base`, from `low` to `high`.
bool parseBounded(const std::string& text, unsigned base, unsigned low, unsigned high, unsigned& number)
{
    if (text.empty() || text.size() > 5) {
        return false;
    }
    unsigned value = 0;
    for (char c : text) {
        if (c < '0' || static_cast<unsigned>(c - '0') >= base) {
            return false;
        }
        value = value * base + static_cast<unsigned>(c - '0');
    }
    if (value < low || value > high) {
        return false;
    }
    number = value;
    return true;
}

}  // namespace

bool parseOctalMode(const std::string& text, unsigned& mode) { return parseBounded(text, 8, 0, 07777, mode); }

bool parsePort(const std::string& text, unsigned& port) { return parseBounded(text, 10, 1, 65535, port); }

}  // namespace checks

}  // namespace tvpolicy
