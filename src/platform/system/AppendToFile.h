#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace platform {

/// Adds a line to the end of a text file, in one piece even if other programs add theirs; a file
/// that is missing is made with these permissions. If the last line was cut off, the new line isn't
/// joined to it. Throws Error with the reason on failure.
void AppendLine(const std::filesystem::path& file, std::string_view line,
                std::filesystem::perms mode);

/// Removes the lines that `keeps` returns false for, in one step: a program that adds a line in the
/// meantime waits. Throws Error with the reason on failure; the file is then as before.
void KeepLines(const std::filesystem::path& file,
               const std::function<bool(std::string_view line)>& keeps);

} // namespace platform
