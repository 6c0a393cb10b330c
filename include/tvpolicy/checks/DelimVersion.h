#pragma once

#include <string>

#include <tvpolicy/export.h>

/// Compares a version found on the computer (the "system" version) with the version a policy
/// asks for (the "requested" version) under one operator: "gt", "gte", "eq", "lte" or "lt".
///
/// Both versions are split into words at any character of a delimiter set and compared word by
/// word, from the left, as integers (each word's leading number, or 0). The operators are not
/// textbook version ordering and differ on purpose:
///  - "gte", "eq" and "lte" look only at the common prefix of the two word lists;
///  - "gt" breaks a tie at the end of the system words, "lt" at the end of the requested words.
/// An empty or delimiter-only version compares false; so does an operator code outside 0..4.
class TVPOLICY_API DelimVersion {
public:
    enum Operator : short { gt = 0, gte = 1, eq = 2, lte = 3, lt = 4 };

    /// Takes the operator code as is (an out-of-range code makes every comparison false).
    explicit DelimVersion(short op);
    /// Takes the operator's text through parseCmpOper.
    explicit DelimVersion(std::string op);

    /// "gt" 0, "gte" 1, "eq" 2, "lte" 3, "lt" 4, exactly and case-sensitively; any other text
    /// means "gte" (1).
    static short parseCmpOper(std::string& op);

    /// When set, the system version keeps only its ASCII digits and delimiter characters
    /// before it is compared (the requested version is never touched).
    void setNormalize(bool normalize);

    /// Whether `system` satisfies `requested` under the operator; `delim` is a set of
    /// delimiter characters.
    bool versionAtLeast(std::string requested, std::string delim, std::string system);

    /// The same comparison after rearranging the system version's words: `order` holds word
    /// indexes separated by white space ("2 1 0" turns 3.2.1 into 1.2.3). An order naming a
    /// word the version lacks leaves the version as it is.
    bool versionAtLeastReorder(std::string requested, std::string delim, std::string system, std::string order);

    /// Registry-based lookups do not exist on this platform: always false.
    bool versionAtLeastFromRegistry(std::string, std::string, std::string, std::string, std::string, std::string);

private:
    std::string comparisonText(const std::string& system, const std::string& delim) const;
    bool compare(std::string& requested, std::string& delim, std::string& comparison, const std::string& system) const;

    short cmpOper_;
    bool normalize_ = false;
};
