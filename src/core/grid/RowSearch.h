#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/GridFormat.h"
#include "core/Table.h"

namespace core::grid {

/// Looks for a text in the rows of a grid, as its columns show them and without regard to case.
class RowSearch {
  public:
    /// `formats` are those of all columns; the first `firstColumn` of them aren't looked at.
    RowSearch(std::string_view text, const std::vector<ColumnFormat>& formats,
              const std::vector<platform::FieldType>& types, std::size_t firstColumn);

    /// Returns whether any column of a row, counted from 0, contains the text.
    bool Matches(const core::Table& table, std::int64_t row) const;

  private:
    struct Place {
        std::size_t column = 0;
        ColumnFormat format;
    };

    bool IsIn(const std::string& cell) const;

    std::string text_;
    bool isPlain_ = true;       ///< ASCII alone
    std::vector<Place> places_; ///< the columns that can have such a text
};

} // namespace core::grid
