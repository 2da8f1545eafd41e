#include <fstream>

#include "platform/values/Text.h"
#include "reports/LineGrammar.h"
#include "reports/ReportFile.h"
#include "reports/ReportsFixture.h"
#include "reports/clsRptData.h"
#include "reports/clsRptText.h"
#include "support/Cases.h"

namespace {

using namespace tests;
using reports::ReadReport;
using reports::ReportFile;

using RunTimeReader = Reports;

TEST_F(RunTimeReader, AppliesPageKeysInAnySectionTheLastOneWins) {
    const ReportFile defaults = ReadReport("");
    EXPECT_EQ(defaults.Title, "Vestrel Report");
    EXPECT_TRUE(defaults.ShowTitle && defaults.ShowHeader && defaults.ShowFooter);
    EXPECT_FALSE(defaults.FileOrientation || defaults.DebugOn);

    const ReportFile read = ReadReport(
        " title = First \nSUBTITLE=Of "
        "%SELECTEDYEAR%\n[GENERAL]\nSHOWTITLE=yes\nORIENTATION=landscape\n"
        "[DATA]\nTITLE=Second\nSCALE= 80 , 60 ,9\nDEBUG\n[TEXT]\nSHOWFOOTER=TRUE\nSHOWHEADER=1\n");
    EXPECT_EQ(read.Title, "Second");
    EXPECT_EQ(read.SubTitle, "Of %SELECTEDYEAR%");
    EXPECT_FALSE(read.ShowTitle);
    EXPECT_FALSE(read.ShowHeader);
    EXPECT_TRUE(read.ShowFooter);
    EXPECT_TRUE(read.DebugOn);
    EXPECT_EQ(read.FileOrientation, platform::PageOrientation::Landscape);
    EXPECT_EQ(read.ScaleX, 80);
    EXPECT_EQ(read.ScaleY, 60);

    const ReportFile undone = ReadReport("ORIENTATION=LANDSCAPE\nORIENTATION=sideways\nSCALE=5\n");
    EXPECT_FALSE(undone.FileOrientation);
    EXPECT_EQ(undone.ScaleX, 5);
    EXPECT_EQ(undone.ScaleY, 0);
}

TEST_F(RunTimeReader, NumbersTheSectionsByTheLoopAndGivesEachItsQuery) {
    const ReportFile read = ReadReport(
        "SQLQUERY=dropped\n[DATA]\nSQLQUERY=a\n[LOOP]\nSQLQUERY=loop\nPARAGRAPH=no "
        "section\n[TEXT]\n"
        "SQLQUERY=b\nDETAILLEVEL=summary\n[ENDLOOP]\nSQLQUERY=dropped too\nTOTALFIELD=x\n[DATA]\n"
        "DETAILLEVEL=FULL\nSHOWTABLE=ignored\nSHOWRECORDS\nMAXRECORDS= "
        "\n[FOOTER]\nHEADLINE=dropped\n");
    ASSERT_EQ(read.Sections.size(), 3U);
    EXPECT_EQ(read.LoopQuery, "loop");
    EXPECT_EQ(read.LoopLine, 5);
    const auto& before = dynamic_cast<const reports::clsRptData&>(*read.Sections[0]);
    const auto& inside = dynamic_cast<const reports::clsRptText&>(*read.Sections[1]);
    const auto& after = dynamic_cast<const reports::clsRptData&>(*read.Sections[2]);
    EXPECT_EQ(before.SQLQuery, "a");
    EXPECT_EQ(inside.Commands().size(), 1U);
    EXPECT_EQ(before.Sequence, reports::LoopPhase::Before);
    EXPECT_EQ(inside.Sequence, reports::LoopPhase::Inside);
    EXPECT_EQ(after.Sequence, reports::LoopPhase::After);
    EXPECT_EQ(inside.DetailLevel, reports::Detail::Summary);
    EXPECT_EQ(after.DetailLevel, reports::Detail::Full);
    EXPECT_EQ(after.Mode, reports::DataMode::Records) << "the last mode wins";
    EXPECT_EQ(after.HeadLine, "");
}

TEST_F(RunTimeReader, EndsTheRunAtAFaultWithFileLineAndReason) {
    support::ForEachCase(VESTREL_TEST_DATA "/runtime.cases", "faults",
                         [this](const support::Case& each) {
                             const std::string fault = Fault(each["sections"]);
                             EXPECT_TRUE(fault.starts_with("test.rpt, " + each["fault"])) << fault;
                         });
    EXPECT_EQ(Fault("TOTALFIELD=x\n[HEADER]\nPARAGRAPH=x\n[TEXT]\nNOSUCHKEY=x\n"), "");
}

TEST_F(RunTimeReader, ReadsFilesAsPeopleSaveThem) {
    struct Case {
        std::string contents;
        std::vector<std::string> paragraphs;
    };
    const std::string longLine(10'000'000, 'x');
    const std::vector<Case> cases = {
        {"", {}},
        {"[TEXT]\r\nPARAGRAPH=a\r\nPARAGRAPH=b", {"a", "b"}},
        {"[TEXT]\rPARAGRAPH=a\r", {"a"}},
        {"\xEF\xBB\xBF[TEXT]\nPARAGRAPH=\xC3\xA9\n", {"\xC3\xA9"}},
        {"[TEXT]\nPARAGRAPH=Caf\xE9 \x80\n", {"Caf\xC3\xA9 \xE2\x82\xAC"}},
        {std::string("\0\x01[TEXT]\0\xFF\n[TEXT]\nPARAGRAPH=a\n", 29), {"a"}},
        {longLine + "\n[TEXT]\n" + longLine + "=\n" + "PARAGRAPH=" + longLine, {longLine}},
    };
    for (const Case& one : cases) {
        std::ofstream(PathTo("case.rpt"), std::ios::binary) << one.contents;
        const ReportFile read = reports::LoadReportFile(PathTo("case.rpt"));
        std::vector<std::string> paragraphs;
        for (const auto& section : read.Sections) {
            for (const auto& command : dynamic_cast<reports::clsRptText&>(*section).Commands())
                paragraphs.push_back(command.Text);
        }
        EXPECT_TRUE(paragraphs == one.paragraphs) << one.contents.substr(0, 60);
    }
    EXPECT_TRUE(reports::LoadReportFile(PathTo("missing.rpt")).Sections.empty());
    EXPECT_TRUE(reports::LoadReportFile(Folder()).Sections.empty()) << "a folder is no file";
}

} // namespace
