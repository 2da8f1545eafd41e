#pragma once

#include <filesystem>
#include <string_view>

namespace shell {

/// Replaces the scratch report with one that prints the rows of a statement as one table, and
/// returns its path. Throws Error if it can't be written.
std::filesystem::path WriteGridReport(std::string_view sql);

} // namespace shell
