#include <sstream>

#include "core/TableCsv.h"
#include "shell/RunTables.h"
#include "shell/TakeBackFixture.h"

namespace {

namespace fs = std::filesystem;
using core::App;
using core::Posting;
using platform::Date;
using platform::DateAdd;
using platform::Interval;
using shell::DigestRow;
using shell::RunDigest;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::kMade;
using tests::LineOf;
using tests::TakingBack;
using Lines = std::vector<std::string>;

TEST_F(TakingBack, KeepsTheHistoryOfRuns) {
    const fs::path file = shell::HistoryFile(App().Connection);
    const auto shared = static_cast<fs::perms>(0664);
    fs::permissions(App().Connection.File(), shared);
    EXPECT_THAT(shell::ReadHistory(file), IsEmpty());
    RunTo(kMade);
    EXPECT_FALSE(fs::exists(file)) << "nothing was posted";
    const RunDigest first = RunTo(DateAdd(Interval::Month, 1, kMade));
    core::Execute(
        "UPDATE Lease SET DateNextDue = 'soon' WHERE IdLease = (SELECT Max(IdLease) FROM Lease)");
    const RunDigest second = RunTo(DateAdd(Interval::Month, 2, kMade));
    EXPECT_EQ(fs::status(file).permissions(), shared) << "the permissions of the books";

    // The last line is cut off, as by a full disk; the next keeps to itself.
    fs::resize_file(file, fs::file_size(file) - 5);
    RunDigest other;
    shell::RunRecorder cut(file, other);
    cut.Failed(core::kLease, 7, "O'Brien \xFF & \"Sons\"", "line one\nline two");
    EXPECT_EQ(cut.Fault(), "");

    const auto runs = shell::ReadHistory(file);
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[0].digest.Faults().front().reason, "line one\nline two");
    EXPECT_EQ(runs[2].Days(), "11/22/2026 to 12/21/2026");
    EXPECT_EQ(runs[2].at.substr(0, 11), "12/21/2026 ");
    const auto text = [](const RunDigest& digest) {
        std::ostringstream csv;
        core::WriteCsv(shell::DigestTable(digest), csv);
        return csv.str();
    };
    EXPECT_EQ(text(runs[2].digest), text(first));
    EXPECT_THAT(second.Faults(), testing::SizeIs(1));
    EXPECT_THAT(runs[1].digest.Faults(), IsEmpty()) << "its line was the one that was cut off";
    EXPECT_EQ(runs[1].digest.Rows().size(), second.Rows().size());

    std::ostringstream csv;
    core::WriteCsv(shell::RunRowTable(runs, {}), csv);
    const std::string all = csv.str();
    EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(all, '\n')),
              first.Rows().size() + second.Rows().size() + 3U)
        << "a caption, a reason of two lines";
    EXPECT_EQ(all.substr(0, all.find('\n')),
              "\"Run\",\"RecordKind\",\"RecordId\",\"Day\",\"What\",\"Reason\",\"Amount\","
              "\"Record\",\"Taken Back\"");
}

TEST_F(TakingBack, DropsRunsAfterSevenYears) {
    const fs::path file = shell::HistoryFile(App().Connection);
    RunTo(DateAdd(Interval::Month, 1, kMade));
    RunTo(DateAdd(Interval::Month, 2, kMade));
    core::Execute("UPDATE Lease SET Status = 'Expired'");
    const auto runs = [&] { return shell::ReadHistory(file).size(); };
    RunTo(DateAdd(Interval::Year, 7, Date(2026, 12, 21)));
    EXPECT_EQ(runs(), 3U) << "to the day";
    const Date later(2034, 1, 10);
    RunTo(later);
    EXPECT_EQ(runs(), 3U);
    const shell::RunPage page = shell::ReadHistory(file, later);
    EXPECT_EQ(page.runs.size(), 1U);
    EXPECT_TRUE(page.hasEarlier);
    EXPECT_FALSE(shell::ReadHistory(file, Date(2027, 1, 21)).hasEarlier);
}

TEST_F(TakingBack, RunsWithoutAHistoryThatCannotBeKept) {
    fs::create_directory(shell::HistoryFile(App().Connection));
    const RunDigest digest = RunTo(DateAdd(Interval::Month, 1, kMade));
    EXPECT_THAT(digest.Rows(), testing::Not(IsEmpty()));
    EXPECT_THAT(digest.HistoryFault(), HasSubstr("Vestrel.runs"));
}

TEST_F(TakingBack, HasAnExampleInTheSample) {
    const fs::path books = *sample_ / "books" / "Vestrel.mdb";
    const auto runs = shell::ReadHistory(shell::HistoryFileOf(books));
    ASSERT_EQ(runs.size(), 1U);
    App().Connection.Open(books);
    const shell::DigestTable table(runs.front().digest, shell::ReadTakenRows());
    const auto waived =
        std::ranges::count_if(runs.front().digest.Rows(),
                              [&](const DigestRow& row) { return table.TakenOn(row) == kMade; });
    EXPECT_EQ(waived, 1);
}

// The words

TEST(RunReasons, SayWhyARowWasPosted) {
    struct Case {
        core::RunReason reason;
        const char* text;
    };
    using core::IntervalType;
    const Date due(2026, 11, 1);
    for (const Case& c :
         {Case{{}, ""}, Case{{Posting::Rent, due}, "Rent due 11/01/2026: the lease's rent"},
          Case{{Posting::OneTimeFee, due, 5},
               "Rent due 11/01/2026, unpaid for 5 days: the lease's one-time fee"},
          Case{{Posting::DailyFee, due, 1},
               "Rent due 11/01/2026, unpaid for 1 day: the lease's daily fee"},
          Case{{Posting::OneTimeFee, due, 0},
               "Rent due 11/01/2026, unpaid on that day: the lease's one-time fee"},
          Case{{Posting::OneTimeFee, due, -2},
               "Rent due 11/01/2026, 2 days before that day: the lease's one-time fee"},
          Case{{Posting::LoanPayment, due, 14},
               "Payment 14 of the loan, due 11/01/2026: principal and interest"},
          Case{{Posting::LoanLateFee, due, 15},
               "Payment of the loan due 11/01/2026, 15 days of grace: the mortgage's late fee"},
          Case{{Posting::EventTransaction, due, 1, IntervalType::Month},
               "Due 11/01/2026: the event runs every month"},
          Case{{Posting::EventTransaction, due, 2, IntervalType::Week},
               "Due 11/01/2026: the event runs every 2 weeks"},
          Case{{Posting::EventTransaction, due, 1, IntervalType::DayOfMonth},
               "Due 11/01/2026: the event runs on day 1 of each month"},
          Case{{Posting::EventTransaction, due, 1},
               "The first run of the event, which had never run before"}}) {
        EXPECT_EQ(core::ReasonText(c.reason), c.text);
    }
}

/// Every row of a run has the figures that its ledger row shows too.
TEST_F(TakingBack, GivesEachRowItsReason) {
    const RunDigest digest = RunTo(DateAdd(Interval::Month, 3, kMade));
    for (const DigestRow& row : digest.Rows()) {
        SCOPED_TRACE(LineOf(row) + " " + core::ReasonText(row.reason));
        const int days = row.date.Serial() - row.reason.due.Serial();
        switch (row.reason.posting) {
            case Posting::OneTimeFee:
                EXPECT_EQ(days, 5);
                EXPECT_EQ(row.reason.number, days);
                EXPECT_EQ(row.amount, platform::Currency::FromUnits(77));
                break;
            case Posting::DailyFee:
                EXPECT_GT(days, 50);
                EXPECT_EQ(row.reason.due.ToText(),
                          Ask("SELECT DateNextDue FROM Lease WHERE IdLease = " +
                              std::to_string(row.recordId)));
                break;
            case Posting::LoanLateFee:
                EXPECT_EQ(days, 15);
                break;
            default:
                EXPECT_EQ(days, 0);
        }
        if (row.recordKind == core::kMortgage) {
            EXPECT_EQ(Ask("SELECT Total FROM MortgageLog WHERE IdMortgageLog = " +
                          std::to_string(row.rowId)),
                      platform::MoneyToText(row.amount));
        }
    }
}

} // namespace
