#include "leases/LedgerTable.h"

#include <utility>

namespace leases {

core::RowTable<LedgerRow> LedgerTable(std::vector<LedgerRow> rows, LedgerRows which) {
    using enum platform::FieldType;
    std::vector<core::RowTable<LedgerRow>::Column> columns = {
        {"IdRentLog", Long, &LedgerRow::idRentLog},     {"Flags", Integer, &LedgerRow::flags},
        {"Date Posted", Date, &LedgerRow::datePosted},  {"Category", Text, &LedgerRow::category},
        {"Description", Text, &LedgerRow::description}, {"Amount", Currency, &LedgerRow::amount}};
    if (which == LedgerRows::Open) {
        columns.emplace_back("Open Total", Currency, [](const LedgerRow& row) {
            return row.openTotal.value_or(platform::Currency());
        });
    }
    return {std::move(rows), columns};
}

core::RowTable<PaymentCharge> ChargeTable(std::vector<PaymentCharge> charges) {
    using enum platform::FieldType;
    return {std::move(charges),
            {{"IdRentLog", Long, &PaymentCharge::idRentLog},
             {"Flags", Integer, &PaymentCharge::flags},
             {"Date", Date, &PaymentCharge::datePosted},
             {"Category", Text, &PaymentCharge::category},
             {"Description", Text, &PaymentCharge::description},
             {"Amount", Currency, &PaymentCharge::amount}}};
}

} // namespace leases
