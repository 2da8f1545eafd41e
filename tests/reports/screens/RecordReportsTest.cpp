#include <QDialog>
#include <QMenuBar>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "core/Globals.h"
#include "core/forms/RecordBar.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "reports/screens/RecordReports.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::forms::Subject;

class RecordReports : public ScreenTest {
  protected:
    RecordReports() {
        std::filesystem::create_directories(core::App().ReportPath);
        reports::SetReportViewer([this](int index) {
            const reports::ReportDef& report = *reports::FindReport(index);
            runs_.push_back(report.Description + " of " + std::to_string(report.SelectedId));
        });
        reports::screens::RegisterReportMenus();
    }
    ~RecordReports() override {
        reports::SetReportViewer(nullptr);
        for (const char* name : {"reports.items", "reports.receipts"})
            core::forms::RegisterRecordMenu(core::forms::RecordMenu::Reports, name, {});
        core::forms::RegisterRecordMenu(core::forms::RecordMenu::Record, "reports.print", {});
    }

    static void Define(const std::string& file, const std::string& general) {
        std::ofstream(core::App().ReportPath + file) << "[GENERAL]\n" << general;
        reports::LoadReportList();
    }

    /// The bar of a form that shows these records.
    void ShowForm(core::RecordKind kind, std::vector<Subject> subjects) {
        form_ = std::make_unique<QDialog>();
        new QVBoxLayout(form_.get());
        bar_ = new core::forms::RecordBar(
            *form_, kind, {.apply = [] {}, .close = [] {}, .save = [this] { return saves_; }});
        Show(std::move(subjects));
    }
    /// What the menus held before is deleted once events run.
    void Show(std::vector<Subject> subjects) {
        bar_->Show(std::move(subjects));
        SettleEvents();
    }
    std::vector<std::string> Items(const char* name) const {
        std::vector<std::string> texts;
        for (const QAction* const action : form_->findChildren<QAction*>(QLatin1String(name))) {
            texts.push_back(action->text().toStdString() +
                            (action->isEnabled() ? "" : " (disabled)"));
            EXPECT_TRUE(action->isEnabled() || !action->toolTip().isEmpty());
            EXPECT_TRUE(qobject_cast<QMenu*>(action->parent())->toolTipsVisible());
        }
        std::ranges::sort(texts);
        return texts;
    }
    void Trigger(const char* name) { support::Find<QAction>(*form_, name).trigger(); }

    std::unique_ptr<QDialog> form_;
    core::forms::RecordBar* bar_ = nullptr;
    bool saves_ = true;
    std::vector<std::string> runs_;
};

TEST_F(RecordReports, AreOfferedByTheFormOfTheirRecord) {
    using testing::ElementsAre;
    Define("a.rpt", "FORM=LEASE\nDESCRIPTION=Ledger & more\n");
    ShowForm(core::kLease, {{core::kLease, 7}});
    EXPECT_THAT(Items("mnuReportItem"), ElementsAre("(&1) Ledger && more"));
    EXPECT_THAT(Items("mnuPrint"), ElementsAre("&Print (disabled)"));

    Define("b.rpt", "FORM=LEASE\nDESCRIPTION=Lease\nPRINT=TRUE\n");
    Show({{core::kLease, 7}});
    EXPECT_THAT(Items("mnuPrint"), ElementsAre("&Print"));
    Trigger("mnuPrint");
    Show({{core::kLease, 8}});
    Trigger("mnuReportItem");
    saves_ = false;
    Trigger("mnuReportItem");
    EXPECT_THAT(runs_, ElementsAre("Lease of 7", "Ledger & more of 8"))
        << "nothing is printed of a record that the user didn't save";

    ShowForm(core::kIncident, {{core::kIncident, 3}});
    EXPECT_THAT(Items("mnuPrint"), testing::IsEmpty());
}

TEST_F(RecordReports, OfABuildingAndItsUnitStandInOneMenu) {
    using testing::ElementsAre;
    Define("a.rpt", "FORM=BUILDING\nDESCRIPTION=Cash\n");
    Define("b.rpt", "FORM=UNIT\nDESCRIPTION=Inventory\n");
    Define("c.rpt", "FORM=UNIT\nDESCRIPTION=Card\nPRINT=TRUE\n");
    ShowForm(core::kBuilding, {{core::kBuilding, 5}, {core::kUnit, 6}});
    EXPECT_THAT(Items("mnuReportItemB"), ElementsAre("(&1) [Building] Cash"));
    EXPECT_THAT(Items("mnuReportItemU"), ElementsAre("(&1) [Selected Unit] Inventory"));
    EXPECT_THAT(Items("mnuPrintBuilding"), ElementsAre("&Print Building (disabled)"));
    Trigger("mnuPrintUnit");
    Trigger("mnuReportItemB");
    EXPECT_THAT(runs_, ElementsAre("Card of 6", "Cash of 5"));

    Define("d.rcpt", "FORM=TRANSACTION\nDESCRIPTION=Receipt\n");
    ShowForm(core::kTransaction, {{core::kTransaction, 9}});
    Trigger("mnuReceiptItem");
    EXPECT_EQ(runs_.back(), "Receipt of 9");
    reports::SetReportViewer(nullptr);
    Show({{core::kTransaction, 9}});
    EXPECT_THAT(Items("mnuReceiptItem"), ElementsAre("Print Receipt (disabled)"));
}

} // namespace
} // namespace support
