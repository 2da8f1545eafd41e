#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace platform {

/// The kind of a database field, by the numbers that screens and the repair of nulls know it by.
enum class FieldType : std::int16_t {
    Integer = 2, ///< 16 bits
    Long = 3,    ///< 32 bits
    Double = 5,
    Currency = 6,
    Date = 7, ///< only ever computed: stored dates are text
    Boolean = 11,
    Text = 202,
    Memo = 203,
};

/// The name of a field type in messages: "Integer", "Long", ...
std::string_view FieldTypeName(FieldType type);

/// One database value: null, or a value of one of the field types.
class Value {
  public:
    Value() = default;
    Value(bool value) : data_(value) {}
    Value(std::int16_t value) : data_(value) {}
    Value(std::int32_t value) : data_(value) {}
    Value(double value) : data_(value) {}
    Value(Currency value) : data_(value) {}
    /// An unset date is null.
    Value(Date value);
    Value(std::string value) : data_(std::move(value)) {}
    Value(std::string_view value) : data_(std::string(value)) {}
    Value(const char* value) : data_(std::string(value)) {}

    bool IsNull() const { return std::holds_alternative<std::monostate>(data_); }
    /// Null, or a text without a character: both mean that nothing is set.
    bool IsBlank() const;

    // Readings convert as the field types convert: a number from a text that is one, a text from
    // anything; True counts as 1, a date as its serial number. A null, or a text that does not
    // convert, throws ConversionError; a number out of range OverflowError; halves round to even.
    /// Any number but 0 is true; of texts only "True", "False" and numbers convert.
    bool AsBoolean() const;
    std::int16_t AsInteger() const;
    std::int32_t AsLong() const;
    double AsDouble() const;
    Currency AsCurrency() const;
    /// A text that is a day, a date, or the serial number of one (its whole part); a blank text is
    /// the unset date.
    Date AsDate() const;
    /// Numbers in their shortest form, booleans "True" and "False", dates "mm/dd/yyyy".
    std::string AsText() const;

    /// This value as a field of `type` holds it; null stays null.
    Value ConvertTo(FieldType type) const;

    /// The stored form as it is, for code that acts by kind.
    using Data = std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, Currency,
                              Date, std::string>;
    const Data& Held() const { return data_; }

    /// Same kind and same value; texts by their letters exactly.
    friend bool operator==(const Value&, const Value&) = default;

  private:
    Data data_;
};

} // namespace platform
