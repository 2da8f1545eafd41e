// Payments by amount, credits and returned payments from the command line.

#include <fmt/core.h>

#include "vestrelctl/PaymentBooks.h"

namespace tests {

namespace {

class Credit : public PaymentBooks {
  protected:
    Outcome On(const char* day, const std::string& words) {
        return Run(fmt::format("--today {} ", day) + OnBooks() + words);
    }
    std::string Fault(const char* day, const std::string& words) {
        const Outcome outcome = On(day, words);
        EXPECT_EQ(outcome.status, 1) << words;
        return outcome.errors;
    }
};

TEST_F(Credit, LastsThroughAYearOfPaymentsByAmount) {
    EXPECT_EQ(On("12/31/2023", "credit 101 --settle on").output,
              "Lease 101: credit 0.0000, of the subsidy 0.0000, settles new charges on the day "
              "they fall due\n");
    for (int month = 1; month <= 12; ++month) {
        const std::string today = fmt::format("{:02}/02/2024", month);
        ASSERT_EQ(On(today.c_str(), "update").status, 0);
        // Five hundred every month, and four times a year what is missing.
        const int amount = month % 3 == 0 ? 2000 : 500;
        ASSERT_EQ(On(today.c_str(), fmt::format("pay 101 --amount {}", amount)).status, 0);
    }
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM Transactions"), "12000.0000\n");
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM RentLog WHERE Flags = 2"), "-12000.0000\n");
    const std::string due = Ask("SELECT RentDue FROM Lease");
    const std::string fees = Ask("SELECT Sum(Amount) FROM RentLog WHERE Category = 'Late Fee'");
    EXPECT_EQ(due, fees == "\n" ? "0.0000\n" : fees);
    EXPECT_EQ(Run(OnBooks() + "check").output, "Everything is in order.\n");
}

TEST_F(Credit, IsPreviewedAndThenPosted) {
    On("01/01/2024", "update");
    const std::string before = Ask("SELECT * FROM RentLog");
    const Outcome preview = On("01/05/2024", "pay 101 --amount 1,250 --preview");
    EXPECT_EQ(preview.output,
              "\"What\",\"Date\",\"Category\",\"Description\",\"Amount\"\n"
              "\"Transaction\",\"01/05/2024\",\"Rent Payment\",\"Rent Payment for O'Brien, 12 Elm "
              "Street A\",1250.0000\n"
              "\"Charge paid\",\"01/01/2024\",\"Rent\",\"Rent due 01/01/2024\",1000.0000\n"
              "\"Paid ahead\",\"01/05/2024\",\"Overpayment\",\"Paid ahead on "
              "01/05/2024\",250.0000\n"
              "\"Credit left open\",\"01/05/2024\",\"Credit\",\"Credit of 01/05/2024\",-250.0000\n"
              "\"Payment in the ledger\",\"01/05/2024\",\"Rent Payment\",\"Rent "
              "Payment\",-1250.0000\n"
              "\"Next due date\",\"02/01/2024\",\"\",\"until now 01/01/2024\",0.0000\n");
    EXPECT_EQ(Ask("SELECT * FROM RentLog"), before);
    const Outcome paid = On("01/05/2024", "pay 101 --amount 1,250");
    EXPECT_NE(paid.output.find(": 1250.0000: 1 charge paid, 250.00 kept as the tenant's credit, "
                               "next due date moves from 01/01/2024 to 02/01/2024\n"),
              std::string::npos)
        << paid.output;
    EXPECT_EQ(On("01/05/2024", "credit 101").output,
              "Lease 101: credit 250.0000, of the subsidy 0.0000, settles nothing by itself\n");
}

TEST_F(Credit, SplitsInTheOrderAndAtTheRentPartThatAreGiven) {
    On("01/04/2024", "update"); // rent, and its fee on the fourth
    const std::string fee = Ask("SELECT IdRentLog FROM RentLog WHERE Category = 'Late Fee'");
    EXPECT_EQ(On("01/05/2024", "pay 101 --amount 100 --rent-part paid --order " + fee).status, 0);
    EXPECT_EQ(Ask("SELECT Amount, Flags FROM RentLog WHERE Category = 'Rent' ORDER BY 1"),
              "75.0000,1\n925.0000,0\n");
    EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease"), "\"02/01/2024\"\n");
}

TEST_F(Credit, OfAReturnedPaymentIsTakenBack) {
    On("01/01/2024", "update");
    On("01/02/2024", "pay 101 --amount 1300");
    const std::string id = Ask("SELECT IdTransaction FROM Transactions");
    const std::string give = "return-payment " + id.substr(0, id.size() - 1);
    EXPECT_EQ(On("01/09/2024", give + " --fee 30 --preview").status, 0);
    EXPECT_EQ(Ask("SELECT RentDue FROM Lease"), "-300.0000\n");
    const Outcome returned = On("01/09/2024", give + " --fee 30 --date 01/08/2024");
    EXPECT_EQ(returned.status, 0) << returned.errors;
    EXPECT_EQ(Ask("SELECT RentDue, DateNextDue FROM Lease"), "1030.0000,\"01/01/2024\"\n");
    EXPECT_EQ(Ask("SELECT DateEffective, Amount FROM Transactions ORDER BY IdTransaction"),
              "\"01/02/2024\",1300.0000\n\"01/08/2024\",-1300.0000\n");
    EXPECT_NE(Fault("01/10/2024", give).find("was returned already"), std::string::npos);
    EXPECT_EQ(Run(OnBooks() + "check").output, "Everything is in order.\n");
}

TEST_F(Credit, RefusesWhatMakesNoSense) {
    On("01/01/2024", "update");
    const std::string before = Ask("SELECT * FROM RentLog");
    for (const char* const amount : {"0", "-5", "'-1,000'", "x", "''"}) {
        EXPECT_NE(On("01/02/2024", std::string("pay 101 --amount=") + amount).status, 0) << amount;
    }
    EXPECT_EQ(Fault("01/02/2024", "pay 101 --amount 5 --order 4711"),
              "vestrelctl: --order: 4711 is no open charge of the lease\n");
    EXPECT_EQ(Run(OnBooks() + "pay 101 --preview").status, 2);
    EXPECT_EQ(Run(OnBooks() + "pay 101 --order 7").status, 2);
    EXPECT_EQ(Run(OnBooks() + "pay 101 --amount 5 --rent-part none").status, 2);
    EXPECT_EQ(Run(OnBooks() + "credit 101 --settle maybe").status, 2);
    EXPECT_EQ(Fault("01/02/2024", "credit 99 --settle on"), "vestrelctl: There is no lease 99\n");
    EXPECT_EQ(Fault("01/02/2024", "return-payment 99"), "vestrelctl: There is no transaction 99\n");
    EXPECT_EQ(Ask("SELECT * FROM RentLog"), before);
    EXPECT_EQ(Ask("SELECT Count(*) FROM LeaseCredit"), "0\n");
}

} // namespace

} // namespace tests
