#include <tvpolicy/host/PostureProbe.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <iterator>

namespace tvpolicy {

namespace {

std::atomic<PostureProbe*>& current()
{
    static std::atomic<PostureProbe*> probe{nullptr};
    return probe;
}

// A mount point as the mount table writes it: blanks, tabs, line ends and backslashes octal.
std::string escapedMountPoint(const std::string& path)
{
    std::string escaped;
    for (char c : path) {
        if (c == ' ' || c == '\t' || c == '\n' || c == '\\') {
            char octal[5];
            std::snprintf(octal, sizeof octal, "\\%03o", static_cast<unsigned char>(c));
            escaped += octal;
        } else {
            escaped += c;
        }
    }
    return escaped;
}

}  // namespace

PostureProbe::~PostureProbe() = default;

PostureProbe::Fact<PostureProbe::UnitState> PostureProbe::unitState(const std::string&) const
{
    return Fact<UnitState>(Failure{notAvailable()});
}

PostureProbe::Fact<std::vector<PostureProbe::ListeningSocket>> PostureProbe::listeningSockets(const std::string&) const
{
    return Fact<std::vector<ListeningSocket>>(Failure{notAvailable()});
}

PostureProbe::Fact<std::vector<PostureProbe::FilterChain>> PostureProbe::packetFilter() const
{
    return Fact<std::vector<FilterChain>>(Failure{notAvailable()});
}

PostureProbe::Fact<std::string> PostureProbe::mountTable() const { return Fact<std::string>(Failure{notAvailable()}); }

PostureProbe::Fact<PostureProbe::BlockDevice> PostureProbe::blockDevice(const std::string&) const
{
    return Fact<BlockDevice>(Failure{notAvailable()});
}

PostureProbe::Fact<std::string> PostureProbe::kernelParameter(const std::string&) const
{
    return Fact<std::string>(Failure{notAvailable()});
}

PostureProbe::Fact<PostureProbe::FileStatus> PostureProbe::fileStatus(const std::string&) const
{
    return Fact<FileStatus>(Failure{notAvailable()});
}

PostureProbe& currentPosture()
{
    PostureProbe* probe = current().load(std::memory_order_acquire);
    return probe != nullptr ? *probe : systemPosture();
}

ScopedPosture::ScopedPosture(PostureProbe& probe) : previous_(current().exchange(&probe, std::memory_order_acq_rel)) {}

ScopedPosture::~ScopedPosture() { current().store(previous_, std::memory_order_release); }

void DescribedPosture::addMount(const std::string& mountPoint, bool encrypted)
{
    // Described disks are 8:N, their dm-crypt devices 254:N; mount ids count from 20.
    std::size_t index = static_cast<std::size_t>(std::count(mounts.begin(), mounts.end(), '\n')) + 1;
    std::string disk = "8:" + std::to_string(index);
    std::string device = disk;
    blockDevices[disk] = BlockDevice{};
    if (encrypted) {
        device = "254:" + std::to_string(index);
        blockDevices[device] =
            BlockDevice{"CRYPT-LUKS2-described" + std::to_string(index) + "-crypt" + std::to_string(index), {disk}};
    }
    mounts += std::to_string(19 + index) + " 1 " + device + " / " + escapedMountPoint(mountPoint) +
              " rw,relatime shared:" + std::to_string(index) + " - ext4 /dev/described" + std::to_string(index) +
              " rw\n";
}

PostureProbe::Fact<PostureProbe::UnitState> DescribedPosture::unitState(const std::string& unit) const
{
    auto found = units.find(unit);
    return found != units.end() ? Fact<UnitState>(found->second) : Fact<UnitState>(Failure{"not found"});
}

PostureProbe::Fact<std::vector<PostureProbe::ListeningSocket>> DescribedPosture::listeningSockets(
    const std::string& protocol) const
{
    std::vector<ListeningSocket> sockets;
    std::copy_if(listening.begin(), listening.end(), std::back_inserter(sockets),
                 [&](const ListeningSocket& socket) { return socket.protocol == protocol; });
    return Fact<std::vector<ListeningSocket>>(std::move(sockets));
}

PostureProbe::Fact<std::vector<PostureProbe::FilterChain>> DescribedPosture::packetFilter() const
{
    return Fact<std::vector<FilterChain>>(filterChains);
}

PostureProbe::Fact<std::string> DescribedPosture::mountTable() const { return Fact<std::string>(mounts); }

PostureProbe::Fact<PostureProbe::BlockDevice> DescribedPosture::blockDevice(const std::string& majorMinor) const
{
    auto found = blockDevices.find(majorMinor);
    return found != blockDevices.end() ? Fact<BlockDevice>(found->second)
                                       : Fact<BlockDevice>(Failure{"no block device " + majorMinor});
}

PostureProbe::Fact<std::string> DescribedPosture::kernelParameter(const std::string& name) const
{
    auto found = kernelParameters.find(name);
    return found != kernelParameters.end() ? Fact<std::string>(found->second)
                                           : Fact<std::string>(Failure{"no such parameter"});
}

PostureProbe::Fact<PostureProbe::FileStatus> DescribedPosture::fileStatus(const std::string& path) const
{
    auto found = files.find(path);
    return found != files.end() ? Fact<FileStatus>(found->second) : systemPosture().fileStatus(path);
}

}  // namespace tvpolicy
