#include "leases/ReturnPayment.h"

#include <string>
#include <vector>

#include <fmt/core.h>
#include <gtest/gtest.h>

#include "core/RecordKinds.h"
#include "leases/CreditBooks.h"
#include "leases/Credits.h"
#include "leases/DueMove.h"
#include "leases/DumpBooks.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "removal/DeleteRecord.h"
#include "support/ScriptedDialogs.h"

namespace tests {

namespace {

using leases::RentFlags;
using leases::TransactionClass;
using platform::Currency;
using platform::Date;

class Return : public CreditBooks {
  protected:
    static std::int32_t PayAll(TransactionClass rentClass = TransactionClass::Rent) {
        return leases::SubmitPayment(leases::ProposePayment(kLeaseId, rentClass));
    }
    static std::int32_t GiveBack(std::int32_t id, int fee = 0) {
        leases::PaymentReturn returned = leases::ProposeReturn(id);
        returned.fee = Currency::FromUnits(fee);
        return leases::SubmitReturn(returned);
    }
    static std::string Why(std::int32_t id) {
        try {
            leases::ProposeReturn(id);
        } catch (const platform::Error& error) {
            return error.what();
        }
        return {};
    }
    static std::string Open() {
        return Ask("SELECT Sum(Amount) FROM RentLog WHERE IdTransaction = 0 AND Class <> 4");
    }
    /// Deletes a payment; the user keeps its charges or lets them be deleted too.
    static void Delete(std::int32_t id, bool withCharges) {
        const support::ScriptedDialogs dialogs({withCharges});
        removal::DeleteRecord(core::kTransaction, id, removal::Confirm::DontAsk);
    }
};

TEST_F(Return, PutsTheLeaseBackToWhereItWasAndChargesTheFee) {
    SetLeaseField("Option", "True");
    SetLeaseField("OptionCredit", "50");
    Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    Charge(Date(2024, 1, 9), 40);
    Charge(Date(2024, 2, 1), 1000, RentFlags::PeriodRent);
    const std::int32_t id = PayAll();
    EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease"), "03/01/2024");
    platform::SetToday(Date(2024, 3, 12));
    leases::PaymentReturn returned = leases::ProposeReturn(id);
    returned.fee = Currency::FromUnits(25);
    const leases::PreviewRows preview = leases::PreviewReturn(returned);
    const std::int32_t reversal = leases::SubmitReturn(returned);

    EXPECT_EQ(Ask(fmt::format("SELECT DateEffective + '|' + TaxCategory + '|' + DebitDesc + '|' + "
                              "CreditDesc + '|' + Description FROM Transactions WHERE "
                              "IdTransaction = {}",
                              reversal)),
              "03/12/2024|Rent Payment|O'Brien, Ann|First Bank|Return of 03/05/2024: Rent Payment "
              "for O'Brien, 12 Elm Street A");
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM Transactions WHERE IEN = 0 AND CreditId = 105"), "0");
    EXPECT_EQ(Ask(fmt::format("SELECT Description FROM Transactions WHERE IdTransaction = {}", id)),
              "Returned 03/12/2024: Rent Payment for O'Brien, 12 Elm Street A");
    EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease"), "01/01/2024");
    EXPECT_EQ(Ask("SELECT RentDue FROM Lease"), "2065");
    EXPECT_EQ(Ask("SELECT OptionBalance FROM Lease"), "0");
    EXPECT_EQ(Ask("SELECT RentStatus FROM Lease"), "Eviction");
    EXPECT_EQ(Ask("SELECT DatePosted + '|' + Description FROM RentLog WHERE Category = 'NSF Fee' "
                  "AND Amount = 25 AND IdTransaction = 0 AND Flags = 0 AND Class = 1"),
              "03/12/2024|Payment of 03/05/2024 returned");
    ExpectBalanced();

    Lines told;
    for (const leases::PreviewRow& row : preview)
        told.push_back(row.what);
    EXPECT_EQ(told, (Lines{"Transaction", "Charge open again", "Charge open again",
                           "Charge open again", "In the place of the charges",
                           "Settled by the return", "Payment in the ledger", "Fee charged",
                           "Option credit withdrawn", "Next due date", "Payment marked"}));
}

TEST_F(Return, OfEveryClassIsEvenAndAFeeIsNeverADeposit) {
    for (const TransactionClass rentClass :
         {TransactionClass::Subsidy, TransactionClass::Deposit}) {
        Restart();
        Charge(Date(2024, 1, 1), 800, RentFlags::Ordinary, rentClass);
        const Lines before = LedgerLines();
        GiveBack(PayAll(rentClass), 15);
        EXPECT_EQ(Open(), "815");
        EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease"), "01/01/2024");
        const bool isDeposit = rentClass == TransactionClass::Deposit;
        EXPECT_EQ(Ask("SELECT Class FROM RentLog WHERE Category = 'NSF Fee'"),
                  isDeposit ? "1" : "2");
        EXPECT_EQ(Ask("SELECT DepositDue FROM Lease"), isDeposit ? "800" : "0");
        EXPECT_EQ(Ask("SELECT DepositBalance FROM Lease"), "0");
        EXPECT_EQ(Ask("SELECT Sum(Amount) FROM Transactions"), "0");
        EXPECT_TRUE(Difference(before, LedgerLines()).empty());
        ExpectBalanced();
    }
}

TEST_F(Return, FindsTheDueDateAgainAcrossShortMonths) {
    struct Case {
        const char* termType;
        Date oldest;
        int periods;
        Date due;
        Date before;
    };
    for (const Case& c : {
             Case{"Month(s)", {2024, 1, 31}, 1, {2024, 2, 29}, {2024, 1, 31}},
             Case{"Month(s)", {2024, 1, 31}, 2, {2024, 3, 29}, {2024, 1, 31}},
             Case{"Month(s)", {2023, 12, 31}, 1, {2024, 1, 31}, {2023, 12, 31}},
             Case{"Month(s)", {2024, 1, 1}, 1, {2024, 3, 1}, {2024, 2, 1}}, // later rent was paid
             Case{"Month(s)", {}, 1, {2024, 3, 30}, {2024, 2, 29}},
             Case{"WTW", {2023, 12, 28}, 1, {2024, 1, 4}, {2023, 12, 28}},
             Case{"Year(s)", {2024, 2, 29}, 1, {2025, 2, 28}, {2024, 2, 29}},
             Case{"Month(s)", {2024, 1, 31}, 0, {2024, 2, 29}, {2024, 2, 29}},
         }) {
        EXPECT_EQ(leases::DueBefore(c.termType, c.due, c.periods, c.oldest), c.before)
            << c.due.ToText();
    }
}

TEST_F(Return, IsDoneOnceAndOnlyWithMoneyThatCame) {
    Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    const std::int32_t id = PayAll();
    const leases::PaymentReturn stale = leases::ProposeReturn(id);
    const std::int32_t reversal = GiveBack(id);
    EXPECT_EQ(Why(id),
              fmt::format("Transaction {} was returned already, by transaction {}", id, reversal));
    EXPECT_EQ(Why(reversal),
              fmt::format("Transaction {} brought no money that could be returned", reversal));
    EXPECT_EQ(Why(4711), "There is no transaction 4711");
    Run("INSERT INTO Transactions (IdTransaction, Class, Flags, Amount, IdLease) VALUES "
        "(90, 3, 3, 5, 101)");
    Run("INSERT INTO Transactions (IdTransaction, Class, Flags, Amount) VALUES (91, 5, 0, 5)");
    EXPECT_EQ(Why(90), "Transaction 90 is not a payment of a lease");
    EXPECT_EQ(Why(91), "Transaction 91 is not a payment of a lease");
    const Lines before = DumpBooks();
    EXPECT_THROW(leases::SubmitReturn(stale), platform::ConflictError);
    EXPECT_EQ(DumpBooks(), before);

    leases::PaymentReturn wrong = stale;
    wrong.date = Date(2024, 3, 4);
    wrong.fee = Currency::FromUnits(-1);
    wrong.dueAfter = Date();
    EXPECT_EQ(leases::ReturnErrors(wrong),
              (Lines{"The payment was made on 03/05/2024 and can't be returned before.",
                     "The fee can't be less than zero.", "A next due date must be specified."}));
    EXPECT_THROW(leases::SubmitReturn(wrong), platform::FieldError);
    EXPECT_EQ(DumpBooks(), before);
}

TEST_F(Return, OfAPaymentWhoseChargesWerePaidAgainIsRefusedAndTheNewOneCanBeReturned) {
    Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    const std::int32_t first = PayAll();
    GiveBack(first, 25);
    const std::int32_t second = PayAll();
    EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease"), "02/01/2024");
    EXPECT_NE(Why(first), "");
    EXPECT_EQ(Open(), "null");
    ExpectBalanced();
    GiveBack(second);
    EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease"), "01/01/2024");
    EXPECT_EQ(Open(), "1025");
    ExpectBalanced();
}

TEST_F(Return, LeavesAPaymentWhoseTextsCanBeEditedAndNothingElse) {
    Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    const std::int32_t id = PayAll();
    const std::int32_t reversal = GiveBack(id);
    for (const std::int32_t side : {id, reversal}) {
        leases::RentPayment edit = leases::ReadPayment(side);
        edit.description = "Of Ann"; // a screen that was opened before shows no mark
        leases::SubmitPayment(edit);
        EXPECT_EQ(
            Ask(fmt::format("SELECT Description FROM Transactions WHERE IdTransaction = {}", side)),
            side == id ? "Returned 03/05/2024: Of Ann" : "Of Ann");
        ExpectBalanced();
        edit = leases::ReadPayment(side);
        edit.charges.front().selected = false;
        EXPECT_THROW(leases::SubmitPayment(edit), platform::ConflictError);
        leases::RentPayment more = leases::ReadPayment(side);
        leases::ReadCharges(more, leases::OpenCharges::Offer);
        for (leases::PaymentCharge& charge : more.charges)
            charge.selected = true;
        EXPECT_THROW(leases::SubmitPayment(more), platform::ConflictError);
    }
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM Transactions"), "0");
}

TEST_F(Return, AcrossTheEndOfAYearTakesNothingFromTheOldOne) {
    Charge(Date(2023, 12, 1), 1000, RentFlags::PeriodRent);
    leases::RentPayment payment = leases::ProposePayment(kLeaseId, TransactionClass::Rent);
    payment.dateEffective = Date(2023, 12, 31);
    leases::PaymentReturn returned = leases::ProposeReturn(leases::SubmitPayment(payment));
    returned.date = Date(2024, 1, 2);
    leases::SubmitReturn(returned);
    const auto income = [](std::string_view year) {
        return Ask(
            fmt::format("SELECT Sum(Amount) FROM Transactions WHERE IEN = 0 AND "
                        "DateEffective LIKE '*/{}'",
                        year));
    };
    EXPECT_EQ(income("2023"), "1000");
    EXPECT_EQ(income("2024"), "-1000");
}

TEST_F(Return, AndWhatIsDeletedAfterwardsLeavesWhatIsOwed) {
    struct Case {
        const char* name;
        bool reversalFirst;
        bool both;
        bool withCharges;
        const char* open; // what is owed then: charges of 1000 against the money that is left
    };
    for (const Case& c : {Case{"the return", true, false, false, "0"},
                          Case{"the return with its rows", true, false, true, "0"},
                          Case{"the payment", false, false, false, "2000"},
                          Case{"the payment with its rows", false, false, true, "2000"},
                          Case{"return and payment", true, true, false, "1000"},
                          Case{"payment and return", false, true, true, "1000"}}) {
        SCOPED_TRACE(c.name);
        Restart();
        Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
        const std::int32_t id = PayAll();
        const std::int32_t reversal = GiveBack(id);
        Delete(c.reversalFirst ? reversal : id, c.withCharges);
        if (c.both) Delete(c.reversalFirst ? id : reversal, c.withCharges);
        EXPECT_EQ(Open(), c.open);
        ExpectBalanced();
        if (c.both) {
            EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog"), "1");
            EXPECT_EQ(Ask("SELECT Count(*) FROM RentCredit"), "0");
        } else if (c.reversalFirst) {
            EXPECT_EQ(Ask("SELECT Description FROM Transactions"),
                      "Rent Payment for O'Brien, 12 Elm Street A");
            EXPECT_EQ(Why(id), ""); // it can bounce once more
        }
    }
}

TEST_F(Return, DeletingAPaymentByAmountTakesItsCreditAlong) {
    struct Case {
        int spent;
        bool withCharges;
        const char* open;
    };
    for (const Case& c : {Case{0, false, "1000"}, Case{0, true, "null"}, Case{300, false, "1300"},
                          Case{300, true, "300"}}) {
        SCOPED_TRACE(fmt::format("{} {}", c.spent, c.withCharges));
        Restart();
        Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
        const std::int32_t id = leases::SubmitAmount(Amount(1500));
        if (c.spent > 0) {
            Charge(Date(2024, 2, 9), c.spent + 10);
            leases::SubmitAmount(Amount(10));
        }
        Delete(id, c.withCharges);
        EXPECT_EQ(Open(), c.open);
    }
    // A payment that used credit gives it back.
    Restart();
    leases::SubmitAmount(Amount(500));
    Charge(Date(2024, 2, 9), 600);
    const std::int32_t user = leases::SubmitAmount(Amount(100));
    Delete(user, true);
    EXPECT_EQ(leases::CreditBalance(kLeaseId, TransactionClass::Rent), Currency::FromUnits(500));
    ExpectBalanced();
}

TEST_F(Return, ALeaseThatIsDeletedLeavesNothingOfItsCreditsBehind) {
    leases::SubmitAmount(Amount(500));
    leases::SetSettlesCharges(kLeaseId, true);
    removal::DeleteRecord(core::kLease, kLeaseId, removal::Confirm::DontAsk);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentCredit"), "0");
    EXPECT_EQ(Ask("SELECT Count(*) FROM LeaseCredit"), "0");
    EXPECT_EQ(Why(Id("SELECT IdTransaction FROM Transactions")).substr(0, 24),
              "The lease of transaction");
}

} // namespace

} // namespace tests
