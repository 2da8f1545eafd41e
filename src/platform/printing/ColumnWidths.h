#pragma once

#include <span>
#include <vector>

#include "platform/printing/PrintTable.h"

namespace platform {

struct FittedColumns {
    std::vector<Twips> widths;
    /// The factor for the text's size: below 1 if the columns had to be made narrower.
    double textScale = 1;
};

/// Returns the widths that a table's columns take on `printWidth`. A table that would be wider is
/// scaled down in proportion, its text as far as it stays readable.
FittedColumns FitColumns(std::span<const TableColumn> columns, Twips printWidth);

} // namespace platform
