#include "sumdesk/LoanSum.h"

#include <gtest/gtest.h>

#include "support/Cases.h"

namespace tests {

namespace {

using sumdesk::Describe;
using sumdesk::FoundText;
using sumdesk::LoanEntries;
using sumdesk::LoanError;
using sumdesk::LoanField;
using sumdesk::WorkOutLoan;
using support::Case;
using support::ForEachCase;

constexpr const char* kCases = VESTREL_TEST_DATA "/loans.cases";

LoanField FieldOf(const std::string& name) {
    return name == "Amount"    ? LoanField::Amount
           : name == "Rate"    ? LoanField::Rate
           : name == "Term"    ? LoanField::Term
           : name == "Payment" ? LoanField::Payment
                               : LoanField::Paid;
}

LoanEntries EntriesOf(const Case& each) {
    return {FieldOf(each["find"]), each["amount"],  each["rate"],
            each["term"],          each["payment"], each["paid"]};
}

TEST(LoanSum, FindsPaymentRateAndTerm) {
    ForEachCase(kCases, "loans", [](const Case& each) {
        const LoanEntries entries = EntriesOf(each);
        const auto answer = WorkOutLoan(entries);
        EXPECT_EQ(FoundText(answer, entries.find), each["found"]);
        EXPECT_EQ(Describe(answer), each["text"]);
    });
}

TEST(LoanSum, RefusesWhatNoLoanCanBe) {
    ForEachCase(kCases, "refusals", [](const Case& each) {
        try {
            WorkOutLoan(EntriesOf(each));
            ADD_FAILURE() << "there is such a loan";
        } catch (const LoanError& fault) {
            EXPECT_EQ(fault.what(), each["text"]);
            EXPECT_EQ(fault.Field(), FieldOf(each["field"]));
        }
    });
}

} // namespace

} // namespace tests
