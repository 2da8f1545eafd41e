#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "mortgages/MortgageLog.h"

namespace mortgages {

/// Which rows of a mortgage's log to read.
enum class LogPart { PaymentDue, PaymentHistory };

/// A row of the log with its id.
struct LogRow {
    std::int32_t idMortgageLog = 0;
    MortgageLogEntry entry;
    platform::Currency total;
};

/// Returns the rows, the latest first. Failures are thrown.
std::vector<LogRow> ReadLog(std::int32_t idMortgage, LogPart part);

/// Returns the transaction that settled a row of the log; 0 for an open or missing row.
std::int32_t TransactionOfLogRow(std::int32_t idMortgageLog);

/// A row of the log as a screen shows it.
struct ShownCharge {
    std::int32_t idMortgageLog = 0;
    /// The transaction that settled it, 0 if it is open.
    std::int32_t idTransaction = 0;
};

/// Whether deleting a single row asks the usual question of its kind, or the question for several
/// rows.
enum class SingleRow { AsRecord, AsSeveral };

/// Deletes rows of the log in one unit of work after the user has agreed to `question`, which is
/// shown with the rows named below it; refreshes the open screens. Returns true if they were
/// deleted. Throws ConflictError and deletes nothing if a row has been paid, or its payment
/// deleted, since it was shown.
bool DeleteLogRows(const std::vector<ShownCharge>& rows, std::string_view question,
                   SingleRow single = SingleRow::AsRecord);

} // namespace mortgages
