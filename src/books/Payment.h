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

/// The entries that the payments of every ledger have before they are submitted.
struct Payment {
    /// 0 for a new payment.
    std::int32_t idTransaction = 0;
    /// The ledger's row that a stored payment left, 0 for none.
    std::int32_t idPaymentRow = 0;
    platform::Date dateEffective{};
    Party from{core::kAccount, 0, {}};
    Party to{core::kAccount, 0, {}};
    std::string checkNumber{};
    /// The category that the transaction carries.
    std::string paymentType{};
    std::string description{};

    bool IsNew() const { return idTransaction == 0; }
};

/// Returns the transaction of a payment, as far as the payment itself tells it.
Transaction TransactionOf(const Payment& payment, platform::Currency amount);

/// Posts the transaction of a new payment, or rewrites the one of a stored payment; returns its id.
std::int32_t StoreTransaction(const Payment& payment, const Transaction& transaction);

/// Rows of a charge ledger that are to be deleted after a question.
struct ChargeDeletion {
    std::int16_t kind = 0;
    std::vector<std::int32_t> ids{};
    /// Empty to ask as for any record of the kind.
    std::string question{};
    /// Called for each row inside the unit of work; throws ConflictError to delete nothing.
    std::function<void(std::int32_t id)> check{};
    /// What follows inside the unit of work; may be empty.
    std::function<void()> follow{};
};

/// Asks, then deletes the rows as one unit of work and refreshes the open screens. Returns true if
/// they were deleted.
bool DeleteCharges(const ChargeDeletion& deletion);

/// Returns the first lines as `lineOf` names them, and how many rows are left: "\nand 3 more".
std::string NameFirst(const std::vector<std::int32_t>& ids, std::size_t most,
                      const std::function<std::string(std::int32_t id)>& lineOf);

} // namespace books
