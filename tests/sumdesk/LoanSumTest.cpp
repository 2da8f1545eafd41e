#include "sumdesk/LoanSum.h"

#include <gtest/gtest.h>

namespace tests {

namespace {

using sumdesk::Describe;
using sumdesk::FoundText;
using sumdesk::LoanEntries;
using sumdesk::LoanError;
using sumdesk::LoanField;
using sumdesk::WorkOutLoan;

struct Case {
    LoanEntries entries;
    const char* found;
    const char* text; ///< what follows, or why there is no such loan
};

// Figures from tables of loans, to the cent.
TEST(LoanSum, FindsPaymentRateAndTerm) {
    const Case cases[] = {
        {{LoanField::Payment, "200,000", "6", "360", "", "60"},
         "1,199.10",
         "Loan of 200,000.00 at 6% a year for 360 months (30 years)\n"
         "Payment 1,199.10 a month\n"
         "Interest over the whole term 231,676.38\n"
         "Balance after 60 payments 186,108.71"},
        {{LoanField::Payment, "$250,000 - 20%", "6.00 %", "30*12", "ignored", ""},
         "1,199.10",
         "Loan of 200,000.00 at 6% a year for 360 months (30 years)\n"
         "Payment 1,199.10 a month\n"
         "Interest over the whole term 231,676.38"},
        {{LoanField::Payment, "1200", "0", "12", "", "5"},
         "100.00",
         "Loan of 1,200.00 at 0% a year for 12 months (1 year)\n"
         "Payment 100.00 a month\n"
         "Interest over the whole term 0.00\n"
         "Balance after 5 payments 700.00"},
        {{LoanField::Payment, "1000", "12", "1", "", "1"},
         "1,010.00",
         "Loan of 1,000.00 at 12% a year for 1 month\n"
         "Payment 1,010.00 a month\n"
         "Interest over the whole term 10.00\n"
         "Balance after 1 payment 0.00"},
        {{LoanField::Rate, "200000", "", "360", "1199.10", "0"},
         "6",
         "Loan of 200,000.00 at 6% a year for 360 months (30 years)\n"
         "Payment 1,199.10 a month\n"
         "Interest over the whole term 231,676.00\n"
         "Balance after 0 payments 200,000.00"},
        {{LoanField::Rate, "1200", "", "12", "100", ""},
         "0",
         "Loan of 1,200.00 at 0% a year for 12 months (1 year)\n"
         "Payment 100.00 a month\n"
         "Interest over the whole term 0.00"},
        {{LoanField::Term, "1000", "12", "", "300", "3"},
         "4",
         "Loan of 1,000.00 at 12% a year for 4 months\n"
         "Payment 300.00 a month, the last one 122.48\n"
         "Interest over the whole term 22.48\n"
         "Balance after 3 payments 121.27"},
        {{LoanField::Term, "1200", "0", "", "100", "12"},
         "12",
         "Loan of 1,200.00 at 0% a year for 12 months (1 year)\n"
         "Payment 100.00 a month\n"
         "Interest over the whole term 0.00\n"
         "Balance after 12 payments 0.00"},
        {{LoanField::Term, "500", "6", "", "10000", ""},
         "1",
         "Loan of 500.00 at 6% a year for 1 month\n"
         "Payment 10,000.00 a month, the last one 502.50\n"
         "Interest over the whole term 2.50"},
        {{LoanField::Payment, "18000", "5", "18", "", ""},
         "1,040.05",
         "Loan of 18,000.00 at 5% a year for 18 months (1 year and 6 months)\n"
         "Payment 1,040.05 a month\n"
         "Interest over the whole term 720.89"},
    };
    for (const Case& one : cases) {
        const auto answer = WorkOutLoan(one.entries);
        EXPECT_EQ(FoundText(answer, one.entries.find), one.found) << one.text;
        EXPECT_EQ(Describe(answer), one.text);
    }
}

TEST(LoanSum, RefusesWhatNoLoanCanBe) {
    constexpr const char* kAmount = "Enter the amount of the loan, more than 0.";
    constexpr const char* kRate = "Enter the rate as percent a year, from 0 to 100.";
    constexpr const char* kTerm = "Enter the term in whole months, from 1 to 1,200.";
    constexpr const char* kPayment = "Enter the payment a month, more than 0.";
    const auto payment = LoanField::Payment;
    struct Refusal {
        LoanEntries entries;
        LoanField field;
        const char* text;
    };
    const Refusal cases[] = {
        {{payment, "", "6", "360", "", ""}, LoanField::Amount, kAmount},
        {{payment, "0", "6", "360", "", ""}, LoanField::Amount, kAmount},
        {{payment, "-5", "6", "360", "", ""}, LoanField::Amount, kAmount},
        {{payment, "abc", "6", "360", "", ""}, LoanField::Amount, "\"a\" can't be used in a sum."},
        {{payment, "1/0", "6", "360", "", ""},
         LoanField::Amount,
         "A number can't be divided by zero."},
        {{payment, "1000", " ", "360", "", ""}, LoanField::Rate, kRate},
        {{payment, "1000", "%", "360", "", ""}, LoanField::Rate, kRate},
        {{payment, "1000", "-1", "360", "", ""}, LoanField::Rate, kRate},
        {{payment, "1000", "101", "360", "", ""}, LoanField::Rate, kRate},
        {{payment, "1000", "6", "", "", ""}, LoanField::Term, kTerm},
        {{payment, "1000", "6", "0", "", ""}, LoanField::Term, kTerm},
        {{payment, "1000", "6", "12.5", "", ""}, LoanField::Term, kTerm},
        {{payment, "1000", "6", "1201", "", ""}, LoanField::Term, kTerm},
        {{LoanField::Term, "1000", "6", "", "0", ""}, payment, kPayment},
        {{LoanField::Term, "1000", "12", "", "10", ""},
         payment,
         "The payment is too small to pay off the loan."},
        {{LoanField::Term, "1000", "0", "", "0.5", ""},
         payment,
         "With these payments the loan takes more than 1,200 months."},
        {{LoanField::Rate, "1000", "", "10", "99", ""},
         payment,
         "10 payments of 99.00 come to 990.00, which is less than the loan."},
        {{LoanField::Rate, "1000", "", "2", "5000", ""},
         payment,
         "The rate is higher than 100 percent a year."},
        {{payment, "1000", "6", "12", "", "13"}, LoanField::Paid, "The loan has only 12 payments."},
        {{payment, "1000", "6", "12", "", "-1"},
         LoanField::Paid,
         "Enter the number of payments made, from 0 to 1,200."},
    };
    for (const Refusal& one : cases) {
        try {
            WorkOutLoan(one.entries);
            ADD_FAILURE() << one.text;
        } catch (const LoanError& fault) {
            EXPECT_STREQ(fault.what(), one.text);
            EXPECT_EQ(fault.Field(), one.field) << one.text;
        }
    }
}

} // namespace

} // namespace tests
