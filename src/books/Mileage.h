#pragma once

#include <cstdint>

#include "books/PostTransaction.h"

namespace books {

/// Writes the trip of a transaction: to its building and back (0 miles without one), with the car
/// from the settings, starting at the car's highest reading. `idMileage` is the trip to overwrite,
/// 0 for a new one; a deleted trip is restored under its id. Returns the trip's id. Throws on
/// failure.
std::int32_t WriteTrip(std::int32_t idMileage, const Transaction& transaction);

} // namespace books
