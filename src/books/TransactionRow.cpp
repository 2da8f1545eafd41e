#include "books/TransactionRow.h"

#include <algorithm>

#include "core/Rows.h"
#include "platform/database/FieldReadings.h"

namespace books {

using platform::Currency;
using platform::Date;
using platform::Field;
using platform::Recordset;

namespace {

void Put(Field field, Date value) {
    field.Set(value.ToText());
}
void Put(Field field, Ien value) {
    field.Set(static_cast<std::int16_t>(value));
}
template <class T>
void Put(Field field, const T& value) {
    field.Set(value);
}

void Get(const Field& field, Ien& value) {
    value = Ien{ShortOf(field)};
}
template <class T>
void Get(const Field& field, T& value) {
    value = platform::AsOr0<T>(field);
}

/// A field of the row and the member that it stores.
struct FieldOf {
    const char* name;
    bool (*same)(const Transaction&, const Transaction&);
    void (*write)(Field, const Transaction&);
    void (*read)(const Field&, Transaction&);
};

template <auto member>
constexpr FieldOf Of(const char* name) {
    return {name, [](const Transaction& a, const Transaction& b) { return a.*member == b.*member; },
            [](Field field, const Transaction& from) { Put(field, from.*member); },
            [](const Field& field, Transaction& to) { Get(field, to.*member); }};
}

/// Describes a member of one party in the same way.
template <auto side, auto member>
constexpr FieldOf OfSide(const char* name) {
    return {name,
            [](const Transaction& a, const Transaction& b) {
                return a.*side.*member == b.*side.*member;
            },
            [](Field field, const Transaction& from) { Put(field, from.*side.*member); },
            [](const Field& field, Transaction& to) { Get(field, to.*side.*member); }};
}

constexpr FieldOf kFields[] = {
    Of<&Transaction::dateEffective>("DateEffective"),
    OfSide<&Transaction::debit, &Party::type>("DebitType"),
    OfSide<&Transaction::debit, &Party::id>("DebitId"),
    OfSide<&Transaction::debit, &Party::description>("DebitDesc"),
    OfSide<&Transaction::credit, &Party::type>("CreditType"),
    OfSide<&Transaction::credit, &Party::id>("CreditId"),
    OfSide<&Transaction::credit, &Party::description>("CreditDesc"),
    Of<&Transaction::checkNumber>("CheckNum"),
    Of<&Transaction::amount>("Amount"),
    Of<&Transaction::taxCategory>("TaxCategory"),
    Of<&Transaction::ien>("IEN"),
    Of<&Transaction::description>("Description"),
    Of<&Transaction::transactionClass>("Class"),
    Of<&Transaction::flags>("Flags"),
};

constexpr FieldOf kReferences[] = {
    Of<&Transaction::idTenant>("IdTenant"),     Of<&Transaction::idBuilding>("IdBuilding"),
    Of<&Transaction::idUnit>("IdUnit"),         Of<&Transaction::idLease>("IdLease"),
    Of<&Transaction::idMortgage>("IdMortgage"), Of<&Transaction::idWorkOrder>("IdWorkOrder"),
};

/// Calls `work` with each field in the order of the table.
template <class Work>
void ForEachField(Work work) {
    std::ranges::for_each(kFields, work);
    std::ranges::for_each(kReferences, work);
}

void WriteBalances(Recordset& rows) {
    for (const auto* balance : {"DebitPrevBal", "DebitNewBal", "CreditPrevBal", "CreditNewBal"})
        rows[balance].Set(Currency());
}

} // namespace

core::RowToWrite TransactionToWrite(std::int32_t id) {
    core::RowToWrite transaction("Transactions", "IdTransaction", id);
    if (transaction.isNew) {
        transaction["CreditExported"].Set(false);
        transaction["DebitExported"].Set(false);
    }
    return transaction;
}

void WriteTransactionFields(Recordset& rows, const Transaction& transaction) {
    ForEachField([&](const FieldOf& field) { field.write(rows[field.name], transaction); });
    WriteBalances(rows);
}

void WriteChangedFields(Recordset& rows, const Transaction& entered, const Transaction& shown) {
    bool isChanged = false;
    ForEachField([&](const FieldOf& field) {
        if (field.same(entered, shown)) return;
        field.write(rows[field.name], entered);
        isChanged = true;
    });
    if (isChanged) WriteBalances(rows);
}

References ReadReferences(Recordset& rows) {
    Transaction transaction;
    for (const FieldOf& field : kReferences)
        field.read(rows[field.name], transaction);
    const References& references = transaction;
    return references;
}

Transaction ReadTransactionFields(Recordset& rows) {
    Transaction transaction;
    ForEachField([&](const FieldOf& field) { field.read(rows[field.name], transaction); });
    return transaction;
}

} // namespace books
