#pragma once

#include <array>
#include <string_view>

#include "platform/values/Date.h"

namespace mortgages {

/// A date as the schedule stores it, "mm/dd/yyyy": ten characters.
class DueText {
  public:
    DueText() { text_.fill(' '); }
    explicit DueText(std::chrono::year_month_day day);

    std::string_view View() const { return {text_.data(), text_.size()}; }
    std::string_view Year() const { return View().substr(6); }
    bool IsJanuary() const { return text_[0] == '0' && text_[1] == '1'; }

  private:
    std::array<char, 10> text_;
};

/// One row of a loan's schedule. Amounts have all the digits of their calculation; the members are
/// named after the schedule's columns.
struct AmortPeriod {
    DueText Due;
    double BeginBal = 0;
    double Pmt = 0;
    double PmtYTD = 0; ///< since the calendar year began, as of all the sums "YTD"
    double PmtTTD = 0; ///< since the first period, as of all the sums "TTD"
    double Pri = 0;    ///< scheduled principal
    double XPri = 0;   ///< principal paid beyond it
    double PriYTD = 0; ///< of both, as is PriTTD
    double PriTTD = 0;
    double Rate = 0; ///< a fraction for a year
    double Int = 0;
    double IntYTD = 0;
    double IntTTD = 0;
    double PctPri = 0; ///< both principals as a share of the loan's first balance
    double PctPriYTD = 0;
    double Penalty = 0; ///< set off by this period; no part of the payment
    double EndBal = 0;
};

} // namespace mortgages
