#pragma once

#include <vector>

#include "core/RowTable.h"
#include "mortgages/LogRows.h"
#include "mortgages/MortgagePayment.h"

namespace mortgages {

// Rows of a mortgage's log as tables. Their first column holds the ids in the log, their second the
// flags.

core::RowTable<LogRow> LogTable(std::vector<LogRow> rows);
/// Returns the charges that a payment may settle.
core::RowTable<PaymentCharge> ChargeTable(std::vector<PaymentCharge> charges);

} // namespace mortgages
