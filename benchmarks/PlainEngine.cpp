#include "PlainEngine.h"

#include <sqlite3.h>

#include <cstdlib>
#include <string>
#include <vector>

#include <fmt/core.h>

#include "platform/values/Date.h"

namespace bench {

namespace {

constexpr int kSums = 5;
constexpr int kDepositSums = 2;

void Check(sqlite3* database, int result) {
    if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return;
    fmt::print(stderr, "plain engine: {}\n", sqlite3_errmsg(database));
    std::exit(1);
}

sqlite3_stmt* Prepare(sqlite3* database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    Check(database, sqlite3_prepare_v2(database, sql, -1, &statement, nullptr));
    return statement;
}

void BindText(sqlite3_stmt* statement, int index, const std::string& text) {
    sqlite3_bind_text(statement, index, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

std::vector<std::string> DatesFrom(platform::Date first, int count) {
    std::vector<std::string> dates;
    dates.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        dates.push_back(DateAdd(platform::Interval::Day, i, first).ToText());
    }
    return dates;
}

class PlainBooks {
  public:
    explicit PlainBooks(const std::filesystem::path& file) {
        Check(nullptr, sqlite3_open(file.c_str(), &database_));
        Run("PRAGMA journal_mode = WAL");
        Run("PRAGMA synchronous = FULL");
        insert_ = Prepare(database_,
                          "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, "
                          "DatePosted, Class, Category, Amount, Description, Flags) "
                          "VALUES (?, ?, 0, ?, 1, ?, ?, ?, 0)");
        sums_ =
            Prepare(database_,
                    "SELECT Sum(CASE WHEN Class = 1 AND IdTransaction = 0 THEN Amount ELSE 0 END), "
                    "Sum(CASE WHEN Class = 2 AND IdTransaction = 0 THEN Amount ELSE 0 END), "
                    "Sum(CASE WHEN Class = 4 THEN Amount ELSE 0 END), "
                    "Sum(CASE WHEN Class = 3 AND Flags = 0 THEN Amount ELSE 0 END), "
                    "-Sum(CASE WHEN Class = 3 AND Flags = 2 THEN Amount ELSE 0 END) "
                    "FROM RentLog WHERE IdLease = ?");
        depositSums_ = Prepare(database_,
                               "SELECT Sum(CASE WHEN Flags = 3 THEN Amount ELSE 0 END), "
                               "Sum(CASE WHEN Flags = 4 THEN Amount ELSE 0 END) "
                               "FROM Transactions WHERE IdLease = ? AND Class = 3");
        update_ = Prepare(database_,
                          "UPDATE Lease SET DateUpdated = ?, RentStatus = 'Late', RentDue = ?, "
                          "SubsDue = ?, OptionBalance = ?, DepositTotal = ?, DepositPaid = ?, "
                          "DepositRefunded = ?, DepositCharged = ?, DepositDue = ?, "
                          "DepositBalance = ? WHERE IdLease = ?");
    }

    ~PlainBooks() {
        for (sqlite3_stmt* statement : {insert_, sums_, depositSums_, update_}) {
            sqlite3_finalize(statement);
        }
        sqlite3_close(database_);
    }
    PlainBooks(const PlainBooks&) = delete;
    PlainBooks& operator=(const PlainBooks&) = delete;

    void Run(const char* sql) {
        Check(database_, sqlite3_exec(database_, sql, nullptr, nullptr, nullptr));
    }

    void InsertCharge(int id, int idLease, const std::string& date) {
        static const std::string category = "Late Fee";
        sqlite3_bind_int(insert_, 1, id);
        sqlite3_bind_int(insert_, 2, idLease);
        BindText(insert_, 3, date);
        BindText(insert_, 4, category);
        sqlite3_bind_int64(insert_, 5, 72'500);
        BindText(insert_, 6, category);
        Step(insert_);
    }

    void SumAndUpdate(int idLease, const std::string& date) {
        sqlite3_int64 sums[kSums + kDepositSums];
        ReadSums(sums_, idLease, sums, kSums);
        ReadSums(depositSums_, idLease, sums + kSums, kDepositSums);
        BindText(update_, 1, date);
        for (int i = 0; i < kSums + kDepositSums; ++i)
            sqlite3_bind_int64(update_, 2 + i, sums[i]);
        sqlite3_bind_int64(update_, 9, sums[3] - sums[4]);
        sqlite3_bind_int64(update_, 10, sums[4] - sums[5] - sums[6]);
        sqlite3_bind_int(update_, 11, idLease);
        Step(update_);
    }

  private:
    void Step(sqlite3_stmt* statement) {
        Check(database_, sqlite3_step(statement));
        sqlite3_reset(statement);
    }

    void ReadSums(sqlite3_stmt* statement, int idLease, sqlite3_int64* sums, int count) {
        sqlite3_bind_int(statement, 1, idLease);
        Check(database_, sqlite3_step(statement));
        for (int i = 0; i < count; ++i)
            sums[i] = sqlite3_column_int64(statement, i);
        sqlite3_reset(statement);
    }

    sqlite3* database_ = nullptr;
    sqlite3_stmt* insert_ = nullptr;
    sqlite3_stmt* sums_ = nullptr;
    sqlite3_stmt* depositSums_ = nullptr;
    sqlite3_stmt* update_ = nullptr;
};

} // namespace

double RunPlainEngine(const std::filesystem::path& folder, int leases, int rowsPerLease) {
    PlainBooks books(folder / "Vestrel.mdb");
    const std::vector<std::string> dates =
        DatesFrom(platform::Date(2024, 1, 1), std::max(rowsPerLease, 1));
    int id = 2'000'000;
    books.Run("BEGIN IMMEDIATE");
    for (int idLease = 1; idLease <= leases; ++idLease) {
        for (int row = 0; row < rowsPerLease; ++row) {
            books.InsertCharge(id++, idLease, dates[static_cast<std::size_t>(row)]);
        }
        books.SumAndUpdate(idLease, dates.back());
    }
    books.Run("COMMIT");
    return static_cast<double>(leases) * rowsPerLease;
}

} // namespace bench
