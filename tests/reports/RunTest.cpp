#include <algorithm>

#include "core/Configuration.h"
#include "core/Settings.h"
#include "platform/printing/PrintedDocument.h"
#include "reports/Export.h"
#include "reports/ReportRun.h"
#include "reports/ReportsFixture.h"
#include "reports/ViewerSettings.h"

namespace {

using namespace tests;
using reports::DateRange;
using testing::ElementsAre;

class ReportRuns : public Reports {};

TEST_F(ReportRuns, TakesTheFilesDateRuleBeforeTheChoice) {
    using enum DateRange;
    struct Case {
        DateRange rule;
        DateRange choice;
        std::string dates;
    };
    const std::string current = "p 01/01/2024 05/17/2024";
    const std::string trailing = "p 05/17/2023 05/17/2024";
    const std::string previous = "p 01/01/2023 12/31/2023";
    const std::string selected = "p 02/03/2020 04/05/2021";
    report.StartDate = platform::Date(2020, 2, 3);
    report.EndDate = platform::Date(2021, 4, 5);
    for (const Case& one :
         {Case{None, Select, selected}, Case{Select, Select, selected},
          Case{None, CurrentYear, current}, Case{Select, TrailingYear, trailing},
          Case{None, PreviousYear, previous}, Case{CurrentYear, Select, current},
          Case{CurrentYear, PreviousYear, current}, Case{TrailingYear, CurrentYear, trailing},
          Case{PreviousYear, Select, previous}, Case{None, None, selected}}) {
        report.DateRange = one.rule;
        report.DateChoice = one.choice;
        EXPECT_THAT(Lines("[TEXT]\nPARAGRAPH=%STARTDATE% %ENDDATE%\n"), ElementsAre(one.dates))
            << static_cast<int>(one.rule) << " " << static_cast<int>(one.choice);
    }
}

TEST_F(ReportRuns, HeadsThePagesByTheFileAndTheCompany) {
    core::Config().CompanyName = "Ann | Bob";
    CoreBooks::Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (4, 'First Bank')");
    report.SelectItem = core::kAccount;
    report.SelectedId = 4;
    FlowLines flow =
        Run("SHOWTITLE=TRUE\nTITLE=Rent %DATE%\nSUBTITLE=Of %selecteddescription% %DATE%\n"
            "ORIENTATION=LANDSCAPE\n");
    EXPECT_THAT(flow.lines, ElementsAre("h1 Rent %DATE%", "p Of First Bank %DATE%"));
    EXPECT_EQ(flow.info.name, "Test");
    EXPECT_EQ(flow.info.frame.header.left, "Ann | Bob");
    EXPECT_EQ(flow.info.frame.header.right, "05/17/2024");
    EXPECT_EQ(flow.info.frame.footer.left, "Test");
    EXPECT_EQ(flow.info.frame.footer.right, "Page %d");
    EXPECT_EQ(report.Orientation, platform::PageOrientation::Landscape) << "kept with the choices";
    EXPECT_GT(flow.info.setup.PageWidth(), flow.info.setup.PageHeight());

    flow = Run("SHOWHEADER=FALSE\nSHOWFOOTER=0\n");
    EXPECT_TRUE(flow.lines.empty());
    EXPECT_TRUE(flow.info.frame.header.IsEmpty());
    EXPECT_TRUE(flow.info.frame.footer.IsEmpty());
    EXPECT_GT(flow.info.setup.PageWidth(), flow.info.setup.PageHeight())
        << "the file doesn't say, so the last orientation stays";
}

TEST_F(ReportRuns, KeepsAllOfALongTitleInItsBox) {
    const platform::PrintedDocument pages =
        Pages("TITLE=" + std::string(60, 'W') + "\nSUBTITLE=below\n");
    ASSERT_EQ(pages.PageCount(), 1U);
    const platform::PrintedPage first = pages.Page(0);
    const auto& items = first.Items();
    const auto box =
        std::ranges::find(items, platform::PageItem::Kind::Box, &platform::PageItem::kind);
    ASSERT_NE(box, items.end());
    EXPECT_EQ(box->fill, 0xE0E0E0U);
    EXPECT_EQ(box->y2 - box->y1, 800);
    const auto find = [&](std::string_view start) {
        return *std::ranges::find_if(
            items, [&](const auto& item) { return first.TextOf(item).starts_with(start); });
    };
    EXPECT_EQ(first.TextOf(find("W")).size(), 60U) << "all in one line";
    EXPECT_LE(find("W").x2, box->x2);
    EXPECT_LT(find("W").y1, box->y2);
    EXPECT_EQ(find("below").x1, 1440);
    EXPECT_GT(find("below").y1, box->y1 + 900);
}

TEST_F(ReportRuns, KeepsTheViewersSettings) {
    EXPECT_TRUE(reports::ReadOpenExport());
    reports::SaveOpenExport(false);
    EXPECT_FALSE(reports::ReadOpenExport());
    EXPECT_EQ(core::GetRegString(R"(SOFTWARE\Vestrel\Global\Settings)", R"(rpt\Openexport)", ""),
              "False");

    platform::PageSetup setup = reports::ReadPageSetup();
    EXPECT_EQ(setup.marginTop, 1440);
    setup.marginLeft = 720;
    setup.paper =
        setup.paper == platform::Paper::A4 ? platform::Paper::Letter : platform::Paper::A4;
    reports::SavePageSetup(setup);
    EXPECT_EQ(reports::ReadPageSetup(), setup);
    EXPECT_EQ(reports::ReportRun(report).Setup().marginLeft, 720);

    EXPECT_EQ(reports::LastSaveDir(), "");
    reports::SaveLastSaveDir("/x/");
    EXPECT_EQ(core::GetRegString(R"(SOFTWARE\Vestrel\Global\Settingsrpt)", "LastSaveDir", ""),
              "/x/");
    const std::string folder = Folder().string() + "/";
    EXPECT_EQ(reports::ProposeExportFile(folder, reports::ExportFormat::Html),
              folder + "rpt0001.html");
    MakeFile("rpt0001.html");
    EXPECT_EQ(reports::ProposeExportFile(folder, reports::ExportFormat::Html),
              folder + "rpt0002.html");
    EXPECT_EQ(reports::ProposeExportFile(folder, reports::ExportFormat::Pdf),
              folder + "rpt0001.pdf");
}

} // namespace
