// libcurl and its TLS stack load when a command makes its first transfer, never at start-up.
// The dynamic loader's own account (LD_DEBUG=libs) says which libraries a run opened.

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "support/RunCli.h"

namespace {

testing_support::CliResult runTraced(const std::vector<std::string>& args)
{
    std::vector<std::string> argv{"env", "LD_DEBUG=libs", TVPOLICY_CLI};
    argv.insert(argv.end(), args.begin(), args.end());
    return testing_support::runProgram(argv);
}

// Port 1 on loopback refuses at once: the transfer is tried, so libcurl is needed.
const std::vector<std::string> refusedTransfer{"http", "get", "http://127.0.0.1:1/"};

struct LoadCase {
    std::vector<std::string> args;
    bool loadsCurl;
};

class StandaloneCli : public testing::Test {
protected:
    void SetUp() override
    {
        if (!TVPOLICY_STANDALONE_CLI) {
            GTEST_SKIP() << "the program links the shared library, whose Xerces-C loads libcurl";
        }
    }
};

class LazyLoadingTest : public StandaloneCli, public testing::WithParamInterface<LoadCase> {};

TEST_P(LazyLoadingTest, CurlLoadsOnlyForATransfer)
{
    testing_support::CliResult run = runTraced(GetParam().args);
    ASSERT_NE(run.err.find("calling init: "), std::string::npos) << "no loader trace:\n" << run.err;
    EXPECT_EQ(run.err.find("libcurl") != std::string::npos, GetParam().loadsCurl) << run.err;
}

INSTANTIATE_TEST_SUITE_P(Commands, LazyLoadingTest,
                         testing::Values(LoadCase{{"--version"}, false}, LoadCase{{"tasks"}, false},
                                         LoadCase{{"run", "-q", TVPOLICY_SOURCE_DIR "/examples/compliant.xml"}, false},
                                         LoadCase{refusedTransfer, true}));

// A libcurl that cannot be loaded is a reason on stderr and a transfer that got no answer.
TEST_F(StandaloneCli, AnUnloadableCurlIsAnErrorNotACrash)
{
    if (::geteuid() != 0 || std::system("unshare -m true 2>/dev/null") != 0) {
        GTEST_SKIP() << "needs root and unshare to hide libcurl in a mount namespace";
    }
    // The loader names the file it opened ("calling fini: /lib/.../libcurl-gnutls.so.4 [0]").
    std::string trace = runTraced(refusedTransfer).err;
    std::size_t mention = trace.find("libcurl");
    std::size_t start = trace.rfind(' ', mention);
    std::size_t end = trace.find_first_of(" \n", mention);
    if (mention != std::string::npos && start != std::string::npos && trace[start + 1] == '/') {
        std::string path = trace.substr(start + 1, end - start - 1);
        // Over the file itself: the loader finds libcurl by a link to it.
        std::string hide = "mount --bind /dev/null \"$(readlink -f '" + path + "')\"";
        testing_support::CliResult run = testing_support::runProgram(
            {"unshare", "-m", "sh", "-c", hide + " && exec " TVPOLICY_CLI " http get http://127.0.0.1:1/"});
        EXPECT_EQ(run.exitCode, 2) << run.err;
        EXPECT_NE(run.err.find("cannot load libcurl"), std::string::npos) << run.err;
        return;
    }
    FAIL() << "the transfer never loaded libcurl:\n" << trace;
}

}  // namespace
