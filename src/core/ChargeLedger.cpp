#include "core/ChargeLedger.h"

#include <fmt/core.h>

#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"

namespace core {

const ChargeLedger* LedgerOfTransaction(std::int32_t idTransaction) {
    const auto code =
        LookUp("SELECT Class FROM Transactions WHERE IdTransaction = ?", {idTransaction});
    switch (code ? LedgerOf(TransactionClass{code->AsInteger()}) : Ledger::None) {
        case Ledger::Rent:
            return &kRentLedger;
        case Ledger::Mortgage:
            return &kMortgageLedger;
        case Ledger::None:
            break;
    }
    return nullptr;
}

std::optional<std::int32_t> SettledBy(const ChargeLedger& ledger, std::int32_t idCharge) {
    platform::Recordset row =
        Read(fmt::format("SELECT IdTransaction FROM {} WHERE {} = ?", ledger.table, ledger.idField),
             {idCharge});
    if (row.Eof()) return std::nullopt;
    return IdOf(row["IdTransaction"]);
}

void Settle(const ChargeLedger& ledger, std::int32_t idCharge, std::int32_t idTransaction,
            Settled settled) {
    Execute(fmt::format("UPDATE {} SET IdTransaction = ? WHERE {} = ? "
                        "AND (IdTransaction = 0 OR IdTransaction IS NULL OR IdTransaction = ?)",
                        ledger.table, ledger.idField),
            {settled == Settled::Yes ? idTransaction : 0, idCharge, idTransaction});
}

} // namespace core
