#include "store/TableParts.h"

namespace store {

using enum FieldKind;

namespace {

// A row says that the open or spent credit `IdRentLog` came from the ledger row `IdOrigin`, which
// is settled by the payment that brought the money. `IdReturn` is the transaction that gave the
// money back if the payment was returned, otherwise 0.
TableDefinition RentCreditTable() {
    return MakeTable("RentCredit", {{Long, "IdRentLog IdOrigin IdLease IdReturn"}},
                     {"IdRentLog", "IdOrigin", "IdLease"});
}

// A row says whether a lease settles new charges from credit. If a lease has no row, this is left
// to the user.
TableDefinition LeaseCreditTable() {
    return MakeTable("LeaseCredit", {{Long, "IdLease"}, {Boolean, "SettleCharges"}}, {"IdLease"});
}

// A row of the daily run that the user took back: the run doesn't post it again. `Posting` is its
// kind, `IdRow` was its id in the ledger, and `Content` holds its fields.
TableDefinition TakenBackTable() {
    return MakeTable("TakenBack",
                     {{Long, "IdRow"},
                      {Integer, "RecordKind"},
                      {Long, "IdRecord"},
                      {Integer, "Posting"},
                      {DateText, "DatePosted"},
                      {DateText, "DateTaken"},
                      {Memo, "Content"}},
                     {"IdRecord"});
}

// A row is a setting of the books, by its name, for which the table Configuration has no field.
TableDefinition BooksSettingTable() {
    return MakeTable("BooksSetting", {{Text, "Name Content"}});
}

} // namespace

std::vector<TableDefinition> LaterTables() {
    return {RentCreditTable(), LeaseCreditTable(), TakenBackTable(), BooksSettingTable()};
}

} // namespace store
