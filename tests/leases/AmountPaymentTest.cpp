#include "leases/AmountPayment.h"

#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "leases/BooksTest.h"
#include "leases/Credits.h"
#include "leases/RentSplit.h"
#include "platform/values/Errors.h"
#include "support/Dump.h"

namespace tests {

namespace {

using leases::PaymentCharge;
using leases::TransactionClass;
using platform::Currency;

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

class Ties : public BooksTest {};

TEST_F(Ties, KeepACreditAndTheRowThatItComesFromAsTheyAre) {
    leases::SubmitAmount(
        {leases::ProposePayment(kLeaseId, TransactionClass::Rent), Currency::FromUnits(300)});
    const std::int32_t origin = std::stoi(Ask("SELECT IdOrigin FROM RentCredit"));
    const std::int32_t credit = std::stoi(Ask("SELECT IdRentLog FROM RentCredit"));
    EXPECT_THROW(leases::CheckNotTied(origin), platform::ConflictError);
    EXPECT_NO_THROW(leases::CheckNotTied(credit));
    // A part of a credit belongs to the payment as the whole did.
    auto split = leases::ReadSplit(credit);
    split->parts[0].amount = Currency::FromUnits(-100);
    split->parts[1].amount = Currency::FromUnits(-200);
    leases::SaveSplit(*split);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentCredit"), "2");
    const Lines before = support::Dump();
    EXPECT_THROW(leases::SaveSplit(*leases::ReadSplit(origin)), platform::ConflictError);
    EXPECT_EQ(support::Dump(), before);
}

TEST(SortCharges, SkipsADeletedChargeAndKeepsTheOrderOfTheOthers) {
    leases::RentPayment payment;
    for (const std::int32_t id : {1, 2, 3})
        payment.charges.emplace_back().idRentLog = id;
    leases::SortCharges(payment, std::vector<std::int32_t>{4711, 3});
    std::vector<std::int32_t> ids;
    for (const PaymentCharge& charge : payment.charges)
        ids.push_back(charge.idRentLog);
    EXPECT_EQ(ids, (std::vector{3, 1, 2}));
}

} // namespace

} // namespace tests
