// The agent's configuration file (TOML). Settings that load are written back as TOML and must
// load again to the same settings; a refusal names the file. The file is readable by its
// owner only, so login values are never refused for that.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <unistd.h>

#include "FuzzSupport.h"
#include "agent/AgentSettings.h"

namespace {

using tvpolicy::cli::agent::AgentSettings;

/// The one file each input becomes, readable by its owner only.
class ScratchFile {
public:
    const std::string& write(const std::string& text) const
    {
        int fd = open(path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        if (fd < 0) {
            std::abort();
        }
        std::size_t done = 0;
        while (done < text.size()) {
            ssize_t written = ::write(fd, text.data() + done, text.size() - done);
            if (written <= 0) {
                std::abort();
            }
            done += static_cast<std::size_t>(written);
        }
        close(fd);
        return path_;
    }

private:
    const fuzz::ScratchFolder folder_{"settings"};
    const std::string path_ = folder_.path() + "/agent.toml";
};

/// The interval in the largest unit that holds it whole, as the file would write it.
std::string durationText(std::chrono::milliseconds interval)
{
    const std::pair<long long, const char*> units[] = {
        {86400000, "d"}, {3600000, "h"}, {60000, "m"}, {1000, "s"}, {1, "ms"}};
    for (const auto& [per, unit] : units) {
        if (interval.count() % per == 0) {
            return std::to_string(interval.count() / per) + unit;
        }
    }
    std::abort();
}

/// A TOML basic string.
std::string quoted(const std::string& text)
{
    std::string out = "\"";
    for (unsigned char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else if (c < 0x20 || c == 0x7f) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04X", c);
            out += escape;
        } else {
            out += static_cast<char>(c);
        }
    }
    return out + "\"";
}

std::string asToml(const AgentSettings& settings)
{
    std::string text = "server = " + quoted(settings.server) + "\ndiscover = " + quoted(settings.discover) +
                       "\ndomain = " + quoted(settings.domain) + "\nstate_dir = " + quoted(settings.stateDir) +
                       "\ncacert = " + quoted(settings.cacert) +
                       "\nallow_http = " + (settings.allowHttp ? "true" : "false") +
                       "\ninterval = " + quoted(durationText(settings.interval)) + "\nscripts = ";
    if (settings.scripts.any) {
        text += "\"any\"";
    } else {
        text += "[";
        for (const std::string& command : settings.scripts.allowed) {
            text += quoted(command) + ", ";
        }
        text += "]";
    }
    if (!settings.login.empty()) {
        text += "\n[login]\n";
        for (const auto& [field, value] : settings.login) {
            text += quoted(field) + " = " + quoted(value) + "\n";
        }
    }
    return text;
}

bool same(const AgentSettings& a, const AgentSettings& b)
{
    return a.server == b.server && a.discover == b.discover && a.domain == b.domain && a.interval == b.interval &&
           a.stateDir == b.stateDir && a.cacert == b.cacert && a.allowHttp == b.allowHttp &&
           a.scripts.any == b.scripts.any && a.scripts.allowed == b.scripts.allowed && a.login == b.login;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const ScratchFile file;
    const std::string& path = file.write(std::string(reinterpret_cast<const char*>(data), size));
    auto loaded = tvpolicy::cli::agent::loadSettings(path, true);
    if (!loaded) {
        if (loaded.error().compare(0, path.size(), path) != 0) {
            std::fprintf(stderr, "a refusal that does not name the file: %s\n", loaded.error().c_str());
            std::abort();
        }
        return 0;
    }
    const AgentSettings& settings = *loaded;
    if (settings.interval.count() <= 0) {
        std::abort();
    }
    const std::string written = asToml(settings);
    auto again = tvpolicy::cli::agent::loadSettings(file.write(written), true);
    if (!again || !same(settings, *again)) {
        std::fprintf(stderr, "settings written back do not load to the same settings (%s):\n%s\n",
                     again.error().c_str(), written.c_str());
        std::abort();
    }
    return 0;
}
