#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/CoreFixture.h"
#include "core/DailyRun.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "exchange/CheckBooks.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "removal/DeleteRecord.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"

namespace {

using platform::Date;

class SampleUnits : public tests::CoreBooks {};

/// Units whose status contradicts their leases, with both.
std::vector<std::string> Contradictions() {
    std::vector<std::string> faults;
    platform::Recordset rows;
    rows.Open(core::App().Connection,
              "SELECT Unit.IdUnit, Unit.Status, "
              "(SELECT Count(*) FROM Lease WHERE Lease.IdUnit = Unit.IdUnit AND Lease.Status IN "
              "('Contracted', 'MTM', 'WTW', 'Notice')) AS Running, "
              "(SELECT Count(*) FROM Lease WHERE Lease.IdUnit = Unit.IdUnit AND Lease.Status = "
              "'Pending') AS Waiting FROM Unit");
    for (; !rows.Eof(); rows.MoveNext()) {
        const bool isLeased = rows["Status"].AsText() == "Leased";
        const bool isLet = rows["Running"].AsLong() > 0;
        const bool isPromised = rows["Waiting"].AsLong() > 0;
        if (isLeased ? !isLet && !isPromised : isLet) {
            faults.push_back("unit " + rows["IdUnit"].AsText() + " is " + rows["Status"].AsText());
        }
    }
    return faults;
}

enum class Least { Note, Fault };

/// The findings of the check of the books, from notes or from faults on.
std::vector<std::string> Findings(Least least) {
    std::vector<std::string> found;
    for (const exchange::Finding& finding : exchange::CheckBooks(core::App().Connection, {})) {
        if (least == Least::Note || finding.severity == exchange::Severity::Fault) {
            found.push_back(finding.what);
        }
    }
    return found;
}

TEST_F(SampleUnits, AgreeWithTheirLeasesWheneverTheSampleIsMade) {
    shell::RegisterLogic();
    int made = 0;
    for (const Date today : {Date(2024, 2, 29), Date(2023, 12, 31), Date(2024, 11, 16)}) {
        SCOPED_TRACE(today.ToText());
        const auto folder = Folder() / ("sample" + std::to_string(++made));
        core::App().Connection.Close();
        shell::MakeSamplePortfolio(folder, 24, today);
        core::App().Connection.Open(folder / "Vestrel.mdb");
        EXPECT_EQ(Contradictions(), std::vector<std::string>());
        EXPECT_EQ(Findings(Least::Note), std::vector<std::string>());
        // A payment that was returned, charges paid from credit, and the credits of two tenants.
        EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE Description LIKE 'Returned *'"),
                  "1");
        EXPECT_NE(Ask("SELECT Count(*) FROM Transactions WHERE Description LIKE '*from credit'"),
                  "0");
        EXPECT_EQ(Ask("SELECT Count(*) FROM LeaseCredit WHERE SettleCharges = True"), "1");
        EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE IdTransaction = 0 AND Category = "
                      "'Credit'"),
                  "2");
    }
}

TEST_F(SampleUnits, AreInOrderAfterRecordsOfEachKindAreRemoved) {
    shell::RegisterLogic();
    core::App().Connection.Close();
    shell::MakeSamplePortfolio(Folder() / "sample", 24, Date(2024, 5, 17));
    core::App().DbFile = Folder() / "sample" / "Vestrel.mdb";
    core::App().Connection.Open(core::App().DbFile);
    const struct {
        core::RecordKind kind;
        const char* oneOf;
    } removals[] = {
        {core::kTransaction, "SELECT IdTransaction FROM Transactions WHERE Class = 1"},
        {core::kTransaction, "SELECT IdTransaction FROM Transactions WHERE Class = 2"},
        {core::kTransaction, "SELECT IdTransaction FROM Transactions WHERE Class = 5"},
        {core::kTransaction, "SELECT IdTransaction FROM Transactions WHERE Class = 0"},
        {core::kWorkOrder, "SELECT IdWorkOrder FROM WorkOrder"},
        {core::kAppliance, "SELECT IdAppliance FROM Appliance"},
        {core::kLease, "SELECT IdLease FROM Lease WHERE Status = 'MTM' OR Status = 'Contracted'"},
        {core::kTenant, "SELECT IdTenant FROM Lease"},
        {core::kMortgage, "SELECT IdMortgage FROM Mortgage"},
        {core::kUnit, "SELECT IdUnit FROM Lease"},
        {core::kBuilding, "SELECT IdBuilding FROM OwnerLink"},
        {core::kAccount, "SELECT IdAccount FROM OwnerLink"},
    };
    for (const auto& removed : removals) {
        const auto id = core::App().Connection.Scalar(removed.oneOf);
        ASSERT_TRUE(id) << removed.oneOf;
        EXPECT_TRUE(removal::DeleteRecord(removed.kind, id->AsLong(), removal::Confirm::DontAsk));
        core::UpdateRecords(); // computes the balances, as at the next start
        EXPECT_EQ(Findings(Least::Fault), std::vector<std::string>()) << removed.oneOf;
    }
    EXPECT_TRUE(std::filesystem::exists(Folder() / "sample" / "Vestrel before removal 1.mdb"));
}

} // namespace
