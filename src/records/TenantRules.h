#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace records {

/// The words that a tenant's status is chosen from, parted by commas; the first is a new one's.
inline constexpr std::string_view kTenantStatuses = "Pending,Approved,Rejected,Current,Archived";

/// How grave an incident is, parted by commas; the first is a new one's.
inline constexpr std::string_view kSeverities =
    "0 - Informational,1 - Caution,2 - Warning,3 - Critical";

/// What is wrong with a tenant, a line each.
std::vector<std::string> TenantErrors(std::string_view lastName);

/// What is wrong with an incident, a line each.
std::vector<std::string> IncidentErrors(std::string_view description);

} // namespace records
