#pragma once

#include <span>
#include <string>

#include "core/TakenBack.h"
#include "shell/RunDigest.h"

namespace shell {

// Rows of a run that the user takes back on purpose, and posts again. Each call is one unit of work
// for all its rows; if one of them fails it throws Error with the reason, and nothing has changed.

/// Returns a row as the books remember it once it is taken back.
core::TakenRow TakenRowOf(const DigestRow& row);

/// Returns "11/06/2026, Late Fee, 50.00: Smith" for questions and messages.
std::string NameOfRow(const RunDigest& digest, const DigestRow& row);

/// Deletes posted rows as the user would in their ledgers, and remembers them, so that no run posts
/// them again. A row that was deleted before is only remembered. Throws ConflictError if a row was
/// taken back already, has been paid, or was changed since it was posted.
void TakeBack(std::span<const DigestRow> rows);

/// Puts rows that were taken back into their ledgers again as they would be had they stayed there,
/// under their ids and with their attached files, and forgets them. Returns how many of them had
/// been deleted before they were taken back: they aren't put back, and a run that is asked to
/// charge their days again posts them. Throws ConflictError if a row isn't taken back, or its
/// mortgage was paid off since.
int PostAgain(std::span<const DigestRow> rows);

} // namespace shell
