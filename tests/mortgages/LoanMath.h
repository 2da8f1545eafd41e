#pragma once

#include <vector>

namespace tests {

/// A loan reckoned apart from the program: in extended precision, by the recurrence that lenders
/// state (a month's interest on the balance, the rest of the payment off it), without any formula
/// for the number of periods.
struct ReferenceLoan {
    long double balance = 100'000;
    long double periods = 360;
    std::vector<long double> rates; ///< a year's, by period; the last goes on
    std::vector<long double> extra; ///< by period, 0 past the end
    bool interestOnly = false;
};

struct ReferenceRow {
    long double payment = 0;
    long double principal = 0;
    long double extra = 0;
    long double interest = 0;
    long double balance = 0; ///< after the payment
};

/// The payment that pays `balance` off in `periods`, by summing the discounted ones.
long double LevelPayment(long double balance, long double yearRate, int periods);

std::vector<ReferenceRow> Amortise(const ReferenceLoan& loan, int rows);

} // namespace tests
