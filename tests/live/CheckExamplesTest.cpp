// The example policies of file and version checks, run against this machine.
#include <tvpolicy/checks/File.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>

#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <sstream>

#include "support/CaptureStream.h"
#include "support/PolicyText.h"

namespace {

using testing_support::CaptureStream;

std::string readExample(const std::string& name)
{
    std::ifstream file(std::string(TVPOLICY_SOURCE_DIR) + "/examples/" + name);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

TEST(CheckExamples, FileAndVersionChecksPassOnThisMachine)
{
    auto parsed = testing_support::parsePolicy(readExample("file-and-version-checks.xml"));
    ASSERT_FALSE(parsed.policy->getFatalParseError()) << parsed.out;
    bool result = false;
    {
        CaptureStream log(std::clog);
        CaptureStream out(std::cout);
        result = parsed.policy->run();
    }
    EXPECT_TRUE(result);
    std::vector<std::string> names;
    for (auto& [key, section] : parsed.policy->getSections()) {
        names.push_back(section->getName());
        EXPECT_EQ(section->getStatus(), 1u) << section->getName();
    }
    EXPECT_EQ(names, (std::vector<std::string>{"License texts installed", "Kernel 3.2 or later", "Legacy agent removed"}));
}

// Without a start path the whole tree below "/" is searched, up to the first match.
TEST(CheckExamples, FileWithoutStartPathSearchesFromTheRoot)
{
    File file("os-release", false, "", "");
    ASSERT_TRUE(file.exists());
    ASSERT_EQ(file.getFileList().size(), 1u);
    const std::string found = file.getFileList().front();
    EXPECT_EQ(found.rfind("/", 0), 0u) << found;
    EXPECT_EQ(found.substr(found.size() - std::string("/os-release").size()), "/os-release") << found;
}

}  // namespace
