// A payment is returned whose credit was spent: the due date goes back to where it was, and what
// the credit had paid is open again.

#include <algorithm>
#include <string>

#include <fmt/core.h>
#include <gtest/gtest.h>

#include "core/RecordKinds.h"
#include "leases/CreditBooks.h"
#include "leases/Credits.h"
#include "leases/ReturnPayment.h"
#include "leases/mLease.h"
#include "platform/system/Clock.h"
#include "removal/DeleteRecord.h"

namespace tests {

namespace {

using leases::RentFlags;
using leases::TransactionClass;
using platform::Currency;
using platform::Date;

class SpentCredit : public CreditBooks {
  protected:
    /// January's rent is open, and nothing was charged since.
    static void Begin() {
        Restart();
        platform::SetToday(Date(2024, 1, 2));
        SetLeaseField("DateUpdated", "01/02/2024");
        SetLeaseField("Option", "True");
        SetLeaseField("OptionCredit", "50");
        Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
        // Events that wait for the tenant's payments post rows in the midst of each.
        Run("DELETE * FROM AutoEvent");
        for (const char* const id : {"900", "901"})
            Run(std::string("INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, "
                            "TriggerType, TriggerID, TriggerTaxCategory, Amount) VALUES (") +
                id + ", 2, True, 1, 5, 103, 'Rent Payment', 0)");
    }
    static void LiveUntil(Date day) {
        platform::SetToday(day);
        leases::UpdateLeaseById(kLeaseId, leases::WalkMode::CatchUp);
    }
    static std::int32_t PayAll() {
        return leases::SubmitPayment(leases::ProposePayment(kLeaseId, TransactionClass::Rent));
    }
    /// Month and day.
    static std::string NextDue() { return Ask("SELECT DateNextDue FROM Lease").substr(0, 5); }
    /// The open sums: of the rents of a period, with R, and of the other charges.
    static std::string Open() {
        std::string rows;
        for (const char* const flags : {"1", "0"}) {
            const std::string select =
                std::string("FROM RentLog WHERE IdTransaction = 0 AND Class = 1 AND Flags = ") +
                flags;
            if (Ask("SELECT Count(*) " + select) == "0") continue;
            rows += Ask("SELECT Sum(Amount) " + select) + (*flags == '1' ? "R " : " ");
        }
        return rows;
    }
};

TEST_F(SpentCredit, GoesBackWithThePaymentThatBroughtIt) {
    enum class Credit { ByItself, ByHand };
    enum class Then { Nothing, AllIsPaid, RestIsPaid, FeeIsPaid };
    using enum Credit;
    using enum Then;
    struct Case {
        const char* name;
        int received; // on January 2
        Credit used;
        Date day;
        Then then;
        const char* dueBefore; // month and day, as those that follow
        const char* due;
        const char* dueAgain; // when all is paid once more
        const char* open;
        const char* option;
    };
    const Date january(2024, 1, 9);
    const Date february(2024, 2, 3);
    const Date march(2024, 3, 3);
    for (const Case& c : {
             Case{"rent", 2000, ByItself, february, Nothing, "03/01", "01/01", "03/01", "2000R ",
                  "0"},
             {"two rents", 3000, ByItself, march, Nothing, "04/01", "01/01", "04/01", "3000R ",
              "0"},
             {"and more", 3300, ByItself, march, Nothing, "04/01", "01/01", "04/01", "3000R ", "0"},
             // The open rest keeps the due date, the paid part never moved it.
             {"part", 1400, ByItself, february, Nothing, "02/01", "01/01", "03/01", "1600R 400 ",
              "0"},
             {"part, and the rest is paid by other money", 1400, ByItself, february, AllIsPaid,
              "03/01", "02/01", "03/01", "1000R 400 ", "50"},
             // The credit makes up what the other money lacks.
             {"rest", 1400, ByHand, february, AllIsPaid, "03/01", "01/01", "03/01", "1400R ", "0"},
             {"rest, by amount", 1400, ByHand, february, RestIsPaid, "03/01", "01/01", "03/01",
              "1400R ", "0"},
             {"fee", 1400, ByHand, january, FeeIsPaid, "02/01", "01/01", "02/01", "1000R 400 ",
              "0"},
             {"rent, and the next is paid by other money", 2000, ByItself, march, AllIsPaid,
              "04/01", "02/01", "04/01", "2000R ", "50"},
             {"rent, and the rest is paid out", 2400, ByHand, february, AllIsPaid, "03/01", "01/01",
              "03/01", "2000R 400 ", "0"},
             {"rent that it covers", 2000, ByHand, february, AllIsPaid, "03/01", "01/01", "03/01",
              "2000R ", "0"},
             {"nothing", 1400, ByHand, january, Nothing, "02/01", "01/01", "02/01", "1000R ", "0"},
             {"paid out", 1400, ByHand, january, AllIsPaid, "02/01", "01/01", "02/01", "1000R 400 ",
              "0"},
         }) {
        SCOPED_TRACE(c.name);
        Begin();
        leases::SetSettlesCharges(kLeaseId, c.used == ByItself);
        const std::int32_t id = leases::SubmitAmount(Amount(c.received));
        LiveUntil(c.day);
        if (c.then == FeeIsPaid) Charge(Date(2024, 1, 8), 500);
        if (c.then == AllIsPaid) PayAll();
        if (c.then == FeeIsPaid) leases::SubmitAmount(Amount(100));
        if (c.then == RestIsPaid) leases::SubmitAmount(Amount(600));
        EXPECT_EQ(NextDue(), c.dueBefore);
        const leases::PaymentReturn returned = leases::ProposeReturn(id);
        EXPECT_EQ(returned.dueAfter.ToText().substr(0, 5), c.due);
        leases::SubmitReturn(returned);

        EXPECT_EQ(NextDue(), c.due);
        EXPECT_EQ(Open(), c.open);
        EXPECT_EQ(Ask("SELECT OptionBalance FROM Lease"), c.option);
        EXPECT_EQ(leases::CreditBalance(kLeaseId, TransactionClass::Rent), Currency());
        EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE IdLease = 101 AND Amount = 0 AND "
                      "Description NOT LIKE 'Returned *'"),
                  "0");
        ExpectBalanced();
        // Paid again, the rents move the due date on.
        PayAll();
        EXPECT_EQ(NextDue(), c.dueAgain);
        EXPECT_EQ(Open(), "");
        ExpectBalanced();
    }
}

TEST_F(SpentCredit, IsShownBeforeItGoesBack) {
    Begin();
    const std::int32_t id = leases::SubmitAmount(Amount(1400));
    LiveUntil(Date(2024, 2, 3));
    PayAll();
    std::string shown;
    const leases::PaymentReturn returned = leases::ProposeReturn(id);
    for (const leases::PreviewRow& row : leases::PreviewReturn(returned))
        shown += fmt::format("{} {}; ", row.what, row.amount.Scaled() / Currency::kScale);
    EXPECT_EQ(shown,
              "Transaction -1400; Charge open again 1000; Split in two 1000; Part still paid 600; "
              "Part open again 400; Credit withdrawn -400; In the place of the charges 1400; "
              "Settled by the return -1400; Payment in the ledger 1400; Option credit withdrawn "
              "-100; Next due date 0; Payment marked 0; ");
    // Spent in another way after that, it is read again first.
    leases::RentPayment other =
        leases::ReadPayment(Id("SELECT Max(IdTransaction) FROM Transactions WHERE IdLease = 101"));
    for (leases::PaymentCharge& charge : other.charges)
        charge.selected = charge.amount > Currency();
    leases::SubmitPayment(other);
    EXPECT_THROW(leases::SubmitReturn(returned), platform::ConflictError);
    // Deleted after that, the screen still shows it until it is read again.
    removal::DeleteRecord(core::kTransaction, id, removal::Confirm::DontAsk);
    EXPECT_FALSE(leases::PreviewReturn(returned).empty());
}

TEST_F(SpentCredit, ThatWasPaidOutInPartIsShownRowByRow) {
    Begin();
    const std::int32_t id = leases::SubmitAmount(Amount(1400));
    Charge(Date(2024, 1, 8), 100);
    PayAll();
    std::string shown;
    for (const leases::PreviewRow& row : leases::PreviewReturn(leases::ProposeReturn(id))) {
        if (row.what.starts_with("Charge") || row.what.starts_with("Credit"))
            shown += fmt::format("{} {}; ", row.what, row.amount.Scaled() / Currency::kScale);
    }
    EXPECT_EQ(shown,
              "Charge open again 1000; Charge open again 100; Credit still used -300; Credit "
              "withdrawn -100; Credit spent, owed again 300; ");
}

TEST_F(SpentCredit, ThatWasPaidAheadOnceMoreIsOwedBesideTheNewCredit) {
    Begin();
    const std::int32_t id = leases::SubmitAmount(Amount(1400));
    Charge(Date(2024, 1, 8), 100);
    const std::int32_t later = leases::SubmitAmount(Amount(500)); // 400 of it paid ahead
    leases::RentPayment edit = leases::ReadPayment(later);
    leases::ReadCharges(edit, leases::OpenCharges::Offer);
    // The older of the two credits of the day.
    std::ranges::find(edit.charges, "Credit of 01/02/2024", &leases::PaymentCharge::description)
        ->selected = true;
    leases::SubmitPayment(edit);
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM Transactions"), "1500");
    leases::SubmitReturn(leases::ProposeReturn(id));
    // The fee and 300 of the credit against the new credit of 400.
    EXPECT_EQ(Open(), "1000R 0 ");
    EXPECT_EQ(NextDue(), "01/01");
    ExpectBalanced();
    PayAll();
    EXPECT_EQ(NextDue(), "02/01");
    EXPECT_EQ(Open(), "");
    ExpectBalanced();
}

TEST_F(SpentCredit, LeavesAMarkOnAnEmptyPaymentUntilTheReturnIsDeleted) {
    for (const int returns : {1, 2}) {
        SCOPED_TRACE(returns);
        Begin();
        const std::int32_t id = leases::SubmitAmount(Amount(2000));
        LiveUntil(Date(2024, 2, 3));
        PayAll(); // from the credit, no money comes in
        const auto empty = [] {
            return Ask("SELECT Description FROM Transactions WHERE IdLease = 101 AND Amount = 0");
        };
        const std::string before = empty();
        Charge(Date(2024, 2, 3), 60);
        const std::int32_t other = PayAll();
        if (returns == 2) leases::SubmitReturn(leases::ProposeReturn(other));
        const leases::PaymentReturn returned = leases::ProposeReturn(id);
        const leases::PreviewRow last = leases::PreviewReturn(returned).back();
        const std::int32_t reversal = leases::SubmitReturn(returned);
        EXPECT_EQ(empty(), "Returned 02/03/2024: " + before);
        EXPECT_EQ(last.what + ": " + last.description, "Payment from credit marked: " + empty());
        removal::RemoveRecord(core::kTransaction, reversal, removal::Tell::Nobody);
        // Of two returns on a day either may have left it.
        EXPECT_EQ(empty(), (returns == 2 ? "Returned 02/03/2024: " : "") + before);
    }
}

} // namespace

} // namespace tests
