#include "books/TransactionRow.h"

#include "core/Globals.h"

namespace books {

using platform::Currency;
using platform::CursorMode;
using platform::Recordset;

void AddTransactionRow(Recordset& rows, std::int32_t id) {
    rows.AddNew();
    rows["IdTransaction"].Set(id);
    rows["CreditExported"].Set(false);
    rows["DebitExported"].Set(false);
}

void OpenTransactionRow(Recordset& rows, std::int32_t id) {
    rows.Open(core::App().Connection, "SELECT * FROM Transactions WHERE IdTransaction = ?",
              CursorMode::Updatable, {id});
    if (rows.Eof()) AddTransactionRow(rows, id);
}

void WriteTransactionFields(Recordset& rows, const Transaction& transaction,
                            const Transaction* before) {
    const auto write = [&](std::string_view field, auto read) {
        if (!before || read(transaction) != read(*before))
            rows[field].Set(platform::Value(read(transaction)));
    };
    write("DateEffective", [](const Transaction& t) { return t.dateEffective.ToText(); });
    write("DebitType", [](const Transaction& t) { return t.debit.type; });
    write("DebitId", [](const Transaction& t) { return t.debit.id; });
    write("DebitDesc", [](const Transaction& t) { return t.debit.description; });
    write("CreditType", [](const Transaction& t) { return t.credit.type; });
    write("CreditId", [](const Transaction& t) { return t.credit.id; });
    write("CreditDesc", [](const Transaction& t) { return t.credit.description; });
    for (const auto* balance : {"DebitPrevBal", "DebitNewBal", "CreditPrevBal", "CreditNewBal"}) {
        write(balance, [](const Transaction&) { return Currency(); });
    }
    write("CheckNum", [](const Transaction& t) { return t.checkNumber; });
    write("Amount", [](const Transaction& t) { return t.amount; });
    write("TaxCategory", [](const Transaction& t) { return t.taxCategory; });
    write("IEN", [](const Transaction& t) { return static_cast<std::int16_t>(t.ien); });
    write("Description", [](const Transaction& t) { return t.description; });
    write("Class", [](const Transaction& t) { return t.transactionClass; });
    write("Flags", [](const Transaction& t) { return t.flags; });
    write("IdTenant", [](const Transaction& t) { return t.idTenant; });
    write("IdBuilding", [](const Transaction& t) { return t.idBuilding; });
    write("IdUnit", [](const Transaction& t) { return t.idUnit; });
    write("IdLease", [](const Transaction& t) { return t.idLease; });
    write("IdMortgage", [](const Transaction& t) { return t.idMortgage; });
    write("IdWorkOrder", [](const Transaction& t) { return t.idWorkOrder; });
}

} // namespace books
