#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/GridFormat.h"
#include "core/Table.h"

namespace core::grid {

/// Searches the rows of a grid for text, as its columns show them and ignoring case.
class RowSearch {
  public:
    /// `formats` has an entry for every column; the first `firstColumn` of them aren't searched.
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
    bool isPlain_ = true;       ///< only ASCII
    std::vector<Place> places_; ///< the columns that can have such a text
};

} // namespace core::grid
