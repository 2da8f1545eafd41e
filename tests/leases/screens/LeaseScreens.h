#pragma once

#include <string>
#include <vector>

#include "leases/RentLog.h"
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

inline constexpr std::int32_t kLease = 40;

/// Lease 40 of tenant Smith in 12 Elm St B, running since the year began, due 05/01/2024, charged
/// up to today; and the openers of the screens that these screens open.
class LeaseScreenTest : public support::ScreenTest {
  protected:
    LeaseScreenTest();
    ~LeaseScreenTest() override;

    /// An open row of the ledger; answers its id.
    static std::int32_t Charge(const char* day, int units,
                               leases::RentFlags flags = leases::RentFlags::Ordinary,
                               core::TransactionClass rentClass = core::TransactionClass::Rent);
    static void Set(std::string_view field, std::string_view value);
    static std::string Lease(std::string_view field);

    /// "kind id" of each other record that was opened.
    std::vector<std::string> opened_;
};

} // namespace tests
