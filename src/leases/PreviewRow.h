#pragma once

#include <string>
#include <vector>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// One row that submitting will write, change or delete, for the user to look at before.
struct PreviewRow {
    /// The change in words: "Charge paid", "Part left open".
    std::string what;
    platform::Date date;
    std::string category;
    std::string description;
    platform::Currency amount;

    friend bool operator==(const PreviewRow&, const PreviewRow&) = default;
};

using PreviewRows = std::vector<PreviewRow>;

struct RentLogEntry;

/// Describes a row of the ledger that will be written.
PreviewRow RowOf(std::string what, const RentLogEntry& entry);

} // namespace leases
