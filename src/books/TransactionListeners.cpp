#include "books/TransactionListeners.h"

#include <utility>
#include <vector>

namespace books {

namespace {

std::vector<TransactionListener>& Listeners() {
    static std::vector<TransactionListener> listeners;
    return listeners;
}

} // namespace

void RegisterTransactionListener(TransactionListener listener) {
    Listeners().push_back(std::move(listener));
}

void TellTransactionListeners(std::int32_t idTransaction, const Transaction& transaction) {
    for (const TransactionListener& listener : Listeners())
        listener(idTransaction, transaction);
}

} // namespace books
