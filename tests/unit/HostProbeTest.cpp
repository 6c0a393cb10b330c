#include <tvpolicy/host/FakeHost.h>
#include <tvpolicy/host/HostProbe.h>

#include <gtest/gtest.h>

namespace {

using tvpolicy::FakeHost;

TEST(HostProbe, ScopedHostSwapsAndRestoresNested)
{
    tvpolicy::HostProbe* real = &tvpolicy::currentHost();
    EXPECT_EQ(real, &tvpolicy::systemHost());
    FakeHost outer, inner;
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

TEST(FakeHost, LongestPrefixWins)
{
    FakeHost host;
    host.pathMap = {{"/Library/", "/tmp/lib/"}, {"/Library/Receipts/", "/tmp/r/"}};
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"/Library/Receipts/A.pkg", "/tmp/r/A.pkg"}, {"/Library/Other", "/tmp/lib/Other"},
        {"/usr/local/vscanx/dats", "/usr/local/vscanx/dats"}, {"/Library", "/Library"}};
    for (const auto& [path, mapped] : cases) {
        EXPECT_EQ(host.systemPath(path), mapped);
    }
}

TEST(HostProbe, RealBackendMapsNothing)
{
    EXPECT_EQ(tvpolicy::systemHost().systemPath("/Library/Receipts/"), "/Library/Receipts/");
}

}  // namespace
