#pragma once

#include <chrono>
#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// A calendar day of the years 100 to 9999, or unset. An unset date sorts before every day.
class Date {
  public:
    /// Creates the unset date.
    constexpr Date() = default;
    /// Creates a date. Throws ConversionError if the calendar has no such day (2/30).
    Date(int year, unsigned month, unsigned day);

    /// Reads "mm/dd/yyyy" (leading zeros may be missing, "-" may replace "/") and "yyyy-mm-dd".
    /// Years of one or two digits are in 1930 to 2029. Returns nothing if the text isn't a valid
    /// date; a blank text isn't one either.
    static std::optional<Date> TryParse(std::string_view text);
    /// Reads a date as TryParse does. A blank text is the unset date; any other text that isn't a
    /// valid date throws ConversionError.
    static Date Parse(std::string_view text);
    /// Returns the day with this serial number; see Serial. Throws an OverflowError outside the
    /// calendar.
    static Date FromSerial(int serial);

    constexpr bool IsSet() const { return serial_ != kUnset; }
    int Year() const { return static_cast<int>(Calendar().year()); }
    unsigned Month() const { return static_cast<unsigned>(Calendar().month()); }
    unsigned Day() const { return static_cast<unsigned>(Calendar().day()); }
    /// Returns year, month and day together.
    std::chrono::year_month_day Calendar() const {
        return std::chrono::sys_days(std::chrono::days(Serial() - kUnixSerial));
    }
    /// Returns the day of the week, from 1 for Sunday to 7 for Saturday.
    unsigned Weekday() const;

    /// Returns the days since 12/30/1899, the number by which the SQL dialect computes with dates.
    /// Like every function but IsSet and ToText, throws ConversionError if the date is unset.
    int Serial() const {
        if (!IsSet()) ThrowUnset();
        return serial_;
    }

    /// Returns the date as "mm/dd/yyyy"; empty if it is unset.
    std::string ToText() const;

    friend constexpr bool operator==(Date, Date) = default;
    friend constexpr auto operator<=>(Date a, Date b) { return a.serial_ <=> b.serial_; }

  private:
    static constexpr int kUnset = -2'147'483'647;
    static constexpr int kUnixSerial = 25'569; // of 1/1/1970

    constexpr explicit Date(int serial) : serial_(serial) {}
    [[noreturn]] static void ThrowUnset();
    static std::optional<Date> FromParts(unsigned year, unsigned month, unsigned day);

    int serial_ = kUnset;
};

enum class Interval { Day, Week, Month, Year };

/// Returns the day `count` intervals later (earlier if negative). Month and year steps keep the day
/// of the month and clamp it to the last day of a shorter month. Throws an OverflowError if that
/// leaves the calendar, a ConversionError for an unset date.
Date DateAdd(Interval interval, int count, Date date);

/// Returns how many interval boundaries lie between two days, negative if `to` is earlier: days,
/// whole weeks of seven days, changes of the calendar month, changes of the calendar year.
int DateDiff(Interval interval, Date from, Date to);

} // namespace platform
