#pragma once

#include <filesystem>
#include <string_view>

namespace platform {

/// Adds a line to the end of a text file, in one piece even if other programs add theirs; a file
/// that is missing is made, private to the user. A last line that was cut off keeps to itself.
/// Throws Error with the reason on failure.
void AppendLine(const std::filesystem::path& file, std::string_view line);

} // namespace platform
