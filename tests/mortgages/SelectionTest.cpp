#include <gtest/gtest.h>

#include "mortgages/MortgageFixture.h"
#include "mortgages/MortgagePayment.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using mortgages::ChargeChoice;
using mortgages::MortgagePayment;
using platform::Currency;
using platform::Date;

class Selection : public testing::Test {
  protected:
    support::TemporaryFolder folder_;
    BooksWithOneMortgage books_{folder_.Path() / "db"};
};

TEST_F(Selection, SelectsBasePaymentsWithoutGaps) {
    SetMortgageField("EscrowAmount", "250");
    RunMortgagesOn(Date(2024, 3, 20));
    MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    ASSERT_EQ(payment.charges.size(), 6U); // base and escrow, three times
    EXPECT_EQ(Select(payment, 4, true), "Previous base payments must be selected");
    EXPECT_FALSE(payment.charges[4].selected);
    EXPECT_EQ(Select(payment, 3, true), ""); // an escrow row, free of the rule
    EXPECT_EQ(Select(payment, 0, true), "");
    EXPECT_EQ(Select(payment, 2, true), "");
    EXPECT_EQ(Select(payment, 0, false), "Following base payments must not be selected");
    EXPECT_TRUE(payment.charges[0].selected);
    SelectAll(payment, ChargeChoice::BasePayments, false);
    EXPECT_EQ(payment.PaidAmount(), Currency::FromUnits(250));
    SelectAll(payment, ChargeChoice::All, true);
    EXPECT_EQ(payment.PaidAmount(), Currency::FromScaled(3 * (5995505 + 2500000)));
}

} // namespace

} // namespace tests
