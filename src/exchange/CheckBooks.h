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
    /// The steps by which the user can mend it.
    std::string advice;
};

/// Called with the name of each part of the check before it begins, and its place among `of`.
using CheckProgress = std::function<void(std::string_view part, int number, int of)>;

/// Checks the books and changes nothing: the database file, identifiers that two records share,
/// links that name no record, stored balances against their ledgers, payments without transaction
/// and transactions without payment. `books` is open. A part that can't be
/// carried out is a fault. Messages run between the parts.
std::vector<Finding> CheckBooks(platform::Connection& books, const CheckProgress& progress);

/// "2 faults and 1 note were found.", "Everything is in order."
std::string CheckSummary(const std::vector<Finding>& findings);
bool HasFaults(const std::vector<Finding>& findings);

} // namespace exchange
