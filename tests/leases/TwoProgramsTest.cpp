// A second program on the same books, between what a routine read and what it writes.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "core/DailyRun.h"
#include "core/Globals.h"
#include "leases/BooksTest.h"
#include "leases/ChargeEditor.h"
#include "leases/DeleteCharges.h"
#include "leases/DumpBooks.h"
#include "leases/LeaseCommands.h"
#include "leases/LeaseRun.h"
#include "leases/RentPayment.h"
#include "leases/mLease.h"
#include "platform/database/Recordset.h"
#include "platform/database/StatementProbe.h"
#include "platform/system/Clock.h"
#include "support/ScriptedDialogs.h"

namespace tests {

namespace {

using core::TransactionClass;
using leases::RentFlags;
using leases::RentPayment;
using leases::ShownAs;
using leases::WalkMode;
using platform::Date;

class TwoPrograms : public BooksTest {
  protected:
    TwoPrograms() { other_.Open(core::App().Connection.File()); }
    ~TwoPrograms() override { platform::SetStatementProbe({}); }

    /// What the other program does as soon as this one begins to write.
    void Meanwhile(std::vector<std::string> statements) {
        platform::SetStatementProbe([this, statements = std::move(statements)]() mutable {
            for (const std::string& statement : std::exchange(statements, {}))
                other_.Execute(statement);
        });
    }
    static RentPayment Propose() {
        return leases::ProposePayment(kLeaseId, TransactionClass::Rent);
    }
    /// The message of the refusal, "" if the routine did its work. A refusal changes nothing.
    static std::string Refusal(const std::function<void()>& work) {
        const Lines before = DumpBooks();
        try {
            work();
        } catch (const platform::ConflictError& error) {
            EXPECT_EQ(DumpBooks(), before);
            return error.what();
        }
        return {};
    }

    platform::Connection other_;
};

TEST_F(TwoPrograms, AChargeIsPaidOnceHoweverManyPaymentsShowIt) {
    const auto rent = Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    Charge(Date(2024, 1, 9), 40);
    const RentPayment stale = Propose();
    const RentPayment first = Propose();
    leases::SubmitPayment(first);
    const std::string after = " after this payment was opened. Nothing was posted.";
    EXPECT_EQ(Refusal([&] { leases::SubmitPayment(stale); }),
              "The charge \"1000 on 01/01/2024\" of 01/01/2024 was paid" + after);
    EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease"), "02/01/2024");
    const std::string where = " WHERE IdRentLog = " + std::to_string(rent);
    Run("UPDATE RentLog SET IdTransaction = 0, Amount = 999" + where);
    EXPECT_EQ(Refusal([&] { leases::SubmitPayment(stale); }),
              "The charge \"1000 on 01/01/2024\" of 01/01/2024 was changed" + after);
    Run("DELETE * FROM RentLog" + where);
    EXPECT_EQ(Refusal([&] { leases::SubmitPayment(stale); }),
              "The charge \"1000 on 01/01/2024\" of 01/01/2024 was deleted" + after);
    Run("DELETE * FROM Lease");
    EXPECT_EQ(Refusal([&] { leases::SubmitPayment(stale); }), "The lease was deleted" + after);
}

TEST_F(TwoPrograms, AChargeThatIsNotTickedStaysPaidByTheOther) {
    Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    Charge(Date(2024, 1, 9), 40);
    RentPayment rent = Propose();
    rent.charges[1].selected = false;
    RentPayment fee = Propose();
    fee.charges[0].selected = false;
    leases::SubmitPayment(fee);
    leases::SubmitPayment(rent);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE IdTransaction = 0"), "0");
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM Transactions"), "1040");
}

TEST_F(TwoPrograms, AnEditOfAPaymentThatWasEditedSinceIsRefused) {
    Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    const std::int32_t id = leases::SubmitPayment(Propose());
    Charge(Date(2024, 1, 9), 40);
    RentPayment mine = leases::ReadPayment(id);
    RentPayment theirs = leases::ReadPayment(id);
    leases::ReadCharges(theirs, leases::OpenCharges::Offer);
    theirs.charges[1].selected = true;
    leases::SubmitPayment(theirs);
    mine.description = "Mine";
    EXPECT_EQ(Refusal([&] { leases::SubmitPayment(mine); }),
              "The payment was changed after it was opened. Nothing was posted.");
    leases::ReadCharges(mine);
    leases::SubmitPayment(mine);
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions WHERE Description = 'Mine'"), "1040");

    // The charges that the other edit reopened or settled are listed, but not in their present
    // state.
    for (const bool released : {true, false}) {
        RentPayment stale = leases::ReadPayment(id);
        leases::ReadCharges(stale, leases::OpenCharges::Offer);
        RentPayment edit = stale;
        edit.charges[1].selected = !released;
        leases::SubmitPayment(edit);
        EXPECT_EQ(Refusal([&] { leases::SubmitPayment(stale); }),
                  "The payment was changed after it was opened. Nothing was posted.");
    }
}

TEST_F(TwoPrograms, APaymentOfNothingGetsOneRowFromTwoEdits) {
    Charge(Date(2024, 1, 1), 1000, RentFlags::PeriodRent);
    RentPayment payment = Propose();
    payment.charges[0].selected = false;
    const std::int32_t id = leases::SubmitPayment(payment);
    RentPayment first = leases::ReadPayment(id);
    RentPayment second = first;
    for (RentPayment* const edit : {&first, &second}) {
        leases::ReadCharges(*edit, leases::OpenCharges::Offer);
        edit->charges[0].selected = true;
    }
    leases::SubmitPayment(first);
    leases::SubmitPayment(second);
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE Flags = 2"), "1");
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM RentLog"), "0");
}

TEST_F(TwoPrograms, AChargePaidWhileItsScreenStoodOpenIsNotOwedAgain) {
    const auto id = Charge(Date(2024, 1, 9), 40);
    leases::SubmitPayment(Propose());
    platform::Recordset row;
    row.Open(core::App().Connection, "SELECT * FROM RentLog WHERE IdRentLog = ?",
             platform::CursorMode::Updatable, {id});
    row["Amount"].Set(platform::Currency::FromUnits(45));
    EXPECT_EQ(Refusal([&] { leases::SaveCharge(row, 0); }),
              "The charge was paid after it was opened. It was not saved.");
}

TEST_F(TwoPrograms, ADeletionOfOpenChargesSparesOneThatWasPaid) {
    const support::ScriptedDialogs dialogs({true, true});
    const auto fee = Charge(Date(2024, 1, 9), 40);
    const auto rent = Charge(Date(2024, 1, 1), 1000);
    leases::SubmitPayment(Propose());
    EXPECT_EQ(Refusal([&] {
                  leases::DeleteCharges(kLeaseId, {fee, rent}, "Delete all selected charges?",
                                        ShownAs::Open);
              }),
              "The charge \"40 on 01/09/2024\" was paid after the list was read. Nothing was "
              "deleted.");
    EXPECT_TRUE(leases::DeleteCharges(kLeaseId, {fee, rent}, "Really?", ShownAs::OpenOrSettled));
    EXPECT_EQ(dialogs.Heard().front().text,
              "Delete all selected charges?\n\n01/09/2024, 40 on 01/09/2024, 40.00\n"
              "01/01/2024, 1000 on 01/01/2024, 1,000.00");
}

class RunListener : public core::RunListener {
  public:
    void Posted(int, std::int32_t, std::string_view,
                const std::vector<core::PostedRow>& rows) override {
        posted += static_cast<int>(rows.size());
    }
    void Failed(int, std::int32_t, std::string_view, std::string_view reason) override {
        faults.emplace_back(reason);
    }
    int posted = 0;
    std::vector<std::string> faults;
};

const std::vector<std::string> kChargedToToday = {
    "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Flags, Amount) "
    "VALUES (1, 101, 0, '03/01/2024', 1, 1, 1000)",
    "UPDATE Lease SET DateUpdated = '03/05/2024', RentDue = 1000"};

TEST_F(TwoPrograms, ALeaseIsChargedOnceByTwoRuns) {
    SetLeaseField("DateNextDue", "03/01/2024");
    SetLeaseField("DateUpdated", "02/15/2024");
    Meanwhile(kChargedToToday);
    RunListener listener;
    leases::UpdateLeases(listener);
    EXPECT_EQ(listener.posted, 0);
    EXPECT_EQ(listener.faults, Lines{});
    EXPECT_EQ(Ledger(), Lines{"03/01/2024 1 1,000.00 -"});
}

TEST_F(TwoPrograms, ALeaseThatIsOpenedWhileARunChargesItIsChargedOnce) {
    SetLeaseField("DateNextDue", "03/01/2024");
    SetLeaseField("DateUpdated", "02/15/2024");
    Meanwhile(kChargedToToday);
    EXPECT_TRUE(leases::UpdateLeaseById(kLeaseId, WalkMode::CatchUp).empty());
    EXPECT_EQ(Ledger(), Lines{"03/01/2024 1 1,000.00 -"});
    EXPECT_EQ(Ask("SELECT RentStatus FROM Lease"), "Due");
}

TEST_F(TwoPrograms, ANoticeIsGivenToTheLeaseAsItIsNow) {
    Meanwhile({"UPDATE Lease SET Rent = 1100"});
    leases::ChangeStatus(kLeaseId, "Notice", Date(2024, 4, 30));
    EXPECT_EQ(Ask("SELECT Status FROM Lease WHERE Rent = 1100"), "Notice");
}

} // namespace

} // namespace tests
