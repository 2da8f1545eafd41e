#include "books/PostTransaction.h"

#include <gtest/gtest.h>

#include "books/BooksFixture.h"
#include "books/TransactionListeners.h"
#include "core/NotifyAll.h"

namespace {

class PostTransaction : public tests::BooksTest {};

TEST_F(PostTransaction, IsAnnouncedByTheLargerWorkOfWhichItIsAPart) {
    int told = 0;
    const core::NotifyToken token([&](core::RecordKind, std::int16_t, std::int32_t) { ++told; });
    {
        const platform::UnitOfWork rolledBack(core::App().Connection);
        books::PostTransaction(Payment());
    }
    EXPECT_EQ(told, 0);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0");
}

TEST_F(PostTransaction, TellsWhoAskedWithTheRowWritten) {
    static std::string told;
    static bool refuses = false;
    books::RegisterTransactionListener([](std::int32_t id, const books::Transaction& posted) {
        told += std::to_string(id) + " " + posted.description + " " +
                Ask("SELECT Count(*) FROM Transactions") + ";";
        if (refuses) throw platform::Error("no");
    });
    AddTriggered(101, 1, 60, "Rent Payment");
    books::PostTransaction(Payment());
    EXPECT_EQ(told, "1001 Event 101 1;1000 May 2;");
    refuses = true;
    EXPECT_THROW(books::PostTransaction(Payment(), books::Triggers::Skip), platform::Error);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "2") << "it stands or falls with the row";
    refuses = false;
}

} // namespace
