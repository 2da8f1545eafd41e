#include "PlainMortgages.h"

#include <sqlite3.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <fmt/core.h>

namespace bench {

namespace {

struct Row {
    char due[10];
    double beginBal, pmt, pmtYTD, pmtTTD, pri, xPri, priYTD, priTTD, rate, interest, intYTD, intTTD,
        pctPri, pctPriYTD, penalty, endBal;
};

struct Day {
    int year, month, day;
};

int LastDay(int year, int month) {
    static const int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool isLeap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && isLeap ? 29 : kDays[month - 1];
}

void Put(char* place, int number, int digits) {
    for (int i = digits - 1; i >= 0; --i, number /= 10)
        place[i] = static_cast<char>('0' + number % 10);
}

void PutDay(char* place, const Day& day) {
    Put(place, day.month, 2);
    place[2] = '/';
    Put(place + 3, day.day, 2);
    place[5] = '/';
    Put(place + 6, day.year, 4);
}

double Pmt(double rate, double periods, double amount) {
    return amount * rate / std::expm1(-periods * std::log1p(rate));
}

double NPer(double rate, double payment, double amount) {
    return -std::log1p(amount * rate / payment) / std::log1p(rate);
}

void FillSchedule(std::vector<Row>& rows, double amount, double yearRate) {
    const double rate = yearRate / 12;
    const double periods = static_cast<double>(rows.size());
    Day day = {2024, 1, 31};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        Row& row = rows[i];
        if (i > 0) {
            day.year += day.month == 12;
            day.month = day.month == 12 ? 1 : day.month + 1;
            const int last = LastDay(day.year, day.month);
            if (day.day > last) day.day = last;
        }
        PutDay(row.due, day);
        row.beginBal = i == 0 ? amount : rows[i - 1].endBal;
        row.rate = yearRate;
        row.pmt = -Pmt(rate, periods, amount);
        const double left = NPer(rate, row.pmt, -row.beginBal);
        row.interest = row.beginBal * rate;
        row.pri = -Pmt(rate, left, row.beginBal) - row.interest;
        row.xPri = 0;
        const bool year = i == 0 || day.month == 1;
        static const Row kNone = {};
        const Row& before = i == 0 ? kNone : rows[i - 1];
        const Row& start = year ? kNone : before;
        row.pmtYTD = start.pmtYTD + row.pmt;
        row.priYTD = start.priYTD + row.pri + row.xPri;
        row.intYTD = start.intYTD + row.interest;
        row.pmtTTD = before.pmtTTD + row.pmt;
        row.priTTD = before.priTTD + row.pri + row.xPri;
        row.intTTD = before.intTTD + row.interest;
        row.pctPri = (row.pri + row.xPri) / amount;
        row.pctPriYTD = start.pctPriYTD + row.pctPri;
        row.penalty = row.pctPriYTD >= 0.2 ? 0.05 * amount : 0;
        row.endBal = row.beginBal - (row.pri + row.xPri);
    }
}

void Check(sqlite3* database, int result) {
    if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return;
    fmt::print(stderr, "plain engine: {}\n", sqlite3_errmsg(database));
    std::exit(1);
}

class PlainBooks {
  public:
    explicit PlainBooks(const std::filesystem::path& file) {
        Check(nullptr, sqlite3_open(file.c_str(), &database_));
        Run("PRAGMA journal_mode = WAL");
        Run("PRAGMA synchronous = FULL");
        insert_ = Prepare(
            "INSERT INTO MortgageLog (IdMortgageLog, IdMortgage, IdTransaction, Period, "
            "DatePosted, Category, Principal, PayDown, Interest, Other, Total, Description, "
            "Flags) VALUES (?, ?, 0, ?, '01/15/2024', 'Mortgage Payment', 995505, 0, 5000000, 0, "
            "5995505, 'Mortgage P & I Payment Due', 1)");
        read_ = Prepare("SELECT * FROM Mortgage WHERE IdMortgage = ?");
        take_ = Prepare("UPDATE Configuration SET NextId = NextId + ?");
        update_ = Prepare(
            "UPDATE Mortgage SET DateUpdated = '12/31/2024', Status = 'Current', PmtStatus = "
            "'Late' WHERE IdMortgage = ?");
    }
    ~PlainBooks() {
        for (sqlite3_stmt* statement : {insert_, read_, take_, update_})
            sqlite3_finalize(statement);
        sqlite3_close(database_);
    }
    PlainBooks(const PlainBooks&) = delete;
    PlainBooks& operator=(const PlainBooks&) = delete;

    void Run(const char* sql) {
        Check(database_, sqlite3_exec(database_, sql, nullptr, nullptr, nullptr));
    }

    /// Copies every field of the row out, as whoever reads it must.
    void Read(int id) {
        sqlite3_bind_int(read_, 1, id);
        Check(database_, sqlite3_step(read_));
        fields_.clear();
        for (int i = 0; i < sqlite3_column_count(read_); ++i) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(read_, i));
            fields_.emplace_back(text ? text : "");
        }
        sqlite3_reset(read_);
    }
    void Insert(int id, int idMortgage, int period) {
        sqlite3_bind_int(insert_, 1, id);
        sqlite3_bind_int(insert_, 2, idMortgage);
        sqlite3_bind_int(insert_, 3, period);
        Step(insert_);
    }
    void Take(int count) {
        sqlite3_bind_int(take_, 1, count);
        Step(take_);
    }
    void Update(int id) {
        sqlite3_bind_int(update_, 1, id);
        Step(update_);
    }

  private:
    sqlite3_stmt* Prepare(const char* sql) {
        sqlite3_stmt* statement = nullptr;
        Check(database_, sqlite3_prepare_v2(database_, sql, -1, &statement, nullptr));
        return statement;
    }
    void Step(sqlite3_stmt* statement) {
        Check(database_, sqlite3_step(statement));
        sqlite3_reset(statement);
    }

    sqlite3* database_ = nullptr;
    sqlite3_stmt* insert_ = nullptr;
    sqlite3_stmt* read_ = nullptr;
    sqlite3_stmt* take_ = nullptr;
    sqlite3_stmt* update_ = nullptr;
    std::vector<std::string> fields_;
};

} // namespace

double RunPlainSchedules(int periods, int times) {
    std::vector<Row> rows(static_cast<std::size_t>(periods));
    double sum = 0;
    for (int i = 0; i < times; ++i) {
        FillSchedule(rows, 100'000 + i, 0.06);
        sum += rows.back().priTTD + rows[rows.size() / 2].intYTD + rows.back().due[4];
    }
    return sum;
}

double RunPlainMortgages(const std::filesystem::path& folder, int mortgages, int rowsPerMortgage) {
    PlainBooks books(folder / "Vestrel.mdb");
    int id = 2'000'000;
    books.Run("BEGIN IMMEDIATE");
    for (int idMortgage = 1; idMortgage <= mortgages; ++idMortgage) {
        books.Read(idMortgage);
        books.Take(rowsPerMortgage);
        for (int row = 0; row < rowsPerMortgage; ++row)
            books.Insert(id++, idMortgage, row + 1);
        books.Update(idMortgage);
    }
    books.Run("COMMIT");
    return static_cast<double>(mortgages) * rowsPerMortgage;
}

} // namespace bench
