#include <algorithm>
#include <numeric>
#include <set>

#include "books/clsDepreciation.h"
#include "core/Configuration.h"
#include "platform/database/Recordset.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "reports/CheckReport.h"
#include "reports/LineGrammar.h"
#include "reports/ShippedFixture.h"
#include "store/CreateDatabase.h"

namespace {

using namespace tests;
using platform::Currency;
using platform::Date;
using platform::Recordset;

void ExpectNear(Currency shown, Currency sum, double tolerance = 0.006) {
    EXPECT_NEAR(shown.ToDouble(), sum.ToDouble(), tolerance);
}

/// The loss in a year of a building bought on a day.
Currency LossOf(int year, const std::string& bought, double basis) {
    books::clsDepreciation schedule;
    schedule.SetStartDate(bought);
    schedule.SetBasis(basis);
    schedule.Init();
    for (const auto& period : schedule.Schedule()) {
        if (Date::Parse(period.PeriodEnd).Year() == year) return period.Loss;
    }
    return {};
}

/// Days in a column are dates in order, and the next column says how far they are from today.
void ExpectDaysInOrder(const std::vector<std::vector<std::string>>& rows, std::size_t column) {
    Date before(1900, 1, 1);
    for (const auto& row : rows) {
        const Date day = Date::Parse(row.at(column));
        EXPECT_GE(day, before);
        EXPECT_EQ(row.at(column + 1), std::to_string(day.Serial() - Date(2026, 6, 15).Serial()));
        before = day;
    }
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

TEST_F(Shipped, RentRollNamesWhoIsToMoveIn) {
    const auto units = TableRows(Run("Rent Roll.rpt"), "Unit");
    const auto waiting = std::ranges::count_if(
        units, [](const auto& row) { return row[1].find(" (from ") != std::string::npos; });
    EXPECT_GT(waiting, 0);
    EXPECT_EQ(Currency::FromUnits(waiting),
              Sum("SELECT Count(*) FROM Lease WHERE Status = 'Pending'"));
}

TEST_F(Shipped, MonthsAreTheYearsTransactions) {
    const FlowLines statement = Run("Income Statement by Month.rpt");
    const FlowLines cash = Run("Cash Flow by Month.rpt");
    for (unsigned month = 1; month <= 12; ++month) {
        const Currency net =
            Sum("SELECT Sum(IIf(IEN = 0, Amount, -Amount)) FROM Transactions WHERE IEN <= 1 AND "
                "Year(DateValue(DateEffective)) = 2025 AND Month(DateValue(DateEffective)) = " +
                std::to_string(month));
        const auto shown = Amounts(statement, "Net", (month - 1) % 6 + 1);
        ASSERT_EQ(shown.size(), 2U);
        ExpectNear(shown[(month - 1) / 6], net);
        ExpectNear(Amount(cash, platform::FormatDate(Date(2025, month, 1), "mmmm"), 3), net);
    }
}

TEST_F(Shipped, ScheduleEAgreesWithTheLedgersAndTheSchedules) {
    const std::string of2025 = "FROM Transactions WHERE Year(DateValue(DateEffective)) = 2025";
    const auto sum = [&](const std::string& condition) {
        return Sum("SELECT Sum(Amount) " + of2025 + " AND " + condition);
    };
    const Currency rents = sum("IEN = 0");
    const Currency deductible = sum("IEN = 1 AND TaxCategory <> 'Mortgage Payment'");
    const Currency interest =
        Sum("SELECT Sum(Interest) FROM MortgageLog WHERE Flags = 1 AND IdTransaction IN (SELECT "
            "IdTransaction " +
            of2025 + ")");
    Currency depreciation;
    Recordset rows;
    for (rows.Open(core::App().Connection,
                   "SELECT PurchDate, DeprBasis FROM Building WHERE PurchDate <> ''");
         !rows.Eof(); rows.MoveNext())
        depreciation += LossOf(2025, rows[0].AsText(), rows[1].AsDouble());
    ASSERT_FALSE(interest.IsZero() || depreciation.IsZero());
    const std::pair<std::string, Currency> lines[] = {
        {"3", rents},
        {"12", interest},
        {"14", sum("IEN = 1 AND TaxCategory = 'Repairs'")},
        {"18", depreciation},
        {"20", deductible + interest + depreciation},
        {"21", rents - deductible - interest - depreciation}};
    const FlowLines flow = Run("Schedule E.rpt");
    for (const auto& [line, expected] : lines) {
        auto amounts = Amounts(flow, line, 2);
        ASSERT_GT(amounts.size(), 1U) << line;
        ExpectNear(amounts.back(), expected);
        // The lines of the buildings add up to the last one, which is of all.
        amounts.pop_back();
        ExpectNear(std::accumulate(amounts.begin(), amounts.end(), Currency()), expected,
                   0.01 * static_cast<double>(amounts.size()));
    }
    const FlowLines paid = Run("Mortgage Interest by Year.rpt");
    ExpectNear(Amount(paid, "2025", 2), interest); // the last table is of all loans
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
        for (const int year : {1999, 2000, 2001, 2026, 2027, 2028, 2029}) {
            report.SelectedYear = std::to_string(year);
            ExpectNear(Amount(Run("Schedule E.rpt"), "18", 2), LossOf(year, bought, 123456.78));
        }
    }
}

TEST_F(Shipped, ExpirationsShowEveryRunningLeaseOnce) {
    std::multiset<std::string> ends;
    std::size_t leases = 0;
    Recordset rows;
    for (rows.Open(core::App().Connection,
                   "SELECT Status, TermType, Term, DateRenewed FROM Lease WHERE Status IN "
                   "('Contracted', 'MTM', 'WTW', 'Notice')");
         !rows.Eof(); rows.MoveNext(), ++leases) {
        if (rows[0].AsText() != "Contracted") continue;
        const char unit = rows[1].AsText()[0];
        ends.insert(platform::DateAdd(unit == 'W'   ? platform::Interval::Week
                                      : unit == 'Y' ? platform::Interval::Year
                                                    : platform::Interval::Month,
                                      rows[2].AsLong(), rows[3].AsDate())
                        .ToText());
    }
    const auto all = TableRows(Run("Lease Expirations.rpt"), "Tenant");
    EXPECT_EQ(all.size(), leases);
    Currency rent;
    std::multiset<std::string> shown;
    std::vector<std::vector<std::string>> fixed;
    for (const auto& row : all) {
        rent += platform::StrToMoney(row.back());
        if (row.size() != 6) continue; // a lease that runs on
        shown.insert(row[2]);
        fixed.push_back(row);
    }
    EXPECT_EQ(rent, Sum("SELECT Sum(Rent) FROM Lease WHERE Status IN ('Contracted', 'MTM', 'WTW', "
                        "'Notice')"));
    EXPECT_EQ(shown, ends);
    EXPECT_FALSE(ends.empty());
    ExpectDaysInOrder(fixed, 2);
}

TEST_F(Shipped, RenewalsShowEachDayOnce) {
    const FlowLines flow = Run("Renewals.rpt");
    const std::pair<const char*, const char*> cases[] = {
        {"Renew by", "SELECT Count(*) FROM Building WHERE InsNextDue <> ''"},
        {"Due", "SELECT Count(*) FROM Building WHERE HOANextDue <> ''"},
        {"Ends", "SELECT Count(*) FROM SvcContract WHERE DateStart <> ''"},
        {"Review by",
         "SELECT Count(*) FROM Mortgage WHERE LastEscrowReview <> '' AND Status <> 'Closed'"}};
    for (const auto& [caption, sql] : cases) {
        EXPECT_EQ(Figure(flow, caption + std::string("#")), Sum(sql)) << caption;
        ExpectDaysInOrder(TableRows(flow, caption), 0);
    }
    EXPECT_FALSE(TableRows(flow, "Ends").empty());
}

TEST_F(Shipped, AmortizationPaysTheLoan) {
    Recordset loan;
    for (loan.Open(core::App().Connection, "SELECT IdMortgage, OrigPV, OrigRate FROM Mortgage");
         !loan.Eof(); loan.MoveNext()) {
        report.SelectedId = loan[0].AsLong();
        const auto months = TableRows(Run("Amortization Schedule.rpt"), "No.");
        ASSERT_FALSE(months.empty());
        const auto cell = [](const std::vector<std::string>& month, std::size_t column) {
            return platform::StrToMoney(month[column]).ToDouble();
        };
        double balance = loan[1].AsDouble();
        EXPECT_NEAR(cell(months.front(), 5), balance * loan[2].AsDouble() / 12, 0.011);
        for (const auto& month : months) {
            balance -= cell(month, 3) + cell(month, 4);
            EXPECT_NEAR(cell(month, 6), balance, 0.01 * std::stod(month[0]) + 0.01);
        }
    }
}

TEST_F(Shipped, DepreciationUsesUpTheBasis) {
    int schedules = 0;
    Recordset building;
    for (building.Open(core::App().Connection,
                       "SELECT IdBuilding, PurchDate, DeprBasis FROM Building WHERE PurchDate <> "
                       "'' AND DeprBasis > 0");
         !building.Eof(); building.MoveNext(), ++schedules) {
        report.SelectedId = building[0].AsLong();
        const FlowLines flow = Run("Depreciation Schedule.rpt");
        const double basis = building[2].AsDouble();
        double left = basis;
        int year = building[1].AsDate().Year();
        for (;; ++year) {
            const auto shown = Amounts(flow, "12/31/" + std::to_string(year), 2);
            if (shown.empty()) break;
            ASSERT_EQ(shown.size(), 1U) << year;
            ExpectNear(shown[0], LossOf(year, building[1].AsText(), basis));
            left -= shown[0].ToDouble();
        }
        EXPECT_GE(year - building[1].AsDate().Year(), 28);
        EXPECT_NEAR(left, 0, 0.2);
        ExpectNear(Amount(flow, "2025 Depreciation"), Amount(flow, "12/31/2025", 2));
    }
    EXPECT_GT(schedules, 2);
}

} // namespace
