#pragma once

#include <cstdint>
#include <functional>

#include "books/PostTransaction.h"

namespace books {

using TransactionListener =
    std::function<void(std::int32_t idTransaction, const Transaction& transaction)>;

/// Asks to know of each transaction that is posted, or edited on its screen: called with the row
/// written, inside the unit of work that keeps it, so that what a listener writes stands or falls
/// with the row. Payments are told when they are posted. Listeners stay for the process's life.
void RegisterTransactionListener(TransactionListener listener);

/// Tells all who asked, in the order they came. What a listener throws is thrown on.
void TellTransactionListeners(std::int32_t idTransaction, const Transaction& transaction);

} // namespace books
