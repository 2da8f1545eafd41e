#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace core {

/// A period that lists of dated rows offer.
struct Period {
    std::string_view text;
    std::int32_t days; ///< back from today, 0 for all
};

/// Two years are a day more than two of 365.
inline constexpr std::array<Period, 7> kPeriods = {{{"Last 30 days", 30},
                                                    {"Last 60 days", 60},
                                                    {"Last 90 days", 90},
                                                    {"Last 180 days", 180},
                                                    {"Last Year", 365},
                                                    {"Last 2 Years", 731},
                                                    {"All", 0}}};

} // namespace core
