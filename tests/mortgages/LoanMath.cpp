#include "mortgages/LoanMath.h"

#include <algorithm>

namespace tests {

namespace {

template <class T>
T At(const std::vector<T>& list, int i, T beyond) {
    return i < static_cast<int>(list.size()) ? list[static_cast<std::size_t>(i)] : beyond;
}

} // namespace

long double LevelPayment(long double balance, long double yearRate, int periods) {
    long double discounted = 0;
    long double factor = 1;
    for (int i = 0; i < periods; ++i) {
        factor /= 1 + yearRate / 12;
        discounted += factor;
    }
    return balance / discounted;
}

std::vector<ReferenceRow> Amortise(const ReferenceLoan& loan, int rows) {
    std::vector<ReferenceRow> schedule;
    long double balance = loan.balance;
    // An interest-only loan pays for the balance at the last change of its rate.
    long double rateBase = loan.balance;
    long double payment = 0;
    for (int i = 0; i < rows && balance > 0; ++i) {
        const long double rate = At(loan.rates, i, loan.rates.back());
        const bool changed = i == 0 || rate != At(loan.rates, i - 1, loan.rates.back());
        if (changed) {
            rateBase = balance;
            payment = LevelPayment(balance, rate, static_cast<int>(loan.periods) - i);
        }
        ReferenceRow row;
        row.interest = rate / 12 * (loan.interestOnly ? rateBase : balance);
        row.principal = loan.interestOnly ? 0 : payment - row.interest;
        row.extra = At(loan.extra, i, 0.0L);
        row.principal = std::min(row.principal, balance);
        row.extra = std::min(row.extra, balance - row.principal);
        row.payment = row.principal + row.interest;
        balance -= row.principal + row.extra;
        row.balance = balance;
        schedule.push_back(row);
    }
    return schedule;
}

} // namespace tests
