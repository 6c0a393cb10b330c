// DiskEncrypted: the file system at a mount point sits on dm-crypt, directly or through other
// device-mapper layers.
#include <set>

#include <tvpolicy/host/PostureProbe.h>

#include "checks/PostureTask.h"
#include "host/parse/MountInfo.h"

namespace tvpolicy::checks {

namespace {

// Device-mapper stacks are a few layers deep; this bounds a described tree that loops.
constexpr std::size_t deviceLimit = 256;

class DiskEncryptedTask final : public PostureTask {
public:
    std::string getType() override { return "DiskEncryptedTask"; }

private:
    Outcome check() override
    {
        std::string mount = attribute("mount", "/");
        auto table = currentPosture().mountTable();
        if (!table) {
            return unknown(table.error());
        }
        auto entry = parse::mountAt(parse::parseMountInfo(*table), mount);
        if (!entry) {
            return unknown(mount + " is not mounted");
        }
        std::string found = mount + " (" + entry->source + ", " + entry->device + ")";
        std::vector<std::string> pending{entry->device};
        std::set<std::string> seen;
        while (!pending.empty() && seen.size() < deviceLimit) {
            std::string device = pending.back();
            pending.pop_back();
            if (!seen.insert(device).second) {
                continue;
            }
            auto block = currentPosture().blockDevice(device);
            if (!block) {
                // A file system without a block device (tmpfs, overlay, a network share).
                if (device == entry->device) {
                    return {false, found + " is not on a block device"};
                }
                continue;
            }
            const auto& uuid = block->deviceMapperUuid;
            if (uuid && uuid->rfind("CRYPT-", 0) == 0) {
                return {true, found + " is on dm-crypt device " + device + " (" + *uuid + ")"};
            }
            pending.insert(pending.end(), block->below.begin(), block->below.end());
        }
        return {false, found + " is not on a dm-crypt device"};
    }
};

}  // namespace

Task* createDiskEncrypted() { return new DiskEncryptedTask; }

}  // namespace tvpolicy::checks
