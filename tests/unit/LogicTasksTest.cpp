#include <tvpolicy/policy/TaskFactory.h>
#include <tvpolicy/policy/ValidateTask.h>
#include <tvpolicy/policy/andTask.h>
#include <tvpolicy/policy/notTask.h>
#include <tvpolicy/policy/orTask.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iostream>
#include <list>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "support/CaptureStream.h"
#include "support/PerformTask.h"

namespace {

using testing_support::CaptureStream;
using testing_support::withoutTimestamps;

// A leaf whose outcome is scripted; it records that it was performed and that it was destroyed.
struct Journal {
    std::vector<std::string> performed;
    int destroyed = 0;
};

class ScriptedTask : public Task {
public:
    ScriptedTask(Journal& journal, std::string message, bool passes, bool skips)
        : journal_(journal),
          message_(std::move(message)),
          passes_(passes),
          skips_(skips)
    {
    }
    ~ScriptedTask() override { ++journal_.destroyed; }
    void setAttribute(Attribute*) override {}
    TaskResponse* perform() override
    {
        journal_.performed.push_back(message_);
        auto* response = new TaskResponse(-1);
        response->passed = passed_ = passes_;
        response->message = message_;
        response->detail = "scripted";
        response->skip = skips_;
        return response;
    }
    std::string getType() override { return "ScriptedTask"; }

private:
    Journal& journal_;
    std::string message_;
    bool passes_;
    bool skips_;
};

// Builds a tree from a small notation: P passes, F fails, K passes and asks to skip, X fails and
// asks to skip; and(...), andskip(...) (skip="true"), or(...), not(...) nest. Each leaf's message
// is its letter and its number in document order ("F2").
class TreeBuilder {
public:
    explicit TreeBuilder(Journal& journal) : journal_(journal) {}

    std::unique_ptr<Task> build(const std::string& text)
    {
        text_ = text;
        at_ = 0;
        leaves_ = 0;
        return std::unique_ptr<Task>(parse());
    }

private:
    Task* parse()
    {
        char letter = text_[at_];
        if (std::string("PFKX").find(letter) != std::string::npos) {
            ++at_;
            std::string message = letter + std::to_string(++leaves_);
            return new ScriptedTask(journal_, message, letter == 'P' || letter == 'K', letter == 'K' || letter == 'X');
        }
        std::size_t open = text_.find('(', at_);
        std::string name = text_.substr(at_, open - at_);
        at_ = open + 1;
        Task* task = TaskFactory::createTask((name == "andskip" ? "and" : name) + "Task");
        if (name == "andskip") {
            Task::Attribute skip{"skip", "true"};
            task->setAttribute(&skip);
        }
        while (text_[at_] != ')') {
            task->addTerm(parse());
            if (text_[at_] == ',') {
                ++at_;
            }
        }
        ++at_;
        return task;
    }

    Journal& journal_;
    std::string text_;
    std::size_t at_ = 0;
    int leaves_ = 0;
};

struct TreeCase {
    std::string tree;
    bool passed;
    bool skip;
    std::string message;
    std::vector<std::string> performed;
    std::string trace;  // the Debug lines, without their timestamps
};

class LogicTreeTest : public testing::TestWithParam<TreeCase> {};

TEST_P(LogicTreeTest, PerformsAsTheLogicSays)
{
    const TreeCase& c = GetParam();
    Journal journal;
    std::unique_ptr<Task> root = TreeBuilder(journal).build(c.tree);
    std::unique_ptr<TaskResponse> response;
    {
        CaptureStream log(std::clog);
        response.reset(root->perform());
        EXPECT_EQ(withoutTimestamps(log.text()), c.trace);
    }
    EXPECT_EQ(response->passed, c.passed);
    EXPECT_EQ(root->passed(), c.passed);
    EXPECT_EQ(response->skip, c.skip);
    EXPECT_EQ(response->message, c.message);
    EXPECT_EQ(journal.performed, c.performed);
    int leaves =
        static_cast<int>(std::count_if(c.tree.begin(), c.tree.end(), [](char ch) { return std::isupper(ch); }));
    root.reset();
    EXPECT_EQ(journal.destroyed, leaves);
}

const std::string leafPassed = "Debug: ScriptedTask Passed\n";
const std::string leafFailed = "Debug: ScriptedTask Failed\n";

INSTANTIATE_TEST_SUITE_P(
    Trees, LogicTreeTest,
    testing::Values(TreeCase{"and(P,F,P)", false, false, "andTask/F2", {"P1", "F2"}, leafPassed + leafFailed},
                    TreeCase{"and()", true, false, "", {}, ""},
                    TreeCase{"andskip(P,P)", true, true, "", {"P1", "P2"}, leafPassed + leafPassed},
                    TreeCase{"andskip(P,F)", false, false, "andTask/F2", {"P1", "F2"}, leafPassed + leafFailed},
                    TreeCase{"and(K)", true, false, "", {"K1"}, leafPassed},
                    TreeCase{"or(F,P,F)", true, false, "orTask/F1", {"F1", "P2"}, leafFailed + leafPassed},
                    TreeCase{"or(F,F)", false, false, "orTask/F1,orTask/F2", {"F1", "F2"}, leafFailed + leafFailed},
                    TreeCase{"or()", false, false, "", {}, ""},
                    TreeCase{"or(X,F)", false, true, "orTask/X1,orTask/F2", {"X1", "F2"}, leafFailed + leafFailed},
                    TreeCase{"or(F,K)", true, true, "orTask/F1", {"F1", "K2"}, leafFailed + leafPassed},
                    TreeCase{"not(P)", false, false, "notTask/P1", {"P1"}, leafFailed},
                    TreeCase{"not(F)", true, false, "notTask/F1", {"F1"}, leafPassed},
                    TreeCase{"not(X)", true, true, "notTask/X1", {"X1"}, leafPassed},
                    TreeCase{"and(P,not(P))",
                             false,
                             false,
                             "andTask/notTask/P2",
                             {"P1", "P2"},
                             leafPassed + leafFailed + "Debug: notTask Failed\n"},
                    TreeCase{
                        "or(and(P,F),not(F))",
                        true,
                        false,
                        "orTask/andTask/F2",
                        {"P1", "F2", "F3"},
                        leafPassed + leafFailed + "Debug: andTask Failed\n" + leafPassed + "Debug: notTask Passed\n"}));

TEST(LogicTasks, NotKeepsTheLastTermAndDeletesTheOthers)
{
    Journal journal;
    notTask task;
    task.addTerm(new ScriptedTask(journal, "first", true, false));
    task.addTerm(new ScriptedTask(journal, "second", false, false));
    EXPECT_EQ(journal.destroyed, 1);
    std::unique_ptr<std::list<Task*>> terms(task.getTerms());
    ASSERT_EQ(terms->size(), 1u);
    std::unique_ptr<TaskResponse> response(task.perform());
    EXPECT_TRUE(response->passed);
    EXPECT_EQ(response->message, "notTask/second");
    EXPECT_EQ(response->detail, "scripted");
    EXPECT_EQ(journal.performed, std::vector<std::string>{"second"});
}

TEST(LogicTasks, NotWithoutATermFailsAndSaysSo)
{
    notTask task;
    std::unique_ptr<std::list<Task*>> terms(task.getTerms());
    EXPECT_TRUE(terms->empty());
    CaptureStream out(std::cout);
    std::unique_ptr<TaskResponse> response(task.perform());
    EXPECT_FALSE(response->passed);
    EXPECT_FALSE(task.passed());
    EXPECT_NE(out.text().find("notTask: no nested check"), std::string::npos);
}

TEST(LogicTasks, OnlyTheExactTrueSetsAnAndFlag)
{
    // name, value, skip, skipEmpty
    const std::vector<std::tuple<std::string, std::string, bool, bool>> cases = {
        {"skip", "true", true, false},  {"skip", "TRUE", false, false},     {"skip", "1", false, false},
        {"Skip", "true", false, false}, {"skipEmpty", "true", false, true}, {"other", "true", false, false}};
    for (const auto& [name, value, skip, skipEmpty] : cases) {
        andTask task;
        Task::Attribute attribute{name, value};
        task.setAttributes(&attribute, static_cast<Task::Attribute*>(nullptr));
        EXPECT_EQ(task.getSkip(), skip) << name << "=" << value;
        EXPECT_EQ(task.getSkipEmpty(), skipEmpty) << name << "=" << value;
    }
}

struct ConstantCase {
    std::string kind;
    std::vector<Task::Attribute> attributes;
    bool passed;
    std::string message;
    std::int64_t code;
};

class ConstantKindTest : public testing::TestWithParam<ConstantCase> {};

TEST_P(ConstantKindTest, AnswersAsConfigured)
{
    const ConstantCase& c = GetParam();
    testing_support::TaskRun run = testing_support::performTask(c.kind, c.attributes);
    EXPECT_EQ(run.response->passed, c.passed);
    EXPECT_EQ(run.response->message, c.message);
    EXPECT_EQ(run.response->code, c.code);
    EXPECT_EQ(run.response->detail, "");
    EXPECT_EQ(run.task->hashCode(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ConstantKindTest,
    testing::Values(ConstantCase{"trueTask", {{"status", "false"}}, true, "", -1},
                    ConstantCase{"falseTask", {{"status", "true"}}, false, "", -1},
                    ConstantCase{"ValidateTask", {{"status", "true"}}, true, "ValidateTask Enabled", 0},
                    ConstantCase{"ValidateTask", {{"status", "True"}}, false, "ValidateTask disabled.", 0},
                    ConstantCase{"ValidateTask", {{"status", ""}}, false, "ValidateTask disabled.", 0},
                    ConstantCase{"ValidateTask", {}, false, "ValidateTask disabled.", 0},
                    ConstantCase{
                        "ValidateTask", {{"status", "true"}, {"status", "no"}}, false, "ValidateTask disabled.", 0},
                    ConstantCase{"ValidateTask", {{"Status", "true"}}, false, "ValidateTask disabled.", 0},
                    ConstantCase{"andTask", {}, true, "", 0}, ConstantCase{"orTask", {}, false, "", 0}));

TEST(LogicTasks, TrueIgnoresItsAttributeListEntirely)
{
    // trueTask's list form must not even walk its arguments: an unterminated list is harmless.
    Task::Attribute status{"status", "true"};
    std::unique_ptr<Task> always(TaskFactory::createTask("trueTask"));
    always->setAttributes(&status);
    EXPECT_TRUE(std::unique_ptr<TaskResponse>(always->perform())->passed);
}

struct DeepChainCase {
    std::string kind;  // the composite repeated down the chain
    std::string leaf;  // the check at its bottom
    bool passed;
    std::string prefix;  // the message is this prefix once per level
};

class DeepChainTest : public testing::TestWithParam<DeepChainCase> {};

// Built in code, so no parse bound applies: every level is one composite over the next.
TEST_P(DeepChainTest, PerformsFarDeeperThanTheStackAllows)
{
    const DeepChainCase& c = GetParam();
    const int depth = 200000;
    std::unique_ptr<Task> root(TaskFactory::createTask(c.kind));
    Task* inner = root.get();
    for (int level = 1; level < depth; ++level) {
        Task* next = TaskFactory::createTask(c.kind);
        inner->addTerm(next);
        inner = next;
    }
    inner->addTerm(TaskFactory::createTask(c.leaf));
    std::unique_ptr<TaskResponse> response;
    {
        CaptureStream log(std::clog);  // one trace line per level
        response.reset(root->perform());
    }
    EXPECT_EQ(response->passed, c.passed);
    EXPECT_EQ(root->passed(), c.passed);
    std::string message;
    for (int level = 0; level < depth && !c.prefix.empty(); ++level) {
        message += c.prefix;
    }
    EXPECT_EQ(response->message, message);
}

INSTANTIATE_TEST_SUITE_P(Chains, DeepChainTest,
                         testing::Values(DeepChainCase{"andTask", "trueTask", true, ""},
                                         DeepChainCase{"andTask", "falseTask", false, "andTask/"},
                                         DeepChainCase{"orTask", "falseTask", false, "orTask/"},
                                         DeepChainCase{"orTask", "trueTask", true, ""},
                                         // An even number of inversions.
                                         DeepChainCase{"notTask", "falseTask", false, "notTask/"}),
                         [](const testing::TestParamInfo<DeepChainCase>& testCase) {
                             return testCase.param.kind + "Over" + testCase.param.leaf;
                         });

// Levels of every kind, each and/or with a sibling before the deeper level that leaves the
// outcome to it (true in an and, false in an or): only the inversions count.
TEST(LogicTasks, PerformsAMixedTreeFarDeeperThanTheStackAllows)
{
    const char* kinds[] = {"andTask", "orTask", "notTask"};
    const int depth = 200000;
    std::vector<Task*> levels;
    std::unique_ptr<Task> root(TaskFactory::createTask(kinds[0]));
    levels.push_back(root.get());
    for (int level = 1; level < depth; ++level) {
        Task* next = TaskFactory::createTask(kinds[level % 3]);
        std::string kind = levels.back()->getType();
        if (kind != "notTask") {
            levels.back()->addTerm(TaskFactory::createTask(kind == "andTask" ? "trueTask" : "falseTask"));
        }
        levels.back()->addTerm(next);
        levels.push_back(next);
    }
    levels.back()->addTerm(TaskFactory::createTask("falseTask"));
    bool expected = false;
    for (int level = depth - 1; level >= 0; --level) {
        const std::string kind = kinds[level % 3];
        expected = kind == "notTask" ? !expected : expected;
    }
    std::unique_ptr<TaskResponse> response;
    {
        CaptureStream log(std::clog);
        response.reset(root->perform());
    }
    EXPECT_EQ(response->passed, expected);
}

TEST(LogicTasks, DestroysTreesFarDeeperThanTheStackAllows)
{
    const char* kinds[] = {"andTask", "orTask", "notTask"};
    Task* root = TaskFactory::createTask("andTask");
    Task* inner = root;
    for (int depth = 0; depth < 200000; ++depth) {
        if (depth % 5 == 0 && inner->getType() != "notTask") {
            inner->addTerm(TaskFactory::createTask("trueTask"));  // siblings along the way
        }
        Task* next = TaskFactory::createTask(kinds[depth % 3]);
        inner->addTerm(next);
        inner = next;
    }
    delete root;  // must neither crash nor leak (the sanitizer build checks the latter)
    SUCCEED();
}

}  // namespace
