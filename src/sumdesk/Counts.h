#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sumdesk {

/// Returns "1 day", "2 days", "1,200 days".
std::string Counted(std::int64_t count, std::string_view noun);

/// Returns an amount to the cent: "1,234.50", "-5.00".
std::string MoneyText(double amount);

} // namespace sumdesk
