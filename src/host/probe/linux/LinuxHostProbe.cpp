#include "host/probe/linux/LinuxHostProbe.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/utsname.h>
#include <sys/wait.h>
#include <unistd.h>

#include <tvpolicy/base/OwnedFd.h>
#include <tvpolicy/base/Utilities.h>

#include "host/ProcessNames.h"
#include "host/parse/OsRelease.h"
#include "host/parse/ProcText.h"
#include "host/probe/PosixFiles.h"

extern char** environ;

namespace tvpolicy {

namespace {

struct DirCloser {
    void operator()(DIR* dir) const { ::closedir(dir); }
};

using probe::readAt;

bool isPid(const char* name)
{
    if (*name == '\0') {
        return false;
    }
    for (; *name != '\0'; ++name) {
        if (*name < '0' || *name > '9') {
            return false;
        }
    }
    return true;
}

// The path of a file in a process's folder, relative to /proc.
class ProcFile {
public:
    const char* path(const char* pid, const char* file)
    {
        std::snprintf(path_, sizeof path_, "%s/%s", pid, file);
        return path_;
    }

private:
    char path_[sizeof(dirent::d_name) + 8];
};

// The target of a process's exe link, read once.
class ExeLink {
public:
    ExeLink(int procFd, const char* path) : procFd_(procFd), path_(path) {}

    // True when the link was read: target() then holds the executable's path.
    bool read()
    {
        ssize_t length = ::readlinkat(procFd_, path_, target_, sizeof target_);
        withheld_ = length < 0 && (errno == EACCES || errno == EPERM);
        if (length <= 0 || static_cast<std::size_t>(length) >= sizeof target_) {
            return false;
        }
        view_ = parse::procExeTargetView(std::string_view(target_, static_cast<std::size_t>(length)));
        return true;
    }
    std::string_view target() const { return view_; }
    // The link exists but this user may not read it.
    bool withheld() const { return withheld_; }

private:
    int procFd_;
    const char* path_;
    char target_[4096];
    std::string_view view_;
    bool withheld_ = false;
};

// A process's short name file, read in one call: the kernel gives its at most 16 bytes and the
// line end whole to the first read, so neither a size nor a second read is asked for.
bool readShortName(int procFd, const char* path, std::string& comm)
{
    OwnedFd fd(::openat(procFd, path, O_RDONLY | O_CLOEXEC | O_NOCTTY));
    if (!fd.valid()) {
        return false;
    }
    char buffer[64];
    ssize_t length = ::read(fd.get(), buffer, sizeof buffer);
    if (length < 0) {
        return false;
    }
    comm.assign(buffer, static_cast<std::size_t>(length));
    return true;
}

// Single-quotes `text` for the shell, so that a URL is one argument whatever it holds.
std::string shellQuoted(const std::string& text)
{
    std::string quoted = "'";
    for (char c : text) {
        if (c == '\'') {
            quoted += "'\\''";
        } else {
            quoted += c;
        }
    }
    return quoted + "'";
}

// os-release files hold a few hundred bytes; anything past this is not one.
constexpr std::size_t osReleaseLimit = std::size_t{64} * 1024;
constexpr std::size_t attributeLimit = 4096;

}  // namespace

LinuxHostProbe::LinuxHostProbe(std::string root) : root_(std::move(root)) {}

std::string LinuxHostProbe::systemPath(const std::string& path) const { return path; }

std::string LinuxHostProbe::osReleaseValue(const std::string& name) const
{
    std::string text;
    for (const char* file : {"/etc/os-release", "/usr/lib/os-release"}) {
        if (readAt(AT_FDCWD, (root_ + file).c_str(), osReleaseLimit, text)) {
            return parse::OsRelease::parse(text).value(name);
        }
    }
    return std::string();
}

std::string LinuxHostProbe::osProductVersion() const { return osReleaseValue("VERSION_ID"); }

std::string LinuxHostProbe::osProductName() const { return osReleaseValue("NAME"); }

std::string LinuxHostProbe::nodeName() const
{
    utsname names{};
    return ::uname(&names) == 0 ? std::string(names.nodename) : std::string();
}

std::string LinuxHostProbe::machineArchitecture() const
{
    utsname names{};
    return ::uname(&names) == 0 ? std::string(names.machine) : std::string();
}

std::optional<std::string> LinuxHostProbe::dmiAttribute(const char* name) const
{
    std::string text;
    if (!readAt(AT_FDCWD, (root_ + "/sys/class/dmi/id/" + name).c_str(), attributeLimit, text)) {
        return std::nullopt;
    }
    return parse::sysfsValue(text);
}

HostProbe::HardwareIdentity LinuxHostProbe::hardwareIdentity() const
{
    HardwareIdentity identity;
    identity.manufacturer = dmiAttribute("sys_vendor");
    identity.productName = dmiAttribute("product_name");
    identity.version = dmiAttribute("product_version");
    identity.uuid = dmiAttribute("product_uuid");
    identity.serialNumber = dmiAttribute("product_serial");
    return identity;
}

template <typename Visit>
void LinuxHostProbe::forEachProcess(Visit visit) const
{
    std::unique_ptr<DIR, DirCloser> proc(::opendir((root_ + "/proc").c_str()));
    if (!proc) {
        return;
    }
    const int procFd = ::dirfd(proc.get());
    while (const dirent* entry = ::readdir(proc.get())) {
        if (isPid(entry->d_name) && !visit(procFd, entry->d_name)) {
            return;
        }
    }
}

std::vector<HostProbe::ProcessEntry> LinuxHostProbe::processTable() const
{
    std::vector<ProcessEntry> table;
    std::string comm;
    ProcFile file;
    forEachProcess([&](int procFd, const char* pid) {
        if (!readShortName(procFd, file.path(pid, "comm"), comm)) {
            return true;  // ended since the folder was listed
        }
        ProcessEntry process;
        process.pid = std::strtol(pid, nullptr, 10);
        process.shortName = parse::procCommName(comm);
        ExeLink exe(procFd, file.path(pid, "exe"));
        if (exe.read()) {
            process.executablePath = std::string(exe.target());
        }
        process.executableWithheld = exe.withheld();
        table.push_back(std::move(process));
        return true;
    });
    return table;
}

HostProbe::ProcessCounts LinuxHostProbe::scanCounts() const
{
    ProcessCounts counts;
    ProcFile file;
    forEachProcess([&](int procFd, const char* pid) {
        ExeLink exe(procFd, file.path(pid, "exe"));
        // A kernel thread has no executable; a process that ended since the listing neither.
        if (exe.read() || exe.withheld() || ::faccessat(procFd, pid, F_OK, 0) == 0) {
            ++counts.total;
            counts.withheld += exe.withheld() ? 1 : 0;
        }
        return true;
    });
    return counts;
}

bool LinuxHostProbe::scanForName(const std::string& name) const
{
    // The kernel keeps at most 15 bytes of a short name: a longer name matches executables only.
    const bool shortNameCanMatch = name.size() <= 15;
    bool found = false;
    std::string comm;
    ProcFile file;
    forEachProcess([&](int procFd, const char* pid) {
        ExeLink exe(procFd, file.path(pid, "exe"));
        if (!exe.read()) {
            return true;  // a process whose executable cannot be read never matches
        }
        found = host::isExecutableNamed(exe.target(), name) ||
                (shortNameCanMatch && readShortName(procFd, file.path(pid, "comm"), comm) &&
                 parse::procCommName(comm) == name);
        return !found;
    });
    return found;
}

std::string LinuxHostProbe::dnsFlushCommand() const
{
    // systemd-resolved (whose command name the kernel cuts to 15 characters) is preferred;
    // nscd's host cache is the other resolver cache a Linux system runs.
    bool nscd = false;
    for (const ProcessEntry& process : processTable()) {
        if (process.shortName == "systemd-resolve") {
            return "resolvectl flush-caches";
        }
        nscd = nscd || process.shortName == "nscd";
    }
    return nscd ? "nscd -i hosts" : std::string();
}

std::string LinuxHostProbe::commandOutput(const std::string& command, unsigned long bufferSize)
{
    return getOutputFromCommand(command, bufferSize);
}

int LinuxHostProbe::runShellCommand(const std::string& command)
{
    // Like a read pipe that is closed at once, but the command's output goes to /dev/null, so
    // a tool that prints before it acts is not killed by a broken pipe half-way.
    posix_spawn_file_actions_t actions;
    if (::posix_spawn_file_actions_init(&actions) != 0) {
        return 0;
    }
    ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const char* argv[] = {"sh", "-c", command.c_str(), nullptr};
    pid_t pid = -1;
    int error = ::posix_spawn(&pid, "/bin/sh", &actions, nullptr, const_cast<char* const*>(argv), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        return 0;
    }
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR) {
            return 0;
        }
    }
    return status;
}

void LinuxHostProbe::openURL(const std::string& url)
{
    // In the background: a browser started by xdg-open may run as long as the person keeps it.
    int status = std::system(("xdg-open " + shellQuoted(url) + " >/dev/null 2>&1 &").c_str());
    static_cast<void>(status);
}

HostProbe::ApplicationListing LinuxHostProbe::applicationListing() const
{
    // The status database of a large system is a few megabytes; this bounds a runaway file.
    constexpr std::size_t statusLimit = 256u << 20;
    ApplicationListing listing;
    if (readAt(AT_FDCWD, (root_ + "/var/lib/dpkg/status").c_str(), statusLimit, listing.text)) {
        listing.format = ApplicationListing::Format::DpkgStatus;
        return listing;
    }
    listing.text.clear();
    std::string rpm = root_ + "/usr/bin/rpm";
    if (::access(rpm.c_str(), X_OK) == 0) {
        listing.format = ApplicationListing::Format::RpmQuery;
        listing.text = getOutputFromCommand(
            shellQuoted(rpm) + " -qa --qf '%{NAME}\\t%|EPOCH?{%{EPOCH}:}:{}|%{VERSION}-%{RELEASE}\\n' 2>/dev/null",
            8192);
    }
    return listing;
}

HostProbe& systemHost()
{
    static LinuxHostProbe probe;
    return probe;
}

}  // namespace tvpolicy
