#pragma once

#include <string_view>
#include <vector>

#include "platform/values/Currency.h"

namespace alerts {

struct SummaryItem {
    std::string_view name;
    platform::Currency total;
};

struct SummaryGroup {
    std::string_view heading;
    std::vector<SummaryItem> items;
};

/// The figures of the portfolio as they stand today. A sum without rows, or one that fails, is 0.
std::vector<SummaryGroup> GetPortfolioSummary();

} // namespace alerts
