#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace shell {

/// Returns a report definition that prints the rows of a statement as one table.
std::string GridReportText(std::string_view sql);

/// Replaces the scratch report among the report files with such a definition and returns its path.
/// Throws Error if it can't be written.
std::filesystem::path WriteGridReport(std::string_view sql);

} // namespace shell
