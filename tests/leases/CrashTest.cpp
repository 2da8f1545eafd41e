// A process killed in the middle of a routine leaves the books as before it or as after it.

#include <gtest/gtest.h>

#include "core/Globals.h"
#include "leases/ChargeEditor.h"
#include "leases/DeleteCharges.h"
#include "leases/LeaseFixture.h"
#include "leases/LeaseWizard.h"
#include "leases/Ledger.h"
#include "leases/mLease.h"
#include "platform/system/Clock.h"
#include "support/Crashes.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using platform::Date;
using support::CrashAtEveryStatement;
using support::Crashes;

class Crash : public testing::Test {
  protected:
    Crash() : books_(folder_.Path() / "db") {
        SetLeaseField("DailyFee", "3");
        platform::SetToday(Date(2024, 2, 14));
        leases::UpdateLeaseById(kLeaseId, leases::WalkMode::CatchUp);
    }

    static void ExpectWhole(const Crashes& crashes, int atLeast) {
        EXPECT_EQ(crashes.faults, std::vector<std::string>());
        EXPECT_GE(crashes.statements, atLeast);
        EXPECT_GT(crashes.asBefore, 0);
        EXPECT_EQ(crashes.asBefore + crashes.asAfter, crashes.statements);
    }

    support::TemporaryFolder folder_;
    BooksWithOneLease books_;
};

TEST_F(Crash, AChargesSaveOrRemovalIsNeverHalf) {
    ExpectWhole(CrashAtEveryStatement([] {
                    platform::Recordset row;
                    row.Open(core::App().Connection, "RentLog", platform::CursorMode::AppendOnly);
                    row.AddNew();
                    row["IdRentLog"].Set(std::int32_t{900});
                    row["IdLease"].Set(kLeaseId);
                    row["Amount"].Set(platform::Currency::FromUnits(7));
                    row["Class"].Set(std::int16_t{0});
                    row["Flags"].Set(std::int16_t{0});
                    leases::SaveCharge(row, 0);
                }),
                3);
    for (const std::size_t count : {1U, 3U}) {
        ExpectWhole(CrashAtEveryStatement([count] {
                        const support::ScriptedDialogs person({true});
                        std::vector<std::int32_t> ids;
                        for (const leases::LedgerRow& charge :
                             leases::ReadLedger(kLeaseId, leases::kLedgerTabs[0])) {
                            if (ids.size() < count) ids.push_back(charge.idRentLog);
                        }
                        leases::DeleteCharges(kLeaseId, ids, "All?", leases::ShownAs::Open);
                    }),
                    5);
    }
}

TEST_F(Crash, AWizardsLeaseIsNeverHalf) {
    core::App().Connection.Execute(
        "INSERT INTO Deposit (IdDeposit, IdBuilding, IdUnit, IsGlobal, Description, Amount) "
        "VALUES (300, 0, 0, True, 'Damage', 200)");
    ExpectWhole(CrashAtEveryStatement([] {
                    leases::FinishLeaseWizard({.newProperty = true,
                                               .address = "1 Oak",
                                               .newTenant = true,
                                               .lastName = "New",
                                               .startDate = Date(2024, 2, 1),
                                               .rent = platform::Currency::FromUnits(700)});
                }),
                15);
}

TEST_F(Crash, WorkWithoutAUnitIsFoundHalfDone) {
    const Crashes crashes = CrashAtEveryStatement([] {
        core::App().Connection.Execute("UPDATE Unit SET Status = 'Hold'");
        core::App().Connection.Execute("UPDATE Tenant SET Status = 'Archived'");
    });
    EXPECT_EQ(crashes.faults, std::vector<std::string>{"half done before statement 2"});
}

} // namespace

} // namespace tests
