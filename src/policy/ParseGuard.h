#pragma once

#include <string>

#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/Attributes.hpp>

#include <tvpolicy/policy/TaskSource.h>

namespace tvpolicy::policy {

/// Bounds what one policy or section document may build, shared by the handlers that take the
/// reader's events in turn. Task trees are performed by recursion, so their nesting must stay
/// within what the stack holds; a document nested deeper, or an element with an absurd number
/// of attributes, is refused with a fatal error and its parse ends there.
class ParseGuard {
public:
    static constexpr unsigned maxDepth = 1000;
    static constexpr XMLSize_t maxAttributes = 256;

    /// Counts an element's start; false (and refused from then on) when it breaks a bound.
    bool enter(const xercesc::Attributes& attributes);
    /// Counts an element's end.
    void leave();

    bool refused() const { return !refusal_.empty(); }
    /// The fatal error that reports the refusal, at the reader's position.
    xercesc::SAXParseException refusalError() const;

    void setLocator(const xercesc::Locator* locator) { locator_ = locator; }
    /// Where the reader stands now; zeros without a locator.
    SourceLocation location() const;

private:
    unsigned depth_ = 0;
    std::string refusal_;
    const xercesc::Locator* locator_ = nullptr;
};

/// Counts an element's end on `guard`, when there is one; false once the document was refused
/// (the handler then ignores the event).
inline bool leaveElement(ParseGuard* guard)
{
    if (guard == nullptr) {
        return true;
    }
    if (guard->refused()) {
        return false;
    }
    guard->leave();
    return true;
}

}  // namespace tvpolicy::policy
