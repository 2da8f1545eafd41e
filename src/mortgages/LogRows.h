#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "mortgages/MortgageLog.h"

namespace mortgages {

/// Which rows of a mortgage's log are looked at.
enum class LogPart { PaymentDue, PaymentHistory };

/// A row of the log with its id.
struct LogRow {
    std::int32_t idMortgageLog = 0;
    MortgageLogEntry entry;
    platform::Currency total;
};

/// The rows, the latest first. Failures are thrown.
std::vector<LogRow> ReadLog(std::int32_t idMortgage, LogPart part);

/// The transaction that settled a row of the log, 0 for an open one or one that isn't there.
std::int32_t TransactionOfLogRow(std::int32_t idMortgageLog);

/// Removes rows of the log: one as any record is removed, several after `question` is agreed to,
/// as one unit of work. The screens are told. True when they were removed; failures are thrown.
bool DeleteLogRows(const std::vector<std::int32_t>& ids, std::string_view question);

} // namespace mortgages
