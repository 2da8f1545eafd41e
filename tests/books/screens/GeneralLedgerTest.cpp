#include "books/PostTransaction.h"
#include "books/screens/General_Ledger.h"
#include "books/screens/frmTransaction.h"
#include "core/EditRecord.h"
#include "core/Preferences.h"
#include "core/forms/OpenForms.h"
#include "platform/registry/Registry.h"
#include "platform/system/Clock.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using books::screens::frmTransaction;
using books::screens::General_Ledger;

class GeneralLedgerTest : public ScreenTest {
  protected:
    static void Post(int day, int amount, books::Party from, books::Party to, int idUnit = 0) {
        books::Transaction row;
        row.dateEffective = platform::Date(2024, 5, static_cast<unsigned>(day));
        row.debit = std::move(from);
        row.credit = std::move(to);
        row.amount = platform::Currency::FromUnits(amount);
        row.taxCategory = "Repairs";
        row.description = "No. " + std::to_string(amount);
        row.idTenant = 30;
        row.idBuilding = 10;
        row.idUnit = idUnit;
        books::PostTransaction(row);
    }
    static std::string Text(const General_Ledger& ledger) {
        return support::GridText(Find<core::grid::Grid>(ledger, "grd"));
    }
    static frmTransaction* OpenForm() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            auto* const form = qobject_cast<frmTransaction*>(window);
            if (form && form->isVisible()) return form;
        }
        return nullptr;
    }

    const books::Party bank_{core::kAccount, 60, "River Bank"};
    const books::Party smith_{core::kTenant, 30, "Smith, John Q"};
};

TEST_F(GeneralLedgerTest, ShowsAnAccountAndKeepsItselfCurrent) {
    Post(3, 100, smith_, bank_);
    General_Ledger ledger;
    ledger.SetParty(core::kAccount, 60);
    ledger.show();
    EXPECT_EQ(Text(ledger),
              "Effective Date|Category|Party|Amount\n"
              "05/03/2024|Repairs|Smith, John Q|100.00\n");
    Post(4, 30, bank_, smith_);
    EXPECT_EQ(Text(ledger),
              "Effective Date|Category|Party|Amount\n"
              "05/04/2024|Repairs|Smith, John Q|(30.00)\n"
              "05/03/2024|Repairs|Smith, John Q|100.00\n");
    platform::SetToday(platform::Date(2024, 7, 1));
    Choose(ledger, "cboDays", "Last 60 days");
    EXPECT_EQ(Find<core::grid::Grid>(ledger, "grd").Model().rowCount(), 2);
    Choose(ledger, "cboDays", "Last 30 days");
    EXPECT_EQ(Find<core::grid::Grid>(ledger, "grd").Model().rowCount(), 0);
    Choose(ledger, "cboDays", "All");
    EXPECT_EQ(Find<core::grid::Grid>(ledger, "grd").Model().rowCount(), 2);
}

TEST_F(GeneralLedgerTest, OfNobodyIsEmptyAndDoesNothing) {
    Run("INSERT INTO Transactions (IdTransaction, DateEffective, DebitId, CreditId) "
        "VALUES (900, '05/17/2024', 0, 0)");
    General_Ledger ledger;
    ledger.SetParty(core::kAccount, 0);
    ledger.show();
    EXPECT_EQ(Text(ledger), "Effective Date|Category|Party|Amount\n");
    for (const auto* button : {"cmdAdd", "cmdEdit", "cmdDelete"})
        EXPECT_FALSE(Find<QToolButton>(ledger, button).isEnabled()) << button;
    EXPECT_FALSE(Find<core::grid::Grid>(ledger, "grd").isEnabled());
    ledger.SetParty(core::kAccount, 60);
    EXPECT_TRUE(Find<QToolButton>(ledger, "cmdAdd").isEnabled());
    EXPECT_FALSE(Find<QToolButton>(ledger, "cmdEdit").isEnabled()) << "nothing is selected";
}

TEST_F(GeneralLedgerTest, OfAUnitShowsItOrItsBuilding) {
    Post(3, 1, bank_, smith_, 20);
    Post(4, 2, bank_, smith_);
    General_Ledger ledger;
    ledger.SetParty(core::kUnit, 20, 10);
    ledger.show();
    EXPECT_EQ(Text(ledger),
              "Effective Date|From|To|Amount|Category|Description\n"
              "05/03/2024|River Bank|Smith, John Q|1.00|Repairs|No. 1\n");
    Find<QRadioButton>(ledger, "optBuilding").click();
    EXPECT_NE(Text(ledger).find("No. 2"), std::string::npos);
    EXPECT_EQ(Text(ledger).find("No. 1"), std::string::npos);
}

TEST_F(GeneralLedgerTest, AddsWithWhatItIsAbout) {
    struct Case {
        core::RecordKind kind;
        std::int32_t id;
        bool building;
        const char* references;
    };
    for (const auto& [kind, id, building, references] :
         {Case{core::kAccount, 60, false, "0|0|0"}, Case{core::kTenant, 31, false, "31|0|0"},
          Case{core::kUnit, 20, false, "0|10|20"}, Case{core::kUnit, 20, true, "0|10|0"}}) {
        Run("DELETE * FROM Transactions");
        General_Ledger ledger;
        ledger.SetParty(kind, id, 10);
        ledger.show();
        if (building) Find<QRadioButton>(ledger, "optBuilding").click();
        ClickOn(Find<QToolButton>(ledger, "cmdAdd"));
        frmTransaction* const form = OpenForm();
        ASSERT_NE(form, nullptr);
        Answer({true}); // From and To are the same account
        support::ClickAction(*form, "CLOSE");
        SettleEvents();
        EXPECT_EQ(Ask("SELECT IdTenant & '|' & IdBuilding & '|' & IdUnit FROM Transactions"),
                  references);
    }
}

TEST_F(GeneralLedgerTest, EditsAndDeletesTheSelectedRow) {
    Post(3, 1, bank_, smith_);
    Post(4, 2, bank_, smith_);
    std::vector<std::int32_t> opened;
    core::RegisterTransactionOpener(
        core::TransactionEditor::Transaction,
        [&](const core::EditRequest& request, const core::TransactionPlace&) {
            opened.push_back(request.id);
        });
    General_Ledger ledger;
    ledger.SetParty(core::kTenant, 30);
    ledger.show();
    auto& grid = Find<core::grid::Grid>(ledger, "grd");
    ASSERT_TRUE(grid.SelectId(1000));
    ClickOn(Find<QToolButton>(ledger, "cmdEdit"));
    QTest::keyClick(&grid, Qt::Key_Return);
    EXPECT_EQ(opened, (std::vector<std::int32_t>{1000, 1000}));
    Answer({false, true});
    QApplication::setActiveWindow(&ledger);
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_Delete);
    EXPECT_EQ(grid.Model().rowCount(), 2);
    ClickOn(Find<QToolButton>(ledger, "cmdDelete"));
    EXPECT_EQ(Heard(), (Said{"Confirm Delete: Delete selected transaction?\n\n05/03/2024, No. 1",
                             "Confirm Delete: Delete selected transaction?\n\n05/03/2024, No. 1"}));
    EXPECT_EQ(Ask("SELECT IdTransaction FROM Transactions"), "1001");
    EXPECT_EQ(grid.Model().rowCount(), 1);
    core::RegisterTransactionOpener(core::TransactionEditor::Transaction, {});
}

TEST_F(GeneralLedgerTest, KeepsTheWidthsOfItsColumnsByWhomItShows) {
    Post(3, 1, bank_, smith_);
    core::Preferences().AutoSize = 0;
    for (const auto& [kind, id, width] :
         {std::tuple{core::kAccount, 60, 111}, {core::kTenant, 30, 122}}) {
        General_Ledger ledger;
        ledger.SetParty(kind, id);
        ledger.show();
        Find<core::grid::Grid>(ledger, "grd").setColumnWidth(2, width);
    }
    const auto kept = [](std::string_view name) {
        return platform::TheRegistry()
            .ReadText(R"(SOFTWARE\Vestrel\Kestrom\Ledger)", "ColData_ucLedger." + std::string(name))
            .value_or("-");
    };
    EXPECT_NE(kept("Account").find(",111,"), std::string::npos) << kept("Account");
    EXPECT_NE(kept("Tenant").find(",122,"), std::string::npos) << kept("Tenant");
    General_Ledger again;
    again.SetParty(core::kTenant, 30);
    EXPECT_EQ(Find<core::grid::Grid>(again, "grd").columnWidth(2), 122);
}

TEST_F(GeneralLedgerTest, LooksAndReadsRight) {
    for (int day = 3; day < 15; ++day)
        Post(day, day * 117 % 500, day % 2 == 0 ? bank_ : smith_, day % 2 == 0 ? smith_ : bank_,
             20);
    QWidget host;
    auto* const ledger = new General_Ledger(&host);
    ledger->SetParty(core::kUnit, 20, 10);
    host.resize(760, 300);
    ledger->resize(760, 300);
    host.show();
    EXPECT_EQ(NameFaults(*ledger), Said{});
    EXPECT_EQ(TabOrderFaults(*ledger), Said{});
    EXPECT_EQ(Portray(host, "General_Ledger"), Said{});
}

} // namespace
} // namespace support
