#pragma once

#include <string>
#include <string_view>

#include "platform/printing/PrintTable.h"

namespace reports {

/// The attributes that a definition gives a table. Columns are lists of numbers from 1, separated
/// by ","; anything else in them is skipped.
struct TableAttributes {
    std::string Border; ///< empty leaves the table's own
    std::string ColBold;
    std::string AlignCurrency;
};

/// Returns the border that a word names, whatever its case and the blanks around it; all lines for
/// an unknown word.
platform::TableBorder BorderOfWord(std::string_view word);

/// Sets the attributes and the wrapping of all columns. A table without rows or columns is left
/// unchanged.
void ApplyAttributes(platform::PrintTable& table, const TableAttributes& attributes, bool colWrap);

} // namespace reports
