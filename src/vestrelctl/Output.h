#pragma once

#include <functional>

namespace vestrelctl {

// A script that sees a command fail runs it again. So a command that books something first makes
// sure that its output arrives.

/// Throws an Error if standard output is known not to take anything: a full device, a pipe that
/// nobody reads.
void CheckOutput();

/// Writes out what was printed. Throws an Error if that fails.
void FlushOutput();

/// Runs `work`, which changes the books and prints what it did, as one unit of work: it is kept
/// only if all that it printed could be written. Failures are thrown, and leave the books as
/// before.
void BookAndPrint(const std::function<void()>& work);

} // namespace vestrelctl
