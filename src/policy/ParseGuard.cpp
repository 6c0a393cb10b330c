#include "policy/ParseGuard.h"

#include <xercesc/util/XMLString.hpp>

namespace tvpolicy::policy {

using namespace xercesc;

bool ParseGuard::enter(const Attributes& attributes)
{
    if (refused()) {
        return false;
    }
    ++depth_;
    if (depth_ > maxDepth) {
        refusal_ = "elements are nested deeper than " + std::to_string(maxDepth) + " levels";
    } else if (attributes.getLength() > maxAttributes) {
        refusal_ = "an element has more than " + std::to_string(maxAttributes) + " attributes";
    }
    return !refused();
}

void ParseGuard::leave()
{
    if (depth_ > 0) {
        --depth_;
    }
}

SourceLocation ParseGuard::location() const
{
    if (locator_ == nullptr) {
        return {};
    }
    return {static_cast<std::uint64_t>(locator_->getLineNumber()),
            static_cast<std::uint64_t>(locator_->getColumnNumber())};
}

SAXParseException ParseGuard::refusalError() const
{
    XMLCh* message = XMLString::transcode(refusal_.c_str());
    XMLFileLoc line = locator_ != nullptr ? locator_->getLineNumber() : 0;
    XMLFileLoc column = locator_ != nullptr ? locator_->getColumnNumber() : 0;
    SAXParseException error(message, nullptr, nullptr, line, column);
    XMLString::release(&message);
    return error;
}

}  // namespace tvpolicy::policy
