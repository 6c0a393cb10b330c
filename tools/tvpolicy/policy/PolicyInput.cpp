#include "policy/PolicyInput.h"

#include <algorithm>
#include <cerrno>

#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>

#include <tvpolicy/policy/Section.h>

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

// The library's words about a document that did not parse, without its advice about network
// settings: the document was read, so that advice concerns nothing here.
std::string libraryMessage(const Policy& policy)
{
    std::string message = withoutCarriageReturns(policy.getFatalErrorMsg());
    return message.substr(0, message.find("\n\nPlease check your personal firewall"));
}

}  // namespace

std::string sourceName(const std::string& source) { return source == "-" ? "standard input" : source; }

std::unique_ptr<Policy> readPolicy(const std::string& source, std::size_t maxBytes, const std::string& command,
                                   Console& console, std::string& bytes, PolicyReadFailure* failure)
{
    DocumentRead input = readDocument(source, maxBytes);
    // The policy reader has a limit of its own, which --max-size cannot raise: said as such, not
    // as a document that is not XML.
    constexpr std::size_t readerLimit = std::size_t{16} << 20;
    if (input && input->size() > readerLimit) {
        std::string cause = "cannot read " + (source == "-" ? std::string("standard input") : "'" + source + "'") +
                            ": it is " + std::to_string(input->size()) +
                            " bytes, more than the 16 MB a policy may have (the policy reader's own limit, which "
                            "--max-size cannot raise)";
        console.err() << "tvpolicy " << command << ": " << cause << '\n';
        if (failure != nullptr) {
            failure->cause = cause;
        }
        return nullptr;
    }
    return parsePolicy(std::move(input), source, command, console, bytes, failure);
}

std::unique_ptr<Policy> parsePolicy(DocumentRead input, const std::string& source, const std::string& command,
                                    Console& console, std::string& bytes, PolicyReadFailure* failure)
{
    const std::string prefix = "tvpolicy " + command + ": ";
    const bool directory = input.code() == EISDIR;
    if (!input && !directory) {
        console.err() << prefix << input.error() << '\n';
        if (failure != nullptr) {
            failure->cause = input.error();
        }
        return nullptr;
    }
    std::string error;
    std::string fullMessage;
    std::unique_ptr<Policy> policy;
    if (directory) {
        std::unique_ptr<Policy> empty(Policy::parseFromString(std::string(), true));
        error = sourceName(source) + ": is a directory\n" + libraryMessage(*empty);
        fullMessage = empty->getFatalErrorMsg();
    } else if (Result<std::unique_ptr<Policy>> parsed = parsePolicy(*input, sourceName(source), &fullMessage)) {
        policy = std::move(parsed).value();
    } else {
        error = parsed.error();
    }
    if (!policy) {
        // The cause is a line of its own; the library's message after it keeps its own line breaks.
        const std::size_t first = error.find('\n');
        if (failure != nullptr) {
            failure->cause = error.substr(0, first);
            failure->libraryMessage = fullMessage;
        }
        console.err() << prefix << error.substr(0, first) << '\n';
        if (first != std::string::npos) {
            console.err() << prefix << error.substr(first + 1) << '\n';
        }
        return nullptr;
    }
    bytes = std::move(input).value();
    return policy;
}

Result<std::unique_ptr<Policy>> parsePolicy(const std::string& text, const std::string& name, std::string* fullMessage)
{
    std::unique_ptr<Policy> policy(Policy::parseFromString(text, true));
    if (policy->getFatalParseError()) {
        if (fullMessage != nullptr) {
            *fullMessage = policy->getFatalErrorMsg();
        }
        return Failure{name + ": " + causeOf(*policy, text) + '\n' + libraryMessage(*policy)};
    }
    if (policy->getRootElement() != "policy") {
        return Failure{name + " is not a policy: its root element is <" + policy->getRootElement() +
                       ">, a policy's is <policy>"};
    }
    return policy;
}

void readIncludes(Policy& policy, Console& console, bool quiet)
{
    std::unique_ptr<xercesc::SAX2XMLReader> reader;
    for (auto& [key, item] : policy.getSections()) {
        bool option = item->getType() == "Option";
        if (!option && item->getUrl().empty()) {
            continue;
        }
        if (!reader) {
            reader.reset(xercesc::XMLReaderFactory::createXMLReader());
        }
        if (!option && !quiet) {
            console.err() << "reading included section '" << key << "' from " << item->getUrl() << '\n' << std::flush;
        }
        item->parse(reader.get());
    }
}

}  // namespace tvpolicy::cli
