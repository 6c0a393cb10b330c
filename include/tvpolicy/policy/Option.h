#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/Section.h>

/// Alternative ways to comply: the option's sections form groups of one primary and any number
/// of secondaries, and the option passes when a group passes. With the logic type 2 ("ONLY"),
/// it fails when more than one group counts as passed.
class TVPOLICY_API Option : public Section {
public:
    explicit Option(Policy* policy);
    ~Option() override;

    /// Stores (or replaces) a section under `key`; the option owns it.
    void addSection(const std::string& key, Section* section);
    std::map<std::string, Section*>& getSections() { return sections; }

    /// Reads every section built from a URL, in key order.
    void parse(xercesc::SAX2XMLReader* reader) override;
    bool test() override;
    std::string getType() override;
    bool isAllProhibited() override;

    /// True without sections; otherwise false as soon as a section passed or has status 5.
    bool allFailed();
    bool groupPartiallyPassed(const std::string& group) const;
    /// "ONLY" makes the logic type 2; any other text leaves it as it is.
    void setLogicalType(const std::string& type);
    std::int16_t getLogicType() const { return logicType; }
    const std::string& getPreferred() const { return preferred; }
    void setPreferred(std::string value) { preferred = std::move(value); }
    const std::string& getPrimaryGroup() const { return primaryGroup; }

private:
    void testGroup(const std::string& key, Section& primarySection,
                   const std::vector<std::pair<std::string, Section*>>& secondaries, int& warnings, bool& allSkipped);
    void countOnlyOneGroups(bool& result);

    std::map<std::string, Section*> sections;
    std::int16_t logicType = 1;
    std::map<std::string, bool> groupPassed;
    std::map<std::string, bool> groupPartially;
    std::string primaryGroup;
    std::string preferred;
    bool allProhibited = true;
    std::unordered_set<Section*> owned;
};
