#include <string>
#include <string_view>

#include "core/Codes.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/Recordset.h"
#include "platform/dialogs/Dialogs.h"
#include "removal/Removal.h"

namespace removal {

using core::Ledger;

/// The statements that remove a payment from the ledger whose charges it settled.
struct LedgerStatements {
    std::string_view removeAll;
    std::string_view removePayment; ///< the rows that the payment itself made
    std::string_view findOrphans;
    std::string_view removeOrphan;
    std::string_view openAgain;
};

namespace {

Ledger LedgerOf(std::int32_t idTransaction) {
    const auto code =
        core::LookUp("SELECT Class FROM Transactions WHERE IdTransaction = ?", {idTransaction});
    return code ? core::LedgerOf(core::TransactionClass{code->AsInteger()}) : Ledger::None;
}

constexpr LedgerStatements kRentLedger = {
    "DELETE * FROM RentLog WHERE idTransaction = ?",
    "DELETE * FROM RentLog WHERE (idTransaction = ?) AND (Flags = 2)",
    "SELECT IdRentLog FROM RentLog LEFT JOIN Lease ON RentLog.IdLease = Lease.IdLease "
    "WHERE (Lease.IdLease IS NULL) AND (RentLog.IdTransaction = ?) ",
    "DELETE * FROM RentLog WHERE IdRentLog = ?",
    "UPDATE RentLog SET IdTransaction = 0 WHERE IdTransaction = ?",
};

constexpr LedgerStatements kMortgageLedger = {
    "DELETE * FROM MortgageLog WHERE idTransaction = ?",
    "DELETE * FROM MortgageLog WHERE (idTransaction = ?) AND (Flags = 2)",
    "SELECT IdMortgageLog FROM MortgageLog "
    "LEFT JOIN Mortgage ON MortgageLog.IdMortgage = Mortgage.IdMortgage "
    "WHERE (Mortgage.IdMortgage IS NULL) AND (MortgageLog.IdTransaction = ?) ",
    "DELETE * FROM MortgageLog WHERE IdMortgageLog = ?",
    "UPDATE MortgageLog SET IdTransaction = 0 WHERE IdTransaction = ?",
};

} // namespace

Charges AskAboutCharges(std::int16_t kind, std::int32_t id) {
    const Ledger ledger = kind == core::kTransaction ? LedgerOf(id) : Ledger::None;
    if (ledger == Ledger::None) return Charges::OpenAgain;
    const std::string text =
        std::string("Do you want to remove associated ") +
        (ledger == Ledger::Rent ? "rent" : "mortgage") +
        " items? If not, these items will no\n"
        "longer be associated with any transaction and will now show up as unpaid.";
    return platform::TheDialogs().AskYesNo("Confirm Removal", text, platform::Icon::Question)
               ? Charges::Remove
               : Charges::OpenAgain;
}

void Removal::FreeCharges(const LedgerStatements& ledger, std::int32_t idTransaction) {
    Execute(ledger.removePayment, {idTransaction});
    platform::Recordset orphans = core::Read(ledger.findOrphans, {idTransaction});
    for (; !orphans.Eof(); orphans.MoveNext()) {
        Execute(ledger.removeOrphan, {orphans[0].Value()});
    }
    Execute(ledger.openAgain, {idTransaction});
}

void Removal::RemoveTransaction(std::int32_t id, Charges charges) {
    const Ledger ledger = LedgerOf(id);
    if (ledger != Ledger::None) {
        const LedgerStatements& statements = ledger == Ledger::Rent ? kRentLedger : kMortgageLedger;
        if (charges == Charges::Remove) {
            Execute(statements.removeAll, {id});
        } else {
            FreeCharges(statements, id);
        }
    }
    Execute("DELETE * FROM Transactions WHERE IdTransaction = ?", {id});
}

} // namespace removal
