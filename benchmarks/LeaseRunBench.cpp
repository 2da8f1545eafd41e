// The bring-up-to-date run of leases against plain C calls of the engine that do the same writing.
#include <algorithm>
#include <filesystem>
#include <functional>

#include <fmt/core.h>

#include "BenchBooks.h"
#include "Measure.h"
#include "PlainEngine.h"
#include "support/TemporaryFolder.h"

namespace {

using bench::Cost;
using platform::Date;

const Date kFirstDue(2024, 1, 1);
const Date kYearLater(2024, 12, 31);

constexpr int kRounds = 5;

using Work = std::function<Cost(const std::filesystem::path& books)>;

/// Does the work on books of their own, which `prepare` brings to where the work begins.
std::function<Cost()> OnNewBooks(int leases, const std::function<void()>& prepare,
                                 const Work& work) {
    return [=] {
        const support::TemporaryFolder folder;
        const auto books = folder.Path() / "books";
        bench::InOwnProcess(
            [&] {
                bench::MakeBooks(books, leases, kFirstDue);
                if (!prepare) return;
                bench::OpenBooks(books);
                prepare();
            },
            [] { return 0.0; });
        return work(books);
    };
}

Work RunTo(const Date& day) {
    return [day](const std::filesystem::path& books) {
        return bench::InOwnProcess([&] { bench::OpenBooks(books); },
                                   [day] { return bench::RunLeases(day); });
    };
}

Work RunPlainly(int leases, int rowsPerLease) {
    return [=](const std::filesystem::path& books) {
        return bench::InOwnProcess(
            [] {}, [&] { return bench::RunPlainEngine(books, leases, rowsPerLease); });
    };
}

std::function<Cost()> CatchUp(int leases) {
    return OnNewBooks(leases, {}, RunTo(kYearLater));
}

void PrintCost(const char* what, const Cost& cost) {
    fmt::print("{:<52} {:>8.3f} s {:>12.0f} rows/s {:>8.1f} MB\n", what, cost.seconds,
               cost.rows / cost.seconds, cost.peakMegabytes);
}

void BenchCatchUp() {
    constexpr int kLeases = 2'000;
    const int rows = static_cast<int>(CatchUp(kLeases)().rows) / kLeases;
    const auto [ours, plain] = bench::BestInTurn<2>(
        kRounds, {CatchUp(kLeases), OnNewBooks(kLeases, {}, RunPlainly(kLeases, rows))});
    PrintCost("catch-up of 12 months, 2,000 leases", ours);
    PrintCost("  the same rows by the engine alone", plain);
    bench::Report("  ratio of time", ours.seconds / plain.seconds, 2.0);
    bench::Report("  peak resident size", ours.peakMegabytes, 48.0, "MB");
}

void BenchOneDay() {
    constexpr int kLeases = 5'000;
    // Two months kept and paid: on the next day nothing falls due, but every lease is tested,
    // summed up and written.
    const auto keepTwoMonths = [] {
        bench::RunLeases(Date(2024, 3, 1));
        bench::PayEverything(Date(2024, 4, 1));
    };
    const auto [ours, plain] =
        bench::BestInTurn<2>(kRounds, {OnNewBooks(kLeases, keepTwoMonths, RunTo(Date(2024, 3, 2))),
                                       OnNewBooks(kLeases, keepTwoMonths, RunPlainly(kLeases, 0))});
    fmt::print("{:<52} {:>8.3f} s {:>8.1f} MB\n", "one day on, 5,000 leases", ours.seconds,
               ours.peakMegabytes);
    fmt::print("{:<52} {:>8.3f} s {:>8.1f} MB\n", "  the same sums and updates by the engine alone",
               plain.seconds, plain.peakMegabytes);
    bench::Report("  ratio of time", ours.seconds / plain.seconds, 2.0);
}

void BenchGrowth() {
    const auto [small, large] = bench::BestInTurn<2>(kRounds, {CatchUp(1'000), CatchUp(5'000)});
    PrintCost("catch-up of 12 months, 1,000 leases", small);
    PrintCost("catch-up of 12 months, 5,000 leases", large);
    bench::Report("  growth of time for five times the leases", large.seconds / small.seconds, 5.5);
    bench::Report("  peak resident size of the larger", large.peakMegabytes, 48.0, "MB");
}

bool IsWanted(std::string_view part, int argc, char** argv) {
    return argc == 1 || std::find(argv + 1, argv + argc, part) != argv + argc;
}

/// Without arguments all parts; otherwise those that are named: catch-up, one-day, growth.
int Run(int argc, char** argv) {
    if (IsWanted("catch-up", argc, argv)) BenchCatchUp();
    if (IsWanted("one-day", argc, argv)) BenchOneDay();
    if (IsWanted("growth", argc, argv)) BenchGrowth();
    return bench::ExitStatus();
}

} // namespace

int main(int argc, char** argv) {
    return bench::Guarded([&] { return Run(argc, argv); });
}
