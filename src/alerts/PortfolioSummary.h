#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/values/Currency.h"

namespace alerts {

struct SummaryItem {
    std::string_view name;
    platform::Currency total;
    /// Why the sum can't be calculated; empty if it was. If it can't be, the total is 0 and means
    /// nothing.
    std::string fault;
};

struct SummaryGroup {
    std::string_view heading;
    std::vector<SummaryItem> items;
};

/// Returns the figures of the portfolio as of today. A sum over no rows is 0.
std::vector<SummaryGroup> GetPortfolioSummary();

} // namespace alerts
