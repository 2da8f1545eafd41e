#include <QTimer>

#include "books/TransactionListeners.h"
#include "books/screens/frmTransaction.h"
#include "core/binding/ComboList.h"
#include "support/Books.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using books::screens::frmTransaction;
using books::screens::TransactionSetup;

class TransactionTest : public ScreenTest {
  protected:
    // A mortgage without an account number ends its list.
    TransactionTest() { Run("DELETE * FROM Mortgage WHERE IdMortgage = 51"); }

    QPointer<frmTransaction> Open(const TransactionSetup& setup = {}) {
        return Show<frmTransaction>(setup);
    }
    static QPointer<frmTransaction> OpenId(std::int32_t id) {
        QPointer<frmTransaction> form(new frmTransaction);
        TransactionSetup setup;
        setup.idTransaction = id;
        form->Setup(setup);
        return form;
    }
    static std::string Row(std::string_view fields, int id = 1000) {
        return support::Rows(core::App().Connection,
                             "SELECT " + std::string(fields) +
                                 " FROM Transactions WHERE IdTransaction = " + std::to_string(id),
                             "NULL")
            .at(0);
    }
    static void AddRow(int id, std::string_view fields, std::string_view values) {
        Run("INSERT INTO Transactions (IdTransaction, " + std::string(fields) + ") VALUES (" +
            std::to_string(id) + ", " + std::string(values) + ")");
    }
};

TEST_F(TransactionTest, OpensEmptyOnToday) {
    const auto form = Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Transaction"));
    EXPECT_EQ(Text(*form, "dpEffectiveDate"), "05/17/2024");
    EXPECT_EQ(Text(*form, "txtAmount"), "0.00");
    EXPECT_EQ(Text(*form, "cboCategory"), "No Category Selected");
    EXPECT_EQ(Text(*form, "cboFromType"), "Account");
    EXPECT_EQ(Find<QComboBox>(*form, "cboFrom").count(), 3);
    EXPECT_EQ(Text(*form, "cboLease"), "[ No Lease Selected ]");
    EXPECT_FALSE(Find<QPushButton>(*form, "cmdApply").isEnabled());
    Type(Find<QLineEdit>(*form, "txtDescription"), "x");
    EXPECT_TRUE(Find<QPushButton>(*form, "cmdApply").isEnabled());
}

TEST_F(TransactionTest, AsksAboutDoubtfulPartiesThenWritesThemAsTheyStand) {
    const auto form = Open();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{"Confirm Save: From and To are the same: Al Owner would pay the money "
                            "to itself.\n\nDo you want to save the transaction anyway?"});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0");
    EXPECT_TRUE(form->isVisible()) << "No keeps the screen";
    Answer({true});
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Row("DateEffective, DebitType, DebitId, DebitDesc, CreditId, Amount, TaxCategory, "
                  "IEN, CheckNum, Description, Class, Flags, IdLease, IdUnit, IdMileage"),
              "05/17/2024|1|61|Al Owner|61|0|No Category Selected|0|||0|0|0|0|0");
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_FALSE(form->Cancelled());
}

TEST_F(TransactionTest, WritesWhatWasEnteredAndStaysOnTheRow) {
    int told = 0;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t, std::int32_t) {
        told += kind == core::kTransaction ? 1 : 0;
    });
    const auto form = Open();
    EXPECT_TRUE(form->Cancelled());
    Type(Find<QLineEdit>(*form, "dpEffectiveDate"), "2/29/2024");
    Type(Find<QLineEdit>(*form, "txtAmount"), "1234.5");
    Type(Find<QLineEdit>(*form, "txtCheckNumber"), "0017");
    Choose(*form, "cboCategory", "Repairs");
    Type(Find<QLineEdit>(*form, "txtDescription"), "Owner's pump");
    Choose(*form, "cboFrom", "River Bank");
    Choose(*form, "cboToType", "Tenant");
    Choose(*form, "cboTo", "Zu, Li");
    Choose(*form, "cboLease", "Smith, 12 Elm St B");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Row("DateEffective, Amount, CheckNum, TaxCategory, IEN, Description, DebitType, "
                  "DebitId, CreditType, CreditId, CreditDesc"),
              "02/29/2024|1234.5|0017|Repairs|1|Owner's pump|1|60|5|32|Zu, Li");
    EXPECT_EQ(Row("IdLease, IdTenant, IdUnit, IdBuilding, IdMortgage, IdWorkOrder"),
              "40|30|20|10|0|0");
    EXPECT_EQ(told, 1);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Transaction: Owner's pump"));
    EXPECT_EQ(form->OpenRecordId(), 1000);
    EXPECT_EQ(form->Amount(), platform::Currency::FromScaled(12345000));
    EXPECT_FALSE(form->Dirty());
    EXPECT_EQ(Text(*form, "cboTo"), "Zu, Li");
    EXPECT_FALSE(Find<QComboBox>(*form, "cboBuilding").isEnabled());
}

TEST_F(TransactionTest, ATypedNameIsARecordOnlyIfItIsTheFirstOne) {
    struct Case {
        const char* typed;
        const char* stored;
    };
    for (const auto& [typed, stored] :
         {Case{"al owner", "61|al owner"}, Case{"river bank", "0|river bank"},
          Case{"River Bank", "0|River Bank"}, Case{"Hardware Store", "0|Hardware Store"},
          Case{"", "0|"}}) {
        const auto form = Open();
        QComboBox& box = Find<QComboBox>(*form, "cboTo");
        box.setFocus();
        Type(box, typed);
        QTest::keyClick(&box, Qt::Key_Tab);
        Answer({true}); // "al owner" is From as well, and the blank one nobody
        ClickAction(*form, "CLOSE");
        Heard();
        EXPECT_EQ(Ask("SELECT CreditId & '|' & CreditDesc FROM Transactions "
                      "WHERE IdTransaction = (SELECT Max(IdTransaction) FROM Transactions)"),
                  stored)
            << typed;
        SettleEvents();
    }
}

TEST_F(TransactionTest, ChangingTheKindOfPartyOffersItsRecords) {
    const auto form = Open();
    Choose(*form, "cboFromType", "Tenant");
    EXPECT_EQ(Text(*form, "cboFrom"), "O'Brien, Ann");
    EXPECT_EQ(Find<QComboBox>(*form, "cboTo").count(), 3);
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Row("DebitType, DebitId"), "5|31");
}

TEST_F(TransactionTest, PresetsWhatItIsOpenedWith) {
    TransactionSetup setup;
    setup.fromType = core::kAccount;
    setup.fromId = 60;
    setup.toType = core::kTenant;
    setup.toId = 32;
    setup.category = "Deposit Refund|2";
    setup.amount = platform::Currency::FromUnits(500);
    setup.description = "Deposit Refund";
    setup.references = {.idTenant = 31, .idLease = 40, .idMortgage = 50};
    setup.transactionClass = 3;
    setup.flags = 3;
    Run("DELETE * FROM TransCategory WHERE Category = 'Deposit Refund'");
    const auto form = Open(setup);
    EXPECT_EQ(Find<QComboBox>(*form, "cboCategory").currentIndex(), 0);
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Row("DebitId, CreditType, CreditId, TaxCategory, IEN, Amount, Description, Class, "
                  "Flags, IdLease, IdTenant, IdMortgage, IdUnit"),
              "60|5|32|Deposit Refund|2|500|Deposit Refund|3|3|40|31|50|0");
}

TEST_F(TransactionTest, ShowsAStoredRowAndKeepsWhatIsNotOffered) {
    AddRow(900,
           "DateEffective, DebitType, DebitId, DebitDesc, CreditType, CreditId, CreditDesc, "
           "Amount, TaxCategory, IEN, Description, Class, Flags, IdUnit, IdBuilding",
           "'03/01/2024', 1, 0, 'Gone Plumber', 5, 31, 'Old Name', 12.3, 'Old Words', 1, 'Pipe', "
           "9, 7, 20, 10");
    const auto form = OpenId(900);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Transaction: Pipe"));
    EXPECT_EQ(Text(*form, "cboFrom"), "Gone Plumber");
    EXPECT_EQ(Text(*form, "cboToType"), "Tenant");
    EXPECT_EQ(Text(*form, "cboTo"), "O'Brien, Ann") << "a record shows by its name of today";
    EXPECT_EQ(Text(*form, "cboCategory"), "Old Words");
    EXPECT_EQ(Text(*form, "txtAmount"), "12.30");
    EXPECT_FALSE(Find<QComboBox>(*form, "cboBuilding").isEnabled());
    EXPECT_FALSE(form->Dirty());
    Type(Find<QLineEdit>(*form, "txtDescription"), "Pipes");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Row("DateEffective, DebitId, DebitDesc, CreditType, CreditId, Amount, TaxCategory, "
                  "IEN, Description, Class, Flags, IdUnit, IdBuilding",
                  900),
              "03/01/2024|0|Gone Plumber|5|31|12.3|Old Words|1|Pipes|9|7|20|10");
}

TEST_F(TransactionTest, ClosesARowThatNobodyEditedAsItWas) {
    for (const char* values :
         {"NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL",
          "'2/3/2024', 5, 4711, 'Somebody', 1, 60, 'Old Name', 'Old Words', 9, 4711"}) {
        Run("DELETE * FROM Transactions");
        AddRow(900,
               "DateEffective, DebitType, DebitId, DebitDesc, CreditType, CreditId, CreditDesc, "
               "TaxCategory, IEN, IdLease",
               values);
        const std::string before = Row("*", 900);
        const auto form = OpenId(900);
        ClickAction(*form, "CLOSE");
        EXPECT_EQ(Row("*", 900), before);
        EXPECT_EQ(Heard(), Said{});
        SettleEvents();
    }
}

TEST_F(TransactionTest, CopiesATemplateIntoANewRowOfToday) {
    AddRow(900,
           "DateEffective, DebitType, DebitId, DebitDesc, CreditType, CreditId, CreditDesc, "
           "Amount, TaxCategory, IEN, Description, Class, IdMileage",
           "'03/01/2024', 5, 30, 'x', 1, 60, 'y', 77, 'Laundry', 0, 'Coins', 1, 5");
    TransactionSetup setup;
    setup.idTemplate = 900;
    const auto form = Open(setup);
    EXPECT_TRUE(form->Dirty());
    EXPECT_EQ(Text(*form, "dpEffectiveDate"), "05/17/2024");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Row("DateEffective, DebitId, CreditId, Amount, TaxCategory, Description, Class, "
                  "IdMileage"),
              "05/17/2024|30|60|77|Laundry|Coins|0|0");
    EXPECT_EQ(Row("DateEffective", 900), "03/01/2024");
}

TEST_F(TransactionTest, AUnitFixesItsBuilding) {
    const auto form = Open();
    QComboBox& building = Find<QComboBox>(*form, "cboBuilding");
    Choose(*form, "cboUnit", "Oak Rd 1");
    EXPECT_EQ(building.currentText(), QStringLiteral("Oak Rd"));
    EXPECT_FALSE(building.isEnabled());
    Choose(*form, "cboUnit", "[ No Unit Selected ]");
    EXPECT_TRUE(building.isEnabled());
    EXPECT_EQ(building.currentText(), QStringLiteral("Oak Rd"));
    Choose(*form, "cboMortgage", "A-1");
    EXPECT_EQ(building.currentText(), QStringLiteral("12 Elm St"));
    Choose(*form, "cboUnit", "Oak Rd 1");
    Choose(*form, "cboLease", "Smith, 12 Elm St B");
    EXPECT_EQ(Text(*form, "cboTenant"), "Smith, John Q");
    EXPECT_EQ(Text(*form, "cboUnit"), "12 Elm St B");
    EXPECT_EQ(building.currentText(), QStringLiteral("12 Elm St"));
    EXPECT_FALSE(building.isEnabled());
}

TEST_F(TransactionTest, MakesATripAndForgetsIt) {
    auto form = Open();
    Choose(*form, "cboFrom", "River Bank");
    Choose(*form, "cboBuilding", "12 Elm St");
    Find<QCheckBox>(*form, "chkMileage").click();
    ClickAction(*form, "APPLY");
    EXPECT_TRUE(Find<QCheckBox>(*form, "chkMileage").isChecked());
    EXPECT_EQ(Ask("SELECT OEnd FROM Mileage"), "15");
    Find<QCheckBox>(*form, "chkMileage").click();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete selected Mileage entry?"});
    EXPECT_EQ(Row("IdMileage"), "0");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Mileage"), "1") << "refused, the trip stays";
}

TEST_F(TransactionTest, TellsWhoAskedOnEverySave) {
    static std::string told;
    told.clear();
    static bool listening = true;
    books::RegisterTransactionListener([](std::int32_t id, const books::Transaction& saved) {
        if (listening) told += std::to_string(id) + ":" + std::to_string(saved.flags) + " ";
    });
    TransactionSetup setup;
    setup.transactionClass = 3;
    setup.flags = 4;
    setup.fromId = 60;
    const auto form = Open(setup);
    Type(Find<QLineEdit>(*form, "txtAmount"), "4");
    ClickAction(*form, "APPLY");
    Type(Find<QLineEdit>(*form, "txtAmount"), "5");
    ClickAction(*form, "CLOSE");
    listening = false;
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(told, "1000:4 1000:4 ");
}

TEST_F(TransactionTest, HearsOfOtherRecordsAndStaysClean) {
    const auto form = Open();
    Choose(*form, "cboCategory", "Supplies");
    ClickAction(*form, "APPLY");
    Type(Find<QComboBox>(*form, "cboFrom"), "Somebody");
    ClickAction(*form, "APPLY");
    Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (63, 'Aaron')");
    Run("DELETE * FROM TransCategory WHERE Category = 'Supplies'");
    Run("INSERT INTO Tenant (IdTenant, LastName, FirstName) VALUES (33, 'Abel', 'Jo')");
    for (const core::RecordKind kind : {core::kAccount, core::kTransCategory, core::kTenant})
        core::NotifyAll(kind, core::kRecordsChanged, 0);
    EXPECT_EQ(Text(*form, "cboFrom"), "Somebody");
    EXPECT_EQ(Find<QComboBox>(*form, "cboFrom").count(), 4);
    EXPECT_EQ(Text(*form, "cboTo"), "Al Owner");
    EXPECT_EQ(Text(*form, "cboCategory"), "Supplies");
    EXPECT_EQ(Find<QComboBox>(*form, "cboTenant").count(), 5);
    EXPECT_FALSE(form->Dirty());
}

TEST_F(TransactionTest, KeepsTheNameOfAPartyThatIsRemovedMeanwhile) {
    const auto form = Open();
    Choose(*form, "cboFrom", "River Bank");
    Choose(*form, "cboTo", "Jo Owner");
    Run("DELETE * FROM Account WHERE IdAccount = 60");
    core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    EXPECT_EQ(Text(*form, "cboFrom"), "River Bank");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Row("DebitId, DebitDesc, CreditId"), "0|River Bank|62");
}

TEST_F(TransactionTest, OpensWithARecordThatHasNoName) {
    Run("INSERT INTO Tenant (IdTenant, FirstName) VALUES (33, 'Nobody')");
    TransactionSetup setup;
    setup.fromType = core::kTenant;
    setup.toId = 62;
    const auto form = Open(setup);
    EXPECT_TRUE(Heard().empty());
    EXPECT_EQ(Text(*form, "cboTo"), "Jo Owner");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(TransactionTest, WaitsWhenItIsModalAndTellsWhatBecameOfIt) {
    for (const auto* action : {"CANCEL", "CLOSE"}) {
        frmTransaction form;
        QTimer::singleShot(0, &form, [&] {
            Type(Find<QLineEdit>(form, "txtAmount"), "12.5");
            Answer({true});
            ClickAction(form, action);
        });
        TransactionSetup setup;
        setup.description = "Deposit Refund";
        form.SetupModal(setup);
        EXPECT_FALSE(form.isVisible());
        const bool cancelled = std::string(action) == "CANCEL";
        EXPECT_EQ(form.Cancelled(), cancelled);
        EXPECT_EQ(form.Amount().Scaled(), cancelled ? 0 : 125000);
    }
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "1");
}

TEST_F(TransactionTest, RefusesAnAmountThatIsNone) {
    const auto form = Open();
    Find<QLineEdit>(*form, "txtAmount").setText(QStringLiteral("12x"));
    ClickAction(*form, "CLOSE");
    const Said heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_NE(heard[0].find("12x"), std::string::npos);
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(form->Cancelled());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0");
}

} // namespace
} // namespace support
