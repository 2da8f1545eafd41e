// Whole reports, from the definition and the books to the file, against plain loops that read the
// same rows and write the same.
#include <fmt/core.h>
#include <sqlite3.h>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

#include "Measure.h"
#include "PlainPages.h"
#include "core/Globals.h"
#include "platform/database/Connection.h"
#include "reports/ReportRun.h"
#include "reports/WriteReport.h"
#include "store/CreateDatabase.h"
#include "support/TemporaryFolder.h"

namespace {

using bench::Cost;

void MakeBooks(const std::filesystem::path& folder, std::size_t rows) {
    store::CreateDatabase(folder);
    platform::Connection connection;
    connection.Open(folder / "Vestrel.mdb");
    platform::UnitOfWork unit(connection);
    bench::PlainRow row{};
    for (std::size_t i = 0; i < rows; ++i) {
        bench::FillRow(i, row);
        connection.Execute(
            "INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, CreditDesc, "
            "TaxCategory, Description, Amount) VALUES (?, ?, ?, ?, ?, ?, ?)",
            {static_cast<std::int32_t>(i + 1), row.cells[1], row.cells[2], row.cells[3],
             row.cells[4], row.cells[5], platform::Currency::FromDouble(double(i % 1'900) / 4)});
    }
    unit.Commit();
    connection.Close();
}

/// The report's rows by the database's library alone.
class PlainBooks {
  public:
    explicit PlainBooks(const std::filesystem::path& folder) {
        sqlite3_open((folder / "Vestrel.mdb").c_str(), &books_);
        sqlite3_prepare_v2(books_,
                           "SELECT DateEffective, DebitDesc, CreditDesc, TaxCategory, Description, "
                           "DateEffective, Amount, Amount FROM Transactions",
                           -1, &rows_, nullptr);
    }
    ~PlainBooks() {
        sqlite3_finalize(rows_);
        sqlite3_close(books_);
    }
    PlainBooks(const PlainBooks&) = delete;
    PlainBooks& operator=(const PlainBooks&) = delete;

    void Next(bench::PlainRow& row) {
        sqlite3_step(rows_);
        for (int i = 0; i < 6; ++i) {
            const auto* text =
                reinterpret_cast<const char*>(sqlite3_column_text(rows_, i)); // NOLINT
            std::snprintf(row.cells[i], sizeof row.cells[i], "%s", text ? text : "");
        }
        for (int i = 6; i < 8; ++i) {
            const double amount = static_cast<double>(sqlite3_column_int64(rows_, i)) / 10'000;
            std::snprintf(row.cells[i], sizeof row.cells[i], "%.2f", amount);
        }
    }

  private:
    sqlite3* books_ = nullptr;
    sqlite3_stmt* rows_ = nullptr;
};

void WriteDefinition(const std::filesystem::path& file, std::size_t rows) {
    std::ofstream(file) << "[HEADER]\nSHOWTITLE=FALSE\nORIENTATION=LANDSCAPE\n[DATA]\nSHOWTABLE\n"
                        << "SQLQUERY=SELECT DateEffective, DebitDesc, CreditDesc, TaxCategory, "
                           "Description, DateEffective AS Due, Amount, Amount AS Balance FROM "
                           "Transactions WHERE IdTransaction <= "
                        << rows << "\n";
}

void RunReport(const std::filesystem::path& definition, reports::FileFormat format,
               const std::filesystem::path& file) {
    reports::ReportDef report;
    reports::ReportRun run(report, definition);
    reports::WriteReport(run, format, file);
}

/// Books with this many rows, the definition of a report on them, and the works that print it.
class Bench {
  public:
    explicit Bench(std::size_t rows) : rows_(rows) {
        MakeBooks(folder_.Path(), rows);
        WriteDefinition(Definition(), rows);
    }

    std::function<Cost()> Ours(reports::FileFormat format) const {
        return [this, format] {
            return bench::InOwnProcess(
                [this] { core::App().Connection.Open(folder_ / "Vestrel.mdb"); },
                [this, format] {
                    RunReport(Definition(), format, folder_ / "report");
                    return static_cast<double>(rows_);
                });
        };
    }

    template <class Write>
    std::function<Cost()> Plain(Write write) const {
        return [this, write] {
            return bench::InOwnProcess(
                [] {},
                [this, write] {
                    PlainBooks books(folder_.Path());
                    write((folder_ / "report").c_str(), rows_,
                          [&](std::size_t, bench::PlainRow& row) { books.Next(row); });
                    return static_cast<double>(rows_);
                });
        };
    }

  private:
    std::filesystem::path Definition() const { return folder_ / "bench.rpt"; }

    support::TemporaryFolder folder_;
    std::size_t rows_;
};

void Print(const char* what, const Cost& cost, const Cost& plain, double limit) {
    fmt::print("{:<40} {:>8.3f} s {:>8.1f} MB   by a plain loop {:>8.3f} s\n", what, cost.seconds,
               cost.peakMegabytes, plain.seconds);
    bench::Report("  ratio of time", cost.seconds / plain.seconds, limit);
    bench::Report("  peak memory", cost.peakMegabytes, 64, "MB");
}

template <class Write>
void BenchFormat(const Bench& few, const Bench& many, reports::FileFormat format, Write plainly,
                 double limit) {
    constexpr int kRounds = 7;
    const auto [ours, plain, manyOurs, manyPlain] = bench::BestInTurn<4>(
        kRounds, {few.Ours(format), few.Plain(plainly), many.Ours(format), many.Plain(plainly)});
    Print("  10,000 rows", ours, plain, limit);
    Print("  100,000 rows", manyOurs, manyPlain, limit);
    bench::Report("  growth", manyOurs.seconds / ours.seconds, 11);
}

int Run() {
    const Bench few(10'000);
    const Bench many(100'000);
    const Bench page(30);
    fmt::print("reports to PDF\n");
    BenchFormat(few, many, reports::FileFormat::Pdf, bench::WritePlainPdf, 5);
    fmt::print("reports to HTML\n");
    BenchFormat(few, many, reports::FileFormat::Html, bench::WritePlainHtml, 2);
    const auto [one] = bench::BestInTurn<1>(3, {page.Ours(reports::FileFormat::Pdf)});
    bench::Report("a report of one page to PDF", one.seconds * 1000, 20, "ms");
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded(Run);
}
