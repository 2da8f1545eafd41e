#pragma once

#include <filesystem>
#include <optional>

#include "platform/values/Date.h"

namespace platform {

/// Returns today's date. This is the only clock of the program: nothing else reads the system's
/// date or time.
Date Today();

/// Returns the local time in seconds since midnight, with fractions.
double SecondOfDay();

/// A moment of the calendar: a day and the seconds since its midnight, local time.
struct Moment {
    Date day;
    int second = 0;
};

/// Returns when a file was last changed; an unset day if that isn't known.
Moment ChangedAt(const std::filesystem::path& file);
/// Sets the moment of a file's last change; a failure is ignored.
void SetChangedAt(const std::filesystem::path& file, const Moment& moment);

/// Sets the day that Today returns from now on; an empty one restores the system's day.
void SetToday(std::optional<Date> day);

} // namespace platform
