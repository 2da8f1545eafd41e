// Payments of rent, one after the other and each durable by itself, against plain C calls of the
// engine that write the same rows.
#include <filesystem>
#include <functional>

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

template <class Work>
std::function<Cost()> OnNewBooks(Work work) {
    return [work] {
        const support::TemporaryFolder folder;
        const auto books = folder.Path() / "books";
        bench::InOwnProcess([&] { PrepareBooks(books); }, [] { return 0.0; });
        return work(books);
    };
}

void PrintCost(const char* what, const Cost& cost) {
    fmt::print("{:<52} {:>8.3f} s {:>12.0f} payments/s {:>8.1f} MB\n", what, cost.seconds,
               cost.rows / cost.seconds, cost.peakMegabytes);
}

int Run() {
    const auto pay = [](const std::filesystem::path& books) {
        return bench::InOwnProcess(
            [&] {
                platform::SetToday(kPayDay);
                bench::OpenBooks(books);
            },
            PayAll);
    };
    const auto payPlainly = [](const std::filesystem::path& books) {
        return bench::InOwnProcess([] {},
                                   [&] { return bench::RunPlainPayments(books, kPayments); });
    };
    const auto [ours, plain] = bench::BestInTurn<2>(7, {OnNewBooks(pay), OnNewBooks(payPlainly)});
    PrintCost("1,000 payments, one after the other", ours);
    PrintCost("  the same rows by the engine alone", plain);
    bench::Report("  ratio of time", ours.seconds / plain.seconds, 1.5);
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded(Run);
}
