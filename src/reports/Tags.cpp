#include "reports/Tags.h"

#include <fmt/core.h>

#include "core/Configuration.h"
#include "platform/system/Clock.h"
#include "platform/values/Date.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace reports {

namespace {

std::string TimeOfDay() {
    constexpr int kMinute = 60;
    constexpr int kHour = 3600;
    constexpr int kNoon = 12;
    const int second = static_cast<int>(platform::SecondOfDay());
    const int hour = second / kHour;
    return fmt::format("{}:{:02}:{:02} {}", hour % kNoon == 0 ? kNoon : hour % kNoon,
                       second % kHour / kMinute, second % kMinute, hour < kNoon ? "AM" : "PM");
}

} // namespace

void ReplaceTag(std::string& text, std::string_view tag, std::string_view value) {
    if (tag.empty() || text.size() < tag.size()) return;
    std::string out;
    std::size_t kept = 0; // up to where `out` holds the text
    auto at = text.find(tag.front());
    while (at != std::string::npos && at + tag.size() <= text.size()) {
        const std::string_view here = std::string_view(text).substr(at, tag.size());
        if (here == tag || platform::EqualIgnoringCase(here, tag)) {
            out.append(text, kept, at - kept).append(value);
            kept = at + tag.size();
            at = text.find(tag.front(), kept);
        } else {
            at = text.find(tag.front(), at + 1);
        }
    }
    if (kept == 0) return;
    text = out.append(text, kept);
}

void ExpandSystemTags(std::string& text) {
    if (text.find('%') == std::string::npos) return;
    const platform::Date today = platform::Today();
    const core::ConfigValues& company = core::Config();
    ReplaceTag(text, "%DAY%", std::to_string(today.Day()));
    ReplaceTag(text, "%MONTH%", std::to_string(today.Month()));
    ReplaceTag(text, "%MONTHNAME%", platform::FormatDate(today, "mmmm"));
    ReplaceTag(text, "%YEAR%", std::to_string(today.Year()));
    ReplaceTag(text, "%DATE%", today.ToText());
    ReplaceTag(text, "%TIME%", TimeOfDay());
    ReplaceTag(text, "%COMPANYNAME%", company.CompanyName);
    ReplaceTag(text, "%ADDRESS%", company.Address);
    ReplaceTag(text, "%CITY%", company.City);
    ReplaceTag(text, "%STATE%", company.State);
    ReplaceTag(text, "%ZIP%", company.Zip);
    ReplaceTag(text, "%PHONE%", company.Phone);
    ReplaceTag(text, "%FAX%", company.FAX);
    ReplaceTag(text, "%EMAIL%", company.Email);
    ReplaceTag(text, "%WEB%", company.Web);
    // The settings name a county only as the default of new records.
    ReplaceTag(text, "%COUNTY%", company.DefaultCounty);
}

std::string TextOf(const platform::Value& value) {
    return value.IsNull() ? std::string() : value.AsText();
}

} // namespace reports
