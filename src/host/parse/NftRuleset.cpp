#include "host/parse/NftRuleset.h"

#include <map>
#include <tuple>

#include <nlohmann/json.hpp>

namespace tvpolicy::parse {

namespace {

std::string text(const nlohmann::json& object, const char* key)
{
    auto found = object.find(key);
    return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

bool endsInDropOrReject(const nlohmann::json& rule)
{
    auto expressions = rule.find("expr");
    if (expressions == rule.end() || !expressions->is_array()) {
        return false;
    }
    for (const auto& statement : *expressions) {
        if (statement.is_object() && (statement.contains("drop") || statement.contains("reject"))) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool baseChainsFromNftJson(const std::string& json, std::vector<PostureProbe::FilterChain>& chains)
{
    chains.clear();
    nlohmann::json document = nlohmann::json::parse(json, nullptr, false);
    if (document.is_discarded() || !document.is_object()) {
        return false;
    }
    auto items = document.find("nftables");
    if (items == document.end() || !items->is_array()) {
        return false;
    }
    using ChainKey = std::tuple<std::string, std::string, std::string>;
    std::map<ChainKey, std::size_t> baseChains;
    for (const auto& item : *items) {
        if (!item.is_object()) {
            continue;
        }
        auto chain = item.find("chain");
        if (chain != item.end() && chain->is_object() && !text(*chain, "hook").empty()) {
            PostureProbe::FilterChain found;
            found.family = text(*chain, "family");
            found.table = text(*chain, "table");
            found.name = text(*chain, "name");
            found.hook = text(*chain, "hook");
            found.policy = text(*chain, "policy");
            baseChains[{found.family, found.table, found.name}] = chains.size();
            chains.push_back(found);
            continue;
        }
        auto rule = item.find("rule");
        if (rule != item.end() && rule->is_object() && endsInDropOrReject(*rule)) {
            auto owner = baseChains.find({text(*rule, "family"), text(*rule, "table"), text(*rule, "chain")});
            if (owner != baseChains.end()) {
                chains[owner->second].dropsOrRejects = true;
            }
        }
    }
    return true;
}

}  // namespace tvpolicy::parse
