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
    /// Unset.
    constexpr Date() = default;
    /// The day itself. Throws ConversionError if the calendar has no such day (2/30).
    Date(int year, unsigned month, unsigned day);

    /// Reads "mm/dd/yyyy" (leading zeros may be missing, "-" may replace "/") and "yyyy-mm-dd".
    /// Years of one or two digits are in 1930 to 2029. Empty if the text isn't a valid date; a
    /// blank text isn't one either.
    static std::optional<Date> TryParse(std::string_view text);
    /// As TryParse; a blank text is the unset date, any other text that isn't a valid date throws
    /// ConversionError.
    static Date Parse(std::string_view text);
    /// The day whose serial number this is; see Serial. Outside the calendar an OverflowError.
    static Date FromSerial(int serial);

    constexpr bool IsSet() const { return serial_ != kUnset; }
    int Year() const { return static_cast<int>(Calendar().year()); }
    unsigned Month() const { return static_cast<unsigned>(Calendar().month()); }
    unsigned Day() const { return static_cast<unsigned>(Calendar().day()); }
    /// Year, month and day together.
    std::chrono::year_month_day Calendar() const {
        return std::chrono::sys_days(std::chrono::days(Serial() - kUnixSerial));
    }
    /// 1 Sunday to 7 Saturday.
    unsigned Weekday() const;

    /// Days since 12/30/1899, the number by which the SQL dialect computes with dates.
    /// Throws ConversionError if the date is unset, like every reading but IsSet and ToText.
    int Serial() const {
        if (!IsSet()) ThrowUnset();
        return serial_;
    }

    /// "mm/dd/yyyy", empty when unset.
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

/// The day `count` intervals later (earlier when negative). Month and year steps keep the day of
/// the month and clamp it to the last day of a shorter month. Leaving the calendar is an
/// OverflowError, an unset date a ConversionError.
Date DateAdd(Interval interval, int count, Date date);

/// How many interval boundaries lie between two days, negative when `to` is earlier: days, whole
/// weeks of seven days, changes of the calendar month, changes of the calendar year.
int DateDiff(Interval interval, Date from, Date to);

} // namespace platform
