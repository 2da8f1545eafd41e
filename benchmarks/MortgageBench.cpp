// The schedule of a loan against a C loop that fills the same fields by the same formulas, and the
// bring-up-to-date run of mortgages against plain C calls of the engine that do the same writing.
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>

#include <fmt/core.h>

#include "Measure.h"
#include "PlainMortgages.h"
#include "core/Globals.h"
#include "mortgages/MortgageRun.h"
#include "mortgages/clsMortgage.h"
#include "platform/system/Clock.h"
#include "store/CreateDatabase.h"
#include "support/TemporaryFolder.h"

namespace {

using bench::Cost;
using platform::Date;

constexpr int kMortgages = 500;

double Seconds(const std::function<double()>& work, double& sum) {
    double best = 1e9;
    for (int i = 0; i < 5; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        sum += work();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
        best = std::min(best, took.count());
    }
    return best;
}

double RunSchedules(int periods, int times) {
    mortgages::clsMortgage loan;
    loan.SetFirstDue("01/31/2024");
    loan.SetOrigPer(periods);
    loan.SetOrigRate(6);
    loan.SetPPM(true); // so that all seventeen fields have something to say
    loan.SetPPMPer(0);
    double sum = 0;
    for (int i = 0; i < times; ++i) {
        loan.SetOrigPV(100'000 + i);
        loan.ReCalc();
        const auto& rows = loan.Schedule();
        sum += rows.back().PriTTD + rows[rows.size() / 2].IntYTD + rows.back().Due.View()[4];
    }
    return sum;
}

void BenchSchedule(int periods) {
    constexpr int kTimes = 2'000;
    double ourSum = 0;
    double plainSum = 0;
    const double ours = Seconds([&] { return RunSchedules(periods, kTimes); }, ourSum);
    const double plain =
        Seconds([&] { return bench::RunPlainSchedules(periods, kTimes); }, plainSum);
    fmt::print("schedule of {:>5} rows {:>10.2f} us, the same by a C loop {:>10.2f} us\n", periods,
               ours / kTimes * 1e6, plain / kTimes * 1e6);
    if (std::abs(ourSum - plainSum) > 1e-6 * plainSum)
        throw platform::Error("the two schedules differ");
    bench::Report("  ratio of time", ours / plain, 1.5);
}

class Counter : public core::RunListener {
  public:
    void Posted(core::RecordKind, std::int32_t, std::string_view,
                const std::vector<core::PostedRow>& rows) override {
        count += static_cast<double>(rows.size());
    }
    void Failed(core::RecordKind, std::int32_t, std::string_view description,
                std::string_view reason) override {
        throw platform::Error(fmt::format("{}: {}", description, reason));
    }
    double count = 0;
};

void MakeBooks(const std::filesystem::path& folder) {
    store::CreateDatabase(folder);
    core::App().Connection.Open(folder / "Vestrel.mdb");
    platform::UnitOfWork unit(core::App().Connection);
    core::App().Connection.Execute("INSERT INTO Configuration (NextId) VALUES (1000000)");
    mortgages::clsMortgage loan;
    loan.SetFirstDue("01/15/2024");
    loan.ReCalc();
    for (int id = 1; id <= kMortgages; ++id)
        loan.SaveMtg(id);
    core::App().Connection.Execute(
        "UPDATE Mortgage SET DateUpdated = '12/31/2023', EscrowAmount = 250, PMI = 40, "
        "LateFee = 35, GracePeriod = 15");
    unit.Commit();
    core::App().Connection.Close();
}

/// Runs `work` on new books.
template <class Work>
Cost OnNewBooks(Work work) {
    const support::TemporaryFolder folder;
    const auto books = folder.Path() / "books";
    bench::InOwnProcess([&] { MakeBooks(books); }, [] { return 0.0; });
    return work(books);
}

Cost RunOurs() {
    return OnNewBooks([](const std::filesystem::path& books) {
        return bench::InOwnProcess(
            [&] {
                core::App().Connection.Open(books / "Vestrel.mdb");
                platform::SetToday(Date(2024, 12, 31));
            },
            [] {
                Counter counter;
                mortgages::UpdateMortgages(counter);
                return counter.count;
            });
    });
}

Cost RunPlain(int rows) {
    return OnNewBooks([rows](const std::filesystem::path& books) {
        return bench::InOwnProcess(
            [] {}, [&] { return bench::RunPlainMortgages(books, kMortgages, rows); });
    });
}

void BenchRun() {
    const int rows = static_cast<int>(RunOurs().rows) / kMortgages;
    const auto [ours, plain] =
        bench::BestInTurn<2>(7, {RunOurs, [rows] { return RunPlain(rows); }});
    fmt::print("catch-up of 12 months, {} mortgages, {} rows each {:>8.3f} s {:>8.1f} MB\n",
               kMortgages, rows, ours.seconds, ours.peakMegabytes);
    fmt::print("  the same rows by the engine alone {:>8.3f} s {:>8.1f} MB\n", plain.seconds,
               plain.peakMegabytes);
    bench::Report("  ratio of time", ours.seconds / plain.seconds, 2.0);
}

int Run() {
    BenchSchedule(360);
    BenchSchedule(1200);
    BenchRun();
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded([] { return Run(); });
}
