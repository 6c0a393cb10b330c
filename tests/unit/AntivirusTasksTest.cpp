#include <tvpolicy/checks/Avast.h>

#include <gtest/gtest.h>

#include <iostream>

#include "support/CaptureStream.h"
#include "support/MappedHost.h"
#include "support/PerformTask.h"
#include "support/TempDir.h"

namespace {

using testing_support::performBareCheck;

namespace stdfs = std::filesystem;
using testing_support::CaptureStream;
using testing_support::TempDir;

// A virus database: 241 bytes of anything, then the date as day.month.year.
std::string database(const std::string& date) { return std::string(241, '\x7f') + date + std::string(64, '\x01'); }

// The fixed system paths of the checks, mapped into the test's folder.
class Antivirus : public testing::Test {
protected:
    void makeDats(const std::vector<std::string>& names)
    {
        for (const std::string& name : names) {
            stdfs::create_directories(tmp.path() / "dats" / name);
        }
    }

    testing_support::MappedHost mapped{{{"/usr/local/vscanx/dats", "dats"}, {"/Applications", "Applications"}}};
    const TempDir& tmp = mapped.tmp;
};

TEST_F(Antivirus, McAfeeTakesTheLastNameInTextOrder)
{
    makeDats({"5100", "5200", "readme", ".hidden5"});
    tmp.write("dats/5150.dat", "");  // files count as well as folders
    CaptureStream log(std::cerr);
    EXPECT_TRUE(performBareCheck("McAfeeVirusScanVersionTask", {{"required", "5200"}, {"operation", "eq"}}));
    // The line shows the smallest candidate, not the one compared.
    EXPECT_EQ(testing_support::withoutTimestamps(log.text()), "Version = 0\n");
    EXPECT_FALSE(performBareCheck("McAfeeVirusScanVersionTask", {{"required", "5201"}}));
}

TEST_F(Antivirus, McAfeeTextOrderLetsShorterNumbersWin)
{
    makeDats({"999", "5100"});
    EXPECT_TRUE(performBareCheck("McAfeeVirusScanVersionTask", {{"required", "999"}, {"operation", "eq"}}));
    // 999 is then compared as a number: below a required 5000.
    EXPECT_FALSE(performBareCheck("McAfeeVirusScanVersionTask", {{"required", "5000"}, {"operation", "gte"}}));
    EXPECT_TRUE(performBareCheck("McAfeeVirusScanVersionTask", {{"required", "5000"}, {"operation", "lt"}}));
}

TEST_F(Antivirus, McAfeeWithoutDefinitionsComparesZero)
{
    EXPECT_FALSE(performBareCheck("McAfeeVirusScanVersionTask", {{"required", "1"}}));
    EXPECT_TRUE(performBareCheck("McAfeeVirusScanVersionTask", {{"required", "0"}}));
    // Only the common prefix counts: "0" is at least 0.5.
    EXPECT_TRUE(performBareCheck("McAfeeVirusScanVersionTask", {{"required", "0.5"}, {"delim", "."}}));
    makeDats({"readme", "x1"});
    EXPECT_FALSE(performBareCheck("McAfeeVirusScanVersionTask", {{"required", "1"}}));
    EXPECT_TRUE(performBareCheck("McAfeeVirusScanVersionTask", {{"required", "1"}, {"operation", "lt"}}));
}

TEST_F(Antivirus, AvastComparesTheNewestDatabase)
{
    tmp.write("Applications/Avast.app/Contents/Resources/400.vps", database("15.03.2011"));
    tmp.write("Applications/Old/deeper/400.vps", database("01.04.2011"));
    tmp.write("Applications/Other/401.vps", database("01.01.2020"));
    auto with = [&](std::string required, std::string op) {
        return performBareCheck("AvastVersionTask", {{"delim", "-"}, {"required", required}, {"operation", op}});
    };
    EXPECT_TRUE(with("2011-04-01", "eq"));
    EXPECT_FALSE(with("2011-03-15", "eq"));
    EXPECT_TRUE(with("2011-03-20", "gte"));
    EXPECT_FALSE(with("2011-04-02", "gte"));
    EXPECT_TRUE(with("2011-4-2", "lt"));
}

TEST_F(Antivirus, AvastSearchesWhereItIsTold)
{
    tmp.write("Applications/400.vps", database("15.03.2011"));
    tmp.write("opt/avast/defs.vps", database("20.06.2012"));
    std::vector<Task::Attribute> attributes = {{"delim", "-"},
                                               {"required", "2012-06-20"},
                                               {"operation", "eq"},
                                               {"fileName", "defs.vps"},
                                               {"startPath", (tmp.path() / "opt").string()}};
    EXPECT_TRUE(performBareCheck("AvastVersionTask", attributes));
    attributes[3].second = "400.vps";
    EXPECT_FALSE(performBareCheck("AvastVersionTask", attributes));
}

TEST_F(Antivirus, AvastWithoutDatabasesComparesZero)
{
    EXPECT_FALSE(performBareCheck("AvastVersionTask", {{"delim", "-"}, {"required", "2011-01-01"}}));
    EXPECT_TRUE(performBareCheck("AvastVersionTask", {{"delim", "-"}, {"required", "0"}}));
    // A start that is no directory is a search error: no database either.
    tmp.write("file", "");
    EXPECT_FALSE(
        performBareCheck("AvastVersionTask",
                         {{"delim", "-"}, {"required", "2011-01-01"}, {"startPath", (tmp.path() / "file").string()}}));
}

TEST(AvastDefinitionDate, RebuildsTheDateFromTheTenBytes)
{
    TempDir tmp;
    const std::vector<std::pair<std::string, std::string>> cases = {
        {database("15.03.2011"), "2011-03-15"},
        {database("01/12/1999"), "1999-12-01"},          // separators are not checked
        {database("ab.cd.efgh"), "efgh-cd-ab"},          // nor digits
        {std::string(241, ' ') + "15.0", "0000-00-15"},  // a short read leaves zeros
        {std::string(100, ' '), "0000-00-00"},
        {"", "0000-00-00"},
    };
    for (const auto& [content, expected] : cases) {
        EXPECT_EQ(Avast::getDefinitionDate(tmp.write("db.vps", content).string()), expected);
    }
    EXPECT_EQ(Avast::getDefinitionDate((tmp.path() / "missing").string()), "0000-00-00");
    EXPECT_EQ(Avast::getDefinitionDate(tmp.path().string()), "0000-00-00");
}

}  // namespace
