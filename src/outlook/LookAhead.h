#pragma once

#include <filesystem>
#include <functional>

#include "outlook/Forecast.h"
#include "platform/values/Errors.h"

namespace outlook {

/// Thrown if the look ahead was stopped before it was done.
class Stopped : public platform::Error {
  public:
    Stopped() : Error("The look ahead was stopped.") {}
};

/// Makes a copy of the books in memory, lets the daily run bring the copy up to today and then to
/// the end of `until`, and returns what it posted on the way, with the days on which leases begin
/// and end and renewals and reviews are due. Runs on these two days post the same rows if nothing
/// else is entered until then.
///
/// Today's run matters to an event that never ran: it runs on the day of the next run, and at its
/// interval from that day on.
///
/// The books are only read, and may be books that can't be written to. May be called on any thread.
/// `stop` is asked often; once it returns true, Stopped is thrown. Throws Error if `until` is
/// before today, or the books can't be copied.
Forecast LookAhead(const std::filesystem::path& books, platform::Date until,
                   const std::function<bool()>& stop = {});

} // namespace outlook
