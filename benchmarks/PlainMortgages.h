#pragma once

#include <filesystem>

namespace bench {

/// Fills the seventeen fields of every row of a level loan's schedule `times` over, with the same
/// formulas in plain C, and returns a sum over them that depends on all.
double RunPlainSchedules(int periods, int times);

/// What the mortgage run is held against: the engine's own C calls, a write-ahead log, full
/// durability and one transaction around everything. For each mortgage it reads the row, inserts
/// `rowsPerMortgage` rows of the mortgage log, takes their identifiers and updates the row. Answers
/// the number of rows inserted.
double RunPlainMortgages(const std::filesystem::path& folder, int mortgages, int rowsPerMortgage);

} // namespace bench
