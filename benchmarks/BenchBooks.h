#pragma once

#include <cstdint>
#include <filesystem>

#include "platform/values/Date.h"

namespace bench {

/// A new database in `folder` with this many monthly leases, contracted, charged up to the day
/// before `firstDue`, each with rent, a one-time and a daily fee, nothing paid.
void MakeBooks(const std::filesystem::path& folder, int leases, platform::Date firstDue);

/// Opens the process's session on the database in `folder`.
void OpenBooks(const std::filesystem::path& folder);

/// Settles every open charge of the process's books, and moves the due dates on to `nextDue`.
void PayEverything(platform::Date nextDue);

/// Runs the leases up to `today`; returns the number of rows posted.
double RunLeases(platform::Date today);

} // namespace bench
