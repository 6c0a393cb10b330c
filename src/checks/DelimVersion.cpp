#include <tvpolicy/checks/DelimVersion.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <vector>

#include <tvpolicy/base/Utilities.h>

namespace {

const char* text(bool value) { return value ? "true" : "false"; }

// The value of a word: its leading number as atol reads it (white space, a sign, digits), or 0.
long long wordValue(const std::string& word) { return std::strtoll(word.c_str(), nullptr, 10); }

// The log is written through debug(); when its stream discards everything (no buffer, or
// failed), the lines are not even put together.
bool tracing() { return std::clog.good() && std::clog.rdbuf() != nullptr; }

void trace(const std::string& message) { debug(message, "DelimVersion"); }

// The indexes of an order text, read by formatted extraction. An extraction that fails at the
// end of the text (a trailing blank) leaves the last value in place, which is then taken again.
std::vector<unsigned> readOrder(const std::string& order, unsigned& maximum)
{
    std::vector<unsigned> values;
    std::istringstream stream(order);
    unsigned value = 0;
    maximum = 0;
    for (;;) {
        stream >> value;
        if (stream.fail() && !stream.eof()) {
            break;
        }
        values.push_back(value);
        maximum = std::max(maximum, value);
        if (stream.eof()) {
            break;
        }
    }
    return values;
}

}  // namespace

DelimVersion::DelimVersion(short op) : cmpOper_(op) {}

DelimVersion::DelimVersion(std::string op) : cmpOper_(parseCmpOper(op)) {}

short DelimVersion::parseCmpOper(std::string& op)
{
    static const char* const names[] = {"gt", "gte", "eq", "lte", "lt"};
    for (short code = gt; code <= lt; ++code) {
        if (op == names[code]) {
            return code;
        }
    }
    return gte;
}

void DelimVersion::setNormalize(bool normalize) { normalize_ = normalize; }

std::string DelimVersion::comparisonText(const std::string& system, const std::string& delim) const
{
    if (!normalize_) {
        return system;
    }
    std::string kept;
    kept.reserve(system.size());
    for (char c : system) {
        if ((c >= '0' && c <= '9') || delim.find(c) != std::string::npos) {
            kept += c;
        }
    }
    return kept;
}

bool DelimVersion::versionAtLeast(std::string requested, std::string delim, std::string system)
{
    std::string comparison = comparisonText(system, delim);
    return compare(requested, delim, comparison, system);
}

bool DelimVersion::versionAtLeastReorder(std::string requested, std::string delim, std::string system,
                                         std::string order)
{
    std::string comparison = comparisonText(system, delim);
    if (!order.empty()) {
        unsigned maximum = 0;
        std::vector<unsigned> indexes = readOrder(order, maximum);
        std::vector<std::string> words;
        split(system, delim, words);
        trace("Words.size() = " + std::to_string(words.size()) + " max = " + std::to_string(maximum) +
              "\nordr size = " + std::to_string(indexes.size()));
        if (words.size() <= maximum) {
            trace("Words.size() not > max???");
        } else {
            std::string reordered;
            for (unsigned index : indexes) {
                reordered += words[index];
                reordered += delim;
            }
            system = reordered;
            comparison = reordered;
        }
    }
    trace(comparison);
    return compare(requested, delim, comparison, system);
}

bool DelimVersion::versionAtLeastFromRegistry(std::string, std::string, std::string, std::string, std::string,
                                              std::string)
{
    return false;
}

bool DelimVersion::compare(std::string& requested, std::string& delim, std::string& comparison,
                           const std::string& system) const
{
    std::vector<std::string> requestedWords;
    std::vector<std::string> systemWords;
    split(requested, delim, requestedWords);
    split(comparison, delim, systemWords);

    bool retval = false;
    if (!requestedWords.empty() && !systemWords.empty() && cmpOper_ >= gt && cmpOper_ <= lt) {
        for (std::size_t i = 0;;) {
            const long long r = wordValue(requestedWords[i]);
            const long long s = wordValue(systemWords[i]);
            bool done = false;
            switch (cmpOper_) {
            case gt:
                if (s != r) {
                    retval = s > r;
                    done = true;
                } else if (i + 1 == systemWords.size()) {
                    trace("Last one");
                    retval = false;
                    done = true;
                } else {
                    retval = true;
                }
                if (tracing()) {
                    trace(std::string("done = ") + text(done) + " retval = " + text(retval));
                }
                break;
            case gte:
                retval = s >= r;
                done = s > r;
                break;
            case eq: retval = s == r; break;
            case lte:
                retval = s <= r;
                done = s < r;
                break;
            case lt:
                if (s != r) {
                    retval = s < r;
                    done = true;
                } else {
                    retval = i + 1 != requestedWords.size();
                }
                break;
            }
            if (done || !retval) {
                break;
            }
            ++i;
            if (i >= requestedWords.size() || i >= systemWords.size()) {
                break;
            }
        }
    }
    if (tracing()) {
        trace("DelimVersion.. Requested: " + requested + " System: " + system + " Delim: " + delim);
        trace(std::string("DelimVersion.. Returning: ") + text(retval));
    }
    return retval;
}
