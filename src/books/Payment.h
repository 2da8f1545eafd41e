#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "books/PostTransaction.h"
#include "core/RecordKinds.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace books {

/// The entries that payments of every ledger share before they are submitted.
struct Payment {
    /// 0 for a new payment.
    std::int32_t idTransaction = 0;
    /// The ledger row of a stored payment, 0 if it has none.
    std::int32_t idPaymentRow = 0;
    platform::Date dateEffective{};
    Party from{core::kAccount, 0, {}};
    Party to{core::kAccount, 0, {}};
    std::string checkNumber{};
    /// The category of the transaction.
    std::string paymentType{};
    std::string description{};

    bool IsNew() const { return idTransaction == 0; }
};

/// Returns the transaction of a payment, as far as the payment's own entries determine it.
Transaction TransactionOf(const Payment& payment, platform::Currency amount);

/// Posts the transaction of a new payment, or rewrites a stored payment's; returns its id.
std::int32_t StoreTransaction(const Payment& payment, const Transaction& transaction);

/// Rows of a charge ledger to be deleted after a question.
struct ChargeDeletion {
    core::RecordKind kind = core::kNone;
    std::vector<std::int32_t> ids{};
    /// Empty to ask the usual question for the kind.
    std::string question{};
    /// Called for each row inside the unit of work; throws ConflictError to delete nothing.
    std::function<void(std::int32_t id)> check{};
    /// Called at the end of the unit of work; may be empty.
    std::function<void()> follow{};
};

/// Asks the user, then deletes the rows in one unit of work and refreshes the open screens. Returns
/// true if they were deleted.
bool DeleteCharges(const ChargeDeletion& deletion);

/// Returns the first lines, as given by `lineOf`, and the number of further rows: "
/// and 3 more".
std::string NameFirst(const std::vector<std::int32_t>& ids, std::size_t most,
                      const std::function<std::string(std::int32_t id)>& lineOf);

} // namespace books
