#pragma once

namespace core::grid {

class Grid;

/// Hides the columns before `firstColumn` and sizes the others by the preference: as the user left
/// them, to fit the grid, or to fit the text.
void SizeColumns(Grid& grid, int firstColumn);

} // namespace core::grid
