#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace records {

/// The choices for an incident's severity, separated by commas; a new incident starts with the
/// first.
inline constexpr std::string_view kSeverities =
    "0 - Informational,1 - Caution,2 - Warning,3 - Critical";

/// Returns the errors in a tenant's entries, a line each; empty if they can be saved.
std::vector<std::string> TenantErrors(std::string_view lastName);

/// Returns the errors in an incident's entries, a line each; empty if they can be saved.
std::vector<std::string> IncidentErrors(std::string_view description);

} // namespace records
