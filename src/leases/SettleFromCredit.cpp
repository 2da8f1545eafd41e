#include "leases/SettleFromCredit.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/ChargeLedger.h"
#include "core/Rows.h"
#include "leases/Credits.h"
#include "leases/RentLog.h"
#include "leases/RentPayment.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"

namespace leases {

using platform::Currency;

namespace {

/// The row of a credit while the walk is written; the amount left of it is positive.
struct CreditLeft {
    std::int32_t idRentLog = 0;
    Currency left;
};

/// Writes one lease's walk.
class Writer {
  public:
    Writer(std::int32_t idLease, const LeaseWalk& walk, std::span<const OpenCredit> credits)
        : idLease_(idLease),
          walk_(walk),
          written_{std::vector<std::int32_t>(walk.charges.size()), {}} {
        for (const OpenCredit& credit : credits)
            credits_.push_back({credit.idRentLog, credit.amount});
        for (const CreditPayment& payment : walk.payments) {
            for (const Use& charge : payment.charges)
                settled_[charge.place] = charge.amount;
        }
    }

    WalkIds Write() {
        auto payment = walk_.payments.begin();
        for (std::size_t i = 0; i < walk_.charges.size(); ++i) {
            WriteCharge(i);
            const bool endsDay =
                i + 1 == walk_.charges.size() || walk_.charges[i + 1].date != walk_.charges[i].date;
            if (!endsDay) continue;
            for (; payment != walk_.payments.end() && payment->day == walk_.charges[i].date;
                 ++payment)
                WritePayment(*payment);
        }
        return std::move(written_);
    }

  private:
    /// Writes a charge. One that is settled in part is written as the parts that a split makes of
    /// it.
    void WriteCharge(std::size_t place) {
        const Charge& charge = walk_.charges[place];
        RentLogEntry entry = EntryOf(idLease_, charge);
        const auto settled = settled_.find(place);
        if (settled == settled_.end() || settled->second == charge.amount) {
            written_.charges[place] = WriteRentLog(entry);
            return;
        }
        RentLogEntry paid = entry;
        paid.amount = settled->second;
        paid.flags = RentFlags::Ordinary;
        written_.charges[place] = WriteRentLog(paid);
        entry.amount -= settled->second;
        entry.description = "Deferred " + entry.description;
        WriteRentLog(entry);
    }

    void WritePayment(const CreditPayment& payment) {
        RentPayment posted = ProposePayment(idLease_, payment.rentClass);
        posted.charges.clear();
        posted.dateEffective = payment.day;
        posted.description += ", from credit";
        // No money comes in, so no event that waits for a payment may run again.
        const std::int32_t idTransaction =
            books::PostTransaction(TransactionOf(posted), books::Triggers::Skip);
        written_.payments.push_back(idTransaction);
        for (const Use& charge : payment.charges)
            Settle(written_.charges[charge.place], idTransaction);
        for (const Use& credit : payment.credits)
            TakeCredit(credits_[credit.place], credit.amount, idTransaction);
        for (const Use& charge : payment.charges) {
            if (MovesNextDue(charge, walk_.charges)) EarnOptionCredit(payment.day);
        }
    }

    static void Settle(std::int32_t idRentLog, std::int32_t idTransaction) {
        core::Settle(core::kRentLedger, idRentLog, idTransaction, core::Settled::Yes);
    }

    /// Uses a credit. The part that is used becomes a row of its own; the rest keeps its row.
    static void TakeCredit(CreditLeft& credit, Currency used, std::int32_t idTransaction) {
        if (used == credit.left) {
            Settle(credit.idRentLog, idTransaction);
        } else {
            platform::Recordset row =
                core::Read("SELECT * FROM RentLog WHERE IdRentLog = ?", {credit.idRentLog});
            const std::int32_t part =
                WriteRentLog({.idLease = IdOf(row["IdLease"]),
                              .idTransaction = idTransaction,
                              .datePosted = DateOf(row["DatePosted"]),
                              .rentClass = TransactionClass{ShortOf(row["Class"])},
                              .category = TextOf(row["Category"]),
                              .amount = -used,
                              .description = TextOf(row["Description"])});
            TiePart(part, credit.idRentLog);
            core::Execute("UPDATE RentLog SET Amount = ? WHERE IdRentLog = ?",
                          {used - credit.left, credit.idRentLog});
        }
        credit.left -= used;
    }

    void EarnOptionCredit(platform::Date day) const {
        platform::Recordset lease =
            core::Read("SELECT [Option], OptionCredit FROM Lease WHERE IdLease = ?", {idLease_});
        if (lease.Eof() || !FlagOf(lease["Option"])) return;
        WriteOptionCredit(idLease_, day, MoneyOf(lease["OptionCredit"]));
    }

    std::int32_t idLease_;
    const LeaseWalk& walk_;
    WalkIds written_;
    std::vector<CreditLeft> credits_;
    std::map<std::size_t, Currency> settled_;
};

} // namespace

WalkIds WriteSettledWalk(std::int32_t idLease, const LeaseWalk& walk,
                         std::span<const OpenCredit> credits) {
    return Writer(idLease, walk, credits).Write();
}

} // namespace leases
