#pragma once

#include <cstdint>
#include <functional>

#include "books/PostTransaction.h"

namespace books {

using TransactionListener =
    std::function<void(std::int32_t idTransaction, const Transaction& transaction)>;

/// Registers a listener for each transaction that is posted, or edited on its screen. It is called
/// with the row already written, inside the same unit of work, so that what it writes is committed
/// or rolled back with the row. Payments are announced only when they are posted. Listeners stay
/// registered for the life of the process.
void RegisterTransactionListener(TransactionListener listener);

/// Calls the listeners in the order of their registration. Exceptions pass through.
void TellTransactionListeners(std::int32_t idTransaction, const Transaction& transaction);

} // namespace books
