#pragma once

#include <optional>

#include "platform/values/Date.h"

namespace platform {

/// The one clock of the program: nothing else reads the system's date or time.
Date Today();

/// Seconds since midnight, with fractions, local time.
double SecondOfDay();

/// Sets the day that Today answers from now on; nothing sets it back to the system's.
void SetToday(std::optional<Date> day);

} // namespace platform
