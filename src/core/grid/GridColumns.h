#pragma once

namespace core::grid {

class Grid;

/// Hides the columns before `firstColumn` and sizes the others as the preference says: as the user
/// left them, to the grid, or to the text.
void SizeColumns(Grid& grid, int firstColumn);

} // namespace core::grid
