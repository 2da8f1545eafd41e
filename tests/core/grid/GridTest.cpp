#include "core/grid/Grid.h"

#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <numeric>

#include "core/Settings.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::grid::AutoSizeByLength;
using core::grid::AutoSizeGrid;
using core::grid::Grid;
using core::grid::LoadColumnWidths;
using core::grid::LoadGrid;
using core::grid::SaveColumnWidths;
using core::grid::SetCellColor;
using core::grid::Sizing;

constexpr std::string_view kGridInfo = R"(SOFTWARE\Vestrel\GridInfo)";

class GridTest : public ScreenTest {
  protected:
    GridTest() {
        grid_.setObjectName(QStringLiteral("grd"));
        grid_.resize(600, 300);
        SetupGrid(grid_);
        grid_.show();
    }

    void Load(std::string_view sql) {
        platform::Recordset rows;
        rows.Open(core::App().Connection, sql);
        LoadGrid(grid_, std::move(rows));
    }
    void LoadUnits() { Load("SELECT IdUnit, Unit, Status, Rent FROM Unit ORDER BY Unit"); }
    int TotalWidth() const { return grid_.horizontalHeader()->length(); }
    QVariant Look(int row, int column, int role) {
        return grid_.Model().data(grid_.Model().index(row, column), role);
    }

    Grid grid_;
};

TEST_F(GridTest, FormatsCellsByTheTypeOfTheirColumn) {
    Run("UPDATE Mortgage SET CurrentI = 0.0725 WHERE IdMortgage = 50");
    Run("UPDATE Unit SET Bedrooms = 3 WHERE IdUnit = 20");
    Load(
        "SELECT IdMortgage, CurrentI * 100 AS [I Rate], CurrentI * 100 AS [Rate], Hide "
        "FROM Mortgage WHERE IdMortgage = 50");
    EXPECT_EQ(support::GridText(grid_), "IdMortgage|I Rate|Rate|Hide\n50|7.250|7.3|No\n");
    Run("UPDATE Unit SET Rent = NULL, SqFt = NULL WHERE IdUnit = 21");
    Load(
        "SELECT IdUnit, Rent, -Rent AS [Back], SqFt, Status FROM Unit WHERE IdUnit < 22 "
        "ORDER BY IdUnit");
    EXPECT_EQ(support::GridText(grid_),
              "IdUnit|Rent|Back|SqFt|Status\n"
              "20|950.50|(950.50)| |Hold\n"
              "21| | | | \n")
        << "a null is one blank";
    Load(
        "SELECT DateValue('3/7/2024') AS [Day], True AS [Yes], '00' AS [Text], Unit.Bedrooms "
        "FROM Unit WHERE IdUnit = 20");
    EXPECT_EQ(support::GridText(grid_), "Day|Yes|Text|Bedrooms\n03/07/2024|Yes|00|3\n");
}

TEST_F(GridTest, NumbersStandAtTheRightAndCaptionsAreBold) {
    LoadUnits();
    EXPECT_TRUE(Look(0, 3, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_TRUE(Look(0, 1, Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
    const auto alignment = [&](int column) {
        return grid_.Model().headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    };
    EXPECT_TRUE(alignment(3) & Qt::AlignRight) << "a caption is aligned like its cells";
    EXPECT_TRUE(alignment(1) & Qt::AlignLeft);
    const auto caption = [&] {
        return grid_.Model().headerData(1, Qt::Horizontal, Qt::FontRole).value<QFont>();
    };
    EXPECT_TRUE(caption().bold());
    platform::Recordset rows;
    rows.Open(core::App().Connection, "SELECT IdUnit, Unit FROM Unit");
    EXPECT_EQ(LoadGrid(grid_, std::move(rows), core::grid::HeaderFont::Plain),
              platform::FieldType::Long);
    EXPECT_FALSE(caption().bold());
}

TEST_F(GridTest, WithoutRowsTheCaptionsStand) {
    grid_.SetEmptyText(QStringLiteral("Nothing here"));
    Load("SELECT IdUnit, Unit, Rent FROM Unit WHERE IdUnit = 0");
    AutoSizeGrid(grid_, 1, Sizing::FitGrid);
    EXPECT_EQ(support::GridText(grid_), "Unit|Rent\n");
    EXPECT_EQ(grid_.SelectedId(), 0);
    EXPECT_EQ(grid_.SelectedText(), QString());
}

TEST_F(GridTest, ColumnsMayShowByAnotherFormat) {
    Load("SELECT IdUnit, Rent, 0 AS [None], 5 AS [Some] FROM Unit WHERE IdUnit = 20");
    FormatColumn(grid_, 1, "0.0000");
    FormatColumnYesNo(grid_, 2);
    FormatColumnYesNo(grid_, 3);
    FormatColumnYesNo(grid_, 9);
    EXPECT_EQ(support::GridText(grid_), "IdUnit|Rent|None|Some\n20|950.5000|No|Yes\n");
}

TEST_F(GridTest, ColorsOneCellAndKeepsItsTextLegible) {
    LoadUnits();
    SetCellColor(grid_, 2, 1, QColor::fromRgb(core::grid::kPaleYellow));
    SetCellColor(grid_, 9, 1, Qt::red);
    SetCellColor(grid_, 2, 9, Qt::red);
    SetCellColor(grid_, -1, -1, Qt::red);
    EXPECT_EQ(Look(1, 2, Qt::BackgroundRole).value<QColor>(), QColor(0xFF, 0xFF, 0x80));
    EXPECT_EQ(Look(1, 2, Qt::ForegroundRole).value<QColor>(), QColor(Qt::black));
    EXPECT_FALSE(Look(0, 2, Qt::BackgroundRole).isValid());
    EXPECT_FALSE(Look(1, 3, Qt::BackgroundRole).isValid());
    LoadUnits();
    EXPECT_FALSE(Look(1, 2, Qt::BackgroundRole).isValid()) << "other rows, other colours";
}

TEST_F(GridTest, AColorRuleFollowsItsCellWhenRowsAreNarrowed) {
    LoadUnits();
    grid_.Model().SetColorRule(2, [](const platform::Value& value) {
        return value.IsNull() ? std::nullopt : std::optional<QColor>(Qt::red);
    });
    EXPECT_FALSE(Look(0, 2, Qt::BackgroundRole).isValid());
    EXPECT_TRUE(Look(2, 2, Qt::BackgroundRole).isValid() ||
                Look(1, 2, Qt::BackgroundRole).isValid());
    grid_.Model().Narrow(QStringLiteral("hold"), 1);
    ASSERT_EQ(grid_.Model().rowCount(), 1);
    EXPECT_TRUE(Look(0, 2, Qt::BackgroundRole).isValid());
}

TEST_F(GridTest, FitGridFillsTheWidthToThePixelAlsoAfterAResize) {
    LoadUnits();
    AutoSizeGrid(grid_, 1, Sizing::FitGrid);
    for (const int width : {600, 431, 1200}) {
        grid_.resize(width, 300);
        EXPECT_EQ(TotalWidth(), grid_.viewport()->width());
        EXPECT_TRUE(grid_.isColumnHidden(0));
        EXPECT_EQ(grid_.horizontalScrollBar()->maximum(), 0);
    }
}

TEST_F(GridTest, FitGridLetsTheWidestColumnsGiveWay) {
    Run("UPDATE Unit SET Status = '" + std::string(200, 'x') + "' WHERE IdUnit = 20");
    LoadUnits();
    const std::vector<int> wanted = grid_.WantedWidths();
    AutoSizeGrid(grid_, 1, Sizing::FitGrid);
    EXPECT_GE(grid_.columnWidth(1), wanted[1]);
    EXPECT_GE(grid_.columnWidth(3), wanted[3]);
    EXPECT_LT(grid_.columnWidth(2), wanted[2]);
    EXPECT_EQ(TotalWidth(), grid_.viewport()->width());
}

TEST_F(GridTest, FillGridCutsNoTextAndLeavesNoRoom) {
    LoadUnits();
    const std::vector<int> wanted = grid_.WantedWidths();
    AutoSizeGrid(grid_, 0, Sizing::FillGrid);
    EXPECT_EQ(TotalWidth(), grid_.viewport()->width());
    grid_.resize(60, 300);
    for (int column = 0; column < grid_.Model().columnCount(); ++column)
        EXPECT_EQ(grid_.columnWidth(column), wanted[static_cast<std::size_t>(column)]) << column;
}

TEST_F(GridTest, ARowsColourLiesBelowThatOfACell) {
    LoadUnits();
    grid_.Model().SetRowRule(
        [](int row) { return row == 0 ? std::optional<QColor>(Qt::green) : std::nullopt; });
    SetCellColor(grid_, 1, 0, Qt::red);
    EXPECT_EQ(Look(0, 1, Qt::BackgroundRole).value<QColor>(), QColor(Qt::red));
    EXPECT_EQ(Look(0, 2, Qt::BackgroundRole).value<QColor>(), QColor(Qt::green));
    EXPECT_FALSE(Look(1, 2, Qt::BackgroundRole).isValid());
}

TEST_F(GridTest, FitTextGivesEachColumnItsWidestText) {
    LoadUnits();
    AutoSizeGrid(grid_, 1, Sizing::FitText);
    EXPECT_TRUE(grid_.isColumnHidden(0));
    const QFontMetrics metrics(grid_.font());
    EXPECT_GE(grid_.columnWidth(3), metrics.horizontalAdvance(QStringLiteral("950.50")));
    const int before = grid_.columnWidth(3);
    Run("UPDATE Unit SET Rent = 1000000 WHERE IdUnit = 20");
    LoadUnits();
    AutoSizeGrid(grid_, 1, Sizing::FitText);
    EXPECT_GT(grid_.columnWidth(3), before);
}

TEST_F(GridTest, ManualAndEmptyGridsAreLeftAlone) {
    LoadUnits();
    grid_.setColumnWidth(1, 77);
    AutoSizeGrid(grid_, 1, Sizing::Manual);
    EXPECT_EQ(grid_.columnWidth(1), 77);
    EXPECT_FALSE(grid_.isColumnHidden(0));
    Grid unloaded;
    AutoSizeGrid(unloaded, 1, Sizing::FitGrid);
    AutoSizeByLength(unloaded, 1);
    LoadColumnWidths(unloaded);
    SaveColumnWidths(unloaded);
}

TEST_F(GridTest, SizesByLengthToo) {
    Load("SELECT IdUnit, 'ab' AS [A], 'abcd' AS [B] FROM Unit");
    AutoSizeByLength(grid_, 1);
    EXPECT_TRUE(grid_.isColumnHidden(0));
    EXPECT_EQ(TotalWidth(), grid_.viewport()->width());
    EXPECT_NEAR(grid_.columnWidth(2), 2 * grid_.columnWidth(1), 2);
}

TEST_F(GridTest, RemembersWidthsUnderTheGridsName) {
    LoadUnits();
    AutoSizeGrid(grid_, 1, Sizing::FitText);
    grid_.setColumnWidth(1, 123);
    SaveColumnWidths(grid_);
    const std::string stored = core::GetRegString(kGridInfo, "ColData_grd", "");
    EXPECT_EQ(stored.substr(0, 6), "0,123,");

    Grid again;
    again.setProperty("tag", QStringLiteral("grd"));
    platform::Recordset rows;
    rows.Open(core::App().Connection, "SELECT IdUnit, Unit, Status, Rent FROM Unit");
    LoadGrid(again, std::move(rows));
    LoadColumnWidths(again);
    EXPECT_TRUE(again.isColumnHidden(0));
    EXPECT_EQ(again.columnWidth(1), 123);
}

TEST_F(GridTest, IgnoresStoredWidthsThatDoNotFit) {
    LoadUnits();
    grid_.setColumnWidth(1, 88);
    for (const char* const stored : {"", "1,2,3", "1,2,3,4,5", "0,a,3,4", "0,-5,3,4"}) {
        core::SetRegString(kGridInfo, "ColData_grd", stored);
        LoadColumnWidths(grid_);
        EXPECT_EQ(grid_.columnWidth(1), 88) << stored;
    }
}

TEST_F(GridTest, TellsWhichRecordIsChosen) {
    LoadUnits();
    QSignalSpy moved(&grid_, &Grid::SelectionMoved);
    QSignalSpy chosen(&grid_, &Grid::RowChosen);
    EXPECT_TRUE(grid_.SelectId(20));
    EXPECT_EQ(grid_.SelectedId(), 20);
    EXPECT_EQ(moved.count(), 1);
    EXPECT_FALSE(grid_.SelectId(999));
    QTest::keyClick(&grid_, Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.front().front().toInt(), 20);
}

TEST_F(GridTest, ChoosesOnlyWhatIsHighlighted) {
    LoadUnits();
    QSignalSpy chosen(&grid_, &Grid::RowChosen);
    grid_.setFocus();
    EXPECT_EQ(grid_.SelectedId(), 0) << "the row in focus isn't highlighted";
    QTest::keyClick(&grid_, Qt::Key_Return);
    EXPECT_EQ(chosen.count(), 0);
    grid_.SelectNone(7);
    QTest::keyClick(&grid_, Qt::Key_Up);
    EXPECT_EQ(grid_.currentIndex().row(), 2) << "the first step is onto the row, not over it";
    EXPECT_EQ(grid_.SelectedCount(), 1);
    QTest::keyClick(&grid_, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(grid_.SelectedCount(), 2);
    EXPECT_EQ(grid_.SelectedId(), 0) << "several rows are no record";
    QTest::keyClick(&grid_, Qt::Key_Return);
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(GridTest, StoresNoWidthsThatNobodySaw) {
    Grid unseen;
    unseen.setObjectName(QStringLiteral("unseen"));
    platform::Recordset rows;
    rows.Open(core::App().Connection, "SELECT IdUnit, Unit FROM Unit");
    LoadGrid(unseen, std::move(rows));
    SaveColumnWidths(unseen);
    EXPECT_EQ(core::GetRegString(kGridInfo, "ColData_unseen", "-"), "-");
}

TEST_F(GridTest, CopiesTheSelectedRowsWithoutHiddenColumns) {
    LoadUnits();
    grid_.setColumnHidden(0, true);
    grid_.selectAll();
    QTest::keyClick(&grid_, Qt::Key_C, Qt::ControlModifier);
    grid_.CopySelection();
    const QString text = QApplication::clipboard()->text();
    EXPECT_EQ(text.count(QLatin1Char('\n')), 3);
    EXPECT_TRUE(text.contains(QStringLiteral("B\tHold\t950.50\n"))) << text.toStdString();
}

TEST_F(GridTest, ShowsTheFirstRowsOfALongListWhileTheOthersAreRead) {
    constexpr int kRows = 3 * platform::kFirstRowsRead;
    {
        platform::UnitOfWork work(core::App().Connection);
        for (int id = 1; id <= kRows; ++id) {
            core::App().Connection.Execute("INSERT INTO Mileage (IdMileage, Vehicle) VALUES (?, ?)",
                                           {id, id == kRows ? "A vehicle of a long name" : "Van"});
        }
        work.Commit();
    }
    platform::Recordset rows;
    rows.Open(core::App().Connection, "SELECT IdMileage, Vehicle FROM Mileage",
              platform::CursorMode::ReadAsNeeded);
    LoadGrid(grid_, std::move(rows));
    grid_.Model().ReadOn();
    AutoSizeGrid(grid_, 1, Sizing::FitText);
    const int before = grid_.columnWidth(1);
    EXPECT_EQ(grid_.Model().rowCount(), kRows);
    EXPECT_EQ(grid_.Model().RowsAtHand(), platform::kFirstRowsRead);
    const QSignalSpy read(&grid_.Model(), &core::grid::GridModel::AllRead);
    Run("DELETE * FROM Mileage");
    SettleEvents();
    EXPECT_EQ(read.count(), 1);
    EXPECT_EQ(grid_.Model().RowsAtHand(), kRows);
    EXPECT_GT(grid_.columnWidth(1), before) << "the widths are those of all rows now";
    EXPECT_TRUE(grid_.SelectId(kRows));
}

TEST_F(GridTest, NarrowsToRowsWithTheTextInAnyShownColumn) {
    LoadUnits();
    auto& model = grid_.Model();
    model.Narrow(QStringLiteral("HOLD"), 1);
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.CellText(0, 1), QStringLiteral("B"));
    model.Narrow(QStringLiteral("HOLDx"), 1);
    EXPECT_EQ(model.rowCount(), 0);
    model.Narrow(QStringLiteral("20"), 1);
    EXPECT_EQ(model.rowCount(), 0) << "the id is not searched";
    model.Narrow(QStringLiteral("950.5"), 1);
    EXPECT_EQ(model.rowCount(), 1);
    model.Narrow({}, 1);
    EXPECT_EQ(model.rowCount(), 3);
}

TEST_F(GridTest, ALongListNarrowsInSlicesToTheSameRows) {
    constexpr int kRows = 50'000;
    core::App().Connection.RunScript(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 50000) "
        "INSERT INTO Room (IdRoom, RoomType) SELECT i + 100000, 'Room ' || i FROM n");
    Load("SELECT IdRoom, RoomType FROM Room WHERE IdRoom > 100000 ORDER BY IdRoom");
    auto& model = grid_.Model();
    ASSERT_EQ(model.rowCount(), kRows);
    QSignalSpy ended(&model, &core::grid::GridModel::NarrowingEnded);
    model.Narrow(QStringLiteral("room 4"), 1);
    EXPECT_GT(model.rowCount(), 0) << "the first rows are there at once";
    EXPECT_TRUE(model.IsNarrowing());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !model.IsNarrowing(); }));
    EXPECT_EQ(model.rowCount(), 11'111);
    EXPECT_EQ(model.CellText(11'110, 1), QStringLiteral("Room 49999"));
    model.Narrow(QStringLiteral("room 49"), 1);
    EXPECT_EQ(model.rowCount(), 1'111) << "on from what is left";
    EXPECT_EQ(ended.count(), 2);
    model.Narrow(QStringLiteral("ROOM"), 1);
    model.Narrow({}, 1);
    EXPECT_FALSE(model.IsNarrowing()) << "clearing the text ends the search";
    EXPECT_EQ(model.rowCount(), kRows);
    model.Narrow(QStringLiteral("x"), 1);
    LoadUnits();
    EXPECT_EQ(model.rowCount(), 3);
}

} // namespace
} // namespace support
