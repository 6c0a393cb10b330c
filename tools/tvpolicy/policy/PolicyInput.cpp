#include "policy/PolicyInput.h"

#include <algorithm>

namespace tvpolicy::cli {

namespace {

std::string withoutCarriageReturns(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
}

// The cause of a failed parse in a person's words.
std::string causeOf(const Policy& policy, const std::string& text)
{
    if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
        return text.empty() ? "is empty" : "holds only white space";
    }
    std::string reason = policy.getFatalErrorReason().empty() ? "no element" : policy.getFatalErrorReason();
    const tvpolicy::SourceLocation& where = policy.getFatalErrorLocation();
    std::string cause = "not XML: " + reason;
    if (where.line > 0) {
        cause += " at line " + std::to_string(where.line) + ", column " + std::to_string(where.column);
    }
    return cause;
}

}  // namespace

std::string sourceName(const std::string& source) { return source == "-" ? "standard input" : source; }

std::unique_ptr<Policy> readPolicy(const std::string& source, std::size_t maxBytes, const std::string& command,
                                   Console& console, std::string& bytes)
{
    const std::string prefix = "tvpolicy " + command + ": ";
    DocumentRead input = readDocument(source, maxBytes);
    if (!input.ok && !input.directory) {
        console.err() << prefix << input.error << '\n';
        return nullptr;
    }
    std::unique_ptr<Policy> policy(Policy::parseFromString(input.text, true));
    if (policy->getFatalParseError()) {
        console.err() << prefix << withoutCarriageReturns(policy->getFatalErrorMsg()) << '\n'
                      << prefix << sourceName(source) << ": "
                      << (input.directory ? "is a directory" : causeOf(*policy, input.text)) << '\n';
        return nullptr;
    }
    if (policy->getRootElement() != "policy") {
        console.err() << prefix << sourceName(source) << " is not a policy: its root element is <"
                      << policy->getRootElement() << ">, a policy's is <policy>\n";
        return nullptr;
    }
    bytes = std::move(input.text);
    return policy;
}

}  // namespace tvpolicy::cli
