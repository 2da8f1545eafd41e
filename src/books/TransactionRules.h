#pragma once

#include <string>

#include "books/PostTransaction.h"

namespace books {

/// Returns the question to ask before saving a transaction that is probably a slip: its parties are
/// the same, or one of them is empty. Returns an empty string if there is nothing to ask.
std::string DoubtAbout(const Transaction& transaction);

} // namespace books
