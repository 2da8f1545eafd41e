#include <fmt/core.h>

#include "vestrelctl/PaymentBooks.h"

namespace tests {

namespace {

using PostAndPay = PaymentBooks;

TEST_F(PostAndPay, LiveThroughAYearOfRent) {
    for (int month = 1; month <= 12; ++month) {
        // In March the rent comes late, with the fee that this costs.
        const std::string today =
            fmt::format("--today {:02}/{:02}/2024 ", month, month == 3 ? 9 : 2);
        ASSERT_EQ(Run(today + OnBooks() + "update").status, 0);
        const Outcome paid = Run(today + OnBooks() + "pay 101");
        EXPECT_EQ(paid.status, 0) << paid.errors;
        EXPECT_NE(
            paid.output.find(month == 3 ? ": 2 charges, 1025.0000\n" : ": 1 charge, 1000.0000\n"),
            std::string::npos)
            << paid.output;
    }
    EXPECT_EQ(Ask("SELECT Count(*), Sum(Amount) FROM Transactions WHERE Class = 1 AND "
                  "DebitId = 103 AND CreditId = 105"),
              "12,12025.0000\n");
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE IdTransaction = 0"), "0\n");
    EXPECT_EQ(Ask("SELECT DateNextDue, RentStatus, RentDue FROM Lease"),
              "\"01/01/2025\",\"OK\",0.0000\n");
    const Outcome again = Run("--today 12/03/2024 " + OnBooks() + "pay 101");
    EXPECT_EQ(again.status, 1);
    EXPECT_EQ(again.errors, "vestrelctl: There is no open charge to pay\n");
}

TEST_F(PostAndPay, PayAsTheyAreTold) {
    Run("--today 01/01/2024 " + OnBooks() + "update");
    const Outcome paid = Run("--today 01/15/2024 " + OnBooks() +
                             "pay 101 --class 1 --date 1/5/2024 --to 107 --check 0042");
    EXPECT_EQ(paid.status, 0) << paid.errors;
    EXPECT_EQ(Ask("SELECT DateEffective, CreditId, CreditDesc, CheckNum, TaxCategory FROM "
                  "Transactions"),
              "\"01/05/2024\",107,\"Second Bank\",\"0042\",\"Rent Payment\"\n");
    EXPECT_EQ(Ask("SELECT RentAccount FROM Lease"), "107\n");
}

TEST_F(PostAndPay, PostWhatIsSaidAndWhatItTriggers) {
    Run(OnBooks() +
        "sql \"INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, EventAction, TriggerType, "
        "TriggerID, TriggerTaxCategory, DebitType, DebitId, CreditType, CreditId, Amount, "
        "TaxCategory, Description) VALUES (7, 2, True, 1, 1, 106, 'repairs', 1, 105, 1, 107, 5, "
        "'Supplies', 'Fee')\"");
    const Outcome posted =
        Run("--today 02/10/2024 " + OnBooks() +
            "post --debit account:105 --credit account:106 --amount 1,250.5 --date 2/1/2024 "
            "--category Repairs --check 17 --description \"Owner's pump\" --building 104");
    EXPECT_EQ(posted.status, 0) << posted.errors;
    EXPECT_EQ(posted.output,
              "Transaction 1000: Repairs, First Bank to Plumber, 02/01/2024, 1250.5000\n"
              "Transaction 1001: Supplies, First Bank to Second Bank, 02/10/2024, 5.0000\n");
    EXPECT_EQ(Ask("SELECT IEN, CheckNum, Description, IdBuilding, Class FROM Transactions "
                  "WHERE IdTransaction = 1000"),
              "1,\"17\",\"Owner's pump\",104,0\n");
}

TEST_F(PostAndPay, PostADepositsRefundIntoTheLedgerToo) {
    const Outcome posted =
        Run("--today 02/10/2024 " + OnBooks() +
            "post --debit account:105 --credit tenant:103 --amount 300 --lease 101 --tenant 103 "
            "--category 'Deposit Refund|2' --class 3 --flags 3");
    EXPECT_EQ(posted.status, 0) << posted.errors;
    EXPECT_EQ(Ask("SELECT IdLease, IdTransaction, DatePosted, Class, Category, Amount, Flags "
                  "FROM RentLog"),
              "101,1000,\"02/10/2024\",3,\"Deposit Refund\",300.0000,3\n");
}

TEST_F(PostAndPay, AreDoneByEventsBeforeTheLeasesAreCharged) {
    const auto event = [](int id, int period, const char* lastRun) {
        return fmt::format(
            "INSERT INTO AutoEvent (IdAutoEvent, EventType, Description, Enabled, "
            "EventAction, IntervalType, IntervalPeriod, LastRun, DebitType, "
            "DebitId, CreditType, CreditId, Amount, TaxCategory) VALUES ({}, 1, "
            "'Fee {}', True, 1, 3, {}, '{}', 1, 105, 1, 107, 5, 'Supplies');\n",
            id, id, period, lastRun);
    };
    Run(OnBooks() + "sql -", event(7, 1, "11/30/2023") + event(8, 0, ""));
    const Outcome outcome = Run("--today 01/31/2024 " + OnBooks() + "update");
    EXPECT_EQ(outcome.output,
              "Supplies, Fee 7, 12/30/2023, 5.0000\n"
              "Not updated: Auto Event Fee 8: It never runs: its interval period is 0\n"
              "Supplies, Fee 7, 01/30/2024, 5.0000\n"
              "Rent, O'Brien, 12 Elm Street A, 01/01/2024, 1000.0000\n"
              "Late Fee, O'Brien, 12 Elm Street A, 01/04/2024, 25.0000\n"
              "4 rows posted.\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "vestrelctl: 1 record could not be brought up to date\n");
}

TEST_F(PostAndPay, RefuseWhatMakesNoSense) {
    Run("--today 01/02/2024 " + OnBooks() + "update");
    const std::string post = "post --debit account:105 --credit ";
    const std::string rest = " --amount 1 --category Repairs";
    struct Case {
        std::string words;
        int status;
        std::string errors;
    };
    for (const auto& [words, status, errors] : {
             Case{post + "account:106 --category Repairs --amount 1x", 1,
                  "--amount: '1x' is not an amount\n"},
             {post + "account:999" + rest, 1, "--credit: there is no account 999\n"},
             {post + "bank:105" + rest, 1,
              "--credit: 'bank:105' is not account:ID, tenant:ID or name:TEXT\n"},
             {post + "account:" + rest, 1,
              "--credit: 'account:' is not account:ID, tenant:ID or name:TEXT\n"},
             {post + "name:Joe --amount 1 --category Fun", 1,
              "--category: there is no category 'Fun'; give its class: 'Fun|0' for income, 1 for "
              "expense, 2 for neither\n"},
             {post + "name:Joe --amount 1", 2, "--category is required"},
             {post + "name:Joe --amount 1 --category ' '", 1, "--category: name a category\n"},
             {post + "name:Joe --amount 1 --category 'Fun|7'", 1, "--category: 'Fun|7' ends in no"},
             {post + "name:Joe --lease 999" + rest, 1, "--lease: there is no lease 999\n"},
             {post + "name:Joe --unit 101" + rest, 1, "--unit: there is no unit 101\n"},
             {post + "name:Joe --class 1" + rest, 2, "--class: 1 not in {0,3}"},
             {post + "name:Joe --class 3 --lease 101" + rest, 1, "--flags: class 3 needs 3 "},
             {post + "name:Joe --flags 3 --lease 101" + rest, 1, "--flags: only a transaction of "},
             {post + "name:Joe --class 3 --flags 4" + rest, 1, "--lease: class 3 needs the lease "},
             {post + "name:Joe --description --check=4" + rest, 2,
              "--description: a value is missing before --check"},
             {post + "name:Joe --date=" + rest, 2, "--date: '' is not a valid date (mm/dd/yyyy)"},
             {"pay 999", 1, "There is no lease 999\n"},
             {"pay 101 --to 103", 1, "--to: there is no account 103\n"},
             {"pay 101 --to 0", 1, "--to: there is no account 0\n"},
             {"pay 101 --from tenant:105", 1, "--from: there is no tenant 105\n"},
             {"pay 101 --class 4", 2, "--class"},
             {"pay 101 --date 02/30/2024", 2, "--date"},
             {"pay 101 --to= --date=01/02/2024", 2, "--to"},
             {"pay", 2, "lease is required"},
             {"post --debit name:A --credit name:B", 2, "--amount"},
         }) {
        const Outcome outcome = Run("--today 01/02/2024 " + OnBooks() + words);
        EXPECT_EQ(outcome.status, status) << words;
        EXPECT_TRUE(outcome.errors.starts_with("vestrelctl: " + errors))
            << words << ": " << outcome.errors;
    }
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0\n");
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog"), "1\n");
}

TEST_F(PostAndPay, AskForThePartiesThatALeaseDoesNotName) {
    Run("--today 01/02/2024 " + OnBooks() + "update");
    Run(OnBooks() + "sql 'UPDATE Lease SET RentAccount = 0, IdTenant = 0'");
    const std::string pay = "--today 01/02/2024 " + OnBooks() + "pay 101 ";
    EXPECT_EQ(Run(pay).errors,
              "vestrelctl: --from: lease 101 doesn't say who pays; name the payor\n");
    EXPECT_EQ(Run(pay + "--from 'name:Joe Payor'").errors,
              "vestrelctl: --to: lease 101 has no account that receives its rent; name one\n");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0\n");
    // An empty number of the check doesn't take the next option for its value.
    const Outcome paid = Run(pay + "--from 'name:Joe Payor' --to 105 --check= --date=11/01/2024");
    EXPECT_EQ(paid.status, 0) << paid.errors;
    EXPECT_EQ(Ask("SELECT DateEffective, CheckNum, DebitId, DebitDesc FROM Transactions"),
              "\"11/01/2024\",\"\",0,\"Joe Payor\"\n");
}

TEST_F(PostAndPay, BookNothingWhenTheirOutputIsLost) {
    Run("--today 01/02/2024 " + OnBooks() + "update");
    for (const char* work :
         {"pay 101", "post --debit name:A --credit name:B --amount 1 --category Repairs"}) {
        const Outcome lost = Run(OnBooks() + work + " >/dev/full 2>/dev/null; exit $? #");
        EXPECT_EQ(lost.status, 1) << work;
    }
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0\n");
}

} // namespace

} // namespace tests
