#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/RecordKinds.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace outlook {

/// Where a row of a forecast comes from.
enum class Origin : std::uint8_t {
    Charge,  ///< the run will post it to a ledger
    LateFee, ///< likewise, because an earlier charge stays open
    Event,   ///< a scheduled event will post it
    Day,     ///< nothing is posted: a date to be aware of
};

/// Which way the money of a row goes. A transfer, and a row without an amount, goes neither.
enum class Flow : std::uint8_t { Neither, In, Out };

/// Returns "In", "Out" or an empty text.
std::string_view FlowName(Flow flow);

/// One row of a forecast: something that will happen.
struct ForecastRow {
    platform::Date date;
    Origin origin = Origin::Charge;
    /// The record that the row is about, which can be opened.
    core::RecordKind recordKind = core::kNone;
    std::int32_t recordId = 0;
    std::string name;
    /// The category of what is posted, or what happens on the day.
    std::string what;
    /// Zero for Origin::Day.
    platform::Currency amount;
    Flow flow = Flow::Neither;
};

/// All that will happen from today to a given day, if nothing else is entered.
struct Forecast {
    platform::Date today;
    platform::Date until;
    /// In the order of their days. Books that were not brought up to date have rows before today.
    std::vector<ForecastRow> rows;
    /// A line for each record that the run would skip, with the reason.
    std::vector<std::string> faults;
};

} // namespace outlook
