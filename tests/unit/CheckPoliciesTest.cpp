// The checks of files, application versions and antivirus definitions as a policy meets them:
// elements parsed into tasks by name, attributes passed through, outcomes and messages kept by
// their sections.
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/TaskResponse.h>

#include <gtest/gtest.h>

#include <ctime>
#include <iostream>

#include "support/CaptureStream.h"
#include "support/MappedHost.h"
#include "support/PolicyText.h"
#include "support/TempDir.h"

namespace {

using testing_support::CaptureStream;
using testing_support::TempDir;

std::string replaceAll(std::string text, const std::string& from, const std::string& to)
{
    for (std::string::size_type at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

// The local date of a file written now, as the file check reads it.
std::string today()
{
    std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[16];
    std::strftime(text, sizeof text, "%Y-%m-%d", &local);
    return text;
}

struct SectionOutcome {
    unsigned status;
    std::vector<std::string> messages;
};

class CheckPolicies : public testing::Test {
protected:
    CheckPolicies()
    {
        tmp.write("receipts/Agent.pkg/Contents/Resources/package_version", "Major: 4\nMinor: 2\n");
        tmp.write("dats/5200/avvscan.dat", "");
        tmp.write("dats/999/avvscan.dat", "");
        tmp.write("Applications/Avast.app/Contents/400.vps", std::string(241, ' ') + "15.03.2011");
        tmp.write("data/app/settings.ini", "[main]\n");
    }

    // Runs a policy whose text uses "@" for the test's folder; the outcome of every section by name.
    std::map<std::string, SectionOutcome> run(const std::string& body, bool& result)
    {
        auto parsed = testing_support::parsePolicy("<policy name=\"checks\">" +
                                                   replaceAll(body, "@", tmp.path().string()) + "</policy>");
        EXPECT_FALSE(parsed.policy->getFatalParseError()) << parsed.out;
        {
            CaptureStream log(std::clog);
            CaptureStream err(std::cerr);
            CaptureStream out(std::cout);
            result = parsed.policy->run();
        }
        std::map<std::string, SectionOutcome> outcomes;
        for (auto& [key, section] : parsed.policy->getSections()) {
            SectionOutcome& outcome = outcomes[section->getName()];
            outcome.status = section->getStatus();
            for (TaskResponse* response : section->getResults()) {
                outcome.messages.push_back(response->message);
            }
        }
        return outcomes;
    }

    testing_support::MappedHost mapped{
        {{"/Library/Receipts/", "receipts/"}, {"/usr/local/vscanx/dats", "dats"}, {"/Applications", "Applications"}}};
    const TempDir& tmp = mapped.tmp;
};

std::string section(const std::string& name, const std::string& checks)
{
    return "<section name=\"" + name + "\" primary=\"true\">" + checks + "</section>";
}

TEST_F(CheckPolicies, EveryKindRunsFromItsElement)
{
    // The described host answers the script; nothing runs on this machine.
    mapped.host.commandOutputs["echo 2.6.32"] = "2.6.32\n";
    bool result = false;
    auto outcomes =
        run(section("file", "<File fileName=\"settings.ini\" startPath=\"@/data\" lastModified=\"2000-1-1\"/>") +
                section("missing", "<File fileName=\"other.ini\" startPath=\"@/data\"/>") +
                section("old", "<File fileName=\"settings.ini\" startPath=\"@/data\" lastModified=\"2999-1-1\"/>") +
                section("version", "<File fileName=\"settings.ini\" startPath=\"@/data\" version=\"1.0\"/>") +
                section("script", "<VersionFromScript script=\"echo 2.6.32\" required=\"2.6\" delim=\".\"/>") +
                section("receipt",
                        "<VersionFromReceipt pkg=\"Agent.pkg\" required=\"4.2\" delim=\".\" operation=\"eq\"/>") +
                section("mcafee", "<McAfeeVirusScanVersion required=\"999\" operation=\"eq\"/>") +
                section("avast", "<AvastVersion required=\"2011-03-01\" delim=\"-\"/>") +
                section("no receipt", "<not><VersionFromReceipt pkg=\"Gone.pkg\" required=\"0\" delim=\".\"/></not>"),
            result);
    EXPECT_FALSE(result);
    const std::map<std::string, SectionOutcome> expected = {
        {"file", {1, {""}}},
        {"missing", {2, {"FileTask/File Not Found"}}},
        {"old", {2, {"FileTask/Too Old: " + today()}}},
        {"version", {2, {"FileTask/File Version: 0.0.0.0"}}},
        {"script", {1, {""}}},
        {"receipt", {1, {""}}},
        {"mcafee", {1, {""}}},
        {"avast", {1, {""}}},
        {"no receipt", {1, {"notTask/"}}},
    };
    for (const auto& [name, outcome] : expected) {
        ASSERT_EQ(outcomes.count(name), 1u) << name;
        EXPECT_EQ(outcomes[name].status, outcome.status) << name;
        EXPECT_EQ(outcomes[name].messages, outcome.messages) << name;
    }
}

}  // namespace
