#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace reports {

/// Returns a definition that prints the rows of a statement as one table. A line end within the
/// statement or the subtitle becomes a blank; an empty subtitle is left out.
std::string ScratchReportText(std::string_view title, std::string_view subTitle,
                              std::string_view sql);

/// Replaces the scratch report among the report files with a definition and returns its path.
/// Throws an Error if it can't be written.
std::filesystem::path WriteScratchReport(std::string_view definition);

} // namespace reports
