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

struct PathCase {
    std::string path;
    std::string mapped;
};

class FakeHostPathTest : public testing::TestWithParam<PathCase> {};

TEST_P(FakeHostPathTest, LongestPrefixWins)
{
    FakeHost host;
    host.pathMap = {{"/Library/", "/tmp/lib/"}, {"/Library/Receipts/", "/tmp/r/"}};
    EXPECT_EQ(host.systemPath(GetParam().path), GetParam().mapped);
}

INSTANTIATE_TEST_SUITE_P(Paths, FakeHostPathTest, testing::Values(
    PathCase{"/Library/Receipts/A.pkg", "/tmp/r/A.pkg"},
    PathCase{"/Library/Other", "/tmp/lib/Other"},
    PathCase{"/usr/local/vscanx/dats", "/usr/local/vscanx/dats"},
    PathCase{"/Library", "/Library"}));

TEST(HostProbe, RealBackendMapsNothing)
{
    EXPECT_EQ(tvpolicy::systemHost().systemPath("/Library/Receipts/"), "/Library/Receipts/");
}

}  // namespace
