#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <fmt/core.h>
#include <gtest/gtest.h>

#include "core/DailyRun.h"
#include "core/Globals.h"
#include "leases/LeaseRun.h"
#include "leases/RentPayment.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "store/CreateDatabase.h"
#include "support/Books.h"
#include "support/Random.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using platform::Currency;
using platform::CursorMode;
using platform::Date;
using platform::DateAdd;
using platform::Interval;
using platform::Recordset;
using support::Random;

constexpr int kLeases = 25;
const Date kFirstDay(2023, 11, 15);
const Date kLastDay(2025, 3, 3);

class NobodyListens : public core::RunListener {
  public:
    void Posted(core::RecordKind, std::int32_t, std::string_view,
                const std::vector<core::PostedRow>&) override {}
    void Failed(core::RecordKind, std::int32_t, std::string_view description,
                std::string_view reason) override {
        ADD_FAILURE() << description << ": " << reason;
    }
};

void AddRandomLease(Recordset& leases, Random& random, std::int32_t id) {
    const Date active = DateAdd(Interval::Day, random.Below(500) - 250, kFirstDay);
    const bool started = random.Below(3) > 0;
    leases.AddNew();
    leases["IdLease"].Set(id);
    leases["IdUnit"].Set(id + 1000);
    leases["IdTenant"].Set(id + 2000);
    leases["Status"].Set(started ? random.OneOf({"Contracted", "MTM", "WTW", "Notice"})
                                 : random.OneOf({"Pending", "Pending", "Expired"}));
    leases["TermType"].Set(
        random.OneOf({"Week(s)", "Month(s)", "Year(s)", "WTW", "MTM", "Weekly", "Yearly"}));
    leases["ExpireOption"].Set(random.OneOf({"Renew", "Expire", "MTM", "WTW", ""}));
    leases["Term"].Set(random.Below(14));
    leases["DateActive"].Set(active.ToText());
    leases["DateRenewed"].Set(active.ToText());
    leases["DateVacating"].Set(DateAdd(Interval::Day, random.Below(400), kFirstDay).ToText());
    leases["DateNextDue"].Set(DateAdd(Interval::Day, random.Below(70), active).ToText());
    leases["DateUpdated"].Set(started ? kFirstDay.ToText() : "");
    leases["Rent"].Set(Currency::FromUnits(500 + random.Below(1000)));
    leases["Subs"].Set(random.Below(2) == 0);
    leases["SubsAmt"].Set(Currency::FromScaled(1234567));
    leases["Discount"].Set(Currency::FromUnits(20));
    leases["DiscountDays"].Set(random.Below(10));
    leases["OneTimeFee"].Set(Currency::FromUnits(77));
    leases["OneTimeDays"].Set(random.Below(20));
    leases["DailyFee"].Set(Currency::FromUnits(random.Below(3)));
    leases["DailyDays"].Set(random.Below(60));
    leases["EvictDays"].Set(random.Below(90));
    leases["NoticeDays"].Set(random.Below(60));
    leases.Update();
}

void MakePortfolio(const std::filesystem::path& folder, std::uint64_t seed) {
    store::CreateDatabase(folder);
    core::App().Connection.Open(folder / "Vestrel.mdb");
    core::App().Connection.Execute("INSERT INTO Configuration (NextId) VALUES (5000)");
    Random random(seed);
    Recordset leases;
    leases.Open(core::App().Connection, "Lease", CursorMode::AppendOnly);
    for (std::int32_t id = 1; id <= kLeases; ++id) {
        core::App().Connection.Execute("INSERT INTO Unit (IdUnit, Status) VALUES (?, 'Hold')",
                                       {id + 1000});
        core::App().Connection.Execute("INSERT INTO Tenant (IdTenant, Status) VALUES (?, '')",
                                       {id + 2000});
        AddRandomLease(leases, random, id);
    }
    // The events that some tenants' payments trigger.
    for (std::int32_t id = 1; id <= kLeases; id += 3) {
        core::App().Connection.Execute(
            "INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, TriggerType, TriggerID, "
            "TriggerTaxCategory, EventAction, DebitType, DebitId, CreditType, CreditId, Amount, "
            "TaxCategory, IEN, Description) VALUES (?, 2, True, 5, ?, 'Rent Payment', 1, 1, 1, 1, "
            "2, 12.5, 'Fees', 1, 'Fee')",
            {id + 3000, id + 2000});
    }
}

std::vector<std::string> Dump(std::string_view statement) {
    return support::Rows(core::App().Connection, statement);
}

enum class Payments { No, Yes };

/// The rows that the runs write, by the name of the part.
using Books = std::map<std::string, std::vector<std::string>>;

/// The books without the one-time fees: those of later unpaid periods are charged in a long run
/// only, as the run that goes day by day starts from the oldest unpaid due date each time.
Books ReadBooks() {
    Books books;
    books["leases"] = Dump(
        "SELECT L.IdLease, L.Status, L.RentStatus, L.DateRenewed, L.DateUpdated, "
        "L.DateNextDue, L.SubsDue, L.DepositBalance, L.OptionBalance, L.RentDue - "
        "Nz((SELECT Sum(Amount) FROM RentLog WHERE IdLease = L.IdLease AND Amount = 77), 0) "
        "FROM Lease AS L ORDER BY L.IdLease");
    books["units"] = Dump("SELECT IdUnit, Status FROM Unit ORDER BY IdUnit");
    books["tenants"] = Dump("SELECT IdTenant, Status FROM Tenant ORDER BY IdTenant");
    books["ledger"] = Dump(
        "SELECT IdLease, DatePosted, Class, Flags, Category, Amount, Description, "
        "IIf(IdTransaction = 0, 'open', 'paid') FROM RentLog "
        "WHERE Amount <> 77 ORDER BY IdLease, DateValue(DatePosted), IdRentLog");
    books["transactions"] = Dump(
        "SELECT IdLease, DateEffective, Class, Amount, DebitId, CreditId FROM Transactions "
        "ORDER BY IdTransaction");
    return books;
}

/// Days on which tenants pay, the same for every way to live through them.
std::vector<Date> PayDays(Random& random) {
    std::vector<Date> days;
    for (Date day = kFirstDay;;) {
        day = DateAdd(Interval::Day, 1 + random.Below(45), day);
        if (day >= kLastDay) break;
        days.push_back(day);
    }
    days.push_back(kLastDay);
    return days;
}

/// Some leases pay some of what is open. One-time fees stay open, since the ways to live through
/// the days differ in them.
void PayAtRandom(Random& random) {
    for (std::int32_t id = 1; id <= kLeases; ++id) {
        const auto rentClass =
            core::TransactionClass{static_cast<std::int16_t>(1 + random.Below(2))};
        const int oneIn = 1 + random.Below(4);
        if (random.Below(3) == 0) continue;
        leases::RentPayment payment = leases::ProposePayment(id, rentClass);
        int place = 0;
        for (leases::PaymentCharge& charge : payment.charges) {
            const bool isOneTime = charge.amount == Currency::FromUnits(77);
            charge.selected = !isOneTime && place % oneIn == 0;
            if (!isOneTime) ++place;
        }
        leases::SubmitPayment(payment);
    }
}

Books LiveFrom(std::uint64_t seed, int daysAStep, Payments payments) {
    const support::TemporaryFolder folder;
    MakePortfolio(folder.Path() / "db", seed);
    NobodyListens listener;
    Random random(seed + 1);
    Date day = kFirstDay;
    const auto live = [&](Date until) {
        while (day < until) {
            day = std::min(until, DateAdd(Interval::Day, daysAStep, day));
            platform::SetToday(day);
            leases::UpdateLeases(listener);
        }
    };
    if (payments == Payments::Yes) {
        for (const Date payDay : PayDays(random)) {
            live(payDay);
            PayAtRandom(random);
        }
    }
    live(kLastDay);
    Books books = ReadBooks();
    core::App().Connection.Close();
    return books;
}

class CatchUp : public testing::TestWithParam<std::uint64_t> {};

TEST_P(CatchUp, PostsWhatDailyRunsWouldHavePosted) {
    const Books daily = LiveFrom(GetParam(), 1, Payments::No);
    ASSERT_GT(daily.at("ledger").size(), 500U);
    for (const int daysAStep : {1000, 97}) {
        SCOPED_TRACE(daysAStep);
        EXPECT_EQ(LiveFrom(GetParam(), daysAStep, Payments::No), daily);
    }
}

TEST_P(CatchUp, PostsTheSameBetweenPayments) {
    const Books daily = LiveFrom(GetParam(), 1, Payments::Yes);
    ASSERT_GT(daily.at("transactions").size(), 100U);
    for (const int daysAStep : {1000, 7}) {
        SCOPED_TRACE(daysAStep);
        EXPECT_EQ(LiveFrom(GetParam(), daysAStep, Payments::Yes), daily);
    }
}

/// Compares the ledger with the lease and its transactions.
TEST_P(CatchUp, EveryPaymentBalances) {
    const support::TemporaryFolder folder;
    MakePortfolio(folder.Path() / "db", GetParam());
    NobodyListens listener;
    Random random(GetParam() + 2);
    for (const Date payDay : PayDays(random)) {
        platform::SetToday(payDay);
        leases::UpdateLeases(listener);
        PayAtRandom(random);
    }
    EXPECT_EQ(Dump("SELECT IdTransaction, Sum(Amount) FROM RentLog WHERE IdTransaction <> 0 "
                   "GROUP BY IdTransaction HAVING Sum(Amount) <> 0"),
              std::vector<std::string>());
    EXPECT_NE(Dump("SELECT Count(*) FROM Transactions WHERE CheckNum = 'AutoEvent'"),
              std::vector<std::string>{"0"});
    EXPECT_EQ(Dump("SELECT T.IdTransaction FROM Transactions AS T WHERE T.Class > 0 AND "
                   "T.Amount <> "
                   "Nz((SELECT -1 * Sum(Amount) FROM RentLog WHERE Flags = 2 "
                   "AND IdTransaction = T.IdTransaction), 0)"),
              std::vector<std::string>());
    EXPECT_EQ(Dump("SELECT L.IdLease FROM Lease AS L WHERE L.RentDue <> Nz((SELECT Sum(Amount) "
                   "FROM RentLog WHERE IdLease = L.IdLease AND Class = 1 AND IdTransaction = 0), "
                   "0)"),
              std::vector<std::string>());
    core::App().Connection.Close();
}

INSTANTIATE_TEST_SUITE_P(Portfolios, CatchUp, testing::Values(1U, 20241U, 977U));

} // namespace

} // namespace tests
