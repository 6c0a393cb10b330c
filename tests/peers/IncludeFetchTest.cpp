#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>

#include <gtest/gtest.h>
#include <httplib.h>

#include <chrono>
#include <condition_variable>
#include <iostream>
#include <memory>
#include <mutex>
#include <thread>

#include <xercesc/sax2/XMLReaderFactory.hpp>

#include "support/CaptureStream.h"
#include "support/PolicyText.h"
#include "xml/LimitedFetch.h"
#include "xml/XmlPlatform.h"

namespace {

using tvpolicy::xml::FetchedDocument;
using tvpolicy::xml::FetchLimits;

const std::string sectionDocument = "<section><help>Keep it on.</help><Validate status=\"true\"/><false/></section>";

// A real HTTP server on a loopback port, with one path per way a fetch can go.
class SectionServer {
public:
    SectionServer()
    {
        server_.Get("/section.xml", [](const httplib::Request&, httplib::Response& res) {
            res.set_content(sectionDocument, "application/xml");
        });
        server_.Get("/missing.xml", [](const httplib::Request&, httplib::Response& res) {
            res.status = 404;
            res.set_content(sectionDocument, "application/xml");  // a valid body that must not be read
        });
        server_.Get("/moved.xml",
                    [](const httplib::Request&, httplib::Response& res) { res.set_redirect("/section.xml"); });
        server_.Get("/large.xml", [](const httplib::Request&, httplib::Response& res) {
            res.set_content("<section>" + std::string(2 << 20, ' ') + "</section>", "application/xml");
        });
        server_.Get("/stalled.xml", [this](const httplib::Request&, httplib::Response& res) {
            std::unique_lock<std::mutex> lock(mutex_);
            released_.wait_for(lock, std::chrono::seconds(20), [this] { return stopping_; });
            res.set_content(sectionDocument, "application/xml");
        });
        port_ = server_.bind_to_any_port("127.0.0.1");
        thread_ = std::thread([this] { server_.listen_after_bind(); });
        while (!server_.is_running()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }

    ~SectionServer()
    {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            stopping_ = true;
        }
        released_.notify_all();
        server_.stop();
        thread_.join();
    }

    std::string url(const std::string& path) const { return "http://127.0.0.1:" + std::to_string(port_) + path; }

private:
    httplib::Server server_;
    int port_ = 0;
    std::thread thread_;
    std::mutex mutex_;
    std::condition_variable released_;
    bool stopping_ = false;
};

FetchLimits testLimits()
{
    FetchLimits limits;
    limits.connectTimeoutMs = 2000;
    limits.totalTimeoutMs = 700;
    limits.maxBytes = 1 << 20;
    return limits;
}

struct FetchCase {
    std::string title;
    std::string path;  // on the test's server, or a whole address
    bool ok;
    long status;
    std::string error;  // the start of the reason
};

class FetchDocumentTest : public testing::TestWithParam<FetchCase> {};

TEST_P(FetchDocumentTest, KeepsWithinTheLimits)
{
    SectionServer server;
    const FetchCase& c = GetParam();
    tvpolicy::Result<FetchedDocument> result =
        tvpolicy::xml::fetchDocument(c.path[0] == '/' ? server.url(c.path) : c.path, testLimits());
    EXPECT_EQ(result.ok(), c.ok);
    EXPECT_EQ(result ? result->status : result.code(), c.status);
    EXPECT_EQ(result.error().substr(0, c.error.size()), c.error) << result.error();
    EXPECT_EQ(result ? result->body : "", c.ok ? sectionDocument : "");
}

INSTANTIATE_TEST_SUITE_P(
    Paths, FetchDocumentTest,
    testing::Values(FetchCase{"Found", "/section.xml", true, 200, ""},
                    FetchCase{"NotFound", "/missing.xml", false, 404, "the server answered with status 404"},
                    FetchCase{"RedirectNotFollowed", "/moved.xml", false, 302,
                              "the server answered with status 302, a redirect to http://127.0.0.1:"},
                    FetchCase{"Oversize", "/large.xml", false, 200, "the document is larger than 1048576 bytes"},
                    FetchCase{"Stalled", "/stalled.xml", false, 0,
                              "no complete answer within the time-out of 0.7 s (Operation timed out"},
                    FetchCase{"NothingListening", "http://127.0.0.1:1/x.xml", false, 0, ""},
                    // Web addresses only.
                    FetchCase{"FileScheme", "file:///etc/hostname", false, 0, ""},
                    FetchCase{"FtpScheme", "ftp://127.0.0.1/x", false, 0, ""},
                    FetchCase{"GopherScheme", "gopher://127.0.0.1/", false, 0, ""}),
    [](const testing::TestParamInfo<FetchCase>& testCase) { return testCase.param.title; });

std::unique_ptr<xercesc::SAX2XMLReader> newReader()
{
    tvpolicy::xml::ensurePlatform();
    return std::unique_ptr<xercesc::SAX2XMLReader>(xercesc::XMLReaderFactory::createXMLReader());
}

class IncludeTest : public testing::Test {
protected:
    void SetUp() override
    {
        saved_ = tvpolicy::xml::documentFetchLimits();
        tvpolicy::xml::documentFetchLimits() = testLimits();
    }
    void TearDown() override { tvpolicy::xml::documentFetchLimits() = saved_; }

private:
    FetchLimits saved_;
};

TEST_F(IncludeTest, AnOptionReadsItsIncludedSectionsThroughTheUrlSource)
{
    SectionServer server;
    auto parsed = testing_support::parsePolicy("<policy><option name=\"o\"><include id=\"inc\" url=\"" +
                                               server.url("/section.xml") + "\"/></option></policy>");
    auto* option = static_cast<Option*>(parsed.policy->getSections()["000o"]);
    auto reader = newReader();
    option->parse(reader.get());
    Section* included = option->getSections()["inc"];
    EXPECT_EQ(included->getHelp(), "Keep it on.");
    ASSERT_EQ(included->getTasks().size(), 2u);
    EXPECT_EQ(included->getTasks().front()->getType(), "ValidateTask");
    testing_support::CaptureStream log(std::clog);
    EXPECT_FALSE(included->test());
    EXPECT_EQ(included->getStatus(), 2u);
}

// A section that cannot be read stops the program with status 1, whatever the reason.
class UnreadableIncludeTest : public IncludeTest, public testing::WithParamInterface<std::string> {};

TEST_P(UnreadableIncludeTest, EndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    SectionServer server;
    std::string url = GetParam().rfind('/', 0) == 0 ? server.url(GetParam()) : GetParam();
    Section section(url);
    auto reader = newReader();
    EXPECT_EXIT(section.parse(reader.get()), testing::ExitedWithCode(1), "");
}

INSTANTIATE_TEST_SUITE_P(Addresses, UnreadableIncludeTest,
                         testing::Values("/missing.xml", "/stalled.xml", "/large.xml", "file:///etc/hostname",
                                         "http://127.0.0.1:1/x.xml", "not a url"));

}  // namespace
