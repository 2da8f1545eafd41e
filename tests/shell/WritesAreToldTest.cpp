// Every routine that writes a row of a table tells the open screens of the kind of that row.

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "books/Categories.h"
#include "books/SaveTransaction.h"
#include "books/ScheduledEvents.h"
#include "core/DailyRun.h"
#include "core/Globals.h"
#include "core/KindOfTable.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "documents/AttachFile.h"
#include "documents/FileRows.h"
#include "leases/DeleteCharges.h"
#include "leases/LeaseCommands.h"
#include "leases/LeaseWizard.h"
#include "leases/Ledger.h"
#include "leases/RentPayment.h"
#include "leases/RentSplit.h"
#include "leases/mLease.h"
#include "mortgages/ChargeEditor.h"
#include "mortgages/LogRows.h"
#include "mortgages/MortgageEditor.h"
#include "mortgages/MortgagePayment.h"
#include "mortgages/MortgageUpkeep.h"
#include "mortgages/MortgageWizard.h"
#include "platform/system/Clock.h"
#include "records/BuildingRules.h"
#include "records/DepositTemplates.h"
#include "removal/DeleteRecord.h"
#include "removal/PortfolioFixture.h"
#include "shell/Registrations.h"
#include "support/ScriptedDialogs.h"

namespace {

using core::TransactionClass;
using leases::LeaseCommand;
using mortgages::MortgageCommand;
using platform::Date;
using removal::Confirm;

class WritesAreTold : public tests::Portfolio {
  protected:
    WritesAreTold() {
        shell::RegisterLogic();
        Run("UPDATE Configuration SET NextId = 5000");
        for (const char* const money :
             {"Discount", "OneTimeFee", "DailyFee", "SubsAmt", "OptionCredit"})
            SetNulls("Lease", money, "0");
        for (const char* const days :
             {"DiscountDays", "OneTimeDays", "DailyDays", "EvictDays", "NoticeDays", "Term"})
            SetNulls("Lease", days, "30");
        // A payment triggers an event on the payer's side.
        Run("INSERT INTO AutoEvent (IdAutoEvent, EventType, Description, Enabled, Alert, "
            "IntervalPeriod, IntervalType, TriggerType, TriggerID, TriggerTaxCategory, "
            "EventAction, LastRun, DebitType, DebitId, CreditType, CreditId, Amount, TaxCategory) "
            "VALUES (990, 2, 'Fee', True, False, 0, 0, 5, 300, 'Rent Payment', 1, '', 1, 400, 1, "
            "404, 5, 'Supplies')");
        Run("INSERT INTO AutoEvent (IdAutoEvent, EventType, Description, Enabled, Alert, "
            "IntervalPeriod, IntervalType, EventAction, LastRun, DebitType, DebitId, CreditType, "
            "CreditId, Amount, TaxCategory) VALUES (991, 1, 'Lawn', True, False, 1, 3, 1, "
            "'10/20/2026', 1, 400, 1, 404, 45, 'Supplies')");
        platform::SetToday(Date(2026, 12, 3));
        mortgages::WizardEntries loan;
        loan.newAccount = false;
        loan.idAccount = 406;
        loan.lenderName = "First Mortgage";
        loan.origPV = loan.currentPV = platform::Currency::FromUnits(100'000);
        loan.origTerm = 30;
        loan.origRate = loan.currentRate = 6;
        loan.firstDue = loan.nextDue = Date(2026, 11, 1);
        idMortgage_ = mortgages::FinishWizard(loan);
        Run("DELETE * FROM Mortgage WHERE IdMortgage < 1000");
    }

    static void SetNulls(const std::string& table, const std::string& field,
                         const std::string& value) {
        Run("UPDATE " + table + " SET " + field + " = " + value + " WHERE " + field + " IS NULL");
    }

    /// The tables that `work` wrote and told nobody of; "Table: nothing written" if it did nothing.
    std::vector<std::string> Untold(const std::function<void()>& work) {
        std::set<core::RecordKind> told;
        Look();
        {
            const core::NotifyToken token(
                [&](core::RecordKind kind, std::int16_t, std::int32_t) { told.insert(kind); });
            work();
        }
        std::set<std::string> tables;
        for (const std::string& change : Changes()) {
            // The counter of identifiers is no setting that a screen shows.
            if (change.find(" NextId=") != std::string::npos) continue;
            const std::string line = change.substr(change.starts_with("+") ? 1 : 0);
            tables.insert(line.substr(0, line.find(' ')));
        }
        if (tables.empty()) return {"nothing was written"};
        std::vector<std::string> untold;
        for (const std::string& table : tables) {
            // Rows of no kind, such as those of StatusLog, are shown nowhere by themselves.
            const core::RecordKind kind = core::KindOfTable(table);
            if (kind != core::kNone && !told.contains(kind)) untold.push_back(table);
        }
        return untold;
    }

    struct Routine {
        const char* name;
        std::function<void()> work;
    };
    void ExpectTold(const std::vector<Routine>& routines) {
        for (const Routine& one : routines)
            EXPECT_EQ(Untold(one.work), std::vector<std::string>()) << one.name;
    }

    std::int32_t idMortgage_ = 0;
};

leases::RentPayment Payment() {
    return leases::ProposePayment(700, TransactionClass::Rent);
}

books::Transaction Repair() {
    books::Transaction repair;
    repair.dateEffective = Date(2026, 12, 1);
    repair.debit = {core::kAccount, 400, "River Bank"};
    repair.credit = {core::kAccount, 404, "Fix-It Co"};
    repair.amount = platform::Currency::FromUnits(60);
    repair.taxCategory = "Repairs";
    repair.ien = books::Ien::Expense;
    repair.idBuilding = 100;
    return repair;
}

TEST_F(WritesAreTold, ByEveryRoutineOfTheLeases) {
    const support::ScriptedDialogs dialogs({true, true, true});
    leases::LeaseWizardEntry wizard;
    wizard.newProperty = wizard.newTenant = true;
    wizard.address = "9 New St";
    wizard.lastName = "New";
    wizard.startDate = Date(2026, 11, 1);
    wizard.rent = platform::Currency::FromUnits(800);
    const auto run = [](LeaseCommand command) { leases::RunCommand(command, 700, 30); };
    std::int32_t paid = 0;
    ExpectTold({
        {"daily run", [] { core::UpdateRecords(); }},
        {"reprocess", [&] { run(LeaseCommand::Reprocess); }},
        {"split",
         [] {
             auto split = leases::ReadSplit(710).value();
             split.parts[0].amount = platform::Currency::FromUnits(900);
             split.parts[1].amount = platform::Currency::FromUnits(50);
             leases::SaveSplit(split);
         }},
        {"delete", [] { leases::DeleteCharges(700, {711}, "All?", leases::ShownAs::Open); }},
        {"payment with an event", [&] { paid = leases::SubmitPayment(Payment()); }},
        {"edited payment",
         [&] {
             auto payment = leases::ReadPayment(paid);
             payment.charges[0].selected = false;
             leases::SubmitPayment(payment);
         }},
        {"refund", [] { books::PostTransaction(leases::ProposeDepositRefund(700)); }},
        {"notice", [&] { run(LeaseCommand::GiveNotice); }},
        {"notice cancelled", [&] { run(LeaseCommand::CancelNotice); }},
        {"roll forward", [&] { run(LeaseCommand::RollForward); }},
        {"broken", [&] { run(LeaseCommand::BreakLease); }},
        {"renewed", [&] { run(LeaseCommand::RenewLease); }},
        {"next due date",
         [] { leases::AdvanceNextDue(700, leases::OptionCredit::Add, leases::Broadcast::Yes); }},
        {"wizard", [&] { leases::FinishLeaseWizard(wizard); }},
    });
}

TEST_F(WritesAreTold, ByEveryRoutineOfTheBooks) {
    std::int32_t id = 0;
    ExpectTold({
        {"posted", [&] { id = books::PostTransaction(Repair()); }},
        {"edited, with a trip",
         [&] {
             books::EditTransaction(id, Repair(), Repair(), books::Trip::Keep);
             // The screen that saves a record tells its own kind.
             core::NotifyAll(core::kTransaction, core::kRecordsChanged, 0);
         }},
        {"category",
         [] {
             books::AddCategory({"Parking", books::Ien::Income});
         }},
        {"category removed", [] { books::RemoveCategory("Parking"); }},
    });
}

TEST_F(WritesAreTold, ByEveryRoutineOfTheMortgages) {
    const support::ScriptedDialogs dialogs({true, true, true});
    const auto run = [&](MortgageCommand command) { mortgages::RunCommand(command, idMortgage_); };
    const auto open = [] {
        return std::stoi(Ask("SELECT IdMortgageLog FROM MortgageLog WHERE IdTransaction = 0"));
    };
    ExpectTold({
        {"daily run", [] { core::UpdateRecords(); }},
        {"charge",
         [&] {
             auto charge = mortgages::NewCharge(idMortgage_);
             charge.other = platform::Currency::FromUnits(25);
             mortgages::SaveCharge(charge, charge, 0);
         }},
        {"delete",
         [&] {
             mortgages::DeleteLogRows({mortgages::ShownCharge{open(), 0}}, "All?");
         }},
        {"payment",
         [&] {
             auto payment = mortgages::ProposeMortgagePayment(idMortgage_);
             mortgages::SelectAll(payment, mortgages::ChargeChoice::All, true);
             mortgages::SubmitMortgagePayment(payment);
         }},
        {"reprocess", [&] { run(MortgageCommand::Reprocess); }},
        {"payoff", [&] { run(MortgageCommand::Payoff); }},
    });
}

TEST_F(WritesAreTold, ByRecordsAndTheirFiles) {
    const support::ScriptedDialogs dialogs({true, true, true});
    std::string file = core::App().DbFile;
    ExpectTold({
        {"unit", [] { records::MakeNewUnit(100); }},
        {"deposit", [] { records::DeleteDeposit(650); }},
        {"file", [&] { documents::AttachFile(core::kUnit, 200, file); }},
        {"its text",
         [] { documents::DescribeFile(documents::FilesOf(core::kUnit, 200).at(0).id, "Map"); }},
    });
}

TEST_F(WritesAreTold, ByEveryRemoval) {
    for (const bool withCharges : {false, true}) {
        const support::ScriptedDialogs dialogs({withCharges, withCharges, withCharges});
        const std::int32_t id = withCharges ? 800 : 801;
        EXPECT_EQ(Untold([&] { removal::DeleteRecord(core::kTransaction, id, Confirm::DontAsk); }),
                  std::vector<std::string>())
            << id;
    }
    for (const auto& [kind, id] :
         std::vector<std::pair<core::RecordKind, std::int32_t>>{{core::kOwner, 420},
                                                                {core::kAppliance, 510},
                                                                {core::kWorkOrder, 600},
                                                                {core::kLease, 701},
                                                                {core::kUnit, 200},
                                                                {core::kTenant, 301},
                                                                {core::kAccount, 401},
                                                                {core::kMortgage, idMortgage_},
                                                                {core::kBuilding, 100},
                                                                {core::kBuilding, 101}}) {
        EXPECT_EQ(Untold([&] { removal::DeleteRecord(kind, id, Confirm::DontAsk); }),
                  std::vector<std::string>())
            << core::RecordKindName(kind) << ' ' << id;
    }
}

} // namespace
