// Commands that only read leave the file of the books as it is, byte for byte.

#include <fmt/core.h>

#include "platform/database/Connection.h"
#include "vestrelctl/PaymentBooks.h"

namespace tests {

namespace {

class Reading : public PaymentBooks {
  protected:
    std::string File() const { return (folder_ / "books" / "Vestrel.mdb").string(); }
    std::string Out(const char* name) const { return "'" + (folder_ / name).string() + "'"; }

    /// As books of a version without the tables that were added since.
    void MakeOlder() const {
        platform::Connection books;
        books.Open(File(), platform::OpenMode::ReadWrite);
        books.RunScript("DROP TABLE RentCredit; DROP TABLE LeaseCredit; DROP TABLE TakenBack;");
    }
};

TEST_F(Reading, LeavesOlderBooksAsTheyAre) {
    const std::string onDay = "--today 01/02/2024 " + OnBooks();
    ASSERT_EQ(Run(onDay + "update").status, 0);
    ASSERT_EQ(Run(onDay + "pay 101 --date 01/02/2024").status, 0);
    std::string id = Ask("SELECT IdTransaction FROM Transactions");
    id.pop_back();
    ASSERT_EQ(Run(OnBooks() + "sql -",
                  "INSERT INTO Mortgage (IdMortgage, OrigPV, OrigPer, OrigRate, FirstDue, NextDue) "
                  "VALUES (109, 1200, 12, 0.12, '01/31/2024', '01/31/2024');\n"
                  "UPDATE Building SET PurchDate = '01/01/2020', DeprBasis = 100;\n")
                  .status,
              0);
    MakeOlder();
    const std::string before = ReadFile(File());
    const std::string commands[] = {"alerts",
                                    "credit 101",
                                    "find Brien",
                                    "runs",
                                    "preview --until 03/01/2024",
                                    "pay 101 --amount 5 --preview",
                                    "return-payment " + id + " --preview",
                                    "report 'Rent Roll' --output " + Out("a.txt"),
                                    "merge '" VESTREL_TEST_DATA
                                    "/../../share/Templates/Late Notice.rtf' 2 101 --output " +
                                        Out("a.rtf"),
                                    "sql 'SELECT * FROM Lease'",
                                    "amortize 109",
                                    "depreciation 104",
                                    "export --format csv " + Out("a.csv") + " --account 105",
                                    "export-text " + Out("all.csv"),
                                    "import-text --test " + Out("all.csv"),
                                    "check"};
    for (const std::string& command : commands) {
        for (const char* const how : {"", "--read-only "}) {
            const Outcome outcome = Run(onDay + how + command);
            EXPECT_EQ(outcome.status, 0) << command << ": " << outcome.errors;
            EXPECT_TRUE(ReadFile(File()) == before) << how << command;
        }
    }
    // A command that writes brings them up to this version.
    EXPECT_EQ(Run(onDay + "credit 101 --settle on").status, 0);
    EXPECT_FALSE(ReadFile(File()) == before);
}

TEST_F(Vestrelctl, NamesAStepOfTheUpdateThatFails) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    platform::Connection books;
    books.Open(folder_ / "books/Vestrel.mdb");
    books.RunScript("DROP TABLE Mortgage");
    books.Close();
    EXPECT_NE(Run(OnBooks() + "update").output.find("Not updated: Mortgages: "), std::string::npos);
}

} // namespace

} // namespace tests
