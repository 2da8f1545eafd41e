#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace bench {

// The reference of the window: the same statements, run by the engine's own C calls. A
// statement is one of the program's dialect; it is compiled outside the time that is taken.

/// Counts the rows of a statement, then reads the first `rows` of it: what a page of a list needs.
/// The number of rows counted.
double CountAndStep(const std::filesystem::path& file, std::string_view statement, int rows);

/// Reads every value of every row; the number of rows.
double StepAll(const std::filesystem::path& file, std::string_view statement);

/// Reads every row of each of these statements; the number of rows.
double StepEach(const std::filesystem::path& file, const std::vector<std::string>& statements);

} // namespace bench
