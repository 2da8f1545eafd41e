// The look ahead to a scheduled event that has never run.

#include <gmock/gmock.h>

#include <fmt/core.h>

#include "core/CoreFixture.h"
#include "core/DailyRun.h"
#include "outlook/LookAhead.h"
#include "platform/system/Clock.h"
#include "shell/Registrations.h"
#include "support/Books.h"

namespace {

using core::App;
using platform::Date;
using platform::DateAdd;
using platform::Interval;
using Lines = std::vector<std::string>;

using FirstRun = tests::CoreBooks;

/// As a program posts that is started on every day, or left on.
TEST_F(FirstRun, IsForetoldForTodayAndTheOthersFromThere) {
    shell::RegisterLogic();
    Run("INSERT INTO Configuration (NextId) VALUES (1000)");
    const struct {
        int interval;
        int period;
        int days;
        std::size_t runs;
    } cases[] = {{1, 7, 30, 5},  {2, 2, 60, 5},  {3, 1, 90, 3},  {4, 5, 90, 3},
                 {4, 17, 90, 3}, {4, 31, 90, 3}, {5, 1, 366, 2}, {3, 1, 0, 1}};
    for (const auto& c : cases) {
        for (const bool posts : {true, false}) {
            SCOPED_TRACE(fmt::format("{} {} {}", c.interval, c.period, posts));
            platform::SetToday(Date(2024, 5, 17));
            for (const char* const table : {"AutoEvent", "Transactions", "Alerts"})
                Run(std::string("DELETE * FROM ") + table);
            Run(
                fmt::format("INSERT INTO AutoEvent (IdAutoEvent, EventType, Description, Enabled, "
                            "Alert, EventAction, IntervalType, IntervalPeriod, DebitType, DebitId, "
                            "CreditType, CreditId, TaxCategory, Amount) VALUES (7, 1, 'Care', "
                            "True, {}, {}, {}, {}, 1, 105, 1, 107, 'Supplies', 5)",
                            posts ? "False" : "True", posts ? 1 : 0, c.interval, c.period));
            const Date until = DateAdd(Interval::Day, c.days, platform::Today());
            Lines foretold;
            for (const auto& row : outlook::LookAhead(App().Connection.File(), until).rows)
                foretold.push_back(row.date.ToText());
            for (; platform::Today() <= until;
                 platform::SetToday(DateAdd(Interval::Day, 1, platform::Today())))
                core::UpdateRecords();
            EXPECT_THAT(foretold,
                        testing::UnorderedElementsAreArray(support::Rows(
                            App().Connection, posts ? "SELECT DateEffective FROM Transactions"
                                                    : "SELECT EntryDate FROM Alerts")));
            EXPECT_EQ(foretold.size(), c.runs);
        }
    }
}

} // namespace
