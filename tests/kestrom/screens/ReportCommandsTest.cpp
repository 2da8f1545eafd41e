#include <gmock/gmock.h>

#include <QMenuBar>
#include <QTableWidget>
#include <algorithm>
#include <filesystem>

#include "books/screens/frmDepreciation.h"
#include "core/forms/RecordAdditions.h"
#include "core/grid/Grid.h"
#include "kestrom/Reports.h"
#include "kestrom/screens/SampleEditors.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "reports/ReportMenus.h"
#include "reports/screens/frmReportViewer.h"
#include "shell/GridReport.h"
#include "shell/Views.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::forms::Form;
using core::forms::RecordMenu;
using reports::RecordForm;
using reports::screens::frmReportViewer;

/// The program's record forms and commands with the report files that come with it.
class ReportCommands : public tests::SampleEditors {
  protected:
    ReportCommands() {
        std::filesystem::copy(VESTREL_SHARE "/Reports", PathTo("Reports"));
        core::App().ReportPath = PathTo("Reports/");
        kestrom::LoadReports();
    }
    ~ReportCommands() override {
        reports::SetReportViewer(nullptr);
        for (const char* name : {"reports.items", "reports.receipts"})
            core::forms::RegisterRecordMenu(RecordMenu::Reports, name, {});
        core::forms::RegisterRecordMenu(RecordMenu::Record, "reports.print", {});
        core::App().ReportPath = PathTo("Reports/");
        std::filesystem::remove_all(PathTo("Reports"));
        reports::LoadReportList();
    }

    /// A record of each kind that has a form with reports.
    static std::vector<std::pair<core::RecordKind, std::int32_t>> Records() {
        std::vector<std::pair<core::RecordKind, std::int32_t>> records;
        for (const tests::Kind& kind : tests::kKinds) {
            if (reports::FormOfKind(kind.kind) == RecordForm::None) continue;
            if (!core::HasEditor(kind.kind)) continue;
            std::int32_t id = SomeId(kind);
            // Payments of leases and loans have screens of their own.
            if (kind.kind == core::kTransaction)
                id =
                    std::stoi(Ask("SELECT Max(IdTransaction) FROM Transactions WHERE "
                                  "Nz(IdLease, 0) = 0 AND Nz(IdMortgage, 0) = 0"));
            records.emplace_back(kind.kind, id);
        }
        return records;
    }
    static frmReportViewer* Viewer() {
        for (Form* const form : Open()) {
            if (auto* const viewer = qobject_cast<frmReportViewer*>(form)) return viewer;
        }
        return nullptr;
    }
    /// The report that the viewer has just shown, which is closed; empty without a viewer.
    static std::string Shown() {
        SettleEvents();
        frmReportViewer* const viewer = Viewer();
        if (viewer == nullptr) return {};
        EXPECT_TRUE(viewer->Document().IsComplete());
        const std::string title = viewer->windowTitle().toStdString();
        viewer->close();
        SettleEvents();
        return title.substr(std::string("Vestrel Report Viewer - ").size());
    }
    /// Runs every item of this name; each must show the report of `id` that it stands for.
    static int RunAll(const Form& form, const char* name, std::int32_t id) {
        // What a menu held before is deleted once events run.
        SettleEvents();
        const auto items = [&] { return form.findChildren<QAction*>(QLatin1String(name)); };
        const int count = static_cast<int>(items().size());
        for (int at = 0; at < count; ++at) {
            const auto present = items();
            if (at >= present.size()) return -1;
            EXPECT_TRUE(present[at]->isEnabled()) << name;
            const reports::ReportDef& report = *reports::FindReport(present[at]->data().toInt());
            present[at]->trigger();
            EXPECT_EQ(report.SelectedId, id) << report.Description;
            EXPECT_EQ(Shown(), report.Description);
        }
        return count;
    }
};

TEST_F(ReportCommands, EveryRecordFormPrintsItsRecordAndRunsItsReports) {
    EXPECT_GE(Records().size(), 8U);
    for (const auto& [kind, id] : Records()) {
        core::EditRecord(kind, id);
        ASSERT_EQ(Open().size(), 1U) << core::RecordKindName(kind);
        Form& form = *Open().front();
        ASSERT_NE(form.layout()->menuBar(), nullptr) << core::RecordKindName(kind);
        const auto items = reports::ReportsOf(reports::FormOfKind(kind)).items.size();
        const bool isPlace = kind == core::kBuilding || kind == core::kUnit;
        if (isPlace) {
            const std::string unit = std::to_string(id);
            const std::int32_t building =
                kind == core::kBuilding
                    ? id
                    : std::stoi(Ask("SELECT IdBuilding FROM Unit WHERE IdUnit = " + unit));
            EXPECT_EQ(RunAll(form, "mnuPrintBuilding", building), 1);
            EXPECT_EQ(RunAll(form, "mnuReportItemB", building),
                      static_cast<int>(reports::ReportsOfBuilding().items.size()));
            if (kind == core::kUnit) {
                EXPECT_EQ(RunAll(form, "mnuPrintUnit", id), 1);
                EXPECT_EQ(RunAll(form, "mnuReportItemU", id), static_cast<int>(items));
            }
        } else {
            EXPECT_EQ(RunAll(form, "mnuPrint", id), 1) << core::RecordKindName(kind);
            EXPECT_EQ(RunAll(form, "mnuReportItem", id), static_cast<int>(items))
                << core::RecordKindName(kind);
        }
        if (kind == core::kTransaction) {
            EXPECT_EQ(RunAll(form, "mnuReceiptItem", id), 1);
        }
        form.close();
        SettleEvents();
    }
    EXPECT_EQ(Heard(), std::vector<std::string>{});
}

TEST_F(ReportCommands, OfTripsFollowTheListOfTheirForm) {
    const std::string trips = Ask("SELECT Count(*) FROM Mileage");
    core::EditRecord(core::kMileage, 0);
    ASSERT_EQ(Open().size(), 1U);
    Form& form = *Open().front();
    for (const char* const name : {"mnuPrint", "mnuReportItem"}) {
        Find<QAction>(form, name).trigger();
        EXPECT_EQ(Heard(), std::vector<std::string>{"Note: Enter or select a record first."});
        EXPECT_EQ(Viewer(), nullptr);
    }
    EXPECT_EQ(Ask("SELECT Count(*) FROM Mileage"), trips) << "no empty trip is saved for it";
    auto& grid = Find<core::grid::Grid>(form, "grd");
    ASSERT_GE(grid.Model().rowCount(), 2);
    for (const int row : {1, 0}) {
        const std::int32_t id = grid.Model().CellValue(row, 0).AsLong();
        grid.SelectId(id);
        EXPECT_EQ(RunAll(form, "mnuPrint", id), 1);
        EXPECT_GE(RunAll(form, "mnuReportItem", id), 1);
    }
}

TEST_F(ReportCommands, TheMainWindowPrintsTheSelectedRecordAndItsLists) {
    const auto commands = kestrom::MenuCommands();
    for (const auto& [kind, id] : Records()) {
        commands.Run(QStringLiteral("mnuPrint"), {.kind = kind, .id = id});
        EXPECT_FALSE(Shown().empty()) << core::RecordKindName(kind);
    }
    commands.Run(QStringLiteral("mnuPrint"), {.kind = core::kLease, .id = 0});
    EXPECT_EQ(Viewer(), nullptr) << "nothing is selected";
    std::filesystem::remove(PathTo("Reports/Lease Record.rpt"));
    reports::LoadReportList();
    commands.Run(QStringLiteral("mnuPrint"), {.kind = core::kLease, .id = 1});
    EXPECT_EQ(Heard(), std::vector<std::string>{
                           "No Report Found: No default report was found for this record type."});

    for (const core::RecordKind kind :
         {core::kAccount, core::kLease, core::kMortgage, core::kTenant, core::kWorkOrder,
          core::kTransaction, core::kUnit}) {
        shell::WriteGridReport(shell::BuildViewSql(kind, {.days = 0}, shell::IdColumn::Omitted));
        reports::RunReport(reports::kScratchReport);
        ASSERT_NE(Viewer(), nullptr);
        std::size_t texts = 0;
        const platform::PrintedPage page = Viewer()->Document().Page(0);
        for (const auto& item : page.Items())
            texts += item.kind == platform::PageItem::Kind::Text ? 1 : 0;
        EXPECT_GT(texts, 20U) << "rows of kind " << core::RecordKindName(kind);
        Shown();
    }
    commands.Run(QStringLiteral("mnuPrintSetup"), {});
    commands.Run(QStringLiteral("mnuPrintSetup"), {});
    const auto windows = QApplication::topLevelWidgets();
    EXPECT_EQ(std::ranges::count_if(windows,
                                    [](const QWidget* window) {
                                        return window->objectName() == "frmPageSetup" &&
                                               window->isVisible();
                                    }),
              1)
        << "a second click opens no second one";
    for (QWidget* const window : windows) {
        if (window->objectName() == "frmPageSetup") window->close();
    }
    SettleEvents();
}

TEST_F(ReportCommands, SayWhyTheyAreDisabledWithoutReportFiles) {
    std::filesystem::remove_all(PathTo("Reports"));
    kestrom::LoadReports();
    EXPECT_EQ(reports::ReportCount(), 1);
    for (const auto& [kind, id] : Records()) {
        core::EditRecord(kind, id);
        ASSERT_EQ(Open().size(), 1U) << core::RecordKindName(kind);
        const Form& form = *Open().front();
        int prints = 0;
        for (const char* name : {"mnuPrint", "mnuPrintBuilding", "mnuPrintUnit"}) {
            for (const QAction* const action : form.findChildren<QAction*>(QLatin1String(name))) {
                ++prints;
                EXPECT_FALSE(action->isEnabled());
                EXPECT_EQ(action->toolTip(),
                          "No report of this form is marked as its print report");
            }
        }
        EXPECT_GT(prints, 0) << core::RecordKindName(kind);
        EXPECT_TRUE(form.findChildren<QAction*>(QStringLiteral("mnuReportItem")).empty());
        Open().front()->close();
        SettleEvents();
    }
}

TEST_F(ReportCommands, ABuildingOpensItsDepreciationOnce) {
    using books::screens::frmDepreciation;
    const std::string id = Ask("SELECT Max(IdBuilding) FROM Building WHERE DeprBasis > 0");
    core::EditRecord(core::kBuilding, std::stoi(id));
    ASSERT_EQ(Open().size(), 1U);
    const Form& building = *Open().front();
    support::ClickAction(building, "SHOWDEPR");
    support::ClickAction(building, "SHOWDEPR");
    std::vector<frmDepreciation*> schedules;
    for (Form* const form : Open()) {
        if (auto* const schedule = qobject_cast<frmDepreciation*>(form))
            schedules.push_back(schedule);
    }
    ASSERT_EQ(schedules.size(), 1U);
    EXPECT_EQ(schedules[0]->windowTitle().toStdString(),
              "Depreciation Schedule for " +
                  Ask("SELECT Address FROM Building WHERE IdBuilding = " + id));
    EXPECT_GE(Find<QTableWidget>(*schedules[0], "grd").rowCount(), 28);
}

} // namespace
} // namespace support
