#include "policy/DescribedHost.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <optional>
#include <stdexcept>
#include <vector>
#include <stdlib.h>
#include <unistd.h>

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
            throw FieldError("unknown field '" + (where.empty() ? name : where + "." + name) + "' (known: " + list + ")");
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

}  // namespace

std::unique_ptr<DescribedHost> DescribedHost::load(const std::string& path, std::string& error)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        error = "cannot read '" + path + "'";
        return nullptr;
    }
    std::unique_ptr<DescribedHost> described(new DescribedHost);
    tvpolicy::FakeHost& host = described->host_;
    try {
        Json document = Json::parse(in);
        onlyFields(document, "", {"os", "hostName", "architecture", "hardware", "processes", "commands", "root",
                                  "dnsFlushCommand"});
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
            host.hardware = {optionalText(hardware, "manufacturer", "hardware."),
                             optionalText(hardware, "productName", "hardware."),
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
        error = path + ": " + failure.what();
        return nullptr;
    } catch (const Json::exception& failure) {
        error = path + ": not a host description: " + failure.what();
        return nullptr;
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
