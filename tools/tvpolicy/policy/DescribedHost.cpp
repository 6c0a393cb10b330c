#include "policy/DescribedHost.h"

#include <stdlib.h>
#include <unistd.h>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <stdexcept>
#include <vector>

#include <nlohmann/json.hpp>

namespace tvpolicy::cli {

namespace {

using Json = nlohmann::json;

// A field of the description at fault: the message names it.
struct FieldError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

void onlyFields(const Json& object, const std::string& where, const std::set<std::string>& known)
{
    if (!object.is_object()) {
        throw FieldError((where.empty() ? std::string("the description") : "field '" + where + "'") +
                         " must be an object");
    }
    for (const auto& [name, value] : object.items()) {
        if (known.count(name) == 0) {
            std::string list;
            for (const std::string& field : known) {
                list += (list.empty() ? "" : ", ") + field;
            }
            throw FieldError("unknown field '" + (where.empty() ? name : where + "." + name) + "' (known: " + list +
                             ")");
        }
    }
}

std::string text(const Json& object, const std::string& name, const std::string& where)
{
    if (!object.contains(name)) {
        return "";
    }
    if (!object[name].is_string()) {
        throw FieldError("field '" + where + name + "' must be a string");
    }
    return object[name].get<std::string>();
}

std::optional<std::string> optionalText(const Json& object, const std::string& name, const std::string& where)
{
    if (!object.contains(name) || object[name].is_null()) {
        return std::nullopt;
    }
    return text(object, name, where);
}

const Json& arrayField(const Json& document, const std::string& name)
{
    if (!document[name].is_array()) {
        throw FieldError("field '" + name + "' must be an array");
    }
    return document[name];
}

bool flagField(const Json& object, const std::string& name, const std::string& where)
{
    if (!object.contains(name)) {
        return false;
    }
    if (!object[name].is_boolean()) {
        throw FieldError("field '" + where + name + "' must be true or false");
    }
    return object[name].get<bool>();
}

// Owner or group as a name or a number: a number is the id, a name stands with id 0 for
// root and an id no account has otherwise.
void account(const std::string& text, std::string& name, unsigned long& id)
{
    bool numeric = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos && text.size() < 10;
    name = numeric ? "" : text;
    id = numeric ? std::stoul(text) : text == "root" ? 0 : 4294967294ul;
}

// The posture facts: packages become a package database of dpkg's, the rest described facts.
void describePosture(const Json& document, tvpolicy::DescribedHostProbe& host, tvpolicy::DescribedPosture& posture)
{
    if (document.contains("packages")) {
        const Json& packages = arrayField(document, "packages");
        host.applications.format = tvpolicy::HostProbe::ApplicationListing::Format::DpkgStatus;
        for (std::size_t i = 0; i < packages.size(); ++i) {
            std::string where = "packages[" + std::to_string(i) + "]";
            onlyFields(packages[i], where, {"name", "version"});
            std::string name = text(packages[i], "name", where + ".");
            if (name.empty() || name.find_first_of(" \t\n") != std::string::npos) {
                throw FieldError("field '" + where + ".name' must be a package name");
            }
            std::string version = text(packages[i], "version", where + ".");
            host.applications.text +=
                "Package: " + name + "\nStatus: install ok installed\nVersion: " + version + "\n\n";
        }
    }
    if (document.contains("services")) {
        const Json& services = arrayField(document, "services");
        for (std::size_t i = 0; i < services.size(); ++i) {
            std::string where = "services[" + std::to_string(i) + "]";
            onlyFields(services[i], where, {"unit", "active", "enabled"});
            std::string unit = text(services[i], "unit", where + ".");
            if (unit.empty()) {
                throw FieldError("field '" + where + ".unit' is missing");
            }
            posture.units[unit.find('.') == std::string::npos ? unit + ".service" : unit] = {
                flagField(services[i], "active", where + ".") ? "active" : "inactive",
                flagField(services[i], "enabled", where + ".") ? "enabled" : "disabled"};
        }
    }
    if (document.contains("listening")) {
        const Json& listening = arrayField(document, "listening");
        for (std::size_t i = 0; i < listening.size(); ++i) {
            std::string where = "listening[" + std::to_string(i) + "]";
            onlyFields(listening[i], where, {"port", "protocol"});
            const Json& port = listening[i].contains("port") ? listening[i]["port"] : Json();
            if (!port.is_number_integer() || port.get<long>() < 1 || port.get<long>() > 65535) {
                throw FieldError("field '" + where + ".port' must be a number from 1 to 65535");
            }
            std::string protocol =
                listening[i].contains("protocol") ? text(listening[i], "protocol", where + ".") : "tcp";
            if (protocol != "tcp" && protocol != "udp") {
                throw FieldError("field '" + where + ".protocol' must be tcp or udp");
            }
            posture.listening.push_back({protocol, static_cast<unsigned>(port.get<long>()), false});
        }
    }
    if (flagField(document, "firewall", "")) {
        posture.filterChains.push_back({"inet", "filter", "input", "input", "drop", false});
    }
    std::set<std::string> encrypted;
    if (document.contains("encryptedMounts")) {
        for (const Json& mount : arrayField(document, "encryptedMounts")) {
            if (!mount.is_string() || mount.get<std::string>().empty()) {
                throw FieldError("field 'encryptedMounts' must hold mount points");
            }
            encrypted.insert(mount.get<std::string>());
        }
    }
    // The root file system is always mounted; it is plain unless listed.
    posture.addMount("/", encrypted.count("/") != 0);
    for (const std::string& mount : encrypted) {
        if (mount != "/") {
            posture.addMount(mount, true);
        }
    }
    if (document.contains("kernelParameters")) {
        if (!document["kernelParameters"].is_object()) {
            throw FieldError("field 'kernelParameters' must be an object of name: value");
        }
        for (const auto& [name, value] : document["kernelParameters"].items()) {
            posture.kernelParameters[name] = text(document["kernelParameters"], name, "kernelParameters.") + "\n";
        }
    }
    if (document.contains("fileModes")) {
        if (!document["fileModes"].is_object()) {
            throw FieldError("field 'fileModes' must be an object of path: {owner, group, mode}");
        }
        for (const auto& [path, entry] : document["fileModes"].items()) {
            std::string where = "fileModes." + path;
            onlyFields(entry, where, {"owner", "group", "mode"});
            tvpolicy::PostureProbe::FileStatus file;
            account(text(entry, "owner", where + "."), file.owner, file.uid);
            account(text(entry, "group", where + "."), file.group, file.gid);
            std::string mode = text(entry, "mode", where + ".");
            if (mode.empty() || mode.size() > 5 || mode.find_first_not_of("01234567") != std::string::npos ||
                std::stoul(mode, nullptr, 8) > 07777) {
                throw FieldError("field '" + where + ".mode' must be an octal mode such as 0640");
            }
            file.mode = static_cast<unsigned>(std::stoul(mode, nullptr, 8));
            posture.files[path] = file;
        }
    }
}

}  // namespace

Result<std::unique_ptr<DescribedHost>> DescribedHost::load(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return Failure{"cannot read '" + path + "'"};
    }
    std::unique_ptr<DescribedHost> described(new DescribedHost);
    tvpolicy::DescribedHostProbe& host = described->host_;
    try {
        Json document = Json::parse(in);
        onlyFields(
            document, "",
            {"os", "hostName", "architecture", "hardware", "processes", "commands", "root", "dnsFlushCommand",
             "packages", "services", "listening", "firewall", "encryptedMounts", "kernelParameters", "fileModes"});
        if (!document.contains("os")) {
            throw FieldError("field 'os' is missing (it gives the OS name and version)");
        }
        onlyFields(document["os"], "os", {"name", "version"});
        host.productName = text(document["os"], "name", "os.");
        host.productVersion = text(document["os"], "version", "os.");
        host.node = text(document, "hostName", "");
        host.architecture = text(document, "architecture", "");
        host.flushCommand = text(document, "dnsFlushCommand", "");
        if (document.contains("hardware")) {
            const Json& hardware = document["hardware"];
            onlyFields(hardware, "hardware", {"manufacturer", "productName", "version", "uuid", "serialNumber"});
            host.hardware = {
                optionalText(hardware, "manufacturer", "hardware."), optionalText(hardware, "productName", "hardware."),
                optionalText(hardware, "version", "hardware."), optionalText(hardware, "uuid", "hardware."),
                optionalText(hardware, "serialNumber", "hardware.")};
        }
        if (document.contains("processes")) {
            if (!document["processes"].is_array()) {
                throw FieldError("field 'processes' must be an array");
            }
            for (std::size_t i = 0; i < document["processes"].size(); ++i) {
                const Json& entry = document["processes"][i];
                std::string where = "processes[" + std::to_string(i) + "]";
                onlyFields(entry, where, {"pid", "name", "path"});
                if (!entry.contains("name")) {
                    throw FieldError("field '" + where + ".name' is missing");
                }
                tvpolicy::HostProbe::ProcessEntry process;
                if (entry.contains("pid")) {
                    if (!entry["pid"].is_number_integer()) {
                        throw FieldError("field '" + where + ".pid' must be an integer");
                    }
                    process.pid = entry["pid"].get<long>();
                }
                process.shortName = text(entry, "name", where + ".");
                process.executablePath = optionalText(entry, "path", where + ".");
                host.processes.push_back(process);
            }
        }
        if (document.contains("commands")) {
            if (!document["commands"].is_object()) {
                throw FieldError("field 'commands' must be an object of command: output");
            }
            for (const auto& [command, output] : document["commands"].items()) {
                host.commandOutputs[command] = text(document["commands"], command, "commands.");
            }
        }
        describePosture(document, host, described->posture_);
        std::string root;
        if (document.contains("root")) {
            std::filesystem::path folder = text(document, "root", "");
            if (folder.is_relative()) {
                folder = std::filesystem::path(path).parent_path() / folder;
            }
            std::error_code failure;
            if (!std::filesystem::is_directory(folder, failure)) {
                throw FieldError("field 'root': '" + folder.string() + "' is not a folder");
            }
            root = std::filesystem::absolute(folder).lexically_normal().string();
        } else {
            std::string pattern = (std::filesystem::temp_directory_path() / "tvpolicy-host.XXXXXX").string();
            std::vector<char> name(pattern.begin(), pattern.end());
            name.push_back('\0');
            if (::mkdtemp(name.data()) == nullptr) {
                throw FieldError("field 'root' is absent and no empty folder could be made to stand in for it");
            }
            root = described->emptyRoot_ = name.data();
        }
        if (root.empty() || root.back() != '/') {
            root += '/';
        }
        host.pathMap["/"] = root;
        host.pathMap[""] = root;  // a relative path, which would otherwise meet the working folder
    } catch (const FieldError& failure) {
        return Failure{path + ": " + failure.what()};
    } catch (const Json::exception& failure) {
        return Failure{path + ": not a host description: " + failure.what()};
    }
    return described;
}

DescribedHost::~DescribedHost()
{
    if (!emptyRoot_.empty()) {
        ::rmdir(emptyRoot_.c_str());
    }
}

}  // namespace tvpolicy::cli
