#pragma once

#include <span>
#include <string>
#include <vector>

#include "exchange/CheckBooks.h"

namespace exchange {

// The parts of the check; each adds its findings.
void CheckFile(platform::Connection& books, std::vector<Finding>& findings);
void CheckIds(platform::Connection& books, std::vector<Finding>& findings);
void CheckLinks(platform::Connection& books, std::vector<Finding>& findings);
void CheckBalances(platform::Connection& books, std::vector<Finding>& findings);
void CheckPayments(platform::Connection& books, std::vector<Finding>& findings);

/// The first few ids in the first column of a statement's rows, and the number of rows.
struct FoundIds {
    std::vector<std::string> first;
    std::int64_t count = 0;

    bool Any() const { return count > 0; }
    /// Returns the ids as text: "4711, 4712 and 5 more".
    std::string List() const;
};
FoundIds FindIds(platform::Connection& books, std::string_view sql);

/// Returns a count with its noun: "1 record" or "3 records".
std::string Counted(std::int64_t count, std::string_view word);

} // namespace exchange
