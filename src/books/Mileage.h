#pragma once

#include <cstdint>

#include "books/PostTransaction.h"

namespace books {

/// Writes the trip that a transaction stands for: there and back to its building (0 miles without
/// one), with the car of the settings, from the highest reading that the car has. `idMileage` is
/// the trip to overwrite, 0 for a new one; one that was deleted comes back under its id. Returns
/// the trip's id. Throws on failure.
std::int32_t WriteTrip(std::int32_t idMileage, const Transaction& transaction);

} // namespace books
