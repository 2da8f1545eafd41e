#include "exchange/CheckBooks.h"

#include "core/CoreFixture.h"
#include "exchange/Stops.h"
#include "support/Cases.h"

namespace {

using namespace tests;
using namespace exchange;

class CheckBooksTest : public CoreBooks {
  protected:
    static std::vector<Finding> Check() { return CheckBooks(core::App().Connection, {}); }

    /// Books that are in order.
    static void MakeBooks() {
        Run("INSERT INTO Configuration (NextId) VALUES (100)");
        Run("INSERT INTO Building (IdBuilding) VALUES (1)");
        Run("INSERT INTO Unit (IdUnit, IdBuilding) VALUES (2, 1)");
        Run("INSERT INTO Tenant (IdTenant) VALUES (3)");
        Run("INSERT INTO Lease (IdLease, IdUnit, IdTenant, RentDue, DepositTotal, DepositDue, "
            "DepositPaid, DepositBalance, DepositRefunded) "
            "VALUES (4, 2, 3, 500, 300, 200, 100, 60, 40)");
        Run("INSERT INTO Account (IdAccount) VALUES (5)");
        const auto log = [](int id, int transaction, int kind, const char* amount, int flags) {
            core::App().Connection.Execute(
                "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, Class, Amount, Flags) "
                "VALUES (?, 4, ?, ?, ?, ?)",
                {id, transaction, kind, amount, flags});
        };
        log(6, 0, 1, "500", 1);
        log(7, 0, 3, "300", 0);
        log(8, 20, 3, "-100", 2);
        log(9, 21, 3, "40", 3);
        Run("INSERT INTO Transactions (IdTransaction, Class, Flags, IdLease, Amount, DebitType, "
            "DebitId, CreditType, CreditId) VALUES (20, 3, 0, 4, 100, 5, 3, 1, 5)");
        Run("INSERT INTO Transactions (IdTransaction, Class, Flags, IdLease, Amount, DebitType, "
            "DebitId, CreditType, CreditId) VALUES (21, 3, 3, 4, 40, 1, 5, 5, 3)");
    }
};

TEST_F(CheckBooksTest, FindsEachFaultByItself) {
    MakeBooks();
    // A subsidy, whose payer is an account.
    Run("INSERT INTO Transactions (IdTransaction, Class, Flags, IdLease, IdTenant, Amount, "
        "DebitType, DebitId, CreditType, CreditId) VALUES (22, 2, 0, 4, 5, 40, 1, 5, 1, 5)");
    Run("INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, Class, Amount, Flags) "
        "VALUES (10, 4, 22, 2, 40, 2)");
    ASSERT_EQ(CheckSummary(Check()), "Everything is in order.");
    support::ForEachCase(VESTREL_TEST_DATA "/check.cases", "faults", [](const support::Case& each) {
        const platform::UnitOfWork takenBack(core::App().Connection);
        Run(each["statement"]);
        const std::vector<Finding> findings = Check();
        ASSERT_EQ(findings.size(), 1U);
        EXPECT_EQ(findings.front().what, each["what"]);
        const bool isFault = each["severity"] == "Fault";
        EXPECT_EQ(findings.front().severity, isFault ? Severity::Fault : Severity::Note);
        EXPECT_FALSE(findings.front().advice.empty());
        EXPECT_EQ(HasFaults(findings), isFault);
    });
    // A payment from credit, all of whose charges are open again.
    Run("INSERT INTO Transactions (IdTransaction, Class, Flags, Amount) VALUES (31, 1, 0, 0)");
    EXPECT_TRUE(Check().empty());
    core::App().Connection.RunScript(
        "DROP TABLE RentCredit; DROP TABLE LeaseCredit; DROP TABLE TakenBack;");
    EXPECT_EQ(CheckSummary(Check()), "Everything is in order.");
    // A payment that lost its transaction is an open amount of the ledger besides.
    Run("UPDATE RentLog SET IdTransaction = 0 WHERE IdRentLog = 8");
    Run("DELETE * FROM Transactions WHERE IdTransaction = 20");
    const std::vector<Finding> findings = Check();
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().what, "1 rent payment without a transaction: 8");
}

TEST_F(CheckBooksTest, FindsADamagedFile) {
    MakeBooks();
    platform::UnitOfWork unit(core::App().Connection);
    for (int i = 0; i < 2000; ++i)
        Run("INSERT INTO TransCategory (Category, IEN) VALUES ('A category of its own', 1)");
    unit.Commit();
    core::App().Connection.Close();
    std::string file = ReadText(PathTo("Vestrel.mdb"));
    const std::size_t end = file.size() - 8192;
    file.replace(end, 3000, std::string(3000, '\x13'));
    WriteText(PathTo("Vestrel.mdb"), file);
    core::App().Connection.Open(PathTo("Vestrel.mdb"));
    const std::vector<Finding> findings = Check();
    ASSERT_FALSE(findings.empty());
    EXPECT_TRUE(findings.front().what.starts_with("The database file is damaged: "));
}

} // namespace
