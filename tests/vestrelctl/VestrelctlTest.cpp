#include "vestrelctl/VestrelctlFixture.h"

#include <fstream>

#include "platform/database/Connection.h"

namespace tests {

namespace {

TEST_F(Vestrelctl, PrintsSelectsAsCsv) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    const Outcome outcome = Run(OnBooks() +
                                "sql \"SELECT 'a, ''b''' AS T, NULL AS N, #2/29/2024# AS D, "
                                "CCur(-1.5) AS M, True AS F, 0.1 AS X, 7 AS [No. #]\"");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.output,
              "\"T\",\"N\",\"D\",\"M\",\"F\",\"X\",\"No. #\"\n"
              "\"a, 'b'\",,02/29/2024,-1.5000,True,0.1,7\n");
}

TEST_F(Vestrelctl, RunsStatementsUpToTheFirstThatFails) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    const Outcome outcome =
        Run(OnBooks() + "sql -",
            "INSERT INTO Account (IdAccount, ShowAs)\nVALUES (1, 'O''Brien; Sons');\n"
            "SELECT ShowAs FROM Account;\nSELECT Nothing\nFROM Account;\nDELETE * FROM Account;\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "1\n\n\"ShowAs\"\n\"O'Brien; Sons\"\n");
    EXPECT_EQ(outcome.errors,
              "vestrelctl: statement 3: Unknown field 'Nothing' (line 1, column 8)\n");
    EXPECT_EQ(Run(OnBooks() + "sql 'SELECT Count(*) AS N FROM Account'").output, "\"N\"\n1\n");
}

TEST_F(Vestrelctl, PrintsDoublesByTheFewestDigitsThatNameThem) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    EXPECT_EQ(Run(OnBooks() + "sql \"SELECT 1E21 AS A, 0.0000001 AS B, 3.0 AS C, 1/3 AS D, "
                              "123456789.125 AS E\"")
                  .output,
              "\"A\",\"B\",\"C\",\"D\",\"E\"\n"
              "1E+21,0.0000001,3,0.3333333333333333,123456789.125\n");
}

TEST_F(Vestrelctl, FindsRecordsByTheirWords) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    ASSERT_EQ(
        Run(OnBooks() + "sql -",
            "INSERT INTO Tenant (IdTenant, LastName, FirstName) VALUES (5, 'O''Brien', 'Al');\n"
            "INSERT INTO Transactions (IdTransaction, DebitDesc, CreditDesc, Amount, "
            "DateEffective) VALUES (9, 'O''Brien, Al', 'Bank', 1050, '05/01/2024');\n")
            .status,
        0);
    const std::string head = "\"Group\",\"RecordKind\",\"RecordId\",\"Title\",\"Detail\"\n";
    const std::string tenant = "\"Tenants\",5,5,\"O'Brien, Al\",\"\"\n";
    const std::string paid =
        "\"Transactions\",10,9,\"O'Brien, Al to Bank\",\"05/01/2024, 1,050.00\"\n";
    const auto index = folder_ / "books" / "Vestrel.search";
    EXPECT_EQ(Run("--read-only " + OnBooks() + "find al").output, head + tenant + paid);
    EXPECT_FALSE(std::filesystem::exists(index));
    EXPECT_EQ(Run(OnBooks() + "find \"o'brien\" 1050").output, head + paid);
    EXPECT_TRUE(std::filesystem::exists(index));
    ASSERT_EQ(Run(OnBooks() + "sql \"DELETE FROM Tenant\"").status, 0);
    const Outcome outcome = Run(OnBooks() + "find al");
    EXPECT_EQ(outcome.output, head + paid);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(Run(OnBooks() + "find '\"*('").output, head);
    EXPECT_EQ(Run(OnBooks() + "find").status, 2);
}

TEST_F(Vestrelctl, TakesStatementsAsEditorsWriteThem) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    const std::string one = "\"N\"\n1\n";
    const std::string both = one + "\n\"N\"\n2\n";
    const struct {
        std::string input;
        std::string output;
    } cases[] = {
        {"", ""},
        {"\n \n", ""},
        {"SELECT 1 AS N", one},
        {"SELECT 1 AS N;\r\nSELECT 2 AS N;\r\n", both},
        {"\xEF\xBB\xBFSELECT 1 AS N;\n\n\nSELECT\n2 AS N", both},
        {"SELECT\n1 AS N  ;  \nSELECT 2 AS N;", both},
    };
    for (const auto& each : cases) {
        const Outcome outcome = Run(OnBooks() + "sql -", each.input);
        EXPECT_EQ(outcome.status, 0) << each.input << outcome.errors;
        EXPECT_EQ(outcome.output, each.output) << each.input;
    }
}

TEST_F(Vestrelctl, PrintsANullThatIsAloneInItsRowSoThatNoResultHoldsAnEmptyLine) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    EXPECT_EQ(Run(OnBooks() + "sql -", "SELECT NULL AS N;\nSELECT NULL AS A, '' AS B;\n").output,
              "\"N\"\nNULL\n\n\"A\",\"B\"\n,\"\"\n");
}

TEST_F(Vestrelctl, ChangesNothingWhenItsOutputIsLost) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    for (const char* work :
         {"sql 'SELECT 1'", "sql \"INSERT INTO Users (IdUser) VALUES (1)\"", "update", "alerts"}) {
        const Outcome outcome = Run(OnBooks() + work + " >/dev/full 2>/dev/null; exit $? #");
        EXPECT_EQ(outcome.status, 1) << work;
    }
    EXPECT_EQ(Run(OnBooks() + "sql 'SELECT Count(*) AS N FROM Users'").output, "\"N\"\n0\n");
}

TEST_F(Vestrelctl, ReadsBooksThatCannotBeWrittenTo) {
    ASSERT_EQ(Run("--today 05/17/2024 init --sample --units 2 " + Books()).status, 0);
    const std::string before = Run(OnBooks() + "alerts").output;
    const struct {
        const char* work;
        int status;
        std::string_view fault;
    } cases[] = {
        {"alerts", 0, ""},
        {"sql 'SELECT Count(*) FROM Lease'", 0, ""},
        {"sql 'DELETE * FROM Lease'", 1, "vestrelctl: These books can only be read.\n"},
        {"update", 1, "vestrelctl: --read-only: this command writes to the books\n"},
        {"pay 1", 1, "vestrelctl: --read-only: this command writes to the books\n"},
    };
    for (const auto& [work, status, fault] : cases) {
        const Outcome outcome = Run("--read-only " + OnBooks() + work);
        EXPECT_EQ(outcome.status, status) << work;
        EXPECT_EQ(outcome.errors, fault);
    }
    EXPECT_EQ(Run("--read-only --today 05/17/2024 " + OnBooks() + "alerts").output,
              Run("--today 05/17/2024 " + OnBooks() + "alerts").output);
    EXPECT_FALSE(before.empty());
}

TEST_F(Vestrelctl, LeavesNothingUnderTheFinalNameWhenItIsKilled) {
    // Killed when the sample has lived for a part of its two years.
    Run("init --sample --units 24 " + Books() + " & sleep 0.4; kill -9 $!; wait; exit 0 #");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "books" / "Vestrel.mdb"));
    EXPECT_EQ(Run("init --sample --units 2 " + Books()).status, 0);
    EXPECT_EQ(Run(OnBooks() + "sql 'SELECT Count(*) AS N FROM Unit'").output, "\"N\"\n2\n");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "books" / "Vestrel.mdb.new"));
}

TEST_F(Vestrelctl, SaysItsVersion) {
    EXPECT_TRUE(Run("--version").output.starts_with("vestrelctl 1."));
}

TEST_F(Vestrelctl, RefusesWhatItCannotDoInOneLine) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    std::filesystem::create_directory(folder_ / "junk");
    std::ofstream(folder_ / "junk" / "Vestrel.mdb") << std::string(5000, 'x');
    std::ofstream(folder_ / "junk" / "Version") << 9;
    std::filesystem::create_directory(folder_ / "old");
    std::ofstream(folder_ / "old" / "Vestrel.mdb") << "x";
    std::ofstream(folder_ / "old" / "Version") << 8;
    const auto at = [&](const char* name) { return "--data '" + (folder_ / name).string() + "' "; };
    std::ofstream(folder_ / "file") << "x";
    const struct {
        std::string words;
        int status;
        std::string_view fault;
    } cases[] = {
        {"init " + Books(), 1, "Vestrel.mdb already exists"},
        {"init --sample --units 2 " + Books(), 1, "Vestrel.mdb already exists"},
        {"init '" + (folder_ / "file").string() + "'", 1, "file is not a directory"},
        {at("junk") + "update", 1, ""},
        {at("old") + "update", 1, "has version 8; version 9 is needed"},
        {at("nowhere") + "alerts", 1, "there is no database"},
        {"sql 'SELECT 1'", 1, "no database is registered; name its directory with --data"},
        {OnBooks() + "sql 'nonsense'", 1, "instead of 'nonsense' (line 1, column 1)"},
        {OnBooks() + "sql ''", 1, "(line 1, column 1)"},
        {OnBooks() + "sql 'SELECT 1; SELECT 2'", 1, "(line 1, column 11)"},
        {OnBooks() + "sql 'SELECT [a\nb] FROM Tenant'", 1, "Unknown field 'a b'"},
        {OnBooks() + "sql 'DROP TABLE Tenant'", 1, "instead of 'DROP'"},
        {OnBooks() + "amortize 1", 1, "no mortgage 1"},
        {"", 2, "A subcommand is required"},
        {"sell", 2, "there is no command sell"},
        {"--datum x alerts", 2, "--datum"},
        {"--data '' alerts", 2, "no directory is named"},
        {"--today 02/30/2024 update", 2, "'02/30/2024' is not a valid date (mm/dd/yyyy)"},
        {"update --today 02/28/2024", 2, "not expected"},
        {"alerts more", 2, "not expected: more"},
        {"sql", 2, "statement is required"},
        {"sql 'SELECT 1' 'SELECT 2'", 2, "not expected"},
        {"register", 2, "directory is required"},
        {"init", 2, "directory is required"},
        {"init --units 3 x", 2, "--units requires --sample"},
        {"init --sample --units 0 x", 2, "not in range"},
        {"init --sample --units 2.5 x", 2, "--units"},
        {OnBooks() + "amortize first", 2, "first"},
    };
    for (const auto& [words, status, fault] : cases) {
        const Outcome outcome = Run(words);
        EXPECT_EQ(outcome.status, status) << words;
        EXPECT_EQ(outcome.output, "") << words;
        EXPECT_EQ(outcome.errors.rfind("vestrelctl: ", 0), 0U) << outcome.errors;
        EXPECT_EQ(outcome.errors.find('\n'), outcome.errors.size() - 1) << outcome.errors;
        EXPECT_NE(outcome.errors.find(fault), std::string::npos) << words << ": " << outcome.errors;
    }
    EXPECT_EQ(Run("--help").status, 0);
}

TEST_F(Vestrelctl, MakesTheSameSampleTwiceAndFindsNothingLeftToPost) {
    const std::string today = "--today 05/31/2024 ";
    ASSERT_EQ(Run(today + "init --sample --units 6 " + Books()).status, 0);
    ASSERT_EQ(Run("register " + Books()).status, 0);
    EXPECT_EQ(Run(today + "update").output, "0 rows posted.\n");
    const std::string ledger = "sql 'SELECT * FROM RentLog'";
    const std::string first = Run(ledger).output;
    EXPECT_GT(first.size(), 5000U);

    const std::string twin = "'" + (folder_ / "twin").string() + "'";
    ASSERT_EQ(Run(today + "init --sample --units 6 " + twin).status, 0);
    EXPECT_EQ(Run("--data " + twin + " " + ledger).output, first);

    const Outcome next = Run("--today 06/02/2024 update");
    EXPECT_EQ(next.status, 0) << next.errors;
    EXPECT_NE(next.output.find("Rent, "), std::string::npos) << next.output;
    EXPECT_NE(next.output.find(", 06/01/2024, "), std::string::npos) << next.output;
}

TEST_F(Vestrelctl, NamesALeaseThatCannotBeBroughtUpToDate) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    // Only an event that has a category is printed by it.
    Run(OnBooks() +
        "sql \"INSERT INTO AutoEvent (IdAutoEvent, EventType, Description, Enabled, "
        "EventAction, IntervalType, IntervalPeriod, LastRun) VALUES (9, 1, 'a', True, "
        "1, 3, 1, '04/30/2024')\"");
    EXPECT_EQ(Run("--today 06/01/2024 " + OnBooks() + "update").output,
              "Auto Event, a, 05/30/2024, 0.0000\n1 row posted.\n");
    Run(OnBooks() +
        "sql \"INSERT INTO Lease (IdLease, Status, DateActive) VALUES (7, 'MTM', 'soon')\"");
    const Outcome outcome = Run(OnBooks() + "update");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.output.find("Not updated: Lease lease 7: "), std::string::npos);
    EXPECT_EQ(outcome.errors, "vestrelctl: 1 record could not be brought up to date\n");
    platform::Connection books;
    books.Open(folder_ / "books/Vestrel.mdb");
    books.RunScript("DROP TABLE Mortgage");
    books.Close();
    EXPECT_NE(Run(OnBooks() + "update").output.find("Not updated: Mortgages: "), std::string::npos);
}

} // namespace

} // namespace tests
