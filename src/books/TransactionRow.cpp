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

void WriteTransactionFields(Recordset& rows, const Transaction& transaction) {
    rows["DateEffective"].Set(transaction.dateEffective.ToText());
    rows["DebitType"].Set(transaction.debit.type);
    rows["DebitId"].Set(transaction.debit.id);
    rows["DebitDesc"].Set(transaction.debit.description);
    rows["CreditType"].Set(transaction.credit.type);
    rows["CreditId"].Set(transaction.credit.id);
    rows["CreditDesc"].Set(transaction.credit.description);
    for (const auto* balance : {"DebitPrevBal", "DebitNewBal", "CreditPrevBal", "CreditNewBal"}) {
        rows[balance].Set(Currency());
    }
    rows["CheckNum"].Set(transaction.checkNumber);
    rows["Amount"].Set(transaction.amount);
    rows["TaxCategory"].Set(transaction.taxCategory);
    rows["IEN"].Set(static_cast<std::int16_t>(transaction.ien));
    rows["Description"].Set(transaction.description);
    rows["Class"].Set(transaction.transactionClass);
    rows["Flags"].Set(transaction.flags);
    rows["IdTenant"].Set(transaction.idTenant);
    rows["IdBuilding"].Set(transaction.idBuilding);
    rows["IdUnit"].Set(transaction.idUnit);
    rows["IdLease"].Set(transaction.idLease);
    rows["IdMortgage"].Set(transaction.idMortgage);
    rows["IdWorkOrder"].Set(transaction.idWorkOrder);
}

} // namespace books
