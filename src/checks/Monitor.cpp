#include <tvpolicy/checks/Monitor.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <memory>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/DOMNodeList.hpp>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskFactory.h>
#include <tvpolicy/policy/TaskResponse.h>

#include "base/LogLine.h"
#include "xml/DomReader.h"
#include "xml/DomText.h"
#include "xml/ProblemLog.h"
#include "xml/XmlText.h"

namespace com::torvane::policy {

using namespace xercesc;
using tvpolicy::xml::utf8;

namespace {

tvpolicy::xml::DocumentPtr parseMonitorDocument(const std::string& text)
{
    tvpolicy::xml::LoggingErrorHandler errors;
    return tvpolicy::xml::parseDocument(text, {"loginfile", false}, errors);
}

/// A task of the kind that the element names (its name + "Task"), configured from the element's
/// attributes in order; null for anything that names no registered kind.
Task* createTaskFor(DOMNode* node)
{
    if (node->getNodeType() != DOMNode::ELEMENT_NODE) {
        return nullptr;
    }
    Task* task = TaskFactory::createTask(utf8(node->getNodeName()) + "Task");
    if (task == nullptr) {
        return nullptr;
    }
    if (DOMNamedNodeMap* attributes = node->getAttributes()) {
        for (XMLSize_t i = 0, count = attributes->getLength(); i < count; ++i) {
            DOMNode* attribute = attributes->item(i);
            Task::Attribute pair(utf8(attribute->getNodeName()), utf8(attribute->getNodeValue()));
            task->setAttribute(&pair);
        }
    }
    return task;
}

/// Whether `task` keeps the terms given to it. Only the composite kinds do; any other kind
/// ignores addTerm, so nothing is built below it.
bool keepsTerms(Task* task)
{
    const std::string type = task->getType();
    return type == "andTask" || type == "orTask" || type == "notTask";
}

std::timespec utcNow()
{
    using namespace std::chrono;
    auto micros = duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
    std::timespec now{};
    now.tv_sec = static_cast<std::time_t>(micros / 1000000);
    now.tv_nsec = static_cast<long>(micros % 1000000) * 1000;
    return now;
}

}  // namespace

void parseSubTasks(DOMNode* node, Task* parent)
{
    if (node == nullptr || parent == nullptr || !keepsTerms(parent)) {
        return;
    }
    for (DOMNode* child = node->getFirstChild(); child != nullptr; child = child->getNextSibling()) {
        Task* task = createTaskFor(child);
        if (task == nullptr) {
            continue;
        }
        parent->addTerm(task);
        parseSubTasks(child, task);
    }
}

Monitor::Monitor(std::string text) : xml(std::move(text))
{
    parse();
    nextRunTime = utcNow();
}

Monitor::Monitor(DOMNode* node)
{
    parse(node);
    nextRunTime = utcNow();
}

Monitor::~Monitor()
{
    for (Task* task : tasks) {
        delete task;
    }
}

void Monitor::readAttributes(DOMNode* node, bool withProhibit)
{
    static const XMLCh idName[] = u"id";
    static const XMLCh periodName[] = u"period";
    static const XMLCh prohibitName[] = u"prohibit";
    DOMNamedNodeMap* attributes = node->getAttributes();
    if (attributes == nullptr) {
        return;
    }
    for (XMLSize_t i = 0, count = attributes->getLength(); i < count; ++i) {
        DOMNode* attribute = attributes->item(i);
        const XMLCh* name = attribute->getNodeName();
        if (tvpolicy::xml::sameName(name, idName)) {
            id = utf8(attribute->getNodeValue());
        } else if (tvpolicy::xml::sameName(name, periodName)) {
            period = std::atol(utf8(attribute->getNodeValue()).c_str());
        } else if (withProhibit && tvpolicy::xml::sameName(name, prohibitName)) {
            prohibit = utf8(attribute->getNodeValue()) == "true";
        }
    }
}

void Monitor::readTasks(DOMNode* node, bool nested)
{
    for (DOMNode* child = node->getFirstChild(); child != nullptr; child = child->getNextSibling()) {
        Task* task = createTaskFor(child);
        if (task == nullptr) {
            continue;
        }
        tasks.push_back(task);
        if (nested) {
            parseSubTasks(child, task);
        }
    }
}

void Monitor::parse()
{
    tvpolicy::xml::DocumentPtr doc = parseMonitorDocument(xml);
    DOMElement* root = doc ? doc->getDocumentElement() : nullptr;
    if (root == nullptr) {
        return;
    }
    readAttributes(root, false);
    readTasks(root, false);
}

void Monitor::parse(DOMNode* node)
{
    if (node == nullptr) {
        return;
    }
    readAttributes(node, true);
    readTasks(node, true);
}

MonitorResponse* Monitor::perform()
{
    bool result = !tasks.empty();
    for (Task* task : tasks) {
        std::unique_ptr<TaskResponse> response(task->perform());
        if (!response || !response->passed) {
            result = false;
            break;
        }
    }
    nextRunTime = utcNow();
    // A period from a hostile document must not overflow the clock: it saturates instead.
    constexpr std::time_t latest = std::numeric_limits<std::time_t>::max();
    constexpr std::time_t earliest = std::numeric_limits<std::time_t>::min();
    if (period > 0 && nextRunTime.tv_sec > latest - period) {
        nextRunTime.tv_sec = latest;
    } else if (period < 0 && nextRunTime.tv_sec < earliest - period) {
        nextRunTime.tv_sec = earliest;
    } else {
        nextRunTime.tv_sec += static_cast<std::time_t>(period);
    }

    // With prohibit the outcome is inverted: a prohibited condition that is absent reports true.
    const char* status = result == prohibit ? "false" : "true";
    return new MonitorResponse("<monitor><id>" + id + "</id><status>" + status + "</status></monitor>");
}

void Monitor::addTask(Task* task) { tasks.push_back(task); }

std::list<Monitor*>* Monitor::parseMonitors(std::string xml)
{
    auto monitors = std::make_unique<std::list<Monitor*>>();
    tvpolicy::xml::DocumentPtr doc = parseMonitorDocument(xml);
    if (!doc || doc->getDocumentElement() == nullptr) {
        tvi::LogLine(std::cerr) << "No Doc???";
        return monitors.release();
    }
    static const XMLCh monitorName[] = u"Monitor";
    DOMNodeList* nodes = doc->getElementsByTagName(monitorName);
    for (XMLSize_t i = 0, count = nodes != nullptr ? nodes->getLength() : 0; i < count; ++i) {
        monitors->push_back(new Monitor(nodes->item(i)));
    }
    return monitors.release();
}

}  // namespace com::torvane::policy
