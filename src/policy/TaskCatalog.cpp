#include <tvpolicy/policy/TaskCatalog.h>

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

namespace tvpolicy {

namespace {

// Descriptions arrive from load-time initialisers of other units: the table is made on first use.
struct Catalog {
    std::mutex mutex;
    std::map<std::string, std::vector<std::string>> kinds;
};

Catalog& catalog()
{
    static Catalog table;
    return table;
}

}  // namespace

bool TaskCatalog::describe(const std::string& kind, std::vector<std::string> attributes)
{
    Catalog& table = catalog();
    std::lock_guard<std::mutex> lock(table.mutex);
    table.kinds[kind] = std::move(attributes);
    return true;
}

const std::vector<std::string>* TaskCatalog::attributesOf(const std::string& kind)
{
    Catalog& table = catalog();
    std::lock_guard<std::mutex> lock(table.mutex);
    auto found = table.kinds.find(kind);
    return found != table.kinds.end() ? &found->second : nullptr;
}

bool TaskCatalog::reads(const std::string& kind, const std::string& attribute)
{
    const std::vector<std::string>* names = attributesOf(kind);
    return names != nullptr && std::find(names->begin(), names->end(), attribute) != names->end();
}

}  // namespace tvpolicy
