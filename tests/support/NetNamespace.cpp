#include "support/NetNamespace.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace testing_support {

namespace {

std::string quoted(const std::string& text)
{
    std::string out = "'";
    for (char c : text) {
        out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return out + "'";
}

bool run(const std::string& command) { return std::system((command + " >/dev/null 2>&1").c_str()) == 0; }

}  // namespace

NetNamespace::NetNamespace()
{
    static std::atomic<int> counter{0};
    name_ = "tvp" + std::to_string(::getpid()) + "n" + std::to_string(counter++);
    if (::geteuid() != 0) {
        skipReason_ = "network namespaces need root";
    } else if (!run("ip netns add " + name_)) {
        skipReason_ = "ip netns add is not possible here";
    }
}

NetNamespace::~NetNamespace()
{
    leave();
    if (valid()) {
        run("ip netns del " + name_);
    }
    std::error_code ignored;
    std::filesystem::remove_all("/etc/netns/" + name_, ignored);
}

bool NetNamespace::exec(const std::string& command) const
{
    return run("ip netns exec " + name_ + " sh -c " + quoted(command));
}

bool NetNamespace::waitFor(const std::string& command, int seconds) const
{
    for (int i = 0; i < seconds * 10; ++i) {
        if (exec(command)) {
            return true;
        }
        ::usleep(100'000);
    }
    return false;
}

void NetNamespace::setResolvConf(const std::string& text) const
{
    std::filesystem::create_directories("/etc/netns/" + name_);
    std::ofstream("/etc/netns/" + name_ + "/resolv.conf") << text;
}

void NetNamespace::leave()
{
    if (savedMount_ >= 0) {
        ::setns(savedMount_, CLONE_NEWNS);
        ::close(savedMount_);
        savedMount_ = -1;
    }
    if (savedNet_ >= 0) {
        ::setns(savedNet_, CLONE_NEWNET);
        ::close(savedNet_);
        savedNet_ = -1;
    }
}

bool NetNamespace::enter()
{
    savedNet_ = ::open("/proc/self/ns/net", O_RDONLY | O_CLOEXEC);
    savedMount_ = ::open("/proc/self/ns/mnt", O_RDONLY | O_CLOEXEC);
    int fd = ::open(("/run/netns/" + name_).c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        return false;
    }
    bool entered = ::setns(fd, CLONE_NEWNET) == 0;
    ::close(fd);
    if (!entered || ::unshare(CLONE_NEWNS) != 0 || ::mount("", "/", nullptr, MS_REC | MS_SLAVE, nullptr) != 0) {
        return false;
    }
    // As `ip netns exec` does: a sysfs of this namespace in place of the old one.
    ::umount2("/sys", MNT_DETACH);
    if (::mount(name_.c_str(), "/sys", "sysfs", 0, nullptr) != 0) {
        return false;
    }
    std::string resolv = "/etc/netns/" + name_ + "/resolv.conf";
    if (::access(resolv.c_str(), F_OK) == 0 &&
        ::mount(resolv.c_str(), "/etc/resolv.conf", nullptr, MS_BIND, nullptr) != 0) {
        return false;
    }
    ::setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus", 1);
    return true;
}

std::string NetNamespace::inChild(const std::function<std::string()>& work)
{
    int fds[2];
    if (::pipe(fds) != 0) {
        return "<pipe failed>";
    }
    pid_t pid = ::fork();
    if (pid == 0) {
        ::close(fds[0]);
        std::string text = enter() ? work() : "<enter failed>";
        std::size_t done = 0;
        while (done < text.size()) {
            ssize_t wrote = ::write(fds[1], text.data() + done, text.size() - done);
            if (wrote <= 0) {
                break;
            }
            done += static_cast<std::size_t>(wrote);
        }
        ::_exit(0);
    }
    ::close(fds[1]);
    std::string text;
    char buffer[4096];
    ssize_t got;
    while ((got = ::read(fds[0], buffer, sizeof buffer)) != 0) {
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            break;
        }
        text.append(buffer, static_cast<std::size_t>(got));
    }
    ::close(fds[0]);
    while (pid > 0 && ::waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
    }
    return pid < 0 ? "<fork failed>" : text;
}

}  // namespace testing_support
