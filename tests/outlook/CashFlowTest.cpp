#include "outlook/CashFlow.h"

#include <gmock/gmock.h>

#include "outlook/ForecastTable.h"

namespace {

using outlook::Flow;
using outlook::Forecast;
using outlook::Origin;
using platform::Currency;
using platform::Date;
using testing::ElementsAre;

Forecast Sample() {
    const auto row = [](Date date, Origin origin, std::string what, int amount, Flow flow) {
        return outlook::ForecastRow{.date = date,
                                    .origin = origin,
                                    .recordKind = core::kLease,
                                    .recordId = 7,
                                    .name = "Ann",
                                    .what = std::move(what),
                                    .amount = Currency::FromUnits(amount),
                                    .flow = flow};
    };
    return {Date(2027, 2, 25),
            Date(2027, 3, 4),
            {row({2027, 2, 20}, Origin::Charge, "Rent", 10, Flow::In),
             row({2027, 2, 25}, Origin::Day, "Lease ends", 0, Flow::Neither),
             row({2027, 3, 3}, Origin::LateFee, "Late Fee", 5, Flow::In),
             row({2027, 3, 3}, Origin::Event, "Transfer", 900, Flow::Neither),
             row({2027, 3, 3}, Origin::Event, "Repairs", 40, Flow::Out),
             row({2027, 3, 3}, Origin::Day, "Insurance renewal due", 0, Flow::Neither),
             row({2027, 3, 4}, Origin::Charge, "Mortgage Payment", 100, Flow::Out)},
            {"fault"}};
}

TEST(CashFlow, AddsUpWeeksThatBeginToday) {
    const auto weeks = outlook::WeeksOf(Sample());
    ASSERT_EQ(weeks.size(), 2U);
    EXPECT_EQ(weeks[0].first, Date(2027, 2, 25));
    EXPECT_EQ(weeks[0].sums.in, Currency::FromUnits(15)) << "rows before today are due by now";
    EXPECT_EQ(weeks[0].sums.out, Currency::FromUnits(40)) << "a transfer is neither";
    EXPECT_EQ(weeks[1].first, Date(2027, 3, 4));
    EXPECT_EQ(weeks[1].sums.Net(), Currency::FromUnits(-100));
    EXPECT_EQ(outlook::TotalOf(Sample()).Net(), Currency::FromUnits(-125));
    EXPECT_EQ(outlook::WeeksOf({Date(2027, 2, 25), Date(2027, 2, 25), {}, {}}).size(), 1U);
}

TEST(CashFlow, SaysOnEachDayWhatComes) {
    const auto days = outlook::DaysOf(Sample());
    ASSERT_EQ(days.size(), 4U);
    EXPECT_THAT(days.at(Date(2027, 2, 25)).Lines(), ElementsAre("Lease ends"));
    EXPECT_THAT(days.at(Date(2027, 3, 3)).Lines(), ElementsAre("In 5.00", "Out 40.00", "2 others"));
    EXPECT_EQ(days.at(Date(2027, 3, 3)).firstRow, 2U);
}

TEST(CashFlow, LeavesLateFeesOut) {
    const Forecast paid = outlook::WithoutLateFees(Sample());
    EXPECT_EQ(paid.rows.size(), 6U);
    EXPECT_EQ(paid.faults.size(), 1U);
    EXPECT_EQ(outlook::TotalOf(paid).in, Currency::FromUnits(10));
}

TEST(CashFlow, ShowsNoAmountOnADayWithoutMoney) {
    const Forecast forecast = Sample();
    const outlook::ForecastTable table(forecast);
    constexpr std::size_t kAmount = 6;
    EXPECT_EQ(table.Columns()[kAmount].caption, "Amount");
    EXPECT_TRUE(table.ValueAt(1, kAmount).IsNull());
    EXPECT_EQ(table.ValueAt(3, kAmount).AsCurrency(), Currency::FromUnits(900));
    EXPECT_EQ(table.ValueAt(3, kAmount + 1).AsText(), "");
    EXPECT_EQ(table.ValueAt(4, kAmount + 1).AsText(), "Out");
}

} // namespace
