#include <random>
#include <set>

#include "leases/mLease.h"
#include "mortgages/mMortgage.h"
#include "removal/DeleteRecord.h"
#include "shell/TakeBackFixture.h"

namespace {

using core::App;
using core::Posting;
using platform::Date;
using platform::DateAdd;
using platform::Interval;
using shell::DigestRow;
using shell::RunDigest;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::kMade;
using tests::LineOf;
using tests::TakingBack;
using Lines = std::vector<std::string>;

// A year of runs

/// What a year left: every row of the ledgers without its id, and the records that were walked.
struct YearEnd {
    std::multiset<std::string> rows;
    Lines records;
    /// What was taken back, as the rows have it.
    std::set<std::string> taken;
};

std::multiset<std::string> LedgerRows() {
    std::multiset<std::string> lines;
    for (const char* const sql :
         {"SELECT 2, IdLease, DatePosted, Category, Amount FROM RentLog",
          "SELECT 3, IdMortgage, DatePosted, Category, Total FROM MortgageLog",
          "SELECT 19, 0, DateEffective, TaxCategory, Amount FROM Transactions"}) {
        for (const std::string& line : support::Rows(App().Connection, sql))
            lines.insert(line);
    }
    return lines;
}

void ReprocessSome(std::mt19937& dice) {
    for (const std::string& id : support::Rows(App().Connection, "SELECT IdLease FROM Lease")) {
        if (dice() % 2 == 0) leases::UpdateLeaseById(std::stoi(id), leases::WalkMode::Reprocess);
    }
    for (const std::string& id :
         support::Rows(App().Connection, "SELECT IdMortgage FROM Mortgage")) {
        if (dice() % 2 == 0)
            mortgages::UpdateMortgageById(std::stoi(id), mortgages::RunMode::Reprocess);
    }
    // An event that goes back runs its days again.
    for (const std::string& id : support::Rows(
             App().Connection,
             "SELECT IdAutoEvent FROM AutoEvent WHERE EventType = 1 AND IntervalType = 3")) {
        const Date last = Date::Parse(support::Ask(
            App().Connection, "SELECT LastRun FROM AutoEvent WHERE IdAutoEvent = " + id));
        core::Execute("UPDATE AutoEvent SET LastRun = ? WHERE IdAutoEvent = " + id,
                      {DateAdd(Interval::Month, -2, last).ToText()});
    }
}

TEST_F(TakingBack, KeepsRowsOutOfEveryLaterRunOfAYear) {
    std::size_t taken = 0;
    for (unsigned seed = 1; seed <= 4; ++seed) {
        SCOPED_TRACE(seed);
        const auto year = [&](bool takesBack) {
            OpenFresh();
            YearEnd end;
            std::set<std::string> seen;
            std::mt19937 dice(seed);
            std::mt19937 choice(seed);
            Date day = kMade;
            while (day < DateAdd(Interval::Year, 1, kMade)) {
                day = DateAdd(Interval::Day, static_cast<int>(dice() % 40) + 1, day);
                const RunDigest digest = RunTo(day);
                std::vector<DigestRow> rows;
                for (const DigestRow& row : digest.Rows()) {
                    // One that was posted a second time isn't the only one of its kind.
                    const bool isNew = seen.insert(LineOf(row)).second;
                    if (!takesBack || !isNew || choice() % 5 != 0) continue;
                    rows.push_back(row);
                    end.taken.insert(LineOf(row));
                }
                shell::TakeBack(rows);
                if (dice() % 4 == 0) ReprocessSome(dice);
            }
            RunTo(DateAdd(Interval::Day, 3, day));
            end.rows = LedgerRows();
            for (const char* const sql :
                 {"SELECT IdLease, Status, RentStatus, DateUpdated, DateNextDue, DateRenewed FROM "
                  "Lease ORDER BY IdLease",
                  "SELECT * FROM Mortgage ORDER BY IdMortgage",
                  "SELECT * FROM AutoEvent ORDER BY IdAutoEvent",
                  "SELECT EntryDate, Description FROM Alerts ORDER BY EntryDate, Description"}) {
                for (std::string& line : Rows(sql))
                    end.records.push_back(std::move(line));
            }
            return end;
        };
        const YearEnd with = year(true);
        EXPECT_EQ(Rows("SELECT L.IdLease FROM Lease AS L WHERE L.RentDue <> Nz((SELECT Sum(Amount) "
                       "FROM RentLog WHERE IdLease = L.IdLease AND Class = 1 AND "
                       "IdTransaction = 0), 0)"),
                  Lines());
        YearEnd without = year(false);
        std::erase_if(without.rows,
                      [&](const std::string& line) { return with.taken.contains(line); });
        EXPECT_EQ(with.rows, without.rows);
        EXPECT_EQ(with.records, without.records);
        taken += with.taken.size();
    }
    EXPECT_GT(taken, 200U);
}

// One row

TEST_F(TakingBack, PostsTheSameRowAgain) {
    RunTo(DateAdd(Interval::Month, 2, kMade));
    const auto history = shell::ReadHistory(shell::HistoryFile(App().Connection));
    ASSERT_EQ(history.size(), 1U);
    std::int32_t file = 5'000'000;
    for (const DigestRow& row : history.front().digest.Rows()) {
        const core::RecordKind kind = row.recordKind == core::kLease      ? core::kRentLog
                                      : row.recordKind == core::kMortgage ? core::kMortgageLog
                                                                          : core::kTransaction;
        for (const char* const path : {"scan.pdf", "photo.png"})
            core::Execute(
                "INSERT INTO FileObject (IdFileObject, dbType, IdOwner, FilePath, IsPic) "
                "VALUES (?, ?, ?, ?, True)",
                {file++, kind, row.rowId, path});
    }
    const Lines before = Books();
    std::set<Posting> kinds;
    for (const DigestRow& row : history.front().digest.Rows()) {
        if (!kinds.insert(row.reason.posting).second) continue;
        SCOPED_TRACE(core::ReasonText(row.reason));
        Take(row);
        EXPECT_THAT(ChangedSince(before), testing::Not(IsEmpty()));
        EXPECT_EQ(Post(row), 0);
        EXPECT_THAT(ChangedSince(before), IsEmpty());
    }
    EXPECT_THAT(kinds,
                ElementsAre(Posting::Rent, Posting::Subsidy, Posting::OneTimeFee, Posting::DailyFee,
                            Posting::LoanPayment, Posting::Escrow, Posting::MortgageInsurance,
                            Posting::LoanLateFee, Posting::EventTransaction));
}

TEST_F(TakingBack, RefusesWhatIsNoLongerAsItWasPosted) {
    const DigestRow fee = RunAndFind(Posting::OneTimeFee);
    const std::string where = fmt::format(" WHERE IdRentLog = {}", fee.rowId);
    const auto take = [&] { Take(fee); };
    const auto post = [&] { Post(fee); };
    EXPECT_THAT(Refused(post), HasSubstr("isn't taken back"));
    struct Change {
        const char* set;
        const char* undo;
        const char* reason;
    };
    for (const Change& change :
         {Change{"IdTransaction = 5", "IdTransaction = 0", "has been paid"},
          Change{"Amount = 76.99", "Amount = 77", "changed since"},
          Change{"Category = 'Rent'", "Category = 'Late Fee'", "changed since"},
          Change{"DatePosted = '01/01/2020'", nullptr, "changed since"}}) {
        core::Execute(std::string("UPDATE RentLog SET ") + change.set + where);
        EXPECT_THAT(Refused(take), HasSubstr(change.reason)) << change.set;
        if (change.undo) core::Execute(std::string("UPDATE RentLog SET ") + change.undo + where);
    }
    core::Execute("UPDATE RentLog SET DatePosted = ?" + where, {fee.date.ToText()});

    // One that can't be taken back keeps all others.
    DigestRow other = fee;
    other.rowId = 0;
    const std::vector<DigestRow> both = {fee, other};
    EXPECT_THAT(Refused([&] { shell::TakeBack(both); }), HasSubstr("can't be taken back"));

    Take(fee);
    EXPECT_THAT(Refused(take), HasSubstr("taken back already")) << "pressed twice";
    Post(fee);
    EXPECT_THAT(Refused(post), HasSubstr("isn't taken back"));
    Take(fee);
    core::Execute("INSERT INTO RentLog (IdRentLog, IdLease, Amount) VALUES (" +
                  std::to_string(fee.rowId) + ", 1, 5)");
    EXPECT_THAT(Refused(post), HasSubstr("in its ledger already"));
}

TEST_F(TakingBack, RemembersARowThatWasDeletedBefore) {
    const DigestRow rent = RunAndFind(Posting::Rent);
    const auto posted = [&] {
        return Ask(
            fmt::format("SELECT Count(*) FROM RentLog WHERE IdLease = {} AND Flags = 1 AND "
                        "DatePosted = '{}'",
                        rent.recordId, rent.date.ToText()));
    };
    removal::RemoveRecord(core::kRentLog, rent.rowId, removal::Tell::Nobody);
    Take(rent);
    leases::UpdateLeaseById(rent.recordId, leases::WalkMode::Reprocess);
    EXPECT_EQ(posted(), "0");
    EXPECT_EQ(Post(rent), 1);
    EXPECT_EQ(posted(), "0");
    leases::UpdateLeaseById(rent.recordId, leases::WalkMode::Reprocess);
    EXPECT_EQ(posted(), "1");
    EXPECT_THAT(Refused([&] { Take(rent); }), HasSubstr("posted again")) << "under another id";
    EXPECT_EQ(posted(), "1");
}

TEST_F(TakingBack, GoesWithItsRecord) {
    const DigestRow fee = RunAndFind(Posting::OneTimeFee);
    const DigestRow payment = [&] {
        const auto runs = shell::ReadHistory(shell::HistoryFile(App().Connection));
        return *std::ranges::find(runs.front().digest.Rows(), core::kMortgage,
                                  &DigestRow::recordKind);
    }();
    Take(fee);
    Take(payment);
    removal::RemoveRecord(core::kLease, fee.recordId, removal::Tell::Nobody);
    EXPECT_EQ(Ask("SELECT Sum(RecordKind) FROM TakenBack"), "3");
    EXPECT_THAT(Refused([&] { Post(fee); }), HasSubstr("isn't taken back"));
    EXPECT_THAT(Refused([&] { Take(fee); }), HasSubstr("record has been deleted"));
}

TEST_F(TakingBack, TakesNoCreditForARowThatIsNotPosted) {
    const DigestRow rent = RunAndFind(Posting::Rent);
    Take(rent);
    const std::string lease = std::to_string(rent.recordId);
    core::Execute("DELETE FROM RentLog WHERE IdTransaction = 0 AND IdLease = " + lease);
    core::Execute("INSERT INTO LeaseCredit (IdLease, SettleCharges) VALUES (" + lease + ", True)");
    core::Execute(
        "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, "
        "Category, Amount, Flags) VALUES (1, " +
        lease + ", 0, '11/20/2026', 1, 'Credit', -90000, 0)");
    // The lease is walked once more from the day before.
    core::Execute(
        "UPDATE Lease SET DateUpdated = ?, DateNextDue = ?, OneTimeFee = 0, DailyFee = 0 "
        "WHERE IdLease = " +
            lease,
        {DateAdd(Interval::Day, -1, rent.date).ToText(), rent.date.ToText()});
    const RunDigest digest = RunTo(rent.date);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE Flags = 1 AND IdTransaction = 0 AND IdLease "
                  "= " +
                  lease),
              "0");
    EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease WHERE IdLease = " + lease), rent.date.ToText());
    const RunDigest next = RunTo(DateAdd(Interval::Month, 1, rent.date));
    const auto credit = std::ranges::find_if(next.Rows(), [](const DigestRow& row) {
        return row.reason.posting == Posting::FromCredit;
    });
    ASSERT_NE(credit, next.Rows().end());
    EXPECT_THAT(Refused([&] { Take(*credit); }), HasSubstr("Delete it in the ledger"));
    EXPECT_THAT(Refused([&] { Take(*std::prev(credit)); }), HasSubstr("has been paid"));
}

} // namespace
