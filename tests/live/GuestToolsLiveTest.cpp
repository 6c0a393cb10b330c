// The VirtualBox and VMware guest readers end to end: stand-ins for the tools' service
// processes and executables print the real tools' output formats, and the readers find them
// through ps, sudo and the tools' system paths (mapped into the test's folder).
#include <tvpolicy/host/NetworkInterface.h>

#include <gtest/gtest.h>

#include <filesystem>

#include <unistd.h>

#include "support/ChildProcess.h"
#include "support/MappedHost.h"

namespace {

using com::torvane::api::NetworkInterface;

const char* const vboxManage =
    "#!/bin/sh\n"
    "case \"$1\" in\n"
    "list) echo '\"Windows 10\" {0b1d2f3e-0000-4000-8000-000000000001}'\n"
    "      echo 'ubuntu {0b1d2f3e-0000-4000-8000-000000000002}' ;;\n"
    "showvminfo)\n"
    "  echo 'name=\"'\"$3\"'\"'\n"
    "  if [ \"$3\" = '{0b1d2f3e-0000-4000-8000-000000000001}' ]; then\n"
    "    echo 'macaddress1=\"080027ABCDEF\"'; echo 'nic1=\"nat\"'; echo 'macaddress2=\"080027000002\"'\n"
    "  else\n"
    "    echo 'macaddress1=\"080027000011\"'\n"
    "  fi ;;\n"
    "esac\n";

std::filesystem::path executable(const std::filesystem::path& path)
{
    std::filesystem::permissions(path, std::filesystem::perms::owner_all | std::filesystem::perms::group_exec |
                                           std::filesystem::perms::others_exec);
    return path;
}

TEST(GuestToolsLive, StandInToolsGiveTheGuestsAdapters)
{
    if (::geteuid() != 0 || ::access("/usr/bin/sudo", X_OK) != 0) {
        GTEST_SKIP() << "the guest readers run the tools through sudo, which needs root and sudo installed";
    }
    testing_support::MappedHost mapped({{"/usr/bin/VBoxManage", "bin/VBoxManage"}, {"/usr/bin/vmrun", "bin/vmrun"}});
    const std::filesystem::path& dir = mapped.tmp.path();
    std::string vmx = mapped.tmp
                          .write("vms/guest one.vmx",
                                 "ethernet0.present = \"TRUE\"\n"
                                 "ethernet0.addressType = \"generated\"\n"
                                 "ethernet0.generatedAddress = \"00:0c:29:aa:bb:cc\"\n")
                          .string();
    executable(mapped.tmp.write("bin/VBoxManage", vboxManage));
    executable(mapped.tmp.write("bin/vmrun",
                                "#!/bin/sh\n[ \"$2\" = ws ] && printf 'Total running VMs: 1\\n%s\\n' '" + vmx + "'\n"));
    // Processes whose short names are the tools' service names.
    std::filesystem::copy_file("/bin/sleep", dir / "VBoxSVC");
    std::filesystem::copy_file("/bin/sleep", dir / "vmware-vmx");
    testing_support::ChildProcess vboxService({(dir / "VBoxSVC").string(), "600"});
    testing_support::ChildProcess vmwareService({(dir / "vmware-vmx").string(), "600"});

    com::torvane::api::NetworkInterfaceMap guests;
    NetworkInterface::getVirtualGuestInterfaces(guests);
    std::vector<std::string> keys;
    for (const auto& [key, interface] : guests) {
        keys.push_back(key);
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"00:0C:29:AA:BB:CC", "080027000002", "080027000011", "080027ABCDEF"}));
    if (guests.size() == 4) {
        EXPECT_EQ(guests["080027ABCDEF"]->getName(), "VirtualBox Guest0:0");
        EXPECT_EQ(guests["080027ABCDEF"]->getMACAddress(), "08:00:27:AB:CD:EF");
        EXPECT_EQ(guests["080027000002"]->getName(), "VirtualBox Guest0:1");
        EXPECT_EQ(guests["080027000011"]->getVMName(), "VirtualBox Guest1");
        EXPECT_EQ(guests["00:0C:29:AA:BB:CC"]->getName(), "VMware Guest0:0");
        EXPECT_EQ(guests["00:0C:29:AA:BB:CC"]->getDescription(), "VMware Guest: 00:0C:29:AA:BB:CC");
    }
    NetworkInterface::freeInstances(guests);
}

}  // namespace
