#include "books/TransactionRules.h"

#include <gtest/gtest.h>

namespace {

TEST(DoubtAboutATransaction, IsASideWithoutANameOrTwiceTheSameParty) {
    const auto doubt = [](books::Party from, books::Party to) {
        books::Transaction transaction;
        transaction.debit = std::move(from);
        transaction.credit = std::move(to);
        const std::string text = books::DoubtAbout(transaction);
        return text.substr(0, text.find('.'));
    };
    EXPECT_EQ(doubt({1, 60, "Bank"}, {1, 61, "Bank"}), "");
    EXPECT_EQ(doubt({1, 60, "Bank"}, {5, 60, "Bank"}), "");
    EXPECT_EQ(doubt({1, 0, "Plumber"}, {1, 0, "Painter"}), "");
    EXPECT_EQ(doubt({1, 60, "Bank"}, {1, 60, "River Bank"}),
              "From and To are the same: Bank would pay the money to itself");
    EXPECT_EQ(doubt({1, 0, "plumber "}, {1, 0, "Plumber"}),
              "From and To are the same: plumber  would pay the money to itself");
    EXPECT_EQ(doubt({1, 0, " "}, {1, 60, "Bank"}),
              "From is empty: the transaction doesn't say who pays");
    EXPECT_EQ(doubt({5, 30, ""}, {1, 0, ""}),
              "To is empty: the transaction doesn't say who is paid");
    EXPECT_EQ(doubt({1, 0, ""}, {1, 0, ""}), "From and To are both empty");
}

} // namespace
