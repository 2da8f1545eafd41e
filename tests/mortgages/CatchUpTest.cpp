#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Globals.h"
#include "mortgages/MortgageFixture.h"
#include "mortgages/MortgagePayment.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "store/CreateDatabase.h"
#include "support/Random.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using platform::Currency;
using platform::Date;
using platform::DateAdd;
using platform::Interval;
using platform::Recordset;
using support::Random;

constexpr int kMortgages = 16;
const Date kFirstDay(2023, 11, 15);
const Date kLastDay(2025, 3, 3);

std::string RandomExtra(Random& random) {
    std::string list;
    for (int i = 0; i < 30; ++i)
        list += (i > 0 ? "," : "") + std::to_string(random.Below(5) == 0 ? random.Below(900) : 0);
    return list;
}

void AddRandomMortgage(Recordset& rows, Random& random, std::int32_t id) {
    const Date firstDue = DateAdd(Interval::Day, random.Below(500) - 400, kFirstDay);
    const int period = std::max(1, DateDiff(Interval::Month, firstDue, kFirstDay) + 1);
    rows.AddNew();
    rows["IdMortgage"].Set(id);
    rows["OrigPV"].Set(50'000.0 + random.Below(200'000));
    rows["OrigPer"].Set(random.Below(4) == 0 ? 18.0 : 360.0);
    rows["OrigRate"].Set(random.Below(90) / 1000.0);
    rows["IntOnly"].Set(random.Below(6) == 0);
    rows["ARM"].Set(random.Below(3) == 0);
    rows["FirstDue"].Set(firstDue.ToText());
    rows["NextDue"].Set(DateAdd(Interval::Month, period - 1, firstDue).ToText());
    rows["CurrentPeriod"].Set(period);
    rows["CurrentPV"].Set(1.0);
    if (random.Below(4) > 0) rows["DateUpdated"].Set(kFirstDay.ToText());
    if (random.Below(2) == 0) rows["xPri"].Set(RandomExtra(random));
    rows["xRate"].Set("0.05,0.05,0.06,0.06,0.055");
    rows["EscrowAmount"].Set(Currency::FromUnits(random.Below(3) * 100));
    rows["PMI"].Set(Currency::FromUnits(random.Below(2) * 30));
    rows["LateFee"].Set(Currency::FromUnits(77));
    rows["GracePeriod"].Set(random.Below(45));
    rows.Update();
}

void MakePortfolio(const std::filesystem::path& folder, std::uint64_t seed) {
    store::CreateDatabase(folder);
    core::App().Connection.Open(folder / "Vestrel.mdb");
    core::App().Connection.Execute("INSERT INTO Configuration (NextId) VALUES (5000)");
    Random random(seed);
    Recordset rows;
    rows.Open(core::App().Connection, "Mortgage", platform::CursorMode::AppendOnly);
    for (std::int32_t id = 1; id <= kMortgages; ++id)
        AddRandomMortgage(rows, random, id);
}

struct Books {
    std::vector<std::string> mortgages;
    std::vector<std::string> log;
};

/// Late fees of later unpaid periods are charged in a long run only, as the run that goes day by
/// day starts from the oldest unpaid due date each time.
Books ReadBooks() {
    return {Rows("SELECT IdMortgage, Status, PmtStatus, DateUpdated, NextDue, CurrentPeriod "
                 "FROM Mortgage ORDER BY IdMortgage"),
            Rows("SELECT IdMortgage, DatePosted, Period, Flags, Category, Description, Principal, "
                 "PayDown, Interest, Other, Total FROM MortgageLog WHERE Flags <> 7 "
                 "ORDER BY IdMortgage, DateValue(DatePosted), IdMortgageLog")};
}

Books LiveFrom(std::uint64_t seed, int daysAStep) {
    const support::TemporaryFolder folder;
    MakePortfolio(folder.Path() / "db", seed);
    for (Date day = kFirstDay; day < kLastDay;) {
        day = std::min(kLastDay, DateAdd(Interval::Day, daysAStep, day));
        RunMortgagesOn(day);
    }
    Books books = ReadBooks();
    core::App().Connection.Close();
    platform::SetToday({});
    return books;
}

class MortgageCatchUp : public testing::TestWithParam<std::uint64_t> {};

TEST_P(MortgageCatchUp, PostsWhatDailyRunsWouldHavePosted) {
    const Books daily = LiveFrom(GetParam(), 1);
    ASSERT_GT(daily.log.size(), 250U);
    for (const int daysAStep : {1000, 97}) {
        SCOPED_TRACE(daysAStep);
        const Books late = LiveFrom(GetParam(), daysAStep);
        EXPECT_EQ(late.mortgages, daily.mortgages);
        EXPECT_EQ(late.log, daily.log);
    }
}

INSTANTIATE_TEST_SUITE_P(Portfolios, MortgageCatchUp, testing::Values(1U, 20241U, 977U));

} // namespace

} // namespace tests
