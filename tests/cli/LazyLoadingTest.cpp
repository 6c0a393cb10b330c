// libcurl and its TLS stack load when a command makes its first transfer, libsystemd and its
// compression and cryptography libraries when it first asks the system bus; neither at start-up.
// The dynamic loader's own account (LD_DEBUG=libs) says which libraries a run opened.

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "support/RunCli.h"

namespace {

// `args` run with the environment's settings `env` added ("NAME=value").
std::vector<std::string> commandLine(const std::vector<std::string>& env, const std::vector<std::string>& args)
{
    std::vector<std::string> argv{"env"};
    argv.insert(argv.end(), env.begin(), env.end());
    argv.emplace_back(TVPOLICY_CLI);
    argv.insert(argv.end(), args.begin(), args.end());
    return argv;
}

testing_support::CliResult runTraced(std::vector<std::string> env, const std::vector<std::string>& args)
{
    env.emplace_back("LD_DEBUG=libs");
    return testing_support::runProgram(commandLine(env, args));
}

// Port 1 on loopback refuses at once: the transfer is tried, so libcurl is needed.
const std::vector<std::string> refusedTransfer{"http", "get", "http://127.0.0.1:1/"};
// The inventory asks the system bus for the DNS domains where there may be one: here a bus
// address that nothing answers at.
const std::vector<std::string> inventory{"interfaces", "--json", "--no-guests"};
const std::vector<std::string> silentBus{"DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus"};

struct LoadCase {
    std::vector<std::string> env;
    std::vector<std::string> args;
    bool loadsCurl;
    bool loadsSystemd;
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

TEST_P(LazyLoadingTest, LibrariesLoadOnlyWhenUsed)
{
    testing_support::CliResult run = runTraced(GetParam().env, GetParam().args);
    ASSERT_NE(run.err.find("calling init: "), std::string::npos) << "no loader trace:\n" << run.err;
    EXPECT_EQ(run.err.find("libcurl") != std::string::npos, GetParam().loadsCurl) << run.err;
    EXPECT_EQ(run.err.find("libsystemd") != std::string::npos, GetParam().loadsSystemd) << run.err;
}

INSTANTIATE_TEST_SUITE_P(
    Commands, LazyLoadingTest,
    testing::Values(LoadCase{{}, {"--version"}, false, false}, LoadCase{{}, {"tasks"}, false, false},
                    LoadCase{{}, {"run", "-q", TVPOLICY_SOURCE_DIR "/examples/compliant.xml"}, false, false},
                    LoadCase{{}, refusedTransfer, true, false}, LoadCase{silentBus, inventory, false, true}));

// With neither a bus address nor the bus's socket there is nothing to ask, and nothing to load.
TEST_F(StandaloneCli, NoSystemBusLoadsNoSystemd)
{
    if (::access("/run/dbus/system_bus_socket", F_OK) == 0) {
        GTEST_SKIP() << "this machine has a system bus";
    }
    testing_support::CliResult run = runTraced({"-u", "DBUS_SYSTEM_BUS_ADDRESS"}, inventory);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err.find("libsystemd"), std::string::npos) << run.err;
}

// Runs `args` with the library that a traced run of them opened hidden (a mount namespace binds
// /dev/null over its file); fails the test when the traced run opened no such library.
testing_support::CliResult runWithLibraryHidden(const std::string& library, const std::vector<std::string>& env,
                                                const std::vector<std::string>& args)
{
    // The loader names the file it opened ("calling fini: /lib/.../libcurl-gnutls.so.4 [0]").
    std::string trace = runTraced(env, args).err;
    std::size_t mention = trace.find(library);
    std::size_t start = trace.rfind(' ', mention);
    std::size_t end = trace.find_first_of(" \n", mention);
    if (mention == std::string::npos || start == std::string::npos || trace[start + 1] != '/') {
        ADD_FAILURE() << "the command never loaded " << library << ":\n" << trace;
        return {};
    }
    std::string path = trace.substr(start + 1, end - start - 1);
    // Over the file itself: the loader finds the library by a link to it.
    std::string command = "mount --bind /dev/null \"$(readlink -f '" + path + "')\" && exec";
    for (const std::string& word : commandLine(env, args)) {
        command += " '" + word + "'";
    }
    return testing_support::runProgram({"unshare", "-m", "sh", "-c", command});
}

class UnloadableLibrary : public StandaloneCli {
protected:
    void SetUp() override
    {
        StandaloneCli::SetUp();
        if (::geteuid() != 0 || std::system("unshare -m true 2>/dev/null") != 0) {
            GTEST_SKIP() << "needs root and unshare to hide a library in a mount namespace";
        }
    }
};

// A libcurl that cannot be loaded is a reason on stderr and a transfer that got no answer.
TEST_F(UnloadableLibrary, CurlIsAnErrorNotACrash)
{
    testing_support::CliResult run = runWithLibraryHidden("libcurl", {}, refusedTransfer);
    EXPECT_EQ(run.exitCode, 2) << run.err;
    EXPECT_NE(run.err.find("cannot load libcurl"), std::string::npos) << run.err;
}

// Without libsystemd there is no system bus to ask: the inventory is listed all the same.
TEST_F(UnloadableLibrary, SystemdLeavesTheInventoryWhole)
{
    testing_support::CliResult hidden = runWithLibraryHidden("libsystemd", silentBus, inventory);
    testing_support::CliResult plain = testing_support::runProgram(commandLine(silentBus, inventory));
    EXPECT_EQ(hidden.exitCode, 0) << hidden.err;
    EXPECT_EQ(hidden.out, plain.out);
}

}  // namespace
