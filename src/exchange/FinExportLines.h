#pragma once

#include <string>
#include <string_view>

#include "exchange/FinExportSettings.h"
#include "platform/values/Currency.h"

namespace exchange {

/// A transaction as an entry of one of its two accounts.
struct FinEntry {
    std::string_view type; ///< kDeposit or kCheck
    std::string date;      ///< "mm/dd/yyyy"
    std::string checkNum;
    std::string account; ///< the account that is exported
    std::string name;    ///< the other party
    std::string category;
    std::string description;
    platform::Currency amount; ///< negative for a check
};

inline constexpr std::string_view kDeposit = "DEPOSIT";
inline constexpr std::string_view kCheck = "CHECK";

struct FinFormat {
    std::string_view extension;
    std::string_view filterName;
    /// The beginning of the file, including its line ends.
    std::string_view head;
};
const FinFormat& FormatOf(FinType type);

/// Returns text as it is written to the file, with blanks instead of commas, line ends and tabs,
/// which the formats have no way to quote.
std::string PlainText(std::string_view text);

/// Adds the lines of an entry to `file`.
void AppendEntry(std::string& file, FinType type, const FinEntry& entry, LimitLength limit);

} // namespace exchange
