#include "platform/values/Date.h"

#include <array>
#include <cstdint>
#include <limits>

#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr int kFirstSerial = -657'434; // 1/1/100
constexpr int kLastSerial = 2'958'465; // 12/31/9999

// Reads up to `most` digits off the front of `text`; fails if there are none or more than that.
bool TakeNumber(std::string_view& text, std::size_t most, unsigned& number, std::size_t& digits) {
    number = 0;
    digits = 0;
    while (digits < text.size() && text[digits] >= '0' && text[digits] <= '9') {
        if (digits == most) return false;
        number = number * 10 + static_cast<unsigned>(text[digits] - '0');
        ++digits;
    }
    text.remove_prefix(digits);
    return digits > 0;
}

void PutDigits(char* place, unsigned number, int digits) {
    for (int i = digits - 1; i >= 0; --i, number /= 10) {
        place[i] = static_cast<char>('0' + number % 10);
    }
}

[[noreturn]] void ThrowOffCalendar() {
    throw OverflowError("The date lies outside the years 100 to 9999.");
}

} // namespace

Date::Date(int year, unsigned month, unsigned day) {
    const auto date = year < 0 ? std::nullopt : FromParts(static_cast<unsigned>(year), month, day);
    if (!date) throw ConversionError("There is no such date.");
    *this = *date;
}

std::optional<Date> Date::FromParts(unsigned year, unsigned month, unsigned day) {
    if (year < kFirstYear || year > kLastYear || month > 12 || day > 31) return std::nullopt;
    const std::chrono::year_month_day calendar{std::chrono::year(static_cast<int>(year)),
                                               std::chrono::month(month), std::chrono::day(day)};
    if (!calendar.ok()) return std::nullopt;
    const auto days = std::chrono::sys_days(calendar).time_since_epoch().count();
    return Date(static_cast<int>(days) + kUnixSerial);
}

std::optional<Date> Date::TryParse(std::string_view text) {
    text = Trim(text);
    std::array<unsigned, 3> part{};
    std::array<std::size_t, 3> digits{};
    if (!TakeNumber(text, 4, part[0], digits[0])) return std::nullopt;
    const char separator = text.empty() ? '\0' : text.front();
    if (separator != '/' && separator != '-') return std::nullopt;
    for (std::size_t i = 1; i < part.size(); ++i) {
        if (text.empty() || text.front() != separator) return std::nullopt;
        text.remove_prefix(1);
        if (!TakeNumber(text, 4, part[i], digits[i])) return std::nullopt;
    }
    if (!text.empty()) return std::nullopt;

    const bool yearFirst = digits[0] > 2;
    const std::size_t yearAt = yearFirst ? 0 : 2;
    unsigned year = part[yearAt];
    if (digits[yearAt] <= 2) year += year < 30 ? 2000 : 1900;
    return yearFirst ? FromParts(year, part[1], part[2]) : FromParts(year, part[0], part[1]);
}

Date Date::Parse(std::string_view text) {
    if (const auto date = TryParse(text)) return *date;
    if (Trim(text).empty()) return {};
    throw ConversionError("\"" + std::string(text) + "\" is not a valid date.");
}

Date Date::FromSerial(int serial) {
    if (serial < kFirstSerial || serial > kLastSerial) ThrowOffCalendar();
    return Date(serial);
}

unsigned Date::Weekday() const {
    return std::chrono::weekday(std::chrono::sys_days(Calendar())).c_encoding() + 1;
}

void Date::ThrowUnset() {
    throw ConversionError("The date is not set.");
}

std::string Date::ToText() const {
    if (!IsSet()) return {};
    const auto calendar = Calendar();
    std::string text("00/00/0000");
    PutDigits(text.data(), static_cast<unsigned>(calendar.month()), 2);
    PutDigits(text.data() + 3, static_cast<unsigned>(calendar.day()), 2);
    PutDigits(text.data() + 6, static_cast<unsigned>(static_cast<int>(calendar.year())), 4);
    return text;
}

Date DateAdd(Interval interval, int count, Date date) {
    if (interval == Interval::Day || interval == Interval::Week) {
        const std::int64_t days = std::int64_t{count} * (interval == Interval::Week ? 7 : 1);
        const std::int64_t serial = date.Serial() + days;
        if (serial < kFirstSerial || serial > kLastSerial) ThrowOffCalendar();
        return Date::FromSerial(static_cast<int>(serial));
    }
    const auto from = date.Calendar();
    const std::int64_t months = std::int64_t{static_cast<int>(from.year())} * 12 +
                                static_cast<unsigned>(from.month()) - 1 +
                                std::int64_t{count} * (interval == Interval::Year ? 12 : 1);
    if (months < kFirstYear * 12 || months >= (kLastYear + 1) * 12) ThrowOffCalendar();

    using namespace std::chrono;
    const year_month target(year(static_cast<int>(months / 12)),
                            month(static_cast<unsigned>(months % 12) + 1));
    const auto last = (target / std::chrono::last).day();
    return {static_cast<int>(target.year()), static_cast<unsigned>(target.month()),
            static_cast<unsigned>(std::min(from.day(), last))};
}

int DateDiff(Interval interval, Date from, Date to) {
    if (interval == Interval::Day) return to.Serial() - from.Serial();
    if (interval == Interval::Week) return (to.Serial() - from.Serial()) / 7;
    const auto first = from.Calendar();
    const auto second = to.Calendar();
    const int years = static_cast<int>(second.year()) - static_cast<int>(first.year());
    if (interval == Interval::Year) return years;
    return years * 12 + static_cast<int>(static_cast<unsigned>(second.month())) -
           static_cast<int>(static_cast<unsigned>(first.month()));
}

} // namespace platform
