#include <QClipboard>
#include <QTableWidget>
#include <QtCharts/QChart>

#include "books/screens/frmDepreciation.h"
#include "platform/qt/charts/SeriesChart.h"
#include "platform/values/Errors.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using books::screens::frmDepreciation;
using platform::qt::SeriesChart;

class DepreciationScreen : public ScreenTest {
  protected:
    static QPointer<frmDepreciation> Open() {
        return Show<frmDepreciation>(7, "1 Elm Street", 100000, "07/04/2020", "Straight Line", 39);
    }
};

TEST_F(DepreciationScreen, ShowsTheScheduleAsGridAndChart) {
    const auto form = Open();
    EXPECT_EQ(form->windowTitle(), "Depreciation Schedule for 1 Elm Street");
    const auto& grid = Find<QTableWidget>(*form, "grd");
    ASSERT_EQ(grid.rowCount(), 29);
    const char* titles[] = {"Period #",        "Period End",   "Beginning Value",
                            "Depreciated Amt", "Ending Value", "Method"};
    const char* first[] = {"1",        "12/31/2020", "100,000.00",
                           "1,667.00", "98,333.00",  "Straight Line"};
    for (int column = 0; column < 6; ++column) {
        EXPECT_EQ(grid.horizontalHeaderItem(column)->text(), titles[column]);
        EXPECT_EQ(grid.item(0, column)->text(), first[column]);
    }
    auto& types = Find<QComboBox>(*form, "cboChartType");
    ASSERT_EQ(types.count(), 10);
    const auto& chart = *Find<SeriesChart>(*form, "chtValues").chart();
    for (int type = 0; type < types.count(); ++type) {
        types.setCurrentIndex(type);
        ASSERT_FALSE(chart.series().empty()) << type;
        EXPECT_EQ(chart.axes(Qt::Horizontal).size(), 1) << type;
    }
    EXPECT_EQ(types.itemText(9), "2D Combo");
    EXPECT_EQ(chart.series().size(), 2) << "bars, and a line over them";

    support::ClickAction(*form, "COPY");
    const QString clip = QApplication::clipboard()->text();
    EXPECT_TRUE(clip.startsWith(QLatin1String(
        "Period Ending\tBeginning Of Period\tPeriod Loss\tEnd Of Period\tMethod Used\n"
        "12/31/2020\t100,000.00\t")))
        << clip.left(120).toStdString();

    EXPECT_TRUE(frmDepreciation::BringToFront(7));
    EXPECT_FALSE(frmDepreciation::BringToFront(8));
    support::ClickAction(*form, "CLOSE");
    SettleEvents();
    EXPECT_TRUE(form.isNull());
    EXPECT_FALSE(frmDepreciation::BringToFront(7));
}

TEST_F(DepreciationScreen, IsReachedByKeysAndReadAloud) {
    const auto form = Open();
    EXPECT_THAT(MnemonicFaults(*form), testing::IsEmpty());
    EXPECT_THAT(TabOrderFaults(*form), testing::IsEmpty());
    EXPECT_THAT(NameFaults(*form), testing::IsEmpty());
    EXPECT_THAT(Portray(*form, "frmDepreciation"), testing::IsEmpty());
    Find<QTabWidget>(*form, "tabs").setCurrentIndex(1);
    EXPECT_THAT(Portray(*form, "frmDepreciation_chart"), testing::IsEmpty());
    frmDepreciation junk;
    EXPECT_THROW(junk.Setup(8, "x", 1, "soon", "", 0), platform::ConversionError);
    EXPECT_FALSE(junk.isVisible());
}

} // namespace
} // namespace support
