#include "books/ScheduledEvents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "books/BooksFixture.h"
#include "core/RunHeard.h"

namespace {

using platform::Date;
using platform::SetToday;

class ScheduledEvents : public tests::BooksTest {
  protected:
    static void RunAll() {
        tests::RunHeard heard;
        books::RunDueEvents(heard);
    }
};

TEST_F(ScheduledEvents, OfAnySortPostTheSameHoweverSeldomTheyRun) {
    constexpr int kEvents = 40;
    const auto live = [](unsigned seed, int longestGap) {
        Run("DELETE * FROM AutoEvent");
        Run("DELETE * FROM Transactions");
        std::mt19937 dice(7);
        const auto roll = [&dice](int from, int to) {
            return from + static_cast<int>(dice() % static_cast<unsigned>(to - from + 1));
        };
        for (int id = 1; id <= kEvents; ++id) {
            const Date last = Date::FromSerial(Date(2023, 1, 1).Serial() + roll(0, 364));
            AddScheduled(id, roll(1, 5), roll(1, 40), last.ToText());
        }
        std::mt19937 gaps(seed);
        const Date end(2024, 12, 31);
        for (Date day(2024, 1, 1);;) {
            SetToday(day);
            RunAll();
            if (day == end) break;
            const auto gap = 1 + gaps() % static_cast<unsigned>(longestGap);
            day = std::min(end, Date::FromSerial(day.Serial() + static_cast<int>(gap)));
        }
        return Rows(
            "SELECT Description, DateEffective, Amount FROM Transactions "
            "ORDER BY Description, DateValue(DateEffective)");
    };
    const std::string monthly = live(1, 30);
    EXPECT_GT(std::count(monthly.begin(), monthly.end(), ';'), 200);
    for (const unsigned seed : {2U, 3U}) {
        EXPECT_EQ(live(seed, 9), monthly);
        EXPECT_EQ(live(seed, 400), monthly);
    }
}

} // namespace
