#pragma once

#include <filesystem>
#include <optional>

#include "platform/values/Date.h"

namespace platform {

/// The one clock of the program: nothing else reads the system's date or time.
Date Today();

/// Seconds since midnight, with fractions, local time.
double SecondOfDay();

/// A moment of the calendar: a day and the seconds since its midnight, local time.
struct Moment {
    Date day;
    int second = 0;
};

/// When a file was changed last; an unset day if it can't be told.
Moment ChangedAt(const std::filesystem::path& file);
/// Gives a file the moment of its last change; a failure is skipped.
void SetChangedAt(const std::filesystem::path& file, const Moment& moment);

/// Sets the day that Today returns from now on; an empty one returns to the system's.
void SetToday(std::optional<Date> day);

} // namespace platform
