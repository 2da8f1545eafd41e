#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "platform/values/Currency.h"

namespace books {

/// One calendar year of a depreciation schedule.
struct DepreciationPeriod {
    std::string PeriodEnd; ///< "12/31/yyyy"
    platform::Currency StartValue;
    platform::Currency Loss;
    platform::Currency EndValue;
    std::string MethodUsed;
};

/// Expands the cost basis of a rental building into its schedule, a row per calendar year: the tax
/// table of residential property over 27.5 years, whose first year depends on the month in which
/// the building was placed in service. Life and method are stored only; the table is the same for
/// all of them.
class clsDepreciation {
  public:
    /// The captions of the schedule's grid.
    static constexpr std::array<std::string_view, 6> kColumns = {
        "Period #", "Period End", "Beginning Value", "Depreciated Amt", "Ending Value", "Method"};

    /// Builds the schedule; an empty start date becomes today. Throws a ConversionError if the
    /// start date is not a valid date, an OverflowError if the basis is too large for money.
    void Init();
    /// Rebuilds the schedule and returns the loss of the year ("2026") in single precision; 0 for a
    /// year outside the schedule and for an empty one.
    float TotalDepreciation(std::string_view year);

    const std::string& StartDate() const { return startDate_; }
    void SetStartDate(std::string_view text) { startDate_ = text; }
    const std::string& Description() const { return description_; }
    void SetDescription(std::string_view text) { description_ = text; }
    double Basis() const { return basis_; }
    void SetBasis(double amount) { basis_ = amount; }
    /// Returns the life in years, which is stored but has no effect on the schedule.
    double Life() const { return life_; }
    void SetLife(double years) { life_ = years; }
    const std::string& Method() const { return method_; }
    void SetMethod(std::string_view word) { method_ = word; }

    /// Returns the schedule made by the last Init, oldest year first.
    const std::vector<DepreciationPeriod>& Schedule() const { return schedule_; }
    int Periods() const { return static_cast<int>(schedule_.size()); }
    /// Returns the cells of a row of the grid (0 the first) as they are shown, in the order of
    /// kColumns.
    std::array<std::string, kColumns.size()> GridRow(std::size_t row) const;
    /// Returns the schedule with its header as table text: cells separated by "|", rows by ";".
    std::string GetClip() const;

  private:
    std::string startDate_;
    std::string description_;
    double basis_ = 0;
    double life_ = 0;
    std::string method_ = "Straight Line";
    std::vector<DepreciationPeriod> schedule_;
};

} // namespace books
