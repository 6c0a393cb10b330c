#include "host/probe/darwin/DarwinHostProbe.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <libproc.h>
#include <sys/param.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <IOKit/IOKitLib.h>

#include <tvpolicy/base/Utilities.h>

#include "host/probe/darwin/DarwinApplications.h"
#include "host/probe/darwin/DarwinHandles.h"

namespace tvpolicy {

namespace {

struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};

struct PipeCloser {
    int* status;
    void operator()(FILE* pipe) const { *status = ::pclose(pipe); }
};

// A string property of the registry's root, "IOService:/"; absent when the entry or the
// property is missing.
std::optional<std::string> platformProperty(io_registry_entry_t root, const char* key)
{
    darwin::CFHolder<CFStringRef> name(CFStringCreateWithCString(kCFAllocatorDefault, key, kCFStringEncodingUTF8));
    darwin::CFHolder<CFTypeRef> value(IORegistryEntryCreateCFProperty(root, name.get(), kCFAllocatorDefault, 0));
    if (!value) {
        return std::nullopt;
    }
    return darwin::registryText(value.get());
}

}  // namespace

int darwin::GetBSDProcessList(kinfo_proc** list, std::size_t* count)
{
    *list = nullptr;
    *count = 0;
    int name[] = {CTL_KERN, KERN_PROC, KERN_PROC_ALL, 0};
    for (;;) {
        std::size_t length = 0;
        if (::sysctl(name, 3, nullptr, &length, nullptr, 0) == -1) {
            return errno;
        }
        std::unique_ptr<void, FreeDeleter> buffer(std::malloc(length));
        if (!buffer) {
            return ENOMEM;
        }
        if (::sysctl(name, 3, buffer.get(), &length, nullptr, 0) == -1) {
            if (errno == ENOMEM) {
                continue;  // the table grew since it was measured
            }
            return errno;
        }
        *count = length / sizeof(kinfo_proc);
        *list = static_cast<kinfo_proc*>(buffer.release());
        return 0;
    }
}

std::string DarwinHostProbe::systemPath(const std::string& path) const { return path; }

std::string DarwinHostProbe::osProductVersion() const
{
    return getOutputFromCommand("/usr/bin/sw_vers -productVersion", 256);
}

std::string DarwinHostProbe::osProductName() const
{
    return getOutputFromCommand("/usr/bin/sw_vers -productName", 256);
}

std::string DarwinHostProbe::nodeName() const
{
    utsname names{};
    return ::uname(&names) == 0 ? std::string(names.nodename) : std::string();
}

std::string DarwinHostProbe::machineArchitecture() const
{
    utsname names{};
    return ::uname(&names) == 0 ? std::string(names.machine) : std::string();
}

HostProbe::HardwareIdentity DarwinHostProbe::hardwareIdentity() const
{
    HardwareIdentity identity;
    darwin::IOHolder root(IORegistryEntryFromPath(kIOMasterPortDefault, "IOService:/"));
    if (!root) {
        return identity;
    }
    identity.manufacturer = platformProperty(root.get(), "manufacturer");
    identity.productName = platformProperty(root.get(), "product-name");
    identity.version = platformProperty(root.get(), "version");
    identity.uuid = platformProperty(root.get(), kIOPlatformUUIDKey);
    identity.serialNumber = platformProperty(root.get(), kIOPlatformSerialNumberKey);
    return identity;
}

std::vector<HostProbe::ProcessEntry> DarwinHostProbe::processTable() const
{
    std::vector<ProcessEntry> table;
    kinfo_proc* raw = nullptr;
    std::size_t count = 0;
    if (darwin::GetBSDProcessList(&raw, &count) != 0) {
        return table;
    }
    std::unique_ptr<kinfo_proc, FreeDeleter> list(raw);
    char path[PROC_PIDPATHINFO_MAXSIZE];
    for (std::size_t i = 0; i < count; ++i) {
        const kinfo_proc& process = list.get()[i];
        ProcessEntry entry;
        entry.pid = process.kp_proc.p_pid;
        entry.shortName.assign(process.kp_proc.p_comm, strnlen(process.kp_proc.p_comm, sizeof process.kp_proc.p_comm));
        int length = ::proc_pidpath(process.kp_proc.p_pid, path, sizeof path);
        if (length > 0) {
            entry.executablePath = std::string(path, static_cast<std::size_t>(length));
        } else if (errno == EPERM || errno == EACCES) {
            entry.executableWithheld = true;
        }
        table.push_back(std::move(entry));
    }
    return table;
}

std::string DarwinHostProbe::dnsFlushCommand() const
{
    // The resolver-cache tool this release ships: dscacheutil from 10.5 on, lookupd on 10.4,
    // none before. Which one applies is read from the system itself, not from its version.
    for (const char* tool : {"/usr/bin/dscacheutil", "/usr/bin/lookupd"}) {
        if (::access(tool, X_OK) == 0) {
            return std::string(tool) + " -flushcache";
        }
    }
    return std::string();
}

std::string DarwinHostProbe::commandOutput(const std::string& command, unsigned long bufferSize)
{
    return getOutputFromCommand(command, bufferSize);
}

int DarwinHostProbe::runShellCommand(const std::string& command)
{
    // A read pipe closed at once: closing waits for the command and gives its status.
    int status = 0;
    {
        std::unique_ptr<FILE, PipeCloser> pipe(::popen(command.c_str(), "r"), PipeCloser{&status});
        if (!pipe) {
            return 0;
        }
    }
    return status;
}

void DarwinHostProbe::openURL(const std::string& url)
{
    int status = std::system(("open " + url).c_str());
    static_cast<void>(status);
}

HostProbe::ApplicationListing DarwinHostProbe::applicationListing() const
{
    // A machine with many applications prints a few megabytes; this bounds a runaway profiler.
    constexpr std::size_t profilerLimit = 256u << 20;
    // A profiler that cannot start gives an empty document, which the reader reports as unparsable.
    return {ApplicationListing::Format::PropertyList, darwin::applicationsPropertyList(profilerLimit)};
}

HostProbe& systemHost()
{
    static DarwinHostProbe probe;
    return probe;
}

}  // namespace tvpolicy
