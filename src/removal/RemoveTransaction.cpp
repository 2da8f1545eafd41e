#include <string>

#include <fmt/core.h>

#include "core/ChargeLedger.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/dialogs/Dialogs.h"
#include "removal/Removal.h"
#include "removal/RentCredits.h"

namespace removal {

using core::ChargeLedger;

Charges AskAboutCharges(core::RecordKind kind, std::int32_t id) {
    const ChargeLedger* const ledger =
        kind == core::kTransaction ? core::LedgerOfTransaction(id) : nullptr;
    if (ledger == nullptr) return Charges::OpenAgain;
    const std::string text = fmt::format(
        "Do you want to remove associated {} items? If not, these items will no\n"
        "longer be associated with any transaction and will now show up as unpaid.",
        ledger->name);
    return platform::TheDialogs().AskYesNo("Confirm Removal", text, platform::Icon::Question)
               ? Charges::Remove
               : Charges::OpenAgain;
}

void Removal::FreeCharges(const ChargeLedger& ledger, std::int32_t idTransaction) {
    const std::string rows = fmt::format("DELETE * FROM {} WHERE ", ledger.table);
    Execute(rows + "(IdTransaction = ?) AND (Flags = 2)", {idTransaction});
    platform::Recordset orphans =
        core::Read(fmt::format("SELECT {1} FROM {0} LEFT JOIN {2} ON {0}.{3} = {2}.{3} "
                               "WHERE ({2}.{3} IS NULL) AND ({0}.IdTransaction = ?)",
                               ledger.table, ledger.idField, ledger.owner, ledger.ownerIdField),
                   {idTransaction});
    for (; !orphans.Eof(); orphans.MoveNext())
        Execute(fmt::format("{}{} = ?", rows, ledger.idField), {orphans[0].Value()});
    Execute(fmt::format("UPDATE {} SET IdTransaction = 0 WHERE IdTransaction = ?", ledger.table),
            {idTransaction});
}

void Removal::RemoveTransaction(std::int32_t id, Charges charges) {
    const ChargeLedger* const ledger = core::LedgerOfTransaction(id);
    if (ledger == &core::kRentLedger) {
        UndoReturn(id);
        if (ReleaseCredits(id)) Note(core::kRentLog, core::kRecordsChanged);
    }
    if (ledger != nullptr && charges == Charges::Remove) {
        Execute(fmt::format("DELETE * FROM {} WHERE IdTransaction = ?", ledger->table), {id});
    } else if (ledger != nullptr) {
        FreeCharges(*ledger, id);
    }
    Execute("DELETE * FROM Transactions WHERE IdTransaction = ?", {id});
}

} // namespace removal
