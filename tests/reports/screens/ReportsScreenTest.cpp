#include <QGroupBox>
#include <QTabBar>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "core/Globals.h"
#include "core/binding/DateEdit.h"
#include "platform/system/Clock.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "reports/screens/frmReports.h"
#include "support/screens/Screens.h"

namespace {

using core::binding::DateEdit;
using reports::FindReportNamed;
using reports::ReportDef;
using reports::screens::frmReports;
using support::ClickAction;
using support::Find;

class ReportsScreen : public support::ScreenTest {
  protected:
    ReportsScreen() {
        platform::SetToday(platform::Date(2024, 5, 17));
        std::filesystem::create_directories(core::App().ReportPath);
        Define("dated.rpt", "DESCRIPTION=Dated\nTAB=FINANCIAL\nDATERANGE=SELECT\nNOTES=By date.\n");
        Define("all.rpt",
               "DESCRIPTION=Everything\nSELECTITEM=Tenant\nSELECTDETAIL=TRUE\n"
               "SELECTYEAR=TRUE\nDATERANGE=SELECT\nTAB=DETAIL\nICON=TENANT\nNOTES="
               "The lines of the year, per building and in total: rents, each expense, "
               "interest paid and depreciation. Taxes and insurance that were paid from an "
               "escrow account must be added by hand, and so must what others paid.\n");
        Define("sum.rpt", "DESCRIPTION=Sums\nTAB=SUMMARY\nDATERANGE=CURYEAR\n");
        Define("print.rpt", "DESCRIPTION=Printed\nPRINT=TRUE\n");
        Define("receipt.rcpt", "DESCRIPTION=Receipt\n");
        reports::LoadReportList();
        reports::SetReportViewer([this](int index) { runs_.push_back(index); });
    }
    ~ReportsScreen() override {
        reports::SetReportViewer(nullptr);
        platform::SetToday(std::nullopt);
    }

    static void Define(const std::string& file, const std::string& general) {
        std::ofstream(core::App().ReportPath + file) << "[GENERAL]\n" << general;
    }
    static ReportDef& Report(const char* name) {
        return *reports::FindReport(FindReportNamed(name));
    }
    static QPointer<frmReports> Open() {
        QPointer<frmReports> form(new frmReports);
        form->Setup();
        return form;
    }
    static std::vector<std::string> Offered(const frmReports& form) {
        std::vector<std::string> texts;
        const auto& list = Find<QListWidget>(form, "lvw");
        for (int row = 0; row < list.count(); ++row)
            texts.push_back(list.item(row)->text().toStdString());
        std::ranges::sort(texts);
        return texts;
    }
    static void ShowTab(const frmReports& form, int tab) {
        Find<QTabBar>(form, "tabFilter").setCurrentIndex(tab);
    }
    static void Select(const frmReports& form, const char* text) {
        auto& list = Find<QListWidget>(form, "lvw");
        list.setCurrentItem(list.findItems(QLatin1String(text), Qt::MatchExactly).at(0));
    }
    static bool Shows(const frmReports& form, const char* panel) {
        return Find<QWidget>(form, panel).isVisible();
    }

    std::vector<int> runs_;
};

TEST_F(ReportsScreen, OffersTheReportsOfEachTab) {
    const auto form = Open();
    EXPECT_EQ(Find<QTabBar>(*form, "tabFilter").currentIndex(), 2) << "it opens on Financial";
    EXPECT_THAT(Offered(*form), testing::ElementsAre("Dated"));
    EXPECT_EQ(Find<QLabel>(*form, "lblNotes").text(), "By date.");
    EXPECT_TRUE(Shows(*form, "fraDate"));
    for (const char* panel : {"fraDb", "fraDetail", "fraYear"})
        EXPECT_FALSE(Shows(*form, panel)) << panel;
    ShowTab(*form, 0);
    EXPECT_THAT(Offered(*form), testing::ElementsAre("Dated", "Everything", "Sums"))
        << "no print reports, no receipts, no scratch report";
    ShowTab(*form, 3);
    EXPECT_FALSE(Shows(*form, "fraDate")) << "the report itself says which dates";
    support::Type(Find<QLineEdit>(*form, "txtFind"), "zzz");
    EXPECT_TRUE(Offered(*form).empty());
    EXPECT_FALSE(Find<QPushButton>(*form, "cmdReport").isEnabled());
    EXPECT_EQ(Find<QLabel>(*form, "lblNotes").text(), "No report of this kind has such a name.");
    ClickAction(*form, "REPORT");
    EXPECT_TRUE(runs_.empty());
}

TEST_F(ReportsScreen, StoresTheAnswersOfEachReport) {
    const auto form = Open();
    EXPECT_EQ(Find<DateEdit>(*form, "dpStart").text(), "05/17/2023") << "today less a year";
    EXPECT_EQ(Find<DateEdit>(*form, "dpEnd").text(), "05/17/2024");
    EXPECT_TRUE(Find<DateEdit>(*form, "dpStart").isEnabled());
    support::Type(Find<DateEdit>(*form, "dpStart"), "2/1/2024");
    ShowTab(*form, 0);
    Select(*form, "Everything");
    EXPECT_EQ(Report("Dated").StartDate, platform::Date(2024, 2, 1)) << "the report left behind";
    for (const char* panel : {"fraDb", "fraDetail", "fraYear", "fraDate"})
        EXPECT_TRUE(Shows(*form, panel)) << panel;
    auto& items = Find<QComboBox>(*form, "cboDbItem");
    ASSERT_GT(items.count(), 1);
    items.setCurrentIndex(1);
    const int tenant = items.itemData(1).toInt();
    Find<QRadioButton>(*form, "optDetailSummary").click();
    support::Choose(*form, "cboYear", "2021");
    Find<QRadioButton>(*form, "optDatePrevious").click();
    EXPECT_FALSE(Find<DateEdit>(*form, "dpStart").isEnabled());
    ClickAction(*form, "REPORT");
    ASSERT_EQ(runs_, std::vector<int>{FindReportNamed("Everything")});
    const ReportDef& report = Report("Everything");
    EXPECT_EQ(report.SelectedId, tenant);
    EXPECT_EQ(report.DetailLevel, reports::Detail::Summary);
    EXPECT_EQ(report.SelectedYear, "2021");
    EXPECT_EQ(report.DateChoice, reports::DateRange::PreviousYear);

    Select(*form, "Dated");
    EXPECT_EQ(Find<DateEdit>(*form, "dpStart").text(), "02/01/2024");
    Select(*form, "Everything");
    EXPECT_EQ(Find<QComboBox>(*form, "cboYear").currentText(), "2021");
    EXPECT_TRUE(Find<QRadioButton>(*form, "optDetailSummary").isChecked());
    EXPECT_EQ(Find<QComboBox>(*form, "cboDbItem").currentData().toInt(), tenant);
    core::NotifyAll(core::kTenant, 1, 0);
    EXPECT_EQ(Find<QComboBox>(*form, "cboDbItem").currentData().toInt(), tenant);
    support::Choose(*form, "cboYear", "2020");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Report("Everything").SelectedYear, "2020") << "kept for the rest of the session";
}

TEST_F(ReportsScreen, KeepsAReportWhoseDateIsNotValid) {
    const auto form = Open();
    support::Type(Find<DateEdit>(*form, "dpEnd"), "13/45/2024");
    ClickAction(*form, "REPORT");
    EXPECT_TRUE(runs_.empty());
    const auto said = Heard();
    ASSERT_EQ(said.size(), 1U);
    EXPECT_THAT(said[0], testing::HasSubstr("The last date is not a valid date."));
    support::Type(Find<DateEdit>(*form, "dpEnd"), "12/31/2024");
    QTest::keyClick(&Find<QListWidget>(*form, "lvw"), Qt::Key_Return);
    EXPECT_EQ(runs_, std::vector<int>{FindReportNamed("Dated")});
    EXPECT_EQ(Report("Dated").EndDate, platform::Date(2024, 12, 31));
}

TEST_F(ReportsScreen, IsReachedByKeysAndReadAloud) {
    const auto form = Open();
    ShowTab(*form, 0);
    Select(*form, "Everything");
    EXPECT_THAT(support::LookFaults(*form, "frmReports"), testing::IsEmpty());
}

} // namespace
