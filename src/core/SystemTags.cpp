#include "core/SystemTags.h"

#include <array>

#include <fmt/core.h>

#include "core/Configuration.h"
#include "platform/system/Clock.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace core {

namespace {

/// Returns the time of day, as "3:05:09 PM".
std::string TimeOfDay() {
    constexpr int kMinute = 60;
    constexpr int kHour = 3600;
    constexpr int kNoon = 12;
    const int second = static_cast<int>(platform::SecondOfDay());
    const int hour = second / kHour;
    return fmt::format("{}:{:02}:{:02} {}", hour % kNoon == 0 ? kNoon : hour % kNoon,
                       second % kHour / kMinute, second % kMinute, hour < kNoon ? "AM" : "PM");
}

constexpr std::array kTags = {
    SystemTag{"day", [] { return std::to_string(platform::Today().Day()); }},
    SystemTag{"month", [] { return std::to_string(platform::Today().Month()); }},
    SystemTag{"monthname", [] { return platform::FormatDate(platform::Today(), "mmmm"); }},
    SystemTag{"year", [] { return std::to_string(platform::Today().Year()); }},
    SystemTag{"date", [] { return platform::Today().ToText(); }},
    SystemTag{"time", [] { return TimeOfDay(); }},
    SystemTag{"companyname", [] { return Config().CompanyName; }},
    SystemTag{"address", [] { return Config().Address; }},
    SystemTag{"city", [] { return Config().City; }},
    SystemTag{"state", [] { return Config().State; }},
    SystemTag{"zip", [] { return Config().Zip; }},
    SystemTag{"phone", [] { return Config().Phone; }},
    SystemTag{"fax", [] { return Config().FAX; }},
    SystemTag{"email", [] { return Config().Email; }},
    SystemTag{"web", [] { return Config().Web; }},
    // The settings name a county only as the default of new records.
    SystemTag{"county", [] { return Config().DefaultCounty; }},
};

} // namespace

std::span<const SystemTag> SystemTags() {
    return kTags;
}

std::optional<std::string> SystemTagValue(std::string_view name) {
    for (const SystemTag& tag : kTags) {
        if (platform::EqualIgnoringCase(tag.name, name)) return tag.value();
    }
    return std::nullopt;
}

} // namespace core
