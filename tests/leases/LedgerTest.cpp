#include "leases/Ledger.h"

#include <fmt/core.h>

#include "books/SaveTransaction.h"
#include "books/TransactionListeners.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "leases/BooksTest.h"
#include "leases/ChargeEditor.h"
#include "leases/RentPayment.h"

namespace tests {

namespace {

using core::TransactionClass;
using leases::RentFlags;
using platform::Currency;
using platform::Date;

class LedgerTest : public BooksTest {};

TEST_F(LedgerTest, ADepositGoesBackToTheTenantOrToAnAccountThatIsStillToBeChosen) {
    SetLeaseField("DepositAccount", "106");
    SetLeaseField("DepositBalance", "350.5");
    const auto refund = leases::ProposeDepositRefund(kLeaseId);
    EXPECT_EQ(refund.debit.id, 106);
    EXPECT_EQ(refund.debit.description, "Housing Aid");
    EXPECT_EQ(refund.credit.type, core::kTenant);
    EXPECT_EQ(refund.credit.id, kTenantId);
    EXPECT_EQ(refund.amount, Currency::FromScaled(3505000));
    EXPECT_EQ(refund.taxCategory, "Deposit Refund");
    EXPECT_EQ(refund.ien, books::Ien::Unclassified);
    EXPECT_EQ(refund.transactionClass, 3);
    EXPECT_EQ(refund.flags, 3);
    const auto charge = leases::ProposeDepositCharge(kLeaseId);
    EXPECT_EQ(charge.credit.type, core::kAccount);
    EXPECT_EQ(charge.credit.id, 0);
    EXPECT_EQ(charge.taxCategory, "Deposit Charge");
    EXPECT_EQ(charge.ien, books::Ien::Income);
    EXPECT_EQ(charge.flags, 4);
    EXPECT_THROW(leases::ProposeDepositRefund(999), platform::DatabaseError);
}

TEST_F(LedgerTest, ATransactionThatTakesADepositOutHasOneRowInTheLedger) {
    auto refund = leases::ProposeDepositRefund(kLeaseId);
    refund.amount = Currency::FromUnits(120);
    leases::WriteDepositRow(50, refund);
    refund.amount = Currency::FromUnits(130);
    leases::WriteDepositRow(50, refund);
    EXPECT_EQ(Ledger(), Lines{"03/05/2024 3 130.00 +"});
    refund.flags = 0;
    leases::WriteDepositRow(51, refund);
    refund.flags = 3;
    refund.transactionClass = 0;
    leases::WriteDepositRow(52, refund);
    EXPECT_EQ(Ledger().size(), 1U) << "an ordinary transaction has none";
}

TEST_F(LedgerTest, ADepositIsOfferedForRefundOnce) {
    Charge(Date(2024, 1, 1), 300, RentFlags::Ordinary, TransactionClass::Deposit);
    leases::SubmitPayment(leases::ProposePayment(kLeaseId, TransactionClass::Deposit));
    books::RegisterTransactionListener(leases::WriteDepositRow);
    Lines told;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t, std::int32_t id) {
        told.push_back(fmt::format("{} {}", core::KindNumber(kind), id));
    });
    const auto refund = leases::ProposeDepositRefund(kLeaseId);
    EXPECT_EQ(refund.amount, Currency::FromUnits(300));
    const auto id = books::PostTransaction(refund);
    EXPECT_EQ(told, (Lines{"30 0", "2 101", "10 0"}));
    EXPECT_EQ(leases::ProposeDepositRefund(kLeaseId).amount, Currency());
    EXPECT_EQ(Ask("SELECT DepositRefunded FROM Lease"), "300");

    // Given to another lease, it is no refund of this one any more.
    Run("INSERT INTO Lease (IdLease, IdTenant, IdUnit) VALUES (199, 103, 102)");
    auto moved = refund;
    moved.idLease = 199;
    books::EditTransaction(id, moved, refund, books::Trip::None);
    EXPECT_EQ(Ask("SELECT DepositBalance FROM Lease WHERE IdLease = 101"), "300");
    EXPECT_EQ(Ask("SELECT DepositBalance FROM Lease WHERE IdLease = 199"), "-300");
}

TEST_F(LedgerTest, AnAmountIsSavedInWholeCents) {
    for (const auto& [entered, kept] : {std::pair<std::int64_t, std::int64_t>{100'000, 100'000},
                                        {100'050, 100'100},
                                        {0, 0},
                                        {-55'550, -55'600},
                                        {49, 0}}) {
        EXPECT_EQ(leases::InCents(Currency::FromScaled(entered)), Currency::FromScaled(kept));
    }
}

} // namespace

} // namespace tests
