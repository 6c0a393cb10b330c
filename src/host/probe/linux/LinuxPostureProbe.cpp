#include "host/probe/linux/LinuxPostureProbe.h"

#include <cerrno>
#include <cstring>
#include <memory>

#include <dirent.h>
#include <dlfcn.h>
#include <linux/netlink.h>
#include <linux/sock_diag.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <nftables/libnftables.h>

#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/host/Utilities.h>

#include <tvpolicy/base/OwnedFd.h>
#include "host/parse/MountInfo.h"
#include "host/parse/NftRuleset.h"
#include "host/parse/ProcText.h"
#include "host/parse/SockDiag.h"
#include "host/probe/PosixFiles.h"
#include "host/probe/linux/SdBus.h"

namespace tvpolicy {

namespace {

constexpr const char* systemd = "org.freedesktop.systemd1";
constexpr const char* unitInterface = "org.freedesktop.systemd1.Unit";
// Mount tables of hosts with thousands of containers run to a few megabytes.
constexpr std::size_t mountTableLimit = 16u << 20;
constexpr std::size_t attributeLimit = 64u << 10;
constexpr int tcpListen = 10;
constexpr int tcpClose = 7;

// The unit's object path from the manager: loaded already, or loaded now.
Result<std::string> unitPath(linux_bus::SystemBus& bus, const std::string& unit)
{
    auto append = [&](sd_bus_message* m) { return sd_bus_message_append(m, "s", unit.c_str()); };
    std::string error;
    for (const char* method : {"GetUnit", "LoadUnit"}) {
        linux_bus::Message reply =
            bus.call(systemd, "/org/freedesktop/systemd1", "org.freedesktop.systemd1.Manager", method, append);
        const char* path = nullptr;
        if (reply && sd_bus_message_read(reply.get(), "o", &path) > 0) {
            return std::string(path);
        }
        if (error.empty()) {
            error = bus.lastError();
        }
    }
    return Failure{error};
}

// The sockets of one family in the `states` mask, read to the end of the dump.
Result<std::vector<parse::DiagSocket>> dumpSockets(int family, int protocol, std::uint32_t states)
{
    std::vector<parse::DiagSocket> sockets;
    OwnedFd fd(::socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC, NETLINK_SOCK_DIAG));
    if (!fd.valid()) {
        return Failure{std::string("socket diagnostics: ") + std::strerror(errno)};
    }
    struct timeval timeout {
        5, 0
    };
    ::setsockopt(fd.get(), SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout);
    std::vector<unsigned char> request = parse::sockDiagRequest(family, protocol, states, 1);
    struct sockaddr_nl kernel {};
    kernel.nl_family = AF_NETLINK;
    if (::sendto(fd.get(), request.data(), request.size(), 0, reinterpret_cast<sockaddr*>(&kernel), sizeof kernel) <
        0) {
        return Failure{std::string("socket diagnostics: ") + std::strerror(errno)};
    }
    std::vector<unsigned char> buffer(32768);
    for (;;) {
        ssize_t got = ::recv(fd.get(), buffer.data(), buffer.size(), 0);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return Failure{std::string("socket diagnostics: ") +
                           (got < 0 ? std::strerror(errno) : "the dump ended early")};
        }
        parse::DiagBatch batch = parse::parseSockDiag(buffer.data(), static_cast<std::size_t>(got));
        sockets.insert(sockets.end(), batch.sockets.begin(), batch.sockets.end());
        if (batch.error != 0) {
            // A protocol the kernel has no diagnostics module for lists nothing.
            if (batch.error == ENOENT) {
                return sockets;
            }
            return Failure{std::string("socket diagnostics: ") + std::strerror(batch.error)};
        }
        if (batch.malformed) {
            return Failure{"socket diagnostics: a malformed message"};
        }
        if (batch.done) {
            return sockets;
        }
    }
}

// libnftables, loaded on first use so that a host without it (or a program that never asks)
// pays nothing.
struct Nftables {
    decltype(&nft_ctx_new) ctxNew = nullptr;
    decltype(&nft_ctx_free) ctxFree = nullptr;
    decltype(&nft_ctx_output_set_flags) setFlags = nullptr;
    decltype(&nft_ctx_buffer_output) bufferOutput = nullptr;
    decltype(&nft_ctx_buffer_error) bufferError = nullptr;
    decltype(&nft_ctx_get_output_buffer) outputBuffer = nullptr;
    decltype(&nft_ctx_get_error_buffer) errorBuffer = nullptr;
    decltype(&nft_run_cmd_from_buffer) run = nullptr;

    static const Nftables* get()
    {
        static const Nftables* loaded = load();
        return loaded;
    }

private:
    template <typename T>
    static bool resolve(void* library, const char* name, T& function)
    {
        function = reinterpret_cast<T>(::dlsym(library, name));
        return function != nullptr;
    }

    static const Nftables* load()
    {
        void* library = ::dlopen("libnftables.so.1", RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr) {
            return nullptr;
        }
        static Nftables functions;
        bool complete = resolve(library, "nft_ctx_new", functions.ctxNew) &&
                        resolve(library, "nft_ctx_free", functions.ctxFree) &&
                        resolve(library, "nft_ctx_output_set_flags", functions.setFlags) &&
                        resolve(library, "nft_ctx_buffer_output", functions.bufferOutput) &&
                        resolve(library, "nft_ctx_buffer_error", functions.bufferError) &&
                        resolve(library, "nft_ctx_get_output_buffer", functions.outputBuffer) &&
                        resolve(library, "nft_ctx_get_error_buffer", functions.errorBuffer) &&
                        resolve(library, "nft_run_cmd_from_buffer", functions.run);
        // The library stays loaded for the life of the process.
        return complete ? &functions : nullptr;
    }
};

// The ruleset as JSON, through libnftables or else the nft program.
Result<std::string> listRuleset()
{
    const Nftables* nft = Nftables::get();
    if (nft == nullptr) {
        std::string json = getOutputFromCommand("nft -j list ruleset 2>/dev/null", 65536);
        if (json.empty()) {
            return Failure{"the packet filter cannot be read (no libnftables, and nft printed nothing)"};
        }
        return json;
    }
    struct CtxFree {
        const Nftables* nft;
        void operator()(nft_ctx* ctx) const { nft->ctxFree(ctx); }
    };
    std::unique_ptr<nft_ctx, CtxFree> ctx(nft->ctxNew(NFT_CTX_DEFAULT), CtxFree{nft});
    if (!ctx) {
        return Failure{"the packet filter cannot be read (libnftables did not start)"};
    }
    nft->setFlags(ctx.get(), NFT_CTX_OUTPUT_JSON);
    nft->bufferOutput(ctx.get());
    nft->bufferError(ctx.get());
    if (nft->run(ctx.get(), "list ruleset") != 0) {
        const char* message = nft->errorBuffer(ctx.get());
        return Failure{std::string("the packet filter cannot be read: ") +
                       (message != nullptr && *message != '\0' ? parse::sysfsValue(message) : "libnftables failed")};
    }
    const char* output = nft->outputBuffer(ctx.get());
    return std::string(output != nullptr ? output : "");
}

bool isParameterName(const std::string& name)
{
    if (name.empty() || name.front() == '.' || name.back() == '.' || name.find("..") != std::string::npos) {
        return false;
    }
    return name.find_first_of("/\\") == std::string::npos && name.find('\0') == std::string::npos;
}

}  // namespace

PostureProbe::Fact<PostureProbe::UnitState> LinuxPostureProbe::unitState(const std::string& unit) const
{
    linux_bus::SystemBus bus;
    if (!bus.connected()) {
        return Fact<UnitState>(Failure{"the system bus does not answer"});
    }
    Result<std::string> path = unitPath(bus, unit);
    if (!path) {
        return Fact<UnitState>(Failure{"not found (" + path.error() + ")"});
    }
    std::optional<std::string> load = bus.stringProperty(systemd, *path, unitInterface, "LoadState");
    if (load && *load == "not-found") {
        return Fact<UnitState>(Failure{"not found"});
    }
    std::optional<std::string> active = bus.stringProperty(systemd, *path, unitInterface, "ActiveState");
    if (!active) {
        return Fact<UnitState>(Failure{"the service manager did not tell the state: " + bus.lastError()});
    }
    UnitState state;
    state.activeState = *active;
    state.unitFileState = bus.stringProperty(systemd, *path, unitInterface, "UnitFileState").value_or("");
    return Fact<UnitState>(state);
}

PostureProbe::Fact<std::vector<PostureProbe::ListeningSocket>> LinuxPostureProbe::listeningSockets(
    const std::string& protocol) const
{
    bool tcp = protocol == "tcp";
    if (!tcp && protocol != "udp") {
        return Fact<std::vector<ListeningSocket>>(Failure{"unknown protocol " + protocol});
    }
    std::vector<ListeningSocket> found;
    for (int family : {AF_INET, AF_INET6}) {
        std::uint32_t states = 1u << (tcp ? tcpListen : tcpClose);
        Result<std::vector<parse::DiagSocket>> sockets = dumpSockets(family, tcp ? IPPROTO_TCP : IPPROTO_UDP, states);
        if (!sockets) {
            return Fact<std::vector<ListeningSocket>>(Failure{sockets.error()});
        }
        for (const auto& socket : *sockets) {
            if (socket.state == (tcp ? tcpListen : tcpClose) && socket.localPort != 0) {
                found.push_back({protocol, socket.localPort, socket.family == AF_INET6});
            }
        }
    }
    return Fact<std::vector<ListeningSocket>>(std::move(found));
}

PostureProbe::Fact<std::vector<PostureProbe::FilterChain>> LinuxPostureProbe::packetFilter() const
{
    Result<std::string> json = listRuleset();
    if (!json) {
        return Fact<std::vector<FilterChain>>(Failure{json.error()});
    }
    std::vector<FilterChain> chains;
    if (!parse::baseChainsFromNftJson(*json, chains)) {
        return Fact<std::vector<FilterChain>>(Failure{"the packet filter's ruleset is not the JSON expected"});
    }
    return Fact<std::vector<FilterChain>>(std::move(chains));
}

PostureProbe::Fact<std::string> LinuxPostureProbe::mountTable() const
{
    auto text = probe::readText(currentHost().systemPath("/proc/self/mountinfo"), mountTableLimit);
    if (!text) {
        return Fact<std::string>(Failure{"the mount table cannot be read: " + text.error()});
    }
    return Fact<std::string>(std::move(text).value());
}

PostureProbe::Fact<PostureProbe::BlockDevice> LinuxPostureProbe::blockDevice(const std::string& majorMinor) const
{
    if (!parse::isDeviceNumber(majorMinor)) {
        return Fact<BlockDevice>(Failure{"no block device " + majorMinor});
    }
    std::string base = currentHost().systemPath("/sys/dev/block/" + majorMinor);
    struct stat status {};
    if (::stat(base.c_str(), &status) != 0) {
        return Fact<BlockDevice>(Failure{"no block device " + majorMinor});
    }
    BlockDevice device;
    if (auto uuid = probe::readText(base + "/dm/uuid", attributeLimit)) {
        device.deviceMapperUuid = parse::sysfsValue(*uuid);
    }
    std::unique_ptr<DIR, int (*)(DIR*)> slaves(::opendir((base + "/slaves").c_str()), &::closedir);
    if (slaves) {
        while (const dirent* entry = ::readdir(slaves.get())) {
            std::string name = entry->d_name;
            if (name == "." || name == "..") {
                continue;
            }
            if (auto dev = probe::readText(base + "/slaves/" + name + "/dev", attributeLimit)) {
                std::string number = parse::sysfsValue(*dev);
                if (parse::isDeviceNumber(number)) {
                    device.below.push_back(number);
                }
            }
        }
    }
    return Fact<BlockDevice>(std::move(device));
}

PostureProbe::Fact<std::string> LinuxPostureProbe::kernelParameter(const std::string& name) const
{
    if (!isParameterName(name)) {
        return Fact<std::string>(Failure{"no such parameter"});
    }
    std::string path = "/proc/sys/" + name;
    for (std::size_t i = 10; i < path.size(); ++i) {
        if (path[i] == '.') {
            path[i] = '/';
        }
    }
    auto text = probe::readText(currentHost().systemPath(path), attributeLimit);
    if (!text) {
        return Fact<std::string>(Failure{text.error() == std::strerror(ENOENT) ? "no such parameter" : text.error()});
    }
    return Fact<std::string>(std::move(text).value());
}

PostureProbe::Fact<PostureProbe::FileStatus> LinuxPostureProbe::fileStatus(const std::string& path) const
{
    return probe::statFile(currentHost().systemPath(path));
}

PostureProbe& systemPosture()
{
    static LinuxPostureProbe probe;
    return probe;
}

}  // namespace tvpolicy
