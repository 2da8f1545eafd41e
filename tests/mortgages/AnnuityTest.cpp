#include "mortgages/Annuity.h"

#include <gtest/gtest.h>

#include "mortgages/LoanMath.h"
#include "platform/values/Errors.h"

namespace tests {

namespace {

using mortgages::Annuity;

struct LoanCase {
    long double amount;
    int periods;
    long double yearRate;
};

constexpr LoanCase kLoans[] = {
    {200'000, 360, 0.06L}, {1'000, 1, 0.12L},      {85'000, 180, 0.0425L},
    {1'200, 12, 0},        {500'000, 1'200, 0.3L}, {10'000, 24, 0.0001L},
};

TEST(Annuity, OwesWhatTheScheduleOfLendersOwes) {
    for (const LoanCase& loan : kLoans) {
        const Annuity monthly(static_cast<double>(loan.yearRate) / 12);
        const auto amount = static_cast<double>(loan.amount);
        const double payment = monthly.Pmt(loan.periods, amount);
        ReferenceLoan reference;
        reference.balance = loan.amount;
        reference.periods = loan.periods;
        reference.rates = {loan.yearRate};
        const auto rows = Amortise(reference, loan.periods);
        EXPECT_NEAR(monthly.PV(loan.periods, payment), amount, amount * 1e-9);
        for (const int period : {1, loan.periods / 2, loan.periods}) {
            if (period == 0) continue;
            const auto row = rows[static_cast<std::size_t>(period) - 1];
            EXPECT_NEAR(monthly.PV(loan.periods - period, payment),
                        static_cast<double>(row.balance), amount * 1e-5)
                << amount << " after " << period;
        }
    }
}

TEST(Annuity, FindsTheRateOfAPayment) {
    for (const LoanCase& loan : kLoans) {
        const auto rate = static_cast<double>(loan.yearRate) / 12;
        const auto amount = static_cast<double>(loan.amount);
        const double payment = Annuity(rate).Pmt(loan.periods, amount);
        EXPECT_NEAR(Annuity::OfPayment(loan.periods, payment, amount).Rate(), rate, 1e-9) << amount;
    }
    EXPECT_THROW(Annuity::OfPayment(12, -99, 1'200), platform::Error) << "less than the loan";
    EXPECT_THROW(Annuity::OfPayment(1, -2'500, 1'000), platform::Error) << "more than double";
}

} // namespace

} // namespace tests
