#include "core/SystemTags.h"

#include <array>

#include <fmt/core.h>

#include "core/Configuration.h"
#include "platform/system/Clock.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace core {

namespace {

/// The time of day, as "3:05:09 PM".
std::string TimeOfDay() {
    constexpr int kMinute = 60;
    constexpr int kHour = 3600;
    constexpr int kNoon = 12;
    const int second = static_cast<int>(platform::SecondOfDay());
    const int hour = second / kHour;
    return fmt::format("{}:{:02}:{:02} {}", hour % kNoon == 0 ? kNoon : hour % kNoon,
                       second % kHour / kMinute, second % kMinute, hour < kNoon ? "AM" : "PM");
}

struct Tag {
    std::string_view name;
    std::string (*value)();
};

constexpr std::array kTags = {
    Tag{"day", [] { return std::to_string(platform::Today().Day()); }},
    Tag{"month", [] { return std::to_string(platform::Today().Month()); }},
    Tag{"monthname", [] { return platform::FormatDate(platform::Today(), "mmmm"); }},
    Tag{"year", [] { return std::to_string(platform::Today().Year()); }},
    Tag{"date", [] { return platform::Today().ToText(); }},
    Tag{"time", [] { return TimeOfDay(); }},
    Tag{"companyname", [] { return Config().CompanyName; }},
    Tag{"address", [] { return Config().Address; }},
    Tag{"city", [] { return Config().City; }},
    Tag{"state", [] { return Config().State; }},
    Tag{"zip", [] { return Config().Zip; }},
    Tag{"phone", [] { return Config().Phone; }},
    Tag{"fax", [] { return Config().FAX; }},
    Tag{"email", [] { return Config().Email; }},
    Tag{"web", [] { return Config().Web; }},
    // The settings name a county only as the default of new records.
    Tag{"county", [] { return Config().DefaultCounty; }},
};

} // namespace

std::optional<std::string> SystemTagValue(std::string_view name) {
    for (const Tag& tag : kTags) {
        if (platform::EqualIgnoringCase(tag.name, name)) return tag.value();
    }
    return std::nullopt;
}

} // namespace core
