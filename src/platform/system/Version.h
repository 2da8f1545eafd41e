#pragma once

#include <span>
#include <string_view>

namespace platform {

/// Returns the programs' version: major, minor and revision, as in "1.2.3".
std::string_view Version();

/// Prints "NAME VERSION" to standard output and returns true if "--version" is among the words of a
/// command line.
bool PrintVersionIfAsked(std::string_view name, std::span<char* const> words);

} // namespace platform
