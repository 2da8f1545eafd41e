#include <functional>
#include <map>

#include "platform/database/Recordset.h"
#include "platform/values/Conversions.h"
#include "reports/ShippedFixture.h"

// The figures of the reports that come with the program, held against the rows of the books.

namespace {

using namespace tests;
using platform::Currency;

using ShippedFigures = Shipped;

const std::string kRunning = "Status IN ('Contracted', 'MTM', 'WTW', 'Notice')";
const std::string kVacant =
    "FROM Unit WHERE IdUnit NOT IN (SELECT IdUnit FROM Lease WHERE " + kRunning + ")";
const std::string kOpenLoans = "FROM Mortgage WHERE Nz(Status, '') <> 'Closed'";
const std::string kOpenOrders = "FROM WorkOrder WHERE Status IN ('Open', 'Vendor')";

std::string InPeriod(const std::string& field) {
    return field + " <> '' AND DateValue(" + field + ") BETWEEN #06/15/2025# AND #06/15/2026#";
}

/// A select on the transactions of 2025.
std::string Of2025(const std::string& columns, const std::string& condition) {
    return "SELECT " + columns +
           " FROM Transactions WHERE Year(DateValue(DateEffective)) = 2025 AND " + condition;
}

/// A sum over the transactions of the period.
std::string InPeriodSum(const std::string& condition) {
    return "SELECT Sum(Amount) FROM Transactions WHERE " + InPeriod("DateEffective") + " AND " +
           condition;
}

/// The charges that nobody paid, of an age in days.
std::string Open(const std::string& age) {
    return "SELECT Sum(Amount) FROM RentLog WHERE Nz(IdTransaction, 0) = 0 AND Class <= 3 AND "
           "DateDiff('d', DateValue(DatePosted), #06/15/2026#) " +
           age;
}

/// Places of a report (several separated by "; ") that show what a select finds, but for the cents
/// that are lost where amounts are rounded before they are added up.
struct Case {
    const char* file;
    std::string places;
    std::string sql;
    double tolerance = 0.006;
};

void ForEachPlace(const Case& one, const std::function<void(std::string_view place)>& check) {
    std::string_view rest = one.places;
    for (auto end = rest.find("; "); end != std::string_view::npos; end = rest.find("; ")) {
        check(rest.substr(0, end));
        rest.remove_prefix(end + 2);
    }
    check(rest);
}

TEST_F(ShippedFigures, AreThoseOfTheBooks) {
    const std::string income = Of2025("Sum(Amount)", "IEN = 0");
    const std::string expense = Of2025("Sum(Amount)", "IEN = 1");
    const std::string net = Of2025("Sum(IIf(IEN = 0, Amount, -Amount))", "IEN IN (0, 1)");
    const std::string running = " FROM Lease WHERE " + kRunning;
    const std::string miles = "SELECT CCur(Sum(Mileage)) FROM Mileage";
    const Case cases[] = {
        {"Rent Roll.rpt", "Unit#3", "SELECT Sum(Rent)" + running},
        {"Rent Roll.rpt", "Unit#4; Rent a month",
         "SELECT Sum(CCur(Rent * IIf(TermType LIKE 'W*', 52, IIf(TermType LIKE 'Y*', 1, 12)) / "
         "12))" +
             running,
         0.1},
        {"Rent Roll.rpt", "Unit#5; Rent due", "SELECT Sum(RentDue)" + running},
        {"Rent Roll.rpt", "Unit#6; Deposits held", "SELECT Sum(DepositBalance)" + running},
        {"Rent Roll.rpt", "Running leases", "SELECT Count(*)" + running},
        {"Rent Roll.rpt", "Units", "SELECT Count(*) FROM Unit"},
        {"Who Owes What.rpt", "Tenant#2", Open("< 1")},
        {"Who Owes What.rpt", "Tenant#3", Open("BETWEEN 1 AND 30")},
        {"Who Owes What.rpt", "Tenant#4", Open("BETWEEN 31 AND 60")},
        {"Who Owes What.rpt", "Tenant#5", Open("BETWEEN 61 AND 90")},
        {"Who Owes What.rpt", "Tenant#6; Over 90 days", Open("> 90")},
        {"Who Owes What.rpt", "Tenant#7; Total", Open("> -1000")},
        {"Deposits Held.rpt", "p Total held = ", "SELECT Sum(DepositBalance) FROM Lease"},
        {"Income and Expense by Building.rpt", "Total income", income},
        {"Income and Expense by Building.rpt", "Total expense", expense},
        {"Income and Expense by Building.rpt", "Building#3", net, 0.2},
        {"Income and Expense by Building.rpt", "Category#1", income, 0.5},
        {"Income and Expense by Building.rpt", "Category#2", expense, 0.5},
        {"Income Statement by Month.rpt", "Net of the year", net},
        {"Cash Flow by Month.rpt", "Year", income},
        {"Transactions.rpt", "Transactions",
         "SELECT Count(*) FROM Transactions WHERE " + InPeriod("DateEffective")},
        {"Transactions.rpt", "Income", InPeriodSum("IEN = 0")},
        {"Transactions.rpt", "Expense", InPeriodSum("IEN = 1")},
        {"Transactions.rpt", "Neither (deposits and the like)", InPeriodSum("IEN > 1")},
        {"Transactions.rpt", "Date#4", InPeriodSum("IEN >= 0"), 5},
        {"Vendor Totals for 1099.rpt", "Total paid to vendors and managers",
         Of2025("Sum(Amount)",
                "CreditType = 1 AND CreditId IN (SELECT IdAccount FROM Account "
                "WHERE AccountType IN ('Vendor', 'Building Manager'))")},
        {"Vacancy and Turnover.rpt", "Property#", "SELECT Count(*) " + kVacant},
        {"Vacancy and Turnover.rpt",
         "Property#3; p Total rent not earned a month = ", "SELECT Sum(Rent) " + kVacant},
        {"Tenant Directory.rpt", "Tenant#",
         "SELECT (SELECT Count(*)" + running +
             ") + (SELECT Count(*) FROM Tenant WHERE Status IN ('Pending', 'Approved'))"},
        {"Mortgage Summary.rpt", "Building#", "SELECT Count(*) " + kOpenLoans},
        {"Mortgage Summary.rpt", "Loans; Building#2", "SELECT Sum(OrigPV) " + kOpenLoans, 0.1},
        {"Mortgage Summary.rpt", "Balances; Building#3", "SELECT Sum(CurrentPV) " + kOpenLoans,
         0.1},
        {"Mortgage Summary.rpt", "Payments a month; Building#5",
         "SELECT Sum(CurrentPmt) " + kOpenLoans, 0.1},
        {"Mortgage Summary.rpt", "Escrow a month; Building#6",
         "SELECT Sum(EscrowAmount) " + kOpenLoans, 0.1},
        {"Open Work Orders.rpt", "Opened#", "SELECT Count(*) " + kOpenOrders},
        {"Open Work Orders.rpt", "p Total estimated = ", "SELECT Sum(Estimate) " + kOpenOrders},
        {"Mileage Log.rpt", "Building#2; Vehicle#2; p Total miles = ", miles, 1},
        {"Daily Run Audit.rpt", "p Total charged to leases = ",
         "SELECT Sum(Amount) FROM RentLog WHERE Category IN ('Rent', 'Rent Subsidy ', 'Rent "
         "Discount', 'Late Fee') AND Nz(Flags, 0) <> 2 AND " +
             InPeriod("DatePosted")},
        {"Daily Run Audit.rpt", "p Total charged by mortgages = ",
         "SELECT Sum(Total) FROM MortgageLog WHERE Flags NOT IN (0, 2) AND " +
             InPeriod("DatePosted")},
    };
    std::map<std::string, FlowLines> flows;
    for (const Case& one : cases) {
        if (!flows.contains(one.file)) flows[one.file] = Run(one.file);
        const double expected = Sum(one.sql).ToDouble();
        EXPECT_NE(expected, 0) << one.sql;
        ForEachPlace(one, [&](std::string_view place) {
            EXPECT_NEAR(Figure(flows[one.file], place).ToDouble(), expected, one.tolerance)
                << one.file << ": " << place;
        });
    }
    report.DetailLevel = reports::Detail::Summary;
    const FlowLines summary = Run("Income and Expense by Building.rpt");
    EXPECT_LT(summary.lines.size(), flows["Income and Expense by Building.rpt"].lines.size());
    EXPECT_NEAR(Figure(summary, "Net").ToDouble(), Sum(net).ToDouble(), 0.006);
}

TEST_F(ShippedFigures, OfEachRecordAreItsOwn) {
    const std::string covered =
        "SELECT TOP 25 IdTransaction, Sum(Amount) FROM RentLog WHERE IdTransaction <> 0 AND "
        "Nz(Flags, 0) <> 2 GROUP BY IdTransaction ORDER BY 1";
    const auto moved = [](const std::string& side) {
        return "Nz((SELECT Sum(Amount) FROM Transactions WHERE " + side + "Type = 1 AND " + side +
               "Id = IdAccount";
    };
    const std::string moves = moved("Credit") + "), 0) - " + moved("Debit") + "), 0)";
    const std::string within = " AND " + InPeriod("DateEffective");
    const Case cases[] = {
        {"Rent Receipt.rcpt", "p Total received = ; Amount", covered},
        {"Payment Receipt.rcpt", "Amount", covered},
        {"Transaction Record.rpt", "Amount", covered},
        {"Lease Record.rpt", "Rent", "SELECT IdLease, Rent FROM Lease"},
        {"Lease Record.rpt", "Deposits held", "SELECT IdLease, DepositBalance FROM Lease"},
        {"Lease Ledger.rpt", "p Total balance of rent and fees = ",
         "SELECT IdLease, Sum(Amount) FROM RentLog WHERE Class = 1 GROUP BY IdLease"},
        {"Tenant Statement.rpt",
         "Balance on 06/15/2026; Balance brought forward + Charges - Credits and payments",
         "SELECT IdTenant, Sum(Amount) FROM RentLog INNER JOIN Lease ON RentLog.IdLease = "
         "Lease.IdLease WHERE Class = 1 GROUP BY IdTenant"},
        {"Unit Record.rpt", "Asking rent", "SELECT IdUnit, Rent FROM Unit"},
        {"Building Record.rpt", "Market value", "SELECT IdBuilding, MktValue FROM Building"},
        {"Building Record.rpt",
         "p Total asking rent = ", "SELECT IdBuilding, Sum(Rent) FROM Unit GROUP BY IdBuilding"},
        {"Work Order Record.rpt", "Actual", "SELECT IdWorkOrder, Actual FROM WorkOrder"},
        {"Mileage Record.rpt", "Miles", "SELECT IdMileage, Mileage FROM Mileage"},
        {"Mortgage Record.rpt", "Balance", "SELECT IdMortgage, CurrentPV FROM Mortgage"},
        {"Tenant Record.rpt", "Begins#3",
         "SELECT IdTenant, (SELECT Sum(Rent) FROM Lease WHERE Lease.IdTenant = Tenant.IdTenant) "
         "FROM Tenant"},
        {"Account Record.rpt", "p Total received less paid = ",
         "SELECT IdAccount, " + moved("Credit") + within + "), 0) - " + moved("Debit") + within +
             "), 0) FROM Account WHERE EXISTS (SELECT 1 FROM Transactions WHERE ((CreditType = 1 "
             "AND CreditId = IdAccount) OR (DebitType = 1 AND DebitId = IdAccount))" +
             within + ")"},
        {"Account Register.rpt",
         "Balance on 06/15/2026; Balance before 06/15/2025 + Came in - Went out",
         "SELECT IdAccount, " + moves + " FROM Account WHERE AccountType = 'Bank'", 0.03},
        {"Account Register.rpt", "Date#3",
         "SELECT IdAccount, " + moved("Credit") + within +
             "), 0) FROM Account WHERE AccountType = "
             "'Bank'",
         0.01},
        {"Owner Statement.rpt", "Your share of all buildings",
         "SELECT IdAccount, Sum(Percent * Nz((SELECT Sum(IIf(IEN = 0, Amount, -Amount)) FROM "
         "Transactions WHERE Transactions.IdBuilding = OwnerLink.IdBuilding AND IEN <= 1" +
             within + "), 0) / 100) FROM OwnerLink GROUP BY IdAccount",
         0.01},
        {"Unit Inventory.rpt", "Room and size#",
         "SELECT IdUnit, Count(*) FROM Room GROUP BY IdUnit"},
        {"Unit Inventory.rpt", "Appliance#3",
         "SELECT IdUnit, Sum(Cost) FROM Appliance GROUP BY IdUnit"},
        {"Unit Inventory.rpt", "Description#2",
         "SELECT IdUnit, Sum(Value) FROM Content GROUP BY IdUnit"},
    };
    for (const Case& one : cases) {
        bool isAnyNotZero = false;
        platform::Recordset rows;
        for (rows.Open(core::App().Connection, one.sql); !rows.Eof(); rows.MoveNext()) {
            const double expected = rows[1].IsNull() ? 0 : rows[1].AsDouble();
            isAnyNotZero = isAnyNotZero || expected != 0;
            report.SelectedId = rows[0].AsLong();
            const FlowLines flow = Run(one.file);
            ForEachPlace(one, [&](std::string_view place) {
                EXPECT_NEAR(Figure(flow, place).ToDouble(), expected, one.tolerance)
                    << one.file << " of " << report.SelectedId << ": " << place;
            });
        }
        EXPECT_TRUE(isAnyNotZero) << one.sql;
    }
}

TEST_F(ShippedFigures, OfBuildingsStandInTheirRows) {
    const std::string ofUnits = "(SELECT Count(*) FROM Unit WHERE Unit.IdBuilding = b.IdBuilding";
    const std::string inBuilding =
        " AND IdUnit IN (SELECT IdUnit FROM Unit WHERE Unit.IdBuilding = b.IdBuilding))";
    const std::string vacant =
        ofUnits + " AND IdUnit NOT IN (SELECT IdUnit FROM Lease WHERE " + kRunning + "))";
    const auto leases = [&](const std::string& condition) {
        return "(SELECT Count(*) FROM Lease WHERE (" + condition + ")" + inBuilding;
    };
    // A term that ran out has no day of moving out.
    const std::string ranOut =
        "Status = 'Expired' AND DateVacating = '' AND DateAdd(IIf(TermType LIKE 'Week*', 'ww', "
        "IIf(TermType LIKE 'Year*', 'yyyy', 'm')), Term, DateValue(DateRenewed)) BETWEEN "
        "#06/15/2025# AND #06/15/2026#";
    const auto orders = [&](const char* what) {
        return "Nz((SELECT " + std::string(what) + " FROM WorkOrder WHERE " +
               InPeriod("DateClosed") + inBuilding + ", 0)";
    };
    const std::string transactions =
        "Nz((SELECT Sum(IIf(IEN = 0, Amount, -Amount)) FROM Transactions WHERE "
        "Transactions.IdBuilding = b.IdBuilding AND IEN <= 1 AND ";
    const struct {
        const char* file;
        std::size_t firstColumn;
        std::string columns;
    } cases[] = {
        {"Vacancy and Turnover.rpt", 1,
         ofUnits + "), " + vacant + ", Round(100 * " + vacant + " / " + ofUnits + "), 1), " +
             leases(InPeriod("DateActive")) + ", " +
             leases(InPeriod("DateVacating") + " OR " + ranOut)},
        {"Open Work Orders.rpt", 1,
         orders("Count(*)") + ", " + orders("Sum(Actual)") + ", -" + transactions +
             InPeriod("DateEffective") +
             " AND TaxCategory IN ('Repairs', 'Cleaning and Maint', 'Supplies')), 0)"},
        {"Income and Expense by Building.rpt", 3,
         transactions + "Year(DateValue(DateEffective)) = 2025), 0)"},
    };
    for (const auto& one : cases) {
        std::map<std::string, std::vector<std::string>> shown;
        for (const auto& cells : TableRows(Run(one.file), "Building"))
            shown.try_emplace(cells[0], cells);
        double sum = 0;
        platform::Recordset rows;
        for (rows.Open(core::App().Connection,
                       "SELECT Address, " + one.columns + " FROM Building AS b");
             !rows.Eof(); rows.MoveNext()) {
            const std::string address = rows[0].AsText();
            for (std::size_t i = 1; i < rows.FieldCount(); ++i) {
                sum += std::abs(rows[i].AsDouble());
                if (!shown.contains(address) && rows[i].AsDouble() == 0) continue;
                EXPECT_NEAR(
                    platform::StrToMoney(shown[address].at(one.firstColumn + i - 1)).ToDouble(),
                    rows[i].AsDouble(), 0.006)
                    << one.file << ": " << address << ' ' << i;
            }
        }
        EXPECT_GT(sum, 0) << one.file;
    }
}

} // namespace
