// The HTML report as a browser shows it, and the JUnit file as CI systems read it.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <unistd.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include "support/RunCli.h"
#include "support/TempDir.h"
#include "xml/XmlPlatform.h"
#include "xml/XmlText.h"

namespace {

using testing_support::runCli;
using testing_support::runProgram;

const std::string hostileName = "<script>document.title='owned'</script>&amp;";

// A policy with every kind of outcome and a section name that is markup.
std::string mixedPolicy()
{
    return "<policy name=\"Mixed &lt;b&gt;bold&lt;/b&gt;\">\n"
           "<section name=\"Passes\" primary=\"true\"><true/></section>\n"
           "<section name=\"Fails\" primary=\"true\" instr=\"javascript:alert(1)\"><help>Fix it.</help>"
           "<File fileName=\"no-such-file\" startPath=\"/nonexistent\"/></section>\n"
           "<section name=\"Warns\" primary=\"true\" severity=\"warning\" instr=\"http://nac.test/help\"><false/></section>\n"
           "<section name=\"Prohibited and skipped\" primary=\"true\" prohibit=\"true\"><false/></section>\n"
           "<section name=\"" +
           std::string("&lt;script&gt;document.title='owned'&lt;/script&gt;&amp;amp;") +
           "\" primary=\"true\"><true/></section>\n</policy>\n";
}

bool haveChromium()
{
    return std::system("command -v chromium >/dev/null 2>&1 && command -v unshare >/dev/null 2>&1") == 0;
}

// Chromium, headless and without any network (its own empty network namespace), on `url`.
testing_support::CliResult chromium(const std::filesystem::path& profile, const std::vector<std::string>& arguments)
{
    std::vector<std::string> argv{"unshare",        "-n",
                                  "chromium",       "--headless=new",
                                  "--no-sandbox",   "--disable-gpu",
                                  "--no-first-run", "--user-data-dir=" + profile.string()};
    argv.insert(argv.end(), arguments.begin(), arguments.end());
    return runProgram(argv);
}

TEST(ReportFiles, HtmlShowsTheVerdictEverySectionAndEscapesThePolicy)
{
    if (::geteuid() != 0 || !haveChromium()) {
        GTEST_SKIP() << "needs root (for unshare -n) and Debian's chromium (TVPOLICY_SETUP_TESTS=1 scripts/setup.sh)";
    }
    testing_support::TempDir dir;
    auto policy = dir.write("mixed.xml", mixedPolicy());
    auto html = dir.path() / "r.html";
    auto run = runCli({"run", policy.string(), "-q", "--report", html.string()});
    ASSERT_EQ(run.exitCode, 1) << run.err;
    std::string page = testing_support::readFile(html);
    // Self-contained: no script, no external resource, nothing a browser would fetch.
    for (const char* forbidden : {"<script", "src=", "<link", "url(", "@import", "href=\"javascript"}) {
        EXPECT_EQ(page.find(forbidden), std::string::npos) << forbidden;
    }

    std::string url = "file://" + html.string();
    auto dom = chromium(dir.path() / "profile", {"--dump-dom", url});
    ASSERT_EQ(dom.exitCode, 0) << dom.err;
    EXPECT_NE(dom.out.find("<title>Policy \"Mixed &lt;b&gt;bold&lt;/b&gt;\": FAIL</title>"), std::string::npos)
        << dom.out;
    EXPECT_NE(dom.out.find("id=\"verdict\">✘ FAIL</div>"), std::string::npos);
    for (const char* section : {"Passes", "Fails", "Warns", "Prohibited and skipped"}) {
        EXPECT_NE(dom.out.find(std::string("Section “") + section + "”"), std::string::npos) << section;
    }
    // The hostile name is text: escaped in the DOM, never an element; the title kept.
    EXPECT_NE(dom.out.find("“&lt;script&gt;document.title='owned'&lt;/script&gt;&amp;amp;”"), std::string::npos)
        << dom.out;
    EXPECT_EQ(dom.out.find("owned</title>"), std::string::npos);
    EXPECT_NE(dom.out.find("<strong>Help:</strong> Fix it."), std::string::npos);
    EXPECT_NE(dom.out.find("<a href=\"http://nac.test/help\""), std::string::npos);  // http(s) links only
    EXPECT_NE(dom.out.find("<code>javascript:alert(1)</code>"), std::string::npos);
    EXPECT_NE(dom.out.find("<summary>Evaluation trace</summary>"), std::string::npos);

    for (const auto& [name, size] :
         std::vector<std::pair<std::string, std::string>>{{"wide.png", "1280,1600"}, {"phone.png", "390,1600"}}) {
        auto shot = chromium(dir.path() / "profile", {"--screenshot=" + (dir.path() / name).string(),
                                                      "--window-size=" + size, "--hide-scrollbars", url});
        EXPECT_EQ(shot.exitCode, 0) << shot.err;
        EXPECT_GT(std::filesystem::file_size(dir.path() / name), 10000u) << name;
    }
    auto pdf = chromium(dir.path() / "profile", {"--print-to-pdf=" + (dir.path() / "r.pdf").string(), url});
    EXPECT_EQ(pdf.exitCode, 0) << pdf.err;
    EXPECT_EQ(testing_support::readFile(dir.path() / "r.pdf").substr(0, 5), "%PDF-");
    if (const char* keep = std::getenv("TVPOLICY_KEEP_REPORT_SHOTS")) {
        std::filesystem::copy_file(dir.path() / "wide.png", std::string(keep) + "/wide.png",
                                   std::filesystem::copy_options::overwrite_existing);
        std::filesystem::copy_file(dir.path() / "phone.png", std::string(keep) + "/phone.png",
                                   std::filesystem::copy_options::overwrite_existing);
    }
}

// Parsed back, the JUnit file has the structure CI systems read.
TEST(ReportFiles, JunitHasOneCasePerSectionWithFailuresAndSkips)
{
    testing_support::TempDir dir;
    auto policy = dir.write("mixed.xml", mixedPolicy());
    auto junit = dir.path() / "r.xml";
    auto run = runCli({"run", policy.string(), "-q", "--junit", junit.string()});
    ASSERT_EQ(run.exitCode, 1) << run.err;
    std::string xml = testing_support::readFile(junit);

    tvpolicy::xml::ensurePlatform();
    xercesc::XercesDOMParser parser;
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(), "junit");
    parser.parse(source);
    ASSERT_EQ(parser.getErrorCount(), 0u) << xml;
    xercesc::DOMDocument* doc = parser.getDocument();
    xercesc::DOMElement* root = doc->getDocumentElement();
    auto attribute = [](xercesc::DOMElement* element, const char* name) {
        return tvpolicy::xml::utf8(element->getAttribute(tvpolicy::xml::Utf16(name).get()));
    };
    ASSERT_EQ(tvpolicy::xml::utf8(root->getTagName()), "testsuites");
    auto* suites = root->getElementsByTagName(tvpolicy::xml::Utf16("testsuite").get());
    ASSERT_EQ(suites->getLength(), 1u);
    auto* suite = static_cast<xercesc::DOMElement*>(suites->item(0));
    EXPECT_EQ(attribute(suite, "name"), "Mixed <b>bold</b>");
    EXPECT_EQ(attribute(suite, "tests"), "5");
    EXPECT_EQ(attribute(suite, "failures"), "3");  // a stand-alone prohibited section fails the policy
    EXPECT_EQ(attribute(suite, "skipped"), "0");
    auto* cases = suite->getElementsByTagName(tvpolicy::xml::Utf16("testcase").get());
    ASSERT_EQ(cases->getLength(), 5u);
    std::vector<std::string> outcomes;
    for (XMLSize_t i = 0; i < cases->getLength(); ++i) {
        auto* testCase = static_cast<xercesc::DOMElement*>(cases->item(i));
        auto* child = testCase->getFirstElementChild();
        outcomes.push_back(attribute(testCase, "name") + ":" +
                           (child == nullptr ? "pass" : tvpolicy::xml::utf8(child->getTagName())));
        if (child != nullptr && tvpolicy::xml::utf8(child->getTagName()) == "failure" &&
            attribute(testCase, "name") == "Fails") {
            EXPECT_EQ(attribute(child, "message"),
                      "File fileName=\"no-such-file\" startPath=\"/nonexistent\": failed - FileTask/File Not Found");
            EXPECT_NE(tvpolicy::xml::utf8(child->getTextContent()).find("help: Fix it."), std::string::npos);
        }
    }
    EXPECT_EQ(outcomes, (std::vector<std::string>{"Passes:pass", "Fails:failure", "Warns:failure",
                                                  "Prohibited and skipped:failure", hostileName + ":pass"}));
}

}  // namespace
