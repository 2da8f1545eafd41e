#pragma once

#include <span>
#include <vector>

#include "platform/printing/PrintTable.h"

namespace platform {

struct FittedColumns {
    std::vector<Twips> widths;
    /// What the text is to be scaled by where the columns had to be made narrower, else 1.
    double textScale = 1;
};

/// The widths that a table's columns take on `printWidth`. A table that would be wider is scaled
/// down in proportion, its text as far as it stays readable.
FittedColumns FitColumns(std::span<const TableColumn> columns, Twips printWidth);

} // namespace platform
