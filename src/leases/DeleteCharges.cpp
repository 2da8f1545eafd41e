#include "leases/DeleteCharges.h"

#include <string>

#include <fmt/core.h>

#include "books/Payment.h"
#include "core/ChargeLedger.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/Credits.h"
#include "leases/LeaseEditor.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/values/Format.h"

namespace leases {

namespace {

constexpr std::size_t kNamed = 10;

/// Returns "05/06/2024, Late Fee, 40.00" on a line of its own; empty for a deleted row.
std::string NameOf(std::int32_t idRentLog) {
    platform::Recordset row = core::Read(
        "SELECT DatePosted, Description, Amount FROM RentLog WHERE IdRentLog = ?", {idRentLog});
    if (row.Eof()) return {};
    return fmt::format("\n{}, {}, {}", TextOf(row["DatePosted"]), TextOf(row["Description"]),
                       platform::FormatMoney(MoneyOf(row["Amount"])));
}

/// Returns the question for several rows; for one row an empty text, because it gets the usual
/// question of its kind.
std::string QuestionOf(std::string_view question, const std::vector<std::int32_t>& ids) {
    if (ids.size() == 1) return {};
    const std::string names = books::NameFirst(ids, kNamed, NameOf);
    return std::string(question) + (names.empty() ? names : "\n" + names);
}

void CheckOpen(std::int32_t idRentLog) {
    if (core::SettledBy(core::kRentLedger, idRentLog).value_or(0) == 0) return;
    const std::string description = platform::AsOr0<std::string>(
        core::ReadValue("SELECT Description FROM RentLog WHERE IdRentLog = ?", {idRentLog}));
    throw platform::ConflictError(fmt::format(
        "The charge \"{}\" was paid after the list was read. Nothing was deleted.", description));
}

} // namespace

bool DeleteCharges(std::int32_t idLease, const std::vector<std::int32_t>& ids,
                   std::string_view question, ShownAs shown) {
    return books::DeleteCharges({.kind = core::kRentLog,
                                 .ids = ids,
                                 .question = QuestionOf(question, ids),
                                 .check =
                                     [&](std::int32_t id) {
                                         if (shown == ShownAs::Open) CheckOpen(id);
                                         CheckNotTied(id);
                                     },
                                 .follow = [&] { StoreBalances(idLease); }});
}

} // namespace leases
