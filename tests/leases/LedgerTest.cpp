#include "leases/Ledger.h"

#include <algorithm>

#include <fmt/core.h>

#include "books/SaveTransaction.h"
#include "books/TransactionListeners.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "leases/BooksTest.h"
#include "leases/ChargeEditor.h"
#include "leases/RentPayment.h"
#include "leases/RentSplit.h"
#include "platform/values/Format.h"

namespace tests {

namespace {

using core::TransactionClass;
using leases::RentFlags;
using leases::RentSplit;
using platform::Currency;
using platform::Date;

class LedgerTest : public BooksTest {
  protected:
    static Lines Tab(std::string_view name) {
        for (const leases::LedgerTab& tab : leases::kLedgerTabs) {
            if (tab.name != name) continue;
            Lines lines;
            for (const leases::LedgerRow& row : leases::ReadLedger(kLeaseId, tab)) {
                lines.push_back(row.description +
                                (row.openTotal ? " = " + FormatMoney(*row.openTotal) : ""));
            }
            return lines;
        }
        return {"no such tab"};
    }
};

TEST_F(LedgerTest, EachTabShowsItsRowsTheLatestFirstAndSumsWhatIsOpen) {
    for (const int rentClass : {1, 2, 3, 4}) {
        const TransactionClass of{static_cast<std::int16_t>(rentClass)};
        Charge(Date(2024, 2, 1), 100 * rentClass, RentFlags::Ordinary, of);
        Charge(Date(2023, 12, 31), -10 * rentClass, RentFlags::Ordinary, of);
        const auto paid = Charge(Date(2024, 1, 1), rentClass, RentFlags::Ordinary, of);
        Run("UPDATE RentLog SET IdTransaction = 7 WHERE IdRentLog = " + std::to_string(paid));
    }
    Run("INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Amount) "
        "VALUES (1, 999, 0, '01/01/2024', 1, 5000)");
    EXPECT_EQ(Tab("Rent"), (Lines{"100 on 02/01/2024 = 90.00", "-10 on 12/31/2023 = (10.00)"}));
    EXPECT_EQ(Tab("Rent History"), Lines{"1 on 01/01/2024"});
    EXPECT_EQ(Tab("Subsidy"), (Lines{"200 on 02/01/2024 = 180.00", "-20 on 12/31/2023 = (20.00)"}));
    EXPECT_EQ(Tab("Subsidy History"), Lines{"2 on 01/01/2024"});
    EXPECT_EQ(Tab("Deposit"), (Lines{"300 on 02/01/2024 = 270.00", "-30 on 12/31/2023 = (30.00)"}));
    EXPECT_EQ(Tab("Deposit History"), Lines{"3 on 01/01/2024"});
    EXPECT_EQ(Tab("Option Credits"),
              (Lines{"400 on 02/01/2024", "4 on 01/01/2024", "-40 on 12/31/2023"}));
}

TEST_F(LedgerTest, RowsOfADayStandInTheOrderTheyCame) {
    Charge(Date(2024, 2, 1), 1);
    Charge(Date(2024, 2, 1), 2);
    EXPECT_EQ(Tab("Rent"), (Lines{"2 on 02/01/2024 = 3.00", "1 on 02/01/2024 = 1.00"}));
}

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
    const core::NotifyToken token([&](std::int16_t kind, std::int16_t, std::int32_t id) {
        told.push_back(fmt::format("{} {}", kind, id));
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

class Split : public LedgerTest {
  protected:
    static RentSplit Of(std::int32_t id, std::int64_t first, std::int64_t second) {
        RentSplit split = leases::ReadSplit(id).value();
        split.parts[0].amount = Currency::FromScaled(first);
        split.parts[1].amount = Currency::FromScaled(second);
        return split;
    }
};

TEST_F(Split, ProposesTheChargeAndItsDeferredTwin) {
    const auto id = Charge(Date(2024, 2, 1), 1000, RentFlags::PeriodRent);
    const RentSplit split = leases::ReadSplit(id).value();
    EXPECT_TRUE(split.IsPeriodRent());
    EXPECT_EQ(split.parts[0].description, "1000 on 02/01/2024");
    EXPECT_EQ(split.parts[1].description, "Deferred 1000 on 02/01/2024");
    EXPECT_EQ(split.parts[1].category, "Rent");
    EXPECT_EQ(split.parts[1].date, Date(2024, 2, 1));
    EXPECT_EQ(split.Missing(), Currency());
    EXPECT_FALSE(leases::ReadSplit(999'999).has_value());
    for (const auto& [part, rest] : {std::pair{400, 600}, {0, 1000}, {1200, -200}}) {
        EXPECT_EQ(split.Rest(Currency::FromUnits(part)), Currency::FromUnits(rest));
    }
}

TEST_F(Split, PutsThePartsInThePlaceOfTheCharge) {
    struct Case {
        RentFlags flags;
        std::size_t rentPart;
        std::int64_t first;
        std::int64_t second;
        Lines ledger;
        bool losesRent = false;
    };
    for (const Case& c :
         {Case{RentFlags::PeriodRent,
               0,
               4'000'000,
               6'000'000,
               {"02/01/2024 1 400.00 -", "02/01/2024 0 600.00 -"}},
          Case{RentFlags::PeriodRent,
               1,
               4'000'000,
               6'000'000,
               {"02/01/2024 0 400.00 -", "02/01/2024 1 600.00 -"}},
          Case{RentFlags::Ordinary,
               0,
               1,
               9'999'999,
               {"02/01/2024 0 0.00 -", "02/01/2024 0 1,000.00 -"}},
          Case{RentFlags::PeriodRent, 0, 10'000'000, 0, {"02/01/2024 1 1,000.00 -"}},
          Case{RentFlags::PeriodRent, 0, 0, 10'000'000, {"02/01/2024 0 1,000.00 -"}, true},
          Case{RentFlags::Ordinary,
               0,
               12'000'000,
               -2'000'000,
               {"02/01/2024 0 1,200.00 -", "02/01/2024 0 (200.00) -"}},
          // Parts that don't add up are accepted: the user saw the difference.
          Case{RentFlags::Ordinary,
               0,
               1'000'000,
               1'000'000,
               {"02/01/2024 0 100.00 -", "02/01/2024 0 100.00 -"}}}) {
        Run("DELETE * FROM RentLog");
        const auto id = Charge(Date(2024, 2, 1), 1000, c.flags);
        RentSplit split = Of(id, c.first, c.second);
        split.rentPart = c.rentPart;
        EXPECT_EQ(split.LosesRent(), c.losesRent);
        const auto parts = leases::SaveSplit(split);
        EXPECT_EQ(Ledger(), c.ledger);
        EXPECT_EQ(std::ranges::count(parts, 0), 2 - static_cast<int>(c.ledger.size()));
        EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE IdRentLog = " + std::to_string(id)), "0");
        EXPECT_EQ(Ask("SELECT RentDue FROM Lease"), Ask("SELECT Sum(Amount) FROM RentLog"));
    }
    EXPECT_EQ(Of(Charge(Date(2024, 2, 1), 1000), 1'000'000, 1'000'000).Missing(),
              Currency::FromUnits(800));
}

TEST_F(Split, OfASettledChargeStaysSettled) {
    const auto id = Charge(Date(2024, 2, 1), 1000);
    Run("UPDATE RentLog SET IdTransaction = 7");
    leases::SaveSplit(Of(id, 4'000'000, 6'000'000));
    EXPECT_EQ(Ledger(), (Lines{"02/01/2024 0 400.00 +", "02/01/2024 0 600.00 +"}));
}

TEST_F(Split, OfAChargePaidOrRemovedMeanwhileIsRefusedWhole) {
    for (const auto* meanwhile : {"UPDATE RentLog SET IdTransaction = 7",
                                  "UPDATE RentLog SET Amount = 5", "DELETE * FROM RentLog"}) {
        Run("DELETE * FROM RentLog");
        const RentSplit split =
            Of(Charge(Date(2024, 2, 1), 1000, RentFlags::PeriodRent), 4'000'000, 6'000'000);
        Run(meanwhile);
        const Lines before = Ledger();
        EXPECT_THROW(leases::SaveSplit(split), platform::ConflictError) << meanwhile;
        EXPECT_EQ(Ledger(), before);
    }
}

} // namespace

} // namespace tests
