#pragma once

#include <cstdint>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>

#include <tvpolicy/base/Signal.h>
#include <tvpolicy/export.h>
#include <tvpolicy/policy/TaskSource.h>

class Option;
class Section;
class TaskResponse;

namespace tvpolicy::policy {
class ParseGuard;
class TaskSourceIndex;
}  // namespace tvpolicy::policy

/// A compliance policy: its options and sections (the top-level items, in key order), the
/// server addresses the agent reports to, a few switches and any further name/value pairs.
///
/// Built with parseFromString, evaluated with run. Item keys: "000" + name for an option,
/// the section count as "%.3d" + name for a stand-alone section (document order), the id
/// alone for an include outside any option.
class TVPOLICY_API Policy : public xercesc::DefaultHandler {
public:
    Policy(std::string policyUrl, xercesc::SAX2XMLReader* reader);
    ~Policy() override;
    Policy(const Policy&) = delete;
    Policy& operator=(const Policy&) = delete;

    static int getVersion() { return 2; }

    /// Parses `xml` into a new policy, owned by the caller also when the parse failed
    /// (getFatalParseError() then tells; with `showErrors` getFatalErrorMsg() says why). A text
    /// over 16 MB is refused unread, as a fatal error at line 1. UTF-16 and UTF-32 texts, with or
    /// without a byte-order mark, read as their UTF-8 twins do.
    static Policy* parseFromString(std::string xml, bool showErrors);
    /// Reading a policy from its own URL is not supported: splits the URL, reports the failure
    /// as a fatal parse error and returns false.
    bool parse();

    /// Evaluates every item, announcing each section as it starts; the overall result.
    bool run();
    bool getResult() const { return result; }
    std::uint32_t getProgress() const { return progress; }
    /// 1 per top-level section plus the number of sections of each option.
    std::uint32_t getProgressMax();

    /// Connects a slot for the announcements: each section's name as it starts, and "" at the
    /// end of a run (also for each secondary section whose evaluation is skipped).
    void connect(std::function<void(std::shared_ptr<std::string>)> slot);

    const std::string& getName() const { return name; }
    const std::string& getBaseUrl() const { return baseUrl; }
    void setBaseUrl(std::string url) { baseUrl = std::move(url); }
    const std::string& getPrimaryIP() const { return primaryIP; }
    const std::string& getExtraInformation() const { return extraInformation; }
    std::string getExtraInfo(const std::string& elementName) const;
    bool getFatalParseError() const { return fatalParseError; }
    const std::string& getFatalErrorMsg() const { return fatalErrorMsg; }
    /// The reader's own words for the fatal error (empty when it gave none or there was none)
    /// and where the reader stood (zeros when unknown). getFatalErrorMsg() stays the text for
    /// the person at the computer; these are for tools that say what is wrong with a document.
    const std::string& getFatalErrorReason() const { return fatalErrorReason; }
    const tvpolicy::SourceLocation& getFatalErrorLocation() const { return fatalErrorLocation; }
    /// The name of the document's outermost element ("policy" for a policy); empty when the
    /// parse met no element. A document of another kind is read all the same: this tells.
    const std::string& getRootElement() const { return rootElement; }
    /// While the slots of an announcement run: the section it is about, also for the empty
    /// announcement of a secondary section passed over; null for the announcement that ends a
    /// run and outside announcements.
    const Section* getAnnouncedSection() const { return announcedSection; }
    bool isAuditOnly() const { return auditOnly; }
    bool isRegisterFailedRogue() const { return registerFailedRogue; }
    bool isRenewIP() const { return renewIP; }
    bool isDebug() const { return debugFlag; }
    std::map<std::string, Section*>& getSections() { return items; }
    std::uint32_t getSectionCount() const { return sectionCount; }
    /// Number of sections per `group` value (the empty group included).
    const std::map<std::string, std::uint32_t>& getGroupCounts() const { return groupCounts; }

    std::string getSuccessUrl() const;
    std::string getFailureUrl() const;
    std::string getInitUrl() const;
    std::string getProgressUrl() const;
    std::string getResultsUrl() const;
    std::string getSupplicantUrl() const;

    /// Null for the empty key or one never stored.
    TaskResponse* getCachedResult(const std::string& key) const;
    /// Stores (not owned) under a non-empty key.
    void addCachedResult(const std::string& key, TaskResponse* response);

    /// A trace line: the timestamped log and, with the debug flag, the shared debug line and
    /// the debug file.
    void debug(std::string message);
    /// Turns the debug flag on for exactly "true" and opens the debug file under $temp.
    void setDebug(const char* text);

    void startElement(const XMLCh* uri, const XMLCh* localname, const XMLCh* qname,
                      const xercesc::Attributes& attributes) override;
    void endElement(const XMLCh* uri, const XMLCh* localname, const XMLCh* qname) override;
    void characters(const XMLCh* chars, const XMLSize_t length) override;
    void setDocumentLocator(const xercesc::Locator* locator) override;
    void warning(const xercesc::SAXParseException& exception) override;
    void error(const xercesc::SAXParseException& exception) override;
    void fatalError(const xercesc::SAXParseException& exception) override;

private:
    friend class Section;
    friend class Option;

    static Policy* refuseOversized(std::size_t size, bool showErrors);
    void announce(std::string sectionName, const Section* section = nullptr);
    void store(std::map<std::string, Section*>& into, const std::string& key, Section* item);
    std::string absolute(const std::string& url) const;
    void startOption(const xercesc::Attributes& attributes);
    void startInclude(const xercesc::Attributes& attributes);
    void startSection(const xercesc::Attributes& attributes);
    void runGroup(const std::string& key, Section& section,
                  const std::vector<std::pair<std::string, Section*>>& secondaries);

    std::string policyUrl;
    xercesc::SAX2XMLReader* reader;
    std::map<std::string, Section*> items;
    Option* currentOption = nullptr;
    std::string name;
    bool debugFlag = false;
    std::string baseUrl;
    std::string initUrl, progressUrl, successUrl, failureUrl, resultsUrl, supplicantUrl;
    std::string currentElement;
    std::string extraInformation;
    std::map<std::string, std::string> extraInfo;
    std::string primaryIP;
    std::map<std::string, TaskResponse*> cachedResults;
    std::map<std::string, std::uint32_t> groupCounts;
    std::uint32_t progress = 0;
    std::uint32_t sectionCount = 0;
    bool auditOnly = false;
    bool registerFailedRogue = false;
    bool renewIP = true;
    bool inInit = false, inProgress = false, inResults = false, inSuccess = false, inFailure = false,
         inSupplicant = false, inUrl = false;
    bool showErrors = false;
    bool fatalParseError = false;
    std::string fatalErrorMsg;
    std::string fatalErrorReason;
    tvpolicy::SourceLocation fatalErrorLocation;
    std::string rootElement;
    const Section* announcedSection = nullptr;
    // Where the checks of every section came from.
    std::shared_ptr<tvpolicy::policy::TaskSourceIndex> taskSources;
    std::ofstream debugFile;
    com::torvane::util::Signal<std::string> signal;
    bool result = false;

    // Everything the policy created, each once, in the order it was made; items may be replaced
    // under the same key.
    std::vector<Section*> owned;
    tvpolicy::policy::ParseGuard* guard = nullptr;
};
