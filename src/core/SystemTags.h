#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace core {

/// A tag that letters and reports share: the parts of today's date ("day", "month", "monthname",
/// "year", "date"), "time", and the company's fields ("companyname", "address", "city", "state",
/// "zip", "phone", "fax", "email", "web", "county").
struct SystemTag {
    std::string_view name;
    std::string (*value)();
};

/// Returns all system tags, in the order in which reports fill them.
std::span<const SystemTag> SystemTags();

/// Returns the value of a system tag, whose name matches in any case; nullopt for any other name.
std::optional<std::string> SystemTagValue(std::string_view name);

} // namespace core
