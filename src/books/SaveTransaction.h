#pragma once

#include <cstdint>

#include "books/PostTransaction.h"

namespace books {

/// Whether a transaction has a trip in the mileage log.
enum class Trip { None, Keep };

/// Writes a transaction as a person edits it. Id 0 is a new row, which triggers events; an edited
/// one triggers nothing, and comes back under its id if it has gone. What the editor doesn't show
/// stays: whether the sides were exported, and whether it is reconciled.
///
/// With Trip::Keep its trip is made, or made anew. Without, the trip that the row has is removed if
/// the person agrees, and forgotten in any case. Whoever asked to know of transactions is told.
/// One unit of work, begun when nothing is left to ask; failures are thrown. Answers the row's id;
/// the open lists are the caller's to tell.
///
/// `before` is a stored transaction as the editor showed it: only what differs from it is written,
/// unless the row has to come back.
std::int32_t SaveTransaction(std::int32_t id, const Transaction& transaction, Trip trip,
                             const Transaction* before = nullptr);

} // namespace books
