#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Connection.h"

namespace exchange {

enum class Severity {
    Note,  ///< left over from the removal of records; nothing is lost by it
    Fault, ///< an error in the books
};

struct Finding {
    Severity severity = Severity::Fault;
    std::string what;
    /// The steps that mend it.
    std::string advice;
};

/// Called before each part of the check with its name, its number and the number of parts.
using CheckProgress = std::function<void(std::string_view part, int number, int of)>;

/// Checks the books and changes nothing: the database file, ids shared by two records, links to
/// records that don't exist, stored balances against their ledgers, payments without transactions
/// and the reverse. `books` is open. A part that can't be carried out is reported as a fault.
/// Window messages are processed between the parts.
std::vector<Finding> CheckBooks(platform::Connection& books, const CheckProgress& progress);

/// Returns "2 faults and 1 note were found." or "Everything is in order."
std::string CheckSummary(const std::vector<Finding>& findings);
bool HasFaults(const std::vector<Finding>& findings);

} // namespace exchange
