#include "leases/AmountPayment.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include <fmt/core.h>
#include <gtest/gtest.h>

#include "leases/CreditBooks.h"
#include "leases/Credits.h"
#include "leases/DumpBooks.h"
#include "leases/RentSplit.h"
#include "platform/values/Errors.h"

namespace tests {

namespace {

using leases::AmountPayment;
using leases::PaymentCharge;
using leases::RentFlags;
using leases::RentPart;
using leases::TransactionClass;
using platform::Currency;
using platform::Date;

TEST(AmountPlan, SpreadsTheAmountOverTheChargesInTheirOrder) {
    struct Case {
        const char* name;
        std::vector<int> charges; // in cents; 0 for one that isn't selected
        int received;
        std::vector<std::tuple<int, int, int>> steps; // place, settled, rest
        int credit;
    };
    for (const Case& c : std::vector<Case>{
             {"nothing is open", {}, 500, {}, 500},
             {"exact", {1000, 40}, 1040, {{0, 1000, 0}, {1, 40, 0}}, 0},
             {"less than the first", {1000, 40}, 999, {{0, 999, 1}}, 0},
             {"a cent", {1000}, 1, {{0, 1, 999}}, 0},
             {"splits the last",
              {1000, 40, 500},
              1060,
              {{0, 1000, 0}, {1, 40, 0}, {2, 20, 480}},
              0},
             {"over", {1000}, 1001, {{0, 1000, 0}}, 1},
             {"skips what isn't selected", {1000, 0, 500}, 1200, {{0, 1000, 0}, {2, 200, 300}}, 0},
             {"leaves a credit that isn't needed", {-200, 1000}, 1000, {{1, 1000, 0}}, 0},
             {"takes a credit in whole", {-200, 1000}, 700, {{0, -200, 0}, {1, 900, 100}}, 0},
             {"takes a part of it", {-200, 1000}, 950, {{0, -50, -150}, {1, 1000, 0}}, 0},
             {"the older credit first",
              {-200, 1000, -300},
              600,
              {{0, -200, 0}, {1, 1000, 0}, {2, -200, -100}},
              0},
             {"a credit larger than the charges",
              {-5000, 1000},
              10,
              {{0, -990, -4010}, {1, 1000, 0}},
              0},
             {"only credit", {-200}, 50, {}, 50},
         }) {
        SCOPED_TRACE(c.name);
        std::vector<PaymentCharge> charges;
        for (std::size_t i = 0; i < c.charges.size(); ++i) {
            PaymentCharge& charge = charges.emplace_back();
            charge.idRentLog = static_cast<std::int32_t>(i);
            charge.amount = Currency::FromScaled(c.charges[i] * 100);
            charge.selected = c.charges[i] != 0;
        }
        const auto plan = leases::PlanAmount(charges, Currency::FromScaled(c.received * 100));
        std::vector<std::tuple<int, int, int>> steps;
        for (const leases::AmountStep& step : plan.steps) {
            steps.emplace_back(step.idRentLog, static_cast<int>(step.settled.Scaled() / 100),
                               static_cast<int>(step.rest.Scaled() / 100));
        }
        EXPECT_EQ(steps, c.steps);
        EXPECT_EQ(plan.credit, Currency::FromScaled(c.credit * 100));
    }
}

class PayAmount : public CreditBooks {};

TEST_F(PayAmount, WritesJustTheRowsThatThePreviewShows) {
    SetLeaseField("Option", "True");
    SetLeaseField("OptionCredit", "12.5");
    struct Case {
        int received;
        RentPart part;
        const char* nextDue;
        Lines ledger; // the rows that are new or were changed
    };
    for (const Case& c : std::vector<Case>{
             {400, RentPart::Open, "01/01/2024", {"Rent 400 +", "Rent Deferred 600 -"}},
             {400, RentPart::Paid, "02/01/2024", {"Rent 400 +", "Rent Deferred 600 -"}},
             {1000, RentPart::Open, "02/01/2024", {"Rent 1000 +"}},
             {1020, RentPart::Paid, "02/01/2024", {"Rent 1000 +", "Fee 20 +", "Fee Deferred 20 -"}},
             {1540,
              RentPart::Open,
              "02/01/2024",
              {"Rent 1000 +", "Fee 40 +", "Rent 500 +", "Rent Deferred 500 -"}},
             {2500,
              RentPart::Open,
              "03/01/2024",
              {"Rent 1000 +", "Fee 40 +", "Rent 1000 +", "Overpayment 460 +", "Credit -460 -"}},
         }) {
        SCOPED_TRACE(fmt::format("{} {}", c.received, c.nextDue));
        Restart();
        Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
        Charge(Date(2024, 1, 9), 40);
        Charge(Date(2024, 2, 1), 1000, RentFlags::PeriodRent);
        const Lines before = LedgerLines();
        AmountPayment amount = Amount(c.received);
        amount.rentPart = c.part;
        const leases::PreviewRows preview = leases::PreviewAmount(amount);
        leases::SubmitAmount(amount);
        EXPECT_EQ(Difference(LedgerLines(), before), NewRows(preview));
        EXPECT_EQ(Difference(before, LedgerLines()), RemovedRows(preview));
        EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease"), c.nextDue);
        EXPECT_EQ(Paid(), c.ledger);
        ExpectBalanced();
        const auto due = std::ranges::find(preview, "Next due date", &leases::PreviewRow::what);
        const bool moves = std::string(c.nextDue) != "01/01/2024";
        ASSERT_EQ(due != preview.end(), moves);
        if (moves) {
            EXPECT_EQ(due->date.ToText(), c.nextDue);
        }
    }
}

TEST_F(PayAmount, RefusesWhatIsNoAmount) {
    Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    const Lines before = DumpBooks();
    for (const int units : {0, -1, -1000}) {
        const AmountPayment amount = Amount(units);
        EXPECT_EQ(leases::AmountErrors(amount),
                  Lines{"The amount received must be more than zero."});
        EXPECT_TRUE(leases::PreviewAmount(amount).empty());
        EXPECT_THROW(leases::SubmitAmount(amount), platform::FieldError);
    }
    AmountPayment fraction = Amount(300);
    fraction.received = platform::Currency::FromScaled(3'333'330);
    EXPECT_THROW(leases::SubmitAmount(fraction), platform::FieldError);
    EXPECT_EQ(DumpBooks(), before);
    AmountPayment stored = Amount(1000);
    stored.payment.idTransaction = leases::SubmitAmount(stored);
    EXPECT_THROW(leases::SubmitAmount(stored), platform::FieldError);
}

TEST_F(PayAmount, FollowsAnOrderOfTheUsersOwn) {
    const auto rent = Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    const auto fee = Charge(Date(2024, 1, 9), 40);
    AmountPayment amount = Amount(100);
    leases::SortCharges(amount.payment, std::vector<std::int32_t>{4711, fee});
    ASSERT_EQ(amount.payment.charges.size(), 2U);
    EXPECT_EQ(amount.payment.charges.back().idRentLog, rent);
    EXPECT_EQ(leases::DescribeAmount(amount),
              "1 charge paid and one in part, next due date stays 01/01/2024");
    leases::SubmitAmount(amount);
    EXPECT_EQ(Paid(), (Lines{"Rent 60 +", "Rent Deferred 940 -", "Fee 40 +"}));
}

TEST_F(PayAmount, ACreditIsTakenInByALaterPaymentAsAnyCharge) {
    leases::SubmitAmount(Amount(300));
    EXPECT_EQ(leases::CreditBalance(kLeaseId, TransactionClass::Rent), Currency::FromUnits(300));
    EXPECT_EQ(Ask("SELECT RentDue FROM Lease"), "-300");
    EXPECT_THROW(leases::CheckNotTied(Id("SELECT IdOrigin FROM RentCredit")),
                 platform::ConflictError);
    EXPECT_NO_THROW(leases::CheckNotTied(Id("SELECT IdRentLog FROM RentCredit")));
    Charge(Date(2024, 4, 1), 1000, RentFlags::PeriodRent);
    const leases::RentPayment rest = leases::ProposePayment(kLeaseId, TransactionClass::Rent);
    EXPECT_EQ(rest.Total(), Currency::FromUnits(700));
    leases::SubmitPayment(rest);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE IdTransaction = 0"), "0");
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM Transactions"), "1000");
    ExpectBalanced();
}

TEST_F(PayAmount, OfADepositOrASubsidyKeepsWhatIsOverInItsOwnClass) {
    for (const TransactionClass rentClass :
         {TransactionClass::Deposit, TransactionClass::Subsidy}) {
        Restart();
        Charge(Date(2024, 1, 1), 800, RentFlags::Ordinary, rentClass);
        leases::SubmitAmount(Amount(500, rentClass));
        EXPECT_EQ(Paid(), (Lines{"Fee 500 +", "Fee Deferred 300 -"}));
        leases::SubmitAmount(Amount(450, rentClass));
        EXPECT_EQ(leases::CreditBalance(kLeaseId, rentClass), Currency::FromUnits(150));
        EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease"), "01/01/2024");
        const bool isDeposit = rentClass == TransactionClass::Deposit;
        EXPECT_EQ(Ask("SELECT DepositDue FROM Lease"), isDeposit ? "-150" : "0");
        EXPECT_EQ(Ask("SELECT DepositBalance FROM Lease"), isDeposit ? "950" : "0");
        EXPECT_EQ(Ask("SELECT SubsDue FROM Lease"), isDeposit ? "0" : "-150");
        ExpectBalanced();
    }
}

TEST_F(PayAmount, IsRefusedAsAWholeIfWhatItWasPlannedOnHasChanged) {
    const auto rent = Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    Charge(Date(2024, 2, 1), 1000, RentFlags::PeriodRent);
    const std::string where = " WHERE IdRentLog = " + std::to_string(rent);
    for (const std::string& change :
         {"UPDATE RentLog SET Amount = 999" + where, "UPDATE RentLog SET IdTransaction = 7" + where,
          "DELETE * FROM RentLog" + where}) {
        const AmountPayment stale = Amount(1500);
        Run(change);
        const Lines before = DumpBooks();
        EXPECT_THROW(leases::SubmitAmount(stale), platform::ConflictError) << change;
        EXPECT_EQ(DumpBooks(), before) << change;
        Run("UPDATE RentLog SET IdTransaction = 0, Amount = 1000");
    }
    // The same amount twice from two screens: the second finds its charge split.
    const AmountPayment twice = Amount(400);
    leases::SubmitAmount(twice);
    EXPECT_THROW(leases::SubmitAmount(twice), platform::ConflictError);
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM Transactions"), "400");
}

TEST_F(PayAmount, EditedLaterKeepsItsAmountUntilItsChargesChange) {
    Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    const std::int32_t id = leases::SubmitAmount(Amount(1200));
    leases::RentPayment edit = leases::ReadPayment(id);
    EXPECT_EQ(edit.Total(), Currency::FromUnits(1200));
    edit.checkNumber = "17";
    leases::SubmitPayment(edit);
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions"), "1200");
    ExpectBalanced();
    // Without what was paid ahead the payment is smaller, and the two rows cancel each other.
    edit = leases::ReadPayment(id);
    edit.charges.back().selected = false;
    leases::SubmitPayment(edit);
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions"), "1000");
    EXPECT_EQ(Ask("SELECT RentDue FROM Lease"), "0");
    ExpectBalanced();
}

TEST_F(PayAmount, APartOfACreditBelongsToThePaymentAsTheWholeDid) {
    leases::SubmitAmount(Amount(300));
    const std::int32_t credit = Id("SELECT IdRentLog FROM RentLog WHERE Amount < 0 AND Flags = 0");
    auto split = leases::ReadSplit(credit);
    split->parts[0].amount = Currency::FromUnits(-100);
    split->parts[1].amount = Currency::FromUnits(-200);
    leases::SaveSplit(*split);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentCredit"), "2");
    const auto origin = leases::ReadSplit(Id("SELECT IdOrigin FROM RentCredit"));
    const Lines before = DumpBooks();
    EXPECT_THROW(leases::SaveSplit(*origin), platform::ConflictError);
    EXPECT_EQ(DumpBooks(), before);
}

} // namespace

} // namespace tests
