#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "reports/CatalogueReader.h"
#include "reports/ReportList.h"
#include "reports/ReportMenus.h"
#include "reports/ReportsFixture.h"
#include "support/Cases.h"

namespace {

using namespace tests;
using reports::RecordForm;
using reports::ReportDef;
using reports::ReportKind;

ReportDef Read(std::string_view text, ReportKind kind = ReportKind::Report) {
    ReportDef report;
    report.Kind = kind;
    report.Description = "file";
    reports::ReadCatalogueKeys(text, report);
    return report;
}

using CatalogueKeys = testing::Test;

TEST_F(CatalogueKeys, AreReadUntrimmedAndOnlyInTheirSection) {
    support::ForEachCase(VESTREL_TEST_DATA "/catalogue.cases", "descriptions",
                         [](const support::Case& each) {
                             EXPECT_EQ(Read(each["text"]).Description, each["description"]);
                         });
    EXPECT_EQ(Read("\xEF\xBB\xBF").Description, "file");
}

TEST_F(CatalogueKeys, TakeTheWordsTheyKnowAndLeaveTheFieldOtherwise) {
    const auto general = [](std::string_view keys) {
        return Read("[GENERAL]\n" + std::string(keys));
    };
    EXPECT_EQ(general("FORM= work order ").Form, RecordForm::WorkOrder);
    EXPECT_EQ(general("FORM=WORKORDER").Icon, 8);
    EXPECT_EQ(general("FORM=LEASE\nFORM=HOUSE").Form, RecordForm::Lease);
    EXPECT_EQ(general("FORM=LEASE\nICON=TENANT").Icon, 6);
    EXPECT_EQ(general("ICON=TENANT\nFORM=LEASE").Icon, 2);
    EXPECT_EQ(general("ICON=PROPERTY\nICON=WORKORDER").Icon, 5);
    EXPECT_EQ(general("TAB=financial").Tab, reports::CatalogueTab::Financial);
    EXPECT_EQ(general("TYPE= Summary \nTAB=nowhere").Tab, reports::CatalogueTab::Summary);
    EXPECT_EQ(general("TYPE=DETAIL\nTAB=ALL").Tab, reports::CatalogueTab::All);
    EXPECT_EQ(general("DATERANGE=trailyear").DateRange, reports::DateRange::TrailingYear);
    EXPECT_EQ(general("DATERANGE=SELECT\nDATERANGE=LATER").DateRange, reports::DateRange::Select);
    EXPECT_EQ(general("SELECTITEM=work order").SelectItem, core::kWorkOrder);
    EXPECT_EQ(general("SELECTITEM=Building\nSELECTITEM=Castle").SelectItem, core::kBuilding);
    EXPECT_EQ(general("SELECTITEM=").SelectItem, core::RecordKind{21})
        << "the empty name among the kinds";
    EXPECT_EQ(general("PRINT=true").Kind, ReportKind::Print);
    EXPECT_EQ(general("PRINT=YES").Kind, ReportKind::Report);
    EXPECT_EQ(general("PRINT= TRUE").Kind, ReportKind::Report);
    EXPECT_EQ(general("PRINT=TRUE\nPRINT=FALSE").Kind, ReportKind::Print);
    EXPECT_TRUE(general("SELECTYEAR=TRUE").SelectYear);
    EXPECT_FALSE(general("SELECTDETAIL=TRUE\nSELECTDETAIL=1").SelectDetail);

    const ReportDef receipt = Read(
        "[GENERAL]\nDESCRIPTION=R\nNOTES=N\nFORM=LEASE\nICON=TENANT\nPRINT=TRUE\nTAB=SUMMARY\n"
        "SELECTITEM=Lease\nDATERANGE=CURYEAR\nSELECTYEAR=TRUE\nSELECTDETAIL=TRUE\n",
        ReportKind::Receipt);
    EXPECT_EQ(receipt.Kind, ReportKind::Receipt);
    EXPECT_EQ(receipt.Form, RecordForm::Lease);
    EXPECT_EQ(receipt.Icon, 2);
    EXPECT_EQ(receipt.Notes, "N");
    EXPECT_EQ(receipt.SelectItem, core::kNone);
    EXPECT_EQ(receipt.DateRange, reports::DateRange::None);
    EXPECT_FALSE(receipt.SelectYear || receipt.SelectDetail);
}

class Catalogue : public Reports {
  protected:
    /// Captions of a menu's items, the print report's description in front.
    static std::vector<std::string> Captions(const reports::ReportMenu& menu) {
        std::vector<std::string> captions;
        captions.push_back(menu.print == 0 ? "-" : reports::FindReport(menu.print)->Description);
        for (const auto& item : menu.items)
            captions.push_back(item.caption);
        return captions;
    }
};

TEST_F(Catalogue, HoldsTheScratchReportAndTheFilesOfTheFolder) {
    using testing::ElementsAre;
    std::filesystem::remove_all(core::App().ReportPath);
    reports::LoadReportList();
    ASSERT_EQ(reports::ReportCount(), 1) << "no folder";
    EXPECT_EQ(reports::FindReport(1)->FileName, "SysReport");
    EXPECT_EQ(reports::FindReport(1)->Kind, ReportKind::Scratch);
    EXPECT_EQ(reports::FindReport(1)->Description, "");
    EXPECT_EQ(reports::FindReport(1)->SelectedYear, "2024");
    EXPECT_EQ(reports::FindReport(0), nullptr);
    EXPECT_EQ(reports::FindReport(2), nullptr);

    std::filesystem::create_directories(core::App().ReportPath + "folder.rpt");
    WriteReport("plain.RPT", "");
    WriteReport("slip.rcpt", "[GENERAL]\nFORM=LEASE\nDESCRIPTION=Rent slip\n");
    WriteReport("notes.txt", "[GENERAL]\nDESCRIPTION=No report\n");
    WriteReport("plain.rpt.new", "[GENERAL]\nDESCRIPTION=No report\n");
    reports::LoadReportList();
    ASSERT_EQ(reports::ReportCount(), 3);
    EXPECT_EQ(reports::FindReport(2)->Description, "plain");
    EXPECT_EQ(reports::FindReport(3)->Description, "Rent slip");
    EXPECT_EQ(reports::FindReportNamed("RENT SLIP"), 3);
    EXPECT_EQ(reports::FindReportNamed("plain.rpt"), 2);
    EXPECT_EQ(reports::FindReportNamed("nothing"), 0);
}

TEST_F(Catalogue, FillsTheMenusOfForms) {
    using testing::ElementsAre;
    reports::LoadReportList();
    EXPECT_THAT(Captions(reports::ReportsOf(RecordForm::Lease)), ElementsAre("-"));

    WriteReport("a.rpt", "[GENERAL]\nFORM=LEASE\nDESCRIPTION=Ledger\nPRINT=FALSE\n");
    WriteReport("b.rpt", "[GENERAL]\nFORM=LEASE\nDESCRIPTION=Lease\nPRINT=TRUE\n");
    WriteReport("c.rpt", "[GENERAL]\nFORM=BUILDING\nDESCRIPTION=Cash flow\n");
    WriteReport("d.rpt", "[GENERAL]\nFORM=UNIT\nDESCRIPTION=Inventory\n");
    WriteReport("e.rpt", "[GENERAL]\nDESCRIPTION=Of no form\n");
    WriteReport("f.rcpt", "[GENERAL]\nFORM=LEASE\nDESCRIPTION=Receipt\n");
    reports::LoadReportList();
    EXPECT_THAT(Captions(reports::ReportsOf(RecordForm::Lease)),
                ElementsAre("Lease", "(&1) Ledger"));
    EXPECT_THAT(Captions(reports::ReportsOfBuilding()),
                ElementsAre("-", "(&1) [Building] Cash flow"));
    EXPECT_THAT(Captions(reports::ReportsOfSelectedUnit()),
                ElementsAre("-", "(&1) [Selected Unit] Inventory"));
    ASSERT_EQ(reports::ReceiptsOf(RecordForm::Lease).size(), 1U);
    EXPECT_EQ(reports::ReceiptsOf(RecordForm::Lease)[0].caption, "Print Receipt");

    WriteReport("g.rpt", "[GENERAL]\nFORM=LEASE\nDESCRIPTION=Second\nPRINT=TRUE\n");
    reports::LoadReportList();
    const reports::ReportMenu menu = reports::ReportsOf(RecordForm::Lease);
    EXPECT_EQ(menu.items.size(), 1U) << "neither print report is on the menu";
    for (int index = 1; index < menu.print; ++index)
        EXPECT_NE(reports::FindReport(index)->Kind, ReportKind::Print) << "the first one prints";
}

} // namespace
