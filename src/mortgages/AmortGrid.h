#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mortgages/clsMortgage.h"
#include "platform/values/Value.h"

namespace mortgages {

/// The optional columns of the schedule that are shown.
struct AmortView {
    bool showDue = false;
    bool showDetail = false; ///< principal, interest, periods remaining, penalty
    bool showYear = false;   ///< the sums of the calendar year
    bool showTotal = false;  ///< the sums since the first period
};

/// The format of a column's values.
enum class AmortFormat { Count, Day, Rate, Money };

/// One column of a schedule.
struct AmortColumn {
    std::string_view caption;
    AmortFormat format = AmortFormat::Money;
    bool AmortView::*shownWith = nullptr;  ///< null for a column that always stands there
    double AmortPeriod::*amount = nullptr; ///< of money columns
};

/// A loan's schedule as a table; cells are made when they are asked for.
class AmortGrid {
  public:
    AmortGrid(const clsMortgage& mortgage, std::vector<AmortColumn> columns)
        : mortgage_(&mortgage), columns_(std::move(columns)) {}

    const std::vector<AmortColumn>& Columns() const { return columns_; }
    std::size_t RowCount() const { return mortgage_->Schedule().size(); }

    // Rows and columns count from 0.
    /// Returns the value with all its digits; rates in percent.
    platform::Value Value(std::size_t row, std::size_t column) const;
    /// Returns the value as it is shown.
    std::string Text(std::size_t row, std::size_t column) const;
    /// Every second row, starting with the first, is tinted.
    static bool IsTinted(std::size_t row) { return row % 2 == 0; }

  private:
    const clsMortgage* mortgage_;
    std::vector<AmortColumn> columns_;
};

/// Returns the eight columns of a printed schedule, or with `full` all sixteen.
std::vector<AmortColumn> PrintedColumns(bool full);

} // namespace mortgages
