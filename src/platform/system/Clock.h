#pragma once

#include <optional>

#include "platform/values/Date.h"

namespace platform {

/// The one clock of the program: nothing else reads the system's date or time.
Date Today();

/// Seconds since midnight, with fractions, local time.
double SecondOfDay();

/// Sets the day that Today returns from now on; an empty one returns to the system's.
void SetToday(std::optional<Date> day);

} // namespace platform
