// Whole reports, from the definition and the books to the file, against plain loops that read the
// same rows and write the same.
#include <fmt/core.h>
#include <sqlite3.h>

#include <array>
#include <cstdlib>
#include <fstream>
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

/// The quickest of three: the machine does other things too.
template <class Work>
Cost Best(const std::filesystem::path& folder, Work work) {
    Cost best;
    for (int i = 0; i < 3; ++i) {
        const auto open = [&] { core::App().Connection.Open(folder / "Vestrel.mdb"); };
        const Cost cost = bench::InOwnProcess(open, [&] {
            work();
            return 0.0;
        });
        if (i == 0 || cost.seconds < best.seconds) best = cost;
    }
    return best;
}

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

void Print(const std::string& what, const Cost& cost, const Cost& plain, double limit) {
    fmt::print("{:<40} {:>8.3f} s {:>8.1f} MB   by a plain loop {:>8.3f} s\n", what, cost.seconds,
               cost.peakMegabytes, plain.seconds);
    bench::Report("  ratio of time", cost.seconds / plain.seconds, limit);
    bench::Report("  peak memory", cost.peakMegabytes, 64, "MB");
}

int Run() {
    using reports::FileFormat;
    const std::array<std::size_t, 2> sizes = {10'000, 100'000};
    std::array<Cost, 2> pdf;
    std::array<Cost, 2> html;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const std::size_t rows = sizes[i];
        const support::TemporaryFolder folder;
        MakeBooks(folder.Path(), rows);
        const auto definition = folder / "bench.rpt";
        WriteDefinition(definition, rows);
        const auto file = folder / "report";
        const auto plain = [&](auto write) {
            return Best(folder.Path(), [&] {
                PlainBooks books(folder.Path());
                write(file.c_str(), rows,
                      [&](std::size_t, bench::PlainRow& row) { books.Next(row); });
            });
        };
        pdf[i] = Best(folder.Path(), [&] { RunReport(definition, FileFormat::Pdf, file); });
        html[i] = Best(folder.Path(), [&] { RunReport(definition, FileFormat::Html, file); });
        Print(fmt::format("{} rows to PDF", rows), pdf[i], plain(bench::WritePlainPdf), 5);
        Print(fmt::format("{} rows to HTML", rows), html[i], plain(bench::WritePlainHtml), 2);
        if (i > 0) continue;
        WriteDefinition(definition, 30);
        const Cost page =
            Best(folder.Path(), [&] { RunReport(definition, FileFormat::Pdf, file); });
        bench::Report("a report of one page to PDF", page.seconds * 1000, 20, "ms");
    }
    bench::Report("PDF: growth from 10,000 to 100,000 rows", pdf[1].seconds / pdf[0].seconds, 11);
    bench::Report("HTML: growth from 10,000 to 100,000 rows", html[1].seconds / html[0].seconds,
                  11);
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded(Run);
}
