#include "reports/ShippedFixture.h"

// The printed records and receipts that come with the program, held against the rows of the books.

namespace tests {

namespace {

using platform::Currency;
using platform::Date;

using ShippedRecords = Shipped;

bool IsInPeriod(Date day) {
    return day >= Date(2025, 6, 15) && day <= Date(2026, 6, 15);
}

TEST_F(ShippedRecords, ReceiptsShowThePaymentAndWhatItCovers) {
    std::map<std::int32_t, Currency> covered;
    for (const Row& row : Rows("RentLog")) {
        if (Id(row, "IdTransaction") != 0 && Id(row, "Flags") != 2)
            covered[Id(row, "IdTransaction")] += Money(row, "Amount");
    }
    int receipts = 0;
    for (const Row& row : Rows("Transactions")) {
        const std::int32_t id = Id(row, "IdTransaction");
        if (!covered.contains(id) || receipts == 25) continue;
        ++receipts;
        report.SelectedId = id;
        const Currency amount = Money(row, "Amount");
        const FlowLines rent = Run("Rent Receipt.rcpt");
        EXPECT_EQ(Amount(rent, "Amount"), amount);
        EXPECT_EQ(Total(rent, "p Total received = "), covered[id]);
        EXPECT_EQ(covered[id], amount);
        EXPECT_EQ(Amount(Run("Payment Receipt.rcpt"), "Amount"), amount);
        EXPECT_EQ(Amount(Run("Transaction Record.rpt"), "Amount"), amount);
    }
    EXPECT_EQ(receipts, 25);
}

TEST_F(ShippedRecords, PrintedRecordsHoldTheirOwnFigures) {
    const auto check = [this](const char* file, std::int32_t id, const char* label,
                              Currency amount) {
        report.SelectedId = id;
        EXPECT_NEAR(Amount(Run(file), label).ToDouble(), amount.ToDouble(), 0.006)
            << file << " of " << id;
    };
    for (const Row& lease : Rows("Lease")) {
        check("Lease Record.rpt", Id(lease, "IdLease"), "Rent", Money(lease, "Rent"));
        check("Lease Record.rpt", Id(lease, "IdLease"), "Deposits held",
              Money(lease, "DepositBalance"));
    }
    std::map<std::int32_t, Currency> asking;
    for (const Row& unit : Rows("Unit")) {
        asking[Id(unit, "IdBuilding")] += Money(unit, "Rent");
        check("Unit Record.rpt", Id(unit, "IdUnit"), "Asking rent", Money(unit, "Rent"));
    }
    for (const Row& building : Rows("Building")) {
        const std::int32_t id = Id(building, "IdBuilding");
        check("Building Record.rpt", id, "Market value", Money(building, "MktValue"));
        EXPECT_EQ(Total(Run("Building Record.rpt"), "p Total asking rent = "), asking[id]);
    }
    for (const Row& order : Rows("WorkOrder")) {
        check("Work Order Record.rpt", Id(order, "IdWorkOrder"), "Actual", Money(order, "Actual"));
    }
    for (const Row& trip : Rows("Mileage")) {
        check("Mileage Record.rpt", Id(trip, "IdMileage"), "Miles",
              Currency::FromDouble(Number(trip, "Mileage")));
    }
    for (const Row& tenant : Rows("Tenant")) {
        Currency rent;
        for (const Row& lease : Rows("Lease")) {
            if (Id(lease, "IdTenant") == Id(tenant, "IdTenant")) rent += Money(lease, "Rent");
        }
        report.SelectedId = Id(tenant, "IdTenant");
        EXPECT_EQ(ColumnSum(Run("Tenant Record.rpt"), "Begins", 3), rent);
    }
    for (const Row& account : Rows("Account")) {
        const std::int32_t id = Id(account, "IdAccount");
        Currency sum;
        bool moved = false;
        for (const Row& row : Rows("Transactions")) {
            if (!IsInPeriod(Day(row, "DateEffective"))) continue;
            const bool in = Id(row, "CreditType") == 1 && Id(row, "CreditId") == id;
            const bool out = Id(row, "DebitType") == 1 && Id(row, "DebitId") == id;
            if (!in && !out) continue;
            moved = true;
            sum += in ? Money(row, "Amount") : -Money(row, "Amount");
        }
        report.SelectedId = id;
        if (moved) {
            EXPECT_NEAR(
                Total(Run("Account Record.rpt"), "p Total received less paid = ").ToDouble(),
                sum.ToDouble(), 0.006);
        }
    }
}

} // namespace

} // namespace tests
