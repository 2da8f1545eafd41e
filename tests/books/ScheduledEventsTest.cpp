#include "books/ScheduledEvents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "books/BooksFixture.h"
#include "core/NotifyAll.h"
#include "core/RunHeard.h"

namespace {

using platform::Date;
using platform::SetToday;
using Lines = std::vector<std::string>;

class ScheduledEvents : public tests::BooksTest {
  protected:
    static tests::RunHeard RunAll() {
        tests::RunHeard heard;
        books::RunDueEvents(heard);
        return heard;
    }
    static std::string Dates() {
        return Rows("SELECT DateEffective FROM Transactions ORDER BY IdTransaction");
    }
    static std::string LastRun(int id) {
        return Ask("SELECT LastRun FROM AutoEvent WHERE IdAutoEvent = " + std::to_string(id));
    }
};

TEST_F(ScheduledEvents, PostTheirTransactionAndTellOfIt) {
    AddEvent(7,
             "EventType, IntervalType, IntervalPeriod, LastRun, IdLease, IdTenant, IdBuilding, "
             "IdUnit, IdMortgage, IdWorkOrder",
             "1, 3, 1, '04/17/2024', 40, 30, 10, 20, 50, 9");
    Run("UPDATE Account SET ShowAs = 'The River Bank of the City of Salem' WHERE IdAccount = 60");
    AddTriggered(8, 1, 60, "Supplies"); // a scheduled event starts no triggered one
    AddTriggered(9, 1, 62, "Supplies");
    const tests::RunHeard heard = RunAll();
    EXPECT_EQ(heard.posted, Lines{"19 7 Event 7: Supplies 05/17/2024 25"});
    EXPECT_EQ(heard.failed, Lines{});
    EXPECT_EQ(Rows("SELECT DateEffective, DebitType, DebitId, DebitDesc, CreditType, CreditId, "
                   "CreditDesc, Amount, TaxCategory, IEN, CheckNum, Description FROM Transactions"),
              "05/17/2024|1|60|The River Bank of the City of |1|62|Jo Owner|25|Supplies|1|"
              "AutoEvent|Event 7;");
    EXPECT_EQ(Rows("SELECT IdLease, IdTenant, IdBuilding, IdUnit, IdMortgage, IdWorkOrder, Class, "
                   "Flags, Reconciled, IdLedger, IdMileage, DebitPrevBal, DebitNewBal, "
                   "CreditPrevBal, CreditNewBal, DebitExported, CreditExported FROM Transactions"),
              "40|30|10|20|50|9|0|0|False|0|0|0|0|0|0|False|False;");
    EXPECT_EQ(LastRun(7), "05/17/2024");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Alerts"), "0");
}

TEST_F(ScheduledEvents, CatchUpOneIntervalAtATimeEachOnItsOwnDay) {
    AddScheduled(7, 3, 1, "01/31/2024");
    AddScheduled(8, 2, 2, "04/15/2024");
    const tests::RunHeard heard = RunAll();
    EXPECT_EQ(heard.posted,
              (Lines{"19 7 Event 7: Supplies 02/29/2024 25", "19 8 Event 8: Supplies 04/29/2024 25",
                     "19 7 Event 7: Supplies 03/29/2024 25", "19 8 Event 8: Supplies 05/13/2024 25",
                     "19 7 Event 7: Supplies 04/29/2024 25"}));
    EXPECT_EQ(Dates(), "02/29/2024;04/29/2024;03/29/2024;05/13/2024;04/29/2024;");
    EXPECT_EQ(RunAll().posted, Lines{}) << "nothing is posted twice";
    EXPECT_EQ(Dates(), "02/29/2024;04/29/2024;03/29/2024;05/13/2024;04/29/2024;");
}

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

TEST_F(ScheduledEvents, RunAtOnceWhenTheyNeverRanAndAreReckonedFromThenOn) {
    AddScheduled(7, 3, 1, "");
    AddScheduled(8, 1, 30, "NULL");
    AddScheduled(9, 4, 20, "NULL");
    RunAll();
    EXPECT_EQ(Dates(), "05/17/2024;05/17/2024;");
    SetToday(Date(2024, 5, 20));
    RunAll();
    SetToday(Date(2024, 6, 20));
    RunAll();
    EXPECT_EQ(Rows("SELECT Description, DateEffective FROM Transactions ORDER BY IdTransaction"),
              "Event 7|05/17/2024;Event 8|05/17/2024;Event 9|05/20/2024;Event 7|06/17/2024;"
              "Event 8|06/16/2024;Event 9|06/20/2024;");
}

TEST_F(ScheduledEvents, OfADayOfTheMonthLoseNoDayWhenTheProgramIsNotStartedOnIt) {
    AddScheduled(7, 4, 20, "NULL");
    AddScheduled(8, 4, 16, "");
    int refreshed = 0;
    const core::NotifyToken token([&](std::int16_t kind, std::int16_t, std::int32_t) {
        if (kind == 19) ++refreshed;
    });
    EXPECT_EQ(RunAll().posted, Lines{});
    EXPECT_EQ(refreshed, 1) << "the awaited days are stored";
    EXPECT_EQ(RunAll().posted, Lines{});
    EXPECT_EQ(refreshed, 1);
    SetToday(Date(2024, 7, 1));
    EXPECT_EQ(RunAll().posted,
              (Lines{"19 7 Event 7: Supplies 05/20/2024 25", "19 8 Event 8: Supplies 06/16/2024 25",
                     "19 7 Event 7: Supplies 06/20/2024 25"}));
}

TEST_F(ScheduledEvents, AreReportedByNumberWithoutAName) {
    AddScheduled(7, 3, 1, "04/17/2024");
    Run("UPDATE AutoEvent SET Description = ' '");
    EXPECT_EQ(RunAll().posted, Lines{"19 7 event 7: Supplies 05/17/2024 25"});
}

TEST_F(ScheduledEvents, DoWhatTheyAreToldAndNoMore) {
    struct Case {
        int action;
        const char* alert;
        const char* rows;
        const char* alerts;
    };
    for (const auto& [action, alert, rows, alerts] :
         {Case{0, "False", "0", ""}, Case{1, "False", "1", ""},
          Case{0, "True", "0", "05/10/2024|Auto Event Launched: Event 7 [05/10/2024];"},
          Case{1, "True", "1", "05/10/2024|Auto Event Launched: Event 7 [05/10/2024];"},
          Case{2, "False", "0", ""}}) {
        Run("DELETE * FROM AutoEvent");
        Run("DELETE * FROM Transactions");
        Run("DELETE * FROM Alerts");
        AddScheduled(7, 2, 1, "05/03/2024");
        Run("UPDATE AutoEvent SET EventAction = " + std::to_string(action) + ", Alert = " + alert);
        RunAll();
        EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE DateEffective = '05/10/2024'"),
                  std::string(rows) == "1" ? "1" : "0");
        EXPECT_EQ(Rows("SELECT EntryDate, Description FROM Alerts WHERE EntryDate = '05/10/2024'"),
                  alerts);
        EXPECT_EQ(LastRun(7), "05/17/2024") << "it moves on whatever it does";
    }
}

TEST_F(ScheduledEvents, RunOnlyWhenEnabledAndCatchUpWhenEnabledAgain) {
    AddScheduled(7, 3, 1, "02/10/2024");
    Run("UPDATE AutoEvent SET Enabled = False");
    AddTriggered(8, 1, 60, "Supplies");
    EXPECT_EQ(RunAll().posted, Lines{});
    Run("UPDATE AutoEvent SET Enabled = NULL WHERE IdAutoEvent = 7");
    EXPECT_EQ(RunAll().posted, Lines{});
    Run("UPDATE AutoEvent SET Enabled = True WHERE IdAutoEvent = 7");
    RunAll();
    EXPECT_EQ(Dates(), "03/10/2024;04/10/2024;05/10/2024;");
}

TEST_F(ScheduledEvents, NameWhatCannotRunOnceAndLetTheOthersRun) {
    AddScheduled(5, 3, 0, "01/01/2024");
    AddScheduled(6, 9, 1, "");
    AddScheduled(7, 3, 1, "02/30/2024");
    AddScheduled(8, 3, 1, "03/10/2024");
    const tests::RunHeard heard = RunAll();
    ASSERT_EQ(heard.failed.size(), 3U);
    EXPECT_EQ(heard.failed[0], "19 5 Event 5: It never runs: its interval period is 0");
    EXPECT_EQ(heard.failed[1], "19 6 Event 6: It never runs: there is no interval type 9");
    EXPECT_EQ(heard.failed[2].substr(0, 14), "19 7 Event 7: ");
    EXPECT_NE(heard.failed[2].find("02/30/2024"), std::string::npos) << heard.failed[2];
    EXPECT_EQ(Dates(), "04/10/2024;05/10/2024;");
    EXPECT_EQ(LastRun(5), "01/01/2024");
    EXPECT_EQ(LastRun(7), "02/30/2024");
}

TEST_F(ScheduledEvents, TakeBackTheWholeRunThatFailsMidway) {
    AddScheduled(7, 3, 1, "02/10/2024");
    AddScheduled(8, 3, 1, "03/10/2024");
    // The second row that event 7 would post finds no room for its amount.
    core::App().Connection.RunScript(
        "CREATE TRIGGER full BEFORE UPDATE ON AutoEvent "
        "WHEN NEW.IdAutoEvent = 7 AND NEW.LastRun = '04/10/2024' "
        "BEGIN SELECT RAISE(ABORT, 'no room'); END");
    const tests::RunHeard heard = RunAll();
    ASSERT_EQ(heard.failed.size(), 1U);
    EXPECT_NE(heard.failed[0].find("no room"), std::string::npos);
    EXPECT_EQ(Rows("SELECT Description, DateEffective FROM Transactions ORDER BY IdTransaction"),
              "Event 7|03/10/2024;Event 8|04/10/2024;Event 8|05/10/2024;");
    EXPECT_EQ(LastRun(7), "03/10/2024");
}

TEST_F(ScheduledEvents, OfPartiesThatAreGonePostWithoutTheirNames) {
    AddScheduled(7, 3, 1, "04/10/2024");
    Run("UPDATE AutoEvent SET DebitId = 4711, CreditId = 0, CreditType = NULL, Amount = NULL");
    EXPECT_EQ(RunAll().failed, Lines{});
    EXPECT_EQ(Rows("SELECT DebitType, DebitId, DebitDesc, CreditType, CreditId, CreditDesc, Amount "
                   "FROM Transactions"),
              "1|4711||0|0||0;");
}

TEST_F(ScheduledEvents, OfOneNumberMoveOnTogether) {
    AddScheduled(7, 3, 1, "03/10/2024");
    AddScheduled(7, 3, 1, "03/10/2024");
    EXPECT_EQ(RunAll().posted.size(), 4U);
    EXPECT_EQ(Dates(), "04/10/2024;04/10/2024;05/10/2024;05/10/2024;");
}

TEST_F(ScheduledEvents, AreToldToOpenListsWhenAPassIsKept) {
    AddScheduled(7, 3, 1, "03/10/2024");
    std::string told;
    const core::NotifyToken token([&](std::int16_t kind, std::int16_t, std::int32_t) {
        EXPECT_FALSE(core::App().Connection.InUnitOfWork());
        told += std::to_string(kind) + " ";
    });
    RunAll();
    EXPECT_EQ(told, "10 19 10 19 ");
}

} // namespace
