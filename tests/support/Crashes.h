#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace support {

/// The result of stopping a routine again and again.
struct Crashes {
    /// How many writing statements the routine has, its units' begins and ends among them.
    int statements = 0;
    /// After how many of the stops the books were as before the routine, and as after it.
    int asBefore = 0;
    int asAfter = 0;
    /// Where they were neither.
    std::vector<std::string> faults;
};

/// Runs `work` on the process's books in processes of their own, each killed before another
/// statement of it, without any chance to clean up; after each the books are opened again and every
/// row of every table compared. In the end the work is done.
Crashes CrashAtEveryStatement(const std::function<void()>& work);

} // namespace support
