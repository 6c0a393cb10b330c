#include <tvpolicy/host/DescribedHostProbe.h>
#include <tvpolicy/host/ForwardingHostProbe.h>
#include <tvpolicy/host/HostProbe.h>

#include <gtest/gtest.h>

namespace {

using tvpolicy::DescribedHostProbe;

TEST(HostProbe, ScopedHostSwapsAndRestoresNested)
{
    tvpolicy::HostProbe* real = &tvpolicy::currentHost();
    EXPECT_EQ(real, &tvpolicy::systemHost());
    DescribedHostProbe outer, inner;
    {
        tvpolicy::ScopedHost a(outer);
        EXPECT_EQ(&tvpolicy::currentHost(), &outer);
        {
            tvpolicy::ScopedHost b(inner);
            EXPECT_EQ(&tvpolicy::currentHost(), &inner);
        }
        EXPECT_EQ(&tvpolicy::currentHost(), &outer);
    }
    EXPECT_EQ(&tvpolicy::currentHost(), real);
}

TEST(DescribedHostProbe, LongestPrefixWins)
{
    DescribedHostProbe host;
    host.pathMap = {{"/Library/", "/tmp/lib/"}, {"/Library/Receipts/", "/tmp/r/"}};
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"/Library/Receipts/A.pkg", "/tmp/r/A.pkg"},
        {"/Library/Other", "/tmp/lib/Other"},
        {"/usr/local/vscanx/dats", "/usr/local/vscanx/dats"},
        {"/Library", "/Library"}};
    for (const auto& [path, mapped] : cases) {
        EXPECT_EQ(host.systemPath(path), mapped);
    }
}

TEST(HostProbe, DescribedHostKeepsMappedPathsInsideTheirFolder)
{
    DescribedHostProbe host;
    host.pathMap = {{"/", "/tmp/root/"}, {"", "/tmp/root/"}, {"/opt/app", "/tmp/app"}};
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"/", "/tmp/root/"},
        {"/..", "/tmp/root/"},
        {"/../../etc/passwd", "/tmp/root/etc/passwd"},
        {"/usr/./lib/../share/", "/tmp/root/usr/share/"},
        {"etc", "/tmp/root/etc"},
        {"../../../etc", "/tmp/root/etc"},
        {"", "/tmp/root/"},
        {"/opt/app/../../../x", "/tmp/app/x"},
        {"/opt/app/bin//tool", "/tmp/app/bin/tool"},
    };
    for (const auto& [path, mapped] : cases) {
        EXPECT_EQ(host.systemPath(path), mapped) << path;
    }
}

TEST(HostProbe, RealBackendMapsNothing)
{
    EXPECT_EQ(tvpolicy::systemHost().systemPath("/Library/Receipts/"), "/Library/Receipts/");
}

// A forwarding probe answers process questions with the inner probe's own scans (on Linux the
// backend's, which read of each process only what decides), never through its own table: the
// program's run wraps the system's probe in one, and must keep the fast scans.
TEST(ForwardingHostProbe, ProcessQuestionsGoToTheInnerProbe)
{
    DescribedHostProbe inner;
    inner.node = "alpha.lan";
    inner.processes = {{1, "init", std::string("/sbin/init"), false}, {2, "secret", std::nullopt, true}};
    struct NoTable : tvpolicy::ForwardingHostProbe {
        using ForwardingHostProbe::ForwardingHostProbe;
        std::vector<ProcessEntry> processTable() const override { return {}; }
    } outer(inner);
    EXPECT_EQ(outer.nodeName(), "alpha.lan");
    EXPECT_TRUE(outer.runsProcessNamed("init"));
    EXPECT_FALSE(outer.runsProcessNamed("secret"));
    auto counts = outer.processCounts();
    EXPECT_EQ(counts.total, 2u);
    EXPECT_EQ(counts.withheld, 1u);
}

}  // namespace
