// Payments of rent, one after the other and each durable by itself, against plain C calls of the
// engine that write the same rows.
#include <fmt/core.h>

#include "BenchBooks.h"
#include "Measure.h"
#include "PlainPayments.h"
#include "core/Globals.h"
#include "leases/RentPayment.h"
#include "platform/system/Clock.h"
#include "support/TemporaryFolder.h"

namespace {

using bench::Cost;
using platform::Date;

constexpr int kPayments = 1'000;
const Date kFirstDue(2024, 1, 1);
const Date kPayDay(2024, 1, 3);

void PrepareBooks(const std::filesystem::path& books) {
    bench::MakeBooks(books, kPayments, kFirstDue);
    bench::OpenBooks(books);
    bench::RunLeases(kPayDay);
    core::App().Connection.Close();
}

double PayAll() {
    for (int idLease = 1; idLease <= kPayments; ++idLease)
        leases::SubmitPayment(leases::ProposePayment(idLease, core::TransactionClass::Rent));
    return kPayments;
}

/// Each work five times, on new books each time; the quickest counts, since the disk is shared.
template <class Work>
Cost Best(Work work) {
    Cost best;
    for (int i = 0; i < 5; ++i) {
        const support::TemporaryFolder folder;
        const auto books = folder.Path() / "books";
        bench::InOwnProcess([&] { PrepareBooks(books); }, [] { return 0.0; });
        const Cost cost = work(books);
        if (i == 0 || cost.seconds < best.seconds) best = cost;
    }
    return best;
}

void PrintCost(const char* what, const Cost& cost) {
    fmt::print("{:<52} {:>8.3f} s {:>12.0f} payments/s {:>8.1f} MB\n", what, cost.seconds,
               cost.rows / cost.seconds, cost.peakMegabytes);
}

int Run() {
    const Cost ours = Best([](const std::filesystem::path& books) {
        return bench::InOwnProcess(
            [&] {
                platform::SetToday(kPayDay);
                bench::OpenBooks(books);
            },
            PayAll);
    });
    const Cost plain = Best([](const std::filesystem::path& books) {
        return bench::InOwnProcess([] {},
                                   [&] { return bench::RunPlainPayments(books, kPayments); });
    });
    PrintCost("1,000 payments, one after the other", ours);
    PrintCost("  the same rows by the engine alone", plain);
    bench::Report("  ratio of time", ours.seconds / plain.seconds, 1.5);
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded(Run);
}
