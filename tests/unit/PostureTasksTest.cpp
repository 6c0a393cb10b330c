// The posture kinds against described facts, and FileContent/FileMode against real files.
#include <tvpolicy/checks/PostureTasks.h>
#include <tvpolicy/host/DescribedHostProbe.h>
#include <tvpolicy/host/PostureProbe.h>

#include <gtest/gtest.h>

#include <fstream>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

#include "checks/PostureTask.h"
#include "support/MappedHost.h"
#include "support/TempDir.h"

namespace {

using tvpolicy::DescribedPosture;
using tvpolicy::PostureProbe;

struct Result {
    bool passed = false;
    std::string message;
    std::string detail;
};

Result perform(Task* (*create)(), const std::vector<Task::Attribute>& attributes)
{
    std::unique_ptr<Task> task(create());
    for (auto attribute : attributes) {
        task->setAttribute(&attribute);
    }
    std::unique_ptr<TaskResponse> response(task->perform());
    EXPECT_EQ(task->passed(), response->passed);
    return {response->passed, response->message, response->detail};
}

struct Case {
    const char* what;
    Task* (*create)();
    std::vector<Task::Attribute> attributes;
    bool passes;
    const char* message;  // a part of the message
};

class DescribedFacts : public testing::Test {
protected:
    DescribedFacts() : scopedHost(host), scopedPosture(facts)
    {
        host.applications.format = tvpolicy::HostProbe::ApplicationListing::Format::DpkgStatus;
        host.applications.text =
            "Package: openssh-server\nStatus: install ok installed\nArchitecture: amd64\nVersion: 1:9.2p1-2+deb12u3\n\n"
            "Package: telnet\nStatus: deinstall ok config-files\nArchitecture: amd64\nVersion: 0.17+2.4-2\n\n"
            "Package: libc6\nStatus: install ok installed\nMulti-Arch: same\nArchitecture: amd64\nVersion: 2.36-9\n\n"
            "Package: half\nStatus: install reinstreq half-installed\nArchitecture: amd64\nVersion: 1.0\n";
        facts.units["ssh.service"] = {"active", "enabled"};
        facts.units["cron.service"] = {"active", "disabled"};
        facts.units["nginx.service"] = {"failed", "enabled"};
        facts.listening = {{"tcp", 22, false}, {"tcp", 22, true}, {"udp", 53, true}};
        facts.kernelParameters["net.ipv4.ip_forward"] = "0\n";
        facts.kernelParameters["kernel.printk"] = "4\t4  1\t7\n";
        facts.addMount("/", true);
        facts.addMount("/srv", false);
    }

    void expectAll(const std::vector<Case>& cases)
    {
        for (const auto& c : cases) {
            Result result = perform(c.create, c.attributes);
            EXPECT_EQ(result.passed, c.passes) << c.what << ": " << result.message;
            EXPECT_NE(result.message.find(c.message), std::string::npos) << c.what << ": " << result.message;
        }
    }

    tvpolicy::DescribedHostProbe host;
    DescribedPosture facts;
    tvpolicy::ScopedHost scopedHost;
    tvpolicy::ScopedPosture scopedPosture;
};

using namespace tvpolicy::checks;

TEST_F(DescribedFacts, PackagesByNameVersionAndState)
{
    expectAll({
        {"installed",
         createPackageInstalled,
         {{"name", "openssh-server"}},
         true,
         "openssh-server 1:9.2p1-2+deb12u3 is installed"},
        {"at least", createPackageInstalled, {{"name", "openssh-server"}, {"required", "1:9.2"}}, true, "(gte 1:9.2)"},
        {"epoch decides", createPackageInstalled, {{"name", "openssh-server"}, {"required", "9.9"}}, true, "gte"},
        {"too old",
         createPackageInstalled,
         {{"name", "openssh-server"}, {"required", "1:9.3"}},
         false,
         "not gte 1:9.3"},
        {"lt",
         createPackageInstalled,
         {{"name", "openssh-server"}, {"required", "1:9.2p1-2+deb12u4"}, {"operation", "lt"}},
         true,
         "lt"},
        {"config files only", createPackageInstalled, {{"name", "telnet"}}, false, "telnet is not installed"},
        {"half installed", createPackageInstalled, {{"name", "half"}}, false, "not installed"},
        {"multi-arch",
         createPackageInstalled,
         {{"name", "libc6"}, {"required", "2.36"}, {"operation", "gt"}},
         true,
         "libc6:amd64"},
        {"bad operation",
         createPackageInstalled,
         {{"name", "libc6"}, {"required", "2"}, {"operation", "ge"}},
         false,
         "operation is not one of"},
        {"bad version",
         createPackageInstalled,
         {{"name", "libc6"}, {"required", "latest"}},
         false,
         "not a Debian version"},
        {"no name", createPackageInstalled, {}, false, "the attribute name is missing"},
    });
    host.applications = {};
    expectAll({{"no database", createPackageInstalled, {{"name", "libc6"}}, false, "no package database"}});
}

TEST_F(DescribedFacts, ServicesKernelParametersAndPorts)
{
    expectAll({
        {"suffix added", createServiceActive, {{"unit", "ssh"}}, true, "ssh.service is active (enabled)"},
        {"enabled", createServiceActive, {{"unit", "ssh.service"}, {"enabled", "true"}}, true, "active"},
        {"not enabled", createServiceActive, {{"unit", "cron"}, {"enabled", "true"}}, false, "not enabled"},
        {"only exact true", createServiceActive, {{"unit", "cron"}, {"enabled", "TRUE"}}, true, "active"},
        {"failed", createServiceActive, {{"unit", "nginx"}}, false, "is failed"},
        {"unknown", createServiceActive, {{"unit", "nope.service"}}, false, "not found"},
        {"value", createKernelParameter, {{"name", "net.ipv4.ip_forward"}, {"value", "0"}}, true, "= 0"},
        {"folded", createKernelParameter, {{"name", "kernel.printk"}, {"value", "4 4 1 7"}}, true, "4 4 1 7"},
        {"differs", createKernelParameter, {{"name", "net.ipv4.ip_forward"}, {"value", "1"}}, false, "not 1"},
        {"missing", createKernelParameter, {{"name", "net.nope"}, {"value", "1"}}, false, "no such parameter"},
        {"both families", createPortListening, {{"port", "22"}}, true, "(IPv4, IPv6)"},
        {"udp", createPortListening, {{"port", "53"}, {"protocol", "udp"}}, true, "(IPv6)"},
        {"tcp is not udp", createPortListening, {{"port", "53"}}, false, "nothing listens on tcp port 53"},
        {"port 0", createPortListening, {{"port", "0"}}, false, "port is not a number"},
        {"port 65536", createPortListening, {{"port", "65536"}}, false, "port is not a number"},
        {"sctp", createPortListening, {{"port", "22"}, {"protocol", "sctp"}}, false, "protocol is not tcp or udp"},
    });
}

TEST_F(DescribedFacts, FirewallChains)
{
    using Chain = PostureProbe::FilterChain;
    struct Filter {
        const char* what;
        std::vector<Chain> chains;
        bool passes;
    } filters[] = {
        {"no table", {}, false},
        {"drop policy", {{"inet", "filter", "input", "input", "drop", false}}, true},
        {"reject rule", {{"ip", "filter", "INPUT", "input", "accept", true}}, true},
        {"accept only", {{"ip6", "filter", "input", "input", "accept", false}}, false},
        {"output only", {{"inet", "filter", "output", "output", "drop", true}}, false},
        {"bridge input", {{"bridge", "filter", "input", "input", "drop", false}}, false},
    };
    for (const auto& filter : filters) {
        facts.filterChains = filter.chains;
        Result result = perform(createFirewallActive, {});
        EXPECT_EQ(result.passed, filter.passes) << filter.what << ": " << result.message;
    }
}

TEST_F(DescribedFacts, EncryptedMounts)
{
    expectAll({
        {"root", createDiskEncrypted, {}, true, "dm-crypt device 254:1"},
        {"plain", createDiskEncrypted, {{"mount", "/srv"}}, false, "not on a dm-crypt device"},
        {"not mounted", createDiskEncrypted, {{"mount", "/home"}}, false, "/home is not mounted"},
    });
}

// A sysfs and mount table laid out as the kernel shows them, read by this system's backend.
TEST(DiskEncryptedOnSysfs, FollowsDeviceMapperLayersDownToDmCrypt)
{
    testing_support::MappedHost mapped({{"/proc/self/", "proc/"}, {"/sys/dev/block/", "block/"}});
    auto& tmp = mapped.tmp;
    tmp.write("proc/mountinfo",
              "22 1 254:2 / / rw - ext4 /dev/mapper/vg-root rw\n"
              "23 22 8:1 / /boot rw - ext4 /dev/sda1 rw\n"
              "24 22 254:3 / /srv rw - xfs /dev/mapper/plain-srv rw\n"
              "25 22 0:30 / /tmp rw - tmpfs tmpfs rw\n");
    // LVM on LUKS: vg-root (254:2) on the crypt device (254:1) on sda2 (8:2).
    tmp.write("block/254:2/dm/uuid", "LVM-abcdef\n");
    tmp.write("block/254:2/slaves/dm-1/dev", "254:1\n");
    tmp.write("block/254:1/dm/uuid", "CRYPT-LUKS2-0123456789-sda2_crypt\n");
    tmp.write("block/254:1/slaves/sda2/dev", "8:2\n");
    tmp.write("block/8:2/dev", "8:2\n");
    tmp.write("block/8:1/dev", "8:1\n");
    // Plain LVM on a disk.
    tmp.write("block/254:3/dm/uuid", "LVM-plain\n");
    tmp.write("block/254:3/slaves/sdb/dev", "8:16\n");
    tmp.write("block/8:16/dev", "8:16\n");
    struct Row {
        const char* mount;
        bool passes;
        const char* message;
    } rows[] = {
        {"/", true, "dm-crypt device 254:1 (CRYPT-LUKS2-0123456789-sda2_crypt)"},
        {"/boot", false, "not on a dm-crypt device"},
        {"/srv", false, "not on a dm-crypt device"},
        {"/tmp", false, "not on a block device"},
        {"/home", false, "/home is not mounted"},
    };
    for (const auto& row : rows) {
        Result result = perform(createDiskEncrypted, {{"mount", row.mount}});
        EXPECT_EQ(result.passed, row.passes) << row.mount << ": " << result.message;
        EXPECT_NE(result.message.find(row.message), std::string::npos) << row.mount << ": " << result.message;
    }
}

class RealFiles : public testing::Test {
protected:
    testing_support::TempDir tmp;
};

TEST_F(RealFiles, ContentByLineWithLimits)
{
    std::string config = tmp.write("sshd_config", "# comment\r\nPort 22\nPermitRootLogin no\n").string();
    std::string big = (tmp.path() / "big").string();
    {
        std::ofstream out(big);
        std::string line(1023, 'a');
        for (int i = 0; i < 17 * 1024; ++i) {
            out << line << '\n';
        }
    }
    std::string hostile = tmp.write("hostile", std::string(5000, 'a') + "b\n").string();
    std::string locked = tmp.write("locked", "secret\n").string();
    ::chmod(locked.c_str(), 0);
    bool root = ::geteuid() == 0;
    std::vector<Case> cases{
        {"match",
         createFileContent,
         {{"path", config}, {"pattern", "^PermitRootLogin\\s+no$"}},
         true,
         "line 3 matches: PermitRootLogin no"},
        {"line end not part", createFileContent, {{"path", config}, {"pattern", "comment$"}}, true, "line 1"},
        {"absent passes",
         createFileContent,
         {{"path", config}, {"pattern", "^PermitRootLogin yes"}, {"absent", "true"}},
         true,
         "no line"},
        {"absent fails",
         createFileContent,
         {{"path", config}, {"pattern", "^Port"}, {"absent", "true"}},
         false,
         "line 2 matches"},
        {"missing file",
         createFileContent,
         {{"path", config + ".none"}, {"pattern", "x"}, {"absent", "true"}},
         false,
         "cannot be read"},
        {"bad pattern",
         createFileContent,
         {{"path", config}, {"pattern", "(unclosed"}},
         false,
         "pattern does not compile"},
        {"17 MB", createFileContent, {{"path", big}, {"pattern", "b"}}, false, "larger than 16 MB"},
        {"backtracking", createFileContent, {{"path", hostile}, {"pattern", "^(a+)+$"}}, false, "limit"},
        {"directory", createFileContent, {{"path", tmp.path().string()}, {"pattern", "x"}}, false, "cannot be read"},
    };
    if (!root) {
        cases.push_back({"unreadable",
                         createFileContent,
                         {{"path", locked}, {"pattern", "x"}, {"absent", "true"}},
                         false,
                         "cannot be read"});
    }
    for (const auto& c : cases) {
        Result result = perform(c.create, c.attributes);
        EXPECT_EQ(result.passed, c.passes) << c.what << ": " << result.message;
        EXPECT_NE(result.message.find(c.message), std::string::npos) << c.what << ": " << result.message;
    }
}

TEST_F(RealFiles, OwnerGroupAndModeThroughLinks)
{
    if (::geteuid() != 0) {
        GTEST_SKIP() << "changing owners needs root";
    }
    std::string shadow = tmp.write("shadow", "root:*:19000::::::\n").string();
    ASSERT_EQ(::chown(shadow.c_str(), 0, 42), 0);
    ASSERT_EQ(::chmod(shadow.c_str(), 0640), 0);
    std::string link = (tmp.path() / "link").string();
    ASSERT_EQ(::symlink(shadow.c_str(), link.c_str()), 0);
    std::string setuid = tmp.write("tool", "").string();
    ASSERT_EQ(::chown(setuid.c_str(), 1234, 1234), 0);
    ASSERT_EQ(::chmod(setuid.c_str(), 04755), 0);
    std::vector<Case> cases{
        {"exact",
         createFileMode,
         {{"path", shadow}, {"owner", "root"}, {"group", "42"}, {"maxMode", "0640"}},
         true,
         "owner root, group"},
        {"stricter allowed", createFileMode, {{"path", shadow}, {"maxMode", "0644"}}, true, "mode 0640"},
        {"looser refused", createFileMode, {{"path", shadow}, {"maxMode", "0600"}}, false, "mode exceeds 0600"},
        {"through link", createFileMode, {{"path", link}, {"owner", "0"}, {"maxMode", "640"}}, true, "mode 0640"},
        {"wrong owner", createFileMode, {{"path", shadow}, {"owner", "nobody"}}, false, "owner is not nobody"},
        {"wrong group", createFileMode, {{"path", shadow}, {"group", "0"}}, false, "group is not 0"},
        {"setuid bit counts", createFileMode, {{"path", setuid}, {"maxMode", "0755"}}, false, "mode 4755"},
        {"unknown ids by number", createFileMode, {{"path", setuid}, {"owner", "1234"}}, true, "owner 1234"},
        {"not octal", createFileMode, {{"path", shadow}, {"maxMode", "0999"}}, false, "maxMode is not an octal mode"},
        {"missing", createFileMode, {{"path", shadow + ".none"}}, false, "No such file"},
    };
    for (const auto& c : cases) {
        Result result = perform(c.create, c.attributes);
        EXPECT_EQ(result.passed, c.passes) << c.what << ": " << result.message;
        EXPECT_NE(result.message.find(c.message), std::string::npos) << c.what << ": " << result.message;
    }
}

TEST(PostureAttributes, ProblemsLintReports)
{
    struct Row {
        const char* kind;
        const char* attribute;
        const char* value;
        bool problem;
    } rows[] = {
        {"FileModeTask", "maxMode", "0640", false},    {"FileModeTask", "maxMode", "rw-r", true},
        {"FileModeTask", "maxMode", "17777", true},    {"FileContentTask", "pattern", "a(b", true},
        {"FileContentTask", "pattern", "^a+$", false}, {"PortListeningTask", "port", "443", false},
        {"PortListeningTask", "port", "-1", true},     {"PortListeningTask", "protocol", "TCP", true},
        {"FileTask", "maxMode", "x", false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(!tvpolicy::postureAttributeProblem(row.kind, row.attribute, row.value).empty(), row.problem)
            << row.kind << " " << row.attribute << "=" << row.value;
    }
}

}  // namespace
