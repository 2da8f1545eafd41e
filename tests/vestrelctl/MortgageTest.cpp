#include <algorithm>
#include <string>

#include <fmt/core.h>

#include "vestrelctl/VestrelctlFixture.h"

namespace tests {

namespace {

/// Books with a lender, a bank and a mortgage of 12,000.00 over a year at 12 percent.
class Mortgages : public Vestrelctl {
  protected:
    Mortgages() {
        EXPECT_EQ(Run("init " + Books()).status, 0);
        EXPECT_EQ(Run("--today 12/31/2023 " + OnBooks() + "update").status, 0);
        const Outcome made =
            Run(OnBooks() + "sql -",
                "INSERT INTO Account (IdAccount, ShowAs) VALUES (105, 'First Bank');\n"
                "INSERT INTO Account (IdAccount, ShowAs) VALUES (106, 'Lender');\n"
                "INSERT INTO Mortgage (IdMortgage, IdMortgagee, IdLastPmt, Description, OrigPV, "
                "OrigPer, OrigRate, FirstDue, NextDue, DateUpdated, CurrentPeriod, CurrentPV, "
                "EscrowAmount, PPM, PPMTrigger) VALUES (101, 106, 105, 'Elm', 12000, 12, 0.12, "
                "'01/31/2024', '01/31/2024', '12/31/2023', 1, 12000, 50, True, 0.01);\n");
        EXPECT_EQ(made.status, 0) << made.errors;
    }
};

TEST_F(Mortgages, PrintTheirScheduleAsRawNumbers) {
    const Outcome schedule = Run(OnBooks() + "amortize 101");
    ASSERT_EQ(schedule.status, 0) << schedule.errors;
    const std::size_t firstLine = schedule.output.find('\n');
    EXPECT_EQ(schedule.output.substr(0, firstLine),
              R"("No.","Rate","Pmt","Pri","Xtra Pri","Int","Balance","Remaining","Due","Pmt Yr",)"
              R"("Pmt TTD","Pri Yr","Pri TTD","Int Yr","Int TTD","PPM Penalty")");
    EXPECT_EQ(schedule.output.find("1,12,1066.185464140", firstLine), firstLine + 1);
    EXPECT_NE(schedule.output.find(",11,01/31/2024,"), std::string::npos);
    EXPECT_NE(schedule.output.find(",10,02/29/2024,"), std::string::npos);
    EXPECT_NE(schedule.output.find(",600\n"), std::string::npos); // the one penalty of the year
    EXPECT_EQ(std::count(schedule.output.begin(), schedule.output.end(), '\n'), 13);

    EXPECT_EQ(Run(OnBooks() + "amortize 102").errors, "vestrelctl: There is no mortgage 102\n");
    EXPECT_EQ(Run(OnBooks() + "amortize").status, 2);
}

TEST_F(Mortgages, LiveThroughTheirYearOfPayments) {
    for (int month = 1; month <= 12; ++month) {
        // Due on the 31st, then on the 29th after February; paid on the last day of the month.
        const std::string today = fmt::format("--today {:02}/{:02}/2024 ", month,
                                              month == 2                 ? 29
                                              : (month % 2 == month / 8) ? 30
                                                                         : 31);
        const Outcome update = Run(today + OnBooks() + "update");
        EXPECT_NE(update.output.find("\n2 rows posted.\n"), std::string::npos) << update.output;
        const Outcome paid = Run(today + OnBooks() + "pay-mortgage 101 --check 7");
        EXPECT_EQ(paid.status, 0) << paid.errors;
        EXPECT_NE(paid.output.find(": 2 charges, 1116.18"), std::string::npos) << paid.output;
    }
    EXPECT_EQ(Ask("SELECT Count(*), Sum(Principal) FROM MortgageLog WHERE Flags = 1"),
              "12,12000.0000\n");
    EXPECT_EQ(Ask("SELECT Status, PmtStatus, CurrentPV, CurrentPeriod, NextDue FROM Mortgage"),
              "\"Closed\",\"n/a\",0,13,\"\"\n");
    EXPECT_EQ(Ask("SELECT Sum(Total) FROM MortgageLog"), "0.0000\n");
    const Outcome later = Run("--today 06/30/2025 " + OnBooks() + "update");
    EXPECT_EQ(later.output, "0 rows posted.\n");
    EXPECT_EQ(Run(OnBooks() + "pay-mortgage 101").errors,
              "vestrelctl: There is no open charge to pay\n");
}

TEST_F(Mortgages, ArePaidAsTold) {
    Run("--today 02/01/2024 " + OnBooks() + "update");
    EXPECT_EQ(Run(OnBooks() + "pay-mortgage 101 --from 999").errors,
              "vestrelctl: --from: there is no account 999\n");
    EXPECT_EQ(Run(OnBooks() + "pay-mortgage 101 --date 02/30/2024").status, 2);
    Run(OnBooks() + "sql 'UPDATE Mortgage SET IdLastPmt = 0'");
    EXPECT_EQ(Run(OnBooks() + "pay-mortgage 101").errors,
              "vestrelctl: --from: the mortgage doesn't name this account; name it\n");
    const Outcome paid = Run("--today 02/05/2024 " + OnBooks() +
                             "pay-mortgage 101 --date 2/3/2024 --from 106 --to 105 --check 0042");
    EXPECT_EQ(paid.status, 0) << paid.errors;
    EXPECT_EQ(Ask("SELECT DateEffective, DebitId, CreditDesc, CheckNum, Class FROM Transactions"),
              "\"02/03/2024\",106,\"First Bank\",\"0042\",5\n");
    EXPECT_EQ(Ask("SELECT IdLastPmt, NextDue, PmtStatus, DateUpdated FROM Mortgage"),
              "106,\"02/29/2024\",\"OK\",\"02/05/2024\"\n");
}

TEST_F(Mortgages, TakeExtraPrincipal) {
    for (const char* wrong : {"0", "-5", "much", ""}) {
        EXPECT_EQ(Run(OnBooks() + "pay-mortgage 101 --extra '" + wrong + "'").status, 2) << wrong;
    }
    // Nothing is charged yet: the payment is only extra principal, of the first period.
    const Outcome ahead = Run("--today 01/15/2024 " + OnBooks() + "pay-mortgage 101 --extra 100");
    EXPECT_EQ(ahead.status, 0) << ahead.errors;
    Run("--today 02/01/2024 " + OnBooks() + "update");
    const Outcome paid =
        Run("--today 02/01/2024 " + OnBooks() + "pay-mortgage 101 --extra 1,000.00");
    EXPECT_EQ(paid.status, 0) << paid.errors;
    EXPECT_NE(paid.output.find(": 2 charges, 2116.1855"), std::string::npos) << paid.output;
    EXPECT_EQ(Ask("SELECT Category, PayDown, Total FROM MortgageLog WHERE Period = 1 "
                  "ORDER BY IdMortgageLog"),
              "\"Extra Principal\",100.0000,100.0000\n"
              "\"Mortgage Payment\",0.0000,1066.1855\n"
              "\"Mortgage Escrow\",0.0000,50.0000\n"
              "\"Extra Principal\",1000.0000,1000.0000\n");
    EXPECT_EQ(Ask("SELECT CurrentPeriod, Format(CurrentPV, '0.00') FROM Mortgage"),
              "2,\"9953.81\"\n");
    const Outcome much =
        Run("--today 02/01/2024 " + OnBooks() + "pay-mortgage 101 --extra 9953.82");
    EXPECT_EQ(much.status, 1);
    EXPECT_NE(much.errors.find("Extra principal cannot be more than"), std::string::npos);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "2\n");
}

} // namespace

} // namespace tests
