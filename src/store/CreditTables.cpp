#include "store/TableParts.h"

namespace store {

using enum FieldKind;

namespace {

// A row says that the open or spent credit `IdRentLog` came from the ledger row `IdOrigin`, which
// the payment settles that brought the money. `IdReturn` is the transaction that gave the money
// back if the payment was returned, otherwise 0.
TableDefinition RentCreditTable() {
    return MakeTable("RentCredit", {{Long, "IdRentLog IdOrigin IdLease IdReturn"}},
                     {"IdRentLog", "IdOrigin", "IdLease"});
}

// Whether a lease settles new charges from credit. One without a row leaves it to the user.
TableDefinition LeaseCreditTable() {
    return MakeTable("LeaseCredit", {{Long, "IdLease"}, {Boolean, "SettleCharges"}}, {"IdLease"});
}

} // namespace

std::vector<TableDefinition> CreditTables() {
    return {RentCreditTable(), LeaseCreditTable()};
}

} // namespace store
