#include <gmock/gmock.h>

#include "reports/ReportList.h"
#include "reports/screens/ViewerFixture.h"
#include "reports/screens/frmPageSetup.h"
#include "support/screens/Driving.h"
#include "support/screens/Gallery.h"
#include "support/screens/ScreenChecks.h"

namespace {

using testing::IsEmpty;

class ReportGallery : public tests::ViewerTest {
  protected:
    static std::string Name(const QWidget& window, const char* name) {
        return std::string(name) + (window.devicePixelRatioF() > 1 ? "-150" : "");
    }
};

TEST_F(ReportGallery, ShowsTheViewer) {
    const int index =
        MakeReport("tenants.rpt",
                   "[GENERAL]\nDESCRIPTION=Tenant Directory\nSELECTITEM=Tenant\nDATERANGE=SELECT\n"
                   "[HEADER]\nTITLE=Tenant Directory\nSUBTITLE=All tenants\n"
                   "[DATA]\nSHOWTABLE\nSQLFIELDS=LastName, FirstName, Initial\n"
                   "SQLTABLES=Tenant\nHEADLINE=Tenants\nFOOTLINE=-\n" +
                       LongTable(150));
    reports::FindReport(index)->SelectedId = 30;
    reports::FindReport(index)->StartDate = platform::Date(2024, 1, 1);
    reports::FindReport(index)->EndDate = platform::Date(2024, 2, 29);
    auto& viewer = View(index);
    viewer.resize(1000, 720);
    auto& zoom = support::Find<QWidget>(viewer, "cboZoom");
    const QPoint middle = zoom.mapTo(&viewer, zoom.rect().center());
    EXPECT_TRUE(zoom.isAncestorOf(viewer.childAt(middle))) << "the footer is covered";
    EXPECT_THAT(support::LookFaults(viewer, Name(viewer, "frmReportViewer")), IsEmpty());

    Trigger(viewer, "mnuPageSetup");
    auto& setup = *viewer.findChild<reports::screens::frmPageSetup*>();
    EXPECT_THAT(support::Portray(setup, Name(setup, "frmPageSetup")), IsEmpty());
    EXPECT_THAT(support::MnemonicFaults(setup), IsEmpty());
    EXPECT_THAT(support::TabOrderFaults(setup), IsEmpty());
}

} // namespace
