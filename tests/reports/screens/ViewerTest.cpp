#include <gmock/gmock.h>

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QPrinter>
#include <QSpinBox>
#include <QToolBar>

#include "core/MessagePump.h"
#include "core/Preferences.h"
#include "core/binding/ComboList.h"
#include "core/binding/DateEdit.h"
#include "platform/qt/preview/PagePreview.h"
#include "platform/qt/preview/PageThumbnails.h"
#include "platform/system/Paths.h"
#include "reports/ReportList.h"
#include "reports/ViewerSettings.h"
#include "reports/screens/ViewerFixture.h"
#include "reports/screens/frmPageSetup.h"
#include "support/KeepingDesktop.h"
#include "support/ScriptedChoosers.h"
#include "support/screens/Screens.h"

namespace {

using core::binding::DateEdit;
using reports::FindReport;
using reports::screens::frmPageSetup;
using reports::screens::frmReportViewer;
using support::Find;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using tests::ViewerTest;

constexpr std::string_view kPerTenant =
    "[GENERAL]\nDESCRIPTION=Tenant Letter\nSELECTITEM=Tenant\nDATERANGE=SELECT\n"
    "[HEADER]\nTITLE=Letter\n[TEXT]\n"
    "PARAGRAPH=To %SELECTEDDESCRIPTION% (%SELECTEDID%), %STARTDATE% to %ENDDATE%\n";

TEST_F(ViewerTest, ShowsAReportWithItsTitleHeaderAndFooter) {
    frmReportViewer& viewer = View(MakeReport("a.rpt",
                                              "[GENERAL]\nDESCRIPTION=Rent Roll\n"
                                              "[HEADER]\nTITLE=The Roll\n"
                                              "[TEXT]\nPARAGRAPH=Hello.\n"));
    EXPECT_EQ(viewer.windowTitle(), QStringLiteral("Vestrel Report Viewer - Rent Roll"));
    EXPECT_EQ(viewer.Document().PageCount(), 1U);
    EXPECT_THAT(TextOf(viewer),
                testing::AllOf(HasSubstr("05/17/2024"), HasSubstr("Rent Roll"), HasSubstr("Page 1"),
                               HasSubstr("The Roll"), HasSubstr("Hello.")));
    EXPECT_FALSE(viewer.InRun());
    EXPECT_FALSE(Find<QPushButton>(viewer, "cmdCancel").isVisible());
    EXPECT_FALSE(Find<QComboBox>(viewer, "cboSelectedID").isVisible());

    // The one window serves the next run, and a report that isn't there.
    const QPointer<frmReportViewer> first = &viewer;
    EXPECT_EQ(&View(MakeReport("b.rpt", "[TEXT]\nPARAGRAPH=Other.\n")), first);
    EXPECT_THAT(TextOf(viewer), Not(HasSubstr("Hello.")));
    EXPECT_EQ(&View(999), first);
}

TEST_F(ViewerTest, RunsAgainForAnotherRecordAndOtherDays) {
    const int index = MakeReport("t.rpt", kPerTenant);
    FindReport(index)->SelectedId = 30;
    FindReport(index)->StartDate = platform::Date(2024, 1, 1);
    FindReport(index)->EndDate = platform::Date(2024, 2, 29);
    frmReportViewer& viewer = View(index);
    auto& combo = Find<QComboBox>(viewer, "cboSelectedID");
    EXPECT_EQ(core::binding::GetSelectedId(combo), 30);
    EXPECT_THAT(TextOf(viewer), HasSubstr("(30), 01/01/2024 to 02/29/2024"));

    combo.setCurrentIndex(combo.findData(32));
    EXPECT_EQ(FindReport(index)->SelectedId, 32);
    EXPECT_THAT(TextOf(viewer), HasSubstr("(32), 01/01"));

    auto& start = Find<DateEdit>(viewer, "dpStartDate");
    start.setFocus();
    support::Type(start, "02/30/2024");
    QTest::keyClick(&start, Qt::Key_Tab);
    EXPECT_EQ(FindReport(index)->StartDate, platform::Date(2024, 1, 1));
    start.setFocus();
    support::Type(start, "02/03/2024");
    QTest::keyClick(&start, Qt::Key_Tab);
    EXPECT_EQ(FindReport(index)->StartDate, platform::Date(2024, 2, 3));
    EXPECT_EQ(FindReport(index)->DateChoice, reports::DateRange::Select);
    EXPECT_THAT(TextOf(viewer), HasSubstr("02/03/2024 to 02/29/2024"));
}

TEST_F(ViewerTest, KeepsTheDaysOfAReportThatFixesThem) {
    frmReportViewer& viewer = View(MakeReport(
        "y.rpt", "[GENERAL]\nDATERANGE=CURYEAR\n[TEXT]\nPARAGRAPH=%STARTDATE% %ENDDATE%\n"));
    auto& end = Find<DateEdit>(viewer, "dpEndDate");
    end.setFocus();
    support::Type(end, "12/24/2023");
    QTest::keyClick(&end, Qt::Key_Tab);
    EXPECT_EQ(end.Day(), platform::Date(2024, 5, 17));
    EXPECT_THAT(TextOf(viewer), HasSubstr("01/01/2024 05/17/2024"));
}

TEST_F(ViewerTest, KeepsItsBarsAsTheyWereLeft) {
    const int index = MakeReport("a.rpt", "[TEXT]\nPARAGRAPH=x\n");
    frmReportViewer& viewer = View(index);
    auto& navbar = Find<platform::qt::PageThumbnails>(viewer, "NavBar");
    EXPECT_TRUE(navbar.isVisible());
    Trigger(viewer, "mnuViewNavbar");
    Trigger(viewer, "mnuViewToolbar");
    EXPECT_FALSE(navbar.isVisible());
    EXPECT_FALSE(Find<QToolBar>(viewer, "toolBar").isVisible());
    EXPECT_FALSE(core::Preferences().ViewNavbar);
    EXPECT_FALSE(core::Preferences().ViewToolbar);
    viewer.close();
    support::SettleEvents();
    core::LoadPreferences();
    EXPECT_FALSE(Find<QToolBar>(View(index), "toolBar").isVisible());
}

TEST_F(ViewerTest, TurnsPagesAndFindsTextByKeys) {
    frmReportViewer& viewer = View(MakeReport("long.rpt", LongTable(500)));
    auto& pages = Find<platform::qt::PagePreview>(viewer, "vp");
    auto& number = Find<QSpinBox>(viewer, "txtPage");
    ASSERT_GT(pages.PageCount(), 5);
    EXPECT_EQ(number.maximum(), pages.PageCount());
    EXPECT_EQ(Find<QLabel>(viewer, "lblPages").text(),
              QStringLiteral("of %1").arg(pages.PageCount()));
    EXPECT_EQ(viewer.focusWidget(), &pages);
    QTest::keyClick(&pages, Qt::Key_End);
    EXPECT_EQ(number.value(), pages.PageCount());
    EXPECT_FALSE(Find<QAction>(viewer, "mnuNext").isEnabled());
    number.setValue(2);
    EXPECT_EQ(pages.CurrentPage(), 1);
    EXPECT_EQ(Find<platform::qt::PageThumbnails>(viewer, "NavBar").currentIndex().row(), 1);
    Trigger(viewer, "mnuPrevious");
    EXPECT_EQ(pages.CurrentPage(), 0);

    Trigger(viewer, "mnuFind");
    auto& find = Find<QLineEdit>(viewer, "txtFind");
    EXPECT_EQ(viewer.focusWidget(), &find);
    support::Type(find, "row 499");
    QTest::keyClick(&find, Qt::Key_Return);
    EXPECT_EQ(pages.CurrentPage(), pages.PageCount() - 1);
    support::Type(find, "no such row");
    QTest::keyClick(&find, Qt::Key_Return);
    EXPECT_EQ(Find<QLabel>(viewer, "lblWork").text(), QStringLiteral("Not found"));
    EXPECT_TRUE(viewer.isVisible());

    auto& zoom = Find<QComboBox>(viewer, "cboZoom");
    Trigger(viewer, "mnuFitPage");
    EXPECT_EQ(zoom.currentText(), QStringLiteral("Fit page"));
    // Pages that are all in view can still be chosen one by one.
    pages.SetZoom(10);
    Trigger(viewer, "mnuFirst");
    for (int page = 0; page < pages.PageCount(); ++page, Trigger(viewer, "mnuNext"))
        EXPECT_EQ(number.value(), page + 1);
    EXPECT_FALSE(Find<QAction>(viewer, "mnuNext").isEnabled());
    zoom.setEditText(QStringLiteral("130"));
    QTest::keyClick(zoom.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(qRound(pages.Zoom()), 130);
    zoom.setEditText(QStringLiteral("wide"));
    QTest::keyClick(zoom.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(zoom.currentText(), QStringLiteral("130%"));
}

TEST_F(ViewerTest, ShowsFirstPagesWhileTheRestIsLaidOutAndStopsOnCancel) {
    const int index = MakeReport("long.rpt", LongTable(60'000));
    int calls = 0;
    int seen = 0;
    core::SetMessagePump([&] {
        frmReportViewer& viewer = Viewer();
        seen = Find<platform::qt::PagePreview>(viewer, "vp").PageCount();
        EXPECT_TRUE(viewer.isVisible());
        EXPECT_FALSE(Find<QAction>(viewer, "mnuPrint").isEnabled());
        if (++calls == 1) Find<QPushButton>(viewer, "cmdCancel").click();
    });
    frmReportViewer& viewer = View(index);
    EXPECT_EQ(calls, 1);
    EXPECT_GT(seen, 0);
    EXPECT_LT(viewer.Document().PageCount(), 1'000U);
    EXPECT_THAT(Find<QLabel>(viewer, "lblWork").text().toStdString(), StartsWith("Incomplete"));
    EXPECT_FALSE(Find<QAction>(viewer, "mnuExportPDF").isEnabled());
    EXPECT_THAT(Heard(), IsEmpty());

    core::SetMessagePump({});
    Trigger(viewer, "mnuRefresh");
    EXPECT_TRUE(Find<QAction>(viewer, "mnuExportPDF").isEnabled());
}

TEST_F(ViewerTest, SaysWhyADefinitionCannotBeRunAndLivesOn) {
    frmReportViewer& viewer =
        View(MakeReport("bad.rpt", "[TEXT]\nPARAGRAPH=first\n\nSQLTABLES=x\n"));
    const auto heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_THAT(heard[0], HasSubstr("bad.rpt, line 4"));
    EXPECT_FALSE(viewer.InRun());
    View(MakeReport("c.rpt", kPerTenant));
    EXPECT_TRUE(Find<QWidget>(viewer, "fraChoices").isVisible());
    // The title and the questions of the report before would be taken for its own.
    View(reports::FindReportNamed("bad.rpt"));
    EXPECT_EQ(viewer.windowTitle(), QStringLiteral("Vestrel Report Viewer - bad"));
    EXPECT_FALSE(Find<QWidget>(viewer, "fraChoices").isVisible());
    static_cast<void>(Heard());
    View(MakeReport("d.rpt", "[TEXT]\nPARAGRAPH=until %enddate%\n"));
    EXPECT_THAT(TextOf(viewer), HasSubstr("until"));
    EXPECT_TRUE(Find<DateEdit>(viewer, "dpEndDate").isVisible());
    View(MakeReport("e.rpt", "[TEXT]\nPARAGRAPH=always\n"));
    EXPECT_FALSE(Find<DateEdit>(viewer, "dpEndDate").isVisible());
}

class Exports : public ViewerTest {
  protected:
    Exports() {
        index_ = MakeReport("a.rpt", "[HEADER]\nTITLE=The Roll\n[TEXT]\nPARAGRAPH=Hello.\n");
    }
    int index_;
};

TEST_F(Exports, ProposeTheFirstFreeNameAndTellWhereTheFileIs) {
    struct Case {
        const char* action;
        const char* title;
        const char* filter;
        const char* patterns;
        const char* extension;
        const char* done;
        const char* contents;
    };
    const Case cases[] = {{"mnuExportHTML", "Saving HTML Report File", "HyperText Markup Language",
                           "*.html", "html", "HTML document saved to ", "<!DOCTYPE html>"},
                          {"mnuExportPDF", "Saving PDF Report File", "Portable Document Format",
                           "*.pdf", "pdf", "PDF document saved to ", "%PDF-"},
                          {"mnuExportRTF", "Saving RTF Report File", "Rich Text File", "*.rtf",
                           "rtf", "RTF document saved to ", "{\\rtf1"}};
    reports::SaveLastSaveDir(PathTo(""));
    frmReportViewer& viewer = View(index_);
    Find<QAction>(viewer, "mnuOpenExport").setChecked(false);
    for (const Case& one : cases) {
        MakeFile("rpt0001." + std::string(one.extension), "taken");
        const std::string path = PathTo("out/mine." + std::string(one.extension));
        std::filesystem::create_directories(PathTo("out"));
        support::ScriptedChoosers choosers({path});
        reports::SaveLastSaveDir(PathTo(""));
        Trigger(viewer, one.action);
        ASSERT_EQ(choosers.Asked().size(), 1U);
        EXPECT_EQ(choosers.Asked()[0].title, one.title);
        EXPECT_EQ(choosers.Asked()[0].start, PathTo("rpt0002." + std::string(one.extension)));
        ASSERT_EQ(choosers.Asked()[0].filters.size(), 1U);
        EXPECT_EQ(choosers.Asked()[0].filters[0].name, one.filter);
        EXPECT_EQ(choosers.Asked()[0].filters[0].patterns, one.patterns);
        EXPECT_THAT(Heard(), ElementsAre("Success: " + (one.done + path)));
        EXPECT_THAT(platform::ReadWholeFile(path), StartsWith(one.contents));
        EXPECT_EQ(reports::LastSaveDir(), PathTo("out/"));
    }
}

TEST_F(Exports, OpenTheFileGiveNamesAnEndingAndEndSilentlyWhenCancelled) {
    const support::KeepingDesktop desktop;
    frmReportViewer& viewer = View(index_);
    {
        support::ScriptedChoosers nobody;
        Trigger(viewer, "mnuExportRTF");
    }
    EXPECT_THAT(desktop.Opened(), IsEmpty());
    support::ScriptedChoosers choosers(
        {PathTo("Roll 11.22.2026"), PathTo("Roll 11.22.2026"), PathTo("no folder/x.pdf")});
    Trigger(viewer, "mnuExportHTML");
    EXPECT_THAT(desktop.Opened(), ElementsAre(PathTo("Roll 11.22.2026.html")));
    EXPECT_THAT(Heard(), IsEmpty());
    Trigger(viewer, "mnuExportHTML"); // the file that the ending leads to is there: No
    ASSERT_EQ(Heard().size(), 1U);
    EXPECT_EQ(desktop.Opened().size(), 1U);
    Trigger(viewer, "mnuExportPDF");
    EXPECT_THAT(Heard(), ElementsAre(HasSubstr("no folder/x.pdf")));
    EXPECT_EQ(reports::LastSaveDir(), PathTo(""));
}

/// A machine without a printer, where the dialog offers a file.
class NoUsualPrinter : public tests::FilePrinter {
  public:
    using FilePrinter::FilePrinter;
    std::unique_ptr<QPrinter> Usual() override { return nullptr; }
};

TEST_F(ViewerTest, PrintsAllPagesOrTheOneThatShows) {
    const std::string path = PathTo("printed.pdf");
    platform::qt::SetPrinterChooser(std::make_unique<tests::FilePrinter>(path));
    frmReportViewer& viewer = View(MakeReport("long.rpt", LongTable(200)));
    ASSERT_GT(viewer.Document().PageCount(), 2U);
    const auto pagesIn = [&path] {
        const std::string pdf = platform::ReadWholeFile(path);
        std::size_t count = 0;
        for (auto at = pdf.find("/Type/Page/"); at != std::string::npos;
             at = pdf.find("/Type/Page/", at + 1)) {
            ++count;
        }
        return count;
    };
    Trigger(viewer, "mnuPrint");
    EXPECT_EQ(pagesIn(), viewer.Document().PageCount());
    Trigger(viewer, "mnuPrintPage");
    EXPECT_EQ(pagesIn(), 1U);
    Trigger(viewer, "mnuPrint");
    platform::qt::SetPrinterChooser(std::make_unique<NoUsualPrinter>(path));
    Trigger(viewer, "mnuPrintPage");
    EXPECT_EQ(pagesIn(), 1U) << "the dialog offers the page that shows";
    platform::qt::SetPrinterChooser(
        std::make_unique<tests::FilePrinter>(PathTo("no folder/printed.pdf")));
    Trigger(viewer, "mnuPrint");
    EXPECT_THAT(Heard(), ElementsAre(HasSubstr("no folder/printed.pdf")));
}

TEST_F(ViewerTest, TakesMarginsAndOrientationFromPageSetup) {
    const int index = MakeReport("a.rpt", "[TEXT]\nPARAGRAPH=x\n");
    frmReportViewer& viewer = View(index);
    Trigger(viewer, "mnuPageSetup");
    auto& setup = *viewer.findChild<frmPageSetup*>();
    Find<QDoubleSpinBox>(setup, "txtMarginLeft").setValue(10);
    EXPECT_FALSE(
        Find<QDialogButtonBox>(setup, "buttons").button(QDialogButtonBox::Ok)->isEnabled());
    Find<QDoubleSpinBox>(setup, "txtMarginLeft").setValue(0.5);
    Find<QRadioButton>(setup, "optLandscape").setChecked(true);
    setup.accept();
    support::SettleEvents();
    EXPECT_EQ(viewer.Document().Info().setup.marginLeft, 720);
    EXPECT_EQ(viewer.Document().Page(0).Width(), 15'840);
    EXPECT_EQ(FindReport(index)->Orientation, platform::PageOrientation::Landscape);
    EXPECT_EQ(reports::ReadPageSetup().marginLeft, 720);

    // A report with an orientation of its own keeps it.
    View(MakeReport("b.rpt", "[HEADER]\nORIENTATION=PORTRAIT\n[TEXT]\nPARAGRAPH=x\n"));
    Trigger(viewer, "mnuPageSetup");
    auto& fixed = *viewer.findChild<frmPageSetup*>();
    EXPECT_FALSE(Find<QRadioButton>(fixed, "optLandscape").isEnabled());
    fixed.accept();
    support::SettleEvents();
    EXPECT_EQ(viewer.Document().Page(0).Width(), 12'240);
}

TEST_F(ViewerTest, ClosesOnlyAfterItsOwnWork) {
    const int index = MakeReport("long.rpt", LongTable(60'000));
    bool closed = false;
    core::SetMessagePump([&] {
        if (!std::exchange(closed, true)) Viewer().close();
    });
    reports::screens::ViewReport(index);
    core::SetMessagePump({});
    support::SettleEvents();
    ASSERT_TRUE(closed);
    EXPECT_THROW(Viewer(), std::runtime_error);
}

TEST_F(ViewerTest, GivesUpARunForTheNextOne) {
    MakeReport("a.rpt", "[GENERAL]\nDESCRIPTION=Other\n[TEXT]\nPARAGRAPH=other\n");
    const int index = MakeReport("long.rpt", LongTable(60'000));
    const int found = reports::FindReportNamed("Other");
    bool asked = false;
    core::SetMessagePump([&] {
        if (!std::exchange(asked, true)) reports::screens::ViewReport(found);
    });
    frmReportViewer& viewer = View(index);
    ASSERT_TRUE(asked);
    EXPECT_THAT(TextOf(viewer), HasSubstr("other"));
    EXPECT_TRUE(viewer.Document().IsComplete());
}

} // namespace
