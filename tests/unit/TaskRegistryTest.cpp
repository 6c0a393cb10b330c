#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskFactory.h>
#include <tvpolicy/policy/TaskMap.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// Every kind the library registers, in the order the registry must hold them.
const std::vector<std::string> registeredKinds = {
    "andTask",
    "falseTask",
    "notTask",
    "orTask",
    "trueTask",
    "ValidateTask",
    "MacOSXVersionTask",
    "McAfeeVirusScanVersionTask",
    "AvastVersionTask",
    "VersionFromScriptTask",
    "VersionFromReceiptTask",
    "FileTask",
    "ProcessExistsTask",
    "FlushDNSTask",
};

class RecordingTask : public Task {
public:
    static Task* create() { return new RecordingTask; }
    void setAttribute(Attribute* attribute) override { seen.push_back(attribute->first + "=" + attribute->second); }
    TaskResponse* perform() override { return new TaskResponse; }
    std::string getType() override { return "RecordingTask"; }
    std::vector<std::string> seen;
};

class OtherTask : public RecordingTask {
public:
    static Task* create() { return new OtherTask; }
    std::string getType() override { return "OtherTask"; }
};

// The dump walks the registry: it shows every kind, in order, and nothing else.
TEST(TaskRegistry, HoldsEveryKindOfTheLibraryInOrder)
{
    std::string expected = "Tasks Registered with TaskFactory:\n";
    for (const std::string& name : registeredKinds) {
        expected += "\t" + name + "\n";
    }
    testing::internal::CaptureStdout();
    TaskFactory::dump();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), expected);
    EXPECT_EQ(TaskFactory::getMap().size(), registeredKinds.size());
}

TEST(TaskMap, FirstExactMatchWins)
{
    TaskMap map;
    map.add("RecordingTask", &RecordingTask::create);
    map.add("OtherTask", &OtherTask::create);
    map.add("RecordingTask", &OtherTask::create);  // a duplicate is kept, but never found
    const std::vector<std::pair<std::string, Task* (*)()>> cases = {{"RecordingTask", &RecordingTask::create},
                                                                    {"OtherTask", &OtherTask::create},
                                                                    {"recordingtask", nullptr},
                                                                    {"Recording", nullptr},
                                                                    {"RecordingTask ", nullptr},
                                                                    {"", nullptr}};
    for (const auto& [name, expected] : cases) {
        EXPECT_EQ(map.get(name), expected) << name;
    }
    EXPECT_EQ(map.size(), 3u);
}

TEST(TaskMap, RefusesTheHundredAndFirstEntry)
{
    TaskMap map;
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(map.add("Kind" + std::to_string(i), &RecordingTask::create)) << i;
    }
    EXPECT_FALSE(map.add("Kind100", &OtherTask::create));
    EXPECT_EQ(map.size(), 100u);
    EXPECT_EQ(map.get("Kind0"), &RecordingTask::create);
    EXPECT_EQ(map.get("Kind99"), &RecordingTask::create);
    EXPECT_EQ(map.get("Kind100"), nullptr);
}

TEST(TaskFactory, UnknownNamesCreateNothing)
{
    for (const char* name : {"", "and", "ANDTask", "NoSuchTask", "Task"}) {
        EXPECT_EQ(TaskFactory::createTask(name), nullptr) << name;
    }
}

TEST(TaskFactory, CacheIsSwitchedOff)
{
    TaskResponse response;
    TaskFactory::addCachedResult("key", &response);
    EXPECT_EQ(TaskFactory::getCachedResult("key"), nullptr);
    EXPECT_EQ(TaskFactory::getCachedResult(""), nullptr);
}

TEST(Task, BaseOperationsOfALeafKind)
{
    RecordingTask task;
    RecordingTask term;
    EXPECT_EQ(task.hashCode(), "");
    EXPECT_EQ(task.getTerms(), nullptr);
    task.addTerm(&term);  // not taken: the term is destroyed by its own scope
    EXPECT_EQ(task.getTerms(), nullptr);
    EXPECT_FALSE(task.passed());
}

TEST(Task, SetAttributesStopsAtTheFirstNull)
{
    Task::Attribute a{"name", "Finder"}, b{"prohibit", "true"}, c{"never", "seen"};
    RecordingTask task;
    task.setAttributes(&a, &b, static_cast<Task::Attribute*>(nullptr), &c);
    EXPECT_EQ(task.seen, (std::vector<std::string>{"name=Finder", "prohibit=true"}));

    RecordingTask none;
    none.setAttributes(nullptr);
    EXPECT_TRUE(none.seen.empty());
}

TEST(TaskResponse, StartsEmpty)
{
    TaskResponse zero(0);
    EXPECT_EQ(zero.code, 0);
    TaskResponse fresh;
    EXPECT_EQ(fresh.code, -1);
    EXPECT_FALSE(fresh.passed);
    EXPECT_FALSE(fresh.skip);
    EXPECT_EQ(fresh.failedResponse, nullptr);
    EXPECT_TRUE(fresh.message.empty() && fresh.detail.empty());
}

}  // namespace
