#include "books/TransactionRules.h"

#include <gtest/gtest.h>

namespace {

TEST(DoubtAboutATransaction, IsASideWithoutANameOrTwiceTheSameParty) {
    using core::kAccount;
    using core::kTenant;
    const auto doubt = [](books::Party from, books::Party to) {
        books::Transaction transaction;
        transaction.debit = std::move(from);
        transaction.credit = std::move(to);
        const std::string text = books::DoubtAbout(transaction);
        return text.substr(0, text.find('.'));
    };
    EXPECT_EQ(doubt({kAccount, 60, "Bank"}, {kAccount, 61, "Bank"}), "");
    EXPECT_EQ(doubt({kAccount, 60, "Bank"}, {kTenant, 60, "Bank"}), "");
    EXPECT_EQ(doubt({kAccount, 0, "Plumber"}, {kAccount, 0, "Painter"}), "");
    EXPECT_EQ(doubt({kAccount, 60, "Bank"}, {kAccount, 60, "River Bank"}),
              "From and To are the same: Bank would pay the money to itself");
    EXPECT_EQ(doubt({kAccount, 0, "plumber "}, {kAccount, 0, "Plumber"}),
              "From and To are the same: plumber  would pay the money to itself");
    EXPECT_EQ(doubt({kAccount, 0, " "}, {kAccount, 60, "Bank"}),
              "From is empty: the transaction doesn't say who pays");
    EXPECT_EQ(doubt({kTenant, 30, ""}, {kAccount, 0, ""}),
              "To is empty: the transaction doesn't say who is paid");
    EXPECT_EQ(doubt({kAccount, 0, ""}, {kAccount, 0, ""}), "From and To are both empty");
}

} // namespace
