#include <cmath>
#include <optional>

#include <fmt/core.h>

#include "platform/database/dialect/RuntimeCall.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform::dialect {

using platform::Date;

Date RuntimeCall::Day(int i) const {
    const double serial = std::floor(Real(i));
    if (std::fabs(serial) > 3'000'000) throw OverflowError("The date lies outside the calendar.");
    return Date::FromSerial(static_cast<int>(serial));
}

namespace {

int ToCount(double number) {
    if (!(std::fabs(number) < 1e9)) throw OverflowError("The number is too large for a date.");
    return static_cast<int>(std::nearbyint(number));
}

/// Returns the day of a text that is exactly "mm/dd/yyyy", the stored form; nothing for any other
/// text. It runs for every row of a ledger and so must be fast.
std::optional<std::int64_t> StoredDay(std::string_view text) {
    if (text.size() != 10 || text[2] != '/' || text[5] != '/') return std::nullopt;
    unsigned strange = 0;
    const auto digit = [&](std::size_t i) {
        const unsigned value = static_cast<unsigned char>(text[i]) - unsigned{'0'};
        strange |= static_cast<unsigned>(value > 9);
        return value;
    };
    const unsigned month = digit(0) * 10 + digit(1);
    const unsigned day = digit(3) * 10 + digit(4);
    const unsigned year = digit(6) * 1000 + digit(7) * 100 + digit(8) * 10 + digit(9);
    // Days above 28 are left to the calendar class.
    if (strange != 0 || month < 1 || month > 12 || day < 1 || day > 28 || year < 100) {
        return std::nullopt;
    }
    // Years that begin in March have their leap day at the end.
    const unsigned marchYear = month > 2 ? year : year - 1;
    const unsigned marchMonth = month > 2 ? month - 3 : month + 9;
    const unsigned days = marchYear * 365 + marchYear / 4 - marchYear / 100 + marchYear / 400 +
                          (marchMonth * 153 + 2) / 5 + day;
    constexpr std::int64_t kZeroDay = 693'900; // 12/30/1899 counted so
    return std::int64_t{days} - kZeroDay;
}

/// Reads text as a date; null for a blank one.
void ReadDate(const RuntimeCall& call) {
    const std::string_view text = call.Text(0);
    if (const auto day = StoredDay(text)) return call.Answer(*day);
    if (const auto date = Date::TryParse(text)) return call.Answer(*date);
    if (!Trim(text).empty()) throw ConversionError(fmt::format("'{}' is not a valid date", text));
}

void DateText(const RuntimeCall& call) {
    call.Answer(std::string_view(call.Day(0).ToText()));
}

void ReadToday(const RuntimeCall& call) {
    call.Answer(Today());
}

void ReadNow(const RuntimeCall& call) {
    constexpr double kSecondsPerDay = 86'400;
    call.Answer(Today().Serial() + SecondOfDay() / kSecondsPerDay);
}

void Year(const RuntimeCall& call) {
    call.Answer(std::int64_t{call.Day(0).Year()});
}
void Month(const RuntimeCall& call) {
    call.Answer(std::int64_t{call.Day(0).Month()});
}
void DayOfMonth(const RuntimeCall& call) {
    call.Answer(std::int64_t{call.Day(0).Day()});
}
void Weekday(const RuntimeCall& call) {
    call.Answer(std::int64_t{call.Day(0).Weekday()});
}

/// The intervals that DateAdd and similar functions accept.
enum class IntervalWord { Year, Quarter, Month, DayOfYear, Day, Weekday, Week };

IntervalWord ReadInterval(std::string_view word) {
    constexpr std::pair<std::string_view, IntervalWord> kWords[] = {
        {"yyyy", IntervalWord::Year},   {"q", IntervalWord::Quarter}, {"m", IntervalWord::Month},
        {"y", IntervalWord::DayOfYear}, {"d", IntervalWord::Day},     {"w", IntervalWord::Weekday},
        {"ww", IntervalWord::Week}};
    for (const auto& [name, interval] : kWords) {
        if (EqualIgnoringCase(word, name)) return interval;
    }
    throw ConversionError(fmt::format("'{}' is not an interval", word));
}

void DatePart(const RuntimeCall& call) {
    const Date day = call.Day(1);
    const int dayOfYear = day.Serial() - Date(day.Year(), 1, 1).Serial() + 1;
    int part = 0;
    switch (ReadInterval(call.Text(0))) {
        case IntervalWord::Year:
            part = day.Year();
            break;
        case IntervalWord::Quarter:
            part = (static_cast<int>(day.Month()) + 2) / 3;
            break;
        case IntervalWord::Month:
            part = static_cast<int>(day.Month());
            break;
        case IntervalWord::DayOfYear:
            part = dayOfYear;
            break;
        case IntervalWord::Day:
            part = static_cast<int>(day.Day());
            break;
        case IntervalWord::Weekday:
            part = static_cast<int>(day.Weekday());
            break;
        case IntervalWord::Week:
            // Weeks begin on Sunday; the week of January 1st is the first.
            part = (dayOfYear + static_cast<int>(Date(day.Year(), 1, 1).Weekday()) - 2) / 7 + 1;
            break;
    }
    call.Answer(std::int64_t{part});
}

/// A month or day out of range carries over into the next year or month.
void MakeDate(const RuntimeCall& call) {
    const Date first(ToCount(call.Real(0)), 1, 1);
    const Date month = DateAdd(Interval::Month, ToCount(call.Real(1)) - 1, first);
    call.Answer(DateAdd(Interval::Day, ToCount(call.Real(2)) - 1, month));
}

void AddToDate(const RuntimeCall& call) {
    const int count = ToCount(call.Real(1));
    const Date day = call.Day(2);
    switch (ReadInterval(call.Text(0))) {
        case IntervalWord::Year:
            return call.Answer(DateAdd(Interval::Year, count, day));
        case IntervalWord::Quarter:
            return call.Answer(DateAdd(Interval::Month, count * 3, day));
        case IntervalWord::Month:
            return call.Answer(DateAdd(Interval::Month, count, day));
        case IntervalWord::Week:
            return call.Answer(DateAdd(Interval::Week, count, day));
        case IntervalWord::DayOfYear:
        case IntervalWord::Day:
        case IntervalWord::Weekday:
            break;
    }
    call.Answer(DateAdd(Interval::Day, count, day));
}

/// Returns the number of Sundays up to a day, to count those between two days.
int SundaysUpTo(Date day) {
    const int shifted = day.Serial() - 1;
    return shifted >= 0 ? shifted / 7 : (shifted - 6) / 7;
}

void DateDifference(const RuntimeCall& call) {
    const Date from = call.Day(1);
    const Date to = call.Day(2);
    const auto quarter = [](Date day) {
        return day.Year() * 4 + (static_cast<int>(day.Month()) - 1) / 3;
    };
    int difference = 0;
    switch (ReadInterval(call.Text(0))) {
        case IntervalWord::Year:
            difference = DateDiff(Interval::Year, from, to);
            break;
        case IntervalWord::Quarter:
            difference = quarter(to) - quarter(from);
            break;
        case IntervalWord::Month:
            difference = DateDiff(Interval::Month, from, to);
            break;
        case IntervalWord::Weekday:
            difference = DateDiff(Interval::Week, from, to);
            break;
        case IntervalWord::Week:
            difference = SundaysUpTo(to) - SundaysUpTo(from);
            break;
        case IntervalWord::DayOfYear:
        case IntervalWord::Day:
            difference = DateDiff(Interval::Day, from, to);
            break;
    }
    call.Answer(std::int64_t{difference});
}

} // namespace

void AddDateFunctions(sqlite3* connection) {
    AddFunction<RunUnlessNull<ReadDate>>(connection, "vestrel_date", 1);
    AddFunction<RunUnlessNull<DateText>>(connection, "vestrel_date_text", 1);
    AddFunction<ReadToday>(connection, "vestrel_today", 0);
    AddFunction<ReadNow>(connection, "vestrel_now", 0);
    AddFunction<RunUnlessNull<Year>>(connection, "vestrel_year", 1);
    AddFunction<RunUnlessNull<Month>>(connection, "vestrel_month", 1);
    AddFunction<RunUnlessNull<DayOfMonth>>(connection, "vestrel_day", 1);
    AddFunction<RunUnlessNull<Weekday>>(connection, "vestrel_weekday", 1);
    AddFunction<RunUnlessNull<DatePart>>(connection, "vestrel_date_part", 2);
    AddFunction<RunUnlessNull<MakeDate>>(connection, "vestrel_date_serial", 3);
    AddFunction<RunUnlessNull<AddToDate>>(connection, "vestrel_date_add", 3);
    AddFunction<RunUnlessNull<DateDifference>>(connection, "vestrel_date_diff", 3);
}

} // namespace platform::dialect
