#include "host/parse/InstalledApplications.h"

#include <map>
#include <string_view>

#include "host/parse/PropertyList.h"

namespace tvpolicy::parse {

namespace {

// One stanza of the status database: its fields by name (continuation lines are not needed).
using Stanza = std::map<std::string, std::string, std::less<>>;

std::string_view trimmed(std::string_view text)
{
    std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) {
        return {};
    }
    std::size_t last = text.find_last_not_of(" \t\r");
    return text.substr(first, last - first + 1);
}

template <typename Visit>
void forEachLine(const std::string& text, Visit&& visit)
{
    std::size_t position = 0;
    while (position < text.size()) {
        std::size_t end = text.find('\n', position);
        if (end == std::string::npos) {
            end = text.size();
        }
        visit(std::string_view(text.data() + position, end - position));
        position = end + 1;
    }
}

std::vector<Stanza> stanzasOf(const std::string& text)
{
    std::vector<Stanza> stanzas(1);
    forEachLine(text, [&stanzas](std::string_view line) {
        if (trimmed(line).empty()) {
            if (!stanzas.back().empty()) {
                stanzas.emplace_back();
            }
            return;
        }
        std::size_t colon = line.find(':');
        // A continuation line of a multi-line field starts with a blank.
        if (line.front() == ' ' || line.front() == '\t' || colon == std::string_view::npos) {
            return;
        }
        stanzas.back().emplace(std::string(trimmed(line.substr(0, colon))), std::string(trimmed(line.substr(colon + 1))));
    });
    return stanzas;
}

std::string field(const Stanza& stanza, std::string_view name)
{
    auto found = stanza.find(name);
    return found != stanza.end() ? found->second : std::string();
}

bool installed(const Stanza& stanza)
{
    // "want flag state": the state is the last word.
    std::string status = field(stanza, "Status");
    std::size_t blank = status.find_last_of(' ');
    std::string state = blank == std::string::npos ? status : status.substr(blank + 1);
    return !state.empty() && state != "not-installed" && state != "config-files";
}

std::size_t countOf(const PlistValue& array) { return array.items.size(); }

}  // namespace

std::vector<InstalledApplication> applicationsFromProfiler(const std::string& xml, std::ostream& out,
                                                           std::ostream& err)
{
    std::vector<InstalledApplication> applications;
    std::string error;
    std::optional<PlistValue> root = parsePropertyList(xml, error);
    if (!root) {
        err << error << '\n';
        return applications;
    }
    if (root->type != PlistValue::Type::Array) {
        return applications;
    }
    err << "It's an array!\n";
    out << "array count = " << countOf(*root) << '\n';
    for (const PlistValue& element : root->items) {
        if (element.type != PlistValue::Type::Dictionary || element.stringAt("_dataType") != "SPApplicationsDataType") {
            continue;
        }
        const PlistValue* items = element.find("_items");
        if (items == nullptr || items->type != PlistValue::Type::Array) {
            continue;
        }
        for (const PlistValue& item : items->items) {
            std::string name = item.stringAt("_name");
            if (!name.empty()) {
                applications.push_back({name, item.stringAt("version")});
            }
        }
        out << "items count = " << countOf(*items) << '\n';
    }
    out << "array count = " << countOf(*root) << '\n';
    out.flush();
    err.flush();
    return applications;
}

std::vector<InstalledApplication> packagesFromDpkgStatus(const std::string& status)
{
    std::vector<Stanza> stanzas = stanzasOf(status);
    std::string native;
    for (const Stanza& stanza : stanzas) {
        if (field(stanza, "Package") == "dpkg" && installed(stanza)) {
            native = field(stanza, "Architecture");
        }
    }
    std::vector<InstalledApplication> packages;
    for (const Stanza& stanza : stanzas) {
        std::string name = field(stanza, "Package");
        if (name.empty() || !installed(stanza)) {
            continue;
        }
        std::string architecture = field(stanza, "Architecture");
        bool foreign = !native.empty() && !architecture.empty() && architecture != native && architecture != "all";
        if (!architecture.empty() && (field(stanza, "Multi-Arch") == "same" || foreign)) {
            name += ":" + architecture;
        }
        packages.push_back({name, field(stanza, "Version"), field(stanza, "Status")});
    }
    return packages;
}

std::vector<InstalledApplication> packagesFromRpmQuery(const std::string& output)
{
    std::vector<InstalledApplication> packages;
    forEachLine(output, [&packages](std::string_view line) {
        std::size_t tab = line.find('\t');
        std::string_view name = trimmed(line.substr(0, tab));
        if (!name.empty()) {
            packages.push_back({std::string(name), tab == std::string_view::npos ? std::string()
                                                                                 : std::string(trimmed(line.substr(tab + 1)))});
        }
    });
    return packages;
}

}  // namespace tvpolicy::parse
