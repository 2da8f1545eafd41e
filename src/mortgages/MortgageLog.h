#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "mortgages/MortgageCodes.h"
#include "mortgages/MortgageWalk.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace mortgages {

/// A row of the mortgage log. Amounts owed to the lender are positive.
struct MortgageLogEntry {
    std::int32_t idMortgage = 0;
    /// The paying transaction, 0 while the row is open.
    std::int32_t idTransaction = 0;
    std::int16_t period = 0;
    platform::Date datePosted;
    std::string category;
    platform::Currency principal;
    platform::Currency payDown; ///< principal beyond the scheduled one
    platform::Currency interest;
    platform::Currency other;
    std::string description;
    LogFlags flags = LogFlags::Ordinary;

    platform::Currency Total() const { return principal + payDown + interest + other; }

    friend bool operator==(const MortgageLogEntry&, const MortgageLogEntry&) = default;
};

/// Writes the row `idMortgageLog`, or a new one if that is 0 or the row was deleted; returns the
/// row's id. Throws on failure.
std::int32_t WriteMortgageLog(const MortgageLogEntry& entry, std::int32_t idMortgageLog = 0);

/// Adds the charges of a walk to the log of a mortgage, in order, under consecutive ids; returns
/// the first, 0 if there are no charges. Throws on failure.
std::int32_t WriteCharges(std::int32_t idMortgage, std::span<const Charge> charges);

} // namespace mortgages
