#pragma once

#include <cstdint>
#include <string>

#include "core/RecordKinds.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace books {

/// The class of a category, which decides whether it counts as income or as expense.
enum class Ien : std::int16_t { Income = 0, Expense = 1, Unclassified = 2 };

/// One party of a transaction: record kind (account or tenant), id (0 if it is only a name), and
/// the name at the time of posting.
struct Party {
    core::RecordKind type = core::kNone;
    std::int32_t id = 0;
    std::string description;

    friend bool operator==(const Party&, const Party&) = default;
};

/// The records that a transaction refers to, 0 for none.
struct References {
    std::int32_t idTenant = 0;
    std::int32_t idBuilding = 0;
    std::int32_t idUnit = 0;
    std::int32_t idLease = 0;
    std::int32_t idMortgage = 0;
    std::int32_t idWorkOrder = 0;
};

/// A movement of money from the debit side to the credit side.
struct Transaction : References {
    platform::Date dateEffective;
    Party debit;
    Party credit;
    platform::Currency amount;
    std::string taxCategory;
    Ien ien = Ien::Income;
    std::string checkNumber;
    std::string description;
    /// The class of posting (0 ordinary, 1 to 3 as in the rent log, 5 a mortgage payment), and for
    /// deposits the flag of the rent log.
    std::int16_t transactionClass = 0;
    std::int16_t flags = 0;
};

/// Whether a new row triggers the events that wait for such a transaction.
enum class Triggers { Fire, Skip };

/// Adds a row to the transactions; rows reach the table in no other way. Before the commit, the
/// events of its debit party run, then its credit party's, and the registered listeners are
/// called; all of it is one unit of work. Open lists are refreshed after the commit of the
/// outermost unit. Returns the new row's id. Throws on failure.
std::int32_t PostTransaction(const Transaction& transaction, Triggers triggers = Triggers::Fire);

/// Rewrites a posted row, or restores it under its id if it was deleted; whether its sides were
/// exported stays unchanged. It triggers no events and refreshes no list. Throws on failure.
void RewriteTransaction(std::int32_t id, const Transaction& transaction);

} // namespace books
