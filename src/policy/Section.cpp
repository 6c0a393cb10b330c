#include <tvpolicy/policy/Section.h>

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <mutex>
#include <utility>

#include <xercesc/framework/URLInputSource.hpp>
#include <xercesc/util/XMLException.hpp>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/host/Machine.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>
#include <tvpolicy/policy/TaskResponse.h>

#include "base/LogLine.h"
#include "policy/ParseGuard.h"
#include "policy/ParseMessages.h"
#include "policy/ProgressiveParse.h"
#include "policy/TaskSourceIndex.h"
#include "xml/LimitedFetch.h"
#include "xml/XmlPlatform.h"
#include "xml/XmlText.h"

using namespace xercesc;
using tvpolicy::policy::ParseGuard;
using tvpolicy::policy::TaskSourceIndex;

namespace {

bool isComposite(const XMLCh* element)
{
    using tvpolicy::xml::equalsAscii;
    return equalsAscii(element, "and") || equalsAscii(element, "or") || equalsAscii(element, "not");
}

bool isWebUrl(const std::string& url)
{
    auto startsWith = [&](const char* prefix) {
        std::string head = url.substr(0, std::char_traits<char>::length(prefix));
        for (char& c : head) {
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
        return head == prefix;
    };
    return startsWith("http://") || startsWith("https://");
}

}  // namespace

Section::Section() = default;

Section::Section(Policy* owner) : policy(owner) {}

Section::Section(std::string source) : url(std::move(source)) {}

Section::~Section()
{
    for (Task* task : tasks) {
        delete task;
    }
    // Composites still open when a parse stopped were never placed: each is deleted on its own.
    while (!taskStack.empty()) {
        delete taskStack.top();
        taskStack.pop();
    }
    for (TaskResponse* response : results) {
        delete response;
    }
}

void Section::setDocumentLocator(const Locator* locator)
{
    if (guard != nullptr) {
        guard->setLocator(locator);
    }
}

bool Section::refuse()
{
    SAXParseException refusal = guard->refusalError();
    if (policy != nullptr) {
        policy->fatalError(refusal);
    } else {
        fatalError(refusal);
    }
    return false;
}

void Section::startElement(const XMLCh*, const XMLCh* localname, const XMLCh* qname, const Attributes& attributes)
{
    if (guard != nullptr && !guard->enter(attributes)) {
        refuse();
        return;
    }
    bool fromQName = false;
    std::string element = tvpolicy::xml::elementName(localname, qname, fromQName);
    if (element == "help") {
        inHelp = true;
        return;
    }
    tvpolicy::SourceLocation where = guard != nullptr ? guard->location() : tvpolicy::SourceLocation{};
    std::string kind = element + "Task";
    Task* task = TaskFactory::createTask(kind);
    if (task == nullptr) {
        ignored.push_back({element, where});
        return;
    }
    TaskSourceIndex& index = sourceIndex();
    index.add(task, element, where);
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
        Task::Attribute attribute{
            tvpolicy::xml::elementName(attributes.getLocalName(i), attributes.getQName(i), fromQName),
            tvpolicy::xml::utf8(attributes.getValue(i))};
        task->setAttribute(&attribute);
        index.addAttribute(attribute.first, attribute.second, tvpolicy::TaskCatalog::reads(kind, attribute.first));
    }
    if (isComposite(tvpolicy::xml::elementNameText(localname, qname))) {
        taskStack.push(task);
    } else if (!taskStack.empty()) {
        taskStack.top()->addTerm(task);
    } else {
        addTask(task);
    }
}

void Section::endElement(const XMLCh*, const XMLCh* localname, const XMLCh* qname)
{
    if (!tvpolicy::policy::leaveElement(guard)) {
        return;
    }
    // Compared as the parser gives it: an end tag is only ever matched, never kept.
    const XMLCh* element = tvpolicy::xml::elementNameText(localname, qname);
    using tvpolicy::xml::equalsAscii;
    if (equalsAscii(element, "help")) {
        inHelp = false;
    } else if (isComposite(element) && !taskStack.empty()) {
        Task* done = taskStack.top();
        taskStack.pop();
        if (!taskStack.empty()) {
            taskStack.top()->addTerm(done);
        } else {
            addTask(done);
        }
    } else if (equalsAscii(element, "section")) {
        if (taskStack.empty()) {
            decltype(taskStack)().swap(taskStack);  // its room is not needed once the section is read
        }
        if (policy != nullptr && policy->reader != nullptr) {
            policy->reader->setContentHandler(policy);
        }
    }
}

void Section::characters(const XMLCh* chars, const XMLSize_t length)
{
    if (inHelp) {
        help += tvpolicy::xml::utf8(chars, length);
    }
}

void Section::warning(const SAXParseException& exception) { tvpolicy::policy::printParseNotice("warn", exception); }

void Section::error(const SAXParseException& exception) { tvpolicy::policy::printParseNotice("err", exception); }

namespace {

std::mutex readFailureMutex;
Section::ReadFailureHandler& readFailureHandler()
{
    static Section::ReadFailureHandler handler;
    return handler;
}

// The reader's words and position as one line for a person.
std::string describeFailure(const SAXParseException& exception)
{
    std::string reason = tvpolicy::xml::utf8(exception.getMessage());
    if (reason.empty()) {
        reason = "the section could not be read";
    }
    if (exception.getLineNumber() > 0) {
        reason += " at line " + std::to_string(exception.getLineNumber()) + ", column " +
                  std::to_string(exception.getColumnNumber());
    }
    return reason;
}

SAXParseException failureOf(const std::string& why)
{
    return SAXParseException(tvpolicy::xml::Utf16(why).get(), nullptr, nullptr, 0, 0);
}

}  // namespace

void Section::setReadFailureHandler(ReadFailureHandler handler)
{
    std::lock_guard<std::mutex> lock(readFailureMutex);
    readFailureHandler() = std::move(handler);
}

void Section::fatalError(const SAXParseException& exception)
{
    tvi::flushLogBatch();
    ReadFailureHandler handler;
    {
        std::lock_guard<std::mutex> lock(readFailureMutex);
        handler = readFailureHandler();
    }
    if (handler) {
        handler(url, describeFailure(exception));
    }
    // A section that cannot be read stops the agent.
    std::printf("fatal error, line %d\n", static_cast<int>(exception.getLineNumber()));
    std::printf("column: %d\n", static_cast<int>(exception.getColumnNumber()));
    Machine::showMessage(
        "", "Error reading section.  Please try again later.  If the problem persists, notify the helpdesk.", "");
    std::cout.flush();
    std::exit(1);
}

bool Section::isAllProhibited() { return false; }

const tvpolicy::TaskSource* Section::getTaskSource(const Task* task) const
{
    return sources ? sources->find(task) : nullptr;
}

TaskSourceIndex& Section::sourceIndex()
{
    if (!sources) {
        if (policy == nullptr) {
            sources = std::make_shared<TaskSourceIndex>();
        } else {
            if (!policy->taskSources) {
                policy->taskSources = std::make_shared<TaskSourceIndex>();
            }
            sources = policy->taskSources;
        }
    }
    return *sources;
}

std::string Section::getType() { return "Section"; }

void Section::addTask(Task* task)
{
    tasks.push_back(task);
    passed_ = false;
}

bool Section::isPrimary() const { return primary || Policy::getVersion() < 2; }

std::string Section::getHelp() const { return help.find("$KVI$") != std::string::npos ? std::string() : help; }

void Section::trace(const std::string& message)
{
    if (policy != nullptr) {
        policy->debug(message);
    } else {
        tvi::LogLine(std::clog) << message;
    }
}

bool Section::test()
{
    passed_ = true;
    trace("\tTesting " + name);
    bool skipRequested = false;
    for (Task* task : tasks) {
        TaskResponse* response = task->perform();
        if (response == nullptr) {
            response = new TaskResponse;  // a kind that answers nothing has not proved anything
        }
        skipRequested = skipRequested || response->skip;
        if (!response->passed) {
            passed_ = false;
        }
        trace("\t\t" + task->getType() + (response->passed ? " Passed " : " Failed"));
        trace("\t\t\tInfo: " + response->message);
        results.push_back(response);
    }
    status = passed_ ? 1 : (warning_ ? 5 : 2);
    if (skipRequested) {
        status = 0;
        trace("\t " + name + " results skipped due to skip attribute.");
        passed_ = false;
    } else if (prohibit && !passed_) {
        status = 4;
        trace("\t " + name + " failed, but prohibited, so we need to skip this.");
    } else if (prohibit) {
        status = warning_ ? 5 : 3;
        trace("\t " + name + " passed, but forced to failure due to prohibit=true.");
        passed_ = false;
    }
    trace("\t" + name + " status " + std::to_string(status));
    trace("\t" + name + (passed_ ? " passed" : " failed"));
    return passed_;
}

void Section::parse(SAX2XMLReader* reader)
{
    if (reader == nullptr) {
        return;
    }
    tvpolicy::xml::ensurePlatform();
    tvpolicy::xml::harden(*reader);
    ParseGuard bounds;
    guard = &bounds;
    reader->setContentHandler(this);
    reader->setErrorHandler(this);
    if (!isWebUrl(url)) {
        tvi::LogLine(std::cout) << "Section: only http and https addresses are read, not '" << url << "'";
        fatalError(failureOf("only http and https addresses are read"));
    }
    try {
        URLInputSource source(tvpolicy::xml::Utf16(url).get());
        tvpolicy::policy::parseProgressively(*reader, source, [&] { return bounds.refused(); });
    } catch (const XMLException& failure) {
        tvi::LogLine(std::cout) << "Section: cannot read '" << url
                                << "': " << tvpolicy::xml::utf8(failure.getMessage());
        // The reader's network error does not say why the fetch failed; the fetch does.
        std::string cause = tvpolicy::xml::takeLastFetchFailure();
        fatalError(cause.empty() ? SAXParseException(failure.getMessage(), nullptr, nullptr, 0, 0) : failureOf(cause));
    }
    guard = nullptr;
}

void Section::announce(const std::string& sectionName, const Section* section)
{
    if (policy != nullptr) {
        policy->announce(sectionName, section);
    }
}

void Section::countProgress()
{
    if (policy != nullptr) {
        ++policy->progress;
    }
}
