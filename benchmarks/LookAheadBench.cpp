// The look ahead against the daily run that later posts the same rows.
#include <algorithm>
#include <stdexcept>

#include <fmt/core.h>

#include "BenchBooks.h"
#include "Measure.h"
#include "core/DailyRun.h"
#include "core/Globals.h"
#include "leases/LeaseRun.h"
#include "outlook/LookAhead.h"
#include "platform/system/Clock.h"
#include "support/TemporaryFolder.h"

namespace {

using bench::Cost;
using platform::Date;

constexpr int kLeases = 2'000;
const Date kToday(2024, 1, 1);
const Date kUntil(2024, 3, 31); // 90 days on

/// Works on books that the run has brought up to today.
template <class Work>
Cost OnCurrentBooks(Work work) {
    const support::TemporaryFolder folder;
    const auto books = folder.Path() / "books";
    bench::InOwnProcess(
        [&] {
            bench::MakeBooks(books, kLeases, kToday);
            bench::OpenBooks(books);
        },
        [] { return bench::RunLeases(kToday); });
    return bench::InOwnProcess([&] { bench::OpenBooks(books); }, work);
}

double LookAhead() {
    platform::SetToday(kToday);
    const auto forecast = outlook::LookAhead(core::App().Connection.File(), kUntil);
    return static_cast<double>(
        std::ranges::count_if(forecast.rows, [](const outlook::ForecastRow& row) {
            return row.origin == outlook::Origin::Charge || row.origin == outlook::Origin::LateFee;
        }));
}

int Run() {
    core::RegisterRunStep(core::RunStep::Leases, leases::UpdateLeases);
    const auto [ahead, run] = bench::BestInTurn<2>(
        5, {[] { return OnCurrentBooks(LookAhead); },
            [] { return OnCurrentBooks([] { return bench::RunLeases(kUntil); }); }});
    if (ahead.rows != run.rows)
        throw std::runtime_error(
            fmt::format("{} rows were forecast and {} posted", ahead.rows, run.rows));
    fmt::print("{:<52} {:>8.3f} s {:>8.1f} MB\n", "look ahead of 90 days, 2,000 leases",
               ahead.seconds, ahead.peakMegabytes);
    fmt::print("{:<52} {:>8.3f} s {:>8.1f} MB\n", "  the run that posts the same rows", run.seconds,
               run.peakMegabytes);
    // It copies the books and walks today's run too, and is spared the waits for the disk: more
    // than half as long again would be a second walk.
    bench::Report("  ratio of time", ahead.seconds / run.seconds, 1.5);
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded([] { return Run(); });
}
