#include "core/grid/GridColumns.h"

#include "core/Preferences.h"
#include "core/grid/Grid.h"

namespace core::grid {

void SizeColumns(Grid& grid, int firstColumn) {
    if (grid.Model().columnCount() == 0) return;
    for (int column = 0; column < firstColumn; ++column)
        grid.setColumnHidden(column, true);
    const auto sizing = static_cast<Sizing>(Preferences().AutoSize);
    if (sizing == Sizing::Manual) {
        // Columns that were never resized by the user start with the widths of their texts.
        AutoSizeGrid(grid, firstColumn, Sizing::FitText);
        LoadColumnWidths(grid);
        grid.ApplyOwnWidths();
    } else {
        AutoSizeGrid(grid, firstColumn, sizing);
    }
}

} // namespace core::grid
