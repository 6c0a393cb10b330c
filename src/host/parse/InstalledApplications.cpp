#include "host/parse/InstalledApplications.h"

#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "host/parse/PropertyList.h"

namespace tvpolicy::parse {

namespace {

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

// One stanza of the status database: the fields read here, as views into the text (the first
// of a repeated field counts), and how many fields it has in all, so that a stanza of other
// fields only still ends at its blank line. A database of a thousand packages is a megabyte of
// mostly descriptions, so nothing else is copied.
struct Stanza {
    enum Field { Package, Status, Architecture, MultiArch, Version, Count };
    std::array<std::optional<std::string_view>, Count> values;
    std::size_t fields = 0;

    std::string_view operator[](Field name) const { return values[name].value_or(std::string_view()); }
};

std::optional<Stanza::Field> fieldNamed(std::string_view name)
{
    static constexpr std::array<std::pair<std::string_view, Stanza::Field>, Stanza::Count> names = {{
        {"Package", Stanza::Package},
        {"Status", Stanza::Status},
        {"Architecture", Stanza::Architecture},
        {"Multi-Arch", Stanza::MultiArch},
        {"Version", Stanza::Version},
    }};
    for (const auto& [text, field] : names) {
        if (text == name) {
            return field;
        }
    }
    return std::nullopt;
}

std::vector<Stanza> stanzasOf(const std::string& text)
{
    std::vector<Stanza> stanzas(1);
    forEachLine(text, [&stanzas](std::string_view line) {
        if (trimmed(line).empty()) {
            if (stanzas.back().fields != 0) {
                stanzas.emplace_back();
            }
            return;
        }
        std::size_t colon = line.find(':');
        // A continuation line of a multi-line field starts with a blank.
        if (line.front() == ' ' || line.front() == '\t' || colon == std::string_view::npos) {
            return;
        }
        Stanza& stanza = stanzas.back();
        ++stanza.fields;
        std::optional<Stanza::Field> field = fieldNamed(trimmed(line.substr(0, colon)));
        if (field && !stanza.values[*field]) {
            stanza.values[*field] = trimmed(line.substr(colon + 1));
        }
    });
    return stanzas;
}

bool installed(const Stanza& stanza)
{
    // "want flag state": the state is the last word.
    std::string_view status = stanza[Stanza::Status];
    std::size_t blank = status.find_last_of(' ');
    std::string_view state = blank == std::string_view::npos ? status : status.substr(blank + 1);
    return !state.empty() && state != "not-installed" && state != "config-files";
}

std::size_t countOf(const PlistValue& array) { return array.items.size(); }

}  // namespace

std::vector<InstalledApplication> applicationsFromProfiler(const std::string& xml, std::ostream& out, std::ostream& err)
{
    std::vector<InstalledApplication> applications;
    Result<PlistValue> root = parsePropertyList(xml);
    if (!root) {
        err << root.error() << '\n';
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
    std::string_view native;
    for (const Stanza& stanza : stanzas) {
        if (stanza[Stanza::Package] == "dpkg" && installed(stanza)) {
            native = stanza[Stanza::Architecture];
        }
    }
    std::vector<InstalledApplication> packages;
    packages.reserve(stanzas.size());
    for (const Stanza& stanza : stanzas) {
        std::string name(stanza[Stanza::Package]);
        if (name.empty() || !installed(stanza)) {
            continue;
        }
        std::string_view architecture = stanza[Stanza::Architecture];
        bool foreign = !native.empty() && !architecture.empty() && architecture != native && architecture != "all";
        if (!architecture.empty() && (stanza[Stanza::MultiArch] == "same" || foreign)) {
            name.append(":").append(architecture);
        }
        packages.push_back({name, std::string(stanza[Stanza::Version]), std::string(stanza[Stanza::Status])});
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
            packages.push_back({std::string(name), tab == std::string_view::npos
                                                       ? std::string()
                                                       : std::string(trimmed(line.substr(tab + 1)))});
        }
    });
    return packages;
}

}  // namespace tvpolicy::parse
