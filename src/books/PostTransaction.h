#pragma once

#include <cstdint>
#include <string>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace books {

/// The class of a category, by which the sums of income and expenses go.
enum class Ien : std::int16_t { Income = 0, Expense = 1, Unclassified = 2 };

/// One side of a transaction: record kind (account or tenant), id (0 if it is only a name), and the
/// name at the time of posting.
struct Party {
    std::int16_t type = 0;
    std::int32_t id = 0;
    std::string description;

    friend bool operator==(const Party&, const Party&) = default;
};

/// The records that a transaction is about, 0 for none.
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
    /// The kind of posting (0 ordinary, 1 to 3 as the rent log's classes, 5 a mortgage payment),
    /// and for deposits the flag of the rent log.
    std::int16_t transactionClass = 0;
    std::int16_t flags = 0;
};

/// Whether a new row starts the events that wait for one like it.
enum class Triggers { Fire, Skip };

/// Adds a row to the transactions, the one way that rows reach the table. Before it is committed,
/// the events of its debit side run, then those of its credit side, and the registered listeners
/// are called; all of it is one unit of work. Open lists are refreshed after the commit of
/// the whole unit. Returns the new row's id; failures are thrown.
std::int32_t PostTransaction(const Transaction& transaction, Triggers triggers = Triggers::Fire);

/// Rewrites a posted row, or adds it under its id if it was deleted; whether its sides were
/// exported stays as it is. It triggers nothing and refreshes no list. Failures are thrown.
void RewriteTransaction(std::int32_t id, const Transaction& transaction);

} // namespace books
