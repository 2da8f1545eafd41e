#include "outlook/LookAhead.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>

#include <fmt/core.h>

#include "core/CoreFixture.h"
#include "core/DailyRun.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/ScratchSession.h"
#include "core/Session.h"
#include "core/Startup.h"
#include "platform/database/FieldReadings.h"
#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "platform/values/Text.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"
#include "support/Books.h"

namespace {

namespace fs = std::filesystem;
using core::App;
using outlook::Forecast;
using outlook::ForecastRow;
using outlook::Origin;
using platform::Date;
using platform::DateAdd;
using platform::Interval;
using Lines = std::vector<std::string>;

const Date kMade(2026, 11, 21);

/// Hears what a run posts and skips.
class RunHeard : public core::RunListener {
  public:
    void Posted(core::RecordKind kind, std::int32_t, std::string_view name,
                const std::vector<core::PostedRow>& rows) override {
        for (const core::PostedRow& row : rows) {
            posted.push_back(fmt::format("{} {} {} {} {}", row.date.ToText(),
                                         core::KindNumber(kind), name, platform::Trim(row.category),
                                         platform::MoneyToFixedText(row.amount)));
        }
    }
    void Failed(core::RecordKind, std::int32_t, std::string_view, std::string_view) override {
        ++count;
    }
    int count = 0;
    Lines posted;
};

/// A sample portfolio, made once; each test has a copy of it to itself.
class LookAhead : public tests::CoreProcess {
  protected:
    static void SetUpTestSuite() {
        sample_ = new support::TemporaryFolder;
        shell::RegisterLogic();
        constexpr int kUnits = 14;
        shell::MakeSamplePortfolio(*sample_ / "books", kUnits, kMade);
    }
    static void TearDownTestSuite() { delete sample_; }

    LookAhead() {
        shell::RegisterLogic();
        platform::SetToday(kMade);
        OpenFresh();
    }

    /// The session on the sample as it was made.
    void OpenFresh() {
        App().Connection.Close();
        fs::remove_all(Folder() / "books");
        fs::copy(*sample_ / "books", Folder() / "books");
        App().Connection.Open(Folder() / "books" / "Vestrel.mdb");
    }
    static Forecast To(Date until) { return outlook::LookAhead(App().Connection.File(), until); }
    static std::string Ask(const std::string& sql) { return support::Ask(App().Connection, sql); }

    static support::TemporaryFolder* sample_;
};

support::TemporaryFolder* LookAhead::sample_ = nullptr;

/// A row that posts something, as one line; an event is known by its description.
std::string LineOf(const ForecastRow& row) {
    const bool isEvent = row.recordKind == core::kAutoEvent;
    return fmt::format("{} {} {} {} {} {}", row.date.ToText(), core::KindNumber(row.recordKind),
                       isEvent ? row.name : std::to_string(row.recordId), row.what,
                       platform::MoneyToFixedText(row.amount), outlook::FlowName(row.flow));
}

/// Every row of the ledgers above an identifier, and every message of an event that posts nothing,
/// as LineOf has it.
Lines PostedAfter(const std::string& lastId) {
    Lines lines;
    const auto add = [&](const std::string& sql, core::RecordKind kind, auto flow) {
        for (auto row = core::Read(sql); !row.Eof(); row.MoveNext()) {
            lines.push_back(
                fmt::format("{} {} {} {} {} {}", row[0].AsText(), core::KindNumber(kind),
                            row[1].AsText(), platform::Trim(row[2].AsText()),
                            platform::MoneyToFixedText(row[3].AsCurrency()), flow(row)));
        }
    };
    add("SELECT DatePosted, IdLease, Category, Amount FROM RentLog WHERE IdRentLog > " + lastId,
        core::kLease, [](auto&) { return "In"; });
    add("SELECT DatePosted, IdMortgage, Category, Total FROM MortgageLog WHERE IdMortgageLog > " +
            lastId,
        core::kMortgage, [](auto&) { return "Out"; });
    add("SELECT DateEffective, Description, TaxCategory, Amount, IEN FROM Transactions "
        "WHERE IdTransaction > " +
            lastId,
        core::kAutoEvent, [](auto& row) {
            constexpr std::array kFlows = {"In", "Out", ""};
            return kFlows.at(static_cast<std::size_t>(row["IEN"].AsInteger()));
        });
    std::ranges::sort(lines);
    return lines;
}

Lines Reminders() {
    Lines lines;
    for (auto row = core::Read("SELECT EntryDate, Description FROM Alerts WHERE Description LIKE "
                               "'Auto Event Launched: Change%'");
         !row.Eof(); row.MoveNext())
        lines.push_back(row["EntryDate"].AsText());
    std::ranges::sort(lines);
    return lines;
}

Lines StatusesOfLeases() {
    return support::Rows(App().Connection, "SELECT IdLease, Status FROM Lease ORDER BY IdLease");
}

std::string LastId() {
    std::int32_t last = 0;
    for (const char* const sql :
         {"SELECT Max(IdRentLog) FROM RentLog", "SELECT Max(IdMortgageLog) FROM MortgageLog",
          "SELECT Max(IdTransaction) FROM Transactions"})
        last = std::max(last, core::ReadValue(sql).AsLong());
    return std::to_string(last);
}

/// Makes the sample into other books: other terms, other days, a lease that can't be walked.
void Disturb(std::mt19937& dice) {
    const auto between = [&](int low, int high) {
        return static_cast<int>(dice() % static_cast<unsigned>(high - low + 1)) + low;
    };
    const auto day = [&](int low, int high) {
        return DateAdd(Interval::Day, between(low, high), kMade).ToText();
    };
    const std::vector<std::string> leases =
        support::Rows(App().Connection, "SELECT IdLease FROM Lease");
    for (const std::string& id : leases) {
        if (between(0, 2) > 0) continue;
        core::Execute(
            "UPDATE Lease SET DailyFee = ?, DailyDays = ?, OneTimeDays = ?, DateNextDue = ?, "
            "Term = ?, TermType = ?, ExpireOption = ? WHERE IdLease = " +
                id,
            {between(0, 5), between(0, 10), between(0, 40), day(-70, 70), between(1, 14),
             std::array{"Month(s)", "Week(s)", "Yearly", "MTM", "WTW"}.at(
                 static_cast<std::size_t>(between(0, 4))),
             std::array{"Renew", "Expire", "MTM", "WTW"}.at(
                 static_cast<std::size_t>(between(0, 3)))});
    }
    core::Execute("UPDATE Lease SET DateUpdated = ? WHERE IdLease = " + leases.front(),
                  {day(-40, -1)});
    core::Execute("UPDATE Lease SET DateNextDue = 'soon' WHERE IdLease = " + leases.back());
    core::Execute(
        "UPDATE AutoEvent SET IntervalType = ?, IntervalPeriod = ?, LastRun = ?, IEN = ? "
        "WHERE Description = 'Trash service'",
        {between(1, 5), between(1, 9), between(0, 3) > 0 ? day(-40, 0) : std::string(),
         between(0, 2)});
    // Charges that are settled from credit are another test's.
    core::Execute("DELETE * FROM LeaseCredit");
    core::Execute(
        "UPDATE AutoEvent SET IntervalType = ?, IntervalPeriod = ?, LastRun = '' "
        "WHERE Description = 'Change the furnace filters'",
        {between(1, 5), between(1, 9)});
}

TEST_F(LookAhead, ForetellsRowForRowWhatALaterRunPosts) {
    std::size_t rows = 0;
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 dice(seed);
        OpenFresh();
        Disturb(dice);
        const Date today = DateAdd(Interval::Day, static_cast<int>(dice() % 45), kMade);
        const Date until = DateAdd(Interval::Day, static_cast<int>(dice() % 400), today);
        platform::SetToday(today);
        const Lines before = support::Dump(App().Connection);
        const Lines remindedBefore = Reminders();
        const Lines statusesBefore = StatusesOfLeases();
        const std::string lastId = LastId();

        const Forecast forecast = To(until);
        ASSERT_EQ(support::Dump(App().Connection), before) << "the books have changed";
        ASSERT_EQ(platform::Today(), today);
        EXPECT_TRUE(std::ranges::is_sorted(forecast.rows, {}, &ForecastRow::date));
        Lines foretold;
        Lines reminders = remindedBefore;
        std::set<std::int32_t> changing;
        for (const ForecastRow& row : forecast.rows) {
            if (row.origin != Origin::Day) foretold.push_back(LineOf(row));
            if (row.what == "Reminder") reminders.push_back(row.date.ToText());
            if (row.recordKind == core::kLease && row.origin == Origin::Day &&
                row.what != "Lease renews")
                changing.insert(row.recordId);
        }
        std::ranges::sort(foretold);
        std::ranges::sort(reminders);

        // The program is started today, and once more then.
        core::UpdateRecords();
        platform::SetToday(until);
        RunHeard faults;
        core::UpdateRecords(faults);
        const Lines posted = PostedAfter(lastId);
        EXPECT_EQ(foretold, posted);
        rows += posted.size();
        EXPECT_EQ(reminders, Reminders());
        EXPECT_EQ(forecast.faults.size(), static_cast<std::size_t>(faults.count));
        EXPECT_GE(faults.count, 1) << "the lease without a valid due date";
        const Lines statuses = StatusesOfLeases();
        for (std::size_t i = 0; i < statuses.size(); ++i) {
            const std::int32_t id = std::stoi(statuses[i]);
            const bool isForetold = statuses[i] == statusesBefore[i] || changing.contains(id);
            EXPECT_TRUE(isForetold) << id;
        }
        // A second run has nothing left to post, and a second look nothing to foretell.
        EXPECT_TRUE(std::ranges::all_of(
            To(until).rows, [](const ForecastRow& row) { return row.origin == Origin::Day; }));
    }
    EXPECT_GT(rows, 0U) << "nothing was posted that could have been foretold";
}

TEST_F(LookAhead, CountsWhatIsPaidFromCreditOnlyOnce) {
    const Date until = DateAdd(Interval::Month, 3, kMade);
    for (const std::string& id : support::Rows(
             App().Connection, "SELECT IdLease FROM Lease WHERE Status IN ('Contracted', 'MTM')")) {
        core::Execute("INSERT INTO LeaseCredit (IdLease, SettleCharges) VALUES (?, True)",
                      {std::stoi(id)});
        const std::int32_t row = core::NextId();
        core::Execute(
            "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, "
            "Category, Amount, Description, Flags) VALUES (?, ?, 0, '11/20/2026', 1, 'Rent', "
            "-1700, 'Credit', 0)",
            {row, std::stoi(id)});
        core::Execute(
            "INSERT INTO RentCredit (IdRentLog, IdOrigin, IdLease, IdReturn) VALUES (?, ?, ?, 0)",
            {row, core::NextId(), std::stoi(id)});
    }
    Lines foretold;
    int fromCredit = 0;
    for (const ForecastRow& row : To(until).rows) {
        if (row.origin == Origin::Day) continue;
        const bool isPaid = row.what == "Paid from credit";
        if (isPaid) ++fromCredit;
        EXPECT_EQ(isPaid, row.amount < platform::Currency());
        foretold.push_back(fmt::format(
            "{} {} {} {} {}", row.date.ToText(), core::KindNumber(row.recordKind), row.name,
            row.what, platform::MoneyToFixedText(isPaid ? -row.amount : row.amount)));
    }
    EXPECT_GT(fromCredit, 0);
    platform::SetToday(until);
    RunHeard run;
    core::UpdateRecords(run);
    EXPECT_THAT(foretold, testing::UnorderedElementsAreArray(run.posted));
}

TEST_F(LookAhead, ShowsASampleYearOfEveryKind) {
    const Forecast year = To(DateAdd(Interval::Day, 365, kMade));
    std::map<std::string, int> counts;
    for (const ForecastRow& row : year.rows) {
        ++counts[row.what];
        EXPECT_FALSE(row.name.empty());
        EXPECT_GE(row.date, kMade);
        EXPECT_EQ(row.origin == Origin::Day, row.amount.IsZero());
    }
    for (const char* const what :
         {"Rent", "Rent Subsidy", "Late Fee", "Mortgage Payment", "Mortgage Escrow", "Utilities",
          "Cleaning and Maint", "Reminder", "Lease renews", "Lease ends", "Insurance renewal due",
          "Association payment due", "Escrow review of taxes and insurance due"}) {
        EXPECT_GT(counts[what], 0) << what;
    }
    EXPECT_EQ(counts["Utilities"], 12);
    EXPECT_EQ(counts["Reminder"], 4);
    EXPECT_TRUE(year.faults.empty());
    EXPECT_TRUE(To(kMade).rows.empty()) << "the sample has been brought up to today";
}

TEST_F(LookAhead, StopsAnywhereAndLeavesNothingBehind) {
    const Lines before = support::Dump(App().Connection);
    const Date until = DateAdd(Interval::Day, 365, kMade);
    int all = 0;
    outlook::LookAhead(App().Connection.File(), until, [&] { return ++all < 0; });
    ASSERT_GT(all, 100);
    for (const int most : {0, 1, 2, 5, all / 10, all / 2, all - 2}) {
        int asked = 0;
        EXPECT_THROW(
            outlook::LookAhead(App().Connection.File(), until, [&] { return ++asked > most; }),
            outlook::Stopped)
            << most;
        EXPECT_FALSE(core::InScratchSession());
    }
    EXPECT_EQ(support::Dump(App().Connection), before);
}

TEST_F(LookAhead, TellsWhatItCannotDo) {
    EXPECT_THROW(To(DateAdd(Interval::Day, -1, kMade)), platform::Error);
    EXPECT_THROW(outlook::LookAhead(Folder() / "none.mdb", kMade), platform::DatabaseError);
    core::Execute(
        "UPDATE Building SET InsNextDue = 'spring' WHERE IdBuilding = "
        "(SELECT Max(IdBuilding) FROM Building)");
    const Forecast forecast = To(kMade);
    ASSERT_EQ(forecast.faults.size(), 1U);
    EXPECT_EQ(forecast.faults[0].find("Building "), 0U) << forecast.faults[0];
}

TEST_F(LookAhead, ReadsBooksThatCannotBeWrittenTo) {
    const Date until = DateAdd(Interval::Day, 60, kMade);
    const std::size_t rows = To(until).rows.size();
    const fs::path file = App().Connection.File();
    App().Connection.Open(file, platform::OpenMode::ReadOnly);
    EXPECT_EQ(To(until).rows.size(), rows);
    EXPECT_TRUE(App().Connection.IsReadOnly());
}

// The ways in which leases begin, go on and end

struct LeaseCase {
    const char* name;
    const char* values; ///< Status, TermType, Term, ExpireOption, DateActive, Renewed, Vacating
    Lines days;
};

TEST_F(LookAhead, NamesTheDaysOnWhichLeasesChange) {
    const LeaseCase cases[] = {
        {"ends with its term",
         "'Contracted', 'Month(s)', 12, 'Expire', '01/31/2026', '01/31/2026', ''",
         {"01/31/2027 Lease ends"}},
        {"renews from leap day to leap day",
         "'Contracted', 'Yearly', 1, 'Renew', '02/29/2024', '02/28/2026', ''",
         {"02/28/2027 Lease renews", "02/28/2028 Lease renews"}},
        {"goes on month to month",
         "'Contracted', 'Month(s)', 6, 'MTM', '08/15/2026', '08/15/2026', ''",
         {"02/15/2027 Lease continues month to month"}},
        {"begins and ends",
         "'Pending', 'Week(s)', 2, 'Expire', '12/01/2026', '12/01/2026', ''",
         {"12/01/2026 Lease begins", "12/15/2026 Lease ends"}},
        {"runs out of its notice",
         "'Notice', 'Month(s)', 12, 'Renew', '01/01/2026', '01/01/2026', '11/30/2026'",
         {"11/30/2026 Lease ends"}},
        {"never says that a term of no length renews",
         "'Contracted', 'Month(s)', 0, 'Renew', '01/01/2026', '01/01/2026', ''",
         {}},
        {"is over", "'Broken', 'Month(s)', 12, 'Renew', '01/01/2020', '01/01/2020', ''", {}},
    };
    for (const LeaseCase& each : cases) {
        core::Execute("DELETE * FROM Lease WHERE IdLease <> (SELECT Min(IdLease) FROM Lease)");
        core::Execute(
            "UPDATE Lease SET IdLease = 7, DateUpdated = '11/21/2026', "
            "DateNextDue = '12/01/2026'");
        std::vector<std::string> fields = {"Status",       "TermType",   "Term",
                                           "ExpireOption", "DateActive", "DateRenewed",
                                           "DateVacating"};
        std::string sql = "UPDATE Lease SET ";
        std::string values = each.values;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const auto comma = values.find(',');
            sql += (i > 0 ? ", " : "") + fields[i] + " = " + values.substr(0, comma);
            values.erase(0, comma + 1);
        }
        core::Execute(sql);
        Lines days;
        for (const ForecastRow& row : To(Date(2028, 12, 31)).rows) {
            if (row.recordKind == core::kLease && row.origin == Origin::Day)
                days.push_back(row.date.ToText() + " " + row.what);
        }
        EXPECT_EQ(days, each.days) << each.name;
    }
}

} // namespace
