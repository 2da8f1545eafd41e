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

/// A charge of today as it is proposed.
MortgageLogEntry NewCharge(std::int32_t idMortgage);

/// Reads a row of the log; false, and the person is told, when it isn't there. Of several of the
/// same id, of which the person is told too, it reads the first.
bool ReadCharge(std::int32_t idMortgageLog, MortgageLogEntry& entry);

/// Writes a charge and tells the open screens; answers its id. Failures are thrown.
std::int32_t SaveCharge(const MortgageLogEntry& entry, std::int32_t idMortgageLog);

} // namespace mortgages
