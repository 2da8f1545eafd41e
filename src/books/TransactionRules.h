#pragma once

#include <string>

#include "books/PostTransaction.h"

namespace books {

/// Returns the question to ask before a transaction is saved that is probably a slip: its sides are
/// the same party, or one of them names nobody. Empty if there is nothing to ask.
std::string DoubtAbout(const Transaction& transaction);

} // namespace books
