#include <algorithm>
#include <cmath>
#include <set>

#include "platform/values/Conversions.h"
#include "reports/ShippedFixture.h"

// The lists and schedules that come with the program, held against the
// rows of the books.

namespace tests {

namespace {

using platform::Currency;
using platform::Date;

const Date kToday(2026, 6, 15);
const Date kYearAgo(2025, 6, 15);
const std::set<std::string> kRunning = {"Contracted", "MTM", "WTW", "Notice"};

class ShippedLists : public Shipped {
  protected:
    static std::vector<Row> Running() {
        std::vector<Row> leases = Rows("Lease");
        std::erase_if(leases,
                      [](const Row& one) { return !kRunning.contains(Text(one, "Status")); });
        return leases;
    }
    /// The building of each unit.
    static std::map<std::int32_t, std::int32_t> BuildingOfUnit() {
        std::map<std::int32_t, std::int32_t> found;
        for (const Row& unit : Rows("Unit"))
            found[Id(unit, "IdUnit")] = Id(unit, "IdBuilding");
        return found;
    }
    /// The row of a table whose first cell is `label`.
    static std::vector<std::string> RowOf(const FlowLines& flow, std::string_view caption,
                                          const std::string& label) {
        for (const auto& row : TableRows(flow, caption)) {
            if (row[0] == label) return row;
        }
        ADD_FAILURE() << "no row " << label << " under " << caption;
        return std::vector<std::string>(10);
    }
    static Date EndOfTerm(const Row& lease) {
        const std::string type = Text(lease, "TermType");
        const auto interval = type.starts_with("Week")   ? platform::Interval::Week
                              : type.starts_with("Year") ? platform::Interval::Year
                                                         : platform::Interval::Month;
        return platform::DateAdd(interval, Id(lease, "Term"), Day(lease, "DateRenewed"));
    }
};

bool IsInPeriod(Date day) {
    return day.IsSet() && day >= kYearAgo && day <= kToday;
}

/// The amount in a cell.
Currency Shown(const std::string& cell) {
    return platform::StrToMoney(cell);
}

/// Days in a column are dates in order, and the next column says how far they are from today.
void ExpectDaysInOrder(const std::vector<std::vector<std::string>>& rows, std::size_t column) {
    Date before(1900, 1, 1);
    for (const auto& row : rows) {
        const Date day = Date::Parse(row.at(column));
        EXPECT_GE(day, before);
        EXPECT_EQ(row.at(column + 1), std::to_string(day.Serial() - kToday.Serial()));
        before = day;
    }
}

TEST_F(ShippedLists, VacancyCountsUnitsWithoutARunningLease) {
    auto building = BuildingOfUnit();
    std::set<std::int32_t> taken;
    std::map<std::int32_t, int> movedIn;
    std::map<std::int32_t, int> movedOut;
    for (const Row& lease : Rows("Lease")) {
        const std::int32_t unit = Id(lease, "IdUnit");
        if (kRunning.contains(Text(lease, "Status"))) taken.insert(unit);
        if (IsInPeriod(Day(lease, "DateActive"))) ++movedIn[building[unit]];
        Date out = Day(lease, "DateVacating");
        // A term that ran out has no day of moving out.
        if (!out.IsSet() && Text(lease, "Status") == "Expired") out = EndOfTerm(lease);
        if (IsInPeriod(out)) ++movedOut[building[unit]];
    }
    std::map<std::int32_t, int> units;
    std::map<std::int32_t, int> vacant;
    Currency lost;
    for (const Row& unit : Rows("Unit")) {
        const std::int32_t in = Id(unit, "IdBuilding");
        ++units[in];
        if (taken.contains(Id(unit, "IdUnit"))) continue;
        ++vacant[in];
        lost += Money(unit, "Rent");
    }
    const FlowLines flow = Run("Vacancy and Turnover.rpt");
    EXPECT_EQ(TableRows(flow, "Property").size() + taken.size(), Rows("Unit").size());
    EXPECT_EQ(ColumnSum(flow, "Property", 3), lost);
    EXPECT_EQ(Total(flow, "p Total rent not earned a month = "), lost);
    ASSERT_FALSE(lost.IsZero());
    for (const Row& row : Rows("Building")) {
        const std::int32_t id = Id(row, "IdBuilding");
        const auto shown = RowOf(flow, "Building", Text(row, "Address"));
        EXPECT_EQ(shown[1], std::to_string(units[id]));
        EXPECT_EQ(shown[2], std::to_string(vacant[id]));
        EXPECT_NEAR(std::stod(shown[3]), 100.0 * vacant[id] / units[id], 0.05);
        EXPECT_EQ(shown[4], std::to_string(movedIn[id]));
        EXPECT_EQ(shown[5], std::to_string(movedOut[id]));
    }
}

TEST_F(ShippedLists, ExpirationsShowEveryRunningLeaseOnce) {
    std::multiset<std::string> ends;
    Currency rent;
    for (const Row& lease : Running()) {
        rent += Money(lease, "Rent");
        if (Text(lease, "Status") == "Contracted") ends.insert(EndOfTerm(lease).ToText());
    }
    const FlowLines flow = Run("Lease Expirations.rpt");
    std::multiset<std::string> shown;
    Currency sum;
    const auto rows = TableRows(flow, "Tenant");
    for (const auto& row : rows) {
        sum += Shown(row.back());
        if (row.size() == 6) shown.insert(row[2]);
    }
    EXPECT_EQ(rows.size(), Running().size());
    EXPECT_EQ(sum, rent);
    EXPECT_EQ(shown, ends);
    std::vector<std::vector<std::string>> fixed(rows.begin(),
                                                rows.begin() + static_cast<long>(shown.size()));
    ExpectDaysInOrder(fixed, 2);
    EXPECT_EQ(
        TableRows(Run("Tenant Directory.rpt"), "Tenant").size(), Running().size() + [] {
            const auto tenants = Rows("Tenant");
            return static_cast<std::size_t>(std::ranges::count_if(tenants, [](const Row& one) {
                return Text(one, "Status") == "Pending" || Text(one, "Status") == "Approved";
            }));
        }());
}

TEST_F(ShippedLists, MortgagesAddUpAndTheirSchedulesPayTheLoan) {
    double loans = 0;
    double balances = 0;
    double payments = 0;
    Currency escrow;
    std::size_t open = 0;
    for (const Row& loan : Rows("Mortgage")) {
        if (Text(loan, "Status") == "Closed") continue;
        ++open;
        loans += Number(loan, "OrigPV");
        balances += Number(loan, "CurrentPV");
        payments += Number(loan, "CurrentPmt");
        escrow += Money(loan, "EscrowAmount");
    }
    ASSERT_GT(open, 1U);
    const FlowLines flow = Run("Mortgage Summary.rpt");
    const int rows = static_cast<int>(open);
    EXPECT_EQ(TableRows(flow, "Building").size(), open);
    const auto near = [&](const char* label, std::size_t column, double sum) {
        EXPECT_NEAR(Amount(flow, label).ToDouble(), sum, 0.01 * rows) << label;
        EXPECT_NEAR(ColumnSum(flow, "Building", column).ToDouble(), sum, 0.01 * rows) << label;
    };
    near("Loans", 2, loans);
    near("Balances", 3, balances);
    near("Payments a month", 5, payments);
    near("Escrow a month", 6, escrow.ToDouble());

    for (const Row& loan : Rows("Mortgage")) {
        report.SelectedId = Id(loan, "IdMortgage");
        const auto months = TableRows(Run("Amortization Schedule.rpt"), "No.");
        ASSERT_FALSE(months.empty());
        EXPECT_NEAR(Shown(months.front()[5]).ToDouble(),
                    Number(loan, "OrigPV") * Number(loan, "OrigRate") / 12, 0.011);
        double balance = Number(loan, "OrigPV");
        for (const auto& month : months) {
            balance -= Shown(month[3]).ToDouble() + Shown(month[4]).ToDouble();
            EXPECT_NEAR(Shown(month[6]).ToDouble(), balance, 0.01 * std::stod(month[0]) + 0.01);
        }
        const FlowLines record = Run("Mortgage Record.rpt");
        EXPECT_NEAR(Amount(record, "Balance").ToDouble(), Number(loan, "CurrentPV"), 0.006);
    }
}

TEST_F(ShippedLists, DepreciationUsesUpTheBasis) {
    const double first[] = {3.485, 3.182, 2.879, 2.576, 2.273, 1.97,
                            1.667, 1.364, 1.061, 0.758, 0.455, 0.152};
    int schedules = 0;
    for (const Row& building : Rows("Building")) {
        const Date bought = Day(building, "PurchDate");
        const double basis = Money(building, "DeprBasis").ToDouble();
        if (!bought.IsSet() || basis <= 0) continue;
        ++schedules;
        report.SelectedId = Id(building, "IdBuilding");
        const FlowLines flow = Run("Depreciation Schedule.rpt");
        double ending = basis;
        int year = bought.Year();
        for (const std::string& line : flow.lines) {
            if (!line.starts_with("row 12/31/")) continue;
            const double percent = year == bought.Year() ? first[bought.Month() - 1] : 3.636;
            const double loss = std::min(ending, basis * percent / 100);
            const std::string cells = line.substr(4);
            const auto shown = Amounts(flow, cells.substr(0, 10), 2);
            ASSERT_EQ(shown.size(), 1U);
            EXPECT_EQ(cells.substr(6, 4), std::to_string(year));
            EXPECT_NEAR(shown[0].ToDouble(), loss, 0.02);
            ending -= loss;
            if (year == 2025) {
                EXPECT_EQ(Amount(flow, "2025 Depreciation"), shown[0]);
            }
            ++year;
        }
        EXPECT_GE(year - bought.Year(), 28);
    }
    EXPECT_GT(schedules, 2);
}

TEST_F(ShippedLists, WorkOrdersAndRenewalsAreThoseOfTheBooks) {
    auto building = BuildingOfUnit();
    Currency estimates;
    std::size_t open = 0;
    std::map<std::int32_t, Currency> costs;
    std::map<std::int32_t, int> closed;
    std::map<std::int32_t, Currency> paid;
    for (const Row& order : Rows("WorkOrder")) {
        const std::string status = Text(order, "Status");
        if (status == "Open" || status == "Vendor") {
            ++open;
            estimates += Money(order, "Estimate");
        }
        if (!IsInPeriod(Day(order, "DateClosed"))) continue;
        ++closed[building[Id(order, "IdUnit")]];
        costs[building[Id(order, "IdUnit")]] += Money(order, "Actual");
    }
    const std::set<std::string> upkeep = {"Repairs", "Cleaning and Maint", "Supplies"};
    for (const Row& row : Rows("Transactions")) {
        if (Id(row, "IEN") == 1 && upkeep.contains(Text(row, "TaxCategory")) &&
            IsInPeriod(Day(row, "DateEffective")))
            paid[Id(row, "IdBuilding")] += Money(row, "Amount");
    }
    const FlowLines flow = Run("Open Work Orders.rpt");
    EXPECT_EQ(TableRows(flow, "Opened").size(), open);
    EXPECT_EQ(Total(flow, "p Total estimated = "), estimates);
    std::map<std::string, int> due;
    for (const Row& row : Rows("Building")) {
        const std::int32_t id = Id(row, "IdBuilding");
        const auto shown = RowOf(flow, "Building", Text(row, "Address"));
        EXPECT_EQ(shown[1], std::to_string(closed[id]));
        EXPECT_EQ(Shown(shown[2]), costs[id]);
        EXPECT_NEAR(Shown(shown[3]).ToDouble(), paid[id].ToDouble(), 0.006);
        due["Renew by"] += Text(row, "InsNextDue").empty() ? 0 : 1;
        due["Due"] += Text(row, "HOANextDue").empty() ? 0 : 1;
    }
    for (const Row& row : Rows("SvcContract"))
        due["Ends"] += Text(row, "DateStart").empty() ? 0 : 1;
    for (const Row& row : Rows("Mortgage")) {
        const bool counts =
            !Text(row, "LastEscrowReview").empty() && Text(row, "Status") != "Closed";
        due["Review by"] += counts ? 1 : 0;
    }
    const FlowLines renewals = Run("Renewals.rpt");
    for (const auto& [caption, count] : due) {
        const auto rows = TableRows(renewals, caption);
        EXPECT_EQ(rows.size(), static_cast<std::size_t>(count)) << caption;
        ExpectDaysInOrder(rows, 0);
    }
    EXPECT_GT(due["Ends"], 0);
}

TEST_F(ShippedLists, InventoriesAndTripsAreComplete) {
    std::map<std::int32_t, std::size_t> rooms;
    std::map<std::int32_t, Currency> appliances;
    std::map<std::int32_t, Currency> contents;
    for (const Row& row : Rows("Room"))
        ++rooms[Id(row, "IdUnit")];
    for (const Row& row : Rows("Appliance"))
        appliances[Id(row, "IdUnit")] += Money(row, "Cost");
    for (const Row& row : Rows("Content"))
        contents[Id(row, "IdUnit")] += Money(row, "Value");
    ASSERT_FALSE(rooms.empty() || appliances.empty());
    for (const auto& [unit, count] : rooms) {
        report.SelectedId = unit;
        const FlowLines flow = Run("Unit Inventory.rpt");
        EXPECT_EQ(TableRows(flow, "Room and size").size(), count);
        EXPECT_EQ(ColumnSum(flow, "Appliance", 3), appliances[unit]);
        EXPECT_EQ(ColumnSum(flow, "Description", 2), contents[unit]);
    }
    double miles = 0;
    for (const Row& trip : Rows("Mileage"))
        miles += Number(trip, "Mileage");
    const FlowLines log = Run("Mileage Log.rpt");
    ASSERT_GT(miles, 0);
    EXPECT_NEAR(ColumnSum(log, "Building", 2).ToDouble(), miles, 1);
    EXPECT_NEAR(ColumnSum(log, "Vehicle", 2).ToDouble(), miles, 1);
}

TEST_F(ShippedLists, TransactionsAreSummedByTheirKind) {
    std::map<int, Currency> sums;
    for (const Row& row : Rows("Transactions")) {
        if (IsInPeriod(Day(row, "DateEffective")))
            sums[std::min(Id(row, "IEN"), 2)] += Money(row, "Amount");
    }
    const FlowLines flow = Run("Transactions.rpt");
    EXPECT_NEAR(Amount(flow, "Income").ToDouble(), sums[0].ToDouble(), 0.006);
    EXPECT_NEAR(Amount(flow, "Expense").ToDouble(), sums[1].ToDouble(), 0.006);
    EXPECT_NEAR(Amount(flow, "Neither (deposits and the like)").ToDouble(), sums[2].ToDouble(),
                0.006);
    EXPECT_NEAR(ColumnSum(flow, "Date", 4).ToDouble(), (sums[0] + sums[1] + sums[2]).ToDouble(), 5);
}

} // namespace

} // namespace tests
