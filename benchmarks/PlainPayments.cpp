#include "PlainPayments.h"

#include <sqlite3.h>

#include <cstdlib>
#include <string>

#include <fmt/core.h>

namespace bench {

namespace {

constexpr const char* kInsertTransaction =
    "INSERT INTO Transactions (IdTransaction, CreditExported, DebitExported, DateEffective, "
    "DebitType, DebitId, DebitDesc, CreditType, CreditId, CreditDesc, DebitPrevBal, DebitNewBal, "
    "CreditPrevBal, CreditNewBal, CheckNum, Amount, TaxCategory, IEN, Description, Class, Flags, "
    "Reconciled, IdTenant, IdBuilding, IdUnit, IdLease, IdMortgage, IdWorkOrder, IdLedger, "
    "IdMileage) VALUES (?, 0, 0, '01/03/2024', 5, ?, ?, 1, 0, '', 0, 0, 0, 0, '', 12505000, "
    "'Rent Payment', 0, ?, 1, 0, 0, ?, ?, ?, ?, 0, 0, 0, 0)";

constexpr const char* kInsertRow =
    "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Category, Amount, "
    "Description, Flags) VALUES (?, ?, ?, '01/03/2024', 1, 'Rent Payment', -12505000, "
    "'Rent Payment', 2)";

constexpr const char* kOpenRows =
    "SELECT IdRentLog FROM RentLog WHERE IdLease = ? AND Class = 1 AND IdTransaction = 0";

constexpr const char* kUpdateLease =
    "UPDATE Lease SET RentAccount = 0, DateNextDue = '02/01/2024', RentStatus = 'OK', "
    "RentDue = (SELECT Sum(CASE WHEN Class = 1 AND IdTransaction = 0 THEN Amount ELSE 0 END) "
    "FROM RentLog WHERE IdLease = ?1) WHERE IdLease = ?1";

class PlainBooks {
  public:
    explicit PlainBooks(const std::filesystem::path& file) {
        Check(sqlite3_open(file.c_str(), &database_));
        Run("PRAGMA journal_mode = WAL");
        Run("PRAGMA synchronous = FULL");
        readId_ = Prepare("SELECT NextId FROM Configuration");
        writeId_ = Prepare("UPDATE Configuration SET NextId = ?");
        transaction_ = Prepare(kInsertTransaction);
        row_ = Prepare(kInsertRow);
        open_ = Prepare(kOpenRows);
        settle_ = Prepare("UPDATE RentLog SET IdTransaction = ? WHERE IdRentLog = ?");
        lease_ = Prepare(kUpdateLease);
    }
    ~PlainBooks() {
        for (sqlite3_stmt* statement :
             {readId_, writeId_, transaction_, row_, open_, settle_, lease_})
            sqlite3_finalize(statement);
        sqlite3_close(database_);
    }
    PlainBooks(const PlainBooks&) = delete;
    PlainBooks& operator=(const PlainBooks&) = delete;

    void Pay(int idLease) {
        constexpr int kFirstUnit = 100'000;
        constexpr int kFirstTenant = 200'000;
        constexpr int kFirstBuilding = 300'000;
        Run("BEGIN IMMEDIATE");
        const int idTransaction = NextId();
        const std::string tenant = fmt::format("Tenant {}", idLease);
        const std::string words =
            fmt::format("Rent Payment for {}, {} Elm Street A", tenant, idLease);
        sqlite3_bind_int(transaction_, 1, idTransaction);
        sqlite3_bind_int(transaction_, 2, kFirstTenant + idLease);
        sqlite3_bind_text(transaction_, 3, tenant.c_str(), -1, SQLITE_STATIC);
        sqlite3_bind_text(transaction_, 4, words.c_str(), -1, SQLITE_STATIC);
        BindFrom(transaction_, 5,
                 {kFirstTenant + idLease, kFirstBuilding + idLease, kFirstUnit + idLease, idLease});
        Step(transaction_);
        BindFrom(row_, 1, {NextId(), idLease, idTransaction});
        Step(row_);
        BindFrom(settle_, 1, {idTransaction, OpenRow(idLease)});
        Step(settle_);
        BindFrom(lease_, 1, {idLease});
        Step(lease_);
        Run("COMMIT");
    }

  private:
    void Check(int result) {
        if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return;
        fmt::print(stderr, "plain engine: {}\n", sqlite3_errmsg(database_));
        std::exit(1);
    }
    void Run(const char* sql) { Check(sqlite3_exec(database_, sql, nullptr, nullptr, nullptr)); }
    sqlite3_stmt* Prepare(const char* sql) {
        sqlite3_stmt* statement = nullptr;
        Check(sqlite3_prepare_v2(database_, sql, -1, &statement, nullptr));
        return statement;
    }
    static void BindFrom(sqlite3_stmt* statement, int place, std::initializer_list<int> values) {
        for (const int value : values)
            sqlite3_bind_int(statement, place++, value);
    }
    void Step(sqlite3_stmt* statement) {
        Check(sqlite3_step(statement));
        sqlite3_reset(statement);
    }
    int ReadInt(sqlite3_stmt* statement) {
        Check(sqlite3_step(statement));
        const int value = sqlite3_column_int(statement, 0);
        sqlite3_reset(statement);
        return value;
    }
    int NextId() {
        const int id = ReadInt(readId_);
        sqlite3_bind_int(writeId_, 1, id + 1);
        Step(writeId_);
        return id;
    }
    int OpenRow(int idLease) {
        sqlite3_bind_int(open_, 1, idLease);
        return ReadInt(open_);
    }

    sqlite3* database_ = nullptr;
    sqlite3_stmt* readId_ = nullptr;
    sqlite3_stmt* writeId_ = nullptr;
    sqlite3_stmt* transaction_ = nullptr;
    sqlite3_stmt* row_ = nullptr;
    sqlite3_stmt* open_ = nullptr;
    sqlite3_stmt* settle_ = nullptr;
    sqlite3_stmt* lease_ = nullptr;
};

} // namespace

double RunPlainPayments(const std::filesystem::path& folder, int leases) {
    PlainBooks books(folder / "Vestrel.mdb");
    for (int idLease = 1; idLease <= leases; ++idLease)
        books.Pay(idLease);
    return leases;
}

} // namespace bench
