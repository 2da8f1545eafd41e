#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace shell {

/// A report definition that prints the rows of a statement as one table.
std::string GridReportText(std::string_view sql);

/// Writes it to the scratch report among the report files, which is replaced, and answers its path.
/// An Error that says why when it can't be written.
std::filesystem::path WriteGridReport(std::string_view sql);

} // namespace shell
