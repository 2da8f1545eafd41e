// One charge, and one that is split.

#include "core/Settings.h"
#include "leases/screens/LeaseScreens.h"
#include "leases/screens/frmRentLog.h"
#include "leases/screens/frmRentSplit.h"

namespace tests {

namespace {

using core::TransactionClass;
using leases::RentFlags;
using leases::screens::frmRentLog;
using leases::screens::frmRentSplit;

class ChargeScreen : public LeaseScreenTest {
  protected:
    static QPointer<frmRentLog> Open(std::int32_t id,
                                     TransactionClass rentClass = TransactionClass::Rent) {
        return support::Show<frmRentLog>(id, kLease, rentClass);
    }
    static QPointer<frmRentSplit> Split(std::int32_t id) { return support::Show<frmRentSplit>(id); }
    static std::string Row(std::string_view field, std::string_view where = "True") {
        return Ask("SELECT " + std::string(field) + " FROM RentLog WHERE " + std::string(where));
    }
};

TEST_F(ChargeScreen, ANewOneStartsWithTheWordOfItsClass) {
    for (const auto& [rentClass, caption, word] :
         {std::tuple{TransactionClass::Rent, " Editing Rent Charge", "Misc Charge"},
          {TransactionClass::Subsidy, " Editing Subsidy Charge", "Misc Charge"},
          {TransactionClass::Deposit, " Editing Deposit Charge", "Misc Deposit"},
          {TransactionClass::OptionCredit, " Editing Lease Option Charge", "Misc Credit"}}) {
        Run("DELETE * FROM RentLog");
        const auto form = Open(0, rentClass);
        EXPECT_EQ(form->windowTitle().toStdString(), caption);
        EXPECT_EQ(Text(*form, "cboCategory"), word);
        EXPECT_EQ(Text(*form, "dpDatePosted"), "05/17/2024");
        Type(Find<QLineEdit>(*form, "txtAmount"), "12.5");
        Type(Find<QLineEdit>(*form, "txtDescription"), "It's due");
        ClickAction(*form, "SAVE");
        EXPECT_FALSE(form && form->isVisible());
        EXPECT_EQ(Row("IdLease"), "40");
        EXPECT_EQ(Row("Class"), std::to_string(static_cast<int>(rentClass)));
        EXPECT_EQ(Row("Category + '|' + Description"), std::string(word) + "|It's due");
        EXPECT_EQ(Row("Amount"), "12.5");
        EXPECT_EQ(Row("IdTransaction + Flags"), "0");
    }
}

TEST_F(ChargeScreen, AStoredOneKeepsItsFlagsAndItsPayment) {
    const std::int32_t id = Charge("05/01/2024", 950, RentFlags::PeriodRent);
    Run("UPDATE RentLog SET IdTransaction = 77");
    const auto form = Open(id);
    EXPECT_EQ(Text(*form, "txtAmount"), "950.00");
    EXPECT_EQ(Text(*form, "cboCategory"), "Rent");
    EXPECT_FALSE(form->Dirty());
    Type(Find<QLineEdit>(*form, "txtAmount"), "900");
    ClickAction(*form, "SAVE");
    EXPECT_EQ(Row("Flags"), "1");
    EXPECT_EQ(Row("IdTransaction"), "77");
    EXPECT_EQ(Row("Amount"), "900");
    EXPECT_EQ(Row("Count(*)"), "1");
}

TEST_F(ChargeScreen, OneOfZeroIsWrittenAndTheScreensAreTold) {
    Said told;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t, std::int32_t) {
        told.push_back(std::to_string(core::KindNumber(kind)));
    });
    ClickAction(*Open(0), "SAVE");
    EXPECT_EQ(Row("Amount"), "0");
    EXPECT_EQ(told, (Said{"2", "30"}));
}

TEST_F(ChargeScreen, TellsOfOneThatIsMissingAndOneThatIsThereTwice) {
    const auto form = Open(4711);
    Said heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].substr(0, 15), "No Record Found");
    form->CloseUnasked();
    const std::int32_t id = Charge("05/01/2024", 5);
    Run("UPDATE RentLog SET IdRentLog = " + std::to_string(id));
    Run("INSERT INTO RentLog (IdRentLog, IdLease, Class, Amount, IdTransaction) VALUES (" +
        std::to_string(id) + ", 40, 1, 6, 0)");
    Open(id);
    heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].substr(0, 22), "Duplicate Record Found");
}

TEST_F(ChargeScreen, WhatIsNoAmountStaysAndIsTold) {
    const auto form = Open(0);
    Find<QLineEdit>(*form, "txtAmount").setText(QStringLiteral("12 or 13"));
    ClickAction(*form, "SAVE");
    EXPECT_EQ(Heard(), Said{"Vestrel: \"12 or 13\" is not an amount of money"});
    EXPECT_TRUE(form && form->isVisible());
    EXPECT_EQ(Row("Count(*)"), "0");
}

TEST_F(ChargeScreen, ItsDateIsNeverBlank) {
    const auto form = Open(0);
    Type(Find<QLineEdit>(*form, "txtAmount"), "5");
    auto& date = Find<QLineEdit>(*form, "dpDatePosted");
    date.clear();
    ClickAction(*form, "SAVE");
    EXPECT_EQ(Heard(),
              Said{"Whoa!: The following errors have occured:\n\nA date must be entered.\n"});
    QTest::keyClick(&date, Qt::Key_Return); // leaves the box with the day that it had
    EXPECT_EQ(Row("DatePosted"), "05/17/2024");
    const auto split = Split(std::stoi(Row("IdRentLog")));
    Type(Find<QLineEdit>(*split, "txtAmount1"), "2");
    auto& first = Find<QLineEdit>(*split, "dpDate1");
    first.clear();
    ClickAction(*split, "SAVE");
    EXPECT_EQ(Heard().size(), 1U);
    QTest::keyClick(&first, Qt::Key_Return);
    EXPECT_EQ(Row("Count(*)", "DatePosted = '05/17/2024'"), "2");
}

TEST_F(ChargeScreen, ASplitThatLosesTheRentAsksFirst) {
    const std::int32_t id = Charge("05/01/2024", 950, RentFlags::PeriodRent);
    const auto form = Split(id);
    Answer({false, true});
    Type(Find<QLineEdit>(*form, "txtAmount1"), "0");
    ClickAction(*form, "SAVE");
    EXPECT_EQ(Heard(),
              Said{"Confirm Split: The part that stays rent is 0.00. When the other part is "
                   "paid,\nthe next due date will not move.\nDo you want to continue?"});
    EXPECT_TRUE(form && form->isVisible());
    EXPECT_EQ(Row("Count(*)"), "1");
    Find<QRadioButton>(*form, "optIsRent2").click();
    ClickAction(*form, "SAVE");
    EXPECT_EQ(Heard(), Said{}) << "the other part stays rent";
    EXPECT_EQ(Row("Flags"), "1");
}

TEST_F(ChargeScreen, ASplitWorksOutTheOtherPartIfItIsTo) {
    const auto form = Split(Charge("05/01/2024", 950, RentFlags::PeriodRent));
    EXPECT_EQ(form->windowTitle(), QStringLiteral(" Splitting Rent Charge"));
    EXPECT_EQ(Text(*form, "txtDescription2"), "Deferred Rent due 05/01/2024");
    EXPECT_EQ(Text(*form, "txtAmount0"), "950.00");
    for (const auto& [box, typed, other, shown] :
         {std::tuple{"txtAmount1", "300", "txtAmount2", "650.00"},
          {"txtAmount2", "0.05", "txtAmount1", "949.95"},
          {"txtAmount1", "1000", "txtAmount2", "(50.00)"},
          {"txtAmount1", "", "txtAmount2", "950.00"}}) {
        Type(Find<QLineEdit>(*form, box), typed);
        EXPECT_EQ(Text(*form, other), shown) << typed;
        EXPECT_EQ(Text(*form, "lblDifference"), "The parts add up to the charge.");
    }
    Find<QCheckBox>(*form, "chkAutoCalc").click();
    Type(Find<QLineEdit>(*form, "txtAmount1"), "100");
    EXPECT_EQ(Text(*form, "txtAmount2"), "950.00");
    EXPECT_EQ(Text(*form, "lblDifference"), "The parts are 100.00 more than the charge.");
    Type(Find<QLineEdit>(*form, "txtAmount2"), "800");
    EXPECT_EQ(Text(*form, "lblDifference"), "The parts are 50.00 less than the charge.");
    form->CloseUnasked();
    EXPECT_FALSE(core::GetRegFlag(R"(SOFTWARE\Vestrel\Kestrom\RentSplit)", "AutoCalc", true));
    const auto again = Split(Charge("05/02/2024", 5));
    EXPECT_FALSE(Find<QCheckBox>(*again, "chkAutoCalc").isChecked());
}

TEST_F(ChargeScreen, ASplitPutsTwoInThePlaceOfOne) {
    const std::int32_t id = Charge("05/01/2024", 950, RentFlags::PeriodRent);
    const auto form = Split(id);
    Type(Find<QLineEdit>(*form, "txtAmount1"), "300");
    Choose(*form, "cboCategory2", "Deferred Rent");
    Type(Find<QLineEdit>(*form, "dpDate2"), "06/01/2024");
    Find<QRadioButton>(*form, "optIsRent2").click();
    ClickAction(*form, "SAVE");
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_EQ(Row("Flags", "Amount = 300 AND DatePosted = '05/01/2024' AND Category = 'Rent'"),
              "0");
    EXPECT_EQ(Row("Flags",
                  "Amount = 650 AND DatePosted = '06/01/2024' "
                  "AND Category = 'Deferred Rent'"),
              "1");
    EXPECT_EQ(Row("Count(*)"), "2");
    EXPECT_EQ(Row("Count(*)", "IdRentLog = " + std::to_string(id)), "0");
    EXPECT_EQ(Lease("RentDue"), "950");
}

TEST_F(ChargeScreen, OnlyARentAsksWhichPartStaysIt) {
    const auto fee = Split(Charge("05/01/2024", 40));
    EXPECT_FALSE(Find<QRadioButton>(*fee, "optIsRent1").isVisible());
    const auto rent = Split(Charge("05/01/2024", 950, RentFlags::PeriodRent));
    EXPECT_TRUE(Find<QRadioButton>(*rent, "optIsRent1").isVisible());
    EXPECT_TRUE(Find<QRadioButton>(*rent, "optIsRent1").isChecked());
    Split(4711);
    EXPECT_EQ(Heard().size(), 1U) << "a deleted charge is reported";
}

TEST_F(ChargeScreen, AChargePaidMeanwhileIsNotSplit) {
    const auto form = Split(Charge("05/01/2024", 950, RentFlags::PeriodRent));
    Run("UPDATE RentLog SET IdTransaction = 5");
    ClickAction(*form, "SAVE");
    EXPECT_EQ(Heard(), Said{"Vestrel: The charge was changed or removed since it was read, so it "
                            "can't be split."});
    EXPECT_EQ(Row("Count(*)"), "1");
}

TEST_F(ChargeScreen, ALeaseDeletedMeanwhileIsChargedNothing) {
    const auto form = Open(0);
    Type(Find<QLineEdit>(*form, "txtAmount"), "5");
    Run("DELETE FROM Lease");
    ClickAction(*form, "SAVE");
    EXPECT_EQ(Heard(), Said{"Vestrel: The lease was deleted after the charge was opened. It was "
                            "not saved."});
    EXPECT_EQ(Row("Count(*)"), "0");
}

} // namespace

} // namespace tests
