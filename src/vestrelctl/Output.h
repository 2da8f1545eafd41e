#pragma once

#include <functional>

namespace vestrelctl {

// A script that sees a command fail runs it again, and takes what was printed as booked. So a
// command that books something first checks that its output can be written, and prints only what is
// committed.

/// Throws an Error if standard output is known not to take anything: a full device, a pipe that
/// nobody reads.
void CheckOutput();

/// Writes out what was printed. Throws an Error if that fails.
void FlushOutput();

/// Runs `work`, which changes the books and prints what it did, as one unit of work, and writes out
/// what was printed once that is committed. Failures are thrown, and leave the books as before and
/// nothing printed. Output that can't be written after all, such as to a disk that is full by then,
/// goes to standard error: the work is done, and must not be repeated.
void BookAndPrint(const std::function<void()>& work);

} // namespace vestrelctl
