#pragma once

#include <string_view>

#include "books/PostTransaction.h"

namespace books {

/// Runs the enabled events that wait for a transaction of this party and category, in the order of
/// the table, each dated today and each in its own nested unit. An event that fails is rolled back
/// and reported on the home page; the others run.
void RunTriggeredEvents(const Party& party, std::string_view taxCategory);

/// Runs the events of a new transaction: of its debit party, then of its credit party.
void RunTriggeredEvents(const Transaction& transaction);

} // namespace books
