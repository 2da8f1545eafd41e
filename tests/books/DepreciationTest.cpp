#include <gtest/gtest.h>

#include "books/clsDepreciation.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"

namespace tests {

namespace {

books::clsDepreciation Schedule(std::string_view start, double basis) {
    books::clsDepreciation depreciation;
    depreciation.SetStartDate(start);
    depreciation.SetBasis(basis);
    depreciation.Init();
    return depreciation;
}

std::string Scaled(platform::Currency amount) {
    return std::to_string(amount.Scaled());
}

TEST(Depreciation, FollowsTheTableOfResidentialProperty) {
    struct Case {
        std::string start;
        double basis;
        int periods;
        std::string firstEnd;
        std::int64_t firstLoss; // in ten-thousandths
        std::string lastEnd;
        std::int64_t lastLoss;
        std::int64_t lastValue;
    };
    const Case cases[] = {
        {"01/01/2020", 100000, 28, "12/31/2020", 34'850'000, "12/31/2047", 19'790'000, 0},
        {"06/30/2020", 100000, 28, "12/31/2020", 19'700'000, "12/31/2047", 34'940'000, 0},
        {"07/01/2020", 100000, 29, "12/31/2020", 16'670'000, "12/31/2048", 1'610'000, 0},
        {"12/31/2019", 100000, 29, "12/31/2019", 1'520'000, "12/31/2047", 16'760'000, 0},
        {"02/29/2024", 1000, 28, "12/31/2024", 318'200, "12/31/2051", 228'200, 0},
        {"7/4/21", 0, 29, "12/31/2021", 0, "12/31/2049", 0, 0},
    };
    for (const Case& one : cases) {
        const auto schedule = Schedule(one.start, one.basis);
        ASSERT_EQ(schedule.Periods(), one.periods) << one.start;
        const auto& first = schedule.Schedule().front();
        const auto& last = schedule.Schedule().back();
        EXPECT_EQ(first.PeriodEnd, one.firstEnd);
        EXPECT_EQ(first.Loss.Scaled(), one.firstLoss) << one.start;
        EXPECT_EQ(last.PeriodEnd, one.lastEnd);
        EXPECT_EQ(last.Loss.Scaled(), one.lastLoss) << one.start;
        EXPECT_EQ(last.EndValue.Scaled(), one.lastValue) << one.start;
        platform::Currency value = platform::Currency::FromDouble(one.basis);
        for (const auto& period : schedule.Schedule()) {
            EXPECT_EQ(Scaled(period.StartValue), Scaled(value));
            value -= period.Loss;
            EXPECT_EQ(Scaled(period.EndValue), Scaled(value));
        }
    }
}

TEST(Depreciation, AnswersForAYear) {
    auto depreciation = Schedule("06/15/2020", 100000);
    EXPECT_EQ(depreciation.TotalDepreciation("2020"), 1970.0F);
    EXPECT_EQ(depreciation.TotalDepreciation(" 2021 "), 3636.0F);
    for (const char* year : {"2019", "2048", "", "next", "2021.5"})
        EXPECT_EQ(depreciation.TotalDepreciation(year), 0.0F) << year;
    depreciation.SetBasis(200000);
    EXPECT_EQ(depreciation.TotalDepreciation("2021"), 7272.0F) << "it is rebuilt for each question";
}

TEST(Depreciation, CarriesMethodAndLifeAlongWithoutUsingThem) {
    auto depreciation = Schedule("03/01/2022", 50000.5);
    const std::string clip = depreciation.GetClip();
    depreciation.SetLife(39);
    depreciation.SetMethod("Double Declining");
    depreciation.Init();
    EXPECT_EQ(depreciation.GetClip(), clip);
    EXPECT_EQ(clip.substr(0, clip.find(';', 90)),
              "Period Ending|Beginning Of Period|Period Loss|End Of Period|Method Used;"
              "12/31/2022|50,000.50|1,439.51|48,560.99|Straight Line");
    EXPECT_EQ(depreciation.GridRow(0)[0], "1");
    EXPECT_EQ(depreciation.GridRow(0)[3], "1,439.51");
    EXPECT_EQ(depreciation.GridRow(27)[1], "12/31/2049");
}

TEST(Depreciation, StartsTodayWithoutADateAndRefusesJunk) {
    platform::SetToday(platform::Date(2024, 5, 17));
    auto depreciation = Schedule("  ", 1000);
    EXPECT_EQ(depreciation.StartDate(), "05/17/2024");
    EXPECT_EQ(depreciation.Schedule().front().PeriodEnd, "12/31/2024");
    platform::SetToday(std::nullopt);
    EXPECT_THROW(Schedule("02/30/2024", 1000), platform::ConversionError);
    EXPECT_THROW(Schedule("01/01/2024", 1e15), platform::OverflowError);
}

} // namespace

} // namespace tests
