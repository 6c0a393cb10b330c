// One reading of the process table per evaluation: the questions asked while a snapshot lives
// are answered from the first reading, and a policy run reads the table once however many
// process checks it holds.
#include <tvpolicy/host/DescribedHostProbe.h>
#include <tvpolicy/host/ForwardingHostProbe.h>
#include <tvpolicy/host/ProcessTableSnapshot.h>
#include <tvpolicy/policy/Policy.h>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>

namespace {

using tvpolicy::DescribedHostProbe;
using tvpolicy::ProcessTableSnapshot;

// A described host that counts how often its table is read.
struct CountingHost : DescribedHostProbe {
    CountingHost() { processes = {{1, "init", std::string("/sbin/init"), false}, {7, "hidden", std::nullopt, true}}; }
    std::vector<ProcessEntry> processTable() const override
    {
        ++reads;
        return DescribedHostProbe::processTable();
    }
    void start(const std::string& name) { processes.push_back({99, name, "/usr/bin/" + name, false}); }
    mutable std::atomic<int> reads{0};
};

TEST(ProcessTableSnapshot, AnswersFromOneReadingUntilItEnds)
{
    struct Step {
        bool snapshot;
        int readsAfterThreeQuestions;
        bool seesLateProcess;
    };
    for (const Step& step : {Step{false, 3, true}, Step{true, 1, false}}) {
        CountingHost counted;
        std::unique_ptr<ProcessTableSnapshot> scope;
        if (step.snapshot) {
            scope = std::make_unique<ProcessTableSnapshot>();
        }
        EXPECT_TRUE(counted.runsProcessNamed("init"));
        counted.start("late");
        EXPECT_EQ(counted.runsProcessNamed("late"), step.seesLateProcess);
        auto counts = counted.processCounts();
        EXPECT_EQ(counts.total, step.seesLateProcess ? 3u : 2u);
        EXPECT_EQ(counts.withheld, 1u);
        EXPECT_EQ(counted.reads, step.readsAfterThreeQuestions) << "snapshot " << step.snapshot;
        scope.reset();
        EXPECT_TRUE(counted.runsProcessNamed("late")) << "once the snapshot ends, the table is read afresh";
    }
}

TEST(ProcessTableSnapshot, TheOutermostReadingServesNestedSnapshots)
{
    CountingHost host;
    {
        ProcessTableSnapshot outer;
        EXPECT_FALSE(host.runsProcessNamed("late"));
        host.start("late");
        {
            ProcessTableSnapshot inner;
            EXPECT_FALSE(host.runsProcessNamed("late"));
        }
        EXPECT_FALSE(host.runsProcessNamed("late")) << "an inner snapshot's end keeps the outer reading";
        EXPECT_EQ(host.reads, 1);
    }
    EXPECT_TRUE(host.runsProcessNamed("late"));
}

TEST(ProcessTableSnapshot, EachProbeIsReadOnceAndOtherThreadsReadAfresh)
{
    CountingHost first, second;
    tvpolicy::ForwardingHostProbe forwarding(second);
    ProcessTableSnapshot scope;
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(first.runsProcessNamed("init"));
        EXPECT_TRUE(forwarding.runsProcessNamed("init"));
        EXPECT_EQ(forwarding.processCounts().total, 2u);
    }
    EXPECT_EQ(first.reads, 1);
    EXPECT_EQ(second.reads, 1) << "a forwarding probe's questions are read from the probe it asks";
    first.start("late");
    bool seenElsewhere = false;
    std::thread([&] { seenElsewhere = first.runsProcessNamed("late"); }).join();
    EXPECT_TRUE(seenElsewhere);
    EXPECT_EQ(first.reads, 2);
    EXPECT_FALSE(first.runsProcessNamed("late"));
}

TEST(ProcessTableSnapshot, APolicyRunReadsTheTableOnce)
{
    CountingHost host;
    tvpolicy::ScopedHost scope(host);
    std::unique_ptr<Policy> policy(
        Policy::parseFromString("<policy name='p'><section name='a' primary='true'><ProcessExists procName='init'/>"
                                "<ProcessExists procName='absent'/></section><section name='b' primary='true'><not>"
                                "<ProcessExists procName='hidden'/></not></section></policy>",
                                false));
    ASSERT_FALSE(policy->getFatalParseError());
    EXPECT_FALSE(policy->run());
    EXPECT_EQ(host.reads, 1);
    EXPECT_FALSE(policy->run());
    EXPECT_EQ(host.reads, 2) << "each run reads the table afresh";
}

}  // namespace
