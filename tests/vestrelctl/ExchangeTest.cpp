#include <fmt/core.h>

#include "vestrelctl/VestrelctlFixture.h"

namespace tests {

namespace {

/// A sample portfolio of a few units.
class Exchange : public Vestrelctl {
  protected:
    Exchange() {
        EXPECT_EQ(Run("--today 05/17/2024 init --sample --units 4 " + Books()).status, 0);
    }

    Outcome Do(const std::string& words) { return Run("--today 05/17/2024 " + OnBooks() + words); }
    std::string Ask(const std::string& select) {
        const std::string rows = Do("sql \"" + select + "\"").output;
        return rows.substr(rows.find('\n') + 1);
    }
    std::string At(const std::string& name) const { return "'" + (folder_ / name).string() + "'"; }
};

TEST_F(Exchange, ExportsTransactionsAndMarksThem) {
    std::string account =
        Ask("SELECT TOP 1 CreditId FROM Transactions WHERE Class = 1 AND CreditType = 1");
    account.pop_back();
    const std::string mine = fmt::format("(CreditId = {0} OR DebitId = {0})", account);
    const std::string all = Ask("SELECT Count(*) FROM Transactions WHERE " + mine);
    const std::string to = " --account " + account + " " + At("export.txt");
    EXPECT_EQ(Do("export --format csv --mark" + to).output, all);
    EXPECT_EQ(Do("export --format CSV" + to).output, "0\n");
    EXPECT_EQ(Do("export --format iif --all --limit-length" + to).output, all);
    EXPECT_TRUE(ReadFile(folder_ / "export.txt").starts_with("!TRNS\tTRNSTYPE\t"));
    EXPECT_EQ(Do("export --format qif --from 04/17/2024" + to).output,
              Ask("SELECT Count(*) FROM Transactions WHERE " + mine +
                  " AND DateValue(DateEffective) >= #04/17/2024# AND DateValue(DateEffective) <= "
                  "#05/17/2024#"));
    EXPECT_EQ(Do("export --format qif --account " + account + to).errors,
              "vestrelctl: Quicken can only export one account at a time, please just check one "
              "account.\n");
    EXPECT_EQ(Do("export --format csv --account 1 " + At("export.txt")).errors,
              "vestrelctl: --account: there is no account 1\n");
    EXPECT_EQ(Do("export --format csv --all --from 01/01/2024" + to).status, 2);
    EXPECT_EQ(Do("export --format txt" + to).status, 2);
    EXPECT_EQ(Do("export --format csv --account " + account + " /nowhere/out").status, 1);
}

TEST_F(Exchange, MovesAPortfolioAsText) {
    const Outcome exported = Do("export-text " + At("all.csv"));
    EXPECT_NE(exported.output.find("Status: Export completed.\nTotal Tables Written = "),
              std::string::npos);
    EXPECT_EQ(Run("init " + At("other")).status, 0);
    const std::string onOther = "--data " + At("other") + " ";
    EXPECT_EQ(Run(onOther + "import-text --test " + At("all.csv")).status, 0);
    const Outcome imported = Run(onOther + "import-text --overwrite " + At("all.csv"));
    EXPECT_EQ(imported.status, 0) << imported.errors;
    EXPECT_NE(imported.output.find("Vestrel before import 1.mdb\n"), std::string::npos);
    EXPECT_EQ(Run(onOther + "export-text " + At("again.csv")).status, 0);
    EXPECT_EQ(ReadFile(folder_ / "again.csv"), ReadFile(folder_ / "all.csv"));
    EXPECT_EQ(Run(onOther + "check").output, "Everything is in order.\n");

    std::ofstream(folder_ / "bad.csv") << "\"Table\",\"Castle\",\"/Table\"\n";
    const Outcome bad = Run(onOther + "import-text " + At("bad.csv"));
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.errors,
              "vestrelctl: An error occured while reading the import file, invalid table name "
              "specified. (line 1)\n");
    EXPECT_EQ(bad.output,
              "Starting Import ...\nStatus: An error occured with the import file at line 1\n");
    EXPECT_EQ(Do("export-text --table Unit --table Room " + At("few.csv")).status, 0);
    EXPECT_EQ(Do("export-text --table Castle " + At("few.csv")).errors,
              "vestrelctl: there is no table Castle\n");
}

TEST_F(Exchange, BacksUpAndRestores) {
    EXPECT_EQ(Run("restore " + At("none") + " --list").status, 1);
    const Outcome made = Do("backup --database-only --to " + At(""));
    EXPECT_EQ(made.status, 0) << made.errors;
    EXPECT_TRUE(made.output.starts_with(
        "Starting backup: Success\nTesting destination directory: Success\n"))
        << made.output;
    EXPECT_TRUE(made.output.ends_with("The backup was completed successfully.: Success\n"));
    const Outcome list = Run("restore " + At("Vestrel.0.vbk") + " --list");
    EXPECT_EQ(list.status, 0);
    EXPECT_TRUE(list.output.starts_with("\"FilePath\",\"FileType\",\"FileSize\","));
    const Outcome restored = Run("restore " + At("Vestrel.0.vbk") + " --to " + At("back"));
    EXPECT_EQ(restored.status, 0) << restored.errors;
    EXPECT_TRUE(restored.output.ends_with("The database was checked and is sound.\n"));
    EXPECT_EQ(Run("--data " + At("back") + " export-text " + At("back.csv")).status, 0);
    EXPECT_EQ(Do("export-text " + At("all.csv")).status, 0);
    EXPECT_EQ(ReadFile(folder_ / "back.csv"), ReadFile(folder_ / "all.csv"));
    EXPECT_EQ(Run("restore " + At("Vestrel.0.vbk") + " --to " + At("back")).status, 1);
    EXPECT_EQ(Run("restore " + At("Vestrel.0.vbk")).status, 2);
}

TEST_F(Exchange, ChecksBooks) {
    EXPECT_EQ(Do("check").output, "Everything is in order.\n");
    EXPECT_EQ(Do("sql \"UPDATE Lease SET RentDue = RentDue + 1\"").status, 0);
    const Outcome found = Do("check");
    EXPECT_EQ(found.status, 1);
    EXPECT_NE(found.output.find(" as RentDue, but its ledger adds up to "), std::string::npos);
    EXPECT_NE(found.errors.find(" faults were found."), std::string::npos) << found.errors;
}

} // namespace

} // namespace tests
