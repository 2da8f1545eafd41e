#include "exchange/CheckBooks.h"

#include "core/CoreFixture.h"
#include "exchange/Stops.h"

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
    const struct {
        const char* statement;
        Severity severity;
        const char* what;
    } cases[] = {
        {"INSERT INTO Tenant (IdTenant) VALUES (3)", Severity::Fault,
         "The identifier 3 belongs to several records: Tenant, Tenant"},
        {"INSERT INTO Room (IdRoom, IdUnit) VALUES (5, 2)", Severity::Fault,
         "The identifier 5 belongs to several records: Account, Room"},
        {"INSERT INTO Account (ShowAs) VALUES ('x')", Severity::Fault,
         "1 record without an identifier: Account"},
        {"UPDATE Configuration SET NextId = 22", Severity::Fault,
         "New records would get identifiers that are in use: the next one is 22, the highest in "
         "use is 22"},
        {"UPDATE Transactions SET IdTenant = 77 WHERE IdTransaction = 22", Severity::Note,
         "1 record of Transactions whose IdTenant names no Tenant: 22"},
        {"DELETE * FROM Configuration", Severity::Fault,
         "The settings are missing, and with them the counter of identifiers"},
        {"INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, Class, Amount, Flags) "
         "VALUES (30, 4, NULL, 2, 0, 2)",
         Severity::Fault, "1 rent payment without a transaction: 30"},
        {"INSERT INTO Configuration (NextId) VALUES (100)", Severity::Fault,
         "The settings have 2 rows instead of one"},
        {"INSERT INTO Room (IdRoom, IdUnit) VALUES (30, 77)", Severity::Fault,
         "1 record of Room whose IdUnit names no Unit: 30"},
        {"INSERT INTO WorkOrder (IdWorkOrder, IdVendor) VALUES (30, 77)", Severity::Note,
         "1 record of WorkOrder whose IdVendor names no Account: 30"},
        {"INSERT INTO AutoEvent (IdAutoEvent, DebitType, DebitId) VALUES (30, 5, 5)",
         Severity::Fault, "1 record of AutoEvent whose DebitId names no Tenant: 30"},
        {"UPDATE Lease SET RentDue = 499.9999", Severity::Fault,
         "The lease 4 has 499.9999 as RentDue, but its ledger adds up to 500.0000"},
        {"INSERT INTO MortgageLog (IdMortgageLog, Principal, PayDown, Interest, Other, Total) "
         "VALUES (30, 1, 2, 3, 4, 11)",
         Severity::Fault, "1 ledger row of a mortgage whose total isn't the sum of its parts: 30"},
        {"INSERT INTO Transactions (IdTransaction, Class, Flags, Amount) VALUES (30, 1, 0, 5)",
         Severity::Fault, "1 transaction of a lease without a row in its ledger: 30"},
        {"INSERT INTO Transactions (IdTransaction, Class, Flags) VALUES (30, 5, 0)",
         Severity::Fault, "1 transaction of a mortgage without a row in its ledger: 30"},
        {"INSERT INTO MortgageLog (IdMortgageLog, Flags, Principal, PayDown, Interest, Other, "
         "Total) VALUES (30, 2, 0, 0, 0, -5, -5)",
         Severity::Fault, "1 mortgage payment without a transaction: 30"},
        {"INSERT INTO RentCredit (IdRentLog, IdOrigin, IdLease) VALUES (6, 77, 4)", Severity::Note,
         "1 record of RentCredit whose IdOrigin names no RentLog: 6"},
        {"INSERT INTO LeaseCredit (IdLease, SettleCharges) VALUES (77, True)", Severity::Note,
         "1 record of LeaseCredit whose IdLease names no Lease: 77"},
        {"INSERT INTO TakenBack (RecordKind, IdRecord, IdRow) VALUES (3, 77, 6)", Severity::Note,
         "1 record of TakenBack whose IdRecord names no Mortgage: 6"},
        // The payment of 100 is credited with itself, against a refund of 40.
        {"INSERT INTO RentCredit (IdRentLog, IdOrigin, IdLease) VALUES (8, 9, 4)", Severity::Fault,
         "1 amount paid ahead of which more was credited than was paid: 9"},
    };
    for (const auto& each : cases) {
        const platform::UnitOfWork takenBack(core::App().Connection);
        Run(each.statement);
        const std::vector<Finding> findings = Check();
        ASSERT_EQ(findings.size(), 1U) << each.statement;
        EXPECT_EQ(findings.front().what, each.what);
        EXPECT_EQ(findings.front().severity, each.severity);
        EXPECT_FALSE(findings.front().advice.empty());
        EXPECT_EQ(HasFaults(findings), each.severity == Severity::Fault);
    }
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
