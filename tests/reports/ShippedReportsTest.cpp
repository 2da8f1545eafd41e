#include <algorithm>
#include <cmath>
#include <set>

#include "books/clsDepreciation.h"
#include "core/Configuration.h"
#include "reports/CheckReport.h"
#include "reports/LineGrammar.h"
#include "reports/ShippedFixture.h"
#include "store/CreateDatabase.h"

namespace tests {

namespace {

using platform::Currency;
using platform::Date;

const std::set<std::string> kRunning = {"Contracted", "MTM", "WTW", "Notice"};

/// An amount as a page shows it: with two decimals.
std::int64_t Cents(Currency amount) {
    return std::llround(static_cast<double>(amount.Scaled()) / 100);
}

/// Amounts that were rounded before they were added up, a cent each at most.
void ExpectNear(Currency shown, Currency sum, int rows) {
    EXPECT_LE(std::llabs(Cents(shown) - Cents(sum)), rows);
}

int PeriodsAYear(const Row& lease) {
    const std::string type = lease.at("TermType").AsText();
    return type.starts_with('W') ? 52 : type.starts_with('Y') ? 1 : 12;
}

bool IsIn(int year, Date day) {
    return day.Year() == year;
}

TEST_F(Shipped, AreFreeOfFaultsAndRunOnFullAndEmptyBooks) {
    EXPECT_GE(Files().size(), 36U);
    std::set<std::string> names;
    std::set<int> printed;
    for (const auto& file : Files()) {
        const std::string name = file.filename().string();
        const bool isReceipt = file.extension() == ".rcpt";
        const auto text = reports::ReadDefinition(file);
        for (const auto& fault : reports::CheckReport(
                 *text, isReceipt ? reports::ReportKind::Receipt : reports::ReportKind::Report))
            ADD_FAILURE() << name << ":" << fault.line << ": " << fault.text;
        report.DetailLevel = reports::Detail::Full;
        const FlowLines flow = Run(name);
        EXPECT_TRUE(names.insert(report.Description).second) << report.Description << " twice";
        EXPECT_FALSE(report.Notes.empty()) << name;
        EXPECT_GT(flow.lines.size(), 1U) << name << " prints its title only";
        if (report.Kind == reports::ReportKind::Print) {
            EXPECT_TRUE(printed.insert(static_cast<int>(report.Form)).second) << name;
        }
    }
    EXPECT_EQ(printed.size(), 9U) << "a print report for each form";

    core::App().Connection.Close();
    store::CreateDatabase(Folder() / "empty");
    core::App().Connection.Open((Folder() / "empty" / "Vestrel.mdb").string());
    core::CreateDefaultConfiguration(core::App().Connection);
    for (const auto& file : Files()) {
        const FlowLines flow = Run(file.filename().string());
        EXPECT_GT(flow.lines.size(), 1U) << file << " says nothing on empty books";
        for (const std::string& line : flow.lines)
            EXPECT_EQ(line.find('%'), std::string::npos) << file << ": " << line;
    }
}

TEST_F(Shipped, RentRollAddsUpToTheRunningLeases) {
    Currency rent;
    Currency monthly;
    Currency due;
    Currency held;
    int leases = 0;
    std::size_t pending = 0;
    for (const Row& lease : Rows("Lease")) {
        if (Text(lease, "Status") == "Pending") ++pending;
        if (!kRunning.contains(Text(lease, "Status"))) continue;
        ++leases;
        rent += Money(lease, "Rent");
        monthly += Currency::FromDouble(Money(lease, "Rent").ToDouble() * PeriodsAYear(lease) / 12);
        due += Money(lease, "RentDue");
        held += Money(lease, "DepositBalance");
    }
    const FlowLines flow = Run("Rent Roll.rpt");
    EXPECT_EQ(ColumnSum(flow, "Unit", 3), rent);
    ExpectNear(ColumnSum(flow, "Unit", 4), monthly, leases);
    EXPECT_EQ(ColumnSum(flow, "Unit", 5), due);
    EXPECT_EQ(ColumnSum(flow, "Unit", 6), held);
    ExpectNear(Amount(flow, "Rent a month"), monthly, 1);
    EXPECT_NE(monthly, rent);
    EXPECT_EQ(std::ranges::count_if(
                  TableRows(flow, "Unit"),
                  [](const auto& row) { return row[1].find(" (from ") != std::string::npos; }),
              pending);
    EXPECT_GT(pending, 0U);
    EXPECT_EQ(Amount(flow, "Rent due"), due);
    EXPECT_EQ(Amount(flow, "Deposits held"), held);
    EXPECT_EQ(Amount(flow, "Running leases"), Currency::FromUnits(leases));
    EXPECT_EQ(Amount(flow, "Units"),
              Currency::FromUnits(static_cast<std::int64_t>(Rows("Unit").size())));
    EXPECT_GT(leases, 3);
}

TEST_F(Shipped, OpenChargesStandInTheColumnOfTheirAge) {
    const int today = Date(2026, 6, 15).Serial();
    std::vector<Currency> ages(6);
    for (const Row& charge : Rows("RentLog")) {
        if (Id(charge, "IdTransaction") != 0 || Id(charge, "Class") > 3) continue;
        const int age = today - Day(charge, "DatePosted").Serial();
        const std::size_t column = age < 1 ? 0 : age <= 30 ? 1 : age <= 60 ? 2 : age <= 90 ? 3 : 4;
        ages[column] += Money(charge, "Amount");
        ages[5] += Money(charge, "Amount");
    }
    const FlowLines flow = Run("Who Owes What.rpt");
    for (std::size_t column = 0; column < ages.size(); ++column)
        EXPECT_EQ(ColumnSum(flow, "Tenant", column + 2), ages[column]) << column;
    EXPECT_EQ(Amount(flow, "Total"), ages[5]);
    EXPECT_EQ(Amount(flow, "Over 90 days"), ages[4]);
    EXPECT_FALSE(ages[5].IsZero());
    Currency held;
    for (const Row& lease : Rows("Lease"))
        held += Money(lease, "DepositBalance");
    EXPECT_EQ(Total(Run("Deposits Held.rpt"), "p Total held = "), held);
}

TEST_F(Shipped, IncomeAndExpenseAreTheYearsTransactions) {
    Currency income;
    Currency expense;
    std::map<std::int32_t, Currency> nets;
    std::vector<Currency> months(13);
    for (const Row& row : Rows("Transactions")) {
        const int ien = Id(row, "IEN");
        if (!IsIn(2025, Day(row, "DateEffective")) || ien > 1) continue;
        const Currency amount = Money(row, "Amount");
        (ien == 0 ? income : expense) += amount;
        nets[Id(row, "IdBuilding")] += ien == 0 ? amount : -amount;
        months[Day(row, "DateEffective").Month()] += ien == 0 ? amount : -amount;
    }
    ASSERT_FALSE(income.IsZero() || expense.IsZero());
    FlowLines flow = Run("Income and Expense by Building.rpt");
    EXPECT_EQ(Cents(Amount(flow, "Total income")), Cents(income));
    EXPECT_EQ(Cents(Amount(flow, "Total expense")), Cents(expense));
    ExpectNear(ColumnSum(flow, "Building", 3), income - expense, 20);
    ExpectNear(ColumnSum(flow, "Category", 1), income, 50);
    ExpectNear(ColumnSum(flow, "Category", 2), expense, 50);
    for (const Row& building : Rows("Building")) {
        const auto shown = Amounts(flow, Text(building, "Address"), 3);
        if (!nets.contains(Id(building, "IdBuilding"))) continue;
        ASSERT_EQ(shown.size(), 1U) << Text(building, "Address");
        EXPECT_EQ(Cents(shown[0]), Cents(nets[Id(building, "IdBuilding")]));
    }
    report.DetailLevel = reports::Detail::Summary;
    const FlowLines summary = Run("Income and Expense by Building.rpt");
    EXPECT_LT(summary.lines.size(), flow.lines.size());
    EXPECT_EQ(Cents(Amount(summary, "Net")), Cents(income - expense));

    flow = Run("Income Statement by Month.rpt");
    const FlowLines cash = Run("Cash Flow by Month.rpt");
    const char* names[] = {"January", "February", "March",     "April",   "May",      "June",
                           "July",    "August",   "September", "October", "November", "December"};
    for (std::size_t month = 1; month <= 12; ++month) {
        const auto shown = Amounts(flow, "Net", (month - 1) % 6 + 1);
        ASSERT_EQ(shown.size(), 2U);
        EXPECT_EQ(Cents(shown[(month - 1) / 6]), Cents(months[month])) << month;
        EXPECT_EQ(Cents(Amount(cash, names[month - 1], 3)), Cents(months[month])) << month;
    }
    EXPECT_EQ(Cents(Amount(flow, "Net of the year")), Cents(income - expense));
    EXPECT_EQ(Cents(Amount(cash, "Year", 1)), Cents(income));
}

TEST_F(Shipped, ScheduleEAgreesWithTheLedgersAndTheSchedules) {
    std::set<std::int32_t> of2025;
    Currency rents;
    Currency repairs;
    Currency deductible;
    for (const Row& row : Rows("Transactions")) {
        if (!IsIn(2025, Day(row, "DateEffective"))) continue;
        of2025.insert(Id(row, "IdTransaction"));
        if (Id(row, "IEN") == 0) rents += Money(row, "Amount");
        if (Id(row, "IEN") != 1) continue;
        if (Text(row, "TaxCategory") == "Repairs") repairs += Money(row, "Amount");
        if (Text(row, "TaxCategory") != "Mortgage Payment") deductible += Money(row, "Amount");
    }
    Currency interest;
    for (const Row& row : Rows("MortgageLog")) {
        if (Id(row, "Flags") == 1 && of2025.contains(Id(row, "IdTransaction")))
            interest += Money(row, "Interest");
    }
    Currency depreciation;
    for (const Row& row : Rows("Building")) {
        if (Text(row, "PurchDate").empty()) continue;
        books::clsDepreciation schedule;
        schedule.SetStartDate(Text(row, "PurchDate"));
        schedule.SetBasis(Money(row, "DeprBasis").ToDouble());
        schedule.Init();
        for (const auto& period : schedule.Schedule()) {
            if (period.PeriodEnd == "12/31/2025") depreciation += period.Loss;
        }
    }
    const auto line = [](const FlowLines& flow, const char* number) {
        return Amount(flow, number, 2);
    };
    const FlowLines flow = Run("Schedule E.rpt");
    EXPECT_EQ(Cents(line(flow, "3")), Cents(rents));
    EXPECT_EQ(Cents(line(flow, "14")), Cents(repairs));
    EXPECT_EQ(Cents(line(flow, "12")), Cents(interest));
    ExpectNear(line(flow, "18"), depreciation, 0);
    EXPECT_EQ(Cents(line(flow, "20")), Cents(deductible + interest + depreciation));
    EXPECT_EQ(Cents(line(flow, "21")), Cents(rents - deductible - interest - depreciation));
    ASSERT_FALSE(interest.IsZero() || depreciation.IsZero());
    // The lines of the buildings add up to those of all.
    for (const char* number : {"3", "12", "14", "18", "20", "21"}) {
        auto amounts = Amounts(flow, number, 2);
        ASSERT_GT(amounts.size(), 1U) << number;
        const Currency all = amounts.back();
        amounts.pop_back();
        Currency sum;
        for (const Currency amount : amounts)
            sum += amount;
        ExpectNear(sum, all, static_cast<int>(amounts.size()));
    }
    const FlowLines paid = Run("Mortgage Interest by Year.rpt");
    EXPECT_EQ(Cents(Amount(paid, "2025", 2)), Cents(interest)) << "the last table is of all loans";
}

TEST_F(Shipped, FirstYearsOfDepreciationFollowTheMonth) {
    // Every month of purchase and every year of the schedule, by the query against the class.
    core::App().Connection.Close();
    store::CreateDatabase(Folder() / "own");
    core::App().Connection.Open((Folder() / "own" / "Vestrel.mdb").string());
    core::App().Connection.Execute("INSERT INTO Configuration (NextId) VALUES (1)");
    for (int month = 1; month <= 12; ++month) {
        const std::string bought = Date(2000, static_cast<unsigned>(month), 15).ToText();
        core::App().Connection.Execute("DELETE FROM Building");
        core::App().Connection.Execute(
            "INSERT INTO Building (IdBuilding, Address, PurchDate, DeprBasis, DeprPeriod) VALUES "
            "(1, 'Elm', ?, 123456.78, 27.5)",
            {bought});
        books::clsDepreciation schedule;
        schedule.SetStartDate(bought);
        schedule.SetBasis(123456.78);
        schedule.Init();
        for (const int year : {1999, 2000, 2001, 2026, 2027, 2028, 2029}) {
            Currency loss;
            for (const auto& period : schedule.Schedule()) {
                if (Date::Parse(period.PeriodEnd).Year() == year) loss = period.Loss;
            }
            report.SelectedYear = std::to_string(year);
            ExpectNear(Amount(Run("Schedule E.rpt"), "18", 2), loss, 0);
        }
    }
}

TEST_F(Shipped, StatementsBalance) {
    const Date from(2025, 6, 15);
    const Date to(2026, 6, 15);
    std::map<std::int32_t, Currency> flows;
    std::map<std::int32_t, Currency> paidIn2025;
    int inPeriod = 0;
    for (const Row& row : Rows("Transactions")) {
        if (Id(row, "CreditType") == 1) flows[Id(row, "CreditId")] += Money(row, "Amount");
        if (Id(row, "DebitType") == 1) flows[Id(row, "DebitId")] -= Money(row, "Amount");
        const Date day = Day(row, "DateEffective");
        if (day >= from && day <= to) ++inPeriod;
        if (IsIn(2025, day) && Id(row, "CreditType") == 1)
            paidIn2025[Id(row, "CreditId")] += Money(row, "Amount");
    }
    EXPECT_EQ(Amount(Run("Transactions.rpt"), "Transactions"), Currency::FromUnits(inPeriod));

    Currency vendors;
    std::int32_t bank = 0;
    for (const Row& account : Rows("Account")) {
        const std::int32_t id = Id(account, "IdAccount");
        const std::string type = Text(account, "AccountType");
        if (type == "Vendor" || type == "Building Manager") vendors += paidIn2025[id];
        if (type == "Bank" && !flows[id].IsZero()) bank = id;
    }
    EXPECT_EQ(
        Cents(Amount(Run("Vendor Totals for 1099.rpt"), "Total paid to vendors and managers")),
        Cents(vendors));
    report.SelectedId = bank;
    const FlowLines account = Run("Account Register.rpt");
    EXPECT_EQ(Cents(Amount(account, "Balance on 06/15/2026")), Cents(flows[bank]));
    ExpectNear(Amount(account, "Balance before 06/15/2025") + Amount(account, "Came in") -
                   Amount(account, "Went out"),
               flows[bank], 3);
    ExpectNear(ColumnSum(account, "Date", 3), Amount(account, "Came in"), 1);

    const std::vector<Row> charges = Rows("RentLog");
    for (const Row& lease : Rows("Lease")) {
        Currency balance;
        int rows = 0;
        for (const Row& charge : charges) {
            if (Id(charge, "IdLease") != Id(lease, "IdLease") || Id(charge, "Class") != 1) continue;
            balance += Money(charge, "Amount");
            ++rows;
        }
        if (rows == 0) continue; // a lease that hasn't begun has no ledger
        report.SelectedId = Id(lease, "IdLease");
        EXPECT_EQ(Cents(Total(Run("Lease Ledger.rpt"), "p Total balance of rent and fees = ")),
                  Cents(balance));
        report.SelectedId = Id(lease, "IdTenant");
        const FlowLines tenant = Run("Tenant Statement.rpt");
        EXPECT_EQ(Cents(Amount(tenant, "Balance brought forward") + Amount(tenant, "Charges") -
                        Amount(tenant, "Credits and payments")),
                  Cents(Amount(tenant, "Balance on 06/15/2026")));
        EXPECT_EQ(Cents(Amount(tenant, "Balance on 06/15/2026")), Cents(balance));
    }
}

TEST_F(Shipped, OwnersShareAndPostedRowsAreThoseOfTheBooks) {
    const Date from(2025, 6, 15);
    std::map<std::int32_t, double> nets;
    Currency events;
    for (const Row& row : Rows("Transactions")) {
        if (Day(row, "DateEffective") < from || Id(row, "IEN") > 1) continue;
        nets[Id(row, "IdBuilding")] +=
            Money(row, "Amount").ToDouble() * (Id(row, "IEN") == 0 ? 1 : -1);
        if (Text(row, "CheckNum") == "AutoEvent") events += Money(row, "Amount");
    }
    std::map<std::int32_t, double> shares;
    for (const Row& link : Rows("OwnerLink")) {
        shares[Id(link, "IdAccount")] +=
            nets[Id(link, "IdBuilding")] * link.at("Percent").AsDouble() / 100;
    }
    ASSERT_FALSE(shares.empty());
    for (const auto& [owner, share] : shares) {
        report.SelectedId = owner;
        ExpectNear(Amount(Run("Owner Statement.rpt"), "Your share of all buildings"),
                   Currency::FromDouble(share), 1);
    }
    Currency charged;
    for (const Row& row : Rows("RentLog")) {
        const std::string category = Text(row, "Category");
        const bool isOfTheRun = category == "Rent" || category == "Rent Subsidy " ||
                                category == "Rent Discount" || category == "Late Fee";
        if (isOfTheRun && Id(row, "Flags") != 2 && Day(row, "DatePosted") >= from)
            charged += Money(row, "Amount");
    }
    Currency loans;
    for (const Row& row : Rows("MortgageLog")) {
        if (Id(row, "Flags") != 2 && Id(row, "Flags") != 0 && Day(row, "DatePosted") >= from)
            loans += Money(row, "Total");
    }
    const FlowLines audit = Run("Daily Run Audit.rpt");
    EXPECT_EQ(Cents(Total(audit, "p Total charged to leases = ")), Cents(charged));
    EXPECT_EQ(Cents(Total(audit, "p Total charged by mortgages = ")), Cents(loans));
    double miles = 0;
    for (const Row& trip : Rows("Mileage"))
        miles += trip.at("Mileage").AsDouble();
    ExpectNear(Total(Run("Mileage Log.rpt"), "p Total miles = "), Currency::FromDouble(miles), 60);
}

} // namespace

} // namespace tests
