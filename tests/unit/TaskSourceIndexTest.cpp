// The compact record of where a policy's checks came from: what goes in comes back whole
// (numbers of any size, addresses in any order, any bytes in names and values), a reused
// address names its latest check, and sources asked for on several threads agree.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskSource.h>

#include "policy/TaskSourceIndex.h"
#include "support/PolicyText.h"

namespace {

using tvpolicy::SourceLocation;
using tvpolicy::TaskSource;
using tvpolicy::policy::TaskSourceIndex;

// The index never looks behind an address: made-up ones name the checks here.
const Task* at(std::uintptr_t address) { return reinterpret_cast<const Task*>(address); }

struct Attribute {
    std::string name;
    std::string value;
    bool read;
};

struct Written {
    std::uintptr_t address;
    std::string element;
    SourceLocation where;
    std::vector<Attribute> attributes;
};

void write(TaskSourceIndex& index, const Written& check)
{
    index.add(at(check.address), check.element, check.where);
    for (const Attribute& attribute : check.attributes) {
        index.addAttribute(attribute.name, attribute.value, attribute.read);
    }
}

void expectSource(const TaskSource* source, const Written& check)
{
    ASSERT_NE(source, nullptr) << check.element;
    EXPECT_EQ(source->element, check.element);
    EXPECT_EQ(source->location.line, check.where.line);
    EXPECT_EQ(source->location.column, check.where.column);
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<std::string> unknown;
    for (const Attribute& attribute : check.attributes) {
        attributes.emplace_back(attribute.name, attribute.value);
        if (!attribute.read) {
            unknown.push_back(attribute.name);
        }
    }
    EXPECT_EQ(source->attributes, attributes);
    EXPECT_EQ(source->unknownAttributes, unknown);
}

constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
const std::string marks("\xFE\xFF\x80\x00", 4);  // the stream's own marks and a NUL, as text

TEST(TaskSourceIndex, GivesBackWhatWasRecorded)
{
    const std::vector<Written> checks = {
        {0x1000, "and", {1, 1}, {}},
        {0x1040, "File", {2, 5}, {{"fileName", "passwd", true}, {"startpath", "/etc", false}}},
        {0x0ff0, "true", {2, 30}, {}},                                                          // a lower address
        {std::numeric_limits<std::uintptr_t>::max() & ~std::uintptr_t{15}, "not", {1, 1}, {}},  // back a line
        {0x10, "Validate", {most, most}, {{"status", "", true}}},                               // the largest numbers
        {0x20, "Validate", {0, 0}, {{"", marks, false}, {marks, "x", false}}},                  // any bytes
        {0x30, "or", {7, 200000}, {}},
    };
    TaskSourceIndex index;
    for (const Written& check : checks) {
        write(index, check);
    }
    for (auto it = checks.rbegin(); it != checks.rend(); ++it) {  // any order of asking
        expectSource(index.find(at(it->address)), *it);
    }
    EXPECT_EQ(index.find(at(0x1010)), nullptr);
    EXPECT_EQ(index.find(nullptr), nullptr);
}

TEST(TaskSourceIndex, AReusedAddressNamesItsLatestCheck)
{
    TaskSourceIndex index;
    write(index, {0x200, "true", {1, 1}, {}});
    write(index, {0x100, "true", {3, 4}, {}});
    write(index, {0x200, "false", {5, 6}, {}});  // again before anything was asked
    EXPECT_EQ(index.find(at(0x200))->element, "false");
    const TaskSource* first = index.find(at(0x100));
    ASSERT_NE(first, nullptr);
    // Recorded again (a task released during the parse left its address to a new one), and
    // a check after it is found too: what was read back is read on from where it stopped.
    const Written again{0x100, "false", {9, 2}, {{"x", "y", false}}};
    write(index, again);
    write(index, {0x80, "true", {10, 1}, {}});
    expectSource(index.find(at(0x100)), again);
    EXPECT_EQ(first->element, "true");  // what a caller already holds stays as it was
    EXPECT_EQ(index.find(at(0x80))->location.line, 10u);
    EXPECT_EQ(index.find(at(0x100)), index.find(at(0x100)));
}

TEST(TaskSourceIndex, ThreadsAskingAtOnceAgree)
{
    TaskSourceIndex index;
    std::vector<Written> checks;
    for (std::uintptr_t i = 0; i < 2000; ++i) {
        checks.push_back({0x10000 + ((i * 7919) % 2000) * 16, i % 2 ? "true" : "and", {i + 1, i % 90}, {}});
        write(index, checks.back());
    }
    std::vector<std::thread> threads;
    std::vector<int> wrong(4, 0);
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            for (std::size_t i = static_cast<std::size_t>(t); i < checks.size(); i += 3) {
                const TaskSource* source = index.find(at(checks[i].address));
                wrong[t] += source == nullptr || source->location.line != checks[i].where.line;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong, std::vector<int>(4, 0));
}

// A policy long enough that its text is handed back while it is read: every check still has
// its source, down to the last one.
TEST(TaskSourceIndex, ALargePolicyKeepsEverySource)
{
    const int sections = 6000;
    std::string xml = "<policy name=\"p\">\n";
    for (int i = 0; i < sections; ++i) {
        xml += "<section name=\"s" + std::to_string(i) +
               "\" primary=\"true\">\n<or><Validate status=\"true\" note=\"n" + std::to_string(i) +
               "\"/><not><false/></not></or>\n</section>\n";
    }
    xml += "</policy>\n";
    ASSERT_GT(xml.size(), std::size_t{512} * 1024);
    auto parsed = testing_support::parsePolicy(xml);
    ASSERT_FALSE(parsed.policy->getFatalParseError());
    ASSERT_EQ(parsed.policy->getSections().size(), static_cast<std::size_t>(sections));
    int checked = 0;
    for (auto& entry : parsed.policy->getSections()) {
        Section& section = *entry.second;
        ASSERT_EQ(section.getTasks().size(), 1u);
        Task* either = section.getTasks().front();
        const TaskSource* source = section.getTaskSource(either);
        ASSERT_NE(source, nullptr);
        EXPECT_EQ(source->element, "or");
        EXPECT_EQ(source->location.line, section.getLocation().line + 1);
        const TaskSource* validate = section.getTaskSource(either->getTerms()->front());
        ASSERT_NE(validate, nullptr);
        std::string number = section.getName().substr(1);
        EXPECT_EQ(validate->attributes,
                  (std::vector<std::pair<std::string, std::string>>{{"status", "true"}, {"note", "n" + number}}));
        EXPECT_EQ(validate->unknownAttributes, std::vector<std::string>{"note"});
        ++checked;
    }
    EXPECT_EQ(checked, sections);
}

}  // namespace
