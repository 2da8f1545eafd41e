// A process killed in the middle of a routine leaves the books as before it or as after it.

#include <gtest/gtest.h>

#include "core/Globals.h"
#include "leases/ChargeEditor.h"
#include "leases/Crashes.h"
#include "leases/DeleteCharges.h"
#include "leases/LeaseCommands.h"
#include "leases/LeaseEditor.h"
#include "leases/LeaseFixture.h"
#include "leases/LeaseWizard.h"
#include "leases/Ledger.h"
#include "leases/RentPayment.h"
#include "leases/RentSplit.h"
#include "leases/mLease.h"
#include "platform/system/Clock.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using core::TransactionClass;
using leases::LeaseCommand;
using leases::RentPayment;
using platform::Date;

class Crash : public testing::Test {
  protected:
    Crash() : books_(folder_.Path() / "db") {
        SetLeaseField("Option", "True");
        SetLeaseField("OptionCredit", "25");
        SetLeaseField("DailyFee", "3");
        platform::SetToday(Date(2024, 2, 14));
        leases::UpdateLeaseById(kLeaseId, leases::WalkMode::CatchUp);
    }

    static std::string Scalar(std::string_view sql) {
        return core::App().Connection.Scalar(sql)->AsText();
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

TEST_F(Crash, APaymentIsNeverHalf) {
    // The events it triggers on either side are part of it.
    for (const auto* values : {"500, 5, 103", "501, 1, 105"}) {
        core::App().Connection.Execute(
            "INSERT INTO AutoEvent (IdAutoEvent, TriggerType, TriggerID, EventType, Enabled, "
            "Alert, TriggerTaxCategory, EventAction, DebitType, DebitId, CreditType, CreditId, "
            "Amount, TaxCategory, IEN, Description) VALUES (" +
            std::string(values) +
            ", 2, True, True, 'Rent Payment', 1, 1, 105, 1, 106, 80, 'Fees', 1, 'Fee')");
    }
    ExpectWhole(CrashAtEveryStatement([] {
                    leases::SubmitPayment(leases::ProposePayment(kLeaseId, TransactionClass::Rent));
                }),
                30);
    EXPECT_EQ(Scalar("SELECT Count(*) FROM Transactions"), "3");
}

TEST_F(Crash, AnEditedPaymentIsNeverHalf) {
    const auto id = leases::SubmitPayment(leases::ProposePayment(kLeaseId, TransactionClass::Rent));
    ExpectWhole(CrashAtEveryStatement([id] {
                    RentPayment payment = leases::ReadPayment(id);
                    payment.charges.front().selected = false;
                    payment.checkNumber = "17";
                    leases::SubmitPayment(payment);
                }),
                10);
}

TEST_F(Crash, ACatchUpRunIsNeverHalf) {
    ExpectWhole(CrashAtEveryStatement([] {
                    platform::SetToday(Date(2024, 4, 2));
                    leases::UpdateLeaseById(kLeaseId, leases::WalkMode::CatchUp);
                }),
                10);
}

TEST_F(Crash, ASplitIsNeverHalf) {
    const std::string id = Scalar("SELECT IdRentLog FROM RentLog WHERE Flags = 1");
    ExpectWhole(CrashAtEveryStatement([&] {
                    auto split = leases::ReadSplit(std::stoi(id));
                    split->parts[0].amount = platform::Currency::FromUnits(400);
                    split->parts[1].amount = platform::Currency::FromUnits(600);
                    leases::SaveSplit(*split);
                }),
                8);
}

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

TEST_F(Crash, ACommandIsNeverHalf) {
    for (const LeaseCommand command : {LeaseCommand::Reprocess, LeaseCommand::RollForward,
                                       LeaseCommand::GiveNotice, LeaseCommand::BreakLease}) {
        if (command == LeaseCommand::RollForward) SetLeaseField("DateNextDue", "06/01/2024");
        ExpectWhole(CrashAtEveryStatement(
                        [&] { leases::RunCommand(command, kLeaseId, /*noticeDays=*/30); }),
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

TEST_F(Crash, ASaveOfANewLeaseIsNeverHalf) {
    ExpectWhole(CrashAtEveryStatement([] {
                    platform::Recordset row;
                    leases::ProposeLease(row);
                    row["IdLease"].Set(std::int32_t{900});
                    row["IdUnit"].Set(kUnitId);
                    row["IdTenant"].Set(kTenantId);
                    leases::SaveLease(row, leases::LeaseAge::New);
                }),
                5);
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
