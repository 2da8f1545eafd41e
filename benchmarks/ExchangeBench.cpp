// Tables as text, out and in, and backups, against plain C that does the same.
#include <algorithm>
#include <fstream>

#include <fmt/core.h>

#include "Measure.h"
#include "PlainPort.h"
#include "core/Globals.h"
#include "exchange/Container.h"
#include "exchange/Port.h"
#include "platform/database/RowWriter.h"
#include "store/CreateDatabase.h"
#include "store/Tables.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using bench::Cost;

constexpr int kRows = 100'000;
constexpr int kManyRows = 600'000;
constexpr int kTimes = 5;
constexpr int kTimesOfABackup = 15; // most of it is waiting for the disk

void OpenBooks(const fs::path& folder) {
    core::App().DbPath = folder.string() + "/";
    core::App().DbFile = (folder / "Vestrel.mdb").string();
    core::App().Connection.Open(core::App().DbFile);
}

const store::TableDefinition& Transactions() {
    const auto& tables = store::BooksTables();
    return *std::ranges::find(tables, "Transactions", &store::TableDefinition::name);
}

/// Adds this many transactions such as the screens save.
void AddTransactions(int rows) {
    using platform::Cell;
    std::vector<std::string> names;
    for (const store::FieldDefinition& field : Transactions().fields)
        names.push_back(field.name);
    platform::UnitOfWork unit(core::App().Connection);
    platform::RowWriter writer(core::App().Connection, "Transactions", names);
    std::vector<Cell> cells(names.size());
    for (int row = 1; row <= rows; ++row) {
        const std::string day =
            fmt::format("{:02}/{:02}/{}", row % 12 + 1, row % 28 + 1, 2000 + row % 24);
        const std::string text =
            fmt::format("Rent Payment for \"{}\", {} Elm Street", row % 977, row % 4001);
        for (std::size_t i = 0; i < cells.size(); ++i) {
            switch (writer.Types()[i]) {
                case platform::FieldType::Text:
                    cells[i] = Cell::OfText(i == 1 ? std::string_view(day) : text);
                    break;
                case platform::FieldType::Currency:
                    cells[i] = Cell::OfInteger(row * 2'500LL + 7);
                    break;
                case platform::FieldType::Boolean:
                    cells[i] = Cell::OfInteger(row % 2);
                    break;
                default:
                    cells[i] = Cell::OfInteger(i == 0 ? 4'000'000 + row : row % 3000);
            }
        }
        writer.Add(cells);
    }
    unit.Commit();
}

void MakeBooks(const fs::path& folder, int rows) {
    store::CreateDatabase(folder);
    OpenBooks(folder);
    AddTransactions(rows);
    core::App().Connection.Close();
}

void MakeBooksApart(const fs::path& folder, int rows) {
    bench::InOwnProcess([] {},
                        [&] {
                            MakeBooks(folder, rows);
                            return 0.0;
                        });
}

void PrintCost(const char* what, const Cost& cost) {
    fmt::print("{:<52} {:>8.3f} s {:>12.0f} rows/s {:>8.1f} MB\n", what, cost.seconds,
               cost.rows / cost.seconds, cost.peakMegabytes);
}

Cost Export(const fs::path& books, const fs::path& file, double rows) {
    return bench::InOwnProcess([&] { OpenBooks(books); },
                               [&] {
                                   const std::vector<std::string> tables = {"Transactions"};
                                   exchange::WriteTables(tables, file, {});
                                   return rows;
                               });
}

Cost Import(const fs::path& books, const fs::path& file, double rows) {
    fs::remove_all(books);
    MakeBooksApart(books, 0);
    return bench::InOwnProcess([&] { OpenBooks(books); },
                               [&] {
                                   using namespace exchange;
                                   const ImportOutcome outcome =
                                       ImportDatabase(file, ImportMode::Write, ImportRows::Append,
                                                      ImportMessages::Quiet, {});
                                   if (!outcome.Succeeded())
                                       throw std::runtime_error(outcome.error);
                                   return rows;
                               });
}

std::string TextOf(const fs::path& file) {
    std::ifstream input(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(input), {}};
}

void MeasureExport(const fs::path& folder) {
    const fs::path books = folder / "books";
    const auto [ours, plain] = bench::BestInTurn<2>(
        kTimes,
        {[&] { return Export(books, folder / "ours.csv", kRows); },
         [&] {
             return bench::InOwnProcess(
                 [] {},
                 [&] { return bench::PlainExport(books / "Vestrel.mdb", folder / "plain.csv"); });
         }});
    if (TextOf(folder / "ours.csv") != TextOf(folder / "plain.csv")) {
        throw std::runtime_error("the two exports differ\n");
    }
    PrintCost("Text export of 100,000 rows of 30 columns", ours);
    PrintCost("  the same file by a plain loop", plain);
    bench::Report("  ratio of time", ours.seconds / plain.seconds, 1.5);
    const Cost many = Export(folder / "many", folder / "many.csv", kManyRows);
    bench::Report("  memory of 600,000 rows against it", many.peakMegabytes / ours.peakMegabytes,
                  1.1);
}

void MeasureImport(const fs::path& folder) {
    const fs::path other = folder / "other";
    const auto [ours, plain] = bench::BestInTurn<2>(
        kTimes,
        {[&] { return Import(other, folder / "ours.csv", kRows); },
         [&] {
             fs::remove_all(other);
             MakeBooksApart(other, 0);
             return bench::InOwnProcess(
                 [] {},
                 [&] { return bench::PlainImport(other / "Vestrel.mdb", folder / "ours.csv"); });
         }});
    PrintCost("Its import with its check", ours);
    PrintCost("  the same by a plain loop", plain);
    bench::Report("  ratio of time", ours.seconds / plain.seconds, 1.7);
    const Cost many = Import(other, folder / "many.csv", kManyRows);
    bench::Report("  memory of 600,000 rows against it", many.peakMegabytes / ours.peakMegabytes,
                  1.1);
}

void MeasureBackup(const fs::path& folder) {
    const fs::path books = folder / "many";
    const fs::path database = books / "Vestrel.mdb";
    const fs::path container = folder / "Vestrel.0.vbk";
    const auto [ours, plain] = bench::BestInTurn<2>(
        kTimesOfABackup,
        {[&] {
             fs::remove(container);
             return bench::InOwnProcess([&] { OpenBooks(books); },
                                        [&] {
                                            std::string result;
                                            exchange::PackDatabase(container, database, {}, result);
                                            if (result != "Success")
                                                throw std::runtime_error(result);
                                            exchange::SyncContainer(container);
                                            return static_cast<double>(fs::file_size(container));
                                        });
         },
         [&] {
             fs::remove(folder / "copy");
             return bench::InOwnProcess(
                 [] {}, [&] { return bench::PlainCopy(database, folder / "copy"); });
         }});
    constexpr double kMegabyte = 1e6;
    fmt::print("{:<52} {:>8.3f} s {:>12.0f} MB/s   {:>8.1f} MB\n", "Backup of the database",
               ours.seconds, ours.rows / kMegabyte / ours.seconds, ours.peakMegabytes);
    fmt::print("{:<52} {:>8.3f} s {:>12.0f} MB/s   {:>8.1f} MB\n", "  a plain copy of its bytes",
               plain.seconds, plain.rows / kMegabyte / plain.seconds, plain.peakMegabytes);
    bench::Report("  ratio of time", ours.seconds / plain.seconds, 1.3);
}

int Run() {
    const support::TemporaryFolder folder;
    MakeBooksApart(folder.Path() / "books", kRows);
    MakeBooksApart(folder.Path() / "many", kManyRows);
    MeasureExport(folder.Path());
    MeasureImport(folder.Path());
    MeasureBackup(folder.Path());
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded(Run);
}
