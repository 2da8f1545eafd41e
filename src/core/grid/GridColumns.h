#pragma once

namespace core::grid {

class Grid;

/// Hides the columns before `firstColumn` and sizes the others as the person prefers it: by hand as
/// they were left, to the grid, or to the text.
void SizeColumns(Grid& grid, int firstColumn);

} // namespace core::grid
