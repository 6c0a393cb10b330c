#pragma once

#include <list>
#include <map>
#include <memory>
#include <string>

#include <tvpolicy/agent/LoginField.h>
#include <tvpolicy/export.h>

namespace com::torvane {

/// The agent's configuration as the server sends it: where to log in and scan, the texts of
/// the agent's screens, which screens to show, and the login form's fields. Every element is
/// looked up in the agent schema namespace anywhere in the document:
///
///     <config xmlns="urn:torvane:agent:1"><loginUrl>..</loginUrl><showIntro>false</showIntro>
///       <field name="user"><label>User</label><type>TEXT</type></field> ...</config>
class TVPOLICY_API AgentConfigXML {
public:
    /// The defaults: empty texts and flags false, except sjLoginTitle, sjLoginMessage,
    /// showIntro and showFinished.
    AgentConfigXML();
    /// A copy of every text and flag; the fields are shared with `other`, not copied.
    explicit AgentConfigXML(const AgentConfigXML* other);
    /// Copies nothing: the result has empty texts, flags false and no fields. Kept so on purpose;
    /// use the pointer constructor for a copy.
    explicit AgentConfigXML(std::shared_ptr<AgentConfigXML> other);
    virtual ~AgentConfigXML() = default;

    /// Reads a configuration; always returns an object. Problems are logged, and what the
    /// document does not say keeps its default.
    static std::shared_ptr<AgentConfigXML> parse(std::string xmlText);

    /// The field of that exact name, or empty (the map is not changed).
    std::shared_ptr<LoginField> getField(std::string name);

    /// Fields by name: a later field of the same name replaces an earlier one here.
    std::map<std::string, std::shared_ptr<LoginField>> fields;
    /// Every field, in document order.
    std::list<std::shared_ptr<LoginField>> fieldList;
    std::string loginUrl;
    std::string message;
    std::string submitText;
    /// The credentials the person entered last, for the agent programs to keep with the
    /// configuration; no document fills them.
    std::string username;
    std::string password;
    bool loginRequired = false;
    std::string scanUrl;
    std::string uid;
    bool showPassedTests = false;
    std::string rescanText;
    std::string cancelText;
    std::string finishText;
    std::string resultsText;
    std::string successText;
    bool showSuccess = false;
    std::string sjLoginTitle;
    std::string sjLoginMessage;
    std::string connTestURL;
    bool showIntro = false;
    bool showFinished = false;
};

}  // namespace com::torvane
