#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/RecordKinds.h"
#include "platform/values/Date.h"

namespace books {

/// Whether a unit's ledger also shows the transactions of its whole building.
enum class LedgerScope { Unit, Building };

/// The record whose transactions a ledger shows, and which of them.
struct LedgerView {
    core::RecordKind dbType = core::kNone; ///< account, tenant or unit
    std::int32_t id = 0;
    std::int32_t idBuilding = 0;
    LedgerScope scope = LedgerScope::Unit;
    int days = 0; ///< back from today, 0 for all
};

/// Returns the select of the rows, newest first, with the transaction's id in the first column;
/// empty for a kind that has no ledger. An account is matched only by its id, whatever the kind of
/// the party.
std::string LedgerSql(const LedgerView& view, platform::Date today);

/// Returns the name that the grid's widths are stored under; empty for a kind without a ledger.
std::string_view LedgerStoreName(core::RecordKind dbType);

} // namespace books
