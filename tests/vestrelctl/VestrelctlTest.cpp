#include "vestrelctl/VestrelctlFixture.h"

#include <fstream>

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
    EXPECT_EQ(outcome.output, "1\n\n\"ShowAs\"\n\"O'Brien; Sons\"\n\n");
    EXPECT_EQ(outcome.errors,
              "vestrelctl: statement 3: Unknown field 'Nothing' (line 1, column 8)\n");
    EXPECT_EQ(Run(OnBooks() + "sql 'SELECT Count(*) AS N FROM Account'").output, "\"N\"\n1\n");
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
    struct Case {
        std::string words;
        int status;
    };
    for (const auto& [words, status] :
         {Case{"init " + Books(), 1}, Case{at("junk") + "update", 1}, Case{at("old") + "update", 1},
          Case{at("nowhere") + "alerts", 1}, Case{"sql 'SELECT 1'", 1},
          Case{OnBooks() + "sql 'nonsense'", 1}, Case{"", 2}, Case{"sell", 2},
          Case{"--today 02/30/2024 update", 2}, Case{"init --sample --units 0 x", 2}}) {
        const Outcome outcome = Run(words);
        EXPECT_EQ(outcome.status, status) << words;
        EXPECT_EQ(outcome.output, "") << words;
        if (status == 1) {
            EXPECT_EQ(outcome.errors.find('\n'), outcome.errors.size() - 1) << outcome.errors;
        }
    }
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
    Run(OnBooks() +
        "sql \"INSERT INTO Lease (IdLease, Status, DateActive) VALUES (7, 'MTM', 'soon')\"");
    const Outcome outcome = Run(OnBooks() + "update");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.output.find("Not updated: Lease lease 7: "), std::string::npos);
    EXPECT_EQ(outcome.errors, "vestrelctl: 1 record could not be brought up to date\n");
}

} // namespace

} // namespace tests
