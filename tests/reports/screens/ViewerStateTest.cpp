#include <gmock/gmock.h>

#include "core/MessagePump.h"
#include "core/Preferences.h"
#include "core/forms/OpenForms.h"
#include "platform/qt/preview/PageThumbnails.h"
#include "platform/system/Paths.h"
#include "reports/ReportList.h"
#include "reports/ViewerSettings.h"
#include "reports/screens/ViewerFixture.h"
#include "reports/screens/frmPageSetup.h"
#include "support/ScriptedChoosers.h"
#include "support/screens/Screens.h"

// The viewer beside everything else that the user does in the meantime: settings that change under
// it, commands given twice or during a run, and ends in the middle of it.

namespace support {
namespace {

using reports::FindReport;
using reports::screens::frmPageSetup;
using reports::screens::frmReportViewer;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::ViewerTest;

class ViewerState : public ViewerTest {
  protected:
    /// A report of many rows from the books, so that a query is open while it is laid out.
    int MakeLongQuery() {
        core::App().Connection.Execute("DELETE FROM Tenant");
        for (int id = 1; id <= 60; ++id)
            core::App().Connection.Execute("INSERT INTO Tenant (IdTenant) VALUES (?)", {id});
        return MakeReport("query.rpt",
                          "[DATA]\nSQLQUERY=SELECT A.IdTenant, B.IdTenant AS [Second], "
                          "C.IdTenant AS [Third] FROM Tenant AS A, Tenant AS B, "
                          "Tenant AS C\nSHOWTABLE\n");
    }
    /// Calls `work` once, in the middle of the next run.
    void InTheMiddle(const std::function<void()>& work) {
        isDone_ = false;
        core::SetMessagePump([this, work] {
            if (!std::exchange(isDone_, true)) work();
        });
    }
    static std::string Reason(const QWidget& viewer, const char* action) {
        return Find<QAction>(viewer, action).toolTip().toStdString();
    }

    bool isDone_ = false;
};

TEST_F(ViewerState, KeepsWhatIsSetWhileItIsOpen) {
    const int index = MakeReport("a.rpt", "[TEXT]\nPARAGRAPH=x\n");
    frmReportViewer& viewer = View(index);
    auto& opens = Find<QAction>(viewer, "mnuOpenExport");
    EXPECT_TRUE(opens.isChecked());
    opens.trigger();
    EXPECT_FALSE(reports::ReadOpenExport());
    Trigger(viewer, "mnuRefresh");
    EXPECT_FALSE(opens.isChecked()) << "the next run reads the setting";

    // Preferences and page set-up have screens of their own too.
    core::Preferences().ViewNavbar = false;
    platform::PageSetup setup = reports::ReadPageSetup();
    setup.marginTop = 2000;
    reports::SavePageSetup(setup);
    Trigger(viewer, "mnuRefresh");
    EXPECT_FALSE(Find<platform::qt::PageThumbnails>(viewer, "NavBar").isVisible());
    EXPECT_EQ(viewer.Document().Info().setup.marginTop, 2000);
    setup.marginTop = 2100;
    reports::SavePageSetup(setup);
    viewer.close();
    EXPECT_EQ(reports::ReadPageSetup().marginTop, 2100) << "the viewer still shows 2000";
}

TEST_F(ViewerState, SaysWhyACommandIsDisabled) {
    const char* const commands[] = {"mnuPrint",     "mnuPrintPage", "mnuExportHTML",
                                    "mnuExportPDF", "mnuExportRTF", "mnuPageSetup"};
    InTheMiddle([&] {
        for (const char* command : commands) {
            EXPECT_FALSE(Find<QAction>(Viewer(), command).isEnabled()) << command;
            EXPECT_THAT(Reason(Viewer(), command), HasSubstr("still being laid out")) << command;
        }
        Find<QPushButton>(Viewer(), "cmdCancel").click();
    });
    frmReportViewer& viewer = View(MakeReport("long.rpt", LongTable(60'000)));
    core::SetMessagePump({});
    EXPECT_THAT(Reason(viewer, "mnuPrint"), HasSubstr("press F5"));
    EXPECT_THAT(Reason(viewer, "mnuReports"), HasSubstr("catalogue"));

    // A page that is there can be printed, though not all of them are.
    const std::string path = PathTo("page.pdf");
    platform::qt::SetPrinterChooser(std::make_unique<tests::FilePrinter>(path));
    Trigger(viewer, "mnuPrint");
    EXPECT_FALSE(platform::FileExists(path));
    Trigger(viewer, "mnuPrintPage");
    EXPECT_TRUE(platform::FileExists(path));

    Trigger(viewer, "mnuRefresh");
    for (const char* command : commands) {
        EXPECT_TRUE(Find<QAction>(viewer, command).isEnabled()) << command;
        EXPECT_THAT(Reason(viewer, command), testing::Not(HasSubstr("F5"))) << command;
    }
}

TEST_F(ViewerState, OpensPageSetupOnceAndForItsOwnReport) {
    const int other = MakeReport("b.rpt", "[GENERAL]\nDESCRIPTION=Other\n[TEXT]\nPARAGRAPH=b\n");
    ASSERT_NE(other, 0);
    const int index = MakeReport("a.rpt", "[GENERAL]\nDESCRIPTION=First\n[TEXT]\nPARAGRAPH=a\n");
    const int second = reports::FindReportNamed("Other");
    frmReportViewer& viewer = View(index);
    Trigger(viewer, "mnuPageSetup");
    Trigger(viewer, "mnuPageSetup");
    const auto dialogs = viewer.findChildren<frmPageSetup*>();
    ASSERT_EQ(dialogs.size(), 1);
    // The main window runs another report in the meantime.
    View(second);
    Find<QRadioButton>(*dialogs[0], "optLandscape").setChecked(true);
    dialogs[0]->accept();
    SettleEvents();
    EXPECT_EQ(FindReport(index)->Orientation, platform::PageOrientation::Landscape);
    EXPECT_EQ(FindReport(second)->Orientation, platform::PageOrientation::Portrait);
}

TEST_F(ViewerState, TakesCommandsOfARunOneAfterTheOther) {
    const int index = MakeReport("long.rpt", LongTable(240'000));
    InTheMiddle([&] {
        for (int click = 0; click < 3; ++click) {
            Trigger(Viewer(), "mnuRefresh");
            Trigger(Viewer(), "mnuExportPDF");
            Trigger(Viewer(), "mnuPrint");
            Viewer().RunReport(index);
        }
    });
    frmReportViewer& viewer = View(index);
    EXPECT_TRUE(viewer.Document().IsComplete());
    EXPECT_FALSE(viewer.InRun());
    EXPECT_THAT(Heard(), IsEmpty());

    // An export that is under way, and the report run again: the old file stays as it is.
    const std::string path = PathTo("out.pdf");
    MakeFile("out.pdf", "old");
    support::ScriptedChoosers choosers({path});
    InTheMiddle([&] {
        Trigger(Viewer(), "mnuExportPDF");
        Trigger(Viewer(), "mnuRefresh");
    });
    Trigger(viewer, "mnuExportPDF");
    ASSERT_TRUE(isDone_);
    EXPECT_EQ(choosers.Asked().size(), 1U);
    EXPECT_EQ(std::filesystem::file_size(path), 3U);
    EXPECT_TRUE(viewer.Document().IsComplete());
}

TEST_F(ViewerState, EndsWithTheProgramInTheMiddleOfARun) {
    InTheMiddle([&] {
        // As the main window does when it is closed.
        core::App().Connection.Close();
        core::forms::CloseAllForms();
    });
    reports::screens::ViewReport(MakeLongQuery());
    core::SetMessagePump({});
    SettleEvents();
    ASSERT_TRUE(isDone_);
    EXPECT_THROW(Viewer(), std::runtime_error);
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(ViewerState, ShowsAnEmptyReportForOneThatIsGone) {
    const int index = MakeReport("a.rpt", "[TEXT]\nPARAGRAPH=here\n");
    frmReportViewer& viewer = View(index);
    EXPECT_THAT(TextOf(viewer), HasSubstr("here"));
    std::filesystem::remove_all(core::App().ReportPath);
    Trigger(viewer, "mnuRefresh");
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_THAT(TextOf(viewer), testing::Not(HasSubstr("here")));
    EXPECT_EQ(viewer.Document().PageCount(), 1U);
    reports::LoadReportList();
    EXPECT_EQ(reports::ReportCount(), 1);
    Trigger(viewer, "mnuRefresh");
    EXPECT_THAT(Heard(), IsEmpty());
}

} // namespace
} // namespace support
