#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Table.h"
#include "mortgages/clsMortgage.h"

namespace mortgages {

/// The optional columns of the schedule that are shown.
struct AmortView {
    bool showDue = false;
    bool showDetail = false; ///< principal, interest, periods remaining, penalty
    bool showYear = false;   ///< the sums of the calendar year
    bool showTotal = false;  ///< the sums since the first period
};

/// The columns of a printed schedule: eight, or all sixteen.
enum class PrintedColumns { Usual, All };

struct AmortColumn;

/// A loan's schedule as a table. The numbers have all their digits, a rate is in percent.
class AmortGrid : public core::Table {
  public:
    /// Keeps a copy of the loan with its schedule.
    AmortGrid(const clsMortgage& mortgage, const AmortView& view);
    AmortGrid(const clsMortgage& mortgage, PrintedColumns printed);

    const std::vector<core::TableColumn>& Columns() const override { return columns_; }
    std::int64_t RowCount() const override { return std::ssize(mortgage_.Schedule()); }
    platform::Value ValueAt(std::int64_t row, std::size_t column) const override;

    /// Returns a cell as it is shown.
    std::string Text(std::int64_t row, std::size_t column) const;
    /// Returns whether a printed column is aligned left: the periods' numbers and days.
    bool IsPrintedLeft(std::size_t column) const;
    /// Returns whether a row is tinted: every second one is, the first included.
    static bool IsTinted(std::int64_t row) { return row % 2 == 0; }

  private:
    void Add(const AmortColumn& column);

    clsMortgage mortgage_;
    std::vector<const AmortColumn*> sources_;
    std::vector<core::TableColumn> columns_;
};

} // namespace mortgages
