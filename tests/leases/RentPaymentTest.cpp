#include "leases/RentPayment.h"

#include <string>
#include <tuple>
#include <vector>

#include <fmt/core.h>
#include <gtest/gtest.h>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "leases/BooksTest.h"
#include "leases/DumpBooks.h"
#include "leases/PaymentOutlook.h"
#include "leases/RentLog.h"
#include "leases/mLease.h"
#include "platform/system/Clock.h"

namespace tests {

namespace {

using core::TransactionClass;
using leases::PaymentCharge;
using leases::RentFlags;
using leases::RentPayment;
using platform::Currency;
using platform::Date;

class Payment : public BooksTest {
  protected:
    static std::string Next() { return Ask("SELECT DateNextDue FROM Lease"); }
    static std::int32_t Rent(Date day) { return Charge(day, 1000, RentFlags::PeriodRent); }
    /// The payment with just these charges ticked, by their place.
    static RentPayment Ticking(const std::vector<bool>& ticks) {
        RentPayment payment = leases::ProposePayment(kLeaseId, TransactionClass::Rent);
        EXPECT_EQ(payment.charges.size(), ticks.size());
        for (std::size_t i = 0; i < ticks.size(); ++i)
            payment.charges[i].selected = ticks[i];
        return payment;
    }
};

TEST_F(Payment, WritesTheTransactionFieldByField) {
    Rent(Date(2024, 1, 1));
    Charge(Date(2024, 1, 9), 40);
    RentPayment payment = leases::ProposePayment(kLeaseId, TransactionClass::Rent);
    payment.dateEffective = Date(2024, 2, 29);
    payment.checkNumber = "1'7";
    payment.paymentType = "Partial Rent Payment";
    const std::int32_t id = leases::SubmitPayment(payment);
    EXPECT_EQ(
        Rows("SELECT IdTransaction, DateEffective, DebitType, DebitId, DebitDesc, CreditType, "
             "CreditId, CreditDesc, DebitPrevBal, DebitNewBal, CreditPrevBal, CreditNewBal, "
             "CheckNum, Amount, TaxCategory, Class, IEN, Description, Flags, Reconciled, "
             "CreditExported, DebitExported, IdTenant, IdBuilding, IdUnit, IdLease, IdMortgage, "
             "IdWorkOrder, IdLedger, IdMileage FROM Transactions"),
        (Lines{std::to_string(id) +
               "|02/29/2024|5|103|O'Brien, Ann|1|105|First Bank|0|0|0|0|1'7|1040|"
               "Partial Rent Payment|1|0|Rent Payment for O'Brien, 12 Elm Street A|0|False|"
               "False|False|103|104|102|101|0|0|0|0"}));
    EXPECT_EQ(Ledger(), (Lines{"01/01/2024 1 1,000.00 +", "01/09/2024 0 40.00 +",
                               "02/29/2024 2 (1,040.00) +"}));
    EXPECT_EQ(Ask("SELECT Category FROM RentLog WHERE Flags = 2"), "Partial Rent Payment");
    EXPECT_EQ(Ask("SELECT Description FROM RentLog WHERE Flags = 2"), "Partial Rent Payment");
}

TEST_F(Payment, MovesTheNextDueDateOncePerPeriodsRentAndSaysSoBefore) {
    struct Case {
        const char* termType;
        const char* due;
        const char* ticked; // R and r for the rents, f for the fee
        const char* moved;
        const char* outlook;
    };
    for (const Case& c : {
             Case{"Month(s)", "01/01/2024", "Rrf", "03/01/2024",
                  "3 charges, next due date moves from 01/01/2024 to 03/01/2024"},
             Case{"Month(s)", "01/31/2024", "Rr", "03/29/2024",
                  "2 charges, next due date moves from 01/31/2024 to 03/29/2024"},
             Case{"MTM", "01/31/2023", "r", "02/28/2023",
                  "1 charge, next due date moves from 01/31/2023 to 02/28/2023"},
             Case{"WTW", "02/26/2024", "R", "03/04/2024",
                  "1 charge, next due date moves from 02/26/2024 to 03/04/2024"},
             Case{"Year(s)", "02/29/2024", "Rf", "02/28/2025",
                  "2 charges, next due date moves from 02/29/2024 to 02/28/2025"},
             Case{"Years(s)", "02/29/2024", "Rf", "03/29/2024",
                  "2 charges, next due date moves from 02/29/2024 to 03/29/2024"},
             Case{"Month(s)", "01/01/2024", "f", "01/01/2024",
                  "1 charge, next due date stays 01/01/2024"},
             Case{"Month(s)", "01/01/2024", "", "01/01/2024",
                  "Nothing is ticked: a payment of 0.00 will be posted"},
         }) {
        SCOPED_TRACE(c.outlook);
        Run("DELETE * FROM RentLog");
        SetLeaseField("TermType", c.termType);
        SetLeaseField("DateNextDue", c.due);
        Rent(Date(2024, 1, 1));
        Rent(Date(2024, 2, 1));
        Charge(Date(2024, 2, 9), 5);
        const auto has = [&](char charge) {
            return std::string_view(c.ticked).find(charge) != std::string_view::npos;
        };
        const RentPayment payment = Ticking({has('R'), has('r'), has('f')});
        EXPECT_EQ(leases::DescribeOutlook(payment), c.outlook);
        leases::SubmitPayment(payment);
        EXPECT_EQ(Next(), c.moved);
    }
}

TEST_F(Payment, OfNothingPostsZeroAndNoPaymentRow) {
    Rent(Date(2024, 1, 1));
    leases::SubmitPayment(Ticking({false}));
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions"), "0");
    EXPECT_EQ(Ledger(), Lines{"01/01/2024 1 1,000.00 -"});
    EXPECT_EQ(Ask("SELECT RentDue FROM Lease"), "1000");
}

TEST_F(Payment, ACreditLowersTheTotalAndMayTurnIt) {
    Rent(Date(2024, 1, 1));
    Charge(Date(2024, 1, 1), -1200);
    const RentPayment both = Ticking({true, true});
    EXPECT_EQ(both.Total(), Currency::FromUnits(-200));
    leases::SubmitPayment(both);
    EXPECT_EQ(Ledger().back(), "03/05/2024 2 200.00 +");
}

TEST_F(Payment, EarnsTheOptionCreditOncePerRent) {
    SetLeaseField("Option", "True");
    SetLeaseField("OptionCredit", "50.5");
    Rent(Date(2024, 1, 1));
    Rent(Date(2024, 2, 1));
    Charge(Date(2024, 2, 9), 5);
    const RentPayment payment = leases::ProposePayment(kLeaseId, TransactionClass::Rent);
    EXPECT_EQ(leases::DescribeOutlook(payment),
              "3 charges, next due date moves from 01/01/2024 to 03/01/2024, option credit 101.00");
    leases::SubmitPayment(payment);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE Class = 4 AND Amount = 50.5 "
                  "AND DatePosted = '03/05/2024' AND Category = 'Option Credit'"),
              "2");
    EXPECT_EQ(Ask("SELECT OptionBalance FROM Lease"), "101");
}

TEST_F(Payment, OfOtherClassesLeavesTheNextDueDateAndKnowsItsAccount) {
    struct Case {
        TransactionClass rentClass;
        const char* ien;
        const char* word;
        const char* payer;
        const char* account; // the lease's afterwards
    };
    for (const Case& c :
         {Case{TransactionClass::Subsidy, "0", "Rent Subsidy Payment", "Housing Aid", "106"},
          Case{TransactionClass::Deposit, "2", "Deposit Payment", "O'Brien, Ann", "105"}}) {
        SCOPED_TRACE(c.word);
        Run("DELETE * FROM RentLog");
        Run("DELETE * FROM Transactions");
        SetLeaseField("RentAccount", "105");
        Charge(Date(2024, 1, 1), 300, RentFlags::PeriodRent, c.rentClass);
        RentPayment payment = leases::ProposePayment(kLeaseId, c.rentClass);
        EXPECT_EQ(payment.from.description, c.payer);
        EXPECT_EQ(payment.paymentType, c.word);
        payment.to.id = 106;
        leases::SubmitPayment(payment);
        EXPECT_EQ(Next(), "01/01/2024");
        EXPECT_EQ(Ask("SELECT IEN FROM Transactions"), c.ien);
        EXPECT_EQ(Ask("SELECT RentAccount FROM Lease"), c.account);
    }
}

TEST_F(Payment, OfASubsidyComesFromTheTenantWhereNoPayorIsNamed) {
    struct Case {
        const char* type;
        const char* id;
        int expectedType;
        int expectedId;
    };
    for (const Case& c :
         {Case{"1", "106", 1, 106}, Case{"5", "103", 5, 103}, Case{"NULL", "106", 5, 103},
          Case{"1", "NULL", 5, 103}, Case{"0", "0", 5, 103}, Case{"1", "0", 1, 0}}) {
        SetLeaseField("SubsidyType", c.type);
        SetLeaseField("SubsidyId", c.id);
        const RentPayment payment = leases::ProposePayment(kLeaseId, TransactionClass::Subsidy);
        EXPECT_EQ(payment.from.type, c.expectedType) << c.type << ' ' << c.id;
        EXPECT_EQ(payment.from.id, c.expectedId) << c.type << ' ' << c.id;
    }
}

TEST_F(Payment, ATypedPayerIsANameWithoutARecord) {
    Rent(Date(2024, 1, 1));
    RentPayment payment = leases::ProposePayment(kLeaseId, TransactionClass::Rent);
    payment.from.id = 0;
    payment.from.description = "Ann's uncle";
    leases::SubmitPayment(payment);
    EXPECT_EQ(Ask("SELECT DebitDesc FROM Transactions WHERE DebitId = 0 AND DebitType = 5 "
                  "AND IdTenant = 0"),
              "Ann's uncle");
}

TEST_F(Payment, SaysBeforeThatNoAccountReceivesIt) {
    Rent(Date(2024, 1, 1));
    RentPayment payment = Ticking({true});
    for (const auto& [id, name, added] :
         {std::tuple{105, "First Bank", ""},
          {0, "", ". No account is chosen to receive it"},
          {0, "Cash box", ". \"Cash box\" receives it, which is not one of your accounts"}}) {
        payment.to.id = id;
        payment.to.description = name;
        EXPECT_EQ(
            leases::DescribeOutlook(payment),
            std::string("1 charge, next due date moves from 01/01/2024 to 02/01/2024") + added);
    }
}

TEST_F(Payment, TrimsItsDescription) {
    Rent(Date(2024, 1, 1));
    RentPayment payment = Ticking({true});
    payment.description = "  For January ";
    leases::SubmitPayment(payment);
    EXPECT_EQ(Ask("SELECT Description FROM Transactions"), "For January");
}

TEST_F(Payment, TellsTheScreensWhenAllIsKept) {
    Rent(Date(2024, 1, 1));
    Lines told;
    const core::NotifyToken token([&](std::int16_t kind, std::int16_t action, std::int32_t id) {
        told.push_back(fmt::format("{} {} {}{}", kind, action, id,
                                   core::App().Connection.InUnitOfWork() ? " inside" : ""));
    });
    leases::SubmitPayment(leases::ProposePayment(kLeaseId, TransactionClass::Rent));
    ASSERT_GE(told.size(), 3U);
    EXPECT_EQ(Lines(told.end() - 3, told.end()), (Lines{"10 1 0", "2 1 101", "30 1 0"}));
}

TEST_F(Payment, LeavesTheRunOfTheLeaseToItsCallerWhenTold) {
    SetLeaseField("DateUpdated", "12/31/2023");
    Rent(Date(2024, 1, 1));
    const RentPayment payment = leases::ProposePayment(kLeaseId, TransactionClass::Rent);
    leases::SubmitPayment(payment, leases::LeaseUpdate::No);
    EXPECT_EQ(Ask("SELECT DateUpdated FROM Lease"), "12/31/2023");
    EXPECT_EQ(Next(), "02/01/2024");
}

TEST_F(Payment, OffersChargesByDayThenInTheOrderTheyCame) {
    const std::int32_t late = Charge(Date(2024, 2, 9), 5);
    const std::int32_t first = Charge(Date(2023, 12, 31), 7);
    const std::int32_t second = Charge(Date(2023, 12, 31), 6);
    Charge(Date(2024, 1, 1), 9, RentFlags::Ordinary, TransactionClass::Deposit);
    std::vector<std::int32_t> ids;
    for (const PaymentCharge& charge :
         leases::ProposePayment(kLeaseId, TransactionClass::Rent).charges)
        ids.push_back(charge.idRentLog);
    EXPECT_EQ(ids, (std::vector{first, second, late}));
}

class EditedPayment : public Payment {
  protected:
    EditedPayment() {
        Rent(Date(2024, 1, 1));
        Charge(Date(2024, 1, 9), 40);
        id_ = leases::SubmitPayment(leases::ProposePayment(kLeaseId, TransactionClass::Rent),
                                    leases::LeaseUpdate::No);
        Charge(Date(2024, 1, 20), 8);
    }
    RentPayment Read() const { return leases::ReadPayment(id_); }

    std::int32_t id_ = 0;
};

TEST_F(EditedPayment, ShowsWhatItSettledAndOnRequestWhatIsOpen) {
    RentPayment payment = Read();
    EXPECT_EQ(payment.charges.size(), 2U) << "its own row is no charge";
    EXPECT_NE(payment.idPaymentRow, 0);
    EXPECT_EQ(payment.from.description, "O'Brien, Ann");
    EXPECT_EQ(payment.Total(), Currency::FromUnits(1040));
    EXPECT_EQ(leases::DescribeOutlook(payment), "2 charges, next due date stays 02/01/2024");
    leases::ReadCharges(payment, leases::OpenCharges::Offer);
    ASSERT_EQ(payment.charges.size(), 3U);
    EXPECT_FALSE(payment.charges[2].selected);
    EXPECT_THROW(leases::ReadPayment(999'999), platform::DatabaseError);
}

TEST_F(EditedPayment, GivesBackWhatIsUntickedAndTakesWhatIsTicked) {
    RentPayment payment = Read();
    leases::ReadCharges(payment, leases::OpenCharges::Offer);
    payment.charges[0].selected = false;
    payment.charges[2].selected = true;
    EXPECT_EQ(leases::SubmitPayment(payment, leases::LeaseUpdate::No), id_);
    EXPECT_EQ(Ledger(), (Lines{"01/01/2024 1 1,000.00 -", "01/09/2024 0 40.00 +",
                               "03/05/2024 2 (48.00) +", "01/20/2024 0 8.00 +"}));
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions"), "48");
    EXPECT_EQ(Next(), "02/01/2024") << "an edit never moves it back";
    payment = Read();
    leases::ReadCharges(payment, leases::OpenCharges::Offer);
    for (PaymentCharge& charge : payment.charges)
        charge.selected = true;
    leases::SubmitPayment(payment, leases::LeaseUpdate::No);
    EXPECT_EQ(Next(), "02/01/2024") << "nor on";
}

TEST_F(EditedPayment, OfNothingKeepsItsRowAtZeroAndAnotherIsNeverAdded) {
    RentPayment payment = Read();
    for (PaymentCharge& charge : payment.charges)
        charge.selected = false;
    leases::SubmitPayment(payment, leases::LeaseUpdate::No);
    EXPECT_EQ(Ask("SELECT Amount FROM RentLog WHERE Flags = 2"), "0");
    payment = Read();
    leases::ReadCharges(payment, leases::OpenCharges::Offer);
    payment.charges[0].selected = true;
    leases::SubmitPayment(payment, leases::LeaseUpdate::No);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE Flags = 2 AND Amount = -1000"), "1");
}

TEST_F(EditedPayment, RewritesWhatIsEnteredAndKeepsWhatWasExported) {
    core::App().Connection.Execute("UPDATE Transactions SET CreditExported = True");
    RentPayment payment = Read();
    payment.dateEffective = Date(2024, 3, 31);
    payment.paymentType = "Partial Rent Payment";
    payment.from.type = core::kAccount;
    payment.from.id = 106;
    payment.from.description = "Housing Aid";
    leases::SubmitPayment(payment, leases::LeaseUpdate::No);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE DateEffective = '03/31/2024' "
                  "AND TaxCategory = 'Partial Rent Payment' AND DebitType = 1 AND IdTenant = 106 "
                  "AND CreditExported = True AND DebitExported = False"),
              "1");
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE Flags = 2 AND DatePosted = '03/31/2024' "
                  "AND Category = 'Partial Rent Payment'"),
              "1");
}

TEST_F(EditedPayment, OfARemovedLeaseKeepsItsUnitAndBuilding) {
    Run("DELETE * FROM Lease");
    RentPayment payment = Read();
    payment.checkNumber = "18";
    leases::SubmitPayment(payment);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE CheckNum = '18' AND IdUnit = 102 "
                  "AND IdBuilding = 104 AND IdLease = 101"),
              "1");
}

TEST_F(EditedPayment, ComesBackUnderItsNumberWhenItHasGone) {
    const RentPayment payment = Read();
    Run("DELETE * FROM Transactions");
    core::App().Connection.Execute("DELETE * FROM RentLog WHERE Flags = 2");
    leases::SubmitPayment(payment, leases::LeaseUpdate::No);
    EXPECT_EQ(Ask("SELECT IdTransaction FROM Transactions WHERE Amount = 1040"),
              std::to_string(id_));
    EXPECT_EQ(Ask("SELECT Amount FROM RentLog WHERE Flags = 2"), "-1040");
}

TEST_F(Payment, TooLargeForMoneyIsRefusedWhole) {
    Charge(Date(2024, 1, 1), 1);
    core::App().Connection.Execute("UPDATE RentLog SET Amount = 922337203685477.5807");
    Charge(Date(2024, 1, 2), 1);
    const RentPayment payment = leases::ProposePayment(kLeaseId, TransactionClass::Rent);
    const Lines before = DumpBooks();
    EXPECT_THROW(leases::SubmitPayment(payment), platform::OverflowError);
    EXPECT_EQ(DumpBooks(), before);
}

} // namespace

} // namespace tests
