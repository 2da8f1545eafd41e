#include "PlainViews.h"

#include <sqlite3.h>

#include <cstdlib>
#include <memory>
#include <string>

#include <fmt/core.h>

#include "platform/database/Connection.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/database/dialect/RuntimeFunctions.h"

namespace bench {

namespace {

class PlainFile {
  public:
    explicit PlainFile(const std::filesystem::path& file) {
        connection_.Open(file, platform::OpenMode::ReadOnly);
        Check(sqlite3_open_v2(file.c_str(), &database_, SQLITE_OPEN_READONLY, nullptr));
        platform::dialect::RegisterRuntimeFunctions(database_);
    }
    ~PlainFile() { sqlite3_close(database_); }
    PlainFile(const PlainFile&) = delete;
    PlainFile& operator=(const PlainFile&) = delete;

    std::string Compile(std::string_view statement) {
        return platform::dialect::Compile(statement, connection_.Tables()).sql;
    }

    /// Reads up to `rows` rows, all for -1.
    double Read(const std::string& sql, double rows = -1) {
        sqlite3_stmt* made = nullptr;
        Check(sqlite3_prepare_v2(database_, sql.c_str(), -1, &made, nullptr));
        const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement(
            made, sqlite3_finalize);
        const int columns = sqlite3_column_count(made);
        double count = 0;
        while (count != rows && sqlite3_step(made) == SQLITE_ROW) {
            for (int column = 0; column < columns; ++column)
                letters_ = letters_ + ReadValue(made, column);
            ++count;
        }
        return count;
    }

    double Count(const std::string& sql) {
        sqlite3_stmt* made = nullptr;
        const std::string counting = "SELECT count(*) FROM (" + sql + ")";
        Check(sqlite3_prepare_v2(database_, counting.c_str(), -1, &made, nullptr));
        sqlite3_step(made);
        const double count = sqlite3_column_double(made, 0);
        sqlite3_finalize(made);
        return count;
    }

  private:
    void Check(int result) {
        if (result == SQLITE_OK) return;
        fmt::print(stderr, "plain engine: {}\n", sqlite3_errmsg(database_));
        std::exit(1);
    }

    static int ReadValue(sqlite3_stmt* statement, int column) {
        switch (sqlite3_column_type(statement, column)) {
            case SQLITE_INTEGER:
                return static_cast<int>(sqlite3_column_int64(statement, column) & 1);
            case SQLITE_FLOAT:
                return sqlite3_column_double(statement, column) > 0 ? 1 : 0;
            case SQLITE_TEXT:
                return *sqlite3_column_text(statement, column) +
                       sqlite3_column_bytes(statement, column);
            default:
                return 0;
        }
    }

    platform::Connection connection_;
    sqlite3* database_ = nullptr;
    volatile int letters_ = 0; // so that the values are read indeed
};

} // namespace

double CountAndStep(const std::filesystem::path& file, std::string_view statement, int rows) {
    PlainFile plain(file);
    const std::string sql = plain.Compile(statement);
    const double count = plain.Count(sql);
    plain.Read(sql, rows);
    return count;
}

double StepAll(const std::filesystem::path& file, std::string_view statement) {
    PlainFile plain(file);
    return plain.Read(plain.Compile(statement));
}

double StepEach(const std::filesystem::path& file, const std::vector<std::string>& statements) {
    PlainFile plain(file);
    double rows = 0;
    for (const std::string& statement : statements)
        rows += plain.Read(plain.Compile(statement));
    return rows;
}

} // namespace bench
