#pragma once

#include <string>
#include <vector>

#include "support/screens/Screens.h"

namespace tests {

using support::Choose;
using support::ClickAction;
using support::ClickOn;
using support::Find;
using support::kRoll;
using support::ListRows;
using support::LookFaults;
using support::Opened;
using support::Said;
using support::Text;
using support::Trigger;
using support::Type;

inline constexpr std::int32_t kLoan = 50;

/// Mortgage 50 of 120,000.00 at 6 percent over 360 months, first due 01/01/2024, with escrow; today
/// is 05/17/2024, and all until then is charged and open. And the openers of its screens.
class MortgageScreenTest : public support::ScreenTest {
  protected:
    MortgageScreenTest();
    ~MortgageScreenTest() override;

    static std::string Loan(std::string_view field);
    static void Tick(const QWidget& form, int row, bool ticked);
};

} // namespace tests
