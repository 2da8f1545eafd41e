#include "leases/DeleteCharges.h"

#include <string>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/LeaseEditor.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Format.h"
#include "removal/DeleteRecord.h"

namespace leases {

namespace {

constexpr std::size_t kNamed = 10;

/// "05/06/2024, Late Fee, 40.00", a line each; of many rows the first ones and how many follow.
std::string NameCharges(const std::vector<std::int32_t>& ids) {
    std::string lines;
    for (std::size_t i = 0; i < ids.size() && i < kNamed; ++i) {
        platform::Recordset row = core::Read(
            "SELECT DatePosted, Description, Amount FROM RentLog WHERE IdRentLog = ?", {ids[i]});
        if (row.Eof()) continue;
        lines += fmt::format("\n{}, {}, {}", TextOf(row["DatePosted"]), TextOf(row["Description"]),
                             platform::FormatMoney(MoneyOf(row["Amount"])));
    }
    if (ids.size() > kNamed) lines += fmt::format("\nand {} more", ids.size() - kNamed);
    return lines.empty() ? lines : "\n" + lines;
}

bool Agreed(const std::vector<std::int32_t>& ids, std::string_view question) {
    if (ids.size() == 1) return removal::AgreedToDelete(core::kRentLog, ids.front());
    return platform::TheDialogs().AskYesNo(
        "Confirm Delete", std::string(question) + NameCharges(ids), platform::Icon::Question);
}

void CheckOpen(std::int32_t idRentLog) {
    platform::Recordset paid = core::Read(
        "SELECT Description FROM RentLog WHERE IdRentLog = ? AND IdTransaction <> 0", {idRentLog});
    if (paid.Eof()) return;
    throw platform::ConflictError(
        fmt::format("The charge \"{}\" was paid after the list was read. Nothing was deleted.",
                    TextOf(paid["Description"])));
}

} // namespace

bool DeleteCharges(std::int32_t idLease, const std::vector<std::int32_t>& ids,
                   std::string_view question, ShownAs shown) {
    if (ids.empty() || !Agreed(ids, question)) return false;
    platform::UnitOfWork unit(core::App().Connection);
    for (const std::int32_t id : ids) {
        if (shown == ShownAs::Open) CheckOpen(id);
        removal::RemoveRecord(core::kRentLog, id, removal::Tell::Nobody);
    }
    StoreBalances(idLease);
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    unit.Commit();
    return true;
}

} // namespace leases
