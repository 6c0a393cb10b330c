#pragma once

#include <list>
#include <memory>
#include <string>

#include <xercesc/dom/DOMNode.hpp>

#include <tvpolicy/agent/LoginFieldOption.h>
#include <tvpolicy/export.h>

namespace com::torvane {

/// One input of the agent's login form, as the configuration document describes it:
///
///     <field name="user"><label>User name</label><type>TEXT</type></field>
///     <field name="realm"><label>Realm</label><type>SELECT</type>
///       <option><name>Staff</name><value>staff</value></option> ...</field>
class TVPOLICY_API LoginField {
public:
    enum Type { TEXT = 0, PASSWORD = 1, SELECT = 2 };

    LoginField() = default;
    LoginField(std::string name, std::string label, Type type);
    virtual ~LoginField() = default;

    /// "TEXT", "PASSWORD" or "SELECT" (exactly, case-sensitively); any other word gives TEXT.
    /// Stores the type and returns it.
    Type setType(std::string word);

    /// A new field read from an element: attribute "name", children label, type and option
    /// (each with children name and value), matched by local name. Null gives an empty field.
    static std::shared_ptr<LoginField> parseNode(xercesc::DOMNode* element);
    /// A new field read from the document element of `xmlText`; empty when there is none.
    static std::shared_ptr<LoginField> parse(std::string xmlText);

    std::string getName() const { return name; }
    void setName(std::string value) { name = std::move(value); }
    std::string getLabel() const { return label; }
    void setLabel(std::string value) { label = std::move(value); }
    Type getType() const { return type; }
    void setType(Type value) { type = value; }
    const std::list<LoginFieldOption>& getOptions() const { return options; }
    void addOption(LoginFieldOption option) { options.push_back(std::move(option)); }

private:
    std::string name;
    std::string label;
    Type type = TEXT;
    std::list<LoginFieldOption> options;
};

}  // namespace com::torvane
