#include "platform/values/Format.h"

#include <array>
#include <cmath>

#include "platform/values/Conversions.h"
#include "platform/values/NumberFormat.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

constexpr std::array<std::string_view, 12> kMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<std::string_view, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};

void PutNumber(std::string& out, unsigned number, std::size_t width) {
    const std::string digits = std::to_string(number);
    if (digits.size() < width) out.append(width - digits.size(), '0');
    out += digits;
}

// Appends a part of a date for a run of one letter in the format; returns false if the letter has
// no meaning.
bool PutDatePart(std::string& out, Date date, char letter, std::size_t count) {
    if (letter == 'm' && count <= 4) {
        const std::string_view name = kMonths[date.Month() - 1];
        if (count <= 2) {
            PutNumber(out, date.Month(), count);
        } else {
            out += count == 3 ? name.substr(0, 3) : name;
        }
        return true;
    }
    if (letter == 'd' && count <= 4) {
        const std::string_view name = kWeekdays[date.Weekday() - 1];
        if (count <= 2) {
            PutNumber(out, date.Day(), count);
        } else {
            out += count == 3 ? name.substr(0, 3) : name;
        }
        return true;
    }
    if (letter != 'y' || (count != 2 && count != 4)) return false;
    const auto year = static_cast<unsigned>(date.Year());
    PutNumber(out, count == 2 ? year % 100 : year, count);
    return true;
}

bool IsDateFormat(std::string_view format) {
    return !ShowsDigits(format) && format.find('"') == std::string_view::npos &&
           format.find_first_of("mdyMDY") != std::string_view::npos;
}

std::string FormatText(const std::string& text, std::string_view format) {
    if (IsDateFormat(format)) {
        const auto date = Date::TryParse(text);
        return date ? FormatDate(*date, format) : text;
    }
    const auto digits = ScanDigits(text);
    return digits ? FormatDigits(*digits, format) : text;
}

} // namespace

std::string FormatNumber(double number, std::string_view format) {
    format = NamedFormat(format);
    if (format.empty() || !std::isfinite(number)) return NumberToText(number);
    return FormatDigits(DigitsOf(number), format);
}

std::string FormatNumber(Currency amount, std::string_view format) {
    format = NamedFormat(format);
    return format.empty() ? MoneyToText(amount) : FormatDigits(DigitsOf(amount), format);
}

std::string FormatDate(Date date, std::string_view format) {
    format = NamedFormat(format);
    if (!date.IsSet()) return {};
    if (format == kDateFormat || format.empty()) return date.ToText();
    std::string out;
    for (std::size_t i = 0; i < format.size();) {
        if (format[i] == '"') {
            const auto end = std::min(format.find('"', i + 1), format.size());
            out += format.substr(i + 1, end - i - 1);
            i = end + 1;
            continue;
        }
        const char letter = static_cast<char>(format[i] | 0x20);
        std::size_t end = i + 1;
        while (end < format.size() && (format[end] | 0x20) == letter)
            ++end;
        if (!PutDatePart(out, date, letter, end - i)) out += format.substr(i, end - i);
        i = end;
    }
    return out;
}

std::string Format(const Value& value, std::string_view format) {
    // The two formats that all lists use needn't be parsed for each cell.
    if (const auto* amount = std::get_if<Currency>(&value.Held()); amount && format == kMoneyFormat)
        return FormatDigits(DigitsOf(*amount), format);
    if (const auto* date = std::get_if<Date>(&value.Held()); date && format == kDateFormat)
        return date->IsSet() ? date->ToText() : std::string();
    const std::string_view plain = NamedFormat(format);
    if (value.IsNull()) {
        const auto section = FormatSection(plain, 3);
        return section.empty() ? std::string() : FormatDigits({}, section);
    }
    if (plain.empty()) return value.AsText();
    if (const auto* text = std::get_if<std::string>(&value.Held())) return FormatText(*text, plain);
    if (IsDateFormat(plain)) return FormatDate(value.AsDate(), plain);
    if (const auto* date = std::get_if<Date>(&value.Held()); date != nullptr && !ShowsDigits(plain))
        return FormatDate(*date, plain);
    if (const auto* amount = std::get_if<Currency>(&value.Held()))
        return FormatNumber(*amount, plain);
    return FormatNumber(value.AsDouble(), plain);
}

std::string FormatMoney(Currency amount) {
    return FormatNumber(amount, kMoneyFormat);
}

} // namespace platform
