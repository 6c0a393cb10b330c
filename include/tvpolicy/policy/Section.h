#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <stack>
#include <string>
#include <vector>

#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/TaskSource.h>

class Policy;
class Task;
class TaskResponse;

namespace tvpolicy::policy {
class ParseGuard;
class TaskSourceIndex;
}  // namespace tvpolicy::policy

/// One named compliance check of a policy: task trees that must all pass, and the attributes
/// that say how the outcome counts. While a policy is parsed the section takes the reader's
/// events from its own start tag to its end tag and builds its task trees; a section built from
/// a URL (an `include`) reads its content with parse().
///
/// Statuses set by test(): 0 skipped, 1 passed, 2 failed, 3 passed but prohibited, 4 failed and
/// prohibited (to be skipped), 5 warning.
class TVPOLICY_API Section : public xercesc::DefaultHandler {
public:
    Section();
    explicit Section(Policy* policy);
    explicit Section(std::string url);
    ~Section() override;
    Section(const Section&) = delete;
    Section& operator=(const Section&) = delete;

    void startElement(const XMLCh* uri, const XMLCh* localname, const XMLCh* qname,
                      const xercesc::Attributes& attributes) override;
    void endElement(const XMLCh* uri, const XMLCh* localname, const XMLCh* qname) override;
    void characters(const XMLCh* chars, const XMLSize_t length) override;
    void setDocumentLocator(const xercesc::Locator* locator) override;
    void warning(const xercesc::SAXParseException& exception) override;
    void error(const xercesc::SAXParseException& exception) override;
    /// Reports where the section could not be read and ends the process with status 1 (after
    /// calling the read-failure handler, when one is set).
    void fatalError(const xercesc::SAXParseException& exception) override;

    /// Learns why a section could not be read: its address and the reason in words. It runs
    /// before the process ends with status 1, so an embedder that wants another ending (its
    /// own exit status, a message of its own) ends the process inside it; a handler that
    /// returns leaves the default ending. One handler for the process; an empty one restores
    /// the default.
    using ReadFailureHandler = std::function<void(const std::string& url, const std::string& reason)>;
    static void setReadFailureHandler(ReadFailureHandler handler);

    /// False for a section; an option answers whether all its grouped primaries are prohibited.
    virtual bool isAllProhibited();
    /// Performs every task tree (all of them, also after a failure) and sets the status.
    virtual bool test();
    /// Reads the section's content from its URL (http or https only, within the fetch limits)
    /// with `reader`, which is hardened first.
    virtual void parse(xercesc::SAX2XMLReader* reader);
    virtual std::string getType();

    /// Appends a task tree (owned from now on).
    void addTask(Task* task);
    bool passed() const { return passed_; }
    std::uint32_t getStatus() const { return status; }
    /// Status 0 or 4.
    bool isSkipped() const { return status == 0 || status == 4; }
    /// One response per task and per test(), in order; owned by the section.
    std::list<TaskResponse*>& getResults() { return results; }
    const std::list<Task*>& getTasks() const { return tasks; }
    /// The help text, or "" when it holds the marker "$KVI$".
    std::string getHelp() const;
    bool isPrimary() const;

    const std::string& getUrl() const { return url; }
    void setInstructionsUrl(std::string value) { instructionsUrl = std::move(value); }
    const std::string& getInstructionsUrl() const { return instructionsUrl; }
    void setGroup(std::string value) { group = std::move(value); }
    const std::string& getGroup() const { return group; }
    void setProhibit(bool value) { prohibit = value; }
    bool isProhibited() const { return prohibit; }
    void setCustomScan(bool value) { customScan = value; }
    bool isCustomScan() const { return customScan; }
    void setWarning(bool value) { warning_ = value; }
    bool isWarning() const { return warning_; }
    void setPrimary(bool value) { primary = value; }
    void setName(std::string value) { name = std::move(value); }
    const std::string& getName() const { return name; }

    /// Where the section's start tag stands in the policy (for an included section: where its
    /// content begins); line 0 for a section made in code.
    const tvpolicy::SourceLocation& getLocation() const { return location; }
    void setLocation(tvpolicy::SourceLocation value) { location = value; }
    /// How the document wrote `task`, one of this section's task trees or a term nested in one;
    /// null for a task added in code.
    const tvpolicy::TaskSource* getTaskSource(const Task* task) const;
    /// The elements of the section that name no check kind, in document order. The parse
    /// passes over each (elements inside one are read as if it were not there), so none has a
    /// part in the section's outcome.
    const std::vector<tvpolicy::IgnoredElement>& getIgnoredElements() const { return ignored; }

protected:
    /// A trace line through the owning policy's debug, or the plain log without a policy.
    void trace(const std::string& message);
    /// Announces a starting section on the owning policy's signal ("" for one passed over).
    void announce(const std::string& sectionName, const Section* section);
    /// Counts one section on the owning policy's progress.
    void countProgress();

    std::list<Task*> tasks;
    std::list<TaskResponse*> results;
    std::string url;
    std::stack<Task*, std::vector<Task*>> taskStack;
    bool passed_ = true;
    std::string instructionsUrl;
    Policy* policy = nullptr;
    std::string group;
    bool prohibit = false;
    bool customScan = false;
    bool warning_ = false;
    bool primary = false;
    std::string name;
    std::uint32_t status = 0;
    bool inHelp = false;
    std::string help;

private:
    friend class Policy;
    bool refuse();
    /// Where the checks' sources are recorded: the owning policy's index, or one of the
    /// section's own without a policy; made with the first check.
    tvpolicy::policy::TaskSourceIndex& sourceIndex();

    tvpolicy::policy::ParseGuard* guard = nullptr;  // bounds of the document being read
    tvpolicy::SourceLocation location;
    std::shared_ptr<tvpolicy::policy::TaskSourceIndex> sources;  // the policy's, or this section's own
    std::vector<tvpolicy::IgnoredElement> ignored;
};
