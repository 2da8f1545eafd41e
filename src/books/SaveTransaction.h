#pragma once

#include <cstdint>

#include "books/PostTransaction.h"

namespace books {

/// Whether a transaction has a trip in the mileage log.
enum class Trip { None, Keep };

/// Adds the transaction entered in an editor as a new row, which triggers events; in all other
/// respects it works like EditTransaction. Returns the row's id.
std::int32_t AddTransaction(const Transaction& entered, Trip trip);

/// Saves the changes made in an editor: only the fields in which `entered` differs from `shown` are
/// written, so a field that the user left unchanged keeps a value stored by another program in the
/// meantime. A row that was deleted is added again under its id with all entries.
///
/// With Trip::Keep its trip is written with the present figures. Without it, the row's trip is
/// deleted if the user agrees, and the row's reference to it is cleared in any case. The registered
/// listeners are called. One unit of work, which begins after all questions have been asked. Throws
/// on failure. Lists of trips and events are refreshed; the list of transactions is left to the
/// caller.
void EditTransaction(std::int32_t id, const Transaction& entered, const Transaction& shown,
                     Trip trip);

} // namespace books
