// The example policies of file and version checks, run against this machine.
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

}  // namespace
