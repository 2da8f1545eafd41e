#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "mortgages/MortgageLog.h"

namespace mortgages {

/// The categories that a charge entered by hand may have; the last is proposed.
inline constexpr std::array<std::string_view, 7> kChargeCategories = {
    "Mortgage Payment", "Late Fee",    "PMI",        "Escrow Payment",
    "NSF Fee",          "Service Fee", "Misc Charge"};

/// Returns the charge proposed today.
MortgageLogEntry NewCharge(std::int32_t idMortgage);

/// Returns true for a row of extra principal booked by a payment.
bool IsExtraPrincipal(const MortgageLogEntry& entry);

/// Returns true for a charge whose category and split the schedule depends on; they can't be
/// edited.
bool KeepsSplit(const MortgageLogEntry& entry);

/// Reads a row of the log. Returns false, with a message to the user, if there is none; if several
/// have this id the user gets a message too, and the first is read.
bool ReadCharge(std::int32_t idMortgageLog, MortgageLogEntry& entry);

/// Writes a charge, a new one for id 0, and refreshes the open screens; returns its id. Throws
/// ConflictError and writes nothing if the stored charge differs from `read`: another program has
/// paid, changed or deleted it.
std::int32_t SaveCharge(const MortgageLogEntry& entry, const MortgageLogEntry& read,
                        std::int32_t idMortgageLog);

} // namespace mortgages
