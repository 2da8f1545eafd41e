// The search for everything over 100,000 transactions, against the engine's own full-text query on
// the same index; and what it costs to bring the index up to date.
#include <sqlite3.h>

#include <algorithm>
#include <chrono>

#include <fmt/core.h>

#include "BenchBooks.h"
#include "Measure.h"
#include "WindowBooks.h"
#include "core/Globals.h"
#include "core/Rows.h"
#include "search/Finder.h"
#include "search/Words.h"
#include "support/TemporaryFolder.h"

namespace {

constexpr bench::WindowBooks kBooks{.leases = 2'000, .mortgages = 500, .transactions = 100'000};
constexpr std::size_t kMost = 50; // of a group, as the box asks for
constexpr int kTimes = 10;
constexpr int kRounds = 100;

/// The reference, by the engine alone: the first texts that match the same words.
class PlainIndex {
  public:
    explicit PlainIndex(const std::filesystem::path& file) {
        sqlite3_open_v2(file.c_str(), &database_, SQLITE_OPEN_READONLY, nullptr);
        sqlite3_prepare_v2(database_,
                           "SELECT key, title, detail FROM found JOIN texts ON key = found.rowid "
                           "WHERE found MATCH ? LIMIT ?",
                           -1, &query_, nullptr);
    }
    ~PlainIndex() {
        sqlite3_finalize(query_);
        sqlite3_close(database_);
    }
    PlainIndex(const PlainIndex&) = delete;
    PlainIndex& operator=(const PlainIndex&) = delete;

    double Find(const std::string& expression, std::size_t rows) {
        sqlite3_bind_text(query_, 1, expression.c_str(), -1, SQLITE_STATIC);
        sqlite3_bind_int64(query_, 2, static_cast<std::int64_t>(rows));
        double count = 0;
        while (sqlite3_step(query_) == SQLITE_ROW) {
            for (int column = 1; column < 3; ++column)
                letters_ = letters_ + static_cast<double>(sqlite3_column_text(query_, column)[0]);
            ++count;
        }
        sqlite3_reset(query_);
        return count;
    }

  private:
    sqlite3* database_ = nullptr;
    sqlite3_stmt* query_ = nullptr;
    volatile double letters_ = 0;
};

template <class Work>
double Microseconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < kTimes; ++i)
        work();
    const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
    return took.count() / kTimes;
}

double Update(search::Finder& finder) {
    while (!finder.Step()) {
    }
    return 1;
}

/// Reads every value that the index is made of, as the engine steps over it.
double ReadTransactions() {
    platform::Recordset rows = core::Read(
        "SELECT IdTransaction, DebitDesc, CreditDesc, DateEffective, Amount, TaxCategory, "
        "CheckNum, Description FROM Transactions ORDER BY 1 DESC");
    return static_cast<double>(rows.RecordCount());
}

void BenchQueries() {
    search::Finder finder(core::App().Connection);
    Update(finder);
    PlainIndex plain(search::Finder::IndexFile(core::App().Connection));
    for (const char* const text :
         {"1050", "1,050.00", "payment", "tenant 17 repairs", "river bank checking", "rep",
          "01/2020", "4711", "lease", "nothing like this"}) {
        std::size_t found = 0;
        const auto find = [&] {
            found = 0;
            for (const search::HitGroup& group : finder.Find(text, kMost))
                found += group.hits.size();
        };
        const std::string expression =
            platform::MatchExpression(search::QueryWords(text, search::Numbers::Whole));
        double ours = 1e9;
        double alone = 1e9;
        // In turn, so that another program on the machine slows both.
        for (int round = 0; round < kRounds; ++round) {
            ours = std::min(ours, Microseconds(find));
            alone = std::min(alone, Microseconds([&] {
                                 plain.Find(expression, std::max<std::size_t>(found, 1));
                             }));
        }
        bench::Report(fmt::format("  \"{}\": {} found, {:.0f} us; the engine {:.0f} us", text,
                                  found, ours, alone),
                      ours / alone, 2);
    }
}

int Run() {
    const support::TemporaryFolder folder;
    const auto books = folder.Path() / "books";
    bench::InOwnProcess([&] { bench::MakeWindowBooks(books, kBooks); }, [] { return 0.0; });
    search::Finder* finder = nullptr; // ends with its process
    const bench::Cost first = bench::InOwnProcess(
        [&] {
            bench::OpenWindowBooks(books);
            finder = new search::Finder(core::App().Connection);
        },
        [&] { return Update(*finder); });
    const bench::Cost again = bench::InOwnProcess(
        [&] {
            bench::OpenWindowBooks(books);
            finder = new search::Finder(core::App().Connection);
            Update(*finder);
            core::Execute(
                "UPDATE Transactions SET Description = 'Changed' "
                "WHERE IdTransaction = 5000017");
        },
        [&] { return Update(*finder); });
    const bench::Cost reading =
        bench::InOwnProcess([&] { bench::OpenWindowBooks(books); }, ReadTransactions);
    fmt::print(
        "search, {} transactions: the index made in {:.2f} s, {:.0f} MB; up to date after a "
        "change in {:.3f} s; the rows alone are read in {:.3f} s\n",
        kBooks.transactions, first.seconds, first.peakMegabytes, again.seconds, reading.seconds);
    bench::OpenWindowBooks(books);
    BenchQueries();
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded(Run);
}
