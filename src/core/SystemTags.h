#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace core {

/// Returns the value of a system tag that letters and reports share: the parts of today's date
/// ("day", "month", "monthname", "year", "date"), "time", and the company's fields ("companyname",
/// "address", "city", "state", "zip", "phone", "fax", "email", "web", "county"). Names match in any
/// case; nullopt for any other name.
std::optional<std::string> SystemTagValue(std::string_view name);

} // namespace core
