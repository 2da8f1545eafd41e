#include <QHeaderView>

#include "core/Preferences.h"
#include "core/Settings.h"
#include "shell/screens/KestromFixture.h"
#include "support/screens/ColorChecks.h"

namespace support {
namespace {

using tests::KestromTest;

class ViewsOnScreen : public KestromTest {};

TEST_F(ViewsOnScreen, ShowTheRecordsOfTheirCategory) {
    Go("LEASES");
    EXPECT_EQ(GridText(Grid()),
              "Status|Tenant|Address|Unit|Date Active|Rent|Rent Status|Option\n"
              "MTM|Smith, John Q|12 Elm St|B| |950.50|Warning|No\n"
              "Notice|Smith, John Q|12 Elm St|A| |1,200.00|Late|No\n"
              "MTM|Smith, John Q|Oak Rd|1| |800.00|Paid|No\n");
    EXPECT_EQ(Status(), "Selected 3 Lease records");
    Go("ACCOUNTS");
    EXPECT_EQ(Column("Description"), "River Bank\nAl Owner\nJo Owner\n");
    Go("FINANCIAL");
    EXPECT_EQ(GridText(Grid()),
              "Effective Date|From|To|Amount|Category|Check #|Description\n"
              "05/01/2024|Ann|River Bank|12.50| | | \n");
    Go("WORKORDERS");
    EXPECT_EQ(Status(), "Selected 0 Work Order records");
}

TEST_F(ViewsOnScreen, FollowTheChoicesAboveThem) {
    Go("LEASES");
    Choose(Window(), "cboView", "MTM");
    EXPECT_EQ(Column("Rent"), "950.50\n800.00\n");
    Find<QWidget>(Window(), "chkShowHidden").setFocus();
    QTest::keyClick(&Find<QWidget>(Window(), "chkShowHidden"), Qt::Key_Space);
    EXPECT_EQ(Column("Rent"), "950.50\n800.00\n700.00\n");
    Choose(Window(), "cboView", "Broken");
    EXPECT_EQ(Status(), "Selected 0 Lease records");

    Go("FINANCIAL");
    EXPECT_FALSE(Find<QWidget>(Window(), "fraGeneral").isVisible());
    Choose(Window(), "cboDays", "All");
    EXPECT_EQ(Column("From"), "Ann\nBob\n");
    Choose(Window(), "cboFilter", "Building");
    EXPECT_EQ(Column("From"), "Ann\nBob\n");
    Choose(Window(), "cboFilterItem", "Oak Rd");
    EXPECT_EQ(Column("From"), "Bob\n");
    Choose(Window(), "cboFilter", "None");
    EXPECT_EQ(Find<QComboBox>(Window(), "cboFilterItem").count(), 1);
    EXPECT_EQ(Column("From"), "Ann\nBob\n");
}

TEST_F(ViewsOnScreen, ShowALongListBeforeAllOfItIsRead) {
    {
        platform::UnitOfWork work(core::App().Connection);
        for (int id = 2001; id <= 3500; ++id) {
            core::App().Connection.Execute(
                "INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, Amount) "
                "VALUES (?, '05/02/2024', ?, 1)",
                {id, id == 3500 ? "Zoe" : "Cy"});
        }
        work.Commit();
    }
    Window().SetSelectedDb(core::kTransaction);
    EXPECT_EQ(Status(), "Selected 1501 Transaction records");
    EXPECT_LT(Grid().Model().RowsAtHand(), 1501);
    Run("DELETE FROM Transactions WHERE IdTransaction = 3500");
    EXPECT_TRUE(Grid().SelectId(3500)) << "it is shown as it was read until a broadcast";
    support::Type(Find<QLineEdit>(Window(), "txtSearch"), "zoe");
    SettleEvents();
    EXPECT_EQ(Column("From"), "Zoe\n");
    core::NotifyAll(core::kTransaction, core::kRecordsChanged, 0);
    EXPECT_EQ(Status(), "Selected 1500 Transaction records");
    SettleEvents();
    EXPECT_EQ(Column("From"), "");
    ClickCaption("Amount");
    EXPECT_EQ(Status(), "Selected 1500 Transaction records sorted by Amount [ASC]");
    ClickCaption("Amount");
    Choose(Window(), "cboDays", "Last 30 days");
    Window().close();
    EXPECT_FALSE(core::App().Connection.IsOpen());
}

TEST_F(ViewsOnScreen, SortByAClickOnACaption) {
    Go("LEASES");
    ClickCaption("Rent");
    EXPECT_EQ(Column("Rent"), "800.00\n950.50\n1,200.00\n");
    EXPECT_EQ(Status(), "Selected 3 Lease records sorted by Rent [ASC]");
    ClickCaption("Rent");
    EXPECT_EQ(Column("Rent"), "1,200.00\n950.50\n800.00\n");
    ClickCaption("Address");
    EXPECT_EQ(Column("Address") + Column("Rent"),
              "Oak Rd\n12 Elm St\n12 Elm St\n800.00\n1,200.00\n950.50\n");
    EXPECT_EQ(Status(), "Selected 3 Lease records sorted by Address [DESC]");
}

TEST_F(ViewsOnScreen, AreFoundAsTheyWereLeft) {
    Go("LEASES");
    Choose(Window(), "cboView", "MTM");
    ClickCaption("Rent");
    Go("TENANTS");
    EXPECT_EQ(Status(), "Selected 3 Tenant records");
    Go("LEASES");
    EXPECT_EQ(Status(), "Selected 2 Lease records sorted by Rent [ASC]");
    Reopen();
    EXPECT_EQ(Window().SelectedDb(), core::kAlert);
    Go("LEASES");
    EXPECT_EQ(Status(), "Selected 2 Lease records sorted by Rent [ASC]");
}

TEST_F(ViewsOnScreen, DoWithoutAWordOrAColumnThatIsGone) {
    const std::string root = R"(SOFTWARE\Vestrel\Kestrom\)";
    core::SetRegString(root + "ViewInfo", "frmKestrom.Lease", "Forgotten");
    core::SetRegString(root + "SortField", "frmKestrom.Lease", "Moon Phase");
    core::SetRegString(root + "PrevField", "frmKestrom.Lease", "Rent");
    Go("LEASES");
    EXPECT_EQ(Find<QComboBox>(Window(), "cboView").currentText(), "All");
    EXPECT_EQ(Column("Rent"), "800.00\n950.50\n1,200.00\n");
}

TEST_F(ViewsOnScreen, KeepColumnWidthsSetByHand) {
    core::Preferences().AutoSize = 0;
    Go("LEASES");
    EXPECT_TRUE(Grid().isColumnHidden(0));
    Grid().setColumnWidth(2, 211);
    Go("UNITS");
    Grid().setColumnWidth(2, 97);
    Go("LEASES");
    EXPECT_EQ(Grid().columnWidth(2), 211);
    EXPECT_TRUE(Grid().isColumnHidden(0));
}

TEST_F(ViewsOnScreen, KeepColumnWidthsSetByHandOverASort) {
    for (const int sizing : {0, 1, 2}) {
        core::Preferences().AutoSize = sizing;
        Go("LEASES");
        Grid().setColumnWidth(2, 143);
        ClickCaption("Rent");
        EXPECT_EQ(Grid().columnWidth(2), 143) << sizing;
        if (sizing == 1) {
            EXPECT_EQ(Grid().horizontalHeader()->length(), Grid().viewport()->width());
        }
        Go("UNITS");
        EXPECT_NE(Grid().columnWidth(2), 143) << sizing;
    }
}

/// Counts the times that it is written.
class CountingRegistry : public platform::Registry {
  public:
    explicit CountingRegistry(int& writes) : writes_(writes) {}
    std::optional<std::string> ReadText(std::string_view key, std::string_view name) override {
        return values_->ReadText(key, name);
    }
    std::optional<std::int32_t> ReadNumber(std::string_view key, std::string_view name) override {
        return values_->ReadNumber(key, name);
    }
    bool WriteText(std::string_view key, std::string_view name, std::string_view value) override {
        ++writes_;
        return values_->WriteText(key, name, value);
    }
    bool WriteNumber(std::string_view key, std::string_view name, std::int32_t value) override {
        ++writes_;
        return values_->WriteNumber(key, name, value);
    }
    bool WriteTexts(std::span<const platform::RegistryText> texts) override {
        ++writes_;
        return values_->WriteTexts(texts);
    }

  private:
    int& writes_;
    std::unique_ptr<platform::Registry> values_ = platform::MakeMemoryRegistry();
};

TEST_F(ViewsOnScreen, WriteTheRegistryOnceForAChange) {
    int writes = 0;
    platform::SetRegistry(std::make_unique<CountingRegistry>(writes));
    Go("LEASES");
    ClickCaption("Rent");
    EXPECT_EQ(writes, 0);
    Go("UNITS");
    EXPECT_EQ(writes, 1);
    EXPECT_EQ(core::GetRegString(R"(SOFTWARE\Vestrel\Kestrom\SortField)", "frmKestrom.Lease", ""),
              "Rent");
    EXPECT_NE(core::GetRegString(R"(SOFTWARE\Vestrel\GridInfo)", "ColData_frmKestrom.Lease", ""),
              "");
}

TEST_F(ViewsOnScreen, ColourWhatIsDue) {
    const auto color = [this](int row, int column) {
        const QVariant brush =
            Grid().Model().data(Grid().Model().index(row, column), Qt::BackgroundRole);
        return brush.isValid() ? brush.value<QColor>().name().toStdString() : "plain";
    };
    Go("LEASES");
    EXPECT_EQ(color(0, 7), "#ff8080");
    EXPECT_EQ(color(1, 7), "#ffff80");
    EXPECT_EQ(color(2, 7), "plain");
    EXPECT_EQ(color(0, 1), "plain");
    Go("MORTGAGES");
    EXPECT_EQ(color(0, 6), "#ff8080");
    EXPECT_EQ(color(1, 6), "plain");
    for (const char* const view :
         {"ACCOUNTS", "FINANCIAL", "LEASES", "UNITS", "TENANTS", "MORTGAGES", "WORKORDERS"}) {
        Go(view);
        EXPECT_EQ(support::ColorFaults(Window()), std::vector<std::string>()) << view;
    }
    // The check finds colours that no word goes with.
    Go("LEASES");
    Grid().Model().SetColor(2, 0, Qt::red);
    Grid().Model().SetColor(5, 0, Qt::red);
    EXPECT_EQ(support::ColorFaults(Window()),
              (std::vector<std::string>{"grd row 0 column 5 has a colour and no word",
                                        "grd row 1 column 2: \"Smith, John Q\" has two colours",
                                        "grd row 1 column 5: \"\" has two colours",
                                        "grd row 2 column 2: \"Smith, John Q\" has two colours",
                                        "grd row 2 column 5: \"\" has two colours"}));
}

TEST_F(ViewsOnScreen, NarrowWhileOneTypes) {
    Go("LEASES");
    auto& search = Find<QLineEdit>(Window(), "txtSearch");
    QTest::keyClick(&Window(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(search.hasFocus());
    support::Type(search, "oak");
    SettleEvents();
    EXPECT_EQ(Column("Rent"), "800.00\n");
    EXPECT_EQ(Window().SelectedId(), 42);
    EXPECT_EQ(Status(), "Selected 3 Lease records");
    ClickCaption("Rent");
    EXPECT_EQ(Column("Rent"), "800.00\n");
    support::Type(search, "no such thing");
    SettleEvents();
    EXPECT_EQ(Window().SelectedId(), 0);
    EXPECT_FALSE(Item("mnuEdit").isEnabled());
    QTest::keyClick(&search, Qt::Key_Escape);
    SettleEvents();
    EXPECT_EQ(Column("Rent"), "800.00\n950.50\n1,200.00\n");
    EXPECT_TRUE(Grid().hasFocus());
}

TEST_F(ViewsOnScreen, ReloadWhenTheirOwnKindChanges) {
    Go("LEASES");
    Grid().SelectId(41);
    Run("UPDATE Lease SET Rent = 1 WHERE IdLease = 41");
    core::NotifyAll(core::kTenant, core::kRecordsChanged, 0);
    EXPECT_EQ(Column("Rent"), "950.50\n1,200.00\n800.00\n");
    core::NotifyAll(core::kLease, core::kRecordsChanged, 0);
    EXPECT_EQ(Column("Rent"), "950.50\n1.00\n800.00\n");
    EXPECT_EQ(Window().SelectedId(), 41);
    EXPECT_EQ(Grid().SelectedId(), 41);

    Run("DELETE FROM Lease WHERE IdLease = 41");
    core::NotifyAll(core::kLease, core::kRecordsChanged, 0);
    EXPECT_EQ(Window().SelectedId(), 41);
    Grid().SelectId(40);
    EXPECT_EQ(Window().SelectedId(), 40);
}

TEST_F(ViewsOnScreen, CountMinusOneWhenTheyCannotBeRead) {
    Go("LEASES");
    core::App().Connection.Close();
    Go("TENANTS");
    EXPECT_EQ(Status(), "Selected -1 Tenant records");
    EXPECT_EQ(Grid().Model().rowCount(), 0);
    EXPECT_FALSE(Item("mnuEdit").isEnabled());
}

} // namespace
} // namespace support
