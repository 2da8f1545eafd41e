#pragma once

#include <string>
#include <string_view>

#include "exchange/FinExportSettings.h"
#include "platform/values/Currency.h"

namespace exchange {

/// One side of a transaction, seen from the account on that side.
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
    /// The beginning of the file, its line ends included.
    std::string_view head;
};
const FinFormat& FormatOf(FinType type);

/// Returns a text as the file holds it, with blanks in place of commas, line ends and tabs, since
/// no format can quote them.
std::string PlainText(std::string_view text);

/// Adds the lines of an entry to `file`.
void AppendEntry(std::string& file, FinType type, const FinEntry& entry, LimitLength limit);

} // namespace exchange
