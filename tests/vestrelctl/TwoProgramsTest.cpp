#include <fmt/core.h>

#include "vestrelctl/VestrelctlFixture.h"

namespace tests {

namespace {

namespace fs = std::filesystem;

/// A sample's books on the first of June, with rent to charge and charges to pay.
class TwoPrograms : public Vestrelctl {
  protected:
    TwoPrograms() {
        EXPECT_EQ(Run("--today 05/31/2024 init --sample --units 4 " + Books()).status, 0);
        Run(OnBooks() + "sql 'UPDATE AutoEvent SET Enabled = True, IntervalPeriod = 1'");
    }

    std::string At(std::string_view name) const {
        return fmt::format("--today 06/02/2024 --data '{}' ", (folder_ / name).string());
    }

    void Copy(const std::string& name) {
        fs::copy(folder_ / "books", folder_ / name, fs::copy_options::recursive);
    }

    /// The first value of a select.
    std::string AskOne(const std::string& select) {
        const std::string rows = Ask(select);
        return rows.substr(0, rows.find('\n'));
    }

    /// The contents of the books, without the numbers of records, which each program takes for
    /// itself.
    std::string Dump(const std::string& name) {
        return Run(At(name) + "sql -", R"(
SELECT * FROM Lease;
SELECT * FROM Mortgage;
SELECT * FROM AutoEvent;
SELECT NextId FROM Configuration;
SELECT DateEffective, Amount, CheckNum, Description FROM Transactions ORDER BY 1, 2, 3, 4;
SELECT RentLog.IdLease, RentLog.DatePosted, RentLog.Category, RentLog.Amount, RentLog.Flags, Transactions.Amount AS Paid FROM RentLog LEFT JOIN Transactions ON RentLog.IdTransaction = Transactions.IdTransaction ORDER BY 1, 2, 3, 4, 5, 6;
SELECT MortgageLog.IdMortgage, MortgageLog.DatePosted, MortgageLog.Category, MortgageLog.Total, MortgageLog.Flags, Transactions.Amount AS Paid FROM MortgageLog LEFT JOIN Transactions ON MortgageLog.IdTransaction = Transactions.IdTransaction ORDER BY 1, 2, 3, 4, 5, 6;
)")
            .output;
    }

    void RunTogether(const std::string& books, const std::string& first,
                     const std::string& second) {
        Run(At(books) + first + " >/dev/null 2>&1 & " VESTRELCTL " " + At(books) + second +
            " >/dev/null 2>&1; wait; exit 0 #");
    }
};

TEST_F(TwoPrograms, LeaveTheBooksAsIfOneHadWaitedForTheOther) {
    const std::string pay = "pay " + AskOne("SELECT TOP 1 IdLease FROM Lease WHERE Status = 'MTM'");
    const std::string payMortgage =
        "pay-mortgage " + AskOne("SELECT TOP 1 IdMortgage FROM Mortgage");
    const std::string save = "sql 'UPDATE Lease SET Rent = Rent + 1'";
    const struct {
        std::string before; ///< brings the books to where the two meet
        std::string first;
        std::string second;
    } cases[] = {
        {"sql 'SELECT 1'", "update", "update"}, {"update", pay, pay},
        {"update", payMortgage, payMortgage},   {"sql 'SELECT 1'", pay, "update"},
        {"sql 'SELECT 1'", save, "update"},
    };
    int number = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(each.first + " beside " + each.second);
        const std::string suffix = std::to_string(++number);
        const std::string names[] = {"together" + suffix, "forward" + suffix, "back" + suffix};
        for (const std::string& name : names) {
            Copy(name);
            EXPECT_EQ(Run(At(name) + each.before).status, 0);
        }
        RunTogether(names[0], each.first, each.second);
        Run(At(names[1]) + each.first);
        Run(At(names[1]) + each.second);
        Run(At(names[2]) + each.second);
        Run(At(names[2]) + each.first);
        const std::string together = Dump(names[0]);
        EXPECT_GT(together.size(), 1000U);
        if (together != Dump(names[2])) {
            EXPECT_EQ(together, Dump(names[1]));
        }
    }
}

} // namespace

} // namespace tests
