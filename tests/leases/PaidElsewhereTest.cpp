// Another program pays a charge while its screen or list is open.

#include <functional>
#include <string>

#include "leases/BooksTest.h"
#include "leases/ChargeEditor.h"
#include "leases/DeleteCharges.h"
#include "leases/RentPayment.h"
#include "platform/database/Recordset.h"
#include "support/Dump.h"
#include "support/ScriptedDialogs.h"

namespace tests {

namespace {

using leases::ShownAs;
using platform::Date;

class PaidElsewhere : public BooksTest {
  protected:
    static void PayAll() {
        leases::SubmitPayment(leases::ProposePayment(kLeaseId, core::TransactionClass::Rent));
    }
    /// The message of the refusal, "" if the routine did its work. A refusal changes nothing.
    static std::string Refusal(const std::function<void()>& work) {
        const Lines before = support::Dump();
        try {
            work();
        } catch (const platform::ConflictError& error) {
            EXPECT_EQ(support::Dump(), before);
            return error.what();
        }
        return {};
    }
};

TEST_F(PaidElsewhere, AChargePaidWhileItsScreenStoodOpenIsNotOwedAgain) {
    const auto id = Charge(Date(2024, 1, 9), 40);
    PayAll();
    platform::Recordset row;
    row.Open(core::App().Connection, "SELECT * FROM RentLog WHERE IdRentLog = ?",
             platform::CursorMode::Updatable, {id});
    row["Amount"].Set(platform::Currency::FromUnits(45));
    EXPECT_EQ(Refusal([&] { leases::SaveCharge(row, 0); }),
              "The charge was paid after it was opened. It was not saved.");
}

TEST_F(PaidElsewhere, ADeletionOfOpenChargesSparesOneThatWasPaid) {
    const support::ScriptedDialogs dialogs({true, true});
    const auto fee = Charge(Date(2024, 1, 9), 40);
    const auto rent = Charge(Date(2024, 1, 1), 1000);
    PayAll();
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

} // namespace

} // namespace tests
